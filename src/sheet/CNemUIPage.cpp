#include "sheet/CNemUIPage.h"

#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/NEMPrintMemoryException.h"
#include "DriverLIB/Trace.h"
#include "MessageIds.h"
#include "sheet/Help.h"

namespace {

constexpr MessageRow kMessages[] = {
    OnMessage<&CNemUIPage::ShowHelpForControl>(kShowHelpForControlMessage),
};

bool IsDialog(const CWnd& window) {
  return ::GetClassLongPtrW(window.Handle(), GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
}

void TellInvalidData(HWND owner, const wchar_t* title) {
  MsgBoxById(owner, title, MSG_INVALID_DATA, MB_OK | MB_ICONERROR);
}

// Runs a step and says whether it came to its end. What is thrown ends here.
template <class Step>
bool RunCatching(Step step) noexcept {
  try {
    step();
    return true;
  } catch (NEMPrintMemoryException* exception) {
    delete exception;
  } catch (...) {
  }
  return false;
}

// The net under both exchanges: what is thrown in one is traced and told the user, and the exchange has failed. With
// the memory exhausted the telling may fail as well; the net holds all the same.
template <class Exchange>
bool RunInNet(const char* place, Exchange exchange) noexcept {
  bool exchanged = false;
  if (RunCatching([&] { exchanged = exchange(); })) return exchanged;
  RunCatching([&] { TraceError("%hs: caught throwed exception", place); });
  RunCatching([&] { TellInvalidData(::GetActiveWindow(), nullptr); });
  return false;
}

// Runs a step whose failure keeps the user on the page, and tells him of it. One failure, one box: whoever has spoken
// already silences this one. The page may end in either box.
template <class Step>
bool RunTold(CNemUIPage& page, Step step) {
  const unsigned boxesBefore = MessageBoxCount();
  if (step()) return true;
  if (MessageBoxCount() != boxesBefore || !page.IsWindow()) return false;
  const HWND window = page.Handle(), focus = ::GetFocus();
  RunCatching([&] { TellInvalidData(window, page.GetMsgBoxTitle().Text()); });
  if (::IsChild(window, focus)) ::SetFocus(focus);  // what is wrong keeps the keyboard
  return false;
}

}  // namespace

CNemUIPage::CNemUIPage(const PageDescription& description)
    : CPropertyPage(description.templateId), description_(description), title_(MessageText(description.titleId)) {}

bool CNemUIPage::UpdateDataSuper(bool save) {
  return RunInNet("NemUIPage::UpdateDataSuper", [&] {
    CDataExchange exchange(*this, save);
    return ExchangeProperties(exchange);
  });
}

bool CNemUIPage::SaveControls() {
  return RunInNet("NemUIPage::UpdateData", [&] { return UpdateData(true); });
}

BOOL CNemUIPage::OnInitDialog() {
  if (!UpdateDataSuper(false)) {
    TraceWarning("Warning: UpdateData failed during dialog init.\n");
    EndDialog(-1);
    return FALSE;
  }
  if (const DWORD helpId = ContextHelpId()) ::SetWindowContextHelpId(window_, helpId);
  ::EnableThemeDialogTexture(window_, ETDT_ENABLETAB);
  if (const int link = HelpLinkId()) {
    helpLink_.Attach(*this, link);
    helpLink_.SetNotifyParent(true);
    helpLink_.SetUnderline(true);
  }
  initialized_ = CPropertyPage::OnInitDialog();
  return initialized_;
}

void CNemUIPage::EnableAll(bool enable) const {
  for (CWnd control = FirstChild(); control.Handle(); control = control.Next()) control.Enable(enable);
}

void CNemUIPage::EnableControls(std::span<const int> controls, bool enable) const {
  for (const int id : controls) Item(id).Enable(enable);
}

void CNemUIPage::ShowControls(std::span<const int> controls, bool show) const {
  for (const int id : controls) Item(id).Show(show);
}

void CNemUIPage::Lock(bool fixed, std::span<const int> controls) const {
  if (fixed) EnableControls(controls, false);
}

bool CNemUIPage::IsMissing(int edit) const {
  const CWnd control = Item(edit);
  return control.IsEnabled() && ::IsWindowVisible(control.Handle()) && control.Send(WM_GETTEXTLENGTH) == 0;
}

int CNemUIPage::TellWith(uint32_t messageId, UINT flags, const MessageInserts& inserts) {
  if (!IsWindow()) return IDCANCEL;
  return MsgBoxByIdV(window_, ModuleInstance(), GetMsgBoxTitle().Text(), messageId, flags, inserts);
}

bool CNemUIPage::OnSetActive() {
  // The first showing follows the start, which has just filled the controls.
  if (shownBefore_) UpdateData(false);
  shownBefore_ = true;
  return true;
}

bool CNemUIPage::OnKillActive() {
  return RunTold(*this, [this] {
    if (SaveControls()) return true;
    TraceInfo("UpdateData failed during page deactivation\n");
    return false;
  });
}

bool CNemUIPage::OnApply() {
  return RunTold(*this, [this] { return SaveControls() && UpdateDataSuper(true); });
}

bool CNemUIPage::OnHelpInfo(const HELPINFO& help) {
  ShowHelp(help, GetHelpFilename().Text(), window_, GetMsgBoxTitle().Text());
  return true;
}

LRESULT CNemUIPage::ShowHelpForControl(WPARAM controlId, LPARAM) {
  OnHelpInfo(HelpForControl(static_cast<int>(controlId), Item(static_cast<int>(controlId)).Handle()));
  return 1;
}

bool CNemUIPage::OnWindowMessage(WindowMessage& message) {
  if (DispatchMessages(Messages(), *this, message) || DispatchMessages(kMessages, *this, message)) return true;
  switch (message.message) {
    case WM_CLOSE:
      // Esc in a multi-line edit closes the dialog that holds it: here it means the sheet's Cancel.
      CWnd(::GetAncestor(window_, GA_ROOT)).Post(PSM_PRESSBUTTON, PSBTN_CANCEL);
      return true;
    case WM_NEXTDLGCTL:
      // Tab in a multi-line edit asks the dialog that holds it, but leads on through the whole sheet.
      if (!IsDialog(Parent())) return CPropertyPage::OnWindowMessage(message);
      message.result = Parent().Send(message.message, message.wParam, message.lParam);
      return true;
    default:
      return CPropertyPage::OnWindowMessage(message);
  }
}
