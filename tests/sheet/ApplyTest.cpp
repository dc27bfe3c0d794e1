// OK: who is asked, who may refuse, and what the user is told.
#include <gtest/gtest.h>

#include <stdexcept>

#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/NEMPrintMemoryException.h"
#include "resources/ResourceIds.h"
#include "support/TracedThread.h"
#include "TestSheet.h"

using namespace sheet_test;

namespace {

class Apply : public testing::Test {
 protected:
  TestSheet test_;
};

TEST_F(Apply, PageThatCannotBeLeftKeepsTheSheetAndIsToldOnce) {
  test_.Script(0, 120).onSave = [](TestPage& page) { return page.value != 13; };
  EXPECT_EQ(1, test_
                   .Drive([&](Sheet& sheet) -> SheetTask {
                     sheet.Control(kValueEdit).SetText(L"13");
                     test_.log.clear();
                     sheet.ExpectBox(InvalidDataBox());
                     sheet.PressOk();
                     co_await sheet.Settled();
                     EXPECT_TRUE(sheet.IsOpen());
                     EXPECT_EQ((std::vector<std::string>{"0/120 kill active", "0/120 save"}), test_.TakeLog());
                     EXPECT_EQ(kValueEdit, sheet.FocusedId());
                     sheet.Control(kValueEdit).SetText(L"14");
                     sheet.PressOk();
                   })
                   .value);
  EXPECT_EQ(14, test_.Properties().Scale[0].GetLong());
}

// A page that is not shown fails only when it is applied.
TEST_F(Apply, FailedExchangeOfControlsIsToldOnceAndKeepsTheSheetAndThePage) {
  bool fails = true;
  test_.Script(0, 108).onSave = [&fails](TestPage& page) { return !fails || page.value == 0; };
  EXPECT_EQ(0, test_
                   .Drive([&](Sheet& sheet) -> SheetTask {
                     sheet.SelectPage(108);
                     fails = false;
                     sheet.Control(kValueEdit).SetText(L"13");
                     sheet.SelectPage(100);
                     fails = true;
                     sheet.ExpectBox(InvalidDataBox());
                     sheet.PressOk();
                     co_await sheet.Settled();
                     EXPECT_TRUE(sheet.IsOpen());
                     EXPECT_EQ(100, test_.CurrentId()) << "no change of page";
                     EXPECT_TRUE(IsWindowVisible(GetFocus())) << "the keyboard stays on what is shown";
                     EXPECT_EQ(sheet.Window(), sheet.Boxes().front().owner);
                     sheet.PressCancel();
                   })
                   .value);
}

TEST_F(Apply, FailedExchangeOfPropertiesIsToldOnce) {
  test_.Script(0, 120).onWrite = [](TestPage&) { return false; };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(InvalidDataBox());
    sheet.PressOk();
    co_await sheet.Settled();
    EXPECT_TRUE(sheet.IsOpen());
    sheet.PressCancel();
  });
}

TEST_F(Apply, BoxHasAnEmptyTitleWhenTheHostGaveNone) {
  test_.Properties().MsgBoxTitle.SetString(L"");
  test_.Script(0, 120).onWrite = [](TestPage&) { return false; };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(InvalidDataBox(L""));
    sheet.PressOk();
    sheet.PressCancel();
    co_return;
  });
}

TEST_F(Apply, FailureOfOnePageDoesNotStopTheOthers) {
  test_.Script(0, 120).onWrite = [](TestPage&) { return false; };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.SelectPage(108);
    test_.log.clear();
    sheet.ExpectBox(InvalidDataBox());
    sheet.PressOk();
    co_await sheet.Settled();
    EXPECT_EQ((std::vector<std::string>{"0/108 kill active", "0/108 save", "0/120 apply", "0/120 save", "0/120 write",
                                        "0/108 apply", "0/108 save", "0/108 write"}),
              test_.TakeLog())
        << "the host does not write once more";
    sheet.PressCancel();
  });
}

TEST_F(Apply, EachPageThatFailsIsToldOnce) {
  for (const int id : {120, 108}) test_.Script(0, id).onWrite = [](TestPage&) { return false; };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.SelectPage(108);
    sheet.ExpectBox(InvalidDataBox());
    sheet.ExpectBox(InvalidDataBox());
    sheet.PressOk();
    co_await sheet.Settled();
    EXPECT_EQ(2u, sheet.Boxes().size());
    sheet.PressCancel();
  });
}

// 2 tells the platform of invalid data and leaves the page that is shown; 1 would show the one that failed.
TEST_F(Apply, AnswerToThePlatformIsTwoWhenItFails) {
  bool fails = true;
  test_.Script(0, 120).onWrite = [&fails](TestPage&) { return !fails; };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    PSHNOTIFY notify{{sheet.Window(), 0, static_cast<UINT>(PSN_APPLY)}, 0};
    const auto apply = [&] { return SendMessageW(sheet.HostPage(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notify)); };
    sheet.ExpectBox(InvalidDataBox());
    EXPECT_EQ(2, apply());
    fails = false;
    EXPECT_EQ(0, apply());
    sheet.PressCancel();
    co_return;
  });
}

