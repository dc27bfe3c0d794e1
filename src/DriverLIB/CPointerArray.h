#pragma once

#include <cstdint>

// A growing array of pointer-sized values. It owns its block, but nothing that its values point to.
//
// Exhausted memory throws a pointer to a new NEMPrintMemoryException.
class CPointerArray {
 public:
  // Compares two slots by address, as qsort hands them over: negative, 0 or positive.
  using CompareFunction = int (*)(const void* left, const void* right);

  CPointerArray() noexcept = default;
  CPointerArray(const CPointerArray&) = delete;
  CPointerArray& operator=(const CPointerArray&) = delete;
  virtual ~CPointerArray();

  virtual void RemoveAll();  // frees the block
  virtual CompareFunction GetCompareFunction() const { return nullptr; }
  virtual intptr_t GetFillValue() const { return 0; }  // what a fresh slot of SetAtGrow holds

  int Count() const { return count_; }
  int Capacity() const { return capacity_; }
  // The value at `index`; outside the array a shared cell that holds 0.
  const intptr_t& GetAt(int index) const;
  template <class T>
  T* PointerAt(int index) const {
    return reinterpret_cast<T*>(GetAt(index));
  }

  int Add(intptr_t value);  // returns its index
  template <class T>
  int Add(T* pointer) {
    return Add(reinterpret_cast<intptr_t>(pointer));
  }
  // Stores at `index`, which may lie behind the end. A negative index stores nothing. Returns `index`.
  int SetAtGrow(int index, intptr_t value);
  // The first index from `start` that holds `value`, or -1.
  int Find(intptr_t value, int start = 0) const;
  // By the comparison function; an array without one keeps its order.
  void Sort();

 protected:
  void Swap(CPointerArray& other) noexcept;

 private:
  void Grow();
  void Reallocate(int64_t capacity);

  int count_ = 0;
  int capacity_ = 0;
  intptr_t* items_ = nullptr;
};
