#include "DriverLIB/CBasicString.h"

#include <algorithm>
#include <utility>

#include "DriverLIB/CEString.h"
#include "DriverLIB/CUString.h"
#include "DriverLIB/Platform.h"
#include "DriverLIB/TextAlgorithms.h"

namespace {

int FormatText(wchar_t* buffer, size_t capacity, const wchar_t* format, va_list arguments) {
  return platform::FormatWide(buffer, capacity, format, arguments);
}

int FormatText(char* buffer, size_t capacity, const char* format, va_list arguments) {
  return platform::FormatNarrow(buffer, capacity, format, arguments);
}

}  // namespace

template <class String, class Character, class Fields>
CBasicString<String, Character, Fields>::CBasicString(StandardView text) {
  if (!text.empty()) Assign(text);
}

template <class String, class Character, class Fields>
CBasicString<String, Character, Fields>::CBasicString(const CBasicString& other) : Fields() {
  if (other.IsEmpty()) return;
  Reallocate(other.capacity_);
  Assign(other);
}

template <class String, class Character, class Fields>
CBasicString<String, Character, Fields>::CBasicString(CBasicString&& other) noexcept {
  Swap(other);
}

template <class String, class Character, class Fields>
CBasicString<String, Character, Fields>::~CBasicString() {
  delete[] buffer_;
}

template <class String, class Character, class Fields>
int CBasicString<String, Character, Fields>::Reset() {
  buffer_ = nullptr;
  capacity_ = 0;
  length_ = 0;
  return 0;
}

template <class String, class Character, class Fields>
CBasicString<String, Character, Fields>& CBasicString<String, Character, Fields>::operator=(const CBasicString& other) {
  if (this != &other) Assign(other);
  return *this;
}

template <class String, class Character, class Fields>
CBasicString<String, Character, Fields>& CBasicString<String, Character, Fields>::operator=(
    CBasicString&& other) noexcept {
  CBasicString(std::move(other)).Swap(*this);
  return *this;
}

template <class String, class Character, class Fields>
String& CBasicString<String, Character, Fields>::operator=(const Character* text) {
  Assign(text);
  return static_cast<String&>(*this);
}

template <class String, class Character, class Fields>
String& CBasicString<String, Character, Fields>::operator=(StandardView text) {
  Assign(text);
  return static_cast<String&>(*this);
}

template <class String, class Character, class Fields>
void CBasicString<String, Character, Fields>::Swap(CBasicString& other) noexcept {
  std::swap<Fields>(*this, other);
}

// --- Looking -----------------------------------------------------------------------------------------------------

template <class String, class Character, class Fields>
const Character* CBasicString<String, Character, Fields>::CharPtr(int index) const {
  if (index < 0) return nullptr;
  return Text() + std::min(index, length_);
}

// --- Assigning and appending ---------------------------------------------------------------------------------------

template <class String, class Character, class Fields>
void CBasicString<String, Character, Fields>::Assign(Borrowed text) {
  if (text.empty()) {
    std::fill_n(buffer_, length_, Character());
    length_ = 0;
    return;
  }
  const int count = text::CheckedLength(text.size(), kMaxLength);
  // A source inside our own buffer always fits, so it is never moved from under us.
  if (count > capacity_) EnsureCapacity(count);
  std::char_traits<Character>::move(buffer_, text.data(), text.size());
  SetLength(count);
}

template <class String, class Character, class Fields>
void CBasicString<String, Character, Fields>::Append(Borrowed text) {
  if (text.empty()) return;
  const int newLength = text::CheckedLength(static_cast<uint64_t>(length_) + text.size(), kMaxLength);
  std::unique_ptr<Character[]> oldBlock;  // stays until the end: `text` may lie in it
  if (newLength > capacity_) oldBlock = Reallocate(CapacityFor(newLength));
  std::char_traits<Character>::move(buffer_ + length_, text.data(), text.size());
  SetLength(newLength);
}

template <class String, class Character, class Fields>
String& CBasicString<String, Character, Fields>::operator+=(Borrowed text) {
  Append(text);
  return static_cast<String&>(*this);
}

template <class String, class Character, class Fields>
int CBasicString<String, Character, Fields>::Format(const Character* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const int count = FormatV(format, arguments);
  va_end(arguments);
  return count;
}

