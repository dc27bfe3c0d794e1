#include <set>

#include "controls/CImageStatic.h"
#include "driver/ImportPatch.h"
#include "driver/Picture.h"
#include "DriverLIB/MessageBoxes.h"
#include "pages/CPaperPage.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "support/ControlPictures.h"
#include "support/InvalidDataBox.h"
#include "support/PrintText.h"
#include "support/RegistryValue.h"
#include "support/WordHost.h"

namespace {

constexpr int kPageId = kPaperPage;

using Values = PaperCockpitValues;

// What goes back when the user changes nothing. An upright A3, and a user-defined paper where the size is looked at.
const PageTable kTable =
    {
        .name = "Paper",
        .pageId = kPageId,
        .rows =
            {
                Unshown(L"Fields").Stores({{0x13, L"", 0x13},
                                           {0x213, L"", 0x213},
                                           {0x12, L"", 0x13},
                                           {0x3, L"", 0x13},
                                           {0x1F, L"", 0x13},
                                           {-1, L"", -13}}),
                Radios(L"Orientation", {IDC_PAPER_PORTRAIT, IDC_PAPER_LANDSCAPE}, 1)
                    .Stores({{0, L"0", 1}, {3, L"0", 1}, {65536 + 2, L"1", 2}})
                    .Tracked<&Values::orientation>(),
                Field(L"PaperSize", IDC_PAPER_FORMAT)
                    .Stores({{8, L"A3 297 x 420 mm", 8},
                             {1, L"Letter 8 1/2 x 11 inch", 1},
                             {255, L"A0 841 x 1189 mm", 255},
                             {65536 + 9, L"A4 210 x 297 mm", 9}})
                    .Tracked<&Values::paperSize>(),
                Field(L"PaperWidth", IDC_PAPER_WIDTH)
                    .Stores({{1000, L"100", 1000},
                             {1003, L"100.3", 1003},
                             {10, L"1", 10},
                             {65535, L"6553.5", 65535},
                             {-1, L"6553.5", 65535},
                             {65536 + 1234, L"123.4", 1234}})
                    .Types({{L"100.25", L"100.25", 1003}, {L"1", L"1", 10}, {L"6553.5", L"6553.5", 65535}})
                    .Given({{L"PaperSize", 256}, {L"Fields", 0x1F}}),
                Field(L"PaperLength", IDC_PAPER_HEIGHT)
                    .Stores({{2000, L"200", 2000},
                             {1999, L"199.9", 1999},
                             {65535, L"6553.5", 65535},
                             {65536 + 1234, L"123.4", 1234}})
                    .Types({{L"184.9", L"184.9", 1849}, {L"0.96", L"0.96", 10}})
                    .Given({{L"PaperSize", 256}, {L"Fields", 0x1F}}),
                Field(L"Scale", IDC_PAPER_SCALE)
                    .Stores({{100, L"100", 100},
                             {1, L"1", 1},
                             {65535, L"65535", 65535},
                             {-1, L"65535", 65535},
                             {0, L"0", 100},
                             {65536 + 50, L"50", 50}})
                    .Types({{L"50", L"50", 50},
                            {L"0", L"100", 100},
                            {L"", L"100", 100},
                            {L"abc", L"100", 100},
                            {L"-5", L"100", 100},
                            {L"2.7", L"2.7", 2},
                            {L"0.94", L"100", 100},
                            {L"0.96", L"0.96", 1},
                            {L"100000", L"100000", 100000 & 0xFFFF},  // the value has sixteen bits
                            {L"100001", L"100", 100},
                            {L"1234567", L"100", 100}})  // no room for the last digit
                    .Tracked<&Values::scale>(),
                Unshown(L"Duplex").Stores({{1, L"", 1}, {2, L"", 2}, {3, L"", 3}, {0, L"", 2}, {4, L"", 2}}),
                Unshown(L"PaperSource").Stores({{7, L"", 7}, {0, L"", 0}, {-1, L"", 65535}}),
                Unshown(L"PaperDestination").Stores({{3, L"", 3}, {0, L"", 0}, {-1, L"", 65535}}),
                Field(L"PaperScaleWidth", IDC_PAPER_SCALE_WIDTH)
                    .Stores({{80, L"80", 80},
                             {1, L"1", 1},
                             {90, L"90", 90},
                             {100, L"100", 100},
                             {0, L"0", 100},
                             {101, L"101", 100},
                             {-1, L"65535", 100},
                             {65536 + 50, L"50", 50}})
                    .Types({{L"50", L"50", 50},
                            {L"1", L"1", 1},
                            {L"100", L"100", 100},
                            {L"0", L"100", 100},
                            {L"", L"100", 100},
                            {L"101", L"100", 100},
                            {L"9999", L"100", 100},
                            {L"2.7", L"2.7", 2},
                            {L"0.9", L"100", 100}})
                    .Tracked<&Values::scaleWidth>(),
                Field(L"PaperScaleHeight", IDC_PAPER_SCALE_HEIGHT)
                    .Stores({{90, L"90", 90},
                             {1, L"1", 1},
                             {100, L"100", 100},
                             {0, L"0", 0},
                             {150, L"150", 150},
                             {1000, L"1000", 1000},
                             {65536 + 50, L"50", 50}})
                    .Types({{L"50", L"50", 50}, {L"2.7", L"2.7", 2}, {L"1", L"1", 1}, {L"100", L"100", 100}})
                    .Tracked<&Values::scaleHeight>(),
                CheckBox(L"PaperMarginCenter", IDC_PAPER_CENTERED).Tracked<&Values::marginCenter>(),
                Field(L"PaperMarginLeft", IDC_PAPER_MARGIN_LEFT)
                    .Stores({{0, L"0", 0},
                             {125, L"12.5", 125},
                             {2971, L"297.1", 2971},
                             {65535, L"6553.5", 65535},
                             {65536 + 1, L"0.1", 1}})
                    .Types({{L"12.25", L"12.25", 123},
                            {L"297", L"297", 2970},
                            {L"0", L"0", 0},
                            {L"", L"", 0},
                            {L"abc", L"abc", 0}}),
                Field(L"PaperMarginTop", IDC_PAPER_MARGIN_TOP)
                    .Stores({{0, L"0", 0}, {125, L"12.5", 125}, {65535, L"6553.5", 65535}, {65536 + 1, L"0.1", 1}})
                    .Types({{L"12.34", L"12.34", 123}, {L"420", L"420", 4200}, {L"", L"", 0}}),
                Choice(L"PaperBorder", IDC_PAPER_BORDER,
                       {{L"0 pt", 0},
                        {L"\u00BC pt", 25},
                        {L"\u00BD pt", 50},
                        {L"\u00BE pt", 75},
                        {L"1 pt", 100},
                        {L"1\u00BD pt", 150},
                        {L"2\u00BC pt", 225},
                        {L"3 pt", 300},
                        {L"4\u00BD pt", 450},
                        {L"6 pt", 600}})
                    .Tracked<&Values::border>(),
            },
};
const PageTableEntry entry(kTable);

struct Paper {
  const wchar_t *name, *width, *height;
  int number;
};

// In the order of the list, with what the edits show.
constexpr Paper kPapers[] = {
    {L"Letter 8 1/2 x 11 inch", L"215.9", L"279.4", 1},
    {L"Legal 8 1/2 x 14 inch", L"215.9", L"355.6", 5},
    {L"Executive 7 1/4 x 10 1/2 inch", L"184.9", L"266.7", 7},
    {L"A0 841 x 1189 mm", L"841", L"1189", 255},
    {L"A1 594 x 841 mm", L"594", L"841", 254},
    {L"A2 420 x 594 mm", L"420", L"594", 66},
    {L"A3 297 x 420 mm", L"297", L"420", 8},
    {L"A3 Extra Transverse 322 x 455 mm", L"322", L"455", 68},
    {L"A4 210 x 297 mm", L"210", L"297", 9},
    {L"A5 148 x 210 mm", L"148", L"210", 11},
    {L"A6 105 x 148 mm", L"105", L"148", 70},
    {L"B4 250 x 354 mm", L"250", L"354", 12},
    {L"B5 182 x 257 mm", L"182", L"257", 13},
};
constexpr wchar_t kA3[] = L"A3 297 x 420 mm";
constexpr wchar_t kA4[] = L"A4 210 x 297 mm";
constexpr wchar_t kUserDefined[] = L"User defined paper size";

constexpr int kLayoutControls[] = {1000, 1016, 1018, 1001, 1002, 1246, 1247, 1021, 1023, 1024, 1060};
constexpr int kOtherControls[] = {
    IDC_PAPER_OTHER_GROUP, IDC_PAPER_SOURCE_LABEL,    IDC_PAPER_SOURCE, IDC_PAPER_DESTINATION_LABEL,
    IDC_PAPER_DESTINATION, IDC_PAPER_OTHER_SEPARATOR, IDC_PAPER_DUPLEX, IDC_PAPER_UPPER_EDGE};

// An upright A4 without margins, in Germany.
class PaperPage : public testing::Test {
 protected:
  PaperPage() {
    country_.Set(L"49");
    NewPage();
  }
  ~PaperPage() override { EXPECT_EQ(boxes_, MessageBoxCount()) << "the page itself never speaks"; }

