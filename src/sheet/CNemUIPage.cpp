#include "sheet/CNemUIPage.h"

#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/NEMPrintMemoryException.h"
#include "DriverLIB/Trace.h"
#include "MessageIds.h"
#include "sheet/Help.h"

namespace {

constexpr MessageRow kMessages[] = {
    OnMessage<&CNemUIPage::ShowHelpForControl>(kShowHelpForControlMessage),
};

void TellInvalidData(HWND owner, const wchar_t* title) {
  MsgBoxById(owner, title, MSG_INVALID_DATA, MB_OK | MB_ICONERROR);
}

}  // namespace

CNemUIPage::CNemUIPage(const PageDescription& description)
    : CPropertyPage(description.templateId), description_(description), title_(MessageText(description.titleId)) {}

bool CNemUIPage::UpdateDataSuper(bool save) {
  try {
    CDataExchange exchange(*this, save);
    return ExchangeProperties(exchange);
  } catch (NEMPrintMemoryException* exception) {
    delete exception;
  } catch (...) {
  }
  TraceError("%hs: caught throwed exception", "NemUIPage::UpdateDataSuper");
  TellInvalidData(::GetActiveWindow(), nullptr);
  return false;
}

BOOL CNemUIPage::OnInitDialog() {
  if (!UpdateDataSuper(false)) {
    TraceWarning("Warning: UpdateData failed during dialog init.\n");
    EndDialog(-1);
    return FALSE;
  }
  if (const DWORD helpId = ContextHelpId()) ::SetWindowContextHelpId(window_, helpId);
  ::EnableThemeDialogTexture(window_, ETDT_ENABLETAB);
  initialized_ = CPropertyPage::OnInitDialog();
  return initialized_;
}

bool CNemUIPage::OnSetActive() {
  // The first showing follows the start, which has just filled the controls.
  if (shownBefore_) UpdateData(false);
  shownBefore_ = true;
  return true;
}

bool CNemUIPage::OnKillActive() {
  if (UpdateData(true)) return true;
  TraceInfo("UpdateData failed during page deactivation\n");
  return false;
}

bool CNemUIPage::OnApply() {
  const unsigned boxesBefore = MessageBoxCount();
  if (UpdateData(true) && UpdateDataSuper(true)) return true;
  // One failure, one box: whoever has spoken already silences this one.
  if (MessageBoxCount() == boxesBefore) TellInvalidData(window_, GetMsgBoxTitle().Text());
  return false;
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
  if (DispatchMessages(kMessages, *this, message)) return true;
  // Esc in a multi-line edit closes the dialog that holds it: here it means the sheet's Cancel.
  if (message.message == WM_CLOSE) {
    CWnd(::GetAncestor(window_, GA_ROOT)).Post(PSM_PRESSBUTTON, PSBTN_CANCEL);
    return true;
  }
  return CPropertyPage::OnWindowMessage(message);
}
