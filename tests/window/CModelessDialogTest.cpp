// A modeless dialog beside a sheet: its keys, its lock, its place, and its ends.
#include "window/CModelessDialog.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "driver/Input.h"
#include "driver/SheetDriver.h"
#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/WindowThreadState.h"
#include "support/FakeSheet.h"
#include "TestDialogs.h"

namespace {

constexpr WORD kSheet = 9001, kHost = 9002, kModeless = 9003;
enum : int { kSheetEdit = 100, kEdit, kFirstRadio, kSecondRadio, kAccept };
constexpr UINT kAccepted = WM_APP + 40, kCancelled = WM_APP + 41;

DialogTemplate Modeless() {
  DialogTemplate dialog(WS_POPUP | WS_CAPTION | WS_SYSMENU, {150, 110}, L"Modeless");
  dialog.Add(L"Edit", kEdit, At(7, 7, 50, 14), L"", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL);
  dialog.Add(L"Button", kFirstRadio, At(7, 30, 80, 10), L"&First", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP);
  dialog.Add(L"Button", kSecondRadio, At(7, 44, 80, 10), L"&Second", BS_AUTORADIOBUTTON);
  dialog.Add(L"Button", kAccept, At(7, 90, 50, 14), L"&OK", BS_DEFPUSHBUTTON | WS_GROUP | WS_TABSTOP);
  return dialog;
}

class TestModeless final : public CModelessDialog {
 public:
  TestModeless() : CModelessDialog(kModeless) {}
  bool modified = false;
  bool inHook = false;  // a command came while a hook was running
  std::function<void(TestModeless&)> onAccept;

 private:
  bool IsModified() const override { return modified; }
  void OnCancel() override { PostToPage(kCancelled, 7); }
  bool OnWindowMessage(WindowMessage& message) override {
    if (message.message == WM_COMMAND && message.Notification() == BN_CLICKED) inHook |= PostponesCommands();
    if (message.message == WM_COMMAND && message.CommandId() == kAccept) {
      PostToPage(kAccepted);
      if (onAccept) onAccept(*this);
      return true;
    }
    return CModelessDialog::OnWindowMessage(message);
  }
};

class Plain final : public CDialog {
 public:
  using CDialog::CDialog;
  std::vector<UINT> told;
  std::function<void()> onInit;

 private:
  BOOL OnInitDialog() override {
    if (onInit) onInit();
    return CDialog::OnInitDialog();
  }
  bool OnWindowMessage(WindowMessage& message) override {
    if (message.message == kAccepted || message.message == kCancelled) told.push_back(message.message);
    return CDialog::OnWindowMessage(message);
  }
};

class ModelessDialog : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    DialogTemplate sheet(WS_POPUP | WS_VISIBLE | WS_CAPTION, {120, 100}, L"Sheet");
    sheet.Add(L"Edit", kSheetEdit, At(7, 7, 50, 14), L"", WS_BORDER | WS_TABSTOP);
    sheet.Add(L"Button", IDOK, At(7, 80, 50, 14), L"OK", BS_DEFPUSHBUTTON | WS_TABSTOP);
    dialogs_ = std::make_unique<TestDialogs>(std::initializer_list<TestDialogs::Row>{
        {kSheet, 0, sheet},
        {kHost, 0, DialogTemplate(WS_CHILD | WS_VISIBLE | DS_CONTROL, {60, 40}, L"", WS_EX_CONTROLPARENT)},
        {kModeless, 0, Modeless()}});
  }
  static void TearDownTestSuite() { dialogs_.reset(); }

  // The body runs with the dialog open beside a modal sheet with host and page.
  void Run(const Sheet::Body& body) {
    sheet_.onInit = [this] {
      ASSERT_TRUE(host_.Create(sheet_.Handle()));
      ASSERT_TRUE(page_.Create(host_.Handle()));
    };
    RunSheet([this] { return sheet_.DoModal(nullptr); },
             [&](Sheet& sheet) -> SheetTask {
               sheet.ExpectDialog([](HWND) {});
               EXPECT_TRUE(dialog_->Open(page_));
               co_await sheet.Settled();
               dialog_->Activate();
               co_await body(sheet);
               if (dialog_) dialog_->Close();
               if (sheet.IsOpen()) sheet.Press(IDOK);
             });
  }
  bool IsLocked() const { return !IsWindowEnabled(sheet_.Handle()); }
  void LockNow() {
    dialog_->modified = true;
    dialog_->UpdateLock();
    EXPECT_TRUE(IsLocked());
  }
  static int FocusId() { return GetDlgCtrlID(GetFocus()); }

  static std::unique_ptr<TestDialogs> dialogs_;
  LanguageScope english_{kEnglish};
  Plain sheet_{kSheet}, host_{kHost}, page_{kHost};
  std::unique_ptr<TestModeless> dialog_ = std::make_unique<TestModeless>();
};

