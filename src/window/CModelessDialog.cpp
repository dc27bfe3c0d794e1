#include "window/CModelessDialog.h"

#include "DriverLIB/WindowThreadState.h"
#include "window/CenterWindow.h"
#include "window/HeldKeys.h"
#include "window/MenuMode.h"
#include "window/Placement.h"

namespace {

IntRect FromRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

IntRect WorkArea() {
  RECT area{};
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  return FromRect(area);
}

bool IsKeyMessage(UINT message) { return message >= WM_KEYFIRST && message <= WM_KEYLAST; }

}  // namespace

CModelessDialog::~CModelessDialog() { Close(); }

bool CModelessDialog::Open(const CWnd& page) {
  page_ = page;
  translating_ = false;
  if (!Create(page.Handle())) return false;
  StartKeys();
  CenterWindow(*this);
  PlaceBesideOwner();
  ::ShowWindow(window_, SW_SHOW);
  return IsWindow();
}

void CModelessDialog::Activate() const {
  if (!IsWindow()) return;
  ::SetActiveWindow(window_);
  // A dialog that is created without the focus has none to come back to.
  if (!::IsChild(window_, ::GetFocus())) CWnd(::GetNextDlgTabItem(window_, nullptr, FALSE)).Focus();
}

void CModelessDialog::Close() {
  Unlock();
  Destroy();
}

// Left edge to right edge of the sheet, or the other way round; the height is that of centring. The work area that
// decides is the primary monitor's, whichever monitor the sheet is on.
void CModelessDialog::PlaceBesideOwner() const {
  const HWND owner = ::GetWindow(window_, GW_OWNER);
  if (!owner) return;
  const RECT own = WindowRect();
  const int width = own.right - own.left;
  int left = PlaceBeside(width, FromRect(CWnd(owner).WindowRect()), WorkArea());
  // Beside a sheet that leaves no room at either side it would be out of reach on all monitors.
  const RECT place{left, own.top, left + width, own.bottom};
  if (!::MonitorFromRect(&place, MONITOR_DEFAULTTONULL)) left = WorkArea().left;
  ::SetWindowPos(window_, nullptr, left, own.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// --- Lock -----------------------------------------------------------------------------------------------------------

// The sheet stands two levels above its page: between them is the host page.
void CModelessDialog::UpdateLock() {
  if (!IsWindow() || !IsShown() || !IsModified()) {
    Unlock();
    return;
  }
  const CWnd sheet = page_.Parent().Parent();
  if (!sheet.IsWindow()) return;
  // A window that is disabled cannot hand the keyboard on.
  if (::GetActiveWindow() == sheet.Handle()) Activate();
  locked_ = sheet;
  ::EnableWindow(sheet.Handle(), FALSE);
}

void CModelessDialog::Unlock() {
  const CWnd sheet = locked_;
  locked_ = CWnd();
  if (sheet.IsWindow()) ::EnableWindow(sheet.Handle(), TRUE);
}

// --- Keys -----------------------------------------------------------------------------------------------------------

// The sheet's loop knows nothing of the dialog: a hook leads its keys through the dialog handling.
void CModelessDialog::StartKeys() {
  WindowThreadState* state = CurrentWindowThreadState();
  if (!state || keyHook_) return;
  keyHook_ = ::SetWindowsHookExW(WH_GETMESSAGE, KeyHook, nullptr, ::GetCurrentThreadId());
  before_ = state->modeless;
  state->modeless = this;
}

void CModelessDialog::StopKeys() {
  if (!keyHook_) return;
  ::UnhookWindowsHookEx(keyHook_);
  keyHook_ = nullptr;
  WindowThreadState* state = CurrentWindowThreadState();
  for (void** link = state ? &state->modeless : nullptr; link && *link;
       link = &static_cast<CModelessDialog*>(*link)->before_)
    if (*link == this) {
      *link = before_;
      return;
    }
}

LRESULT CALLBACK CModelessDialog::KeyHook(int code, WPARAM wParam, LPARAM lParam) {
  const WindowThreadState* state = CurrentWindowThreadState();
  auto& message = *reinterpret_cast<MSG*>(lParam);
  if (code == HC_ACTION && wParam == PM_REMOVE && state && IsKeyMessage(message.message) && !HasMenuUp()) {
    for (void* open = state->modeless; open; open = static_cast<CModelessDialog*>(open)->before_) {
      auto& dialog = *static_cast<CModelessDialog*>(open);
      if (message.hwnd != dialog.window_ && !::IsChild(dialog.window_, message.hwnd)) continue;
      if (dialog.Translate(message)) message.message = WM_NULL;
      break;
    }
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

// A hook is no place for what a command may bring up: commands are posted on. What else a key does may still end the
// dialog, and its object. The Enter that opened the dialog, or ended a box of it, may still be held.
bool CModelessDialog::Translate(MSG& message) {
  if (IsHeldDialogKey(message.message, message.wParam, message.lParam)) return true;
  const HWND window = window_;
  translating_ = true;
  const bool taken = ::IsDialogMessageW(window, &message);
  if (::IsWindow(window)) translating_ = false;
  return taken;
}

bool CModelessDialog::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_COMMAND:
      return OnEndCommand(message);
    case WM_WINDOWPOSCHANGING:
      // Before the window is hidden, which happens at its end too: the system then looks for a window to activate.
      if (reinterpret_cast<const WINDOWPOS*>(message.lParam)->flags & SWP_HIDEWINDOW) Unlock();
      return false;
    case WM_DESTROY:
      Unlock();
      StopKeys();
      return false;
    default:
      return CDialog::OnWindowMessage(message);
  }
}

// --- Pause ----------------------------------------------------------------------------------------------------------

DialogPause::DialogPause(CModelessDialog* dialog) : window_(dialog ? dialog->Handle() : nullptr) {
  if (window_.IsWindow()) ::EnableWindow(window_.Handle(), FALSE);
}

DialogPause::~DialogPause() {
  if (window_.IsWindow()) ::EnableWindow(window_.Handle(), TRUE);
}
