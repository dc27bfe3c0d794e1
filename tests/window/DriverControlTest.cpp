// The test driver's hands and eyes: controls, keyboard, tabs.
#include <windows.h>
// behind windows.h
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "driver/Input.h"
#include "DriverFixture.h"

using namespace driver_test;
using Events = std::vector<std::string>;

namespace {

class DriverControl : public Driver {};

}  // namespace

// --- Controls ---------------------------------------------------------------------------------------------------

TEST_F(DriverControl, ClickChecksAndNotifies) {
  With([this](Sheet& sheet) -> SheetTask {
    const ControlRef check = sheet.Control(kCheck);
    check.Click();
    EXPECT_TRUE(check.IsChecked());
    check.Click();
    EXPECT_FALSE(check.IsChecked());
    EXPECT_EQ((Events{"BN_CLICKED", "BN_CLICKED"}), test_.EventsOf(kCheck));
    co_return;
  });
}

TEST_F(DriverControl, TypedTextNotifiesForEachCharacterAndKeepsTheLimit) {
  With([this](Sheet& sheet) -> SheetTask {
    const ControlRef edit = sheet.Control(kEdit);
    edit.SetText(L"123");
    EXPECT_EQ(3, test_.Count("EN_CHANGE 1002"));
    EXPECT_TRUE(edit.HasFocus());
    edit.SetText(L"12345");
    EXPECT_EQ(L"1234", edit.Text());
    edit.SetText(L"");
    EXPECT_EQ(L"", edit.Text());
    sheet.Control(kCheck).Click();
    EXPECT_EQ("EN_KILLFOCUS", test_.EventsOf(kEdit).back());
    co_return;
  });
}

TEST_F(DriverControl, ComboSelectionNotifiesAsTheMouseDoes) {
  const Events expected = {"CBN_SETFOCUS", "CBN_DROPDOWN", "CBN_SELENDOK", "CBN_CLOSEUP", "CBN_SELCHANGE"};
  With([&](Sheet& sheet) -> SheetTask {
    for (int id : {kDropList, kDropDown}) {
      sheet.Control(id).Select(12);
      EXPECT_EQ(12, sheet.Control(id).SelectedRow());
      EXPECT_EQ(L"row 12", sheet.Control(id).Text());
      Events events = test_.EventsOf(id);
      events.resize(expected.size());  // the focus goes on to the next combo behind them
      EXPECT_EQ(expected, events) << id;
    }
    EXPECT_EQ(L"row 1", test_.editTextAtSelection) << "the edit must still hold the old text";
    co_return;
  });
}

TEST_F(DriverControl, ComboSelectsByTextAndGivesItsRows) {
  With([](Sheet& sheet) -> SheetTask {
    sheet.Control(kDropList).Select(L"row 29");
    EXPECT_EQ(29, sheet.Control(kDropList).SelectedRow());
    EXPECT_EQ(30u, sheet.Control(kDropList).Rows().size());
    EXPECT_EQ(L"row 3", sheet.Control(kDropList).Row(3));
    co_return;
  });
}

TEST_F(DriverControl, TextTypedIntoAComboChangesItsEdit) {
  With([this](Sheet& sheet) -> SheetTask {
    sheet.Control(kDropDown).SetText(L"86");
    EXPECT_EQ(L"86", sheet.Control(kDropDown).Text());
    EXPECT_EQ(2, test_.Count("CBN_EDITCHANGE 1004"));
    co_return;
  });
}

TEST_F(DriverControl, ListsSelectAndCheck) {
  With([this](Sheet& sheet) -> SheetTask {
    sheet.Control(kListBox).Select(25);
    EXPECT_EQ(25, sheet.Control(kListBox).SelectedRow());
    EXPECT_EQ((Events{"LBN_SELCHANGE"}), test_.EventsOf(kListBox));
    const ControlRef list = sheet.Control(kListView);
    list.Select(1);
    list.CheckRow(2, true);
    EXPECT_EQ(1, list.SelectedRow());
    EXPECT_TRUE(list.IsRowChecked(2));
    EXPECT_FALSE(list.IsRowChecked(1));
    EXPECT_EQ(L"file 2", list.Row(2, 1));
    EXPECT_EQ((Events{"LVN_ITEMCHANGED"}), test_.EventsOf(kListView));
    co_return;
  });
}

