// The styles that are built into Word.
#pragma once

#include <cstdint>

#include "DriverLIB/TextView.h"

struct WordStyle {
  std::wstring_view key;  // its name in documents, in every language of Word
  uint32_t messageId;     // its name in the Word of the user's language
};

constexpr int kWordStyleCount = 102;
extern const WordStyle kWordStyles[kWordStyleCount];

// The style of that name, or null. Names are compared with case.
const WordStyle* FindWordStyle(WideView key);
