// Texts of more characters than the 32,767 that an edit takes at first.
#pragma once

#include <string>

constexpr size_t kLongTextSize = 33'000;

inline std::wstring LongLine() { return std::wstring(kLongTextSize, L'x'); }

// For an edit of several lines: to wrap one long line costs Wine seconds.
inline std::wstring LongText() {
  std::wstring text;
  while (text.size() < kLongTextSize) text += L"one of many lines\r\n";
  return text;
}
