// A host page: its child pages, their order and places, and how one is selected.
#include <gtest/gtest.h>

#include <stdexcept>

#include "driver/Bar.h"
#include "driver/Pages.h"
#include "resources/ResourceIds.h"
#include "support/Accessible.h"
#include "support/PrintText.h"
#include "TestSheet.h"
#include "ui/PageCatalogue.h"

using namespace sheet_test;

namespace {

class HostPage : public testing::Test {
 protected:
  // Runs `body` in a sheet with the usual pages, which it leaves by Cancel.
  void Drive(const Sheet::Body& body) {
    test_.Drive([&body](Sheet& sheet) -> SheetTask {
      co_await body(sheet);
      if (sheet.IsOpen()) sheet.PressCancel();
    });
  }
  static int VisiblePages(Sheet& sheet) {
    int count = 0;
    for (HWND child = GetWindow(sheet.HostPage(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
      if (IsWindowVisible(child) && GetWindowLongPtrW(child, DWLP_USER)) count += HasDialogClass(child);
    return count;
  }
  static bool HasDialogClass(HWND window) {
    return GetClassLongPtrW(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
  }

  TestSheet test_;
};

// --- Finding and selecting -----------------------------------------------------------------------------------------

TEST_F(HostPage, OpensOnTheCockpit) {
  Drive([&](Sheet&) -> SheetTask {
    EXPECT_EQ(120, test_.CurrentId());
    co_return;
  });
}

TEST_F(HostPage, FindsAPageByItsNumber) {
  Drive([&](Sheet&) -> SheetTask {
    for (const int id : {100, 108, 120, 121}) {
      EXPECT_NE(nullptr, test_.Host().FindPage(id)) << id;
      EXPECT_EQ(id, test_.Page(id).GetPageId());
      EXPECT_EQ(test_.Host().FindPage(id), test_.Object().FindPage(id)) << "the sheet asks the host";
    }
    for (const int id : {122, 0, 99, 124, 109, -1}) EXPECT_EQ(nullptr, test_.Host().FindPage(id)) << id;
    co_return;
  });
}

TEST_F(HostPage, SelectPageTellsWhetherThePageIsAnotherOne) {
  Drive([&](Sheet&) -> SheetTask {
    CGlobalSettingsPage& host = test_.Host();
    EXPECT_TRUE(host.SelectPage(108));
    EXPECT_FALSE(host.SelectPage(108)) << "it is shown already";
    EXPECT_FALSE(host.SelectPage(122)) << "there is none";
    EXPECT_EQ(108, test_.CurrentId());
    EXPECT_TRUE(host.SelectPage(120));
    co_return;
  });
}

TEST_F(HostPage, CommandOfTheBarSelects) {
  Drive([&](Sheet& sheet) -> SheetTask {
    EXPECT_TRUE(sheet.SelectPage(100));
    EXPECT_FALSE(sheet.SelectPage(100));
    EXPECT_FALSE(sheet.SelectPage(122));
    EXPECT_EQ(100, test_.CurrentId());
    // The same numbers of another control are not the bar's.
    SendMessageW(sheet.HostPage(), WM_COMMAND, 108, reinterpret_cast<LPARAM>(sheet.Page()));
    SendMessageW(sheet.HostPage(), WM_COMMAND, 108, 0);
    EXPECT_EQ(100, test_.CurrentId());
    co_return;
  });
}

TEST_F(HostPage, PageThatRefusesToBeLeftStays) {
  test_.Script(0, 120).onKillActive = [](TestPage&) { return false; };
  Drive([&](Sheet& sheet) -> SheetTask {
    EXPECT_FALSE(sheet.SelectPage(108));
    EXPECT_EQ(120, test_.CurrentId());
    EXPECT_FALSE(test_.Page(108).IsWindow());
    EXPECT_TRUE(test_.Page(120).IsShown());
    co_return;
  });
}

TEST_F(HostPage, PageThatRefusesToBeShownIsNot) {
  test_.Script(0, 108).onSetActive = [](TestPage&) { return false; };
  Drive([&](Sheet& sheet) -> SheetTask {
    test_.log.clear();
    EXPECT_FALSE(sheet.SelectPage(108));
    EXPECT_EQ(120, test_.CurrentId());
    EXPECT_FALSE(test_.Page(108).IsShown());
    EXPECT_EQ("0/120 load", test_.log.back()) << "the old page is shown again";
    co_return;
  });
}

TEST_F(HostPage, ClickInTheBarSelects) {
  Drive([&](Sheet& sheet) -> SheetTask {
    for (const int id : {108, 100, 120}) {
      bool shown = false;
      co_await ClickPage(sheet, id, shown);
      EXPECT_EQ(id, test_.CurrentId());
    }
  });
}

TEST_F(HostPage, ClickOnAFolderWhoseFirstPageIsMissingDoesNothing) {
  const ComScope com;
  Drive([&](Sheet& sheet) -> SheetTask {
    const ControlRef bar = sheet.Bar();
    const POINT folder = BarFolderPoint(bar.Window(), FindPageById(115)->folder);
    bar.ClickAt(folder.x, folder.y);
    co_await sheet.Settled();
    EXPECT_EQ(120, test_.CurrentId());
    EXPECT_EQ(L"Cockpit", Accessible(bar.Window()).Name(1)) << "its folder stays open";
  });
}

TEST_F(HostPage, ActivatePageSelectsByTheBarAndSaysYesInAnyCase) {
  Drive([&](Sheet& sheet) -> SheetTask {
    EXPECT_TRUE(test_.Object().ActivatePage(100));
    co_await sheet.Settled();
    EXPECT_EQ(100, test_.CurrentId());
    EXPECT_TRUE(test_.Object().ActivatePage(122));
    EXPECT_EQ(100, test_.CurrentId());
  });
}

class Probe final : public CCmdUI {
 public:
  using CCmdUI::CCmdUI;
  std::string answers;
  void Enable(bool enable) override { answers += enable ? "enabled " : "disabled "; }
  void SetCheck(bool check) override { answers += check ? "checked " : "not checked "; }
  void SetRadio(bool) override { answers += "radio "; }
  void SetText(const wchar_t*) override { answers += "text "; }
};

TEST_F(HostPage, EntryOfTheCurrentPageIsCheckedAndNoOther) {
  Drive([&](Sheet& sheet) -> SheetTask {
    for (const int current : {120, 108}) {
      sheet.SelectPage(current);
      for (int id = 100; id <= 123; ++id) {
        Probe probe(id);
        SendMessageW(sheet.HostPage(), kUpdateCommandMessage, static_cast<WPARAM>(id),
                     reinterpret_cast<LPARAM>(static_cast<CCmdUI*>(&probe)));
        EXPECT_EQ(id == current ? "checked " : "not checked ", probe.answers) << id;
      }
    }
    for (const int id : {99, 124}) {
      Probe probe(id);
      SendMessageW(sheet.HostPage(), kUpdateCommandMessage, static_cast<WPARAM>(id),
                   reinterpret_cast<LPARAM>(static_cast<CCmdUI*>(&probe)));
      EXPECT_EQ("", probe.answers) << id;
    }
    co_return;
  });
}

// --- The life of the child pages -----------------------------------------------------------------------------------

TEST_F(HostPage, ChildPageIsCreatedWhenItIsFirstSelected) {
  Drive([&](Sheet& sheet) -> SheetTask {
    for (const int id : {100, 108, 121}) EXPECT_FALSE(test_.Page(id).IsWindow()) << id;
    sheet.SelectPage(108);
    EXPECT_TRUE(test_.Page(108).IsWindow());
    EXPECT_EQ(sheet.HostPage(), GetParent(test_.Page(108).Handle()));
    EXPECT_FALSE(test_.Page(100).IsWindow());
    const HWND window = test_.Page(108).Handle();
    sheet.SelectPage(120);
    sheet.SelectPage(108);
    EXPECT_EQ(window, test_.Page(108).Handle()) << "and keeps its window";
    co_return;
  });
}

TEST_F(HostPage, OnePageIsVisibleAtATime) {
  Drive([&](Sheet& sheet) -> SheetTask {
    for (const int id : {120, 108, 100, 108}) {
      sheet.SelectPage(id);
      EXPECT_TRUE(test_.Page(id).IsShown()) << id;
      EXPECT_EQ(1, VisiblePages(sheet));
    }
    co_return;
  });
}

TEST_F(HostPage, StepsOfASelection) {
  Drive([&](Sheet& sheet) -> SheetTask {
    EXPECT_EQ((std::vector<std::string>{"0/120 init", "0/120 read", "0/120 load", "0/120 set active"}),
              std::vector<std::string>(test_.log.begin(), test_.log.begin() + 4));
    test_.log.clear();
    sheet.SelectPage(108);
    EXPECT_EQ((std::vector<std::string>{"0/120 kill active", "0/120 save", "0/108 init", "0/108 read", "0/108 load",
                                        "0/108 set active"}),
              test_.TakeLog())
        << "the first showing loads nothing again";
    sheet.SelectPage(120);
    EXPECT_EQ((std::vector<std::string>{"0/108 kill active", "0/108 save", "0/120 set active", "0/120 load"}),
              test_.TakeLog());
    co_return;
  });
}

TEST_F(HostPage, PageWhoseStartFailsIsDestroyedAndNeverWritten) {
  using Step = std::function<bool(TestPage&)>;
  const std::pair<Step PageScript::*, Step> failures[] = {
      {&PageScript::onInit, [](TestPage&) { return false; }},
      {&PageScript::onInit, [](TestPage&) -> bool { throw std::runtime_error("test"); }},
      {&PageScript::onInit,
       [](TestPage& page) {
         DestroyWindow(page.Handle());
         return true;
       }},
      {&PageScript::onRead, [](TestPage&) { return false; }},
      {&PageScript::onLoad, [](TestPage&) { return false; }},
  };
  for (const auto& [step, fail] : failures) {
    TestSheet test;
    test.Properties().GraphicResolution[0].SetLong(600);
    test.Script(0, 108).*step = fail;
    EXPECT_EQ(1, test.Drive([&](Sheet& sheet) -> SheetTask {
                       EXPECT_FALSE(sheet.SelectPage(108));
                       EXPECT_EQ(120, test.CurrentId());
                       EXPECT_FALSE(test.Page(108).IsWindow());
                       EXPECT_TRUE(test.Page(120).IsShown());
                       EXPECT_EQ(1, VisiblePages(sheet));
                       EXPECT_EQ("0/120 load", test.log.back()) << "the old page goes on";
                       test.Page(108).value = 13;
                       sheet.PressOk();
                       co_return;
                     })
                     .value);
    EXPECT_EQ(0, test.Count("0/108 write"));
    EXPECT_EQ(600, test.Properties().GraphicResolution[0].GetLong());
  }
}

TEST_F(HostPage, NextPageIsShownWhenTheFirstCannotBe) {
  for (const auto step : {&PageScript::onInit, &PageScript::onLoad}) {
    TestSheet test;
    test.Script(0, 120).*step = [](TestPage&) { return false; };
    test.Drive([&](Sheet& sheet) -> SheetTask {
      EXPECT_EQ(108, test.CurrentId());
      EXPECT_FALSE(test.Page(120).IsWindow());
      sheet.PressCancel();
      co_return;
    });
  }
}

TEST_F(HostPage, WithoutAPageTheSheetStillCloses) {
  for (const int expected : {1, 0}) {
    TestSheet test{std::vector<PageCatalogueRow>()};
    EXPECT_EQ(expected, test.Drive([expected](Sheet& sheet) -> SheetTask {
                              sheet.Press(expected ? IDOK : IDCANCEL);
                              co_return;
                            })
                            .value);
  }
}

TEST_F(HostPage, ExchangesEveryCreatedPageEvenAfterAFailure) {
  test_.Script(0, 120).onWrite = [](TestPage&) { return false; };
  Drive([&](Sheet& sheet) -> SheetTask {
    sheet.SelectPage(108);
    test_.log.clear();
    EXPECT_FALSE(test_.Host().UpdateDataSuper(true));
    EXPECT_EQ((std::vector<std::string>{"0/120 write", "0/108 write"}), test_.TakeLog()) << "in the order of the tabs";
    test_.Script(0, 120).onWrite = nullptr;
    EXPECT_TRUE(test_.Host().UpdateDataSuper(true));
    test_.Script(0, 108).onWrite = [](TestPage&) { return false; };
    EXPECT_FALSE(test_.Host().UpdateDataSuper(true));
    co_return;
  });
}

TEST_F(HostPage, LoadingExchangeReadsEveryCreatedPageAndWritesNone) {
  Drive([&](Sheet& sheet) -> SheetTask {
    sheet.SelectPage(108);
    std::vector<int> read;
    for (const int id : {120, 108, 100})
      test_.Script(0, id).onRead = [&read](TestPage& page) {
        read.push_back(page.GetPageId());
        return page.GetPageId() != 120;
      };
    test_.log.clear();
    EXPECT_FALSE(test_.Host().UpdateDataSuper(false));
    EXPECT_EQ((std::vector<int>{120, 108}), read);
    EXPECT_EQ(std::vector<std::string>(), test_.TakeLog());
    test_.Script(0, 120).onRead = nullptr;
    EXPECT_TRUE(test_.Host().UpdateDataSuper(false));
    co_return;
  });
}

TEST_F(HostPage, AnswerOfTheCurrentPageIsThatOfTheHost) {
  bool agrees = true;
  test_.Script(0, 120).onSetActive = test_.Script(0, 120).onKillActive = [&agrees](TestPage&) { return agrees; };
  Drive([&](Sheet&) -> SheetTask {
    for (const bool answer : {false, true}) {
      agrees = answer;
      EXPECT_EQ(answer, test_.Host().OnSetActive());
      EXPECT_EQ(answer, test_.Host().OnKillActive());
    }
    co_return;
  });
}

TEST_F(HostPage, ExchangeWithoutCreatedPagesSucceedsAndWithoutASheetFails) {
  const PageDescription description{IDD_HOST_PAGE};
  FakeSheet sheet;
  EXPECT_TRUE(CNemUIGlobalSettingsPage(&sheet, description, 0, {}).UpdateDataSuper(true));
  EXPECT_TRUE(CNemUIGlobalSettingsPage(&sheet, description, 0, {}).UpdateDataSuper(false));
  CNemUIGlobalSettingsPage alone(nullptr, description, 0, {});
  EXPECT_FALSE(alone.UpdateDataSuper(true));
  EXPECT_EQ(L"", alone.GetHelpFilename());
  EXPECT_EQ(L"", alone.GetMsgBoxTitle());
}

TEST(HostPageStart, BeforeItNoPageIsFound) {
  FakeSheet sheet;
  CNemUIGlobalSettingsPage host(&sheet, {IDD_HOST_PAGE}, 0, AllPages());
  EXPECT_EQ(nullptr, host.FindPage(108));
  EXPECT_FALSE(host.SelectPage(108));
}

// --- Places --------------------------------------------------------------------------------------------------------

RECT InHost(Sheet& sheet, HWND window) { return CWnd(window).RectIn(CWnd(sheet.HostPage())); }

TEST_F(HostPage, BarStandsLeftOfTheTabControl) {
  for (const uint16_t language : {0x0409, 0x0401}) {
    TestSheet test;
    const LanguageScope scope(language);
    test.Drive([&](Sheet& sheet) -> SheetTask {
      const RECT bar = InHost(sheet, sheet.Bar().Window());
      const RECT tabs = InHost(sheet, sheet.HostControl(IDC_HOST_TAB).Window());
      EXPECT_EQ(10, bar.left) << "the sides are swapped in a mirrored host";
      EXPECT_EQ(tabs.left, bar.right);
      EXPECT_EQ(tabs.top, bar.top);
      EXPECT_EQ(tabs.bottom, bar.bottom);
      RECT units{106, 7, 406, 266};
      MapDialogRect(sheet.HostPage(), &units);
      EXPECT_TRUE(EqualRect(&units, &tabs)) << "the template's place";
      sheet.PressCancel();
      co_return;
    });
  }
}

TEST_F(HostPage, ChildPageStandsInTheTabControlBelowItsRow) {
  for (const uint16_t language : {0x0409, 0x0401}) {
    TestSheet test;
    const LanguageScope scope(language);
    test.Drive([&](Sheet& sheet) -> SheetTask {
      const RECT tabs = InHost(sheet, sheet.HostControl(IDC_HOST_TAB).Window());
      for (const int id : {120, 108}) {
        sheet.SelectPage(id);
        const RECT page = InHost(sheet, test.Page(id).Handle());
        EXPECT_EQ(tabs.left + 2, page.left) << "from the right side in a mirrored host";
        EXPECT_EQ(tabs.top + 2 + 20, page.top);
        EXPECT_EQ(tabs.right - tabs.left - 4, page.right - page.left);
        EXPECT_EQ(tabs.bottom - tabs.top - 4, page.bottom - page.top);
      }
      sheet.PressCancel();
      co_return;
    });
  }
}

TEST_F(HostPage, ChildPageHasNoBorder) {
  constexpr DWORD kBorders = WS_BORDER | WS_DLGFRAME | WS_THICKFRAME;
  test_.Script(0, 108).onInit = [](TestPage& page) {
    page.ChangeStyle(0, WS_BORDER | WS_DLGFRAME | WS_THICKFRAME);
    page.ChangeExtendedStyle(WS_EX_CONTROLPARENT, WS_EX_CLIENTEDGE | WS_EX_WINDOWEDGE);
    return true;
  };
  Drive([&](Sheet& sheet) -> SheetTask {
    sheet.SelectPage(108);
    EXPECT_EQ(0u, test_.Page(108).Style() & kBorders);
    EXPECT_EQ(0u, test_.Page(108).ExtendedStyle() & WS_EX_CLIENTEDGE);
    EXPECT_NE(0u, test_.Page(108).ExtendedStyle() & WS_EX_CONTROLPARENT);
    co_return;
  });
}

TEST_F(HostPage, TabControlIsNotTheUsers) {
  Drive([&](Sheet& sheet) -> SheetTask {
    const ControlRef tabs = sheet.HostControl(IDC_HOST_TAB);
    EXPECT_FALSE(tabs.IsVisible());
    EXPECT_EQ(HTTRANSPARENT, SendMessageW(tabs.Window(), WM_NCHITTEST, 0, MAKELPARAM(300, 200)));
    EXPECT_FALSE(CWnd(tabs.Window()).Style() & WS_TABSTOP);
    RECT tab{};
    SendMessageW(tabs.Window(), TCM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&tab));
    EXPECT_EQ(1, tab.right - tab.left);
    EXPECT_EQ(20, tab.bottom - tab.top);
    EXPECT_EQ(CWnd(sheet.HostPage()).Font(), CWnd(tabs.Window()).Font());
    co_return;
  });
}

// --- Keyboard ------------------------------------------------------------------------------------------------------

TEST_F(HostPage, TabLeadsFromTheBarToTheChildPageToTheSheet) {
  Drive([&](Sheet& sheet) -> SheetTask {
    for (const int page : {120, 108}) {
      sheet.SelectPage(page);
      EXPECT_EQ(sheet.Bar().Window(), GetNextDlgTabItem(sheet.HostPage(), nullptr, FALSE)) << "the bar comes first";
      sheet.Bar().Focus();
      for (const int expected : {IDC_NO_DOC_SETTINGS_LINK, kValueEdit, kNotesEdit, IDOK, IDCANCEL, IDHELP}) {
        sheet.Key(VK_TAB);
        co_await sheet.Settled();
        EXPECT_EQ(expected, sheet.FocusedId()) << page;
      }
      for (int times = 0; times < 2; ++times) {  // by way of the row of the sheet's tabs
        sheet.Key(VK_TAB);
        co_await sheet.Settled();
      }
      EXPECT_EQ(kBarId, sheet.FocusedId());
      for (int times = 0; times < 2; ++times) {
        sheet.Key(VK_TAB, {VK_SHIFT});
        co_await sheet.Settled();
      }
      EXPECT_EQ(IDHELP, sheet.FocusedId());
    }
  });
}

TEST_F(HostPage, FocusOfThePageThatIsLeftGoesToTheNewOne) {
  Drive([&](Sheet& sheet) -> SheetTask {
    for (const int id : {108, 120, 100, 108}) {
      sheet.Control(kNotesEdit).Focus();
      sheet.SelectPage(id);
      EXPECT_EQ(test_.Page(id).Item(IDC_NO_DOC_SETTINGS_LINK).Handle(), GetFocus()) << id;
    }
    co_return;
  });
}

TEST_F(HostPage, FocusElsewhereStaysThereWhenThePageChanges) {
  Drive([&](Sheet& sheet) -> SheetTask {
    for (const HWND window : {sheet.Bar().Window(), sheet.SheetControl(IDCANCEL).Window()}) {
      SetFocus(window);
      sheet.SelectPage(108);
      EXPECT_EQ(window, GetFocus());
      sheet.SelectPage(120);
      EXPECT_EQ(window, GetFocus());
    }
    co_return;
  });
}

TEST_F(HostPage, PageWithoutAStopLeavesTheFocusToTheNextControlOfTheSheet) {
  test_.Script(0, 108).onInit = [](TestPage& page) {
    for (const int id : {int{IDC_NO_DOC_SETTINGS_LINK}, kValueEdit, kNotesEdit}) page.Item(id).Enable(false);
    return true;
  };
  Drive([&](Sheet& sheet) -> SheetTask {
    sheet.Control(kNotesEdit).Focus();
    sheet.SelectPage(108);
    const HWND focus = GetFocus();
    EXPECT_NE(nullptr, focus);
    EXPECT_TRUE(IsWindowVisible(focus));
    EXPECT_TRUE(IsChild(sheet.Window(), focus));
    co_return;
  });
}

TEST_F(HostPage, PagesHaveNoDefaultButtonOfTheirOwn) {
  Drive([&](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(DWORD{MAKELONG(IDOK, DC_HASDEFID)}, static_cast<DWORD>(SendMessageW(sheet.Window(), DM_GETDEFID, 0, 0)));
    sheet.Control(kValueEdit).Focus();
    sheet.Key(VK_RETURN);
    co_await sheet.Settled();
    EXPECT_FALSE(sheet.IsOpen()) << "Enter is OK everywhere";
    EXPECT_EQ(1, test_.Count("0/120 apply"));
  });
}

}  // namespace
