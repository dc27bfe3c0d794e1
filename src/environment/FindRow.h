// Look-ups in the constant tables of the pages.
//
// Such a table ends at a row whose first field is 0: a pointer or number as wide as the row's alignment. The key is a
// 16-bit number at a fixed place of the row. The result is the first row with that key; null for a null table, or when
// no row has it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

template <size_t kWidth, size_t kKeyPlace, class FirstField>
const void* FindRowInBytes(const void* table, uint16_t key) {
  static_assert(sizeof(FirstField) <= kKeyPlace && kKeyPlace + sizeof key <= kWidth);
  if (!table) return nullptr;
  for (const auto* row = static_cast<const std::byte*>(table);; row += kWidth) {
    FirstField first;
    std::memcpy(&first, row, sizeof first);
    if (first == FirstField{}) return nullptr;
    uint16_t rowKey;
    std::memcpy(&rowKey, row + kKeyPlace, sizeof rowKey);
    if (rowKey == key) return row;
  }
}

template <class Row>
const Row* FindRow8(const Row* table, uint16_t key) {
  static_assert(sizeof(Row) == 8);
  return static_cast<const Row*>(FindRowInBytes<8, 4, uint32_t>(table, key));
}

template <class Row>
const Row* FindRow16(const Row* table, uint16_t key) {
  static_assert(sizeof(Row) == 16);
  return static_cast<const Row*>(FindRowInBytes<16, 8, uint64_t>(table, key));
}

template <class Row>
const Row* FindRow24(const Row* table, uint16_t key) {
  static_assert(sizeof(Row) == 24);
  return static_cast<const Row*>(FindRowInBytes<24, 16, uint64_t>(table, key));
}

template <class Row>
const Row* FindRow50(const Row* table, uint16_t key) {
  static_assert(sizeof(Row) == 50);
  return static_cast<const Row*>(FindRowInBytes<50, 48, uint16_t>(table, key));
}
