#include "DriverLIB/CUStringArray.h"

#include <memory>
#include <utility>

namespace {

constinit const CUString kEmptyString;

// The text in a slot; null for an empty slot and for a string without a buffer.
const CUString* TextInSlot(const void* slot) {
  const auto* text = reinterpret_cast<const CUString*>(*static_cast<const intptr_t*>(slot));
  return text && text->Buffer() ? text : nullptr;
}

int CompareTexts(const void* left, const void* right) {
  const CUString* leftText = TextInSlot(left);
  const CUString* rightText = TextInSlot(right);
  if (!leftText || !rightText) return (leftText != nullptr) - (rightText != nullptr);
  const int order = WideView(*leftText).Terminated().compare(WideView(*rightText).Terminated());
  return (order > 0) - (order < 0);
}

}  // namespace

CUStringArray::CUStringArray(const CUStringArray& other) : CPointerArray() { AddAll(other); }

CUStringArray::CUStringArray(CUStringArray&& other) noexcept { Swap(other); }

CUStringArray::~CUStringArray() { CUStringArray::RemoveAll(); }

CUStringArray& CUStringArray::operator=(const CUStringArray& other) {
  CUStringArray(other).Swap(*this);
  return *this;
}

CUStringArray& CUStringArray::operator=(CUStringArray&& other) noexcept {
  CUStringArray(std::move(other)).Swap(*this);
  return *this;
}

void CUStringArray::Swap(CUStringArray& other) noexcept { CPointerArray::Swap(other); }

void CUStringArray::RemoveAll() {
  for (int i = 0; i < Count(); ++i) delete PointerAt<CUString>(i);
  CPointerArray::RemoveAll();
}

CPointerArray::CompareFunction CUStringArray::GetCompareFunction() const { return CompareTexts; }

int CUStringArray::Add(WideView text) {
  auto element = std::make_unique<CUString>(text);
  const int index = CPointerArray::Add(element.get());
  element.release();  // the array's from here on
  return index;
}

void CUStringArray::SetAt(int index, WideView text) {
  if (index < 0) return;
  auto element = std::make_unique<CUString>(text);
  const std::unique_ptr<CUString> former(PointerAt<CUString>(index));  // goes last: `text` may be its own
  SetAtGrow(index, reinterpret_cast<intptr_t>(element.get()));
  element.release();  // the array's from here on
}

const CUString& CUStringArray::GetAt(int index) const {
  const CUString* element = PointerAt<CUString>(index);
  return element ? *element : kEmptyString;
}

int CUStringArray::FindExact(WideView text) const {
  for (int i = 0; i < Count(); ++i)
    if (GetAt(i).Equals(text)) return i;
  return -1;
}

int CUStringArray::FindNoCase(WideView text) const {
  for (int i = 0; i < Count(); ++i)
    if (GetAt(i).EqualsNoCase(text)) return i;
  return -1;
}

void CUStringArray::AddAll(const CUStringArray& other) {
  const int count = other.Count();  // fixed before we grow: `other` may be this array
  for (int i = 0; i < count; ++i) Add(other.GetAt(i));
}
