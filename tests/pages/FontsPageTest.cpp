#include <algorithm>

#include "driver/Picture.h"
#include "driver/Popups.h"
#include "MessageIds.h"
#include "pages/CNemUIPdfFontsPage.h"
#include "PageTable.h"
#include "Pictures.h"
#include "support/Accessible.h"
#include "support/ControlPictures.h"
#include "support/FakeFormatPage.h"
#include "support/PrintText.h"
#include "support/TracedThread.h"

namespace {

using Names = std::vector<std::wstring>;

constexpr int kPageId = kFontsPage;
constexpr int kRadioIds[] = {1054, 1055, 1056, 1057};
constexpr int kAllControls[] = {1054, 1055, 1056, 1057, 1277, 1032, 1278, 1053, 1178, 1051, 1052, 1179};

const std::wstring kLicence =
    L"Please observe the license conditions\r\nof the character fonts' licensor when using this option.";
const std::wstring kForbidden = L"You have selected a licenced font. It is forbidden to embed those fonts.";
const std::wstring kTooMany = L"You have selected to many fonts.\r\nOne list must have less than 1024 characters.";

// A list without a font is a blank, so that saving leaves it alone.
const PageTable kTable = {
    .name = "Fonts",
    .pageId = kPageId,
    .helpLink = IDC_FONTS_HELP_LINK,
    .rows = {Radios(L"FontsEmbedded", {1054, 1055, 1057, 1056})
                 .Stores({{4, L"0", 0}, {-1, L"0", 0}, {65537, L"1", 1}, {0xFFFF, L"0", 0}})
                 .Given({{L"FontsEmbeddedOrNoEmbeddedList", L" "}})
                 .ChosenByHand()
                 .LockedBy<&AdminSettings::FontsEmbedded_Override>({1054, 1055, 1056, 1057})
                 .Tracked<&FontsCockpitValues::fontsEmbedded>()},
};
const PageTableEntry entry(kTable);

struct TestFont {
  std::wstring name;
  unsigned permission = 0;
  uint32_t kinds = kTrueTypeFont;
  int characterSet = 0;
};

constexpr unsigned kRestricted = 0x0002, kBitmapOnly = 0x0200, kPreview = 0x0004;

// The fonts of most tests: a standard one, two others, and those that may not be embedded.
const std::vector<TestFont> kFonts = {
    {L"Restrictra", kRestricted}, {L"Garamond"}, {L"Arial"}, {L"Bitmappa", kBitmapOnly}, {L"Calibri"}};
const std::vector<TestFont> kFreeFonts = {{L"Delta"}, {L"Beta"}, {L"Alpha"}, {L"Gamma"}};

std::vector<uint8_t> Os2TableWith(unsigned permission) {
  std::vector<uint8_t> table(96);
  table[8] = static_cast<uint8_t>(permission >> 8);
  table[9] = static_cast<uint8_t>(permission);
  return table;
}

// The page's fonts; its window does not exist yet.
void GiveFonts(PageUnderTest& test, const std::vector<TestFont>& fonts) {
  test.As<CPdfFontsPage>().enumerateFonts = [fonts](HDC, const FontVisitor& visit) {
    for (const TestFont& font : fonts)
      visit({font.name, font.characterSet, font.kinds, [&] { return Os2TableWith(font.permission); }});
  };
}

class FontsPage : public testing::Test {
 protected:
  FontsPage() { test_.Sheet().properties.MsgBoxTitle.SetString(L"Title"); }

  CPdfFontsPage& Page() { return test_.As<CPdfFontsPage>(); }
  void OpenWith(std::vector<TestFont> fonts) {
    Page().enumerateFonts = [this, fonts = std::move(fonts)](HDC, const FontVisitor& visit) {
      ++enumerations_;
      for (const TestFont& font : fonts) {
        visit({font.name, font.characterSet, font.kinds, [this, &font] {
                 ++tablesRead_;
                 return Os2TableWith(font.permission);
               }});
      }
    };
    ASSERT_TRUE(test_.Open());
    test_.Page().OnSetActive();  // the first one, which fills nothing
  }
  void Store(int mode, bool isEmbedList, const wchar_t* names) {
    test_.Set(L"FontsEmbedded", mode);
    test_.Set(L"FontsIsEmbeddedOrNoEmbeddedList", isEmbedList);
    test_.Set(L"FontsEmbeddedOrNoEmbeddedList", names);
  }
  void ExpectStored(int mode, bool isEmbedList, const std::wstring& names) {
    EXPECT_EQ(std::to_wstring(mode), test_.Value(L"FontsEmbedded"));
    EXPECT_EQ(isEmbedList ? L"1" : L"0", test_.Value(L"FontsIsEmbeddedOrNoEmbeddedList"));
    EXPECT_EQ(names, test_.Value(L"FontsEmbeddedOrNoEmbeddedList"));
  }
  void SetVersion(int version) {
    format_.version = version;
    test_.Sheet().pages[kFormatPage] = &format_;
  }

