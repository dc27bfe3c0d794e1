#include "controls/ListRowLayout.h"

#include <gtest/gtest.h>

namespace {

TEST(ListRowHeight, IsTheTextOrThePictureAndTwo) {
  const struct {
    int imageHeight, textHeight, gap, height;
  } rows[] = {
      {0, 13, 2, 15},                    // no pictures: the text, and 2 in any case
      {16, 13, 2, 20},                   // at least the picture plus 2
      {16, 18, 2, 20},                   // just as high
      {16, 19, 2, 21},                   // the text is higher
      {16, 40, 2, 42}, {32, 26, 4, 40},  // at 192 dpi
  };
  for (const auto& row : rows)
    EXPECT_EQ(row.height, ListRowHeight({row.imageHeight, row.imageHeight, row.gap, 0}, row.textHeight))
        << "picture " << row.imageHeight << ", text " << row.textHeight;
}

TEST(ListRowImage, ComesFromTheHalfOfTheRowsState) {
  const struct {
    const char* rule;
    int image, count;
    SecondHalf secondHalf;
    bool disabled, selected;
    ListImageChoice choice;
  } rows[] = {
      {"normal row", 1, 10, SecondHalf::Disabled, false, false, {1, false}},
      {"selected row", 1, 10, SecondHalf::Disabled, false, true, {1, false}},
      {"disabled row", 1, 10, SecondHalf::Disabled, true, false, {6, false}},
      {"last disabled row", 4, 10, SecondHalf::Disabled, true, false, {9, false}},
      {"disabled rows do not look selected", 1, 10, SecondHalf::Disabled, true, true, {6, false}},
      {"no disabled picture for this row", 5, 10, SecondHalf::Disabled, true, false, {5, true}},
      {"no disabled picture in an odd array", 1, 3, SecondHalf::Disabled, true, false, {1, true}},
      {"the first one of an odd array", 0, 3, SecondHalf::Disabled, true, false, {1, false}},
      {"one picture has no second half", 0, 1, SecondHalf::Disabled, true, false, {0, true}},
      {"no second half", 1, 10, SecondHalf::None, true, false, {1, true}},
      {"no second half", 1, 10, SecondHalf::None, false, true, {1, false}},
      {"the second half is for selected rows", 1, 4, SecondHalf::Selected, false, true, {3, false}},
      {"the second half is for selected rows", 1, 4, SecondHalf::Selected, false, false, {1, false}},
      {"the second half is for selected rows", 1, 4, SecondHalf::Selected, true, true, {1, true}},
      {"no picture", -1, 10, SecondHalf::Disabled, false, false, {-1, false}},
      {"no picture", -1, 10, SecondHalf::Disabled, true, true, {-1, false}},
      {"a number that is too large", 10, 10, SecondHalf::Disabled, true, false, {-1, false}},
      {"no pictures at all", 0, 0, SecondHalf::Disabled, false, false, {-1, false}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.rule << ": " << row.image << " of " << row.count);
    const ListImageChoice choice = ChooseListImage(row.image, row.count, row.secondHalf, row.disabled, row.selected);
    EXPECT_EQ(row.choice.index, choice.index);
    EXPECT_EQ(row.choice.drawGrey, choice.drawGrey);
  }
}

constexpr IntRect kRow{0, 40, 200, 60};
constexpr ListRowMeasures kPlain{0, 0, 2, 0};
constexpr ListRowMeasures kWithPicture{16, 16, 2, 0};

TEST(ListRowLayout, TextBeginsAfterThePicture) {
  EXPECT_EQ((IntRect{2, 40, 82, 60}), LayOutListRow(kRow, kPlain, 80, HighlightMode::Row).text);
  const ListRowParts parts = LayOutListRow(kRow, kWithPicture, 80, HighlightMode::Row);
  EXPECT_EQ((IntRect{2, 42, 18, 58}), parts.image);
  EXPECT_EQ((IntRect{22, 40, 102, 60}), parts.text);
}

TEST(ListRowLayout, IndentMovesPictureAndText) {
  const ListRowParts parts = LayOutListRow(kRow, {16, 16, 2, 30}, 80, HighlightMode::Row);
  EXPECT_EQ((IntRect{32, 42, 48, 58}), parts.image);
  EXPECT_EQ((IntRect{52, 40, 132, 60}), parts.text);
}

TEST(ListRowLayout, LongTextEndsWithTheRow) {
  EXPECT_EQ((IntRect{22, 40, 198, 60}), LayOutListRow(kRow, kWithPicture, 500, HighlightMode::Row).text);
  // No room is left at all.
  EXPECT_EQ((IntRect{322, 40, 322, 60}), LayOutListRow(kRow, {16, 16, 2, 300}, 80, HighlightMode::Row).text);
}

TEST(ListRowLayout, HighlightEnclosesWhatTheModeSays) {
  const struct {
    ListRowMeasures measures;
    int textWidth;
    HighlightMode mode;
    IntRect highlight;
  } rows[] = {
      {kWithPicture, 80, HighlightMode::Row, kRow},
      {kWithPicture, 80, HighlightMode::ImageAndText, {0, 40, 104, 60}},
      {kWithPicture, 80, HighlightMode::Text, {20, 40, 104, 60}},
      {{16, 16, 2, 30}, 80, HighlightMode::Row, kRow},
      {{16, 16, 2, 30}, 80, HighlightMode::ImageAndText, {30, 40, 134, 60}},
      {{16, 16, 2, 30}, 80, HighlightMode::Text, {50, 40, 134, 60}},
      {kPlain, 80, HighlightMode::ImageAndText, {0, 40, 84, 60}},
      {kPlain, 80, HighlightMode::Text, {0, 40, 84, 60}},
      {kWithPicture, 500, HighlightMode::ImageAndText, kRow},
      {kWithPicture, 500, HighlightMode::Text, {20, 40, 200, 60}},
  };
  for (const auto& row : rows) {
    const IntRect found = LayOutListRow(kRow, row.measures, row.textWidth, row.mode).highlight;
    EXPECT_EQ(row.highlight, found) << "mode " << static_cast<int>(row.mode) << ", offset " << row.measures.offset
                                    << ": " << found.left << " to " << found.right;
  }
}

}  // namespace