std::unique_ptr<TestDialogs> ModelessDialog::dialogs_;

TEST_F(ModelessDialog, KeysLeadThroughTheDialog) {
  Run([&](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(kEdit, FocusId());
    sheet.Type(L"ab");
    sheet.Key(VK_TAB);
    co_await sheet.Settled();
    EXPECT_EQ(L"ab", std::wstring(dialog_->Item(kEdit).Text().Text()));
    EXPECT_EQ(kFirstRadio, FocusId());
    sheet.Key(VK_DOWN);
    co_await sheet.Settled();
    EXPECT_TRUE(CButton(dialog_->Item(kSecondRadio)).IsChecked());
    sheet.Key(VK_TAB, {VK_SHIFT});
    co_await sheet.Settled();
    EXPECT_EQ(kEdit, FocusId());
    EXPECT_TRUE(page_.told.empty());
    sheet.Key(VK_RETURN);
    co_await sheet.Settled();
    sheet.Key(VK_ESCAPE);
    co_await sheet.Settled();
    EXPECT_EQ((std::vector<UINT>{kAccepted, kCancelled}), page_.told);
    EXPECT_TRUE(sheet.IsOpen()) << "the keys are not the sheet's";
    EXPECT_FALSE(dialog_->inHook);
  });
}

TEST_F(ModelessDialog, KeysOfTheSheetStayTheSheets) {
  Run([&](Sheet& sheet) -> SheetTask {
    SetActiveWindow(sheet_.Handle());
    sheet_.Item(kSheetEdit).Focus();
    sheet.Type(L"x");
    sheet.Key(VK_TAB);
    co_await sheet.Settled();
    EXPECT_EQ(L"x", std::wstring(sheet_.Item(kSheetEdit).Text().Text()));
    EXPECT_EQ(IDOK, FocusId());
    sheet.Key(VK_RETURN);
    co_await sheet.Settled();
    EXPECT_FALSE(sheet.IsOpen());
    EXPECT_TRUE(page_.told.empty());
  });
}

// The Enter on a row that has opened the dialog, or the Esc that has ended a box of it.
TEST_F(ModelessDialog, KeysThatAreStillHeldDoNothing) {
  Run([&](Sheet& sheet) -> SheetTask {
    for (const WORD key : {VK_RETURN, VK_ESCAPE}) PostMessageW(GetFocus(), WM_KEYDOWN, key, kHeldKey);
    co_await sheet.Settled();
    EXPECT_EQ(std::vector<UINT>(), page_.told);
    EXPECT_TRUE(sheet.IsOpen());
  });
}

TEST_F(ModelessDialog, CloseBoxCancels) {
  Run([&](Sheet& sheet) -> SheetTask {
    dialog_->Post(WM_SYSCOMMAND, SC_CLOSE);
    co_await sheet.Settled();
    EXPECT_EQ(std::vector<UINT>{kCancelled}, page_.told);
    EXPECT_TRUE(dialog_->IsWindow()) << "its page ends it";
  });
}

TEST_F(ModelessDialog, LocksTheSheetWhileItIsModified) {
  Run([&](Sheet&) -> SheetTask {
    dialog_->UpdateLock();
    EXPECT_FALSE(IsLocked());
    SetActiveWindow(sheet_.Handle());
    LockNow();
    EXPECT_EQ(dialog_->Handle(), GetActiveWindow()) << "the keyboard would be lost in a disabled window";
    dialog_->modified = false;
    dialog_->UpdateLock();
    EXPECT_FALSE(IsLocked());
    co_return;
  });
}

