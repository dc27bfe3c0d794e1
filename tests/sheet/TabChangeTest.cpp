// Changing the tab: by mouse, by keyboard and by message, all by the same two steps.
#include <gtest/gtest.h>

#include <stdexcept>

#include "resources/ResourceIds.h"
#include "support/TracedThread.h"
#include "TestSheet.h"

using namespace sheet_test;

namespace {

// Each way leads from the tab that is shown to the other one.
struct Way {
  const char* name;
  void (*go)(Sheet& sheet);
};

void ByMessage(Sheet& sheet) {
  SendMessageW(sheet.Window(), PSM_SETCURSEL, static_cast<WPARAM>(1 - sheet.CurrentTab()), 0);
}

void ByArrow(Sheet& sheet) {
  SetFocus(reinterpret_cast<HWND>(SendMessageW(sheet.Window(), PSM_GETTABCONTROL, 0, 0)));
  sheet.Key(sheet.CurrentTab() == 0 ? VK_RIGHT : VK_LEFT);
}

const Way kWays[] = {
    {"Mouse", [](Sheet& sheet) { sheet.SelectTab(1 - sheet.CurrentTab()); }},
    {"CtrlTab", [](Sheet& sheet) { sheet.Key(VK_TAB, {VK_CONTROL}); }},
    {"CtrlShiftTab",
     [](Sheet& sheet) {
       sheet.Key(VK_TAB, {VK_CONTROL, VK_SHIFT});
     }},
    {"CtrlPageDown", [](Sheet& sheet) { sheet.Key(VK_NEXT, {VK_CONTROL}); }},
    {"CtrlPageUp", [](Sheet& sheet) { sheet.Key(VK_PRIOR, {VK_CONTROL}); }},
    {"Message", ByMessage},
    {"ArrowOnTheTabs", ByArrow},
};

void PrintTo(const Way& way, std::ostream* stream) { *stream << way.name; }

// The sheet with both tabs, open on the second one.
class TabChange : public testing::TestWithParam<Way> {
 protected:
  TabChange() { test_.OfferDocument(); }

  static std::string AllOf(const std::vector<std::string>& log) {
    std::string all;
    for (const std::string& event : log) all += event + ", ";
    return all;
  }

  TestSheet test_;
};

std::string NameOf(const testing::TestParamInfo<Way>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Ways, TabChange, testing::ValuesIn(kWays), NameOf);

// A change that is refused. Wine's tab control takes no refusal of its arrow keys: there they are left out.
class TabRefusal : public TabChange {};

auto RefusableWays() {
  const bool isWine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  return testing::ValuesIn(std::begin(kWays), std::end(kWays) - (isWine ? 1 : 0));
}

INSTANTIATE_TEST_SUITE_P(Ways, TabRefusal, RefusableWays(), NameOf);

TEST_P(TabChange, AsksTheOldPageOnceWritesItAndShowsTheNewOne) {
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(1, sheet.CurrentTab());
    test_.log.clear();
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(0, sheet.CurrentTab());
    EXPECT_EQ("1/120 kill active, 1/120 save, 1/120 write, 0/120 set active, 0/120 load, ", AllOf(test_.TakeLog()));
    EXPECT_EQ(0, test_.Page(120).SettingsIndex());
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(1, sheet.CurrentTab());
    EXPECT_EQ("0/120 kill active, 0/120 save, 0/120 write, 1/120 set active, 1/120 load, ", AllOf(test_.TakeLog()));
    sheet.PressCancel();
  });
}

TEST_P(TabChange, EveryCreatedPageOfTheTabIsWritten) {
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.SelectPage(108);
    co_await sheet.Settled();
    sheet.Control(kValueEdit).SetText(L"450");
    test_.log.clear();
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(1, test_.Count("1/120 write"));
    EXPECT_EQ(1, test_.Count("1/108 write"));
    EXPECT_EQ(0, test_.Count("1/100 write"));
    EXPECT_EQ(450, test_.Properties().GraphicResolution[1].GetLong()) << "the other tab compares with fresh values";
    sheet.PressCancel();
  });
}

// A loaded page reads nothing in it, but each is asked: what it does about it is its own affair.
TEST_P(TabChange, EveryCreatedPageOfTheNewTabIsAskedToReadAndMayFail) {
  std::vector<int> asked;
  bool fails = false;  // not at the first reading: the page would not come up
  for (const int id : {100, 108, 120})
    test_.Script(0, id).onRead = [&asked, &fails](TestPage& page) {
      asked.push_back(page.GetPageId());
      return !fails;
    };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    GetParam().go(sheet);
    co_await sheet.Settled();
    sheet.SelectPage(108);
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(1, sheet.CurrentTab());
    asked.clear();
    fails = true;
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(0, sheet.CurrentTab()) << "the change has happened";
    EXPECT_EQ((std::vector<int>{120, 108}), asked);
    EXPECT_EQ(108, test_.CurrentId());
    sheet.PressCancel();
  });
}

