#include "DriverLIB/MessageBoxes.h"
#include "pages/CPdfAppearancePage.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"

namespace {

using Values = AppearanceCockpitValues;

const PageTable kTable = {
    .name = "Appearance",
    .pageId = kAppearancePage,
    .helpLink = IDC_APPEARANCE_HELP_LINK,
    .rows =
        {
            Choice(L"OpenLayout", IDC_APPEARANCE_LAYOUT,
                   {{L"Default", 0},
                    {L"Single Page", 1},
                    {L"Continuous - single page", 2},
                    {L"Continuous - double pages", 3},
                    {L"Continuous - double pages, odd", 4}})
                .Tracked<&Values::openLayout>(),
            Choice(L"OpenSize", IDC_APPEARANCE_SIZE, {{L"Standard", 0}, {L"Full page", 1}, {L"Page width", 2}})
                .Tracked<&Values::openSize>(),
            Field(L"OpenPageIndex", IDC_APPEARANCE_PAGE)
                .Stores({{7, L"7", 7},
                         {1, L"1", 1},
                         {32767, L"32767", 32767},
                         {0, L"0", 1},
                         {32768, L"32768", 1},
                         {-1, L"65535", 1},
                         {65536 + 12, L"12", 12}})
                .Types({{L"12", L"12", 12},
                        {L"40000", L"1", 1},
                        {L"32767", L"32767", 32767},
                        {L"32768", L"1", 1},
                        {L"100000", L"1", 1},  // no room for six characters
                        {L"0", L"1", 1},
                        {L"-3", L"1", 1},
                        {L"", L"1", 1},
                        {L"abc", L"1", 1},
                        {L"2.7", L"2.7", 2},
                        {L"1.96", L"1.96", 2},  // 2.0 when rounded
                        {L"0.96", L"0.96", 1},
                        {L"0.94", L"1", 1}})
                .Tracked<&Values::openPageIndex>(),
            Choice(L"OpenMode", IDC_APPEARANCE_MODE,
                   {{L"Standard", 0}, {L"Show Outlines", 1}, {L"Show Thumbnails", 2}, {L"Full Screen", 3}})
                .Tracked<&Values::openMode>(),
            Choice(L"NonFullScreenPageMode", IDC_APPEARANCE_FULL_SCREEN,
                   {{L"Standard", 0}, {L"Show Outlines", 1}, {L"Show Thumbnails", 2}, {L"Show OC", 3}})
                .Given({{L"OpenMode", 3}})
                .Tracked<&Values::nonFullScreenPageMode>(),
            Choice(L"Direction", IDC_APPEARANCE_DIRECTION, {{L"Left to right", 0}, {L"Right to left", 1}})
                .Tracked<&Values::direction>(),
            CheckBox(L"HideToolbar", IDC_APPEARANCE_HIDE_TOOLBAR).Tracked<&Values::hideToolbar>(),
            CheckBox(L"HideMenubar", IDC_APPEARANCE_HIDE_MENU).Tracked<&Values::hideMenubar>(),
            CheckBox(L"CenterWindow", IDC_APPEARANCE_CENTER_WINDOW).Tracked<&Values::centerWindow>(),
            CheckBox(L"FitWindow", IDC_APPEARANCE_FIT_WINDOW).Tracked<&Values::fitWindow>(),
            CheckBox(L"DisplayDocTitle", IDC_APPEARANCE_DOCUMENT_TITLE).Tracked<&Values::displayDocTitle>(),
            CheckBox(L"HideWindowUI", IDC_APPEARANCE_HIDE_WINDOW_UI).Tracked<&Values::hideWindowUI>(),
        },
};
const PageTableEntry entry(kTable);

class AppearancePage : public testing::Test {
 protected:
  bool FullScreenModeIsEnabled() { return test_.Control(IDC_APPEARANCE_FULL_SCREEN).IsEnabled(); }

