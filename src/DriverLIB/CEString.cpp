#include "DriverLIB/CEString.h"

#include <algorithm>
#include <utility>

#include "DriverLIB/Platform.h"
#include "DriverLIB/TextAlgorithms.h"

namespace {

bool IsSpace(char character) { return platform::IsNarrowSpace(static_cast<unsigned char>(character)); }

}  // namespace

CEString::CEString(std::string_view text) {
  if (!text.empty()) Assign(text);
}

CEString::CEString(const CEString& other) {
  if (other.IsEmpty()) return;
  Reallocate(other.capacity_);
  Assign(other);
}

CEString::CEString(CEString&& other) noexcept { Swap(other); }

CEString::~CEString() { FreeBuffer(); }

int CEString::Reset() {
  buffer_ = nullptr;
  capacity_ = 0;
  length_ = 0;
  return 0;
}

CEString& CEString::operator=(const CEString& other) {
  if (this != &other) Assign(other);
  return *this;
}

CEString& CEString::operator=(CEString&& other) noexcept {
  CEString(std::move(other)).Swap(*this);
  return *this;
}

CEString& CEString::operator=(const char* text) {
  Assign(text);
  return *this;
}

CEString& CEString::operator=(std::string_view text) {
  Assign(text);
  return *this;
}

void CEString::Swap(CEString& other) noexcept {
  std::swap(buffer_, other.buffer_);
  std::swap(capacity_, other.capacity_);
  std::swap(length_, other.length_);
}

const char* CEString::CharPtr(int index) const {
  if (index < 0) return nullptr;
  return Text() + std::min(index, length_);
}

void CEString::Assign(NarrowView text) {
  if (text.empty()) {
    std::fill_n(buffer_, length_, '\0');
    length_ = 0;
    return;
  }
  const int count = text::CheckedLength(text.size(), kMaxLength);
  // A source inside our own buffer always fits, so it is never moved from under us.
  if (count > capacity_) EnsureCapacity(count);
  std::char_traits<char>::move(buffer_, text.data(), text.size());
  SetLength(count);
}

void CEString::AssignWide(WideView text) {
  Assign({});
  if (text.empty()) return;
  const int count = text::CheckedLength(text.size(), kMaxLength);
  EnsureCapacity(count);
  SetLength(platform::WideToNarrow(text.data(), count, buffer_, count));
}

void CEString::Append(NarrowView text) {
  if (text.empty()) return;
  const int newLength = text::CheckedLength(static_cast<uint64_t>(length_) + text.size(), kMaxLength);
  std::unique_ptr<char[]> oldBlock;  // stays until the end: `text` may lie in it
  if (newLength > capacity_) oldBlock = Reallocate(newLength);
  std::char_traits<char>::move(buffer_ + length_, text.data(), text.size());
  SetLength(newLength);
}

CEString& CEString::operator+=(NarrowView text) {
  Append(text);
  return *this;
}

int CEString::Format(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const int count = FormatV(format, arguments);
  va_end(arguments);
  return count;
}

int CEString::FormatV(const char* format, va_list arguments) {
  char result[kFormatCapacity];
  const int count = platform::FormatNarrow(result, kFormatCapacity, format ? format : "", arguments);
  Assign(result);
  return count;
}

int CEString::Find(NarrowView substring) const { return IsEmpty() ? -1 : text::IndexOf(View().find(substring)); }

int CEString::ReverseFind(char character) const { return text::IndexOf(View().rfind(character)); }

void CEString::ReplaceStr(NarrowView oldText, NarrowView newText) {
  if (IsEmpty() || oldText.empty() || newText.empty()) return;
  Assign(text::ReplaceAll<char>(View(), oldText, newText));
}

void CEString::TrimLeft() {
  const int count = text::CountLeading(View(), IsSpace);
  if (count == 0) return;
  if (count == length_) return FreeBuffer();
  std::copy(buffer_ + count, buffer_ + length_, buffer_);
  SetLength(length_ - count);
}

void CEString::TrimRight() {
  const int count = text::CountTrailing(View(), IsSpace);
  if (count == 0) return;
  if (count == length_) return FreeBuffer();
  SetLength(length_ - count);
}

void CEString::TrimBoth() {
  TrimRight();
  TrimLeft();
}

CEString CEString::Left(int count) const {
  if (count >= length_) return *this;
  return count > 0 ? CEString(View().substr(0, static_cast<size_t>(count))) : CEString();
}

int CEString::EnsureCapacity(int count) {
  if (count < 0) {
    Reallocate(int64_t{capacity_} + kGrowth);
  } else if (count == 0 && capacity_ < kGrowth) {
    Reallocate(kGrowth);
  } else if (count > capacity_) {
    Reallocate(count);
  }
  return 1;
}

void CEString::SetLength(int count) {
  count = std::max(count, 0);
  if (count > capacity_) EnsureCapacity(count);
  length_ = count;
  if (buffer_) buffer_[count] = '\0';
}

void CEString::ReleaseBuffer(int count) {
  if (count < 0) {
    // The writer may have overwritten the terminator at the end of the block, but nothing behind it.
    count = buffer_ ? static_cast<int>(std::find(buffer_, buffer_ + capacity_, '\0') - buffer_) : 0;
  }
  SetLength(count);
}

// Moves the text to a block for `capacity` bytes. Returns the old block.
std::unique_ptr<char[]> CEString::Reallocate(int64_t capacity) {
  const int newCapacity = text::CheckedLength(static_cast<uint64_t>(capacity), kMaxLength);
  std::unique_ptr<char[]> block = text::AllocateBlock<char>(newCapacity);
  std::copy_n(buffer_, length_, block.get());
  std::unique_ptr<char[]> oldBlock(std::exchange(buffer_, block.release()));
  capacity_ = newCapacity;
  return oldBlock;
}

void CEString::FreeBuffer() {
  delete[] buffer_;
  CEString::Reset();
}
