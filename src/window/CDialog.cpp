#include "window/CDialog.h"

#include "DriverLIB/MessageText.h"
#include "window/CActivationContext.h"
#include "window/CSubclassedControl.h"
#include "window/DialogTemplate.h"

namespace {

// The messages whose answer a dialog procedure returns itself, in place of leaving it in DWLP_MSGRESULT.
bool AnswersDirectly(UINT message) {
  switch (message) {
    case WM_INITDIALOG:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    case WM_QUERYDRAGICON:
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
      return true;
    default:
      return false;
  }
}

// A control tells that its contents have changed. What asks the dialog for something is none of these, and neither is
// a command without a control.
bool IsChangeNotification(const WindowMessage& message) {
  if (message.message == WM_COMMAND) return message.lParam != 0;
  if (message.message != WM_NOTIFY) return false;
  const UINT code = message.Notify().code;
  return code == static_cast<UINT>(LVN_ITEMCHANGING) || code == static_cast<UINT>(LVN_ITEMCHANGED);
}

// The control on whose behalf the dialog is sent this message; null when it is not of that kind.
HWND ReflectedControl(const WindowMessage& message) {
  switch (message.message) {
    case WM_COMMAND:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
      return reinterpret_cast<HWND>(message.lParam);
    case WM_NOTIFY:
      return message.Notify().hwndFrom;
    case WM_DRAWITEM:
      return reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam)->hwndItem;
    case WM_DELETEITEM:
      return reinterpret_cast<const DELETEITEMSTRUCT*>(message.lParam)->hwndItem;
    case WM_MEASUREITEM:
      return ::GetDlgItem(message.window,
                          static_cast<int>(reinterpret_cast<MEASUREITEMSTRUCT*>(message.lParam)->CtlID));
    default:
      return nullptr;
  }
}

// Hands a message to the object of the control that it speaks for.
class Reflection final : public CMessageTarget {
 public:
  explicit Reflection(CSubclassedControl& control) : control_(control) {}
  bool OnWindowMessage(WindowMessage& message) override { return control_.OnReflected(message); }

 private:
  CSubclassedControl& control_;
};

bool Reflect(WindowMessage& message) {
  CSubclassedControl* control = CSubclassedControl::FromHandle(ReflectedControl(message));
  if (!control) return false;
  Reflection reflection(*control);
  return GuardMessage("CSubclassedControl", reflection, message);
}

}  // namespace

CDialog::~CDialog() { Destroy(); }

INT_PTR CDialog::DoModal(HWND owner) {
  const std::vector<BYTE> dialogTemplate = LoadDialogTemplate(templateId_);
  if (dialogTemplate.empty()) return -1;
  const CActivationScope look;
  modal_ = true;
  // Nothing of the object is touched afterwards.
  return ::DialogBoxIndirectParamW(
      static_cast<HINSTANCE>(ModuleInstance()), reinterpret_cast<const DLGTEMPLATE*>(dialogTemplate.data()),
      ::IsWindow(owner) ? owner : nullptr, DialogProcedure, reinterpret_cast<LPARAM>(this));
}

bool CDialog::Create(HWND parent) {
  const std::vector<BYTE> dialogTemplate = LoadDialogTemplate(templateId_);
  if (dialogTemplate.empty()) return false;
  const CActivationScope look;
  modal_ = startFailed_ = false;
  creating_ = true;
  ::CreateDialogIndirectParamW(static_cast<HINSTANCE>(ModuleInstance()),
                               reinterpret_cast<const DLGTEMPLATE*>(dialogTemplate.data()), parent, DialogProcedure,
                               reinterpret_cast<LPARAM>(this));
  creating_ = false;
  if (startFailed_) Destroy();
  return IsWindow();
}

void CDialog::Destroy() {
  if (window_) ::DestroyWindow(window_);
}

void CDialog::EndDialog(INT_PTR result) {
  if (modal_)
    ::EndDialog(window_, result);
  else
    startFailed_ = true;
}

bool CDialog::UpdateData(bool saving) {
  CDataExchange exchange(*this, saving);
  if (saving) {
    DoDataExchange(exchange);
  } else {
    const FillingScope filling(*this);
    DoDataExchange(exchange);
  }
  if (!exchange.HasFailed()) return true;
  const CWnd control = Item(exchange.FailedControl());
  // At OK a page fails that is not shown: the keyboard must not vanish into it.
  if (::IsWindowVisible(control.Handle()) && control.IsEnabled()) {
    control.Focus();
    if (control.Send(WM_GETDLGCODE) & DLGC_HASSETSEL) CEdit(control).SelectAll();
  }
  return false;
}

BOOL CDialog::OnInitDialog() { return UpdateData(false); }

void CDialog::OnOK() {
  if (UpdateData(true)) EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

bool CDialog::OnEndCommand(const WindowMessage& message) {
  if (message.Notification() != BN_CLICKED) return false;
  if (message.CommandId() == IDOK)
    OnOK();
  else if (message.CommandId() == IDCANCEL)
    OnCancel();
  else
    return false;
  return true;
}

bool CDialog::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_INITDIALOG:
      // A child that is created while the user works elsewhere does not take the focus.
      message.result = OnInitDialog() && !creating_;
      return true;
    case WM_HELP:
      message.result = OnHelpInfo(*reinterpret_cast<const HELPINFO*>(message.lParam));
      return message.result != 0;
    case WM_COMMAND:
      return modal_ && OnEndCommand(message);
    default:
      return false;
  }
}

bool CDialog::OnHandlerFailed(WindowMessage& message) {
  if (message.message != WM_INITDIALOG) return false;
  EndDialog(-1);
  message.result = FALSE;
  return true;
}

void CDialog::BindWindow(HWND window) {
  window_ = window;
  ::SetWindowLongPtrW(window, DWLP_USER, reinterpret_cast<LONG_PTR>(this));
}

INT_PTR CALLBACK CDialog::DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  // Messages before WM_INITDIALOG find no object and get the default.
  if (message == WM_INITDIALOG) reinterpret_cast<CDialog*>(lParam)->BindWindow(window);
  return Process(window, message, wParam, lParam);
}

INT_PTR CDialog::Process(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = reinterpret_cast<CDialog*>(::GetWindowLongPtrW(window, DWLP_USER));
  if (!self) return FALSE;
  if (message == WM_NCDESTROY) {
    ::SetWindowLongPtrW(window, DWLP_USER, 0);
    self->window_ = nullptr;
    return FALSE;
  }
  WindowMessage current{window, message, wParam, lParam};
  if (self->IsFilling() && IsChangeNotification(current)) return TRUE;
  if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED && self->PostponesCommands())
    return ::PostMessageW(window, message, wParam, lParam);
  // The handler may end the dialog and its object: nothing of it is touched afterwards.
  if (!Reflect(current) && !GuardMessage("CDialog", *self, current)) return FALSE;
  if (AnswersDirectly(message)) return current.result;
  if (::IsWindow(window)) ::SetWindowLongPtrW(window, DWLP_MSGRESULT, current.result);
  return TRUE;
}
