#include "DriverLIB/CPointerArray.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

#include "DriverLIB/NEMPrintMemoryException.h"

namespace {

constexpr int kGrowth = 8;
constexpr intptr_t kZeroCell = 0;  // what a read outside of any array refers to

}  // namespace

CPointerArray::~CPointerArray() { CPointerArray::RemoveAll(); }

void CPointerArray::RemoveAll() {
  delete[] std::exchange(items_, nullptr);
  count_ = 0;
  capacity_ = 0;
}

const intptr_t& CPointerArray::GetAt(int index) const {
  return index >= 0 && index < count_ ? items_[index] : kZeroCell;
}

int CPointerArray::Add(intptr_t value) {
  if (count_ == capacity_) Grow();
  items_[count_] = value;
  return count_++;
}

int CPointerArray::SetAtGrow(int index, intptr_t value) {
  if (index < 0) return index;
  if (index >= capacity_) {
    const int oldCapacity = capacity_;
    Reallocate(((int64_t{index} + 1) / kGrowth + 1) * kGrowth);
    std::fill(items_ + oldCapacity, items_ + capacity_, GetFillValue());
  }
  items_[index] = value;
  count_ = std::max(count_, index + 1);
  return index;
}

int CPointerArray::Find(intptr_t value, int start) const {
  if (start >= count_) return -1;
  const intptr_t* end = items_ + count_;
  const intptr_t* found = std::find<const intptr_t*>(items_ + std::max(start, 0), end, value);
  return found == end ? -1 : static_cast<int>(found - items_);
}

void CPointerArray::Sort() {
  const CompareFunction compare = GetCompareFunction();
  if (compare && count_ > 1) std::qsort(items_, static_cast<size_t>(count_), sizeof *items_, compare);
}

void CPointerArray::Swap(CPointerArray& other) noexcept {
  std::swap(count_, other.count_);
  std::swap(capacity_, other.capacity_);
  std::swap(items_, other.items_);
}

void CPointerArray::Grow() { Reallocate(capacity_ < 1 ? kGrowth : int64_t{capacity_} * 2); }

// Moves all slots to a block of `capacity`, zero behind the old ones.
void CPointerArray::Reallocate(int64_t capacity) {
  if (capacity > INT32_MAX) throw new NEMPrintMemoryException;
  intptr_t* block = new (std::nothrow) intptr_t[static_cast<size_t>(capacity)]();
  if (!block) throw new NEMPrintMemoryException;
  std::copy_n(items_, capacity_, block);
  delete[] std::exchange(items_, block);
  capacity_ = static_cast<int>(capacity);
}