  void NewPage() {
    test_ = std::make_unique<PageUnderTest>(kPageId);
    Set({{L"Fields", 0x1F},
         {L"Orientation", 1},
         {L"PaperSize", 9},
         {L"Scale", 100},
         {L"Duplex", 1},
         {L"PaperScaleWidth", 80},
         {L"PaperScaleHeight", 90}});
  }
  void Set(const std::vector<std::pair<const wchar_t*, int>>& values) {
    for (const auto& [property, value] : values) test_->Set(property, value);
  }
  void SetUserDefined(int width, int length) {
    Set({{L"PaperSize", 256}, {L"PaperWidth", width}, {L"PaperLength", length}});
  }
  void SetMargins(int left, int top) { Set({{L"PaperMarginLeft", left}, {L"PaperMarginTop", top}}); }
  CPaperPage& Page() { return test_->As<CPaperPage>(); }
  // Whether the page starts.
  bool Open() { return test_->Open(); }
  void Save() { EXPECT_TRUE(test_->Save()); }
  int Value(const wchar_t* property) { return std::stoi(test_->Value(property)); }

  ControlRef Control(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return test_->Control(id, where);
  }
  std::wstring Text(int id) { return Control(id).Text(); }
  bool IsShown(int id) { return CWnd(Control(id).Window()).IsShown(); }
  void Type(int id, const wchar_t* text) {
    Control(id).Focus();
    Control(id).SetText(text);
  }
  void TypeAndLeave(int id, const wchar_t* text) {
    Type(id, text);
    test_->TakeFocusAway();
  }
  void TakeChoiceAway(int combo) { SendMessageW(Control(combo).Window(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0); }
  std::vector<int> Enabled(std::span<const int> controls) { return test_->Enabled(controls); }
  void ExpectPaper(const wchar_t* name, const wchar_t* width, const wchar_t* height) {
    EXPECT_EQ(name, Text(IDC_PAPER_FORMAT));
    EXPECT_EQ(width, Text(IDC_PAPER_WIDTH));
    EXPECT_EQ(height, Text(IDC_PAPER_HEIGHT));
  }
  void ExpectScaled(const wchar_t* width, const wchar_t* height) {
    EXPECT_EQ(width, Text(IDC_PAPER_SCALED_WIDTH));
    EXPECT_EQ(height, Text(IDC_PAPER_SCALED_HEIGHT));
  }
  void ExpectMargins(const wchar_t* left, const wchar_t* top) {
    EXPECT_EQ(left, Text(IDC_PAPER_MARGIN_LEFT));
    EXPECT_EQ(top, Text(IDC_PAPER_MARGIN_TOP));
  }
  int Limit(int edit) { return static_cast<int>(SendMessageW(Control(edit).Window(), EM_GETLIMITTEXT, 0, 0)); }
  bool IsPictureLoaded(int id) {
    auto* const picture = dynamic_cast<CImageStatic*>(CSubclassedControl::FromHandle(Control(id).Window()));
    return picture && picture->IsLoaded();
  }

  RegistryValue country_{HKEY_CURRENT_USER, L"Control Panel\\International", L"iCountry"};
  unsigned boxes_ = MessageBoxCount();
  std::unique_ptr<PageUnderTest> test_;
};

TEST_F(PaperPage, WhatItOnlyReadsIsNotWritten) {
  Set({{L"Fields", 0x13}, {L"InternalUse", 0x10010}, {L"PrintOutput", 0x10002}});
  const auto before = test_->AllValues();
  ASSERT_TRUE(Open());
  Save();
  EXPECT_EQ(PageUnderTest::Values(), test_->ChangesSince(before)) << "not even the 16 bits of it";
}

// --- Papers --------------------------------------------------------------------------------------------------------

TEST_F(PaperPage, TheListHasThePapersAndTheUserDefinedOne) {
  ASSERT_TRUE(Open());
  std::vector<std::wstring> names;
  for (const Paper& paper : kPapers) names.push_back(paper.name);
  names.push_back(kUserDefined);
  EXPECT_EQ(names, Control(IDC_PAPER_FORMAT).Rows());
}

TEST_F(PaperPage, EveryPaperIsShownWithItsMeasuresAndKept) {
  for (const Paper& paper : kPapers) {
    NewPage();
    test_->Set(L"PaperSize", paper.number);
    ASSERT_TRUE(Open());
    ExpectPaper(paper.name, paper.width, paper.height);
    Save();
    EXPECT_EQ(paper.number, Value(L"PaperSize"));
    EXPECT_EQ(0x13, Value(L"Fields"));
  }
}

TEST_F(PaperPage, EveryPaperCanBeChosen) {
  for (const Paper& paper : kPapers) {
    NewPage();
    SetUserDefined(1000, 2000);
    ASSERT_TRUE(Open());
    Control(IDC_PAPER_FORMAT).Select(paper.name);
    ExpectPaper(paper.name, paper.width, paper.height);
    Save();
    EXPECT_EQ(paper.number, Value(L"PaperSize"));
    EXPECT_EQ(0x13, Value(L"Fields"));
    EXPECT_EQ(1000, Value(L"PaperWidth")) << "has no meaning and stays";
    EXPECT_EQ(2000, Value(L"PaperLength"));
  }
}

TEST_F(PaperPage, ChoosingTheUserDefinedPaperEmptiesItsMeasures) {
  ASSERT_TRUE(Open());
  Control(IDC_PAPER_FORMAT).Select(kUserDefined);
  ExpectPaper(kUserDefined, L"", L"");
  Save();
  ExpectPaper(kUserDefined, L"210", L"297");
  EXPECT_EQ(256, Value(L"PaperSize"));
  EXPECT_EQ(0x1F, Value(L"Fields"));
  EXPECT_EQ(2100, Value(L"PaperWidth"));
  EXPECT_EQ(2970, Value(L"PaperLength"));
}

TEST_F(PaperPage, AUserDefinedPaperShowsItsOwnMeasures) {
  SetUserDefined(1003, 2005);
  ASSERT_TRUE(Open());
  ExpectPaper(kUserDefined, L"100.3", L"200.5");
}

TEST_F(PaperPage, WithoutAPaperOrWithAnUnknownOneTheDefaultIsShownAndStored) {
  const struct { int fields, number; } rows[] = {{0x2, 77}, {0x2, 0}, {0x2, 257}, {0x1D, 8}, {0, 8}};
  for (const auto& [country, paper] : {std::pair(L"49", kPapers[8]), std::pair(L"1", kPapers[0])}) {
    country_.Set(country);
    for (const auto& row : rows) {
      NewPage();
      Set({{L"Fields", row.fields}, {L"PaperSize", row.number}});
      ASSERT_TRUE(Open());
      ExpectPaper(paper.name, paper.width, paper.height);
      Save();
      EXPECT_EQ(paper.number, Value(L"PaperSize"));
      EXPECT_EQ(0x13, Value(L"Fields"));
    }
  }
}

TEST_F(PaperPage, TheNumberOfTheUserDefinedPaperShowsItsMeasuresWhateverTheMaskSays) {
  SetUserDefined(1000, 2000);
  test_->Set(L"Fields", 0x1D);
  ASSERT_TRUE(Open());
  ExpectPaper(kA4, L"100", L"200");
}

TEST_F(PaperPage, WithoutAChoiceTheDefaultIsStored) {
  test_->Set(L"PaperSize", 8);
  ASSERT_TRUE(Open());
  TakeChoiceAway(IDC_PAPER_FORMAT);
  Save();
  EXPECT_EQ(9, Value(L"PaperSize"));
}

// --- Size ----------------------------------------------------------------------------------------------------------

TEST_F(PaperPage, ASizeThatIsTypedSelectsItsPaper) {
  SetUserDefined(1000, 2000);
  ASSERT_TRUE(Open());
  TypeAndLeave(IDC_PAPER_WIDTH, L"210");
  EXPECT_EQ(kUserDefined, Text(IDC_PAPER_FORMAT));
  Type(IDC_PAPER_HEIGHT, L"297");
  EXPECT_EQ(kUserDefined, Text(IDC_PAPER_FORMAT)) << "not yet left";
  test_->TakeFocusAway();
  ExpectPaper(kA4, L"210", L"297");
  TypeAndLeave(IDC_PAPER_WIDTH, L"297");
  TypeAndLeave(IDC_PAPER_HEIGHT, L"420.04");  // 420.0 when rounded
  ExpectPaper(kA3, L"297", L"420.04");
  TypeAndLeave(IDC_PAPER_WIDTH, L"297.05");  // 297.1
  ExpectPaper(kUserDefined, L"297.05", L"420.04");
  Save();
  EXPECT_EQ(256, Value(L"PaperSize"));
  EXPECT_EQ(2971, Value(L"PaperWidth"));
  EXPECT_EQ(4200, Value(L"PaperLength"));
}

TEST_F(PaperPage, AnEditThatIsLeftUntouchedSelectsThePaperOfItsSize) {
  SetUserDefined(2100, 2970);
  ASSERT_TRUE(Open());
  EXPECT_EQ(kUserDefined, Text(IDC_PAPER_FORMAT));
  Control(IDC_PAPER_WIDTH).Focus();
  test_->TakeFocusAway();
  EXPECT_EQ(kA4, Text(IDC_PAPER_FORMAT));
}

TEST_F(PaperPage, ASizeBeyondItsLimitsIsReplacedByThatOfTheDefaultPaper) {
  const struct {
    const wchar_t *country, *name, *width, *height;
  } defaults[] = {{L"49", kA4, L"210", L"297"}, {L"1", L"Letter 8 1/2 x 11 inch", L"215.9", L"279.4"}};
  for (const auto& row : defaults) {
    country_.Set(row.country);
    for (const wchar_t* typed : {L"0.5", L"0.94", L"0", L"", L"-7", L"abc", L"6553.6", L"1e9"}) {
      SCOPED_TRACE(testing::PrintToString(std::wstring(typed)));
      NewPage();
      SetUserDefined(1000, 2000);
      ASSERT_TRUE(Open());
      TypeAndLeave(IDC_PAPER_WIDTH, typed);
      ExpectPaper(kUserDefined, row.width, L"200");
      TypeAndLeave(IDC_PAPER_HEIGHT, typed);
      ExpectPaper(row.name, row.width, row.height);
    }
  }
}

TEST_F(PaperPage, SavingReplacesASizeThatWasNotLeft) {
  SetUserDefined(1000, 2000);
  ASSERT_TRUE(Open());
  Type(IDC_PAPER_WIDTH, L"0.5");
  Save();
  EXPECT_EQ(L"210", Text(IDC_PAPER_WIDTH));
  EXPECT_EQ(2100, Value(L"PaperWidth"));
  Type(IDC_PAPER_HEIGHT, L"7000");
  Control(IDC_PAPER_HEIGHT).Focus();
  Save();
  EXPECT_EQ(2970, Value(L"PaperLength"));
  EXPECT_EQ(kUserDefined, Text(IDC_PAPER_FORMAT)) << "only leaving looks for the paper";
}

TEST_F(PaperPage, SizesWithinTheirLimitsStay) {
  SetUserDefined(1000, 2000);
  ASSERT_TRUE(Open());
  for (const wchar_t* typed : {L"1", L"0.96", L"6553.5", L"6553.54", L"100.25"}) {
    TypeAndLeave(IDC_PAPER_WIDTH, typed);
    TypeAndLeave(IDC_PAPER_HEIGHT, typed);
    ExpectPaper(kUserDefined, typed, typed);
  }
}

TEST_F(PaperPage, EditsEndTyping) {
  ASSERT_TRUE(Open());
  const std::pair<int, int> limits[] = {{1016, 10}, {1018, 10}, {1023, 3}, {1024, 3},
                                        {1021, 6},  {1026, 10}, {1027, 10}};
  for (const auto& [edit, limit] : limits) EXPECT_EQ(limit, Limit(edit)) << edit;
}

// --- Orientation ---------------------------------------------------------------------------------------------------

TEST_F(PaperPage, OrientationCountsWhereTheMaskHasIt) {
  Set({{L"Fields", 0x1E}, {L"Orientation", 2}});
  ASSERT_TRUE(Open());
  EXPECT_TRUE(Control(IDC_PAPER_PORTRAIT).IsChecked());
  EXPECT_FALSE(Control(IDC_PAPER_LANDSCAPE).IsChecked());
  Save();
  EXPECT_EQ(1, Value(L"Orientation"));
  EXPECT_EQ(0x13, Value(L"Fields"));
}

TEST_F(PaperPage, WithoutAnOrientationSavingFailsAndStoresNothingBehind) {
  Set({{L"Orientation", 2}, {L"PaperBorder", 25}});
  ASSERT_TRUE(Open());
  CButton(Page().Item(IDC_PAPER_LANDSCAPE)).SetCheck(false);
  Control(IDC_PAPER_SCALE_WIDTH).SetText(L"33");
  Control(IDC_PAPER_BORDER).Select(5);
  EXPECT_FALSE(Page().UpdateData(true));
  EXPECT_EQ(1, Page().orientation);
  EXPECT_EQ(80, Page().scaleWidth);
  EXPECT_EQ(25, Page().border);
  Popups popups;
  popups.ExpectBox(InvalidDataBox(L""));
  EXPECT_FALSE(Page().OnKillActive());
  ++boxes_;  // of its base
}

// --- Scaling -------------------------------------------------------------------------------------------------------

TEST_F(PaperPage, ScaleCountsWhereTheMaskHasIt) {
  Set({{L"Fields", 0x0F}, {L"Scale", 50}});
  ASSERT_TRUE(Open());
  EXPECT_EQ(L"100", Text(IDC_PAPER_SCALE));
  Save();
  EXPECT_EQ(100, Value(L"Scale"));
  EXPECT_EQ(0x13, Value(L"Fields"));
}

TEST_F(PaperPage, TheScaledSizeIsShown) {
  ASSERT_TRUE(Open());
  ExpectScaled(L"168", L"267.3");
  Type(IDC_PAPER_SCALE_WIDTH, L"33");
  ExpectScaled(L"69.3", L"267.3");
  Type(IDC_PAPER_SCALE_HEIGHT, L"100");
  ExpectScaled(L"69.3", L"297");
  Control(IDC_PAPER_FORMAT).Select(L"Letter 8 1/2 x 11 inch");
  ExpectScaled(L"71.247", L"279.4");
  Type(IDC_PAPER_WIDTH, L"100");
  ExpectScaled(L"71.247", L"279.4");  // not yet left
  test_->TakeFocusAway();
  ExpectScaled(L"33", L"279.4");
  TypeAndLeave(IDC_PAPER_HEIGHT, L"50.55");
  ExpectScaled(L"33", L"50.6");
  Control(IDC_PAPER_FORMAT).Select(kUserDefined);
  ExpectScaled(L"0", L"0");
}

TEST_F(PaperPage, TheScalingBeyondItsLimitsIsReplacedWhenLeft) {
  ASSERT_TRUE(Open());
  for (const wchar_t* typed : {L"0", L"101", L"150", L"", L"abc", L"0.9"}) {
    for (const int id : {IDC_PAPER_SCALE_WIDTH, IDC_PAPER_SCALE_HEIGHT}) {
      TypeAndLeave(id, typed);
      EXPECT_EQ(L"100", Text(id)) << testing::PrintToString(std::wstring(typed));
    }
    ExpectScaled(L"210", L"297");
  }
}

TEST_F(PaperPage, TheHeightIsCorrectedOnlyWhenItIsLeft) {
  ASSERT_TRUE(Open());
  Type(IDC_PAPER_SCALE_HEIGHT, L"150");
  Save();
  EXPECT_EQ(150, Value(L"PaperScaleHeight"));
  ExpectScaled(L"168", L"445.5");
}

TEST_F(PaperPage, TheRatioIsKeptWhereBothAreEqual) {
  for (const int height : {80, 81}) {
    NewPage();
    test_->Set(L"PaperScaleHeight", height);
    ASSERT_TRUE(Open());
    EXPECT_EQ(height == 80, Control(IDC_PAPER_KEEP_RATIO).IsChecked());
    EXPECT_EQ(height == 81, Control(IDC_PAPER_SCALE_HEIGHT).IsEnabled());
  }
}

TEST_F(PaperPage, WithTheRatioTheHeightFollowsTheWidth) {
  ASSERT_TRUE(Open());
  Control(IDC_PAPER_KEEP_RATIO).Click();
  EXPECT_EQ(L"80", Text(IDC_PAPER_SCALE_HEIGHT));
  EXPECT_FALSE(Control(IDC_PAPER_SCALE_HEIGHT).IsEnabled());
  ExpectScaled(L"168", L"237.6");
  Type(IDC_PAPER_SCALE_WIDTH, L"50");
  EXPECT_EQ(L"50", Text(IDC_PAPER_SCALE_HEIGHT));
  ExpectScaled(L"105", L"148.5");
  TypeAndLeave(IDC_PAPER_SCALE_WIDTH, L"0");
  EXPECT_EQ(L"100", Text(IDC_PAPER_SCALE_HEIGHT));
  Type(IDC_PAPER_SCALE_WIDTH, L"101");
  Save();
  EXPECT_EQ(100, Value(L"PaperScaleWidth"));
  EXPECT_EQ(100, Value(L"PaperScaleHeight"));
  ExpectScaled(L"210", L"297");
  Control(IDC_PAPER_KEEP_RATIO).Click();
  EXPECT_TRUE(Control(IDC_PAPER_SCALE_HEIGHT).IsEnabled());
  Type(IDC_PAPER_SCALE_WIDTH, L"50");
  EXPECT_EQ(L"100", Text(IDC_PAPER_SCALE_HEIGHT));
}

// --- Margins -------------------------------------------------------------------------------------------------------

TEST_F(PaperPage, CentredClosesTheMargins) {
  SetMargins(125, 3);
  for (const int centred : {0, 1, 7}) {
    test_->Set(L"PaperMarginCenter", centred);
    PageUnderTest page(kPageId);
    page.Set(L"PaperMarginCenter", centred);
    ASSERT_TRUE(page.Open());
    for (const int id : {IDC_PAPER_MARGIN_LEFT, IDC_PAPER_MARGIN_TOP})
      EXPECT_EQ(centred == 0, page.Control(id).IsEnabled()) << centred;
  }
  ASSERT_TRUE(Open());
  ExpectMargins(L"12.5", L"0.3");
  Control(IDC_PAPER_CENTERED).Click();
  EXPECT_TRUE(Control(IDC_PAPER_MARGIN_LEFT).IsEnabled());
  EXPECT_TRUE(Control(IDC_PAPER_MARGIN_TOP).IsEnabled());
  Control(IDC_PAPER_CENTERED).Click();
  EXPECT_FALSE(Control(IDC_PAPER_MARGIN_LEFT).IsEnabled());
  Save();
  EXPECT_EQ(125, Value(L"PaperMarginLeft"));
  EXPECT_EQ(3, Value(L"PaperMarginTop"));
}

TEST_F(PaperPage, AMarginThatThePaperHasNoRoomForBecomesNone) {
  ASSERT_TRUE(Open());
  for (const wchar_t* typed : {L"210", L"209.9", L"210.04", L"0"}) {
    TypeAndLeave(IDC_PAPER_MARGIN_LEFT, typed);
    EXPECT_EQ(typed, Text(IDC_PAPER_MARGIN_LEFT));
  }
  for (const wchar_t* typed : {L"210.1", L"-1", L"9999"}) {
    TypeAndLeave(IDC_PAPER_MARGIN_LEFT, typed);
    EXPECT_EQ(L"0", Text(IDC_PAPER_MARGIN_LEFT));
  }
  TypeAndLeave(IDC_PAPER_MARGIN_TOP, L"297");
  EXPECT_EQ(L"297", Text(IDC_PAPER_MARGIN_TOP));
  TypeAndLeave(IDC_PAPER_MARGIN_TOP, L"297.1");
  EXPECT_EQ(L"0", Text(IDC_PAPER_MARGIN_TOP));
}

TEST_F(PaperPage, ASmallerPaperTakesItsMargins) {
  SetMargins(2000, 2900);
  ASSERT_TRUE(Open());
  Control(IDC_PAPER_FORMAT).Select(kA3);
  ExpectMargins(L"200", L"290");
  Control(IDC_PAPER_FORMAT).Select(L"A5 148 x 210 mm");
  ExpectMargins(L"0", L"0");
}

TEST_F(PaperPage, ASizeThatIsLeftChecksItsOwnMargin) {
  SetMargins(2000, 2900);
  ASSERT_TRUE(Open());
  TypeAndLeave(IDC_PAPER_WIDTH, L"199");
  ExpectMargins(L"0", L"290");
  TypeAndLeave(IDC_PAPER_HEIGHT, L"289.9");
  ExpectMargins(L"0", L"0");
}

TEST_F(PaperPage, ASizeThatIsLeftIsReplacedBeforeItsMarginIsChecked) {
  SetMargins(125, 30);
  ASSERT_TRUE(Open());
  for (const int id : {IDC_PAPER_WIDTH, IDC_PAPER_HEIGHT}) {
    TypeAndLeave(id, L"0.5");
    ExpectPaper(kA4, L"210", L"297");
    ExpectMargins(L"12.5", L"3");
    ExpectScaled(L"168", L"267.3");
  }
}

TEST_F(PaperPage, TheUserDefinedPaperHasNoRoomForAMarginUntilItsSizeIsTyped) {
  SetMargins(100, 100);
  ASSERT_TRUE(Open());
  Control(IDC_PAPER_FORMAT).Select(kUserDefined);
  ExpectMargins(L"0", L"0");
}

TEST_F(PaperPage, MarginsAreNotCheckedByLoadingAndSaving) {
  SetMargins(5000, 6000);
  ASSERT_TRUE(Open());
  ExpectMargins(L"500", L"600");
  Type(IDC_PAPER_MARGIN_LEFT, L"700");
  Save();
  EXPECT_EQ(7000, Value(L"PaperMarginLeft"));
  EXPECT_EQ(6000, Value(L"PaperMarginTop"));
}

// --- Other ---------------------------------------------------------------------------------------------------------

TEST_F(PaperPage, OtherIsShownWhereTheHostOffersIt) {
  for (const int offered : {0, 1, 2, 3, 4}) {
    NewPage();
    test_->Set(L"PrintOutput", offered);
    ASSERT_TRUE(Open());
    for (const int id : kOtherControls) EXPECT_EQ((offered & 2) != 0, IsShown(id)) << offered << ' ' << id;
  }
}

TEST_F(PaperPage, DuplexHasThreeKinds) {
  const struct {
    int value;
    bool duplex, upperEdge;
  } rows[] = {{1, false, false}, {2, true, false}, {3, true, true}, {0, true, false}, {9, true, false}};
  for (const auto& row : rows) {
    NewPage();
    Set({{L"PrintOutput", 2}, {L"Duplex", row.value}});
    ASSERT_TRUE(Open());
    EXPECT_EQ(row.duplex, Control(IDC_PAPER_DUPLEX).IsChecked()) << row.value;
    EXPECT_EQ(row.upperEdge, Control(IDC_PAPER_UPPER_EDGE).IsChecked()) << row.value;
    EXPECT_EQ(row.duplex, Control(IDC_PAPER_UPPER_EDGE).IsEnabled()) << row.value;
  }
}

TEST_F(PaperPage, WithoutDuplexThereIsNoBinding) {
  Set({{L"PrintOutput", 2}, {L"Duplex", 3}});
  ASSERT_TRUE(Open());
  Control(IDC_PAPER_DUPLEX).Click();
  EXPECT_FALSE(Control(IDC_PAPER_UPPER_EDGE).IsChecked());
  EXPECT_FALSE(Control(IDC_PAPER_UPPER_EDGE).IsEnabled());
  Save();
  EXPECT_EQ(1, Value(L"Duplex"));
  Control(IDC_PAPER_DUPLEX).Click();
  EXPECT_FALSE(Control(IDC_PAPER_UPPER_EDGE).IsChecked());
  EXPECT_TRUE(Control(IDC_PAPER_UPPER_EDGE).IsEnabled());
  Save();
  EXPECT_EQ(2, Value(L"Duplex"));
  Control(IDC_PAPER_UPPER_EDGE).Click();
  Save();
  EXPECT_EQ(3, Value(L"Duplex"));
}

TEST_F(PaperPage, WithoutListsOfBinsTheBinsStay) {
  Set({{L"PrintOutput", 2}, {L"PaperSource", 7}, {L"PaperDestination", 9}});
  ASSERT_TRUE(Open());
  EXPECT_EQ(0, Control(IDC_PAPER_SOURCE).RowCount());
  EXPECT_EQ(0, Control(IDC_PAPER_DESTINATION).RowCount());
  Save();
  EXPECT_EQ(7, Value(L"PaperSource"));
  EXPECT_EQ(9, Value(L"PaperDestination"));
  EXPECT_EQ(0x13, Value(L"Fields")) << "no source";
}

// A name that leaves no room for its end.
constexpr std::wstring_view kLongName = L"A name of 24 letters is.";
constexpr PaperBin BinWithLongName() {
  PaperBin bin{{}, 15};
  kLongName.copy(bin.name, std::size(bin.name));
  return bin;
}

constexpr PaperBin kSources[] = {{L"Upper", 1}, {L"Lower", 2}, BinWithLongName(), {}};
constexpr PaperBin kDestinations[] = {{L"Face down", 4}, {L"Face up", 5}, {}};

TEST_F(PaperPage, BinsAreChosenByName) {
  Set({{L"PrintOutput", 2}, {L"PaperSource", 2}, {L"PaperDestination", 99}});
  Page().sources = kSources;
  Page().destinations = kDestinations;
  ASSERT_TRUE(Open());
  static_assert(kLongName.size() == std::size(PaperBin().name));
  EXPECT_EQ((std::vector<std::wstring>{L"Upper", L"Lower", std::wstring(kLongName)}), Control(IDC_PAPER_SOURCE).Rows());
  EXPECT_EQ((std::vector<std::wstring>{L"Face down", L"Face up"}), Control(IDC_PAPER_DESTINATION).Rows());
  EXPECT_EQ(L"Lower", Text(IDC_PAPER_SOURCE));
  EXPECT_EQ(L"Face down", Text(IDC_PAPER_DESTINATION)) << "the first, since none has the number";
  Save();
  EXPECT_EQ(2, Value(L"PaperSource"));
  EXPECT_EQ(4, Value(L"PaperDestination"));
  EXPECT_EQ(0x213, Value(L"Fields"));
  Control(IDC_PAPER_SOURCE).Select(2);
  Control(IDC_PAPER_DESTINATION).Select(1);
  Save();
  EXPECT_EQ(15, Value(L"PaperSource"));
  EXPECT_EQ(5, Value(L"PaperDestination"));
}

TEST_F(PaperPage, WithoutAChoiceABinStays) {
  Set({{L"PaperSource", 2}, {L"PaperDestination", 5}});
  Page().sources = kSources;
  Page().destinations = kDestinations;
  ASSERT_TRUE(Open());
  TakeChoiceAway(IDC_PAPER_SOURCE);
  TakeChoiceAway(IDC_PAPER_DESTINATION);
  Save();
  EXPECT_EQ(2, Value(L"PaperSource"));
  EXPECT_EQ(5, Value(L"PaperDestination"));
  EXPECT_EQ(0x13, Value(L"Fields"));
}

// --- Start ---------------------------------------------------------------------------------------------------------

int comboThatFails = 0;
const auto realSendMessage = RealFunction("user32.dll", "SendMessageW", &SendMessageW);

LRESULT WINAPI WithFullCombo(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == CB_ADDSTRING && GetDlgCtrlID(window) == comboThatFails) return CB_ERRSPACE;
  return realSendMessage(window, message, wParam, lParam);
}

TEST_F(PaperPage, AListThatCannotBeFilledEndsTheStart) {
  for (const int combo : {0, IDC_PAPER_FORMAT, IDC_PAPER_BORDER, IDC_PAPER_SOURCE, IDC_PAPER_DESTINATION}) {
    NewPage();
    Page().sources = kSources;
    Page().destinations = kDestinations;
    comboThatFails = combo;
    ASSERT_GT(PatchImport("user32.dll", "SendMessageW", reinterpret_cast<void*>(&WithFullCombo)), 0);
    const bool started = Open();
    RestoreImport("user32.dll", "SendMessageW");
    EXPECT_EQ(combo == 0, started) << combo;
  }
}

TEST_F(PaperPage, PicturesAreThere) {
  ASSERT_TRUE(Open());
  for (const int id : {1162, 1246, 1247}) EXPECT_TRUE(IsPictureLoaded(id)) << id;
  ExpectPictures(test_->Page(), {{1162, Pictures::kSignWarning16}});
}

TEST_F(PaperPage, PicturesStandAsTheirPaper) {
  ASSERT_TRUE(Open());
  for (const int id : {1246, 1247}) {
    CWnd(Control(id).Window()).Redraw();
    const Picture picture = Capture(Control(id).Window());
    std::set<int> rows, columns;  // with something of the picture
    for (int y = 0; y < picture.height; ++y)
      for (int x = 0; x < picture.width; ++x)
        if (picture.At(x, y) != picture.At(0, 0)) rows.insert(y), columns.insert(x);
    ASSERT_GT(columns.size(), 10u) << id;
    EXPECT_EQ(id == 1246, rows.size() > columns.size()) << id;
    EXPECT_EQ(id == 1247, rows.size() < columns.size()) << id;
  }
}

// --- Layout of the host --------------------------------------------------------------------------------------------

TEST_F(PaperPage, ALayoutThatTheHostSetsIsClosedAndSaysSo) {
  for (const int use : {0, 1, 2, 3, 4, 16, 21, 0xFFFF}) {
    NewPage();
    test_->Set(L"InternalUse", use);
    ASSERT_TRUE(Open());
    const bool open = (use & 2) == 0;
    const std::vector<int> all(std::begin(kLayoutControls), std::end(kLayoutControls));
    EXPECT_EQ(open ? all : std::vector<int>(), Enabled(kLayoutControls)) << use;
    for (const int id : {1244, 1162}) EXPECT_EQ(!open, IsShown(id)) << use;
    for (const int id : {1059, 1026, 1027, 1004}) EXPECT_TRUE(Control(id).IsEnabled()) << use;
  }
  EXPECT_EQ(L"Change the page layout via application (pages_tests.exe)", Text(1244));
}

TEST_F(PaperPage, EachTabObeysTheHostInItsOwnSet) {
  for (const int set : {0, 1})
    for (const bool own : {false, true}) {
      PageUnderTest test(kPageId, set);
      for (const int each : {0, 1}) {
        const int bits = (each == set) == own ? 2 : 0;
        test.Sheet().properties.InternalUse[each].SetLong(bits);
        test.Sheet().properties.PrintOutput[each].SetLong(bits);
      }
      ASSERT_TRUE(test.Open());
      EXPECT_EQ(!own, test.Control(IDC_PAPER_WIDTH).IsEnabled()) << set;
      EXPECT_EQ(own, CWnd(test.Control(IDC_PAPER_DUPLEX).Window()).IsShown()) << set;
    }
}

TEST_F(PaperPage, WhatIsClosedStaysClosed) {
  test_->Set(L"InternalUse", 2);
  ASSERT_TRUE(Open());
  Control(IDC_PAPER_CENTERED).Click();
  Page().OnSetActive();
  Page().OnSetActive();
  Page().SetCockpitValues({});
  EXPECT_EQ(std::vector<int>(), Enabled(kLayoutControls));
}

TEST_F(PaperPage, ALayoutThatTheHostSetsGoesBackAsItCame) {
  Set({{L"InternalUse", 2}, {L"Orientation", 2}, {L"Fields", 0x13}, {L"Scale", 55}, {L"PaperScaleHeight", 150}});
  const auto before = test_->AllValues();
  ASSERT_TRUE(Open());
  Save();
  EXPECT_EQ(PageUnderTest::Values(), test_->ChangesSince(before));
}

TEST_F(PaperPage, TheCockpitSeesAndSetsNoLayoutOfTheHost) {
  Set({{L"InternalUse", 2}, {L"Orientation", 2}, {L"PaperBorder", 25}});
  Values values{.paperSize = 1, .orientation = 3, .scaleWidth = 4, .scaleHeight = 5, .scale = 6, .marginCenter = 7};
  Page().GetCockpitValues(values);
  EXPECT_EQ(1, values.paperSize);
  EXPECT_EQ(3, values.orientation);
  EXPECT_EQ(4, values.scaleWidth);
  EXPECT_EQ(5, values.scaleHeight);
  EXPECT_EQ(6, values.scale);
  EXPECT_EQ(0, values.marginCenter);
  EXPECT_EQ(25, values.border);
  const auto before = test_->AllValues();
  Page().SetCockpitValues({1, 1, 1, 1, 1, 1, 600});
  Page().WriteProperties();
  EXPECT_EQ((PageUnderTest::Values{{{0, L"PaperMarginCenter"}, L"1"}, {{0, L"PaperBorder"}, L"600"}}),
            test_->ChangesSince(before));
}

// --- In the word processor -----------------------------------------------------------------------------------------

using PaperPageInWord = PaperPage;

TEST_F(PaperPageInWord, TheLayoutIsClosedAndNotShown) {
  if (!IsInWord()) return RunInWord();
  SetMargins(125, 3);
  test_->Set(L"PaperScaleHeight", 80);
  ASSERT_TRUE(Open());
  EXPECT_EQ(std::vector<int>(), Enabled(kLayoutControls));
  for (const int id : {1000, 1016, 1018, 1023, 1024, 1021, 1056, 1058}) EXPECT_EQ(L"", Text(id)) << id;
  EXPECT_EQ(0, Control(IDC_PAPER_FORMAT).RowCount());
  for (const int id : {1001, 1002, 1060}) EXPECT_FALSE(Control(id).IsChecked()) << id;
  for (const int id : {1016, 1018, 1023, 1024, 1021}) EXPECT_LT(10, Limit(id)) << id;
  for (const int id : {1026, 1027}) EXPECT_EQ(10, Limit(id)) << id;
  EXPECT_TRUE(IsShown(1244));
  EXPECT_TRUE(IsShown(1162));
  EXPECT_EQ(L"Change the page layout via application (WINWORD.EXE)", Text(1244));
  ExpectMargins(L"12.5", L"0.3");
  EXPECT_EQ(10, Control(IDC_PAPER_BORDER).RowCount());
}

TEST_F(PaperPageInWord, MarksForTheHostAreStoredInPlaceOfTheLayout) {
  if (!IsInWord()) return RunInWord();
  for (const int number : {9, 256, 77}) {
    NewPage();
    Set({{L"Fields", 0x201}, {L"PaperSize", number}, {L"PaperWidth", 11}, {L"PaperLength", 12}, {L"Scale", 0}});
    ASSERT_TRUE(Open());
    TypeAndLeave(IDC_PAPER_MARGIN_LEFT, L"12.25");
    TypeAndLeave(IDC_PAPER_MARGIN_TOP, L"9");
    Control(IDC_PAPER_BORDER).Select(9);
    for (int times = 0; times < 2; ++times) {
      Save();
      EXPECT_EQ(256, Value(L"PaperSize"));
      EXPECT_EQ(0x21F, Value(L"Fields"));
      EXPECT_EQ(2159, Value(L"PaperWidth"));
      EXPECT_EQ(2000, Value(L"PaperLength"));
      EXPECT_EQ(2, Value(L"Orientation"));
      EXPECT_EQ(100, Value(L"PaperScaleWidth"));
      EXPECT_EQ(100, Value(L"PaperScaleHeight"));
      EXPECT_EQ(0, Value(L"Scale")) << "stays";
      EXPECT_EQ(123, Value(L"PaperMarginLeft"));
      EXPECT_EQ(90, Value(L"PaperMarginTop"));
      EXPECT_EQ(600, Value(L"PaperBorder"));
      EXPECT_EQ(1, Value(L"Duplex"));
      for (const int id : {1016, 1018, 1023, 1021}) EXPECT_EQ(L"", Text(id)) << id << " is not corrected";
    }
  }
}

TEST_F(PaperPageInWord, MarginsAreNotChecked) {
  if (!IsInWord()) return RunInWord();
  ASSERT_TRUE(Open());
  TypeAndLeave(IDC_PAPER_MARGIN_LEFT, L"5000");
  TypeAndLeave(IDC_PAPER_MARGIN_TOP, L"5000");
  ExpectMargins(L"5000", L"5000");
}

TEST_F(PaperPageInWord, TheCockpitSeesAndSetsNoLayout) {
  if (!IsInWord()) return RunInWord();
  Values values{.paperSize = 77, .scale = 66};
  Page().GetCockpitValues(values);
  EXPECT_EQ(77, values.paperSize);
  EXPECT_EQ(66, values.scale);
  const auto before = test_->AllValues();
  Page().SetCockpitValues({1, 1, 1, 1, 1, 1, 600});
  Page().WriteProperties();
  EXPECT_EQ((PageUnderTest::Values{{{0, L"PaperMarginCenter"}, L"1"}, {{0, L"PaperBorder"}, L"600"}}),
            test_->ChangesSince(before));
}

}  // namespace
