#include "controls/ImagePlacement.h"

#include <gtest/gtest.h>

namespace {

constexpr IntRect kClient{0, 0, 100, 60};

struct Row {
  const char* rule;
  uint32_t flags;
  int margin;
  int width, height;
  int left, top;
};

constexpr Row kRows[] = {
    {"without a flag the margin counts on both axes", 0, 0, 16, 16, 0, 0},
    {"without a flag the margin counts on both axes", 0, 7, 16, 16, 7, 7},
    {"to the right the margin stays free", kAlignRight, 0, 16, 16, 84, 0},
    {"to the right the margin stays free", kAlignRight, 7, 16, 16, 77, 7},
    {"a picture that is too wide is cut off at the left", kAlignRight, 7, 120, 16, -27, 7},
    {"centred vertically without a margin", kAlignMiddle, 7, 16, 16, 7, 22},
    {"an odd pixel is below", kAlignMiddle, 0, 16, 15, 0, 22},
    {"just enough room", kAlignMiddle, 7, 16, 60, 7, 0},
    {"no room for centring: the margin", kAlignMiddle, 7, 16, 61, 7, 7},
    {"at the bottom edge", kAlignBottom, 0, 16, 16, 0, 44},
    {"at the bottom edge the margin counts for the top only", kAlignBottom, 7, 16, 16, 7, 44},
    {"at the bottom edge, not above the margin", kAlignBottom, 7, 16, 58, 7, 7},
    {"at the bottom edge, not above the margin", kAlignBottom, 7, 16, 90, 7, 7},
    {"centring goes before the bottom edge", kAlignMiddle | kAlignBottom, 7, 16, 16, 7, 22},
    {"no room for centring: the bottom edge", kAlignMiddle | kAlignBottom, 0, 16, 70, 0, 0},
    {"centred horizontally without a margin", kAlignCenter, 7, 16, 16, 42, 7},
    {"just enough room", kAlignCenter, 7, 100, 16, 0, 7},
    {"no room for centring: the margin", kAlignCenter, 7, 101, 16, 7, 7},
    {"no room for centring: the right edge", kAlignCenter | kAlignRight, 7, 101, 16, -8, 7},
    {"centring goes before the right edge", kAlignCenter | kAlignRight, 7, 16, 16, 42, 7},
    {"centred on both axes", kAlignMiddle | kAlignCenter, 0, 32, 32, 34, 14},
    {"both opposite corners", kAlignRight | kAlignBottom, 3, 16, 16, 81, 44},
    {"no picture", kAlignMiddle | kAlignCenter, 0, 0, 0, 50, 30},
};

TEST(ImagePlacement, FollowsTheFlags) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.rule);
    const IntRect place = PlaceImage(row.width, row.height, kClient, row.flags, row.margin);
    EXPECT_EQ(row.left, place.left);
    EXPECT_EQ(row.top, place.top);
    EXPECT_EQ(row.width, place.Width());
    EXPECT_EQ(row.height, place.Height());
  }
}

TEST(ImagePlacement, CountsFromTheClientRectangle) {
  for (const Row& row : kRows) {
    const IntRect moved{kClient.left + 10, kClient.top + 20, kClient.right + 10, kClient.bottom + 20};
    const IntRect place = PlaceImage(row.width, row.height, moved, row.flags, row.margin);
    EXPECT_EQ(row.left + 10, place.left) << row.rule;
    EXPECT_EQ(row.top + 20, place.top) << row.rule;
  }
}

}  // namespace