TEST_P(TabRefusal, PageThatRefusesKeepsItsTab) {
  test_.Script(1, 120).onSave = [this](TestPage& page) { return page.value != 13; };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.Control(kValueEdit).SetText(L"13");
    test_.log.clear();
    sheet.ExpectBox(InvalidDataBox());
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(1, sheet.CurrentTab());
    EXPECT_EQ("1/120 kill active, 1/120 save, ", AllOf(test_.TakeLog())) << "nothing is written";
    EXPECT_EQ(kValueEdit, sheet.FocusedId()) << "the user is led to what is wrong";
    sheet.Control(kValueEdit).SetText(L"14");
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(0, sheet.CurrentTab());
    sheet.PressCancel();
  });
}

TEST_P(TabRefusal, ExchangeThatFailsKeepsTheTab) {
  test_.Script(1, 120).onWrite = [](TestPage&) { return false; };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(1, sheet.CurrentTab());
    sheet.PressCancel();
  });
}

TEST_P(TabRefusal, BoxOfThePageComesOnce) {
  test_.Script(1, 120).onKillActive = [](TestPage& page) {
    return MessageBoxW(page.Handle(), L"Leave?", L"Page", MB_YESNO) == IDYES;
  };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox({.title = L"Page", .text = L"Leave?", .button = IDNO});
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(1, sheet.CurrentTab());
    sheet.ExpectBox({.title = L"Page", .text = L"Leave?", .button = IDYES});
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(0, sheet.CurrentTab());
    sheet.PressCancel();
  });
}

TEST_P(TabRefusal, ExceptionKeepsTheTabAndIsToldOnce) {
  TracedThread trace;
  for (const bool inControls : {false, true}) {
    TestSheet test;
    const auto throwing = [](TestPage&) -> bool { throw std::runtime_error("test"); };
    (inControls ? test.Script(1, 120).onSave : test.Script(1, 120).onWrite) = throwing;
    test.OfferDocument().Drive([&](Sheet& sheet) -> SheetTask {
      trace.Lines();
      sheet.ExpectBox(InvalidDataBox(L"NEM pdf AddIn UI"));
      GetParam().go(sheet);
      co_await sheet.Settled();
      EXPECT_EQ(1, sheet.CurrentTab());
      EXPECT_EQ(sheet.Window(), sheet.Boxes().front().owner);
      const std::vector<std::wstring> lines = trace.Lines();
      EXPECT_FALSE(lines.empty());
      const wchar_t* expected = inControls ? L"NemUIPage::UpdateData: caught throwed exception"
                                           : L"NemUIPage::UpdateDataSuper: caught throwed exception";
      EXPECT_NE(std::wstring::npos, lines.front().find(expected));
      sheet.PressCancel();
    });
  }
}

TEST_P(TabRefusal, ExceptionOfThePageItselfKeepsTheTab) {
  test_.Script(1, 120).onKillActive = [](TestPage&) -> bool { throw std::runtime_error("test"); };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    GetParam().go(sheet);
    co_await sheet.Settled();
    EXPECT_EQ(1, sheet.CurrentTab());
    sheet.PressCancel();
  });
}

TEST_P(TabChange, SheetThatDiesInABoxOfThePageStaysDead) {
  const HWND owner =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  test_.Script(1, 120).onKillActive = [owner](TestPage&) {
    DestroyWindow(owner);
    return true;
  };
  EXPECT_EQ(0, test_
                   .Drive(
                       [&](Sheet& sheet) -> SheetTask {
                         GetParam().go(sheet);
                         co_await sheet.Settled();
                         EXPECT_FALSE(sheet.IsOpen());
                       },
                       owner)
                   .value);
}

// --- Beside the ways -----------------------------------------------------------------------------------------------

class TabKeys : public TabChange {};

TEST_F(TabKeys, CurrentTabAsksNobody) {
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    test_.log.clear();
    SendMessageW(sheet.Window(), PSM_SETCURSEL, 1, 0);
    sheet.SelectTab(1);
    co_await sheet.Settled();
    EXPECT_EQ("", AllOf(test_.log));
    sheet.PressCancel();
  });
}

TEST_F(TabKeys, TabThatDoesNotExistAsksNobody) {
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    test_.log.clear();
    SendMessageW(sheet.Window(), PSM_SETCURSEL, 7, 0);
    EXPECT_EQ("", AllOf(test_.log));
    EXPECT_EQ(1, sheet.CurrentTab());
    sheet.PressCancel();
    co_return;
  });
}

TEST_F(TabKeys, SeveralStepsGoRound) {
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    for (int expected : {0, 1, 0}) {
      sheet.Key(VK_TAB, {VK_CONTROL});
      co_await sheet.Settled();
      EXPECT_EQ(expected, sheet.CurrentTab());
    }
    sheet.PressCancel();
  });
}