template <class String, class Character, class Fields>
int CBasicString<String, Character, Fields>::FormatV(const Character* format, va_list arguments) {
  Character result[kFormatCapacity];
  const int count = FormatText(result, kFormatCapacity, format ? format : kEmptyText, arguments);
  Assign(result);
  return count;
}

// --- Searching ---------------------------------------------------------------------------------------------------

template <class String, class Character, class Fields>
int CBasicString<String, Character, Fields>::Find(Borrowed substring) const {
  return IsEmpty() ? -1 : text::IndexOf(View().find(substring));
}

template <class String, class Character, class Fields>
int CBasicString<String, Character, Fields>::ReverseFind(Character character) const {
  return text::IndexOf(View().rfind(character));
}

// --- Changing ----------------------------------------------------------------------------------------------------

template <class String, class Character, class Fields>
void CBasicString<String, Character, Fields>::ReplaceStr(Borrowed oldText, Borrowed newText) {
  if (IsEmpty() || oldText.empty() || newText.empty()) return;
  std::basic_string<Character> result;
  const StandardView text = View();
  size_t cursor = 0;
  for (size_t found; (found = text.find(oldText, cursor)) != text.npos; cursor = found + oldText.size()) {
    result.append(text, cursor, found - cursor);
    result.append(newText);
  }
  Assign(result.append(text, cursor));
}

template <class String, class Character, class Fields>
String CBasicString<String, Character, Fields>::Left(int count) const {
  if (count >= length_) return static_cast<const String&>(*this);
  return count > 0 ? String(View().substr(0, static_cast<size_t>(count))) : String();
}

template <class String, class Character, class Fields>
void CBasicString<String, Character, Fields>::CutLeft(int count) {
  if (count == 0) return;
  if (count == length_) return FreeBuffer();
  std::copy(buffer_ + count, buffer_ + length_, buffer_);
  SetLength(length_ - count);
}

template <class String, class Character, class Fields>
void CBasicString<String, Character, Fields>::CutRight(int count) {
  if (count == 0) return;
  if (count == length_) return FreeBuffer();
  SetLength(length_ - count);
}

// --- Direct access to the buffer -----------------------------------------------------------------------------------

template <class String, class Character, class Fields>
int CBasicString<String, Character, Fields>::EnsureCapacity(int count) {
  const int step = std::max(growBy_, kMinGrowth);
  if (count < 0) {
    Reallocate(int64_t{capacity_} + step);
  } else if (count == 0 && capacity_ < kMinGrowth) {
    Reallocate(step);
  } else if (count > capacity_) {
    Reallocate(CapacityFor(count));
  }
  return 1;
}

template <class String, class Character, class Fields>
void CBasicString<String, Character, Fields>::SetLength(int count) {
  count = std::max(count, 0);
  if (count > capacity_) EnsureCapacity(count);
  length_ = count;
  if (buffer_) buffer_[count] = Character();
}

template <class String, class Character, class Fields>
void CBasicString<String, Character, Fields>::ReleaseBuffer(int count) {
  if (count < 0) {
    // The writer may have overwritten the terminator at the end of the block, but nothing behind it.
    count = buffer_ ? static_cast<int>(std::find(buffer_, buffer_ + capacity_, Character()) - buffer_) : 0;
  }
  SetLength(count);
}

template <class String, class Character, class Fields>
int64_t CBasicString<String, Character, Fields>::CapacityFor(int64_t count) const {
  return capacity_ + std::max<int64_t>(count - capacity_, growBy_);
}

// Moves the text to a block for `capacity` characters. Returns the old block.
template <class String, class Character, class Fields>
std::unique_ptr<Character[]> CBasicString<String, Character, Fields>::Reallocate(int64_t capacity) {
  const int newCapacity = text::CheckedLength(static_cast<uint64_t>(capacity), kMaxLength);
  auto block = std::make_unique<Character[]>(static_cast<size_t>(newCapacity) + 1);  // zeroed
  std::copy_n(buffer_, length_, block.get());
  std::unique_ptr<Character[]> oldBlock(std::exchange(buffer_, block.release()));
  capacity_ = newCapacity;
  return oldBlock;
}

template <class String, class Character, class Fields>
void CBasicString<String, Character, Fields>::FreeBuffer() {
  delete[] buffer_;
  CBasicString::Reset();
}

template class CBasicString<CUString, wchar_t, WideFields>;
template class CBasicString<CEString, char, NarrowFields>;