  ControlRef Control(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return test_.Control(id, where);
  }
  // The radios that are on.
  std::vector<int> Radio() {
    std::vector<int> on;
    for (const int id : kRadioIds)
      if (Control(id).IsChecked()) on.push_back(id);
    return on;
  }
  void Choose(int radio, ControlRef::Location where = ControlRef::Location::current()) {
    if (radio != 1054) popups_.ExpectBox({.title = L"Title", .text = kLicence, .icon = MB_ICONINFORMATION}, where);
    Control(radio, where).Click();
  }
  void ExpectForbidden(ControlRef::Location where = ControlRef::Location::current()) {
    popups_.ExpectBox({.title = L"Title", .text = kForbidden, .icon = MB_ICONWARNING}, where);
  }
  Names Embedded() { return Control(1032).Rows(); }
  Names Excluded() { return Control(1053).Rows(); }
  void ExpectLists(const Names& embedded, const Names& excluded) {
    EXPECT_EQ(embedded, Embedded());
    EXPECT_EQ(excluded, Excluded());
  }
  void SelectRows(int list, const Names& names) {
    const Names rows = Control(list).Rows();
    SendMessageW(Control(list).Window(), LB_SETSEL, FALSE, -1);
    for (const std::wstring& name : names) {
      const auto row = std::ranges::find(rows, name);
      ASSERT_NE(rows.end(), row);
      SendMessageW(Control(list).Window(), LB_SETSEL, TRUE, row - rows.begin());
    }
  }
  int SelectedCount(int list) { return static_cast<int>(SendMessageW(Control(list).Window(), LB_GETSELCOUNT, 0, 0)); }
  // As the mouse does it.
  void DoubleClick(int list, const std::wstring& name) {
    Control(list).Select(name);
    const HWND window = Control(list).Window();
    const int row = Control(list).SelectedRow();
    RECT bounds{};
    SendMessageW(window, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&bounds));
    const LPARAM point = MAKELPARAM(bounds.left + 2, (bounds.top + bounds.bottom) / 2);
    SendMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, point);
    SendMessageW(window, WM_LBUTTONUP, 0, point);
  }
  std::vector<int> EnabledControls() { return test_.Enabled(kAllControls); }

  PageUnderTest test_{kPageId};
  FakeFormatPage format_;
  Popups popups_;
  int enumerations_ = 0, tablesRead_ = 0;
};

// --- The installed fonts -------------------------------------------------------------------------------------------

TEST_F(FontsPage, FontsAreListedOnceInTheOrderOfTheAlphabet) {
  OpenWith({{L"Zeta"},
            {L"Alpha"},
            {L"Zeta", kRestricted},  // the same face in another character set
            {L"zeta2"},
            {L"@Alpha"},
            {L"Mac", 0, kTrueTypeFont, 77},
            {L"Raster", 0, 1},
            {L"Device", kRestricted, kDeviceFont}});
  ExpectLists({L"Alpha", L"Device", L"Zeta", L"zeta2"}, {});
  EXPECT_EQ(3, tablesRead_) << "of new faces of TrueType fonts alone";
}

TEST_F(FontsPage, FontsAreListedOnceInThePagesLife) {
  OpenWith(kFreeFonts);
  for (int i = 0; i < 3; ++i) test_.Page().OnSetActive();
  EXPECT_EQ(1, enumerations_);
  ExpectLists({L"Alpha", L"Beta", L"Delta", L"Gamma"}, {});
}

