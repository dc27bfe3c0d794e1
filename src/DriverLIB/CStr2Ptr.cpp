#include "DriverLIB/CStr2Ptr.h"

#include "DriverLIB/TextView.h"

namespace {

const wchar_t* KeyText(const void* key) { return key ? static_cast<const wchar_t*>(key) : L""; }

}  // namespace

CStr2Ptr::~CStr2Ptr() { RemoveAll(); }

bool CStr2Ptr::KeysEqual(const void* left, const void* right) const {
  const wchar_t* leftText = KeyText(left);
  const wchar_t* rightText = KeyText(right);
  for (; *leftText == *rightText; ++leftText, ++rightText)
    if (!*leftText) return true;
  return false;
}

uint32_t CStr2Ptr::HashKey(const void* key) const {
  uint32_t hash = 0;
  for (const wchar_t* character = KeyText(key); *character; ++character) hash = hash * 33 + *character;
  return hash;
}

const void* CStr2Ptr::CopyKey(const void* key) const {
  const WideView text(KeyText(key));
  auto* copy = new wchar_t[text.size() + 1]();
  text.copy(copy, text.size());
  return copy;
}

void CStr2Ptr::FreeKey(const void* key) const { delete[] static_cast<const wchar_t*>(key); }

bool CStr2Ptr::GetNextAssoc(Position& position, const wchar_t*& key, void*& value) const {
  const void* rawKey = nullptr;
  if (!CPtr2Ptr::GetNextAssoc(position, rawKey, value)) return false;
  key = static_cast<const wchar_t*>(rawKey);
  return true;
}
