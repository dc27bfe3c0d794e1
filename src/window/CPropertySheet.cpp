#include "window/CPropertySheet.h"

#include <algorithm>
#include <utility>

#include "DriverLIB/MessageText.h"
#include "DriverLIB/WindowThreadState.h"
#include "window/CActivationContext.h"
#include "window/DialogTemplate.h"
#include "window/MenuMode.h"
#include "window/ValueScope.h"

namespace {

constexpr UINT_PTR kSubclassId = 0x4E454D;  // "NEM"

// To the sheet: shows the tab that is as many steps further, round the corner, as the first argument says.
constexpr UINT kStepTabMessage = WM_APP + 2;

// Pages that were prepared for a sheet and not yet taken by it.
class PreparedPages {
 public:
  ~PreparedPages() {
    for (HPROPSHEETPAGE page : pages_) ::DestroyPropertySheetPage(page);
  }
  bool Add(HPROPSHEETPAGE page) {
    if (page) pages_.push_back(page);
    return page != nullptr;
  }
  HPROPSHEETPAGE* Data() { return pages_.data(); }
  void Release() { pages_.clear(); }

 private:
  std::vector<HPROPSHEETPAGE> pages_;
};

}  // namespace

// The thread's state knows the sheet that is being created and the one that runs; a sheet that runs inside another
// one's loop puts the outer one back when it ends.
class CPropertySheet::HookScope {
 public:
  explicit HookScope(CPropertySheet& sheet) : state_(CurrentWindowThreadState()) {
    if (!state_) return;
    outerCreating_ = std::exchange(state_->creating, &sheet);
    outerRunning_ = std::exchange(state_->running, &sheet);
    outerHook_ = state_->creationHook;
    state_->creationHook = ::SetWindowsHookExW(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
    keyHook_ = ::SetWindowsHookExW(WH_GETMESSAGE, KeyHook, nullptr, ::GetCurrentThreadId());
  }
  ~HookScope() {
    if (!state_) return;
    if (keyHook_) ::UnhookWindowsHookEx(keyHook_);
    EndCreation(*state_);
    state_->creating = outerCreating_;
    state_->running = outerRunning_;
    state_->creationHook = outerHook_;
  }
  HookScope(const HookScope&) = delete;
  HookScope& operator=(const HookScope&) = delete;

  static void EndCreation(WindowThreadState& state) {
    if (state.creationHook) ::UnhookWindowsHookEx(static_cast<HHOOK>(state.creationHook));
    state.creationHook = nullptr;
    state.creating = nullptr;
  }

 private:
  WindowThreadState* state_;
  void* outerCreating_ = nullptr;
  void* outerRunning_ = nullptr;
  void* outerHook_ = nullptr;
  HHOOK keyHook_ = nullptr;
};

INT_PTR CPropertySheet::DoModal(HWND owner, const wchar_t* caption) {
  if (pages_.empty() || running_) return 0;
  PreparedPages prepared;
  for (CPropertyPage* page : pages_)
    if (!prepared.Add(page->CreatePage(*this))) return 0;

  PROPSHEETHEADERW header{};
  header.dwSize = sizeof header;
  header.dwFlags = PSH_NOAPPLYNOW | PSH_HASHELP | PSH_USECALLBACK;
  header.hwndParent = ::IsWindow(owner) ? owner : nullptr;
  header.hInstance = static_cast<HINSTANCE>(ModuleInstance());
  header.pszCaption = caption;
  header.nPages = static_cast<UINT>(pages_.size());
  header.phpage = prepared.Data();
  header.pfnCallback = SheetCallback;

  const CActivationScope look;
  const HookScope hooks(*this);
  running_ = true;
  opened_ = applied_ = false;
  const INT_PTR result = ::PropertySheetW(&header);
  running_ = false;
  window_ = nullptr;   // a window that was refused at its birth has not said that it is gone
  prepared.Release();  // the platform has taken the pages, whatever came of the run
  // A window that went with its owner has told nobody anything.
  return opened_ && !applied_ ? 0 : result;
}

int CALLBACK CPropertySheet::SheetCallback(HWND, UINT message, LPARAM lParam) {
  if (message == PSCB_PRECREATE && IsRightToLeftLanguage())
    MirrorDialogTemplate(reinterpret_cast<DLGTEMPLATE*>(lParam));
  return 0;
}

LRESULT CALLBACK CPropertySheet::CreationHook(int code, WPARAM wParam, LPARAM lParam) {
  WindowThreadState* state = CurrentWindowThreadState();
  if (code == HCBT_CREATEWND && state && state->creating) {
    // The sheet is the first dialog that the thread creates in the run; an input method may create windows before.
    const auto window = reinterpret_cast<HWND>(wParam);
    if (::GetClassLongPtrW(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG)) {
      static_cast<CPropertySheet*>(state->creating)->Attach(window);
      HookScope::EndCreation(*state);
    }
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void CPropertySheet::Attach(HWND window) {
  if (!::SetWindowSubclass(window, SubclassProcedure, kSubclassId, reinterpret_cast<DWORD_PTR>(this))) return;
  window_ = window;
}

LRESULT CALLBACK CPropertySheet::SubclassProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                                   DWORD_PTR data) {
  auto* self = reinterpret_cast<CPropertySheet*>(data);
  if (message == WM_NCDESTROY) {
    ::RemoveWindowSubclass(window, SubclassProcedure, kSubclassId);
    self->window_ = nullptr;
    return ::DefSubclassProc(window, message, wParam, lParam);
  }
  WindowMessage current{window, message, wParam, lParam};
  if (GuardMessage("CPropertySheet", *self, current)) return current.result;
  return ::DefSubclassProc(window, message, wParam, lParam);
}

LRESULT CPropertySheet::DefaultHandling(const WindowMessage& message) {
  return ::DefSubclassProc(message.window, message.message, message.wParam, message.lParam);
}

CTabCtrl CPropertySheet::GetTabControl() const { return CTabCtrl(reinterpret_cast<HWND>(Send(PSM_GETTABCONTROL))); }

CPropertyPage* CPropertySheet::PageAt(int index) const {
  return index >= 0 && index < static_cast<int>(pages_.size()) ? pages_[static_cast<size_t>(index)] : nullptr;
}

CPropertyPage* CPropertySheet::CurrentPage() const {
  if (coming_) return coming_;
  const CTabCtrl tabs = GetTabControl();
  return tabs.Handle() ? PageAt(tabs.Selection()) : nullptr;
}

void CPropertySheet::SetActivePage(CPropertyPage& page) {
  const auto found = std::find(pages_.begin(), pages_.end(), &page);
  if (found == pages_.end()) return;
  const ValueScope setting(settingPage_, true);
  const ValueScope coming(coming_, &page);
  Send(PSM_SETCURSEL, static_cast<WPARAM>(found - pages_.begin()), 0);
}

BOOL CPropertySheet::OnInitDialog(WindowMessage& message) { return static_cast<BOOL>(DefaultHandling(message)); }

bool CPropertySheet::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_INITDIALOG:
      opened_ = true;
      message.result = OnInitDialog(message);
      return true;
    case WM_COMMAND:
      return message.CommandId() == IDHELP && message.Notification() == BN_CLICKED && OnHelp();
    case WM_NOTIFY:
      return message.Notify().hwndFrom == GetTabControl().Handle() && OnTabNotification(message);
    case PSM_SETCURSEL:
      if (settingPage_) return false;
      message.result = OnSetCurrentPage(message);
      return true;
    case kStepTabMessage:
      StepTab(static_cast<int>(message.wParam));
      return true;
    default:
      return false;
  }
}

