#pragma once

#include <cstdarg>
#include <cstdint>
#include <memory>
#include <string_view>

#include "DriverLIB/TextView.h"

// What the wide and the narrow string do alike: the base of CUString and CEString. `String` is the one that derives,
// `Fields` its buffer_, capacity_, growBy_ (the least step of growth) and length_. The bodies stand in
// CBasicString.cpp, made for these two only.
//
// Copies are deep. Lengths, indexes and capacities count characters without the terminator; a text may hold up to
// kMaxLength of them. Every operation that takes a text takes null as the empty text, and the text may be a part of
// the string's own. A string that has never held text has no buffer, and a string that was trimmed to nothing gives
// its buffer back; one that was assigned an empty text keeps it. Exhausted memory throws std::bad_alloc.
//
// Whoever writes into the buffer calls EnsureCapacity first and ReleaseBuffer afterwards.
template <class String, class Character, class Fields>
class CBasicString : protected Fields {
  using Borrowed = TextView<Character>;
  using StandardView = std::basic_string_view<Character>;

 public:
  static constexpr int kMaxLength = INT32_MAX - 1;
  static constexpr int kFormatCapacity = 2048;  // of Format, terminator included

  virtual ~CBasicString();

  // Forgets the buffer without freeing it: whoever has taken it frees it with delete[]. Returns 0.
  virtual int Reset();

  String& operator=(const Character* text);
  String& operator=(StandardView text);
  void Swap(CBasicString& other) noexcept;

  // --- Looking ---------------------------------------------------------------------------------------------------

  const Character* Text() const { return buffer_ ? buffer_ : kEmptyText; }  // never null
  const Character* Buffer() const { return buffer_; }                       // null when there is none
  Character* Buffer() { return buffer_; }
  int Length() const { return length_; }
  int Capacity() const { return capacity_; }
  bool IsEmpty() const { return length_ == 0; }
  StandardView View() const { return {Text(), static_cast<size_t>(length_)}; }
  operator Borrowed() const { return View(); }

  // A pointer into the text: null for a negative index, the terminator for one over the length.
  const Character* CharPtr(int index) const;

  // Comparing ends at a terminator inside the text: behind it may lie what a double-byte code page left over, or the
  // rest of raw bytes.
  bool Equals(Borrowed text) const { return Borrowed(*this).Terminated() == text.Terminated(); }

  // --- Assigning and appending -----------------------------------------------------------------------------------

  void Assign(Borrowed text);  // an empty text clears the characters in use and keeps the buffer
  void Append(Borrowed text);  // grows to exactly the size needed
  String& operator+=(Borrowed text);

  // Formats with the platform's semantics ("%s" takes text of the string's own kind) and assigns the result, cut at
  // kFormatCapacity - 1 characters. Returns the number of characters, negative when the result was cut.
  int Format(const Character* format, ...);
  int FormatV(const Character* format, va_list arguments);

  // --- Searching: an index into the text, -1 for an empty string or no match -----------------------------------------

  int Find(Borrowed substring) const;
  int ReverseFind(Character character) const;

  // --- Changing --------------------------------------------------------------------------------------------------

  // Replaces every occurrence from left to right, without looking into replaced text. No effect with an empty
  // `newText`: nothing can be removed with it.
  void ReplaceStr(Borrowed oldText, Borrowed newText);

  String Left(int count) const;

  // Hidden friends: found for strings of this library only, not for what merely converts to one.
  friend bool operator==(const String& left, const String& right) { return left.Equals(right); }
  friend bool operator==(const String& left, const Character* right) { return left.Equals(right); }
  friend bool operator==(const String& left, StandardView right) { return left.Equals(right); }
  friend void swap(String& left, String& right) noexcept { left.Swap(right); }

  // --- Direct access to the buffer -----------------------------------------------------------------------------------

  // Makes room for `count` characters; a new block is zero behind the text. A negative count forces a growth by one
  // step. Always returns 1.
  int EnsureCapacity(int count);
  void SetLength(int count);           // and terminates there
  void ReleaseBuffer(int count = -1);  // a negative count counts the text anew

 protected:
  constexpr CBasicString() noexcept = default;
  explicit CBasicString(StandardView text);
  CBasicString(const CBasicString& other);
  CBasicString(CBasicString&& other) noexcept;

  CBasicString& operator=(const CBasicString& other);
  CBasicString& operator=(CBasicString&& other) noexcept;

  // Take away as many characters at the start or at the end; all of them go with the buffer.
  void CutLeft(int count);
  void CutRight(int count);

  using Fields::buffer_;
  using Fields::capacity_;
  using Fields::growBy_;
  using Fields::length_;

 private:
  static constexpr int kMinGrowth = 8;
  static constexpr Character kEmptyText[1] = {};

  int64_t CapacityFor(int64_t count) const;
  std::unique_ptr<Character[]> Reallocate(int64_t capacity);
  void FreeBuffer();
};
