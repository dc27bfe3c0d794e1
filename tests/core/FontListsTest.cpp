// The fonts in their two lists, and how names distribute them.
#include "pages/FontLists.h"

#include <gtest/gtest.h>

#include "support/PrintText.h"

namespace {

using enum FontPermission;
using Names = std::vector<std::wstring>;

constexpr wchar_t kStandard[] =
    L"Arial;Arial Black;Comic Sans MS;Courier New;Estrangelo Edessa;Franklin Gothic Medium;Gautami;Georgia;Impact;"
    L"Latha;Lucida Console;Microsoft Sans Serif;Modern;MV Boli;Palatino Linotype;Symbol;Tahoma;Times New Roman;"
    L"Trebuchet MS;Tunga;Verdana;Webdings;Wingdings";

FontLists ListsOf(const Names& names) {
  FontLists lists;
  for (const std::wstring& name : names) lists.Add(name, Unrestricted);
  return lists;
}

// The names in a list, in the order in which the fonts came.
Names NamesIn(const FontLists& lists, FontList list) {
  Names names;
  for (int i = 0; i < lists.Count(); ++i)
    if (lists[i].list == list) names.push_back(lists[i].name.Text());
  return names;
}

class FontListsTest : public testing::Test {
 protected:
  void ExpectExcluded(const Names& excluded, const Names& embedded) const {
    EXPECT_EQ(excluded, NamesIn(lists_, FontList::NeverEmbed));
    EXPECT_EQ(embedded, NamesIn(lists_, FontList::Embed));
  }
  FontListTexts Texts(const wchar_t* embed, const wchar_t* neverEmbed) { return {embed, neverEmbed}; }

  FontLists lists_ = ListsOf({L"D", L"B", L"A", L"C"});
};

TEST_F(FontListsTest, AFontThatIsAddedIsEmbedded) {
  FontLists lists;
  EXPECT_EQ(0, lists.Add(L"Arial", Restricted));
  EXPECT_EQ(1, lists.Add(L"Tahoma", DeviceFont));
  ASSERT_EQ(2, lists.Count());
  EXPECT_EQ(L"Arial", lists[0].name);
  EXPECT_EQ(Restricted, lists[0].permission);
  EXPECT_EQ(FontList::Embed, lists[0].list);
  EXPECT_EQ(DeviceFont, lists[1].permission);
}

TEST_F(FontListsTest, NamesAreKnownExactly) {
  EXPECT_TRUE(lists_.Has(L"A"));
  for (const wchar_t* name : {L"a", L"A ", L" A", L"", L"AB"}) EXPECT_FALSE(lists_.Has(name));
}

TEST_F(FontListsTest, DistributingGivesOneListTheNamedFontsAndTheOtherTheRest) {
  lists_.Distribute(L"A;B", FontList::NeverEmbed);
  ExpectExcluded({L"B", L"A"}, {L"D", L"C"});
  lists_.Distribute(L"A;D", FontList::Embed);
  ExpectExcluded({L"B", L"C"}, {L"D", L"A"});
  lists_.Distribute(L"A", FontList::NeverEmbed);
  ExpectExcluded({L"A"}, {L"D", L"B", L"C"});
}

TEST_F(FontListsTest, NamesWithoutAFontCountForNothing) {
  lists_.Distribute(L"a;X; B;C ;;D;D", FontList::NeverEmbed);
  ExpectExcluded({L"D"}, {L"B", L"A", L"C"});
  for (const wchar_t* none : {L"", L" ", L";;", L"X"}) {
    lists_.Distribute(none, FontList::NeverEmbed);
    ExpectExcluded({}, {L"D", L"B", L"A", L"C"});
    lists_.Distribute(none, FontList::Embed);
    ExpectExcluded({L"D", L"B", L"A", L"C"}, {});
  }
}

TEST_F(FontListsTest, TheListOfFontsNeverToEmbedComesFirst) {
  const struct {
    const wchar_t *embed, *neverEmbed;
    Names excluded, embedded;
  } rows[] = {
      {L"", L"", {}, {L"D", L"B", L"A", L"C"}},   {L"", L"A", {L"A"}, {L"D", L"B", L"C"}},
      {L"A;B", L"A", {L"A"}, {L"D", L"B", L"C"}}, {L"A", L"X", {}, {L"D", L"B", L"A", L"C"}},
      {L"A;B", L"", {L"D", L"C"}, {L"B", L"A"}},  {L"A;B", L" ", {}, {L"D", L"B", L"A", L"C"}},
      {L" ", L"", {L"D", L"B", L"A", L"C"}, {}},  {L"X", L"", {L"D", L"B", L"A", L"C"}, {}},
  };
  for (const auto& row : rows) {
    for (const FontList before : {FontList::Embed, FontList::NeverEmbed}) {
      SCOPED_TRACE(testing::PrintToString(std::wstring(row.embed)) + " / " +
                   testing::PrintToString(std::wstring(row.neverEmbed)));
      for (int i = 0; i < lists_.Count(); ++i) lists_.Move(i, before);
      lists_.Distribute(Texts(row.embed, row.neverEmbed));
      ExpectExcluded(row.excluded, row.embedded);
    }
  }
}

TEST_F(FontListsTest, TheStandardFontsAreExcludedAndNoOthers) {
  Names standard;
  for (std::wstring_view rest = kStandard; !rest.empty();) {
    const size_t end = std::min(rest.find(L';'), rest.size());
    standard.emplace_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  ASSERT_EQ(23u, standard.size());
  Names all{L"arial", L"Calibri", L"Times"};
  all.insert(all.end(), standard.begin(), standard.end());
  lists_ = ListsOf(all);
  for (int i = 0; i < lists_.Count(); ++i) lists_.Move(i, i % 2 ? FontList::Embed : FontList::NeverEmbed);
  lists_.DistributeStandardFonts();
  ExpectExcluded(standard, {L"arial", L"Calibri", L"Times"});
}

TEST_F(FontListsTest, WhatMayNotBeEmbeddedIsExcludedAndTheRestStaysWhereItIs) {
  FontLists lists;
  lists.Add(L"free", Unrestricted);
  lists.Add(L"device", DeviceFont);
  lists.Add(L"restricted", Restricted);
  lists.Add(L"bitmap", BitmapOnly);
  lists.Add(L"preview", PreviewAndPrint);
  lists.Add(L"excluded", Unrestricted);
  lists.Move(5, FontList::NeverEmbed);
  lists.ExcludeForbidden();
  EXPECT_EQ((Names{L"restricted", L"bitmap", L"excluded"}), NamesIn(lists, FontList::NeverEmbed));
  EXPECT_EQ((Names{L"free", L"device", L"preview"}), NamesIn(lists, FontList::Embed));
}

}  // namespace
