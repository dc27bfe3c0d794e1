#include "DriverLIB/TextLists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::wstring>;

Texts ToTexts(const CUStringArray& array) {
  Texts texts;
  for (int i = 0; i < array.Count(); ++i) texts.emplace_back(array[i].View());
  return texts;
}

Texts Split(WideView text, WideView separator) {
  CUStringArray array;
  array.Add(L"former");
  SplitList(text, array, separator);
  return ToTexts(array);
}

Texts SplitQuoted(WideView text, WideView separator) {
  CUStringArray array;
  array.Add(L"former");
  SplitQuotedList(text, array, separator);
  return ToTexts(array);
}

}  // namespace

TEST(SplitList, DropsEmptyPieces) {
  EXPECT_EQ((Texts{L"a", L"b"}), Split(L"a,,b", L","));
  EXPECT_EQ((Texts{L"a", L"b"}), Split(L",a,b,", L","));
  EXPECT_EQ((Texts{L"a"}), Split(L"a", L","));
  EXPECT_EQ(Texts{}, Split(L",,,", L","));
  EXPECT_EQ(Texts{}, Split(L"", L","));
  EXPECT_EQ(Texts{}, Split(nullptr, L","));
}

TEST(SplitList, KeepsBlanksAndQuotationMarks) { EXPECT_EQ((Texts{L" a ", L" \"b\" "}), Split(L" a , \"b\" ", L",")); }

TEST(SplitList, TakesALongerSeparator) {
  EXPECT_EQ((Texts{L"a", L"b,c", L"d"}), Split(L"a,;b,c,;,;d", L",;"));
  EXPECT_EQ((Texts{L"aa", L"b"}), Split(L"aa--b", L"--"));
  EXPECT_EQ((Texts{L"a", L"-b"}), Split(L"a---b", L"--"));
  EXPECT_EQ((Texts{L"a-"}), Split(L"a-", L"--"));
}

TEST(SplitList, WithoutSeparatorTheTextIsOnePiece) {
  EXPECT_EQ((Texts{L"a,b"}), Split(L"a,b", L""));
  EXPECT_EQ((Texts{L"a,b"}), Split(L"a,b", nullptr));
}

TEST(SplitList, TheTextMayBelongToTheArray) {
  CUStringArray array;
  array.Add(L"a;b;c");
  SplitList(array[0], array, L";");
  EXPECT_EQ((Texts{L"a", L"b", L"c"}), ToTexts(array));
  array.RemoveAll();
  array.Add(L"\"a;b\";c");
  SplitQuotedList(array[0], array, L";");
  EXPECT_EQ((Texts{L"a;b", L"c"}), ToTexts(array));
}

TEST(SplitList, AListOfNEntriesCostsN) {
  const auto cost = [](size_t entries) {
    std::wstring text;
    for (size_t i = 0; i < entries; ++i) text += L"entry;";
    auto best = std::chrono::steady_clock::duration::max();
    for (int round = 0; round < 5; ++round) {
      CUStringArray array;
      const auto start = std::chrono::steady_clock::now();
      SplitList(text, array, L";");
      best = std::min(best, std::chrono::steady_clock::now() - start);
      EXPECT_EQ(static_cast<int>(entries), array.Count());
    }
    return std::chrono::duration<double>(best).count();
  };
  // 64 times the entries cost some 64 times as much; a cost by the square would be 4096 times. The bound lies far from
  // both, since the machine may be busy.
  EXPECT_LT(cost(64000), 800 * cost(1000));
}

TEST(SplitQuotedList, AnEntryInMarksKeepsItsSeparators) {
  EXPECT_EQ((Texts{L"a,b", L"c", L"d"}), SplitQuoted(L"\"a,b\",\"c\",d", L","));
  EXPECT_EQ((Texts{L"a,b"}), SplitQuoted(L"\"a,b\"", L","));
  EXPECT_EQ((Texts{L"a", L"b", L"c"}), SplitQuoted(L"a,b,c", L","));
  EXPECT_EQ((Texts{L"x y", L"a", L"b"}), SplitQuoted(L"\"x y\",a,,b", L","));
}

TEST(SplitQuotedList, APieceThatEndsInAMarkIsOneElement) {
  // The cut is behind a closing mark only: what stands in front of an opening mark stays with it.
  EXPECT_EQ((Texts{L"a,b,\"c,d"}), SplitQuoted(L"a,b,\"c,d\"", L","));
  EXPECT_EQ((Texts{L"a,\"b", L"c"}), SplitQuoted(L"\"a,\"b\",c", L","));
}

TEST(SplitQuotedList, AllMarksAtBothEndsGo) {
  EXPECT_EQ((Texts{L"a"}), SplitQuoted(L"\"\"\"a\"\"", L","));
  EXPECT_EQ((Texts{L""}), SplitQuoted(L"\"\"", L","));
  EXPECT_EQ((Texts{L"", L"b"}), SplitQuoted(L"\"\",b", L","));
  EXPECT_EQ((Texts{L"a\"b"}), SplitQuoted(L"\"a\"b\"", L","));
}

TEST(SplitQuotedList, EmptyTextGivesNothing) {
  EXPECT_EQ(Texts{}, SplitQuoted(L"", L","));
  EXPECT_EQ(Texts{}, SplitQuoted(nullptr, L","));
  EXPECT_EQ(Texts{}, SplitQuoted(L",,", L","));
}
