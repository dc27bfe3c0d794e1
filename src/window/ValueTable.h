// Value tables: what a list offers, as pairs of message id and stored value, ended by a row of zeros.
//
//   constexpr ValueRow kColorReductions[] = {
//       {MSG_GRAPHIC_COLORS_KEEP, 0, "None"},
//       {MSG_GRAPHIC_COLORS_AUTOMATIC, 1, "Automatic"},
//       {},
//   };
#pragma once

#include <cstdint>

struct ValueRow {
  uint32_t messageId = 0;
  int32_t value = 0;
  const char* keyword = nullptr;  // the row's name in the product's own files, where it has one
};

// Number of rows before the closing one.
constexpr int RowCount(const ValueRow* table) {
  int count = 0;
  while (table[count].messageId) ++count;
  return count;
}

// The row that stores `value`, or -1.
constexpr int FindRowOfValue(const ValueRow* table, int32_t value) {
  for (int row = 0; table[row].messageId; ++row)
    if (table[row].value == value) return row;
  return -1;
}

// The row that stores `value`; a value that no row stores falls to the first row.
constexpr int RowOfValue(const ValueRow* table, int32_t value) {
  const int row = FindRowOfValue(table, value);
  return row < 0 ? 0 : row;
}