  PageUnderTest test_{kAppearancePage};
};

TEST_F(AppearancePage, FullScreenModeIsOpenForFullScreenAlone) {
  for (int mode = 0; mode <= 4; ++mode) {
    PageUnderTest test(kAppearancePage);
    test.Set(L"OpenMode", mode);
    ASSERT_TRUE(test.Open());
    EXPECT_EQ(mode == 3, test.Control(IDC_APPEARANCE_FULL_SCREEN).IsEnabled()) << mode;
  }
}

TEST_F(AppearancePage, FullScreenModeFollowsTheChoiceOfTheMode) {
  ASSERT_TRUE(test_.Open());
  for (const int row : {3, 2, 3, 1, 3, 0}) {
    test_.Control(IDC_APPEARANCE_MODE).Select(row);
    EXPECT_EQ(row == 3, FullScreenModeIsEnabled()) << row;
  }
}

TEST_F(AppearancePage, ClosingTheFullScreenModeKeepsItsValue) {
  test_.Set(L"OpenMode", 3);
  test_.Set(L"NonFullScreenPageMode", 2);
  ASSERT_TRUE(test_.Open());
  test_.Control(IDC_APPEARANCE_MODE).Select(L"Show Outlines");
  EXPECT_FALSE(FullScreenModeIsEnabled());
  EXPECT_EQ(L"Show Thumbnails", test_.Control(IDC_APPEARANCE_FULL_SCREEN).Text());
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"2", test_.Value(L"NonFullScreenPageMode"));
  EXPECT_EQ(L"1", test_.Value(L"OpenMode"));
}

TEST_F(AppearancePage, WithoutAModeTheFullScreenModeStaysAsItIs) {
  ASSERT_TRUE(test_.Open());
  const CWnd page(test_.Page().Handle());
  const CWnd mode = page.Item(IDC_APPEARANCE_MODE);
  for (const int row : {3, 0}) {
    test_.Control(IDC_APPEARANCE_MODE).Select(row);
    mode.Send(CB_SETCURSEL, static_cast<WPARAM>(-1));
    page.Send(WM_COMMAND, MAKEWPARAM(IDC_APPEARANCE_MODE, CBN_SELCHANGE), reinterpret_cast<LPARAM>(mode.Handle()));
    EXPECT_EQ(row == 3, FullScreenModeIsEnabled()) << row;
  }
}

TEST_F(AppearancePage, FullScreenModeFollowsTheCockpit) {
  test_.Set(L"OpenMode", 3);
  ASSERT_TRUE(test_.Open());
  auto& page = test_.As<CPdfAppearancePage>();
  page.SetCockpitValues({});
  EXPECT_FALSE(FullScreenModeIsEnabled());
  page.SetCockpitValues({.openMode = 3});
  EXPECT_TRUE(FullScreenModeIsEnabled());
}

TEST_F(AppearancePage, AWrongPageIsCorrectedWithoutAWord) {
  ASSERT_TRUE(test_.Open());
  const unsigned boxes = MessageBoxCount();
  test_.Control(IDC_APPEARANCE_PAGE).Focus();
  test_.Control(IDC_APPEARANCE_PAGE).SetText(L"40000");
  EXPECT_TRUE(test_.Page().OnKillActive());
  EXPECT_EQ(L"1", test_.Control(IDC_APPEARANCE_PAGE).Text());
  EXPECT_EQ(boxes, MessageBoxCount());
}

TEST_F(AppearancePage, TheHostsWrongPageIsCorrectedBeforeAListFailsTheSave) {
  test_.Set(L"OpenPageIndex", 40000);
  ASSERT_TRUE(test_.Open());
  SendMessageW(test_.Control(IDC_APPEARANCE_LAYOUT).Window(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  EXPECT_FALSE(test_.Page().UpdateData(true));
  EXPECT_EQ(L"1", test_.Control(IDC_APPEARANCE_PAGE).Text());
}

TEST_F(AppearancePage, TheZeroOfTheHostStandsUntilItsFieldIsLeft) {
  ASSERT_TRUE(test_.Open());
  test_.Control(IDC_APPEARANCE_PAGE).Focus();
  EXPECT_EQ(L"0", test_.Control(IDC_APPEARANCE_PAGE).Text());
  test_.TakeFocusAway();
  EXPECT_EQ(L"1", test_.Control(IDC_APPEARANCE_PAGE).Text());
}

}  // namespace
