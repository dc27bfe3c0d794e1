// Look-up in value tables.
#include "window/ValueTable.h"

#include <gtest/gtest.h>

namespace {

constexpr ValueRow kRows[] = {{11, 5}, {12, 0, "Second"}, {13, -1}, {14, 5}, {}};
constexpr ValueRow kEmpty[] = {{}};

TEST(ValueTable, RowOfZerosEndsIt) {
  EXPECT_EQ(4, RowCount(kRows));
  EXPECT_EQ(0, RowCount(kEmpty));
}

TEST(ValueTable, FindsTheFirstRowThatStoresTheValue) {
  EXPECT_EQ(0, FindRowOfValue(kRows, 5));
  EXPECT_EQ(1, FindRowOfValue(kRows, 0));
  EXPECT_EQ(2, FindRowOfValue(kRows, -1));
  EXPECT_EQ(-1, FindRowOfValue(kRows, 7));
  EXPECT_EQ(-1, FindRowOfValue(kEmpty, 0)) << "the closing row is none";
}

TEST(ValueTable, ValueOfNoRowFallsToTheFirst) {
  EXPECT_EQ(1, RowOfValue(kRows, 0));
  EXPECT_EQ(2, RowOfValue(kRows, -1));
  EXPECT_EQ(0, RowOfValue(kRows, 7));
  EXPECT_EQ(0, RowOfValue(kEmpty, 7));
}

}  // namespace
