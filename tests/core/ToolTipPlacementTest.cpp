#include "controls/ToolTipPlacement.h"

#include <gtest/gtest.h>

namespace {

constexpr IntRect kClient{0, 0, 412, 418};

struct Row {
  const char* rule;
  int lines, characters;
  IntPoint mouse;
  IntRect place;
};

// 3 lines of 20 characters make a box of 114 by 49.
constexpr Row kRows[] = {
    {"to the right and above", 3, 20, {100, 200}, {99, 152, 213, 201}},
    {"room to the right is just enough", 3, 20, {298, 200}, {297, 152, 411, 201}},
    {"one pixel less: it ends at the right edge", 3, 20, {299, 200}, {297, 152, 411, 201}},
    {"at the right edge", 3, 20, {411, 200}, {297, 152, 411, 201}},
    {"room above is just enough", 3, 20, {100, 49}, {99, 1, 213, 50}},
    {"one pixel less: downwards", 3, 20, {100, 48}, {99, 47, 213, 96}},
    {"at the top", 3, 20, {100, 0}, {99, -1, 213, 48}},
    {"in the corner", 3, 20, {411, 0}, {297, -1, 411, 48}},
    {"one line", 1, 9, {100, 200}, {99, 182, 158, 201}},
    {"wider than the page", 3, 100, {10, 200}, {-103, 152, 411, 201}},
    {"higher than the page", 40, 20, {100, 200}, {99, 199, 213, 803}},
    {"no text", 0, 0, {100, 200}, {99, 197, 113, 201}},
};

TEST(ToolTipPlacement, StandsBesideTheMouse) {
  for (const Row& row : kRows) {
    const IntRect place = PlaceToolTip(row.lines, row.characters, row.mouse, kClient, 96);
    EXPECT_EQ(row.place, place) << row.rule << ": " << place.left << "," << place.top << " " << place.right << ","
                                << place.bottom;
  }
}

TEST(ToolTipPlacement, CountsFromTheClientRectangle) {
  const IntRect client{10, 20, 422, 438};
  for (const Row& row : kRows) {
    const IntPoint mouse{row.mouse.x + 10, row.mouse.y + 20};
    const IntRect expected{row.place.left + 10, row.place.top + 20, row.place.right + 10, row.place.bottom + 20};
    EXPECT_EQ(expected, PlaceToolTip(row.lines, row.characters, mouse, client, 96)) << row.rule;
  }
}

TEST(ToolTipPlacement, GrowsWithTheDpi) {
  const struct { int dpi, width, height; } rows[] = {{96, 114, 49}, {120, 143, 61}, {144, 171, 74}, {192, 228, 98}};
  for (const auto& row : rows) {
    const IntRect place = PlaceToolTip(3, 20, {100, 200}, {0, 0, 900, 900}, row.dpi);
    EXPECT_EQ(row.width, place.Width()) << row.dpi;
    EXPECT_EQ(row.height, place.Height()) << row.dpi;
    EXPECT_EQ(99, place.left) << row.dpi;
    EXPECT_EQ(201, place.bottom) << row.dpi;
  }
}

}  // namespace
