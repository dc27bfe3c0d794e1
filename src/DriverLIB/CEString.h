#pragma once

#include <string_view>

#include "DriverLIB/CBasicString.h"

struct NarrowFields {
  char* buffer_ = nullptr;
  int capacity_ = 0;
  int length_ = 0;
  static constexpr int growBy_ = -1;
};

// Narrow text of 8-bit characters in the system's ANSI code page: for files and components that speak 8-bit text.
//
// The narrow sister of CUString; its lengths and capacities count bytes.
class CEString : public CBasicString<CEString, char, NarrowFields> {
 public:
  constexpr CEString() noexcept = default;
  CEString(const char* text) : CEString(std::string_view(NarrowView(text))) {}
  CEString(std::string_view text);
  CEString(const CEString& other);
  CEString(CEString&& other) noexcept;
  ~CEString() override;

  using CBasicString::operator=;
  CEString& operator=(const CEString& other);
  CEString& operator=(CEString&& other) noexcept;

  // Converts to the ANSI code page, into at most as many bytes as `text` has characters: in a double-byte code page
  // the end is lost, and a character is never cut in two.
  void AssignWide(WideView text);

  // White space only. Text that is trimmed away whole takes the buffer with it.
  void TrimLeft();
  void TrimRight();
  void TrimBoth();
};

extern template class CBasicString<CEString, char, NarrowFields>;
