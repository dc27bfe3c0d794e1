#include "controls/ListSorting.h"

#include <algorithm>
#include <compare>
#include <cstdint>

void ListSorting::Click(int clicked) { Sorted(clicked, clicked != column || !ascending); }

void ListSorting::Sorted(int by, bool inAscendingOrder) {
  column = by;
  ascending = inAscendingOrder;
}

int CompareCodeUnits(WideView left, WideView right) {
  const auto order = std::lexicographical_compare_three_way(
      left.begin(), left.end(), right.begin(), right.end(),
      [](wchar_t a, wchar_t b) { return static_cast<uint16_t>(a) <=> static_cast<uint16_t>(b); });
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}