TEST_F(ModelessDialog, EveryEndOpensTheSheet) {
  const std::function<void()> ends[] = {
      [&] { dialog_->Close(); },
      [&] { dialog_.reset(); },
      [&] { DestroyWindow(dialog_->Handle()); },
      [&] { ShowWindow(dialog_->Handle(), SW_HIDE); },
      [&] { dialog_->Destroy(); },
  };
  for (const auto& end : ends) {
    dialog_ = std::make_unique<TestModeless>();
    Run([&](Sheet& sheet) -> SheetTask {
      LockNow();
      end();
      EXPECT_FALSE(IsLocked());
      co_await sheet.Settled();
      EXPECT_EQ(sheet_.Handle(), GetActiveWindow());
    });
    EXPECT_EQ(nullptr, CurrentWindowThreadState()->modeless);
  }
}

TEST_F(ModelessDialog, GoesWithItsSheet) {
  Run([&](Sheet& sheet) -> SheetTask {
    LockNow();
    EndDialog(sheet_.Handle(), 1);
    DestroyWindow(sheet_.Handle());
    co_await sheet.Settled();
    EXPECT_FALSE(dialog_->IsWindow());
  });
  EXPECT_EQ(nullptr, CurrentWindowThreadState()->modeless);
}

TEST_F(ModelessDialog, CanOpenAgain) {
  Run([&](Sheet& sheet) -> SheetTask {
    dialog_->Close();
    sheet.ExpectDialog([](HWND) {});
    EXPECT_TRUE(dialog_->Open(page_));
    co_await sheet.Settled();
    dialog_->Activate();
    sheet.Key(VK_ESCAPE);
    co_await sheet.Settled();
    EXPECT_EQ(std::vector<UINT>{kCancelled}, page_.told);
  });
}

// A box of the dialog is up when the page, or the sheet with it, ends the dialog.
TEST_F(ModelessDialog, ObjectMayGoWhileABoxIsUp) {
  bool back = false;
  Run([&](Sheet& sheet) -> SheetTask {
    dialog_->onAccept = [&](TestModeless& dialog) {
      const HWND window = dialog.Handle();
      sheet.Queue().Loop().Post([&] { dialog_.reset(); });
      ::MessageBoxW(window, L"Text", L"Title", MB_OK);
      back = true;
      EXPECT_FALSE(IsWindow(window));
    };
    LockNow();
    dialog_->Post(WM_COMMAND, kAccept, 0);
    co_await sheet.Until([&] { return back; });
    EXPECT_FALSE(IsLocked());
  });
  EXPECT_TRUE(back);
}

TEST_F(ModelessDialog, StandsBesideItsSheet) {
  Run([&](Sheet&) -> SheetTask {
    dialog_->Close();
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    for (const bool atTheRight : {false, true}) {
      RECT sheet = sheet_.WindowRect();
      const LONG width = sheet.right - sheet.left;
      sheet.left = atTheRight ? area.right - width : area.left;
      SetWindowPos(sheet_.Handle(), nullptr, sheet.left, 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
      sheet = sheet_.WindowRect();
      EXPECT_TRUE(dialog_->Open(page_));
      const RECT own = dialog_->WindowRect();
      if (atTheRight)
        EXPECT_EQ(sheet.left, own.right);
      else
        EXPECT_EQ(sheet.right, own.left);
      EXPECT_EQ((sheet.top + sheet.bottom) / 2 - (own.bottom - own.top) / 2, own.top);
      dialog_->Close();
    }
    co_return;
  });
}

TEST_F(ModelessDialog, StandsOnTheScreenWhereTheSheetLeavesNoRoom) {
  Run([&](Sheet&) -> SheetTask {
    dialog_->Close();
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    SetWindowPos(sheet_.Handle(), nullptr, area.left, 200, area.right - area.left, 100, SWP_NOZORDER);
    EXPECT_TRUE(dialog_->Open(page_));
    EXPECT_EQ(area.left, dialog_->WindowRect().left);
    dialog_->Close();
    co_return;
  });
}

TEST_F(ModelessDialog, PauseKeepsTheUserOut) {
  Run([&](Sheet&) -> SheetTask {
    {
      const DialogPause pause(dialog_.get());
      EXPECT_FALSE(dialog_->IsEnabled());
    }
    EXPECT_TRUE(dialog_->IsEnabled());
    const DialogPause none(nullptr);
    co_return;
  });
}

}  // namespace
