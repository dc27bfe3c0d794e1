#pragma once

#include "DriverLIB/CPtr2Ptr.h"

// A hash map from wide text, with case, to pointer. It keeps copies of its keys; null and the empty text are one key.
class CStr2Ptr : public CPtr2Ptr {
 public:
  using CPtr2Ptr::CPtr2Ptr;
  ~CStr2Ptr() override;

  bool KeysEqual(const void* left, const void* right) const override;
  uint32_t HashKey(const void* key) const override;
  const void* CopyKey(const void* key) const override;
  void FreeKey(const void* key) const override;

  // The operations of the map, with the type of the key.
  bool Lookup(const wchar_t* key, void*& value) const { return CPtr2Ptr::Lookup(key, value); }
  void SetAt(const wchar_t* key, void* value) { CPtr2Ptr::SetAt(key, value); }
  bool RemoveKey(const wchar_t* key) { return CPtr2Ptr::RemoveKey(key); }
  bool GetNextAssoc(Position& position, const wchar_t*& key, void*& value) const;
};
