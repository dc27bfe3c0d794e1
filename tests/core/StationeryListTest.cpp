#include "pages/StationeryList.h"

#include <gtest/gtest.h>

#include <string>

#include "DriverLIB/SecureWipe.h"
#include "support/CostGrowth.h"
#include "support/FreedTextWatch.h"
#include "support/PrintText.h"
#include "support/RandomText.h"

namespace {

const std::wstring kEntry = LR"({NAME:"n";FILE:"f";P:"";TYPE:"0"})";

size_t CountRead(const std::wstring& text, bool expected) {
  StationeryFormats formats;
  formats.push_back(std::make_unique<CStationeryFormat>());  // goes
  EXPECT_EQ(expected, ReadStationeryList(text, formats)) << testing::PrintToString(text);
  return formats.size();
}

}  // namespace

TEST(StationeryList, ReadsAndWritesItsEntriesInOrder) {
  const wchar_t text[] =
      LR"({{NAME:"Letter";FILE:"C:\\Paper\\letter.pdf";P:"";TYPE:"0"}{NAME:"Re \"2\"";FILE:"b.pdf";P:"x";TYPE:"3"}})";
  StationeryFormats formats;
  ASSERT_TRUE(ReadStationeryList(text, formats));
  ASSERT_EQ(2u, formats.size());
  EXPECT_EQ(formats[0]->GetFile(), LR"(C:\Paper\letter.pdf)");
  EXPECT_EQ(formats[1]->GetName(), LR"(Re "2")");
  EXPECT_EQ(formats[1]->GetPassword(), L"x");
  EXPECT_EQ(formats[1]->GetType(), 3);
  EXPECT_EQ(StationeryListText(formats), text);
  const CStationeryFormat* const second[] = {formats[1].get()};
  EXPECT_EQ(StationeryListText(second), LR"({{NAME:"Re \"2\"";FILE:"b.pdf";P:"x";TYPE:"3"}})");
}

TEST(StationeryList, AnEmptyListIsWrittenButReadAsAFailure) {
  EXPECT_EQ(StationeryListText(StationeryFormats()), L"{}");
  EXPECT_EQ(0u, CountRead(L"{}", false));
  EXPECT_EQ(0u, CountRead(L"", false));
  EXPECT_EQ(0u, CountRead(L"{", false));
  EXPECT_EQ(0u, CountRead(kEntry + L"}", false));  // its first entry begins without a brace
  EXPECT_EQ(0u, CountRead(L"x" + kEntry + L"}", false));
}

TEST(StationeryList, AnEntryAloneIsNoList) { EXPECT_EQ(0u, CountRead(kEntry, false)); }

TEST(StationeryList, WithoutItsEndItLosesTheLastEntry) {
  EXPECT_EQ(2u, CountRead(L"{" + kEntry + kEntry + L"}", true));
  EXPECT_EQ(1u, CountRead(L"{" + kEntry + kEntry, false));
}

TEST(StationeryList, EntriesInFrontOfAMalformedOneStay) {
  EXPECT_EQ(1u, CountRead(L"{" + kEntry + L"{NAME:}" + kEntry + L"}", false));
  EXPECT_EQ(1u, CountRead(L"{" + kEntry + L" }", false));
  EXPECT_EQ(1u, CountRead(L"{" + kEntry + L"}}", false));
}

TEST(StationeryList, ReadsAnEntryWithoutItsBrace) {
  // What follows the separator belongs to the list.
  EXPECT_EQ(1u, CountRead(LR"({{NAME:"n";FILE:"f";P:"";TYPE:"0";})", true));
  EXPECT_EQ(2u, CountRead(LR"({{NAME:"n";FILE:"f";P:"";TYPE:"0";)" + kEntry + L"}", true));
}

TEST(StationeryList, AnyTextComesBack) {
  RandomText random(LR"(\\\"""{};: NAPF)");
  for (int round = 0; round < 400; ++round) {
    StationeryFormats formats;
    for (int count = random.Number(1, 4); count > 0; --count) {
      formats.push_back(std::make_unique<CStationeryFormat>());
      std::wstring file = random.Next(12);
      std::erase(file, L'"');
      formats.back()->SetFile(file);
      formats.back()->SetName(random.Next(12));
      formats.back()->SetPassword(random.Next(8));
      formats.back()->SetType(static_cast<int16_t>(random.Number(-40000, 40000)));
    }
    const CUString text = StationeryListText(formats);
    SCOPED_TRACE(testing::PrintToString(text));
    StationeryFormats again;
    ASSERT_TRUE(ReadStationeryList(text, again));
    ASSERT_EQ(formats.size(), again.size());
    for (size_t i = 0; i < formats.size(); ++i) {
      EXPECT_EQ(formats[i]->GetFile(), again[i]->GetFile());
      EXPECT_EQ(formats[i]->GetName(), again[i]->GetName());
      EXPECT_EQ(formats[i]->GetPassword(), again[i]->GetPassword());
      EXPECT_EQ(formats[i]->GetType(), again[i]->GetType());
    }
    EXPECT_EQ(StationeryListText(again), text);
  }
}

TEST(StationeryList, LeavesNoPasswordBehind) {
  const FreedTextWatch watch(L"c0rrect-h0rse");
  {
    StationeryFormats formats;
    for (int i = 0; i < 20; ++i) {
      formats.push_back(std::make_unique<CStationeryFormat>());
      formats.back()->SetPassword(L"c0rrect-h0rse-b4ttery");
    }
    CUString text = StationeryListText(formats);
    EXPECT_EQ(text.Capacity(), text.Length());
    StationeryFormats again;
    EXPECT_TRUE(ReadStationeryList(text, again));
    EXPECT_EQ(20u, again.size());
    EXPECT_FALSE(ReadStationeryList(text.View().substr(0, 200), again));
    WipeText(text);
  }
  EXPECT_EQ(0, watch.Count());
}

TEST(StationeryList, NEntriesCostN) {
  const auto task = [](int entries) {
    std::wstring text = L"{";
    for (int i = 0; i < entries; ++i) text += LR"({NAME:"A \"paper\"";FILE:"C:\\Paper\\letter.pdf";P:"x";TYPE:"3"})";
    text += L"}";
    StationeryFormats formats;
    return TimeOf([&] {
      EXPECT_TRUE(ReadStationeryList(text, formats));
      EXPECT_EQ(text.size(), StationeryListText(formats).View().size());
    });
  };
  EXPECT_TRUE(GrowsWithItsEntries(task));
  EXPECT_LE(CostOfDoubling(task, 2.3), 2.3);
}

TEST(StationeryList, AValueThatIsAllMarksCostsItsLength) {
  EXPECT_TRUE(GrowsWithItsEntries([](int entries) {
    std::wstring text = LR"({{NAME:")";
    for (int i = 0; i < entries; ++i) text += LR"(\"\\)";
    StationeryFormats formats;
    return TimeOf([&] { EXPECT_FALSE(ReadStationeryList(text, formats)); });
  }));
}
