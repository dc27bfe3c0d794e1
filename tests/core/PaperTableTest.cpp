#include "environment/PaperTable.h"

#include <gtest/gtest.h>

#include <iterator>

namespace {

// The papers as the page's users and other components know them, written out a second time on purpose.
struct ExpectedPaper {
  uint32_t messageId;
  int32_t width, height;
  uint16_t number;
};

constexpr ExpectedPaper kExpectedPapers[] = {
    {0x400109C4, 215900, 279400, 1},     // Letter
    {0x400109C5, 215900, 355600, 5},     // Legal
    {0x400109C6, 184900, 266700, 7},     // Executive
    {0x400109D4, 841000, 1189000, 255},  // A0
    {0x400109D3, 594000, 841000, 254},   // A1
    {0x400109D0, 420000, 594000, 66},    // A2
    {0x400109C7, 297000, 420000, 8},     // A3
    {0x400109D2, 322000, 455000, 68},    // A3 Extra Transverse
    {0x400109C8, 210000, 297000, 9},     // A4
    {0x400109C9, 148000, 210000, 11},    // A5
    {0x400109CA, 105000, 148000, 70},    // A6
    {0x400109CB, 250000, 354000, 12},    // B4
    {0x400109CC, 182000, 257000, 13},    // B5
    {0x400109CD, 210000, 297000, 256},   // user-defined
};
constexpr int kCount = std::size(kExpectedPapers);
static_assert(kCount == 14);

// Two rows of one number, two of one size, one without a name.
constexpr PaperRow kOddTable[] = {
    {true, 100, 10, 20, 5}, {true, 101, 10, 20, 6}, {true, 102, 30, 40, 5},
    {true, 0, 50, 60, 7},   {true, 0, 50, 60, 5},   {},
};
constexpr PaperRow kTableBehindItsEnd[] = {{true, 100, 10, 20, 5}, {false, 101, 30, 40, 6}, {true, 102, 50, 60, 7}};

}  // namespace

TEST(PaperTable, HasItsRowsInOrder) {
  for (int row = 0; row < kCount; ++row) {
    const ExpectedPaper& expected = kExpectedPapers[row];
    const PaperRow* paper = PaperAt(row);
    ASSERT_NE(nullptr, paper) << row;
    EXPECT_EQ(expected.messageId, paper->messageId) << row;
    EXPECT_EQ(expected.width, paper->width) << row;
    EXPECT_EQ(expected.height, paper->height) << row;
    EXPECT_EQ(expected.number, paper->number) << row;
  }
}

TEST(PaperTable, IsIndexedFromItsFirstRowToItsLast) {
  EXPECT_EQ(&kPaperTable[0], PaperAt(0));
  EXPECT_EQ(&kPaperTable[13], PaperAt(13));
  for (const int index : {-1, -2, 14, 15, 1000}) EXPECT_EQ(nullptr, PaperAt(index)) << index;
  EXPECT_EQ(nullptr, PaperAt(1, kTableBehindItsEnd));
}

TEST(PaperTable, EveryPaperIsFoundByItsNumber) {
  for (int row = 0; row < kCount; ++row) EXPECT_EQ(PaperAt(row), FindPaper(kExpectedPapers[row].number)) << row;
  for (const uint16_t number : {0, 2, 10, 65, 67, 257, 0xFFFF}) EXPECT_EQ(nullptr, FindPaper(number)) << number;
}

TEST(PaperTable, TheLastPaperWithANameIsFoundByNumber) {
  EXPECT_EQ(&kOddTable[2], FindPaper(5, kOddTable));
  EXPECT_EQ(nullptr, FindPaper(7, kOddTable)) << "has no name";
  EXPECT_EQ(nullptr, FindPaper(0, kOddTable)) << "the closing row is no paper";
  EXPECT_EQ(nullptr, FindPaper(7, kTableBehindItsEnd));
}

TEST(PaperTable, EveryPaperIsFoundByItsSize) {
  for (int row = 0; row < kCount - 1; ++row)
    EXPECT_EQ(PaperAt(row), FindPaperOfSize(kExpectedPapers[row].width, kExpectedPapers[row].height)) << row;
  EXPECT_EQ(kPaperA4, FindPaperOfSize(210000, 297000)->number) << "goes before the user-defined one";
}

TEST(PaperTable, OnlyTheExactSizeIsFound) {
  EXPECT_EQ(nullptr, FindPaperOfSize(297000, 210000)) << "landscape";
  EXPECT_EQ(nullptr, FindPaperOfSize(210001, 297000));
  EXPECT_EQ(nullptr, FindPaperOfSize(210000, 296999));
  EXPECT_EQ(nullptr, FindPaperOfSize(0, 0)) << "the closing row is no paper";
  EXPECT_EQ(&kOddTable[0], FindPaperOfSize(10, 20, kOddTable)) << "the first of two";
  EXPECT_EQ(nullptr, FindPaperOfSize(50, 60, kTableBehindItsEnd));
}

TEST(PaperTable, TheDefaultIsA4OrLetter) {
  EXPECT_EQ(9, A4OrLetter(true).number);
  EXPECT_EQ(1, A4OrLetter(false).number);
}

TEST(PaperTable, TheDefaultFallsToTheFirstRow) {
  EXPECT_EQ(&kOddTable[0], &A4OrLetter(true, kOddTable));
  EXPECT_EQ(&kOddTable[0], &A4OrLetter(false, kOddTable));
}
