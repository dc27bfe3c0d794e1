// One setting on its whole way: from the host into the sheet, through the user's hands, and back.
#include <gtest/gtest.h>

#include "driver/Bar.h"
#include "driver/SheetDriver.h"
#include "support/HostDialog.h"

namespace {

constexpr int kGraphicPage = 108;
constexpr int kUserDefined = 1142, kQuality = 1049;

// What the user does, up to the last button.
Sheet::Body PickSixtyPercentAndPress(int button) {
  return [button](Sheet& sheet) -> SheetTask {
    bool shown = false;
    co_await ClickPage(sheet, kGraphicPage, shown);
    CO_ASSERT_TRUE(shown);
    // The sample's values are those of a preset, which shows its values locked.
    EXPECT_FALSE(sheet.Control(kUserDefined).IsChecked());
    EXPECT_FALSE(sheet.Control(kQuality).IsEnabled());
    EXPECT_EQ(L"85% high", sheet.Control(kQuality).Text());
    sheet.Control(kUserDefined).Click();
    sheet.Control(kQuality).Select(L"60% low - medium");
    co_await sheet.Settled();
    EXPECT_EQ(L"60% low - medium", sheet.Control(kQuality).Text());
    sheet.Press(button);
  };
}

TEST(RoadOfOneSetting, TheHostReadsWhatTheUserHasPicked) {
  HostDialog host;
  host.Set(0, L"GraphicJpegQuality", 85);
  const SheetResult result = RunSheet([&] { return host.DoModal(); }, PickSixtyPercentAndPress(IDOK));
  EXPECT_NE(0, result.value);
  EXPECT_EQ(60, host.Long(0, L"GraphicJpegQuality"));
  EXPECT_EQ(85, host.Long(1, L"GraphicJpegQuality")) << "the document's settings have a value of their own";
  EXPECT_EQ(600, host.Long(0, L"GraphicResolution"));
}

TEST(RoadOfOneSetting, CancelLeavesTheHostsValue) {
  HostDialog host;
  host.Set(0, L"GraphicJpegQuality", 85);
  const SheetResult result = RunSheet([&] { return host.DoModal(); }, PickSixtyPercentAndPress(IDCANCEL));
  EXPECT_EQ(0, result.value);
  EXPECT_EQ(85, host.Long(0, L"GraphicJpegQuality"));
}

TEST(RoadOfOneSetting, LeavingThePageAndComingBackKeepsTheChoice) {
  HostDialog host;
  host.Set(1, L"Used", 1);
  RunSheet([&] { return host.DoModal(); },
           [](Sheet& sheet) -> SheetTask {
             sheet.SelectTab(0);
             co_await sheet.Settled();
             bool shown = false;
             co_await ClickPage(sheet, kGraphicPage, shown);
             sheet.Control(kUserDefined).Click();
             sheet.Control(kQuality).Select(L"60% low - medium");
             for (const int tab : {1, 0}) {
               sheet.SelectTab(tab);
               co_await sheet.Settled();
               EXPECT_EQ(tab, sheet.CurrentTab());
             }
             EXPECT_EQ(kGraphicPage, sheet.PageId()) << "each tab keeps its page";
             EXPECT_EQ(L"60% low - medium", sheet.Control(kQuality).Text());
             sheet.PressOk();
           });
  EXPECT_EQ(60, host.Long(0, L"GraphicJpegQuality"));
  EXPECT_EQ(85, host.Long(1, L"GraphicJpegQuality"));
}

}  // namespace
