#include "pages/LinkBorders.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string_view>

TEST(LinkBorders, Rows) {
  const ValueRow expected[] = {{0x400109E2, 0, "None"},
                               {0x400109E3, 1, "Underlined"},
                               {0x400109E4, 2, "Frame"},
                               {0x400109E5, 3, "DashedFrame"},
                               {0x400109E6, 4, "DottedFrame"}};
  ASSERT_EQ(static_cast<int>(std::size(expected)), RowCount(kLinkBorders));
  for (size_t row = 0; row < std::size(expected); ++row) {
    EXPECT_EQ(expected[row].messageId, kLinkBorders[row].messageId);
    EXPECT_EQ(expected[row].value, kLinkBorders[row].value);
    EXPECT_STREQ(expected[row].keyword, kLinkBorders[row].keyword);
  }
}

TEST(LinkBorders, Widths) {
  const LinkBorderWidth expected[] = {{L"\u00BD pt", 50},   {L"\u00BE pt", 75}, {L"1 pt", 100},
                                      {L"1\u00BD pt", 150}, {L"2 pt", 200},     {L"2\u00BD pt", 250},
                                      {L"3 pt", 300},       {L"4 pt", 400},     {L"5 pt", 500}};
  ASSERT_EQ(std::size(expected), std::size(kLinkBorderWidths));
  for (size_t row = 0; row < std::size(expected); ++row) {
    EXPECT_EQ(expected[row].width, kLinkBorderWidths[row].width);
    EXPECT_TRUE(std::wstring_view(expected[row].text) == kLinkBorderWidths[row].text);
    EXPECT_EQ(static_cast<int>(row), RowOfLinkBorderWidth(expected[row].width));
  }
  EXPECT_EQ(0, RowOfLinkBorderWidth(90));
  EXPECT_EQ(0, RowOfLinkBorderWidth(0));
}
