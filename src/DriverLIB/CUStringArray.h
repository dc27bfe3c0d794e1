#pragma once

#include "DriverLIB/CPointerArray.h"
#include "DriverLIB/CUString.h"

// An array that owns its strings. A slot that was never set, between two that were, reads as an empty string.
class CUStringArray : public CPointerArray {
 public:
  CUStringArray() noexcept = default;
  CUStringArray(const CUStringArray& other);
  CUStringArray(CUStringArray&& other) noexcept;
  ~CUStringArray() override;

  CUStringArray& operator=(const CUStringArray& other);
  CUStringArray& operator=(CUStringArray&& other) noexcept;
  void Swap(CUStringArray& other) noexcept;
  friend void swap(CUStringArray& left, CUStringArray& right) noexcept { left.Swap(right); }

  void RemoveAll() override;  // deletes every element
  // By character value, case-sensitive: -1, 0 or 1. A text without a buffer comes first and equals only its like.
  CompareFunction GetCompareFunction() const override;

  int Add(WideView text);  // returns its index
  // Replaces the element at `index`, growing the array when it lies behind the end.
  void SetAt(int index, WideView text);
  // The element; where there is none, the one empty string that all arrays share.
  const CUString& GetAt(int index) const;
  const CUString& operator[](int index) const { return GetAt(index); }

  int FindExact(WideView text) const;  // the first index, or -1
  int FindNoCase(WideView text) const;
  void AddAll(const CUStringArray& other);  // copies; may be the array itself
};
