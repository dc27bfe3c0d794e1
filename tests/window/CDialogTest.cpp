// Dialogs of the library: their life, what they answer, and what no handler may bring down.
#include "window/CDialog.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>

#include "driver/SheetDriver.h"
#include "driver/Text.h"
#include "DriverLIB/NEMPrintMemoryException.h"
#include "support/FakeSheet.h"
#include "support/PrintText.h"
#include "support/TracedThread.h"
#include "TestDialogs.h"
#include "window/CSubclassedControl.h"

namespace {

constexpr WORD kPopup = 9001, kChild = 9002;
enum : int { kEdit = 100, kCheck, kCombo, kList, kBar, kOwnerDrawn, kCount };
constexpr UINT kQuestion = WM_APP + 30;

DialogTemplate WithControls(DialogTemplate dialog) {
  dialog.Add(L"Button", kCheck, At(7, 7, 50, 10), L"&Check", BS_AUTOCHECKBOX | WS_TABSTOP);
  dialog.Add(L"Edit", kEdit, At(7, 20, 50, 14), L"", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL);
  dialog.Add(L"ComboBox", kCombo, At(7, 40, 60, 60), L"", CBS_DROPDOWNLIST | WS_TABSTOP);
  dialog.Add(WC_LISTVIEWW, kList, At(70, 7, 60, 40), L"", LVS_REPORT | WS_TABSTOP);
  dialog.Add(L"ScrollBar", kBar, At(70, 50, 60, 10), L"", SBS_HORZ);
  dialog.Add(L"ListBox", kOwnerDrawn, At(7, 60, 60, 20), L"", LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS);
  return dialog;
}

DialogTemplate Popup() {
  DialogTemplate dialog =
      WithControls(DialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU, {150, 110}, L"Popup"));
  dialog.Add(L"Button", IDOK, At(7, 90, 50, 14), L"OK", BS_DEFPUSHBUTTON | WS_TABSTOP);
  dialog.Add(L"Button", IDCANCEL, At(60, 90, 50, 14), L"Cancel", WS_TABSTOP);
  return dialog;
}

// Does what the test puts into its functions; what is left out is the base class's.
class TestDialog final : public CDialog {
 public:
  explicit TestDialog(UINT templateId = kPopup) : CDialog(templateId) {}

  std::function<BOOL(TestDialog&)> onInit;
  std::function<void(CDataExchange&)> onExchange;
  std::function<bool(WindowMessage&)> onMessage;
  std::function<bool(const HELPINFO&)> onHelp;
  std::vector<std::string> exchanges;

  BOOL BaseInit() { return CDialog::OnInitDialog(); }
  using CDialog::IsFilling;
  class Filling : public FillingScope {
   public:
    using FillingScope::FillingScope;
  };

 private:
  BOOL OnInitDialog() override {
    CListCtrl list(Item(kList));
    LVCOLUMNW column{};
    list.Send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.pszText = const_cast<wchar_t*>(L"row");
    list.Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return onInit ? onInit(*this) : CDialog::OnInitDialog();
  }
  void DoDataExchange(CDataExchange& exchange) override {
    exchanges.push_back(exchange.IsSaving() ? "save" : "load");
    if (onExchange) onExchange(exchange);
  }
  bool OnWindowMessage(WindowMessage& message) override {
    return (onMessage && onMessage(message)) || CDialog::OnWindowMessage(message);
  }
  bool OnHelpInfo(const HELPINFO& help) override { return onHelp && onHelp(help); }
};