// A list that has no room for one font.
LRESULT CALLBACK RefuseBeta(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  if (message == LB_ADDSTRING && std::wstring_view(reinterpret_cast<const wchar_t*>(lParam)) == L"Beta")
    return LB_ERRSPACE;
  return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(FontsPage, AFontThatCannotBeAddedIsTracedAndTheOthersFollow) {
  TracedThread trace;
  const std::vector<TestFont> fonts = kFreeFonts;
  Page().enumerateFonts = [&](HDC, const FontVisitor& visit) {
    SetWindowSubclass(Control(1032).Window(), RefuseBeta, 1, 0);
    for (const TestFont& font : fonts) visit({font.name, 0, kTrueTypeFont, [] { return Os2TableWith(0); }});
    RemoveWindowSubclass(Control(1032).Window(), RefuseBeta, 1);
  };
  const int32_t warnings = trace.Error().trace->warningCount;
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(warnings + 1, trace.Error().trace->warningCount);
  ExpectLists({L"Alpha", L"Delta", L"Gamma"}, {});
  const auto lines = trace.Lines();
  EXPECT_EQ(1, std::ranges::count_if(lines, [](const std::wstring& line) {
              return line.find(L"FontEnumExCallbackScreen: Font Beta not added") != std::wstring::npos;
            }));
}

TEST_F(FontsPage, RowsShowWhatTheMakerAllows) {
  OpenWith({{L"Device", 0, kDeviceFont},
            {L"Free", 0x000A},
            {L"Restricted", kRestricted},
            {L"Bitmap", kBitmapOnly},
            {L"Preview", 0x0204}});
  const auto images = [&](int id) {
    auto& list = dynamic_cast<CListBoxST&>(*CSubclassedControl::FromHandle(Control(id).Window()));
    EXPECT_TRUE(list.HasImages());
    std::map<std::wstring, int> found;
    for (int row = 0; row < list.Count(); ++row) found[list.RowText(row).Text()] = list.ItemImage(row);
    return found;
  };
  EXPECT_EQ((std::map<std::wstring, int>{{L"Device", 1}, {L"Free", 0}, {L"Preview", 4}}), images(1032));
  EXPECT_EQ((std::map<std::wstring, int>{{L"Bitmap", 3}, {L"Restricted", 2}}), images(1053));
}

// By permission, first for lists that are open, then for those that are not.
constexpr ListPicture kRowPictures[] = {{269, 271}, {272, 274}, {275, 277}, {278, 280}, {281, 283},
                                        {270, 271}, {273, 274}, {276, 277}, {279, 280}, {282, 283}};

TEST_F(FontsPage, RowsShowThePicturesOfTheirPermission) {
  const std::vector<TestFont> fonts{{L"Device", 0, kDeviceFont},
                                    {L"Free"},
                                    {L"Restricted", kRestricted},
                                    {L"Bitmap", kBitmapOnly},
                                    {L"Preview", kPreview}};
  for (const int mode : {2, 1})  // the lists are open in the first
    for (const int id : {1032, 1053}) {
      PageUnderTest test(kPageId);
      test.Set(L"FontsEmbedded", mode);
      GiveFonts(test, fonts);
      ASSERT_TRUE(test.Open());
      ASSERT_EQ(mode == 2, test.Control(id).IsEnabled());
      auto& list = dynamic_cast<CListBoxST&>(*CSubclassedControl::FromHandle(test.Control(id).Window()));
      const auto look = [&] {
        list.Invalidate();
        list.Redraw();
        return Capture(list.Handle()).pixels;
      };
      const auto shown = look();
      ASSERT_TRUE(list.SetImages(kRowPictures, SecondHalf::Disabled));
      EXPECT_TRUE(look() == shown) << id << " in mode " << mode;
    }
}

TEST_F(FontsPage, EachPictureStandsInItsControl) {
  OpenWith(kFreeFonts);
  ExpectPictures(Page(), {{1162, Pictures::kSignInformation16},
                          {1161, Pictures::kSignWarning16},
                          {1136, Pictures::kFontsEmbedded},
                          {1137, Pictures::kFontsExcluded}});
}

// --- Modes ---------------------------------------------------------------------------------------------------------

TEST_F(FontsPage, ClickingOnAModeTellsOfLicencesAndStoresIt) {
  const std::pair<int, int> modes[] = {{1055, 1}, {1057, 2}, {1056, 3}, {1054, 0}};
  OpenWith(kFreeFonts);
  for (const auto& [radio, mode] : modes) {
    Choose(radio);
    EXPECT_EQ(std::vector{radio}, Radio());
    ASSERT_TRUE(test_.Save());
    EXPECT_EQ(std::to_wstring(mode), test_.Value(L"FontsEmbedded"));
  }
  EXPECT_EQ(3u, popups_.Boxes().size());
}

TEST_F(FontsPage, AClickOnTheModeInForceTellsNothing) {
  Store(1, false, L"");
  OpenWith(kFreeFonts);
  Control(1055).Click();
  EXPECT_EQ(std::vector{1055}, Radio());
}

TEST_F(FontsPage, TheVersionForcesAndOpensTheControls) {
  const std::vector<int> kNothing, kRadios{1054, 1055, 1056, 1057};
  const std::vector<int> kWithLists{1054, 1055, 1056, 1057, 1277, 1032, 1278, 1053};
  const std::vector<int> kAll(std::begin(kAllControls), std::end(kAllControls));
  for (const int version : {0, 13, 18, 99, 201, 100, 101, 106, 107, 150, 200}) {
    const bool forced = version >= 100 && version <= 200;
    for (const auto& [mode, radio, enabled] : {std::tuple{0, 1054, kRadios},
                                               {1, 1055, kRadios},
                                               {2, 1057, kAll},
                                               {3, 1056, kWithLists},
                                               {4, 1054, kRadios}}) {
      SCOPED_TRACE("version " + std::to_string(version) + " mode " + std::to_string(mode));
      PageUnderTest test(kPageId);
      GiveFonts(test, kFreeFonts);
      test.Set(L"FontsEmbedded", mode);
      FakeFormatPage format;
      format.version = version;
      test.Sheet().pages[kFormatPage] = &format;
      ASSERT_TRUE(test.Open());
      std::vector<int> on, open;
      for (const int id : kRadioIds)
        if (test.Control(id).IsChecked()) on.push_back(id);
      for (const int id : kAllControls)
        if (test.Control(id).IsEnabled()) open.push_back(id);
      EXPECT_EQ(std::vector{forced ? 1055 : radio}, on);
      EXPECT_EQ(forced ? kNothing : enabled, open);
      ASSERT_TRUE(test.Save());
      EXPECT_EQ(forced ? std::to_wstring(mode) : std::to_wstring(mode == 4 ? 0 : mode), test.Value(L"FontsEmbedded"));
    }
  }
}

TEST_F(FontsPage, AClickOpensWhatTheModeNeeds) {
  OpenWith(kFreeFonts);
  const std::vector<int> kRadios{1054, 1055, 1056, 1057};
  EXPECT_EQ(kRadios, EnabledControls());
  Choose(1057);
  EXPECT_EQ(std::vector<int>(std::begin(kAllControls), std::end(kAllControls)), EnabledControls());
  Choose(1056);
  EXPECT_EQ((std::vector<int>{1054, 1055, 1056, 1057, 1277, 1032, 1278, 1053}), EnabledControls());
  Choose(1055);
  EXPECT_EQ(kRadios, EnabledControls());
  Choose(1054);
  EXPECT_EQ(kRadios, EnabledControls());
}

TEST_F(FontsPage, TheSignWarnsWhereFontsAreEmbedded) {
  OpenWith(kFreeFonts);
  const auto shown = [&] { return std::pair(Control(1162).IsVisible(), Control(1161).IsVisible()); };
  EXPECT_EQ(std::pair(true, false), shown());
  for (const int radio : {1055, 1056, 1057}) {
    Choose(radio);
    EXPECT_EQ(std::pair(false, true), shown()) << radio;
  }
  Choose(1054);
  EXPECT_EQ(std::pair(true, false), shown());
}

TEST_F(FontsPage, TheVersionMayComeAndGoWhileThePageLives) {
  Store(2, false, L"Alpha");
  SetVersion(14);
  OpenWith(kFreeFonts);
  EXPECT_EQ(std::vector{1057}, Radio());
  SetVersion(100);
  test_.Page().OnSetActive();
  EXPECT_EQ(std::vector{1055}, Radio());
  EXPECT_EQ(std::vector<int>(), EnabledControls());
  // The radio is the version's choice, and does not become the user's when the version goes.
  SetVersion(14);
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"2", test_.Value(L"FontsEmbedded"));
  test_.Page().OnSetActive();
  EXPECT_EQ(std::vector{1057}, Radio());
  ExpectLists({L"Beta", L"Delta", L"Gamma"}, {L"Alpha"});
}

