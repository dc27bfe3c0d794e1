// The two lists of fonts as texts, of which the settings keep one.
#include "pages/FontListTexts.h"

#include <gtest/gtest.h>

#include "support/PrintText.h"

namespace {

CUString TextOf(int length) { return CUString(std::wstring(static_cast<size_t>(length), L'x')); }

TEST(FontListTexts, TheSwitchSaysWhichListTheTextIs) {
  FontListTexts texts = FontListTexts::FromStored({true, L"Arial"});
  EXPECT_EQ(L"Arial", texts.embed);
  EXPECT_EQ(L"", texts.neverEmbed);
  texts = FontListTexts::FromStored({false, L"Arial"});
  EXPECT_EQ(L"", texts.embed);
  EXPECT_EQ(L"Arial", texts.neverEmbed);
}

TEST(FontListTexts, TheListOfFontsNeverToEmbedIsStoredFirst) {
  const struct {
    const wchar_t *embed, *neverEmbed;
    bool isEmbedList;
    const wchar_t* stored;
  } rows[] = {{L"", L"", false, L""},    {L"A", L"", true, L"A"},   {L"", L"B", false, L"B"},
              {L"A", L"B", false, L"B"}, {L"A", L" ", false, L" "}, {L" ", L"", true, L" "}};
  for (const auto& row : rows) {
    const StoredFontList stored = FontListTexts{row.embed, row.neverEmbed}.Stored();
    EXPECT_EQ(row.isEmbedList, stored.isEmbedList) << testing::PrintToString(std::wstring(row.embed));
    EXPECT_EQ(row.stored, stored.names);
  }
}

TEST(FontListTexts, BothListsWithTwoTerminatorsHaveRoomBelowTheLimit) {
  const struct {
    int embed, neverEmbed;
    bool exceed;
  } rows[] = {{0, 0, false},   {1021, 0, false}, {0, 1021, false}, {500, 521, false},
              {1022, 0, true}, {0, 1022, true},  {500, 522, true}, {5000, 5000, true}};
  for (const auto& row : rows)
    EXPECT_EQ(row.exceed, (FontListTexts{TextOf(row.embed), TextOf(row.neverEmbed)}.ExceedTheRecord()))
        << row.embed << " " << row.neverEmbed;
}

TEST(FontListTexts, OneListHasToFit) {
  const struct {
    int embed, neverEmbed;
    bool tooLong;
  } rows[] = {{0, 0, false}, {1024, 1023, false}, {1023, 1024, false}, {1024, 1024, true}, {3000, 2000, true}};
  for (const auto& row : rows)
    EXPECT_EQ(row.tooLong, (FontListTexts{TextOf(row.embed), TextOf(row.neverEmbed)}.AreBothTooLong()))
        << row.embed << " " << row.neverEmbed;
}

TEST(FontListTexts, OneListIsKept) {
  const CUString fits = TextOf(1023), tooLong = TextOf(1024);
  const struct {
    CUString embed, neverEmbed, keptEmbed, keptNeverEmbed;
  } rows[] = {
      {L"", L"", L"", L" "},
      {L"A", L"", L"", L" "},
      {L"A", L"B", L"", L"B"},
      {L"", L" ", L"", L" "},
      {TextOf(1200), TextOf(300), L"", TextOf(300)},
      {tooLong, fits, L"", fits},
      {fits, tooLong, fits, L""},
      {L"", tooLong, L" ", L""},
      {L" ", tooLong, L" ", L""},
  };
  for (const auto& row : rows) {
    FontListTexts texts{row.embed, row.neverEmbed};
    for (int times = 0; times < 2; ++times) {
      // A second time finds what the first has kept. A list that was dropped is empty, and an empty list would fit.
      if (times == 1 && row.keptNeverEmbed.IsEmpty()) break;
      texts.KeepOne();
      EXPECT_EQ(row.keptEmbed, texts.embed) << row.embed.Length() << " " << row.neverEmbed.Length();
      EXPECT_EQ(row.keptNeverEmbed, texts.neverEmbed) << row.embed.Length() << " " << row.neverEmbed.Length();
    }
  }
}

}  // namespace