TEST_F(DriverControl, ScrollBarsAndSlidersNotifyTheirParent) {
  With([this](Sheet& sheet) -> SheetTask {
    const ControlRef bar = sheet.Control(kScrollBar);
    EXPECT_EQ(2400, bar.Maximum());
    bar.DragTo(2400);
    EXPECT_EQ(2400, bar.Position());
    bar.DragTo(17);
    bar.Scroll(SB_LINEDOWN);
    EXPECT_EQ(18, bar.Position());
    EXPECT_EQ((Events{"scroll code 5", "scroll code 4", "scroll code 8", "scroll code 5", "scroll code 4",
                      "scroll code 8", "scroll code 1", "scroll code 8"}),
              test_.EventsOf(kScrollBar));
    const ControlRef slider = sheet.Control(kSlider);
    slider.DragTo(4);
    slider.Scroll(SB_LINEDOWN);
    EXPECT_EQ(5, slider.Position());
    EXPECT_EQ((Events{"scroll code 5", "scroll code 4", "scroll code 8", "scroll code 1", "scroll code 8"}),
              test_.EventsOf(kSlider));
    co_return;
  });
}

TEST_F(DriverControl, WhatAUserCannotDoIsAFailure) {
  With([](Sheet& sheet) -> SheetTask {
    EXPECT_NONFATAL_FAILURE(sheet.Control(4711).Click(), "Cannot click control 4711: there is none");
    EXPECT_NONFATAL_FAILURE(sheet.Control(kDisabled).Click(), "it is disabled");
    EXPECT_NONFATAL_FAILURE(sheet.Control(kHidden).Click(), "it is hidden");
    EXPECT_NONFATAL_FAILURE(sheet.Control(kReadOnly).SetText(L"x"), "it is read-only");
    EXPECT_NONFATAL_FAILURE(sheet.Control(kCheck).SetText(L"x"), "it has no edit");
    EXPECT_NONFATAL_FAILURE(sheet.Control(kDropList).Select(30), "Cannot select row 30 of 30");
    EXPECT_NONFATAL_FAILURE(sheet.Control(kDropList).Select(L"row 30"), "No row \"row 30\"");
    EXPECT_NONFATAL_FAILURE(sheet.Control(kScrollBar).DragTo(2401), "it ends at 0 and 2400");
    EXPECT_NONFATAL_FAILURE(sheet.SelectTab(2), "There is no tab 2");
    co_return;
  });
  EXPECT_FALSE(test_.Saw("BN_CLICKED 1014"));
}

TEST_F(DriverControl, PostedMouseClickArrivesWhenSettled) {
  With([this](Sheet& sheet) -> SheetTask {
    sheet.Control(kCheck).ClickAt(5, 5);
    EXPECT_EQ(0, test_.Count("BN_CLICKED 1001"));
    co_await sheet.Settled();
    EXPECT_EQ(1, test_.Count("BN_CLICKED 1001"));
  });
}

// --- Keyboard ---------------------------------------------------------------------------------------------------

TEST_F(DriverControl, TabKeyMovesTheFocus) {
  With([](Sheet& sheet) -> SheetTask {
    sheet.Control(kCheck).Focus();
    sheet.Key(VK_TAB);
    co_await sheet.Settled();
    EXPECT_EQ(kEdit, sheet.FocusedId());
    sheet.Key(VK_TAB);
    sheet.Key(VK_TAB);
    co_await sheet.Settled();
    EXPECT_EQ(kDropDown, sheet.FocusedId());
    sheet.Key(VK_TAB, {VK_SHIFT});
    co_await sheet.Settled();
    EXPECT_EQ(kDropList, sheet.FocusedId());
    EXPECT_EQ(0, GetKeyState(VK_SHIFT) & 0x8000);
  });
}

TEST_F(DriverControl, AccessKeysAndTypingReachTheControls) {
  With([this](Sheet& sheet) -> SheetTask {
    sheet.Control(kCheck).Focus();
    sheet.Key('N', {VK_MENU});
    co_await sheet.Settled();
    EXPECT_EQ(kEdit, sheet.FocusedId());
    sheet.Type(L"a\x00E4");
    co_await sheet.Settled();
    EXPECT_EQ(L"a\x00E4", sheet.Control(kEdit).Text());
    sheet.Key('K', {VK_MENU});
    co_await sheet.Settled();
    EXPECT_TRUE(sheet.Control(kCheck).IsChecked());
    sheet.Key(VK_SPACE);
    co_await sheet.Settled();
    EXPECT_FALSE(sheet.Control(kCheck).IsChecked());
    sheet.ExpectBox({.title = kBoxTitle, .text = kBoxText, .icon = MB_ICONWARNING, .button = IDNO});
    sheet.Key('X', {VK_MENU});
    co_await sheet.Settled();
    EXPECT_EQ(IDNO, test_.lastBoxAnswer);
  });
}