TEST_F(FontsPage, AVersionThatComesAfterTheChoiceKeepsTheChoice) {
  SetVersion(14);
  OpenWith(kFreeFonts);
  Choose(1057);
  ASSERT_TRUE(test_.Page().OnKillActive());
  SetVersion(105);
  ASSERT_TRUE(test_.Save());
  ExpectStored(2, false, L" ");
}

TEST_F(FontsPage, AVersionThatComesAfterTheClickLeavesWhatIsStored) {
  Store(3, false, L"");
  SetVersion(14);
  OpenWith(kFreeFonts);
  Choose(1055);
  SetVersion(100);
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"3", test_.Value(L"FontsEmbedded"));
}

// --- Filling the lists ---------------------------------------------------------------------------------------------

TEST_F(FontsPage, TheStoredListDistributesTheFonts) {
  const struct {
    bool isEmbedList;
    const wchar_t* names;
    Names embedded, excluded;
  } rows[] = {
      {false, L"", {L"Alpha", L"Beta", L"Delta", L"Gamma"}, {}},
      {true, L"", {L"Alpha", L"Beta", L"Delta", L"Gamma"}, {}},
      {false, L" ", {L"Alpha", L"Beta", L"Delta", L"Gamma"}, {}},
      {true, L" ", {}, {L"Alpha", L"Beta", L"Delta", L"Gamma"}},
      {false, L"Gamma;Beta", {L"Alpha", L"Delta"}, {L"Beta", L"Gamma"}},
      {true, L"Gamma;Beta", {L"Beta", L"Gamma"}, {L"Alpha", L"Delta"}},
      {false, L"gamma;Missing;Beta", {L"Alpha", L"Delta", L"Gamma"}, {L"Beta"}},
      {true, L"Missing", {}, {L"Alpha", L"Beta", L"Delta", L"Gamma"}},
  };
  for (const int mode : {0, 1, 2, 4}) {
    for (const auto& row : rows) {
      SCOPED_TRACE(testing::PrintToString(std::wstring(row.names)) + " in mode " + std::to_string(mode));
      PageUnderTest test(kPageId);
      test.Set(L"FontsEmbedded", mode);
      test.Set(L"FontsIsEmbeddedOrNoEmbeddedList", row.isEmbedList);
      test.Set(L"FontsEmbeddedOrNoEmbeddedList", row.names);
      GiveFonts(test, kFreeFonts);
      ASSERT_TRUE(test.Open());
      EXPECT_EQ(row.embedded, test.Control(1032).Rows());
      EXPECT_EQ(row.excluded, test.Control(1053).Rows());
    }
  }
}

TEST_F(FontsPage, EachTabHasItsOwnList) {
  PageUnderTest test(kPageId, 1);
  GiveFonts(test, kFreeFonts);
  CDialogProperties& properties = test.Sheet().properties;
  properties.FontsIsEmbeddedOrNoEmbeddedList[0].SetLong(0);
  properties.FontsEmbeddedOrNoEmbeddedList[0].SetString(L"Beta");
  test.Set(L"FontsEmbedded", 2);
  test.Set(L"FontsIsEmbeddedOrNoEmbeddedList", 1);
  test.Set(L"FontsEmbeddedOrNoEmbeddedList", L"Alpha");
  ASSERT_TRUE(test.Open());
  EXPECT_EQ(Names{L"Alpha"}, test.Control(1032).Rows());
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(L"0", test.Value(L"FontsIsEmbeddedOrNoEmbeddedList"));
  EXPECT_EQ(L"Beta;Delta;Gamma", test.Value(L"FontsEmbeddedOrNoEmbeddedList"));
  EXPECT_EQ(L"Beta", properties.FontsEmbeddedOrNoEmbeddedList[0].GetString());
}

TEST_F(FontsPage, AnySwitchButZeroMeansTheListOfFontsToEmbed) {
  for (const int value : {1, 2, -1, 255}) {
    PageUnderTest test(kPageId);
    test.Set(L"FontsIsEmbeddedOrNoEmbeddedList", value);
    test.Set(L"FontsEmbeddedOrNoEmbeddedList", L"Alpha");
    test.Page().ReadProperties();
    test.Page().WriteProperties();
    EXPECT_EQ(L"1", test.Value(L"FontsIsEmbeddedOrNoEmbeddedList"));
    EXPECT_EQ(L"Alpha", test.Value(L"FontsEmbeddedOrNoEmbeddedList"));
  }
}

TEST_F(FontsPage, WithoutAListTheSwitchIsZero) {
  Store(2, true, L"");
  test_.Page().ReadProperties();
  test_.Page().WriteProperties();
  ExpectStored(2, false, L"");
}

TEST_F(FontsPage, TheStandardFontsAreExcludedWhateverTheListSays) {
  const std::vector<TestFont> fonts{{L"Arial"}, {L"Calibri"}, {L"Verdana"}, {L"Wingdings"}, {L"Arial Narrow"}};
  Store(3, true, L"Arial");
  OpenWith(fonts);
  ExpectLists({L"Arial Narrow", L"Calibri"}, {L"Arial", L"Verdana", L"Wingdings"});
  Choose(1057);
  ExpectLists({L"Arial"}, {L"Arial Narrow", L"Calibri", L"Verdana", L"Wingdings"});
  Choose(1056);
  ExpectLists({L"Arial Narrow", L"Calibri"}, {L"Arial", L"Verdana", L"Wingdings"});
}