bool CPropertySheet::OnHandlerFailed(WindowMessage& message) {
  switch (message.message) {
    case WM_NOTIFY:
      message.result = TRUE;
      return message.Notify().code == static_cast<UINT>(TCN_SELCHANGING);
    case PSM_SETCURSEL:
      message.result = FALSE;
      return true;
    default:
      return false;
  }
}

bool CPropertySheet::OnTabNotification(WindowMessage& message) {
  switch (message.Notify().code) {
    case static_cast<UINT>(TCN_SELCHANGING): {
      CPropertyPage* page = CurrentPage();
      message.result = TRUE;
      if (!OnTabChanging() || !IsWindow()) return true;
      const ValueScope leaving(leaving_, static_cast<const CPropertyPage*>(page));
      message.result = DefaultHandling(message);
      return true;
    }
    case static_cast<UINT>(TCN_SELCHANGE):
      message.result = DefaultHandling(message);
      OnTabChanged();
      return true;
    default:
      return false;
  }
}

int CPropertySheet::PageIndexIn(const WindowMessage& message) const {
  return static_cast<int>(message.lParam ? Send(PSM_PAGETOINDEX, 0, message.lParam)
                                         : static_cast<LRESULT>(message.wParam));
}

// Ctrl+Tab, Ctrl+Page Up and Down and PSM_SETCURSEL change the tab without the tab control's notifications: they take
// the same two steps here.
LRESULT CPropertySheet::OnSetCurrentPage(WindowMessage& message) {
  CPropertyPage* before = CurrentPage();
  CPropertyPage* page = PageAt(PageIndexIn(message));
  if (!page || page == before) return page != nullptr;
  if (!OnTabChanging() || !IsWindow()) return FALSE;
  LRESULT changed = FALSE;
  {
    const ValueScope leaving(leaving_, static_cast<const CPropertyPage*>(before));
    const ValueScope coming(coming_, page);
    changed = DefaultHandling(message);
  }
  if (CurrentPage() == page) OnTabChanged();
  return changed;
}

void CPropertySheet::StepTab(int step) {
  const int count = static_cast<int>(pages_.size());
  Send(PSM_SETCURSEL, static_cast<WPARAM>((GetTabControl().Selection() + step + count) % count), 0);
}

LRESULT CALLBACK CPropertySheet::KeyHook(int code, WPARAM wParam, LPARAM lParam) {
  WindowThreadState* state = CurrentWindowThreadState();
  if (code == HC_ACTION && wParam == PM_REMOVE && state && state->running) {
    auto& message = *reinterpret_cast<MSG*>(lParam);
    if (message.message == WM_KEYDOWN && static_cast<CPropertySheet*>(state->running)->TranslateTabKey(message))
      message.message = WM_NULL;
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

// True when the key is the sheet's. It is only posted on: a hook is no place for what the change may bring up.
bool CPropertySheet::TranslateTabKey(const MSG& message) {
  if (!window_ || pages_.size() < 2 || ::GetKeyState(VK_CONTROL) >= 0 || ::GetKeyState(VK_MENU) < 0) return false;
  if (message.hwnd != window_ && !::IsChild(window_, message.hwnd)) return false;
  if (HasMenuUp()) return false;
  int step = 0;
  if (message.wParam == VK_TAB)
    step = ::GetKeyState(VK_SHIFT) < 0 ? -1 : 1;
  else if (message.wParam == VK_NEXT)
    step = 1;
  else if (message.wParam == VK_PRIOR)
    step = -1;
  return step != 0 && Post(kStepTabMessage, static_cast<WPARAM>(step));
}
