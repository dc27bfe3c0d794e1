#include "DriverLIB/CIntArray.h"

namespace {

int CompareNumbers(const void* left, const void* right) {
  const auto low = [](const void* slot) { return static_cast<uint32_t>(*static_cast<const intptr_t*>(slot)); };
  return static_cast<int>(low(left) - low(right));
}

}  // namespace

CPointerArray::CompareFunction CIntArray::GetCompareFunction() const { return CompareNumbers; }