TEST_F(FontsPage, WhatMayNotBeEmbeddedIsExcludedFromTheStart) {
  for (const int mode : {0, 1, 2, 3}) {
    PageUnderTest test(kPageId);
    test.Set(L"FontsEmbedded", mode);
    test.Set(L"FontsIsEmbeddedOrNoEmbeddedList", 1);
    test.Set(L"FontsEmbeddedOrNoEmbeddedList", L"Restrictra;Bitmappa;Calibri;Garamond;Arial");
    GiveFonts(test, kFonts);
    ASSERT_TRUE(test.Open());
    const Names excluded = mode == 3 ? Names{L"Arial", L"Bitmappa", L"Restrictra"} : Names{L"Bitmappa", L"Restrictra"};
    EXPECT_EQ(excluded, test.Control(1053).Rows()) << mode;
  }
}

TEST_F(FontsPage, WhatMayNotBeEmbeddedStaysExcludedWhenTheModeChanges) {
  Store(0, true, L"Restrictra;Calibri");
  OpenWith(kFonts);
  for (const int radio : {1055, 1057, 1056, 1057, 1054}) {
    Choose(radio);
    const Names excluded = Excluded();
    for (const wchar_t* name : {L"Restrictra", L"Bitmappa"})
      EXPECT_EQ(1, std::ranges::count(excluded, std::wstring(name))) << radio;
  }
}

// --- Moving fonts --------------------------------------------------------------------------------------------------

TEST_F(FontsPage, ButtonsMoveTheSelectedFonts) {
  Store(2, false, L"");
  OpenWith(kFreeFonts);
  Control(1051).Click();
  ExpectLists({L"Alpha", L"Beta", L"Delta", L"Gamma"}, {});
  SelectRows(1032, {L"Gamma", L"Alpha"});
  Control(1051).Click();
  ExpectLists({L"Beta", L"Delta"}, {L"Alpha", L"Gamma"});
  Control(1052).Click();
  ExpectLists({L"Beta", L"Delta"}, {L"Alpha", L"Gamma"});
  SelectRows(1053, {L"Gamma"});
  Control(1052).Click();
  ExpectLists({L"Beta", L"Delta", L"Gamma"}, {L"Alpha"});
  EXPECT_EQ(0, SelectedCount(1032));
  EXPECT_EQ(0, SelectedCount(1053));
}

TEST_F(FontsPage, DoubleButtonsMoveAllFonts) {
  Store(2, false, L"Beta");
  OpenWith(kFreeFonts);
  Control(1178).Click();
  ExpectLists({}, {L"Alpha", L"Beta", L"Delta", L"Gamma"});
  Control(1178).Click();
  ExpectLists({}, {L"Alpha", L"Beta", L"Delta", L"Gamma"});
  Control(1179).Click();
  ExpectLists({L"Alpha", L"Beta", L"Delta", L"Gamma"}, {});
}

TEST_F(FontsPage, ADoubleClickMovesAFont) {
  Store(2, false, L"Beta");
  OpenWith(kFreeFonts);
  DoubleClick(1032, L"Delta");
  ExpectLists({L"Alpha", L"Gamma"}, {L"Beta", L"Delta"});
  DoubleClick(1053, L"Beta");
  ExpectLists({L"Alpha", L"Beta", L"Gamma"}, {L"Delta"});
}

// Its buttons are closed, but the lists are open. What they show is not stored there.
TEST_F(FontsPage, ADoubleClickMovesAFontAmongTheStandardOnesToo) {
  Store(3, false, L"Garamond");
  OpenWith({{L"Arial"}, {L"Calibri"}, {L"Garamond"}});
  DoubleClick(1032, L"Calibri");
  ExpectLists({L"Garamond"}, {L"Arial", L"Calibri"});
  DoubleClick(1053, L"Arial");
  ExpectLists({L"Arial", L"Garamond"}, {L"Calibri"});
  ASSERT_TRUE(test_.Save());
  ExpectStored(3, false, L"Garamond");
}

TEST_F(FontsPage, WhatMayNotBeEmbeddedStaysAndTheRestMoves) {
  Store(2, true, L" ");
  OpenWith(kFonts);
  ExpectLists({}, {L"Arial", L"Bitmappa", L"Calibri", L"Garamond", L"Restrictra"});
  for (const wchar_t* forbidden : {L"Restrictra", L"Bitmappa"}) {
    SelectRows(1053, {forbidden});
    ExpectForbidden();
    Control(1052).Click();
    ExpectLists({}, {L"Arial", L"Bitmappa", L"Calibri", L"Garamond", L"Restrictra"});
    EXPECT_EQ(0, SelectedCount(1053));
    ExpectForbidden();
    DoubleClick(1053, forbidden);
    ExpectLists({}, {L"Arial", L"Bitmappa", L"Calibri", L"Garamond", L"Restrictra"});
  }
  SelectRows(1053, {L"Arial", L"Bitmappa", L"Restrictra"});
  ExpectForbidden();
  Control(1052).Click();
  ExpectLists({L"Arial"}, {L"Bitmappa", L"Calibri", L"Garamond", L"Restrictra"});
  ExpectForbidden();
  Control(1179).Click();
  ExpectLists({L"Arial", L"Calibri", L"Garamond"}, {L"Bitmappa", L"Restrictra"});
  SelectRows(1032, {L"Arial"});
  Control(1051).Click();
  SelectRows(1053, {L"Arial"});
  Control(1052).Click();
  ASSERT_TRUE(test_.Save());
  ExpectStored(2, false, L"Bitmappa;Restrictra");
}

