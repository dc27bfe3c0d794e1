#include "DriverLIB/TextLists.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/CostGrowth.h"

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
  EXPECT_TRUE(GrowsWithItsEntries([](int entries) {
    std::wstring text;
    for (int i = 0; i < entries; ++i) text += L"entry;";
    CUStringArray array;
    const double time = TimeOf([&] { SplitList(text, array, L";"); });
    EXPECT_EQ(entries, array.Count());
    return time;
  }));
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