TEST_F(TabKeys, OtherModifiersAreNotTheSheets) {
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.Control(kNotesEdit).Focus();
    for (const WORD key : {VK_TAB, VK_NEXT, VK_PRIOR}) {
      sheet.Key(key);
      sheet.Key(key, {VK_CONTROL, VK_MENU});
      co_await sheet.Settled();
      EXPECT_EQ(1, sheet.CurrentTab()) << key;
    }
    sheet.PressCancel();
  });
}

// While the sheet's own menu is up, its keys come by as well.
TEST_F(TabKeys, UnderAMenuTheyAreTheMenus) {
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    IdleLoop& loop = sheet.Queue().Loop();
    bool wasUp = false;
    PostMessageW(sheet.Window(), WM_SYSCOMMAND, SC_KEYMENU, L' ');
    sheet.Key(VK_NEXT, {VK_CONTROL});
    // Behind the key, which is posted by the step before.
    loop.Post([&] {
      loop.Post([&] {
        GUITHREADINFO info{sizeof info, 0, {}, {}, {}, {}, {}, {}, {}};
        GetGUIThreadInfo(GetCurrentThreadId(), &info);
        wasUp = (info.flags & GUI_INMENUMODE) != 0;
        EndMenu();
      });
    });
    co_await sheet.Settled();
    EXPECT_TRUE(wasUp);
    EXPECT_EQ(1, sheet.CurrentTab());
    sheet.Key(VK_NEXT, {VK_CONTROL});
    co_await sheet.Settled();
    EXPECT_EQ(0, sheet.CurrentTab());
    sheet.PressCancel();
  });
}

TEST_F(TabKeys, OneTabAlone) {
  TestSheet test;
  test.Drive([&](Sheet& sheet) -> SheetTask {
    test.log.clear();
    for (const WORD key : {VK_TAB, VK_NEXT, VK_PRIOR}) sheet.Key(key, {VK_CONTROL});
    co_await sheet.Settled();
    EXPECT_EQ("", AllOf(test.log));
    sheet.PressCancel();
  });
}

// Both hosts start while the sheet opens, the second one before its tab is selected.
TEST_F(TabKeys, PageThatStartsFindsItsSiblingsOnItsOwnTab) {
  std::vector<int> found;
  TestSheet test({Row(100), Row(108)});  // without a cockpit 108 is the first page
  for (const int index : {0, 1})
    test.Script(index, 108).onInit = [&found](TestPage& page) {
      const auto* sibling = static_cast<TestPage*>(page.Services()->FindPage(100));
      found.push_back(sibling ? sibling->SettingsIndex() : -1);
      return true;
    };
  test.OfferDocument().Drive([](Sheet& sheet) -> SheetTask {
    sheet.PressCancel();
    co_return;
  });
  EXPECT_EQ((std::vector<int>{0, 1}), found);
}

TEST_F(TabKeys, PageThatIsShownFindsItsSiblingsOnItsOwnTab) {
  std::vector<int> found;
  TestSheet test({Row(100), Row(108)});
  for (const int index : {0, 1})
    test.Script(index, 108).onSetActive = [&found](TestPage& page) {
      const auto* sibling = static_cast<TestPage*>(page.Services()->FindPage(100));
      found.push_back(sibling ? sibling->SettingsIndex() : -1);
      return true;
    };
  test.OfferDocument().Drive([&](Sheet& sheet) -> SheetTask {
    for (const Way& way : kWays) {
      way.go(sheet);
      co_await sheet.Settled();
      EXPECT_EQ(sheet.CurrentTab(), found.back()) << way.name;
    }
    sheet.PressCancel();
  });
}

class ThrowingSheet : public CPropertySheet {
 protected:
  bool OnTabChanging() override { throw std::runtime_error("test"); }
};

class PlainPage : public CPropertyPage {
 public:
  PlainPage() : CPropertyPage(IDD_NO_DOC_SETTINGS_PAGE) {}
  int asked = 0;
  bool OnKillActive() override {
    ++asked;
    return true;
  }
};

TEST(ThrowingSheet, KeepsItsTabAndAsksNoPage) {
  PlainPage first, second;
  ThrowingSheet object;
  object.AddPage(first);
  object.AddPage(second);
  RunSheet([&object] { return object.DoModal(nullptr, L"Sheet"); },
           [&](Sheet& sheet) -> SheetTask {
             sheet.SelectTab(1);
             EXPECT_EQ(FALSE, SendMessageW(sheet.Window(), PSM_SETCURSEL, 1, 0));
             co_await sheet.Settled();
             EXPECT_EQ(0, sheet.CurrentTab());
             EXPECT_EQ(0, first.asked);
             sheet.PressCancel();
           });
}

}  // namespace