TEST_F(FontsPage, TheBoxMayEndThePage) {
  Store(2, true, L" ");
  OpenWith(kFonts);
  popups_.Loop().Post([this] { test_.Page().Destroy(); });
  ExpectForbidden();
  SelectRows(1053, {L"Restrictra", L"Arial"});
  Control(1052).Click();
  EXPECT_FALSE(test_.Page().IsWindow());
}

TEST_F(FontsPage, TheBoxOfLicencesMayEndThePage) {
  OpenWith(kFonts);
  popups_.Loop().Post([this] { test_.Page().Destroy(); });
  popups_.ExpectBox({.title = L"Title", .text = kLicence, .icon = MB_ICONINFORMATION});
  Control(1057).Click();
  EXPECT_FALSE(test_.Page().IsWindow());
}

// --- Saving --------------------------------------------------------------------------------------------------------

TEST_F(FontsPage, TheSelectionIsStoredAsTheListOfFontsNeverToEmbed) {
  Store(2, false, L"");
  OpenWith(kFreeFonts);
  SelectRows(1032, {L"Gamma", L"Alpha"});
  Control(1051).Click();
  for (int times = 0; times < 2; ++times) {
    ASSERT_TRUE(test_.Save());
    ExpectStored(2, false, L"Alpha;Gamma");
  }
  test_.Page().OnSetActive();
  ExpectLists({L"Beta", L"Delta"}, {L"Alpha", L"Gamma"});
}

TEST_F(FontsPage, AListOfFontsToEmbedIsStoredAsItsOpposite) {
  Store(2, true, L"Gamma;Missing;Alpha");
  OpenWith(kFreeFonts);
  ASSERT_TRUE(test_.Save());
  ExpectStored(2, false, L"Beta;Delta");
}

TEST_F(FontsPage, AListWithoutFontsIsABlank) {
  Store(2, false, L"Missing");
  OpenWith(kFreeFonts);
  ASSERT_TRUE(test_.Save());
  ExpectStored(2, false, L" ");
}

TEST_F(FontsPage, OtherModesKeepNamesThatAreNotInstalled) {
  for (const int mode : {0, 1, 3}) {
    PageUnderTest test(kPageId);
    GiveFonts(test, kFreeFonts);
    test.Set(L"FontsEmbedded", mode);
    test.Set(L"FontsEmbeddedOrNoEmbeddedList", L"Missing;Alpha");
    ASSERT_TRUE(test.Open());
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(L"Missing;Alpha", test.Value(L"FontsEmbeddedOrNoEmbeddedList")) << mode;
  }
}

TEST_F(FontsPage, OtherModesDropAListOfFontsToEmbed) {
  Store(1, true, L"Alpha");
  OpenWith(kFreeFonts);
  ASSERT_TRUE(test_.Save());
  ExpectStored(1, false, L" ");
}

TEST_F(FontsPage, LeavingTheSelectiveModeKeepsTheSelection) {
  Store(2, false, L"");
  OpenWith(kFreeFonts);
  SelectRows(1032, {L"Alpha", L"Delta"});
  Control(1051).Click();
  Choose(1056);
  ExpectLists({L"Alpha", L"Beta", L"Delta", L"Gamma"}, {});
  Choose(1057);
  ExpectLists({L"Beta", L"Gamma"}, {L"Alpha", L"Delta"});
  Choose(1055);
  ASSERT_TRUE(test_.Save());
  ExpectStored(1, false, L"Alpha;Delta");
}

// Fonts whose names have 31 characters each; with the separator between them n names have 32 n - 1 characters.
std::vector<TestFont> LongFonts(int count) {
  std::vector<TestFont> fonts;
  for (int i = 0; i < count; ++i) {
    const std::wstring number = std::to_wstring(1000 + i);
    fonts.push_back({std::wstring(31 - number.size(), L'F') + number});
  }
  return fonts;
}

std::wstring Join(const std::vector<TestFont>& fonts, size_t first, size_t count) {
  std::wstring names;
  for (size_t i = first; i < first + count; ++i) names += (i > first ? L";" : L"") + fonts[i].name;
  return names;
}

bool HasLimitWarning(TracedThread& trace) {
  for (const std::wstring& line : trace.Lines())
    if (line.find(L"UpdateFontListData: number of selected fonts exceeds devmode limit. Value truncated.") !=
        std::wstring::npos)
      return true;
  return false;
}

TEST_F(FontsPage, AListOfFontsNeverToEmbedThatIsTooLongGivesWayToTheOther) {
  const auto fonts = LongFonts(50);
  Store(2, true, Join(fonts, 0, 10).c_str());
  TracedThread trace;
  OpenWith(fonts);
  EXPECT_FALSE(HasLimitWarning(trace));
  for (int times = 0; times < 2; ++times) {
    ASSERT_TRUE(test_.Save());
    ExpectStored(2, true, Join(fonts, 0, 10));
    EXPECT_TRUE(HasLimitWarning(trace));
  }
  Control(1178).Click();
  ASSERT_TRUE(test_.Save());
  ExpectStored(2, true, L" ");
}

