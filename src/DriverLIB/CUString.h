#pragma once

#include <string_view>

#include "DriverLIB/CBasicString.h"

struct WideFields {
  wchar_t* buffer_ = nullptr;
  int capacity_ = 0;
  int growBy_ = -1;
  int length_ = 0;
};

// Wide text of 16-bit characters in one heap block of its own: the string of this library.
class CUString : public CBasicString<CUString, wchar_t, WideFields> {
 public:
  constexpr CUString() noexcept = default;
  CUString(const wchar_t* text) : CUString(std::wstring_view(WideView(text))) {}
  CUString(std::wstring_view text);
  CUString(const CUString& other);
  CUString(CUString&& other) noexcept;
  ~CUString() override;

  using CBasicString::operator=;
  CUString& operator=(const CUString& other);
  CUString& operator=(CUString&& other) noexcept;

  // The character at `index`, 0 outside the text.
  wchar_t operator[](int index) const { return index >= 0 && index < length_ ? buffer_[index] : L'\0'; }
  bool EqualsNoCase(WideView text) const;

  // Converts from the ANSI code page. The length becomes the byte count of `text` in every code page.
  void AssignNarrow(NarrowView text);

  // --- Searching: an index into the text, -1 for an empty string or no match -----------------------------------------

  int FindFrom(WideView substring, int from) const;
  // The distance from `from`, not from the start of the text: 'a' from 1 in "abcabc" gives 2. Parsers rely on it.
  int FindChar(wchar_t character, int from = 0) const;
  int ReverseFindStr(WideView substring) const;
  int FindOneOf(WideView set) const;

  // --- Changing --------------------------------------------------------------------------------------------------

  void ReplaceChar(wchar_t oldCharacter, wchar_t newCharacter);
  // A blank stands for every white-space character. Text that is trimmed away whole takes the buffer with it.
  void TrimLeft(wchar_t character = L' ');
  void TrimRight(wchar_t character = L' ');
  void TrimBoth(wchar_t character = L' ');
  int DeleteAt(int index);  // the new length, -1 for an index outside the text
  void MakeUpper();

  CUString Mid(int start, int count = -1) const;  // a negative count means the rest

  // A hidden friend: found for strings of this library only, not for what merely converts to one.
  friend CUString operator+(CUString left, WideView right) {
    left.Append(right);
    return left;
  }
};

extern template class CBasicString<CUString, wchar_t, WideFields>;
