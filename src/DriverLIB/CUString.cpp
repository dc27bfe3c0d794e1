#include "DriverLIB/CUString.h"

#include <algorithm>
#include <utility>

#include "DriverLIB/Platform.h"
#include "DriverLIB/TextAlgorithms.h"

CUString::CUString(std::wstring_view text) {
  if (!text.empty()) Assign(text);
}

CUString::CUString(const CUString& other) {
  if (other.IsEmpty()) return;
  Reallocate(other.capacity_);
  Assign(other);
}

CUString::CUString(CUString&& other) noexcept { Swap(other); }

CUString::~CUString() { FreeBuffer(); }

int CUString::Reset() {
  buffer_ = nullptr;
  capacity_ = 0;
  length_ = 0;
  return 0;
}

CUString& CUString::operator=(const CUString& other) {
  if (this != &other) Assign(other);
  return *this;
}

CUString& CUString::operator=(CUString&& other) noexcept {
  CUString(std::move(other)).Swap(*this);
  return *this;
}

CUString& CUString::operator=(const wchar_t* text) {
  Assign(text);
  return *this;
}

CUString& CUString::operator=(std::wstring_view text) {
  Assign(text);
  return *this;
}

void CUString::Swap(CUString& other) noexcept {
  std::swap(buffer_, other.buffer_);
  std::swap(capacity_, other.capacity_);
  std::swap(growBy_, other.growBy_);
  std::swap(length_, other.length_);
}

// --- Looking -----------------------------------------------------------------------------------------------------

const wchar_t* CUString::CharPtr(int index) const {
  if (index < 0) return nullptr;
  return Text() + std::min(index, length_);
}

bool CUString::EqualsNoCase(WideView text) const {
  return std::ranges::equal(WideView(*this).Terminated(), text.Terminated(), {}, platform::ToLower, platform::ToLower);
}

// --- Assigning and appending ---------------------------------------------------------------------------------------

void CUString::Assign(WideView text) {
  if (text.empty()) {
    std::fill_n(buffer_, length_, L'\0');
    length_ = 0;
    return;
  }
  const int count = text::CheckedLength(text.size(), kMaxLength);
  // A source inside our own buffer always fits, so it is never moved from under us.
  if (count > capacity_) EnsureCapacity(count);
  std::char_traits<wchar_t>::move(buffer_, text.data(), text.size());
  SetLength(count);
}

void CUString::AssignNarrow(NarrowView text) {
  Assign({});
  if (text.empty()) return;
  const int count = text::CheckedLength(text.size(), kMaxLength);
  EnsureCapacity(count);
  const int converted = platform::NarrowToWide(text.data(), count, buffer_);
  std::fill(buffer_ + converted, buffer_ + count, L'\0');
  SetLength(count);
}

void CUString::Append(WideView text) {
  if (text.empty()) return;
  const int newLength = text::CheckedLength(static_cast<uint64_t>(length_) + text.size(), kMaxLength);
  std::unique_ptr<wchar_t[]> oldBlock;  // stays until the end: `text` may lie in it
  if (newLength > capacity_) oldBlock = Reallocate(CapacityFor(newLength));
  std::char_traits<wchar_t>::move(buffer_ + length_, text.data(), text.size());
  SetLength(newLength);
}

CUString& CUString::operator+=(WideView text) {
  Append(text);
  return *this;
}

int CUString::Format(const wchar_t* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const int count = FormatV(format, arguments);
  va_end(arguments);
  return count;
}

int CUString::FormatV(const wchar_t* format, va_list arguments) {
  wchar_t result[kFormatCapacity];
  const int count = platform::FormatWide(result, kFormatCapacity, format ? format : L"", arguments);
  Assign(result);
  return count;
}

// --- Searching ---------------------------------------------------------------------------------------------------

int CUString::Find(WideView substring) const { return FindFrom(substring, 0); }

int CUString::FindFrom(WideView substring, int from) const {
  if (from < 0 || from >= length_) return -1;
  return text::IndexOf(View().find(substring, static_cast<size_t>(from)));
}