// OK saves twice. Another mode does not read the lists back, and keeps neither of them at the end.
TEST_F(FontsPage, OutsideTheSelectiveModeTheListThatWasKeptLastsForOneSaving) {
  const auto fonts = LongFonts(50);
  for (const auto& [radio, mode] : {std::pair{1054, 0}, {1055, 1}, {1056, 3}}) {
    PageUnderTest test(kPageId);
    test.Sheet().properties.MsgBoxTitle.SetString(L"Title");
    test.Set(L"FontsEmbedded", 2);
    test.Set(L"FontsIsEmbeddedOrNoEmbeddedList", 1);
    test.Set(L"FontsEmbeddedOrNoEmbeddedList", Join(fonts, 0, 10));
    GiveFonts(test, fonts);
    ASSERT_TRUE(test.Open());
    if (radio != 1054) popups_.ExpectBox({.title = L"Title", .text = kLicence, .icon = MB_ICONINFORMATION});
    test.Control(radio).Click();
    for (const auto& [kind, names] : {std::pair{L"1", Join(fonts, 0, 10)}, {L"0", L" "}, {L"0", L" "}}) {
      ASSERT_TRUE(test.Save());
      EXPECT_EQ(std::to_wstring(mode), test.Value(L"FontsEmbedded"));
      EXPECT_EQ(kind, test.Value(L"FontsIsEmbeddedOrNoEmbeddedList")) << radio;
      EXPECT_EQ(names, test.Value(L"FontsEmbeddedOrNoEmbeddedList")) << radio;
    }
  }
}

TEST_F(FontsPage, TheWarningComesWithTheLimit) {
  // Two lists of 31 names have 2 * 31 * 32 / 2 characters in all; a long name more or less decides.
  for (const auto& [length, warns] : {std::pair{29, false}, {30, true}}) {
    std::vector<TestFont> fonts = LongFonts(31);
    fonts.push_back({std::wstring(length, L'Z')});
    PageUnderTest test(kPageId);
    test.Set(L"FontsEmbedded", 2);
    GiveFonts(test, fonts);
    ASSERT_TRUE(test.Open());
    TracedThread trace;
    const int32_t warnings = trace.Error().trace->warningCount;
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(warnings + (warns ? 1 : 0), trace.Error().trace->warningCount) << length;
    // 31 * 32 - 1 + 1 + length, and 2
    EXPECT_EQ(warns, HasLimitWarning(trace)) << length;
  }
}

TEST_F(FontsPage, OtherModesDoNotWarn) {
  Store(1, false, Join(LongFonts(40), 0, 40).c_str());
  OpenWith(kFreeFonts);
  TracedThread trace;
  ASSERT_TRUE(test_.Save());
  EXPECT_FALSE(HasLimitWarning(trace));
}

TEST_F(FontsPage, TwoListsThatAreTooLongKeepTheUserOnThePage) {
  const auto fonts = LongFonts(66);
  Store(2, false, Join(fonts, 0, 33).c_str());
  const std::wstring before = test_.Value(L"FontsEmbeddedOrNoEmbeddedList");
  OpenWith(fonts);
  for (int times = 0; times < 2; ++times) {
    popups_.ExpectBox({.title = L"Title", .text = kTooMany, .icon = MB_ICONWARNING});
    EXPECT_FALSE(test_.Page().OnKillActive());
  }
  EXPECT_EQ(IDC_FONTS_EMBED_LIST, GetDlgCtrlID(GetFocus()));
  popups_.ExpectBox({.title = L"Title", .text = kTooMany, .icon = MB_ICONWARNING});
  EXPECT_FALSE(test_.Page().OnApply()) << "one box, not two";
  ExpectStored(2, false, before);
  EXPECT_EQ(33u, Embedded().size());

  // Whatever the radio.
  Choose(1055);
  popups_.ExpectBox({.title = L"Title", .text = kTooMany, .icon = MB_ICONWARNING});
  EXPECT_FALSE(test_.Page().OnKillActive());

  Choose(1057);
  SelectRows(1032, {fonts.back().name, fonts[40].name});
  Control(1051).Click();
  ASSERT_TRUE(test_.Page().OnApply());
  EXPECT_EQ(L"1", test_.Value(L"FontsIsEmbeddedOrNoEmbeddedList"));
}

TEST_F(FontsPage, OneListWithOneCharacterLessIsStored) {
  // 32 names have 1023 characters.
  const auto fonts = LongFonts(66);
  Store(2, false, Join(fonts, 0, 32).c_str());
  OpenWith(fonts);
  ASSERT_TRUE(test_.Save());
  ExpectStored(2, false, Join(fonts, 0, 32));
}

// --- What an administrator has fixed -------------------------------------------------------------------------------

TEST_F(FontsPage, TheListsAreLockedByKindAndNamesTogether) {
  const std::vector<int> kRadios{1054, 1055, 1056, 1057};
  const std::vector<int> kAll(std::begin(kAllControls), std::end(kAllControls));
  for (const auto& [kind, names, open] : {std::tuple{kUnsetBoolean, L"Alpha", true},
                                          {0, L"", true},
                                          {1, L"", true},
                                          {0, L"Alpha", false},
                                          {1, L"Alpha", false},
                                          {1, L" ", false}}) {
    PageUnderTest test(kPageId);
    GiveFonts(test, kFreeFonts);
    test.Set(L"FontsEmbedded", 2);
    test.Set(L"FontsEmbeddedOrNoEmbeddedList", L" ");
    test.Admin().FontsIsEmbeddedOrNoEmbeddedList_Override = kind;
    test.Admin().FontsEmbeddedOrNoEmbeddedList_Override = names;
    ASSERT_TRUE(test.Open());
    for (int activations = 0; activations < 3; ++activations) {
      std::vector<int> enabled;
      for (const int id : kAllControls)
        if (test.Control(id).IsEnabled()) enabled.push_back(id);
      EXPECT_EQ(open ? kAll : kRadios, enabled) << kind << testing::PrintToString(std::wstring(names));
      test.Page().OnSetActive();
    }
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(L" ", test.Value(L"FontsEmbeddedOrNoEmbeddedList")) << "the administrator's names are not shown";
  }
}

