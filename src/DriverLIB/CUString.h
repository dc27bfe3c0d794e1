#pragma once

#include <cstdarg>
#include <cstdint>
#include <memory>
#include <string_view>

#include "DriverLIB/TextView.h"

// Wide text of 16-bit characters in one heap block of its own: the string of this library.
//
// Copies are deep. Lengths, indexes and capacities count characters without the terminator; a text may hold up to
// kMaxLength of them. Every operation that takes a text takes null as the empty text, and the text may be a part of
// the string's own. A string that has never held text has no buffer, and a string that was trimmed to nothing gives
// its buffer back; one that was assigned an empty text keeps it. Exhausted memory throws std::bad_alloc.
//
// Whoever writes into the buffer calls EnsureCapacity first and ReleaseBuffer afterwards.
class CUString {
 public:
  static constexpr int kMaxLength = INT32_MAX - 1;
  static constexpr int kFormatCapacity = 2048;  // of Format, terminator included

  constexpr CUString() noexcept = default;
  CUString(const wchar_t* text) : CUString(std::wstring_view(WideView(text))) {}
  CUString(std::wstring_view text);
  CUString(const CUString& other);
  CUString(CUString&& other) noexcept;
  virtual ~CUString();

  // Forgets the buffer without freeing it: whoever has taken it frees it with delete[]. Returns 0.
  virtual int Reset();

  CUString& operator=(const CUString& other);
  CUString& operator=(CUString&& other) noexcept;
  CUString& operator=(const wchar_t* text);
  CUString& operator=(std::wstring_view text);
  void Swap(CUString& other) noexcept;

  // --- Looking ---------------------------------------------------------------------------------------------------

  const wchar_t* Text() const { return buffer_ ? buffer_ : L""; }  // never null
  const wchar_t* Buffer() const { return buffer_; }                // null when there is none
  wchar_t* Buffer() { return buffer_; }
  int Length() const { return length_; }
  int Capacity() const { return capacity_; }
  bool IsEmpty() const { return length_ == 0; }
  std::wstring_view View() const { return {Text(), static_cast<size_t>(length_)}; }
  operator WideView() const { return View(); }

  // The character at `index`, 0 outside the text.
  wchar_t operator[](int index) const { return index >= 0 && index < length_ ? buffer_[index] : L'\0'; }
  // A pointer into the text: null for a negative index, the terminator for one over the length.
  const wchar_t* CharPtr(int index) const;

  // Comparing ends at a terminator inside the text: behind it may lie what a double-byte code page left over, or the
  // rest of raw bytes.
  bool Equals(WideView text) const { return WideView(*this).Terminated() == text.Terminated(); }
  bool EqualsNoCase(WideView text) const;

  // --- Assigning and appending -----------------------------------------------------------------------------------

  void Assign(WideView text);  // an empty text clears the characters in use and keeps the buffer
  // Converts from the ANSI code page. The length becomes the byte count of `text` in every code page.
  void AssignNarrow(NarrowView text);
  void Append(WideView text);  // grows to exactly the size needed
  CUString& operator+=(WideView text);

  // Formats with the platform's semantics ("%s" is wide) and assigns the result, cut at kFormatCapacity - 1
  // characters. Returns the number of characters, negative when the result was cut.
  int Format(const wchar_t* format, ...);
  int FormatV(const wchar_t* format, va_list arguments);

  // --- Searching: an index into the text, -1 for an empty string or no match -----------------------------------------

  int Find(WideView substring) const;
  int FindFrom(WideView substring, int from) const;
  // The distance from `from`, not from the start of the text: 'a' from 1 in "abcabc" gives 2. Parsers rely on it.
  int FindChar(wchar_t character, int from = 0) const;
  int ReverseFind(wchar_t character) const;
  int ReverseFindStr(WideView substring) const;
  int FindOneOf(WideView set) const;

  // --- Changing --------------------------------------------------------------------------------------------------

  void ReplaceChar(wchar_t oldCharacter, wchar_t newCharacter);
  // Replaces every occurrence from left to right, without looking into replaced text. No effect with an empty
  // `newText`: nothing can be removed with it.
  void ReplaceStr(WideView oldText, WideView newText);
  // A blank stands for every white-space character. Text that is trimmed away whole takes the buffer with it.
  void TrimLeft(wchar_t character = L' ');
  void TrimRight(wchar_t character = L' ');
  void TrimBoth(wchar_t character = L' ');
  int DeleteAt(int index);  // the new length, -1 for an index outside the text
  void MakeUpper();

  CUString Left(int count) const;
  CUString Mid(int start, int count = -1) const;  // a negative count means the rest

  // Hidden friends: found for strings of this library only, not for what merely converts to one.
  friend bool operator==(const CUString& left, const CUString& right) { return left.Equals(right); }
  friend bool operator==(const CUString& left, const wchar_t* right) { return left.Equals(right); }
  friend bool operator==(const CUString& left, std::wstring_view right) { return left.Equals(right); }
  friend CUString operator+(CUString left, WideView right) {
    left.Append(right);
    return left;
  }
  friend void swap(CUString& left, CUString& right) noexcept { left.Swap(right); }

  // --- Direct access to the buffer -----------------------------------------------------------------------------------

  // Makes room for `count` characters; a new block is zero behind the text. A negative count forces a growth by one
  // step. Always returns 1.
  int EnsureCapacity(int count);
  void SetLength(int count);           // and terminates there
  void ReleaseBuffer(int count = -1);  // a negative count counts the text anew

 protected:
  static constexpr int kMinGrowth = 8;

  wchar_t* buffer_ = nullptr;
  int capacity_ = 0;
  int growBy_ = -1;  // the least step of growth
  int length_ = 0;

 private:
  int64_t CapacityFor(int64_t count) const;
  std::unique_ptr<wchar_t[]> Reallocate(int64_t capacity);
  void FreeBuffer();
};
