// The cockpit in the sheet, as a user meets it and a host sees the outcome.
#include <windows.h>
// behind windows.h
#include <gtest/gtest.h>

#include "driver/Bar.h"
#include "driver/Picture.h"
#include "driver/SheetDriver.h"
#include "resources/ResourceIds.h"
#include "support/HostDialog.h"
#include "support/TestPrinter.h"

namespace {

constexpr int kCockpitPage = 120, kGraphicPage = 108;
constexpr int kGraphicLink = 1413, kRestoreLink = 1444, kUserDefined = 1142, kQuality = 1049;
constexpr int kFirstSquare = IDC_COCKPIT_FIRST_SQUARE, kFirstText = IDC_COCKPIT_FIRST_TEXT;

const ExpectedBox kQuestion = {.title = L"Host",
                               .text = L"All settings will be set to default. Do you wish to continue?",
                               .icon = MB_ICONWARNING,
                               .button = IDYES};

std::wstring FirstText(const Sheet& sheet) { return sheet.Control(kFirstText).Text(); }

// What stands in the middle of the square of a row, counted from 0.
uint32_t SquareColor(const Sheet& sheet, int row) {
  RECT window, square;
  GetWindowRect(sheet.Window(), &window);
  GetWindowRect(sheet.Control(kFirstSquare + row).Window(), &square);
  return Capture(sheet.Window())
      .At((square.left + square.right) / 2 - window.left, (square.top + square.bottom) / 2 - window.top);
}

constexpr uint32_t kBlue = 0xFF0000FF, kWindowWhite = 0xFFFFFFFF;

TEST(Cockpit, IsWhatTheSheetOpensOn) {
  HostDialog host;
  RunSheet([&] { return host.DoModal(); },
           [](Sheet& sheet) -> SheetTask {
             EXPECT_EQ(kCockpitPage, sheet.PageId());
             co_await sheet.Settled();
             for (int row = 0; row < 18; ++row) {
               EXPECT_EQ(L"", sheet.Control(kFirstText + row).Text()) << row;
               EXPECT_EQ(kWindowWhite, SquareColor(sheet, row)) << row;
             }
             sheet.PressCancel();
           });
}

TEST(Cockpit, EachTabShowsItsOwnSettings) {
  for (const int changed : {0, 1}) {
    HostDialog host;
    host.Set(1, L"Used", 1).Set(changed, L"GraphicJpegQuality", 60);
    RunSheet([&] { return host.DoModal(); },
             [changed](Sheet& sheet) -> SheetTask {
               EXPECT_EQ(1, sheet.CurrentTab());
               for (const int tab : {1, 0, 1}) {
                 if (tab != sheet.CurrentTab()) sheet.SelectTab(tab);
                 co_await sheet.Settled();
                 EXPECT_EQ(kCockpitPage, sheet.PageId());
                 EXPECT_EQ(tab == changed ? L"(PDF size)" : L"", FirstText(sheet)) << tab;
               }
               sheet.PressCancel();
             });
  }
}

TEST(Cockpit, FollowsWhatTheUserChanges) {
  HostDialog host;
  RunSheet([&] { return host.DoModal(); },
           [](Sheet& sheet) -> SheetTask {
             sheet.Control(kGraphicLink).Click();
             co_await sheet.Settled();
             EXPECT_EQ(kGraphicPage, sheet.PageId());
             sheet.Control(kUserDefined).Click();
             sheet.Control(kQuality).Select(L"60% low - medium");
             bool shown = false;
             co_await ClickPage(sheet, kCockpitPage, shown);
             EXPECT_TRUE(shown);
             EXPECT_EQ(L"(PDF size)", FirstText(sheet));
             for (int row = 0; row < 18; ++row)
               EXPECT_EQ(row == 0 ? kBlue : kWindowWhite, SquareColor(sheet, row)) << row;
             sheet.PressOk();
           });
  EXPECT_EQ(60, host.Long(0, L"GraphicJpegQuality"));
}

// From the bar by Tab into the page, along its first row, and on by Enter or Space.
TEST(Cockpit, CanBeUsedByKeyboardAlone) {
  for (const WORD key : {VK_RETURN, VK_SPACE}) {
    for (const int target : {kFirstSquare, kGraphicLink}) {
      HostDialog host;
      host.Set(0, L"GraphicJpegQuality", 60);
      RunSheet([&] { return host.DoModal(); },
               [key, target](Sheet& sheet) -> SheetTask {
                 SetFocus(sheet.Bar().Window());
                 for (const int stop : {kRestoreLink, kFirstSquare, kGraphicLink}) {
                   sheet.Key(VK_TAB);
                   co_await sheet.Settled();
                   EXPECT_EQ(stop, sheet.FocusedId());
                   EXPECT_EQ(stop != kRestoreLink, sheet.Control(IDC_COCKPIT_NOTE).Exists()) << "the note of the row";
                   if (stop == target) break;
                 }
                 sheet.Key(key);
                 co_await sheet.Settled();
                 EXPECT_TRUE(sheet.IsOpen());
                 EXPECT_EQ(kGraphicPage, sheet.PageId());
                 sheet.PressCancel();
               });
    }
  }
}

TEST(Cockpit, EnterOnTheRestoreLinkAsksAndDoesNotEndTheSheet) {
  HostDialog host;
  host.Set(0, L"GraphicJpegQuality", 60);
  RunSheet([&] { return host.DoModal(); },
           [](Sheet& sheet) -> SheetTask {
             sheet.Control(kRestoreLink).Focus();
             sheet.ExpectBox(kQuestion);
             sheet.Key(VK_RETURN);
             co_await sheet.Settled();
             EXPECT_EQ(1u, sheet.Boxes().size());
             EXPECT_TRUE(sheet.IsOpen());
             EXPECT_EQ(L"", FirstText(sheet));
             sheet.PressCancel();
           });
}

// Restores the factory state and presses a button.
Sheet::Body RestoreAndPress(int button) {
  return [button](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(L"(PDF size)", FirstText(sheet));
    sheet.ExpectBox(kQuestion);
    sheet.Control(kRestoreLink).Click();
    co_await sheet.Settled();
    EXPECT_EQ(L"", FirstText(sheet));
    sheet.Press(button);
  };
}

TEST(Cockpit, RestoringReachesTheHostAtOk) {
  HostDialog host;
  host.Set(0, L"GraphicJpegQuality", 60).Set(1, L"GraphicJpegQuality", 70);
  RunSheet([&] { return host.DoModal(); }, RestoreAndPress(IDOK));
  EXPECT_EQ(85, host.Long(0, L"GraphicJpegQuality"));
  EXPECT_EQ(70, host.Long(1, L"GraphicJpegQuality"));
}

TEST(Cockpit, RestoringReachesNobodyAtCancel) {
  HostDialog host;
  host.Set(0, L"GraphicJpegQuality", 60);
  RunSheet([&] { return host.DoModal(); }, RestoreAndPress(IDCANCEL));
  EXPECT_EQ(60, host.Long(0, L"GraphicJpegQuality"));
}

TEST(Cockpit, RestoringOneTabLeavesTheOtherAsTheHostHasIt) {
  HostDialog host;
  host.Set(1, L"Used", 1).Set(0, L"GraphicJpegQuality", 60).Set(1, L"GraphicJpegQuality", 70);
  RunSheet([&] { return host.DoModal(); },
           [](Sheet& sheet) -> SheetTask {
             sheet.SelectTab(0);
             co_await sheet.Settled();
             sheet.ExpectBox(kQuestion);
             sheet.Control(kRestoreLink).Click();
             sheet.SelectTab(1);
             co_await sheet.Settled();
             EXPECT_EQ(L"(PDF size)", FirstText(sheet));
             sheet.PressOk();
           });
  EXPECT_EQ(85, host.Long(0, L"GraphicJpegQuality"));
  EXPECT_EQ(70, host.Long(1, L"GraphicJpegQuality"));
}

TEST(Cockpit, RestoringLeavesWhatAnAdministratorHasFixed) {
  const TestDriver driver;
  const TestPrinter printer(L"Invoices");
  const DriverFile general(driver, L"NEMpdf.conf", "GraphicJpegQuality_Override = 60\r\n");
  HostDialog host;
  host.Set(NEMPDFUI_GENERAL, L"PrinterName", L"Invoices");
  host.Set(0, L"GraphicJpegQuality", 60).Set(0, L"GraphicResolution", 300);
  RunSheet([&] { return host.DoModal(); },
           [](Sheet& sheet) -> SheetTask {
             sheet.ExpectBox(kQuestion);
             sheet.Control(kRestoreLink).Click();
             co_await sheet.Settled();
             EXPECT_EQ(L"(PDF size)", FirstText(sheet)) << "the fixed value still differs";
             sheet.PressOk();
           });
  EXPECT_EQ(60, host.Long(0, L"GraphicJpegQuality"));
  EXPECT_EQ(600, host.Long(0, L"GraphicResolution"));
}

// The fixed bit of the one page stands beside the free ones of the other.
TEST(Cockpit, RestoringTheStartActionLeavesTheBitThatIsFixed) {
  const TestDriver driver;
  const TestPrinter printer(L"Invoices");
  const DriverFile general(driver, L"NEMpdf.conf", "StartActionMailCheck_Override = 1\r\n");
  HostDialog host;
  host.Set(NEMPDFUI_GENERAL, L"PrinterName", L"Invoices").Set(0, L"StartAction", 2 | 4);
  constexpr int kActions = 10, kMail = 11;  // rows
  RunSheet([&] { return host.DoModal(); },
           [=](Sheet& sheet) -> SheetTask {
             sheet.ExpectBox(kQuestion);
             sheet.Control(kRestoreLink).Click();
             co_await sheet.Settled();
             EXPECT_EQ(L"", sheet.Control(kFirstText + kActions).Text());
             EXPECT_EQ(L"(E-Mail)", sheet.Control(kFirstText + kMail).Text());
             sheet.PressOk();
           });
  EXPECT_EQ(1 | 2, host.Long(0, L"StartAction"));
}

}  // namespace