TEST_F(DriverControl, EnterIsOkAndEscIsCancel) {
  for (WORD key : {VK_RETURN, VK_ESCAPE}) {
    const auto result = RunSheet([this] { return test_.Show(); },
                                 [key](Sheet& sheet) -> SheetTask {
                                   sheet.Control(kCheck).Focus();
                                   sheet.Key(key);
                                   co_await sheet.Settled();
                                   EXPECT_FALSE(sheet.IsOpen());
                                 });
    EXPECT_EQ(key == VK_RETURN ? 1 : 0, result.value);
  }
}

TEST_F(DriverControl, ModifiersAreHeldWhileTheKeyArrives) {
  With([](Sheet& sheet) -> SheetTask {
    const ControlRef edit = sheet.Control(kReadOnly);
    SetWindowTextW(edit.Window(), L"ab cd");
    edit.Focus();
    const auto selection = [&edit] { return static_cast<DWORD>(SendMessageW(edit.Window(), EM_GETSEL, 0, 0)); };
    sheet.Key(VK_END);
    sheet.Key(VK_LEFT, {VK_CONTROL});
    co_await sheet.Settled();
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(3, 3)), selection());
    sheet.Key(VK_HOME, {VK_CONTROL, VK_SHIFT});
    co_await sheet.Settled();
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(0, 3)), selection());
  });
}

TEST_F(DriverControl, InputOfTheSystemReachesTheSheet) {
  With([this](Sheet& sheet) -> SheetTask {
    SetForegroundWindow(sheet.Window());
    sheet.Control(kEdit).Focus();
    real_input::Text(L"ok");
    co_await sheet.Settled();
    EXPECT_EQ(L"ok", sheet.Control(kEdit).Text());
    RECT bounds = {};
    GetWindowRect(sheet.Control(kCheck).Window(), &bounds);
    real_input::Click({bounds.left + 6, (bounds.top + bounds.bottom) / 2});
    co_await sheet.Settled();
    EXPECT_TRUE(sheet.Control(kCheck).IsChecked());
    real_input::Key(VK_TAB);
    co_await sheet.Settled();
    EXPECT_EQ(kEdit, sheet.FocusedId());
  });
}

// --- Tabs, pages, buttons of the sheet --------------------------------------------------------------------------

TEST_F(DriverControl, ClickOnATabAsksTheOldPage) {
  With([this](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(2, sheet.TabCount());
    EXPECT_EQ(L"Document", sheet.TabText(1));
    test_.refuseKillActive = true;
    sheet.SelectTab(1);
    EXPECT_EQ(0, sheet.CurrentTab());
    test_.refuseKillActive = false;
    sheet.SelectTab(1);
    co_await sheet.Settled();
    EXPECT_EQ(1, sheet.CurrentTab());
    EXPECT_EQ(2, test_.Count("kill active 0"));
  });
  EXPECT_TRUE(test_.Saw("apply 0"));
  EXPECT_TRUE(test_.Saw("apply 1"));
}

TEST_F(DriverControl, FindsHostAndChildPage) {
  With([this](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(sheet.HostPage(), GetParent(sheet.Page()));
    EXPECT_EQ(108, sheet.PageId());
    EXPECT_TRUE(sheet.SelectPage(kFirstPage));
    EXPECT_FALSE(sheet.SelectPage(kSecondPage));
    EXPECT_TRUE(test_.Saw("command 109"));
    EXPECT_EQ(100, sheet.Bar().Id());
    EXPECT_TRUE(sheet.Bar().IsVisible());
    co_return;
  });
}

TEST_F(DriverControl, HelpButtonAsksThePage) {
  With([this](Sheet& sheet) -> SheetTask {
    sheet.PressHelp();
    co_await sheet.Settled();
    EXPECT_TRUE(test_.Saw("help"));
  });
}
