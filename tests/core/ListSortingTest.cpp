#include "controls/ListSorting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "controls/BookmarkListOrder.h"

namespace {

TEST(ListSorting, ClickOnTheSameHeadTurnsTheOrderRound) {
  ListSorting sorting;
  EXPECT_EQ(-1, sorting.column);
  EXPECT_TRUE(sorting.ascending);
  const struct {
    int clicked;
    bool ascending;
  } clicks[] = {{1, true}, {1, false}, {1, true}, {1, false}, {0, true}, {1, true}};
  for (const auto& click : clicks) {
    sorting.Click(click.clicked);
    EXPECT_EQ(click.clicked, sorting.column);
    EXPECT_EQ(click.ascending, sorting.ascending);
  }
}

TEST(ListSorting, AfterForgettingEveryHeadIsAnother) {
  ListSorting sorting;
  sorting.Click(0);
  sorting.Forget();
  EXPECT_EQ(-1, sorting.column);
  sorting.Click(0);
  EXPECT_TRUE(sorting.ascending);
  sorting.Sorted(0, false);
  sorting.Forget();
  sorting.Click(0);
  EXPECT_TRUE(sorting.ascending);
}

TEST(ListSorting, ASortByCodeCountsAsAClick) {
  ListSorting sorting;
  sorting.Sorted(1, true);
  sorting.Click(1);
  EXPECT_FALSE(sorting.ascending);
}

TEST(ListSorting, ComparesByCodeUnits) {
  const struct {
    const wchar_t *left, *right;
    int order;
  } rows[] = {
      {L"", L"", 0},
      {nullptr, L"", 0},
      {L"", L"a", -1},
      {L"a", L"a", 0},
      {L"a", L"ab", -1},
      {L"b", L"ab", 1},
      {L"Z", L"a", -1},
      {L"a", L"A", 1},
      {L"z", L"\x00E4", -1},
      // Two units of a character beyond 16 bits come before one from the end of the 16 bits.
      {L"\xD83D\xDE00", L"\xFFFD", -1},
      {L"\xFFFD", L"a", 1},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.order, CompareCodeUnits(row.left, row.right));
    EXPECT_EQ(-row.order, CompareCodeUnits(row.right, row.left));
  }
}

TEST(BookmarkListOrder, KnowsHeadings) {
  const struct {
    const wchar_t* style;
    int number;
  } rows[] = {
      {L"heading 1", 1},         {L"heading 9", 9}, {L"heading 4,My name", 4}, {L"heading 2,", 2}, {L"heading 0", 0},
      {L"heading 10", 0},        {L"Heading 1", 0}, {L"heading  1", 0},        {L"heading ", 0},   {L"", 0},
      {L"My name,heading 1", 0}, {L"heading x", 0}, {L" heading 1", 0},        {L"heading1", 0},
  };
  for (const auto& row : rows) EXPECT_EQ(row.number, HeadingNumber(row.style)) << std::wstring(row.style).size();
}

TEST(BookmarkListOrder, HeadingsComeFirstThenTheNames) {
  std::vector<BookmarkOrderKey> styles = {
      {L"Title", L"b"},     {L"heading 10", L"Z"},     {L"heading 3", L"a"},  {L"caption", L"a"},
      {L"heading 1", L"z"}, {L"heading 2,x", L"\xE4"}, {L"Body Text", L"Z1"},
  };
  std::stable_sort(styles.begin(), styles.end(), ComesBeforeInDocument);
  const wchar_t* const expected[] = {L"heading 1", L"heading 2,x", L"heading 3", L"heading 10",
                                     L"Body Text", L"caption",     L"Title"};
  for (size_t i = 0; i < styles.size(); ++i) EXPECT_TRUE(styles[i].styleText == std::wstring_view(expected[i])) << i;
}

}  // namespace
