#include "controls/ColourPickerLayout.h"

#include <gtest/gtest.h>

namespace {

constexpr PickerMeasures kUsual{2, 2, 17, 17};

TEST(ColourPickerLayout, ArrowIsAsLargeAsTheLargest) {
  const struct {
    PickerMeasures measures;
    int side, height, width;
  } rows[] = {{{2, 2, 17, 17}, 17, 21, 38}, {{4, 2, 17, 17}, 20, 24, 48}, {{2, 4, 17, 17}, 20, 28, 44},
              {{2, 2, 19, 17}, 19, 23, 42}, {{2, 2, 17, 18}, 18, 22, 40}, {{2, 2, 34, 34}, 34, 38, 72}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.side, row.measures.ArrowSide());
    EXPECT_EQ(row.height, PickerHeight(row.measures));
    EXPECT_EQ(row.width, SmallestPickerWidth(row.measures));
  }
}

TEST(ColourPickerLayout, ArrowIsAtTheRight) {
  const PickerParts parts = LayOutPicker(kUsual, {0, 0, 120, 21}, true);
  EXPECT_EQ((IntRect{101, 2, 118, 19}), parts.arrow);
  EXPECT_EQ((IntRect{4, 4, 17, 17}), parts.swatch);
  EXPECT_EQ((IntRect{21, 4, 99, 17}), parts.text);
}

TEST(ColourPickerLayout, WithoutAnArrowTheTextHasItsPlace) {
  const PickerParts parts = LayOutPicker(kUsual, {0, 0, 120, 21}, false);
  EXPECT_EQ(IntRect{}, parts.arrow);
  EXPECT_EQ(116, parts.text.right);
}

TEST(ColourPickerLayout, SwatchEndsAtTheArrow) {
  const PickerParts parts = LayOutPicker(kUsual, {0, 0, 33, 21}, true);
  EXPECT_EQ((IntRect{14, 2, 31, 19}), parts.arrow);
  EXPECT_EQ((IntRect{4, 4, 14, 17}), parts.swatch);
}

TEST(ColourPickerLayout, CountsFromTheClientRectangle) {
  const PickerParts parts = LayOutPicker(kUsual, {10, 20, 130, 41}, true);
  EXPECT_EQ((IntRect{111, 22, 128, 39}), parts.arrow);
  EXPECT_EQ((IntRect{14, 24, 27, 37}), parts.swatch);
}

}  // namespace