int CUString::FindChar(wchar_t character, int from) const {
  if (from < 0 || from >= length_) return -1;
  return text::IndexOf(View().substr(static_cast<size_t>(from)).find(character));
}

int CUString::ReverseFind(wchar_t character) const { return text::IndexOf(View().rfind(character)); }

int CUString::ReverseFindStr(WideView substring) const {
  return IsEmpty() ? -1 : text::IndexOf(View().rfind(substring));
}

int CUString::FindOneOf(WideView set) const { return text::IndexOf(View().find_first_of(set)); }

// --- Changing ----------------------------------------------------------------------------------------------------

void CUString::ReplaceChar(wchar_t oldCharacter, wchar_t newCharacter) {
  std::replace(buffer_, buffer_ + length_, oldCharacter, newCharacter);
}

void CUString::ReplaceStr(WideView oldText, WideView newText) {
  if (IsEmpty() || oldText.empty() || newText.empty()) return;
  Assign(text::ReplaceAll<wchar_t>(View(), oldText, newText));
}

void CUString::TrimLeft(wchar_t character) {
  const int count = text::CountLeading(View(), [character](wchar_t candidate) {
    return character == L' ' ? platform::IsWideSpace(candidate) : candidate == character;
  });
  if (count == 0) return;
  if (count == length_) return FreeBuffer();
  std::copy(buffer_ + count, buffer_ + length_, buffer_);
  SetLength(length_ - count);
}

void CUString::TrimRight(wchar_t character) {
  const int count = text::CountTrailing(View(), [character](wchar_t candidate) {
    return character == L' ' ? platform::IsNarrowSpace(candidate) : candidate == character;
  });
  if (count == 0) return;
  if (count == length_) return FreeBuffer();
  SetLength(length_ - count);
}

void CUString::TrimBoth(wchar_t character) {
  TrimRight(character);
  TrimLeft(character);
}

int CUString::DeleteAt(int index) {
  if (index < 0 || index >= length_) return -1;
  std::copy(buffer_ + index + 1, buffer_ + length_, buffer_ + index);
  SetLength(length_ - 1);
  return length_;
}

void CUString::MakeUpper() { std::transform(buffer_, buffer_ + length_, buffer_, platform::ToUpper); }

CUString CUString::Left(int count) const {
  if (count >= length_) return *this;
  return count > 0 ? CUString(View().substr(0, static_cast<size_t>(count))) : CUString();
}

CUString CUString::Mid(int start, int count) const {
  if (start < 0 || start >= length_) return {};
  const size_t length = count < 0 ? std::wstring_view::npos : static_cast<size_t>(count);
  return View().substr(static_cast<size_t>(start), length);
}

// --- Direct access to the buffer -----------------------------------------------------------------------------------

int CUString::EnsureCapacity(int count) {
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

void CUString::SetLength(int count) {
  count = std::max(count, 0);
  if (count > capacity_) EnsureCapacity(count);
  length_ = count;
  if (buffer_) buffer_[count] = L'\0';
}

void CUString::ReleaseBuffer(int count) {
  if (count < 0) {
    // The writer may have overwritten the terminator at the end of the block, but nothing behind it.
    count = buffer_ ? static_cast<int>(std::find(buffer_, buffer_ + capacity_, L'\0') - buffer_) : 0;
  }
  SetLength(count);
}

int64_t CUString::CapacityFor(int64_t count) const { return capacity_ + std::max<int64_t>(count - capacity_, growBy_); }

// Moves the text to a block for `capacity` characters. Returns the old block.
std::unique_ptr<wchar_t[]> CUString::Reallocate(int64_t capacity) {
  const int newCapacity = text::CheckedLength(static_cast<uint64_t>(capacity), kMaxLength);
  std::unique_ptr<wchar_t[]> block = text::AllocateBlock<wchar_t>(newCapacity);
  std::copy_n(buffer_, length_, block.get());
  std::unique_ptr<wchar_t[]> oldBlock(std::exchange(buffer_, block.release()));
  capacity_ = newCapacity;
  return oldBlock;
}

void CUString::FreeBuffer() {
  delete[] buffer_;
  CUString::Reset();
}
