#include "pages/PaperValues.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

TEST(PaperValues, APaperIsStoredWhereTheMaskSaysSo) {
  EXPECT_EQ(FindPaper(8), FindStoredPaper(0x2, 8));
  EXPECT_EQ(FindPaper(256), FindStoredPaper(0x21F, 256));
  for (const uint32_t fields : {0x0u, 0x1u, 0x21Du}) EXPECT_EQ(nullptr, FindStoredPaper(fields, 8)) << fields;
  for (const uint16_t number : {0, 2, 77, 257, 0xFFFF}) EXPECT_EQ(nullptr, FindStoredPaper(0x2, number)) << number;
}

TEST(PaperValues, ASizeInMillimetresFindsItsPaper) {
  const struct {
    double width, height;
    int number;
  } sizes[] = {
      {210, 297, 9},         {215.9, 279.4, 1},     {215.9, 355.6, 5}, {184.9, 266.7, 7}, {841, 1189, 255},
      {594, 841, 254},       {322, 455, 68},        {182, 257, 13},    {297, 210, 256},   {210.1, 297, 256},
      {210, 296.9, 256},     {0, 0, 256},           {1e99, 1e99, 256}, {-1e99, 0, 256},   {6553.5, 6553.5, 256},
      {210.0000001, 297, 9}, {209.9999999, 297, 9},
  };
  for (const auto& size : sizes) EXPECT_EQ(size.number, PaperOfSize(size.width, size.height).number) << size.width;
}

// Sizes are typed with one decimal place, and some of them have no exact number.
TEST(PaperValues, EveryPaperIsFoundByItsMillimetres) {
  for (const PaperRow* paper = kPaperTable; paper->number != kPaperUserDefined; ++paper)
    EXPECT_EQ(paper, &PaperOfSize(paper->width / 1000.0, paper->height / 1000.0)) << paper->number;
}

TEST(PaperValues, LandscapeTakesTheMaskAndTheValue) {
  EXPECT_TRUE(IsLandscape(0x1, 2));
  EXPECT_FALSE(IsLandscape(0x21E, 2));
  for (const uint16_t orientation : {0, 1, 3, 0xFFFF}) EXPECT_FALSE(IsLandscape(0x1, orientation)) << orientation;
}

TEST(PaperValues, TheMaskHasASizeForTheUserDefinedPaperAlone) {
  EXPECT_EQ(0x13u, StoredFields(0, 9));
  EXPECT_EQ(0x1Fu, StoredFields(0, 256));
  EXPECT_EQ(0x13u, StoredFields(0x1F, 9));
  EXPECT_EQ(0x1Fu, StoredFields(0x1F, 256));
  EXPECT_EQ(0xFFFFFFF3u, StoredFields(0xFFFFFFFF, 255)) << "other bits are not the page's";
  EXPECT_EQ(0x213u, StoredFields(0x200, 9));
}

TEST(PaperValues, MillimetresAreStoredInTenthsRoundedHalfUp) {
  const std::pair<double, int> lengths[] = {
      {0, 0},    {0.1, 1},  {100.3, 1003}, {100.25, 1003}, {215.9, 2159}, {184.9, 1849}, {6553.5, 65535},
      {0.04, 0}, {0.05, 1}, {210, 2100},   {6553.6, 0},    {6553.7, 1},   {-0.04, 0},    {-5, 0xFFCF}};
  for (const auto& [millimetres, tenths] : lengths) EXPECT_EQ(tenths, ToTenths(millimetres)) << millimetres;
}

TEST(PaperValues, EveryTenthComesBack) {
  for (int tenths = 0; tenths <= 0xFFFF; ++tenths)
    ASSERT_EQ(tenths, ToTenths(ToMillimetres(static_cast<uint16_t>(tenths))));
}

TEST(PaperValues, AValueHasSixteenBits) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const std::pair<double, int> numbers[] = {{0, 0},         {99.9, 99},      {150, 150},         {65535, 65535},
                                            {65536, 0},     {100000, 34464}, {-1, 0xFFFF},       {-0.9, 0},
                                            {1e99, 0xFFFF}, {-1e99, 1},      {kInfinity, 0xFFFF}};
  for (const auto& [number, stored] : numbers) EXPECT_EQ(stored, ToStoredValue(number)) << number;
}

TEST(PaperValues, DuplexHasThreeKinds) {
  EXPECT_EQ(1, DuplexOf(false, false));
  EXPECT_EQ(1, DuplexOf(false, true));
  EXPECT_EQ(2, DuplexOf(true, false));
  EXPECT_EQ(3, DuplexOf(true, true));
}