class Dialog : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    dialogs_ = std::make_unique<TestDialogs>(std::initializer_list<TestDialogs::Row>{
        {kPopup, 0, Popup()},
        {kChild, 0, WithControls(DialogTemplate(WS_CHILD | DS_CONTROL, {150, 110}, L"", WS_EX_CONTROLPARENT))},
    });
  }
  static void TearDownTestSuite() { dialogs_.reset(); }

  SheetResult Run(TestDialog& dialog, const Sheet::Body& body, HWND owner = nullptr) {
    return RunSheet([&dialog, owner] { return dialog.DoModal(owner); }, body);
  }
  INT_PTR RunAndPress(TestDialog& dialog, int button) {
    return Run(dialog,
               [button](Sheet& sheet) -> SheetTask {
                 sheet.Press(button);
                 co_return;
               })
        .value;
  }
  void CreateChild(TestDialog& dialog) {
    ASSERT_TRUE(dialog.Create(parent_.Window()));
    dialog.Show(true);
  }

  static std::unique_ptr<TestDialogs> dialogs_;
  LanguageScope english_{kEnglish};
  PageParent parent_;
};

std::unique_ptr<TestDialogs> Dialog::dialogs_;

// --- Modal ---------------------------------------------------------------------------------------------------------

TEST_F(Dialog, ModalGivesTheValueItWasEndedWith) {
  TestDialog dialog;
  EXPECT_EQ(4711, Run(dialog, [&](Sheet&) -> SheetTask {
                    dialog.EndDialog(4711);
                    co_return;
                  }).value);
  EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(Dialog, OkSavesAndEnds) {
  TestDialog dialog;
  EXPECT_EQ(IDOK, RunAndPress(dialog, IDOK));
  EXPECT_EQ((std::vector<std::string>{"load", "save"}), dialog.exchanges);
}

TEST_F(Dialog, CancelAndTheCloseBoxAndEscSaveNothing) {
  TestDialog dialog;
  EXPECT_EQ(IDCANCEL, RunAndPress(dialog, IDCANCEL));
  EXPECT_EQ(IDCANCEL, Run(dialog, [](Sheet& sheet) -> SheetTask {
                        sheet.Close();
                        co_await sheet.Settled();
                      }).value);
  EXPECT_EQ(IDCANCEL, Run(dialog, [](Sheet& sheet) -> SheetTask {
                        sheet.Key(VK_ESCAPE);
                        co_await sheet.Settled();
                      }).value);
  EXPECT_EQ((std::vector<std::string>{"load", "load", "load"}), dialog.exchanges);
}

TEST_F(Dialog, FailedExchangeKeepsItOpenWithTheFocusOnTheControl) {
  TestDialog dialog;
  dialog.onExchange = [](CDataExchange& exchange) {
    CUString text(L"wrong");
    if (exchange.IsLoading()) exchange.Text(kEdit, text);
    if (exchange.IsSaving()) exchange.Fail(kEdit);
  };
  Run(dialog, [&](Sheet& sheet) -> SheetTask {
    sheet.Control(kCheck).Focus();
    sheet.PressOk();
    co_await sheet.Settled();
    EXPECT_TRUE(sheet.IsOpen());
    EXPECT_EQ(kEdit, sheet.FocusedId());
    DWORD first = 9, last = 9;
    SendMessageW(sheet.Control(kEdit).Window(), EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                 reinterpret_cast<LPARAM>(&last));
    EXPECT_EQ(0u, first);
    EXPECT_EQ(5u, last) << "the user can type over it";
    sheet.PressCancel();
  });
}

TEST_F(Dialog, FailedExchangeLeavesTheFocusWhereTheUserSeesIt) {
  TestDialog dialog;
  int failing = kEdit;
  dialog.onExchange = [&](CDataExchange& exchange) {
    if (exchange.IsSaving()) exchange.Fail(failing);
  };
  Run(dialog, [&](Sheet& sheet) -> SheetTask {
    sheet.Control(kCheck).Focus();
    dialog.Item(kEdit).Show(false);
    EXPECT_FALSE(dialog.UpdateData(true));
    EXPECT_EQ(kCheck, sheet.FocusedId()) << "hidden";
    failing = kCombo;
    dialog.Item(kCombo).Enable(false);
    EXPECT_FALSE(dialog.UpdateData(true));
    EXPECT_EQ(kCheck, sheet.FocusedId()) << "disabled";
    failing = 0;
    EXPECT_FALSE(dialog.UpdateData(true));
    EXPECT_EQ(kCheck, sheet.FocusedId()) << "no control named";
    sheet.PressCancel();
    co_return;
  });
}

TEST_F(Dialog, StartChoosesTheFocusOrLeavesItToThePlatform) {
  for (const bool chooses : {false, true}) {
    TestDialog dialog;
    dialog.onInit = [chooses](TestDialog& self) -> BOOL {
      if (chooses) self.Item(kCombo).Focus();
      return !chooses;
    };
    Run(dialog, [chooses](Sheet& sheet) -> SheetTask {
      EXPECT_EQ(chooses ? kCombo : kCheck, sheet.FocusedId());
      sheet.PressCancel();
      co_return;
    });
  }
}

TEST_F(Dialog, MissingTemplateRunsAndCreatesNothing) {
  TestDialog dialog(9999);
  EXPECT_EQ(-1, dialog.DoModal(nullptr));
  EXPECT_FALSE(dialog.Create(parent_.Window()));
  EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(Dialog, OwnerIsDisabledWhileItRuns) {
  TestDialog dialog;
  Run(
      dialog,
      [this](Sheet& sheet) -> SheetTask {
        EXPECT_EQ(parent_.Window(), GetWindow(sheet.Window(), GW_OWNER));
        EXPECT_FALSE(IsWindowEnabled(parent_.Window()));
        sheet.PressCancel();
        co_return;
      },
      parent_.Window());
  EXPECT_TRUE(IsWindowEnabled(parent_.Window()));
}

TEST_F(Dialog, OwnerThatIsNoWindowAnyMoreCountsAsNone) {
  HWND dead = nullptr;
  {
    const PageParent gone;
    dead = gone.Window();
  }
  TestDialog dialog;
  EXPECT_EQ(IDOK, Run(
                      dialog,
                      [](Sheet& sheet) -> SheetTask {
                        EXPECT_EQ(nullptr, GetWindow(sheet.Window(), GW_OWNER));
                        sheet.PressOk();
                        co_return;
                      },
                      dead)
                      .value);
}

// --- Created -------------------------------------------------------------------------------------------------------

TEST_F(Dialog, CreatedChildFillsItsControlsAndTakesNoFocus) {
  SetFocus(parent_.Window());
  TestDialog dialog(kChild);
  CreateChild(dialog);
  EXPECT_EQ(std::vector<std::string>{"load"}, dialog.exchanges);
  EXPECT_EQ(parent_.Window(), GetParent(dialog.Handle()));
  EXPECT_EQ(parent_.Window(), GetFocus());
}

TEST_F(Dialog, CanBeCreatedAgainWhenItsWindowIsGone) {
  TestDialog dialog(kChild);
  for (int times = 0; times < 2; ++times) {
    CreateChild(dialog);
    EXPECT_TRUE(dialog.IsWindow());
    dialog.Destroy();
    EXPECT_EQ(nullptr, dialog.Handle());
  }
  EXPECT_EQ(2u, dialog.exchanges.size());
}

TEST_F(Dialog, LosesItsHandleWhenItsParentDies) {
  TestDialog dialog(kChild);
  {
    const PageParent gone;
    ASSERT_TRUE(dialog.Create(gone.Window()));
  }
  EXPECT_EQ(nullptr, dialog.Handle());
  dialog.Destroy();
}

TEST_F(Dialog, ObjectTakesItsWindowAlong) {
  HWND window = nullptr;
  {
    TestDialog dialog(kChild);
    CreateChild(dialog);
    window = dialog.Handle();
  }
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(Dialog, StartThatFailsLeavesNoWindow) {
  TestDialog dialog(kChild);
  HWND window = nullptr;
  dialog.onInit = [&window](TestDialog& self) -> BOOL {
    window = self.Handle();
    self.EndDialog(-1);
    return FALSE;
  };
  EXPECT_FALSE(dialog.Create(parent_.Window()));
  EXPECT_NE(nullptr, window);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(nullptr, dialog.Handle());
  dialog.onInit = nullptr;
  EXPECT_TRUE(dialog.Create(parent_.Window())) << "the next start is a new one";
}

TEST_F(Dialog, StartThatDestroysItsWindowHasFailed) {
  TestDialog dialog(kChild);
  dialog.onInit = [](TestDialog& self) -> BOOL {
    self.Destroy();
    return TRUE;
  };
  EXPECT_FALSE(dialog.Create(parent_.Window()));
}

TEST_F(Dialog, StartThatEndsItselfEndsTheModalRun) {
  TestDialog dialog;
  dialog.onInit = [](TestDialog& self) -> BOOL {
    self.EndDialog(12);
    return FALSE;
  };
  EXPECT_EQ(12, dialog.DoModal(nullptr));
}

// --- Notifications while filling -----------------------------------------------------------------------------------

class DialogFilling : public Dialog {
 protected:
  DialogFilling() {
    dialog_.onMessage = [this](WindowMessage& message) {
      if (message.message == WM_COMMAND) told_.push_back(message.CommandId());
      if (message.message == WM_NOTIFY && message.Notify().code == static_cast<UINT>(LVN_ITEMCHANGED))
        told_.push_back(kList);
      return false;
    };
    CreateChild(dialog_);
    told_.clear();
  }
  // Each of these makes a notification.
  void ChangeControls() {
    dialog_.Item(kEdit).SetText(L"new");
    ListView_SetItemState(dialog_.Item(kList).Handle(), 0, selected_ ? 0 : LVIS_SELECTED, LVIS_SELECTED);
    selected_ = !selected_;
  }

  TestDialog dialog_{kChild};
  std::vector<int> told_;
  bool selected_ = false;
};

TEST_F(DialogFilling, ChangesByCodeAreToldOutsideOfFilling) {
  ChangeControls();
  EXPECT_EQ((std::vector<int>{kEdit, kEdit, kList}), told_) << "EN_UPDATE, EN_CHANGE, LVN_ITEMCHANGED";
}

TEST_F(DialogFilling, LoadingExchangeTellsNothing) {
  dialog_.onExchange = [this](CDataExchange&) { ChangeControls(); };
  dialog_.UpdateData(false);
  EXPECT_EQ(std::vector<int>(), told_);
  dialog_.onExchange = nullptr;
  ChangeControls();
  EXPECT_EQ(3u, told_.size()) << "and afterwards all is told again";
}

TEST_F(DialogFilling, SavingExchangeTells) {
  dialog_.onExchange = [this](CDataExchange&) { ChangeControls(); };
  dialog_.UpdateData(true);
  EXPECT_EQ(3u, told_.size());
}

TEST_F(DialogFilling, ScopesNest) {
  {
    const TestDialog::Filling outer(dialog_);
    { const TestDialog::Filling inner(dialog_); }
    EXPECT_TRUE(dialog_.IsFilling());
    ChangeControls();
  }
  EXPECT_EQ(std::vector<int>(), told_);
  EXPECT_FALSE(dialog_.IsFilling());
}

TEST_F(DialogFilling, EndsWithAnExchangeThatThrows) {
  dialog_.onExchange = [](CDataExchange&) { throw std::runtime_error("test"); };
  EXPECT_THROW(dialog_.UpdateData(false), std::runtime_error);
  EXPECT_FALSE(dialog_.IsFilling());
}

TEST_F(DialogFilling, CommandsAndQuestionsAreAnsweredAllTheSame) {
  bool asked = false;
  dialog_.onMessage = [&](WindowMessage& message) {
    asked |= message.message == WM_NOTIFY && message.Notify().code == NM_CUSTOMDRAW;
    if (message.message == WM_COMMAND && !message.lParam) told_.push_back(message.CommandId());
    return false;
  };
  const TestDialog::Filling filling(dialog_);
  dialog_.Send(WM_COMMAND, 4000);  // of a menu or a key, not of a control
  NMCUSTOMDRAW draw{};
  draw.hdr = {dialog_.Item(kList).Handle(), kList, static_cast<UINT>(NM_CUSTOMDRAW)};
  dialog_.Send(WM_NOTIFY, kList, reinterpret_cast<LPARAM>(&draw));
  EXPECT_EQ(std::vector<int>{4000}, told_);
  EXPECT_TRUE(asked);
}

// --- Answers -------------------------------------------------------------------------------------------------------

TEST_F(Dialog, AnswersAMessageWithItsResult) {
  TestDialog dialog(kChild);
  dialog.onMessage = [](WindowMessage& message) {
    message.result = message.message == kQuestion ? 4242 : 0;
    return message.message == kQuestion;
  };
  CreateChild(dialog);
  EXPECT_EQ(4242, dialog.Send(kQuestion));
}

TEST_F(Dialog, AnswersColoursDirectly) {
  const HBRUSH brush = static_cast<HBRUSH>(GetStockObject(DKGRAY_BRUSH));
  TestDialog dialog(kChild);
  dialog.onMessage = [brush](WindowMessage& message) {
    message.result = reinterpret_cast<LRESULT>(brush);
    return message.message >= WM_CTLCOLORMSGBOX && message.message <= WM_CTLCOLORSTATIC;
  };
  CreateChild(dialog);
  HDC dc = GetDC(dialog.Handle());
  for (UINT message = WM_CTLCOLORMSGBOX; message <= WM_CTLCOLORSTATIC; ++message)
    EXPECT_EQ(reinterpret_cast<LRESULT>(brush),
              dialog.Send(message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(dialog.Item(kEdit).Handle())))
        << message;
  ReleaseDC(dialog.Handle(), dc);
}

TEST_F(Dialog, HelpThatIsNotAnsweredGoesToTheParent) {
  struct Outer final : CDialog {
    using CDialog::CDialog;
    int asked = 0;
    bool OnHelpInfo(const HELPINFO& help) override { return asked = help.iCtrlId, true; }
  } outer(kChild);
  ASSERT_TRUE(outer.Create(parent_.Window()));
  TestDialog inner(kChild);
  ASSERT_TRUE(inner.Create(outer.Handle()));
  HELPINFO help{};
  help.cbSize = sizeof help;
  help.iCtrlId = kEdit;
  bool answers = true;
  inner.onHelp = [&answers](const HELPINFO&) { return answers; };
  inner.Send(WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
  EXPECT_EQ(0, outer.asked);
  answers = false;
  inner.Send(WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
  EXPECT_EQ(kEdit, outer.asked);
}

// --- Messages that speak for a control -----------------------------------------------------------------------------

class ReflectingControl final : public CSubclassed<CWnd> {
 public:
  std::vector<UINT> seen;
  bool answers = false;
  bool throws = false;
  LRESULT answer = 0;

  bool OnReflected(WindowMessage& message) override {
    seen.push_back(message.message);
    if (throws) throw std::runtime_error("test");
    message.result = answer;
    return answers;
  }
};

class DialogReflection : public Dialog {
 protected:
  DialogReflection() {
    dialog_.onMessage = [this](WindowMessage& message) {
      seen_.push_back(message.message);
      return false;
    };
    CreateChild(dialog_);
  }
  // Sends the dialog the messages that speak for a control of it.
  std::vector<UINT> SendAllFor(int id) {
    const HWND control = dialog_.Item(id).Handle();
    const auto asParameter = reinterpret_cast<LPARAM>(control);
    const HDC dc = GetDC(control);
    std::vector<UINT> sent;
    const auto send = [&](UINT message, WPARAM wParam, LPARAM lParam) {
      sent.push_back(message);
      dialog_.Send(message, wParam, lParam);
    };
    send(WM_COMMAND, MAKEWPARAM(id, 7), asParameter);
    send(WM_HSCROLL, SB_ENDSCROLL, asParameter);
    send(WM_VSCROLL, SB_ENDSCROLL, asParameter);
    for (UINT message : {WM_CTLCOLOREDIT, WM_CTLCOLORLISTBOX, WM_CTLCOLORBTN, WM_CTLCOLORSCROLLBAR, WM_CTLCOLORSTATIC})
      send(message, reinterpret_cast<WPARAM>(dc), asParameter);
    const auto number = static_cast<UINT>(id);
    NMHDR notify{control, number, 12345};
    send(WM_NOTIFY, number, reinterpret_cast<LPARAM>(&notify));
    DRAWITEMSTRUCT draw{};
    draw.hwndItem = control;
    draw.hDC = dc;
    send(WM_DRAWITEM, number, reinterpret_cast<LPARAM>(&draw));
    DELETEITEMSTRUCT deleted{};
    deleted.hwndItem = control;
    send(WM_DELETEITEM, number, reinterpret_cast<LPARAM>(&deleted));
    MEASUREITEMSTRUCT measure{};
    measure.CtlID = number;
    send(WM_MEASUREITEM, number, reinterpret_cast<LPARAM>(&measure));
    ReleaseDC(control, dc);
    return sent;
  }

  TestDialog dialog_{kChild};
  std::vector<UINT> seen_;  // by the dialog
};

TEST_F(DialogReflection, ControlIsAskedFirstAndTheDialogWhenItDoesNotAnswer) {
  ReflectingControl control;
  ASSERT_TRUE(control.Attach(dialog_, kBar));
  seen_.clear();
  const std::vector<UINT> sent = SendAllFor(kBar);
  EXPECT_EQ(sent, control.seen);
  EXPECT_EQ(sent, seen_);
}

TEST_F(DialogReflection, ControlThatAnswersKeepsTheDialogOut) {
  ReflectingControl control;
  control.answers = true;
  ASSERT_TRUE(control.Attach(dialog_, kBar));
  seen_.clear();
  EXPECT_EQ(SendAllFor(kBar), control.seen);
  EXPECT_EQ(std::vector<UINT>(), seen_);
}

TEST_F(DialogReflection, AnswerOfTheControlIsThatOfTheDialog) {
  ReflectingControl control;
  control.answers = true;
  control.answer = reinterpret_cast<LRESULT>(GetStockObject(BLACK_BRUSH));
  ASSERT_TRUE(control.Attach(dialog_, kBar));
  for (const UINT message : {UINT{WM_CTLCOLORSCROLLBAR}, UINT{WM_HSCROLL}})
    EXPECT_EQ(control.answer, dialog_.Send(message, 0, reinterpret_cast<LPARAM>(control.Handle()))) << message;
}

TEST_F(DialogReflection, OtherControlsGoToTheDialog) {
  ReflectingControl control;
  ASSERT_TRUE(control.Attach(dialog_, kBar));
  seen_.clear();
  EXPECT_EQ(SendAllFor(kEdit), seen_);
  EXPECT_EQ(std::vector<UINT>(), control.seen);
}

TEST_F(DialogReflection, ControlThatThrowsLeavesTheMessageToTheDialog) {
  TracedThread trace;
  ReflectingControl control;
  control.throws = true;
  ASSERT_TRUE(control.Attach(dialog_, kBar));
  seen_.clear();
  dialog_.Send(WM_HSCROLL, SB_ENDSCROLL, reinterpret_cast<LPARAM>(control.Handle()));
  EXPECT_EQ(std::vector<UINT>{WM_HSCROLL}, seen_);
  const std::vector<std::wstring> lines = trace.Lines();
  ASSERT_EQ(1u, lines.size());
  EXPECT_NE(std::wstring::npos, lines[0].find(L"CSubclassedControl: caught throwed exception"));
}

// --- Exceptions and death ------------------------------------------------------------------------------------------

TEST_F(Dialog, ExceptionOfAHandlerIsTracedAndGivesTheDefaultAnswer) {
  TracedThread trace;
  const std::function<void()> kinds[] = {[] { throw std::runtime_error("test"); }, [] { throw 5; },
                                         [] { throw new NEMPrintMemoryException; }};
  for (const auto& throwIt : kinds) {
    TestDialog dialog(kChild);
    dialog.onMessage = [&throwIt](WindowMessage& message) {
      message.result = 99;
      if (message.message == kQuestion) throwIt();
      return false;
    };
    CreateChild(dialog);
    EXPECT_EQ(0, dialog.Send(kQuestion));
    EXPECT_TRUE(dialog.IsWindow());
    const std::vector<std::wstring> lines = trace.Lines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_NE(std::wstring::npos, lines[0].find(L"CDialog: caught throwed exception")) << ToUtf8(lines[0]);
  }
}

TEST_F(Dialog, StartThatThrowsHasFailed) {
  const auto throwing = [](TestDialog&) -> BOOL { throw std::runtime_error("test"); };
  TestDialog child(kChild);
  child.onInit = throwing;
  EXPECT_FALSE(child.Create(parent_.Window()));
  EXPECT_FALSE(child.IsWindow());
  TestDialog popup;
  popup.onInit = throwing;
  EXPECT_EQ(-1, popup.DoModal(nullptr));
  EXPECT_FALSE(popup.IsWindow());
}

TEST_F(Dialog, OkWhoseExchangeThrowsDoesNotEndIt) {
  TestDialog dialog;
  dialog.onExchange = [](CDataExchange& exchange) {
    if (exchange.IsSaving()) throw std::runtime_error("test");
  };
  EXPECT_EQ(IDCANCEL, Run(dialog, [](Sheet& sheet) -> SheetTask {
                        sheet.PressOk();
                        co_await sheet.Settled();
                        EXPECT_TRUE(sheet.IsOpen());
                        sheet.PressCancel();
                      }).value);
}

TEST_F(Dialog, HandlerMayDestroyTheWindow) {
  TestDialog dialog(kChild);
  dialog.onMessage = [&dialog](WindowMessage& message) {
    if (message.message != kQuestion) return false;
    dialog.Destroy();
    return true;
  };
  CreateChild(dialog);
  const HWND window = dialog.Handle();
  SendMessageW(window, kQuestion, 0, 0);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(nullptr, dialog.Handle());
}

TEST_F(Dialog, HandlerMayDestroyTheObject) {
  auto dialog = std::make_unique<TestDialog>(kChild);
  dialog->onMessage = [&dialog](WindowMessage& message) {
    if (message.message != kQuestion) return false;
    auto* const owner = &dialog;  // the capture dies with the object
    owner->reset();
    return true;
  };
  ASSERT_TRUE(dialog->Create(parent_.Window()));
  const HWND window = dialog->Handle();
  SendMessageW(window, kQuestion, 0, 0);
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(Dialog, ObjectThatDiesInItsModalRunEndsTheRun) {
  auto dialog = std::make_unique<TestDialog>();
  RunSheet([&dialog] { return dialog->DoModal(nullptr); },
           [&dialog](Sheet& sheet) -> SheetTask {
             dialog.reset();
             EXPECT_FALSE(sheet.IsOpen());
             co_return;
           });
}

TEST_F(Dialog, OwnerThatDiesEndsTheRun) {
  auto owner = std::make_unique<PageParent>();
  TestDialog dialog;
  Run(
      dialog,
      [&owner](Sheet& sheet) -> SheetTask {
        owner.reset();
        EXPECT_FALSE(sheet.IsOpen());
        co_return;
      },
      owner->Window());
  EXPECT_FALSE(dialog.IsWindow());
}

}  // namespace
