#include "controls/ColourPopupLayout.h"

#include <gtest/gtest.h>

namespace {

constexpr ColourPopupMeasures kAt96{18, 2, 1};
constexpr TextSize kShort{50, 13};

void ExpectRect(const IntRect& expected, const IntRect& rect, const char* what) {
  EXPECT_EQ(expected, rect) << what << ": " << rect.left << "," << rect.top << " " << rect.right << "," << rect.bottom;
}

TEST(ColourPopupMeasures, BoxLeavesRoomForTheColour) {
  const struct {
    int edge, dpi, boxSize, border;
  } rows[] = {
      {2, 96, 18, 1},   {5, 96, 18, 1},                     // 18 - 10 - 2 = 6
      {6, 96, 19, 1},                                       // 18 - 12 - 2 = 4: twice 6, and 7
      {10, 96, 27, 1},  {1, 96, 18, 1},                     //
      {2, 120, 23, 1},  {2, 144, 27, 2},  {2, 192, 36, 2},  //
      {4, 192, 36, 2},  {11, 192, 36, 2},                   // 36 - 22 - 4 = 10
      {12, 192, 38, 2},                                     // 8: twice 12, and 14
  };
  for (const auto& row : rows) {
    const ColourPopupMeasures measures = MeasureColourPopup(row.edge, row.dpi);
    EXPECT_EQ(row.boxSize, measures.boxSize) << row.edge << " at " << row.dpi;
    EXPECT_EQ(row.edge, measures.margin);
    EXPECT_EQ(row.border, measures.border);
  }
}

TEST(ColourPopupLayout, IsAGridAlone) {
  const ColourPopupLayout layout(kAt96, std::nullopt, std::nullopt);
  EXPECT_EQ(8 * 18 + 4, layout.Width());
  EXPECT_EQ(5 * 18 + 4, layout.Height());
  for (int cell = 0; cell < 40; ++cell) {
    const int left = cell % 8 * 18 + 2, top = cell / 8 * 18 + 2;
    ExpectRect({left, top, left + 18, top + 18}, layout.CellRect(cell), "cell");
    ExpectRect({left + 3, top + 3, left + 15, top + 15}, layout.SwatchRect(cell), "swatch");
  }
  for (const int cell : {kDefaultCell, kCustomCell, kNoCell, 40}) ExpectRect({}, layout.CellRect(cell), "none");
}

TEST(ColourPopupLayout, HasTheDefaultCellOnTop) {
  const ColourPopupLayout layout(kAt96, kShort, std::nullopt);
  const int cellHeight = 13 + 2 * 2 + 2;
  EXPECT_EQ(148, layout.Width());
  EXPECT_EQ(94 + cellHeight + 2, layout.Height());
  ExpectRect({2, 2, 146, 2 + cellHeight}, layout.CellRect(kDefaultCell), "default cell");
  ExpectRect({2, 4 + cellHeight, 20, 22 + cellHeight}, layout.CellRect(0), "first colour");
  ExpectRect({2 + 7 * 18, 4 + cellHeight + 72, 146, 4 + cellHeight + 90}, layout.CellRect(39), "last colour");
  ExpectRect({}, layout.CellRect(kCustomCell), "custom cell");
  EXPECT_TRUE(layout.Cells().hasDefault);
  EXPECT_FALSE(layout.Cells().hasCustom);
}

TEST(ColourPopupLayout, HasTheCustomCellAtTheBottom) {
  const ColourPopupLayout layout(kAt96, std::nullopt, kShort);
  EXPECT_EQ(94 + 19 + 2, layout.Height());
  ExpectRect({2, 94, 146, 113}, layout.CellRect(kCustomCell), "custom cell");
  ExpectRect({2, 2, 20, 20}, layout.CellRect(0), "first colour");
  ExpectRect({}, layout.CellRect(kDefaultCell), "default cell");
  EXPECT_FALSE(layout.Cells().hasDefault);
  EXPECT_TRUE(layout.Cells().hasCustom);
}

TEST(ColourPopupLayout, HasBoth) {
  const ColourPopupLayout layout(kAt96, TextSize{40, 13}, TextSize{60, 15});
  EXPECT_EQ(94 + 21 + 23, layout.Height());
  ExpectRect({2, 2, 146, 21}, layout.CellRect(kDefaultCell), "default cell");
  ExpectRect({2, 23, 20, 41}, layout.CellRect(0), "first colour");
  ExpectRect({2, 115, 146, 136}, layout.CellRect(kCustomCell), "custom cell");
}

TEST(ColourPopupLayout, WidensForItsTexts) {
  // 148 hold a text of 148 - 4 * 2 - 2.
  const struct {
    int defaultWidth, customWidth, width;
  } rows[] = {{138, 10, 148}, {139, 10, 149}, {10, 139, 149}, {200, 300, 310}, {300, 200, 310}, {0, 0, 148}};
  for (const auto& row : rows) {
    const ColourPopupLayout layout(kAt96, TextSize{row.defaultWidth, 13}, TextSize{row.customWidth, 13});
    EXPECT_EQ(row.width, layout.Width());
    EXPECT_EQ(row.width - 2, layout.CellRect(kDefaultCell).right) << "both are as wide as the popup";
    EXPECT_EQ(row.width - 2, layout.CellRect(kCustomCell).right);
    ExpectRect({128, 23, 146, 41}, layout.CellRect(7), "colours stay as they are");
  }
}

TEST(ColourPopupLayout, GrowsWithTheDpi) {
  const struct { int dpi, width, height; } rows[] = {{96, 148, 136}, {120, 188, 161}, {144, 220, 185}, {192, 292, 230}};
  for (const auto& row : rows) {
    const ColourPopupLayout layout(MeasureColourPopup(2, row.dpi), kShort, kShort);
    EXPECT_EQ(row.width, layout.Width()) << row.dpi;
    EXPECT_EQ(row.height, layout.Height()) << row.dpi;
  }
}

TEST(ColourPopupLayout, FindsTheCellUnderAPoint) {
  const ColourPopupLayout layout(kAt96, kShort, kShort);
  for (int position = 1; position <= layout.Cells().Count(); ++position) {
    const int cell = layout.Cells().CellAtPosition(position);
    const IntRect rect = layout.CellRect(cell);
    for (const IntPoint point : {IntPoint{rect.left, rect.top}, IntPoint{rect.right - 1, rect.bottom - 1}})
      EXPECT_EQ(cell, layout.CellAt(point)) << cell;
  }
}

TEST(ColourPopupLayout, FindsNoneBesideTheCells) {
  const ColourPopupLayout layout(kAt96, kShort, TextSize{200, 13});
  const int width = layout.Width(), height = layout.Height();
  const IntPoint points[] = {{1, 10},                                      // left of all
                             {width - 2, 10},                              // right of the default cell
                             {50, 1},         {50, height - 2}, {50, 21},  // between the default cell and the grid
                             {50, 22},        {50, 23 + 90},               // between the grid and the custom cell
                             {146, 30},                                    // right of the grid, inside the popup
                             {-5, 30},        {30, -5},         {30, height + 5}};
  for (const IntPoint point : points) EXPECT_EQ(kNoCell, layout.CellAt(point)) << point.x << "," << point.y;
  const ColourPopupLayout grid(kAt96, std::nullopt, std::nullopt);
  EXPECT_EQ(kNoCell, grid.CellAt({0, 0})) << "cells that are not there are under no point";
}

// --- Placement ------------------------------------------------------------------------------------------------------

constexpr IntRect kScreen{0, 0, 1024, 768};

TEST(ColourPopupPlacement, KeepsThePopupOnTheScreen) {
  const struct {
    const char* rule;
    IntRect picker;
    IntPoint place;
  } rows[] = {
      {"at the bottom left corner", {100, 200, 220, 221}, {100, 221}},
      {"just reaches the right edge", {876, 200, 996, 221}, {876, 221}},
      {"past the right edge", {877, 200, 997, 221}, {876, 221}},
      {"past the left edge", {-30, 200, 90, 221}, {0, 221}},
      {"just reaches the bottom", {100, 611, 220, 632}, {100, 632}},
      {"past the bottom: above the picker", {100, 612, 220, 633}, {100, 476}},
      {"in the corner", {1000, 740, 1020, 761}, {876, 604}},
  };
  for (const auto& row : rows) {
    const IntPoint place = PlaceColourPopup(148, 136, row.picker, kScreen, false);
    EXPECT_EQ(row.place, place) << row.rule << ": " << place.x << "," << place.y;
  }
}

TEST(ColourPopupPlacement, OfAMirroredPickerIsAtItsRight) {
  EXPECT_EQ((IntPoint{172, 221}), PlaceColourPopup(148, 136, {200, 200, 320, 221}, kScreen, true));
  EXPECT_EQ((IntPoint{0, 221}), PlaceColourPopup(148, 136, {10, 200, 130, 221}, kScreen, true));
  EXPECT_EQ((IntPoint{876, 221}), PlaceColourPopup(148, 136, {910, 200, 1030, 221}, kScreen, true));
}

TEST(ColourPopupPlacement, CountsFromTheScreenOfThePicker) {
  const IntRect left{-1280, 40, 0, 1024};
  EXPECT_EQ((IntPoint{-1280, 221}), PlaceColourPopup(148, 136, {-1300, 200, -1200, 221}, left, false));
  EXPECT_EQ((IntPoint{-148, 221}), PlaceColourPopup(148, 136, {-50, 200, 50, 221}, left, false));
}

TEST(ColourPopupPlacement, BeginsAtTheTopWhereThereIsNoRoom) {
  EXPECT_EQ((IntPoint{100, 0}), PlaceColourPopup(148, 136, {100, 60, 220, 81}, {0, 0, 1024, 150}, false));
  EXPECT_EQ((IntPoint{0, 81}), PlaceColourPopup(1200, 136, {100, 60, 220, 81}, kScreen, false)) << "too wide";
}

}  // namespace
