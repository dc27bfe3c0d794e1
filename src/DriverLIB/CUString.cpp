#include "DriverLIB/CUString.h"

#include <algorithm>

#include "DriverLIB/Platform.h"
#include "DriverLIB/TextAlgorithms.h"

CUString::CUString(std::wstring_view text) : CBasicString(text) {}
CUString::CUString(const CUString& other) = default;
CUString::CUString(CUString&& other) noexcept = default;
CUString::~CUString() = default;
CUString& CUString::operator=(const CUString& other) = default;
CUString& CUString::operator=(CUString&& other) noexcept = default;

bool CUString::EqualsNoCase(WideView text) const {
  return std::ranges::equal(WideView(*this).Terminated(), text.Terminated(), {}, platform::ToLower, platform::ToLower);
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

// --- Searching ---------------------------------------------------------------------------------------------------

int CUString::FindFrom(WideView substring, int from) const {
  if (from < 0 || from >= length_) return -1;
  return text::IndexOf(View().find(substring, static_cast<size_t>(from)));
}

int CUString::FindChar(wchar_t character, int from) const {
  if (from < 0 || from >= length_) return -1;
  return text::IndexOf(View().substr(static_cast<size_t>(from)).find(character));
}

int CUString::ReverseFindStr(WideView substring) const {
  return IsEmpty() ? -1 : text::IndexOf(View().rfind(substring));
}

int CUString::FindOneOf(WideView set) const { return text::IndexOf(View().find_first_of(set)); }

// --- Changing ----------------------------------------------------------------------------------------------------

void CUString::ReplaceChar(wchar_t oldCharacter, wchar_t newCharacter) {
  std::replace(buffer_, buffer_ + length_, oldCharacter, newCharacter);
}

void CUString::TrimLeft(wchar_t character) {
  CutLeft(text::CountLeading(View(), [character](wchar_t candidate) {
    return character == L' ' ? platform::IsWideSpace(candidate) : candidate == character;
  }));
}

void CUString::TrimRight(wchar_t character) {
  CutRight(text::CountTrailing(View(), [character](wchar_t candidate) {
    return character == L' ' ? platform::IsNarrowSpace(candidate) : candidate == character;
  }));
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

CUString CUString::Mid(int start, int count) const {
  if (start < 0 || start >= length_) return {};
  const size_t length = count < 0 ? std::wstring_view::npos : static_cast<size_t>(count);
  return View().substr(static_cast<size_t>(start), length);
}
