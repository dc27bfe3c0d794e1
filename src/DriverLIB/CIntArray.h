#pragma once

#include "DriverLIB/CPointerArray.h"

// An array of numbers, with a value of its own for the slots that SetAtGrow leaves between.
class CIntArray : public CPointerArray {
 public:
  explicit CIntArray(intptr_t fillValue = 0) noexcept : fillValue_(fillValue) {}

  CompareFunction GetCompareFunction() const override;  // the difference of the low 32 bits
  intptr_t GetFillValue() const override { return fillValue_; }

 private:
  intptr_t fillValue_;
};