TEST_F(Apply, PageThatHasSpokenSilencesTheSheet) {
  test_.Script(0, 120).onWrite = [](TestPage& page) {
    MsgBox(page.Handle(), L"Page", L"It is wrong.", MB_OK | MB_ICONWARNING);
    return false;
  };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox({.title = L"Page", .text = L"It is wrong.", .icon = MB_ICONWARNING});
    sheet.PressOk();
    co_await sheet.Settled();
    EXPECT_TRUE(sheet.IsOpen());
    sheet.PressCancel();
  });
}

TEST_F(Apply, ExceptionOfThePropertyExchangeIsTracedAndToldOnce) {
  const std::function<void()> kinds[] = {[] { throw std::runtime_error("test"); }, [] { throw 5; },
                                         [] { throw new NEMPrintMemoryException; }};
  TracedThread trace;
  for (const auto& throwIt : kinds) {
    TestSheet test;
    test.Script(0, 120).onWrite = [&throwIt](TestPage&) {
      throwIt();
      return true;
    };
    EXPECT_EQ(0, test.Drive([&](Sheet& sheet) -> SheetTask {
                       trace.Lines();
                       sheet.ExpectBox(InvalidDataBox(L"NEM pdf AddIn UI"));
                       sheet.PressOk();
                       co_await sheet.Settled();
                       EXPECT_TRUE(sheet.IsOpen());
                       const std::vector<std::wstring> lines = trace.Lines();
                       CO_ASSERT_FALSE(lines.empty());
                       EXPECT_NE(std::wstring::npos,
                                 lines.front().find(L"NemUIPage::UpdateDataSuper: caught throwed exception"));
                       sheet.PressCancel();
                     })
                     .value);
  }
}

TEST_F(Apply, ExceptionOfTheControlExchangeIsToldOnceAndKeepsTheSheet) {
  test_.Script(0, 120).onSave = [](TestPage&) -> bool { throw std::runtime_error("test"); };
  test_.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(InvalidDataBox(L"NEM pdf AddIn UI"));
    sheet.PressOk();
    co_await sheet.Settled();
    EXPECT_TRUE(sheet.IsOpen());
    sheet.PressCancel();
  });
}

TEST_F(Apply, ExceptionOfThePageItselfKeepsTheSheet) {
  test_.Script(0, 120).onKillActive = [](TestPage&) -> bool { throw std::runtime_error("test"); };
  EXPECT_EQ(0, test_
                   .Drive([&](Sheet& sheet) -> SheetTask {
                     sheet.PressOk();
                     co_await sheet.Settled();
                     EXPECT_TRUE(sheet.IsOpen());
                     EXPECT_EQ(0, test_.Count("0/120 apply"));
                     sheet.PressCancel();
                   })
                   .value);
}

class ThrowingApply : public CPropertyPage {
 public:
  ThrowingApply() : CPropertyPage(IDD_NO_DOC_SETTINGS_PAGE) {}
  bool throws = true;
  bool OnApply() override {
    if (throws) throw std::runtime_error("test");
    return true;
  }
};

TEST_F(Apply, ExceptionOfAnApplyKeepsTheSheet) {
  ThrowingApply page;
  struct : CPropertySheet {
  } sheetObject;
  sheetObject.AddPage(page);
  EXPECT_EQ(1, RunSheet([&] { return sheetObject.DoModal(nullptr, L"Sheet"); },
                        [&](Sheet& sheet) -> SheetTask {
                          sheet.PressOk();
                          co_await sheet.Settled();
                          EXPECT_TRUE(sheet.IsOpen());
                          page.throws = false;
                          sheet.PressOk();
                        })
                   .value);
}

TEST_F(Apply, BothTabsAreAskedAndOneThatFailsKeepsTheSheet) {
  test_.OfferDocument();
  bool fails = true;
  test_.Script(0, 120).onWrite = [&fails](TestPage&) { return !fails; };
  EXPECT_EQ(1, test_
                   .Drive([&](Sheet& sheet) -> SheetTask {
                     sheet.ExpectBox(InvalidDataBox());
                     sheet.PressOk();
                     co_await sheet.Settled();
                     EXPECT_TRUE(sheet.IsOpen());
                     EXPECT_EQ(1, sheet.CurrentTab());
                     fails = false;
                     test_.log.clear();
                     sheet.PressOk();
                     co_await sheet.Settled();
                     EXPECT_EQ(1, test_.Count("0/120 apply"));
                     EXPECT_EQ(1, test_.Count("1/120 apply"));
                   })
                   .value);
}

TEST_F(Apply, CancelAfterARefusedOkGivesZero) {
  const PlatformSaysOne platform;
  test_.OfferDocument();
  test_.Script(1, 120).onWrite = [](TestPage&) { return false; };  // the first tab has accepted by then
  EXPECT_EQ(0, test_
                   .Drive([&](Sheet& sheet) -> SheetTask {
                     sheet.ExpectBox(InvalidDataBox());
                     sheet.PressOk();
                     sheet.PressCancel();
                     co_return;
                   })
                   .value);
}

TEST_F(Apply, OwnerThatDiesInAnApplyGivesZero) {
  const PlatformSaysOne platform;
  const HWND owner =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  test_.Script(0, 120).onWrite = [owner](TestPage&) {
    DestroyWindow(owner);
    return true;
  };
  EXPECT_EQ(0, test_
                   .Drive(
                       [](Sheet& sheet) -> SheetTask {
                         sheet.PressOk();
                         co_return;
                       },
                       owner)
                   .value);
}

}  // namespace
