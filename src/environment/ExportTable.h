#pragma once

#include <array>
#include <cstddef>

// The functions of a loaded component, in the order in which they are looked up. Null until then.
//
// `Index` is the component's enumeration of them, from 0 to its kCount.
template <class Index>
class ExportTable {
 public:
  static constexpr size_t kCount = static_cast<size_t>(Index::kCount);
  using Names = std::array<const wchar_t*, kCount>;

  void*& operator[](Index index) { return pointers_[static_cast<size_t>(index)]; }
  void* operator[](Index index) const { return pointers_[static_cast<size_t>(index)]; }
  auto begin() { return pointers_.begin(); }

 private:
  std::array<void*, kCount> pointers_ = {};
};
