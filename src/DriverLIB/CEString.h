#pragma once

#include <cstdarg>
#include <cstdint>
#include <memory>
#include <string_view>

#include "DriverLIB/TextView.h"

// Narrow text of 8-bit characters in the system's ANSI code page: for files and components that speak 8-bit text.
//
// The narrow sister of CUString, with the same rules for copies, null texts and buffers; it grows to exactly the size
// asked for. Lengths and capacities count bytes without the terminator.
class CEString {
 public:
  static constexpr int kMaxLength = INT32_MAX - 1;
  static constexpr int kFormatCapacity = 2048;  // of Format, terminator included

  constexpr CEString() noexcept = default;
  CEString(const char* text) : CEString(std::string_view(NarrowView(text))) {}
  CEString(std::string_view text);
  CEString(const CEString& other);
  CEString(CEString&& other) noexcept;
  virtual ~CEString();

  // Forgets the buffer without freeing it: whoever has taken it frees it with delete[]. Returns 0.
  virtual int Reset();

  CEString& operator=(const CEString& other);
  CEString& operator=(CEString&& other) noexcept;
  CEString& operator=(const char* text);
  CEString& operator=(std::string_view text);
  void Swap(CEString& other) noexcept;

  const char* Text() const { return buffer_ ? buffer_ : ""; }  // never null
  const char* Buffer() const { return buffer_; }               // null when there is none
  char* Buffer() { return buffer_; }
  int Length() const { return length_; }
  int Capacity() const { return capacity_; }
  bool IsEmpty() const { return length_ == 0; }
  std::string_view View() const { return {Text(), static_cast<size_t>(length_)}; }
  operator NarrowView() const { return View(); }

  // A pointer into the text: null for a negative index, the terminator for one over the length.
  const char* CharPtr(int index) const;
  // Comparing ends at a terminator inside the text.
  bool Equals(NarrowView text) const { return NarrowView(*this).Terminated() == text.Terminated(); }

  void Assign(NarrowView text);  // an empty text clears the bytes in use and keeps the buffer
  // Converts to the ANSI code page, into at most as many bytes as `text` has characters: in a double-byte code page
  // the end is lost, and a character is never cut in two.
  void AssignWide(WideView text);
  void Append(NarrowView text);
  CEString& operator+=(NarrowView text);

  // Formats and assigns the result, cut at kFormatCapacity - 1 bytes. Returns the number of bytes, negative when the
  // result was cut.
  int Format(const char* format, ...);
  int FormatV(const char* format, va_list arguments);

  int Find(NarrowView substring) const;  // -1 for an empty string or no match
  int ReverseFind(char character) const;

  // Every occurrence, from left to right. No effect with an empty `newText`.
  void ReplaceStr(NarrowView oldText, NarrowView newText);
  // White space only. Text that is trimmed away whole takes the buffer with it.
  void TrimLeft();
  void TrimRight();
  void TrimBoth();
  CEString Left(int count) const;

  // Hidden friends: found for strings of this library only, not for what merely converts to one.
  friend bool operator==(const CEString& left, const CEString& right) { return left.Equals(right); }
  friend bool operator==(const CEString& left, const char* right) { return left.Equals(right); }
  friend bool operator==(const CEString& left, std::string_view right) { return left.Equals(right); }
  friend void swap(CEString& left, CEString& right) noexcept { left.Swap(right); }

  // Makes room for `count` bytes; a new block is zero behind the text. A negative count adds 8. Always returns 1.
  int EnsureCapacity(int count);
  void SetLength(int count);           // and terminates there
  void ReleaseBuffer(int count = -1);  // a negative count counts the text anew

 private:
  static constexpr int kGrowth = 8;

  char* buffer_ = nullptr;
  int capacity_ = 0;
  int length_ = 0;

  std::unique_ptr<char[]> Reallocate(int64_t capacity);
  void FreeBuffer();
};