TEST_F(FontsPage, LocksOutliveAClick) {
  test_.Admin().FontsIsEmbeddedOrNoEmbeddedList_Override = 0;
  test_.Admin().FontsEmbeddedOrNoEmbeddedList_Override = L"Alpha";
  OpenWith(kFreeFonts);
  Choose(1057);
  EXPECT_EQ((std::vector<int>{1054, 1055, 1056, 1057}), EnabledControls());
}

// --- Keyboard and screen readers -----------------------------------------------------------------------------------

TEST_F(FontsPage, ScreenReadersAreToldWhatTheMakerAllows) {
  const ComScope com;
  Store(2, true, L"Device;Free;Preview");
  OpenWith({{L"Device", 0, kDeviceFont},
            {L"Free"},
            {L"Restricted", kRestricted},
            {L"Bitmap", kBitmapOnly},
            {L"Preview", kPreview}});
  const Accessible embedded(Control(1032).Window()), excluded(Control(1053).Window());
  ASSERT_TRUE(embedded && excluded);
  EXPECT_EQ(L"Embed these fonts:", embedded.Name(0));
  EXPECT_EQ(L"Never embed these fonts:", excluded.Name(0));
  EXPECT_EQ(ROLE_SYSTEM_LIST, embedded.Role(0));
  ASSERT_EQ(3, embedded.Count());
  EXPECT_EQ(L"Device, device font", embedded.Name(1));
  EXPECT_EQ(L"Free", embedded.Name(2));
  EXPECT_EQ(L"Preview, embedding for preview and print only", embedded.Name(3));
  EXPECT_EQ(ROLE_SYSTEM_LISTITEM, embedded.Role(1));
  ASSERT_EQ(2, excluded.Count());
  EXPECT_EQ(L"Bitmap, embedding forbidden except as bitmaps", excluded.Name(1));
  EXPECT_EQ(L"Restricted, embedding forbidden", excluded.Name(2));
}

TEST_F(FontsPage, ScreenReadersAreToldWhatIsSelectedAndFocused) {
  const ComScope com;
  Store(2, false, L"");
  OpenWith(kFreeFonts);
  const Accessible list(Control(1032).Window());
  ASSERT_TRUE(list);
  Control(1032).Select(L"Beta");
  EXPECT_EQ(2, list.Focus());
  EXPECT_EQ(2, list.Selection());
  EXPECT_TRUE(list.State(2) & STATE_SYSTEM_SELECTED);
  EXPECT_TRUE(list.State(2) & STATE_SYSTEM_FOCUSED);
  EXPECT_FALSE(list.State(1) & (STATE_SYSTEM_SELECTED | STATE_SYSTEM_OFFSCREEN));
  EXPECT_TRUE(list.State(1) & STATE_SYSTEM_SELECTABLE);
  EXPECT_TRUE(list.State(0) & STATE_SYSTEM_EXTSELECTABLE);
  list->accSelect(SELFLAG_TAKEFOCUS, Accessible::Part(3));
  EXPECT_EQ(3, list.Focus());
  RECT row{};
  SendMessageW(Control(1032).Window(), LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&row));
  MapWindowPoints(Control(1032).Window(), nullptr, reinterpret_cast<POINT*>(&row), 2);
  EXPECT_EQ(row.top, list.Location(3).top);
  Choose(1055);
  EXPECT_TRUE(list.State(1) & STATE_SYSTEM_UNAVAILABLE);
}

TEST_F(FontsPage, RowsOutOfSightAreToldToBe) {
  const ComScope com;
  Store(2, false, L"");
  OpenWith(LongFonts(100));
  const Accessible list(Control(1032).Window());
  ASSERT_TRUE(list);
  EXPECT_FALSE(list.State(1) & STATE_SYSTEM_OFFSCREEN);
  EXPECT_TRUE(list.State(100) & STATE_SYSTEM_OFFSCREEN);
}

// What the platform gives: arrows and Shift select, the buttons move.
TEST_F(FontsPage, FontsAreMovedByKeyboard) {
  Store(2, false, L"");
  OpenWith(kFreeFonts);
  Control(1032).Focus();
  for (const WORD key : {VK_DOWN, VK_DOWN}) SendMessageW(Control(1032).Window(), WM_KEYDOWN, key, 1);
  EXPECT_EQ(1, SelectedCount(1032));
  Control(1051).Focus();
  SendMessageW(Control(1051).Window(), WM_KEYDOWN, VK_SPACE, 1);
  SendMessageW(Control(1051).Window(), WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
  EXPECT_EQ(1u, Excluded().size());
}

// --- Many fonts ----------------------------------------------------------------------------------------------------

TEST_F(FontsPage, AThousandFontsMoveTogether) {
  Store(2, false, L"");
  const auto fonts = LongFonts(1000);
  OpenWith(fonts);
  ASSERT_EQ(1000u, Embedded().size());
  Control(1178).Click();
  EXPECT_EQ(1000u, Excluded().size());
  EXPECT_TRUE(Embedded().empty());
  Control(1179).Click();
  EXPECT_EQ(1000u, Embedded().size());
  EXPECT_TRUE(std::ranges::is_sorted(Embedded()));
}

TEST_F(FontsPage, IsNotReadBeforeItIsAsked) { EXPECT_EQ(0xFFFF, Page().mode); }

}  // namespace
