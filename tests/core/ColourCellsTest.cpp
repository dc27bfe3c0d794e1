#include "controls/ColourCells.h"

#include <gtest/gtest.h>

#include <set>

namespace {

constexpr int kLast = 39;

constexpr ColourCells kBoth{true, true}, kDefaultOnly{true, false}, kCustomOnly{false, true}, kNeither{false, false};
constexpr ColourCells kAll[] = {kBoth, kDefaultOnly, kCustomOnly, kNeither};

TEST(ColourCells, AreFortyInFiveRows) {
  EXPECT_EQ(5, kColourRows);
  EXPECT_EQ(8, kColourColumns);
}

TEST(ColourCells, ANumberPastTheColoursIsTheCustomCell) {
  EXPECT_EQ(39, NormalizedCell(39));
  EXPECT_EQ(kCustomCell, NormalizedCell(40));
  EXPECT_EQ(kCustomCell, NormalizedCell(1000));
  EXPECT_EQ(0, NormalizedCell(0));
  for (const int cell : {kNoCell, kCustomCell, kDefaultCell}) EXPECT_EQ(cell, NormalizedCell(cell));
}

TEST(ColourCells, OfAColour) {
  for (const ColourCells& cells : kAll)
    for (int row = 0; row < kPaletteSize; ++row) EXPECT_EQ(row, cells.CellOf(kPalette[row].colour));
  const struct {
    ColourCells cells;
    int none, foreign;
  } rows[] = {{kBoth, kDefaultCell, kCustomCell},
              {kDefaultOnly, kDefaultCell, kNoCell},
              {kCustomOnly, kCustomCell, kCustomCell},
              {kNeither, kNoCell, kNoCell}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.none, row.cells.CellOf(0xFF000000));
    EXPECT_EQ(row.foreign, row.cells.CellOf(0x123456));
  }
}

// --- Keyboard -------------------------------------------------------------------------------------------------------

TEST(ColourCells, ArrowsMoveInsideTheGrid) {
  for (const ColourCells& cells : kAll)
    for (int cell = 0; cell <= kLast; ++cell) {
      if (cell + 8 <= kLast) {
        EXPECT_EQ(cell + 8, cells.Next(cell, CellStep::Down));
        EXPECT_EQ(cell, cells.Next(cell + 8, CellStep::Up));
      }
      if (cell < kLast) {
        EXPECT_EQ(cell + 1, cells.Next(cell, CellStep::Right)) << "at a row's end to the next row";
        EXPECT_EQ(cell, cells.Next(cell + 1, CellStep::Left)) << "at a row's start to the row before";
      }
    }
}

TEST(ColourCells, ArrowsLeaveTheGrid) {
  const struct {
    ColourCells cells;
    int forward, backward;
  } rows[] = {{kBoth, kCustomCell, kDefaultCell},
              {kDefaultOnly, kDefaultCell, kDefaultCell},
              {kCustomOnly, kCustomCell, kCustomCell},
              {kNeither, 0, kLast}};
  for (const auto& row : rows) {
    for (int column = 0; column < 8; ++column) {
      EXPECT_EQ(row.forward, row.cells.Next(32 + column, CellStep::Down)) << column;
      EXPECT_EQ(row.backward, row.cells.Next(column, CellStep::Up)) << column;
    }
    EXPECT_EQ(row.forward, row.cells.Next(kLast, CellStep::Right));
    EXPECT_EQ(row.backward, row.cells.Next(0, CellStep::Left));
  }
}

TEST(ColourCells, ArrowsFromTheOtherCells) {
  const struct {
    const char* rule;
    ColourCells cells;
    int cell, forward, backward;
  } rows[] = {
      {"default cell", kBoth, kDefaultCell, 0, kCustomCell},
      {"default cell without a custom one", kDefaultOnly, kDefaultCell, 0, kLast},
      {"custom cell", kBoth, kCustomCell, kDefaultCell, kLast},
      {"custom cell without a default one", kCustomOnly, kCustomCell, 0, kLast},
      {"none", kBoth, kNoCell, 0, kLast},
      {"none, without others", kNeither, kNoCell, 0, kLast},
  };
  for (const auto& row : rows)
    for (const CellStep step : {CellStep::Right, CellStep::Down, CellStep::Left, CellStep::Up}) {
      const int expected = step == CellStep::Right || step == CellStep::Down ? row.forward : row.backward;
      EXPECT_EQ(expected, row.cells.Next(row.cell, step)) << row.rule << " " << static_cast<int>(step);
    }
}

TEST(ColourCells, EachArrowAloneReachesEachCellOrColumn) {
  for (const ColourCells& cells : kAll)
    for (const CellStep step : {CellStep::Right, CellStep::Left}) {
      std::set<int> reached;
      int cell = 0;
      for (int i = 0; i < cells.Count(); ++i) reached.insert(cell = cells.Next(cell, step));
      EXPECT_EQ(static_cast<size_t>(cells.Count()), reached.size());
      EXPECT_EQ(0, cell) << "the way goes round";
    }
}

// --- Positions ------------------------------------------------------------------------------------------------------

TEST(ColourCells, AreCountedFromTopToBottom) {
  const struct {
    ColourCells cells;
    int count, defaultPosition, first, last, customPosition;
  } rows[] = {{kBoth, 42, 1, 2, 41, 42},
              {kDefaultOnly, 41, 1, 2, 41, 0},
              {kCustomOnly, 41, 0, 1, 40, 41},
              {kNeither, 40, 0, 1, 40, 0}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.count, row.cells.Count());
    EXPECT_EQ(row.defaultPosition, row.cells.PositionOf(kDefaultCell));
    EXPECT_EQ(row.first, row.cells.PositionOf(0));
    EXPECT_EQ(row.last, row.cells.PositionOf(kLast));
    EXPECT_EQ(row.customPosition, row.cells.PositionOf(kCustomCell));
    EXPECT_EQ(0, row.cells.PositionOf(kNoCell));
    for (int position = 1; position <= row.count; ++position)
      EXPECT_EQ(position, row.cells.PositionOf(row.cells.CellAtPosition(position)));
  }
}

}  // namespace
