#include "window/CControlBar.h"

#include "DriverLIB/MessageText.h"
#include "window/CActivationContext.h"
#include "window/WindowClass.h"

namespace {

constexpr wchar_t kClassName[] = L"NemPdfUIControlBar";

HINSTANCE Module() { return static_cast<HINSTANCE>(ModuleInstance()); }

}  // namespace

CControlBar::~CControlBar() { Destroy(); }

bool CControlBar::Create(const CWnd& parent, int id, DWORD style) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.style = CS_DBLCLKS;
  description.lpfnWndProc = WindowProcedure;
  description.hInstance = Module();
  description.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
  description.lpszClassName = kClassName;
  if (!RegisterWindowClass(description)) return false;
  const CActivationScope look;
  ::CreateWindowExW(0, kClassName, nullptr, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent.Handle(),
                    reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), Module(), this);
  return window_ != nullptr;
}

void CControlBar::Destroy() {
  if (window_) ::DestroyWindow(window_);
}

void CControlBar::UnregisterWindowClass() { ::UnregisterClassW(kClassName, Module()); }

LRESULT CControlBar::DefaultHandling(const WindowMessage& message) {
  return ::DefWindowProcW(message.window, message.message, message.wParam, message.lParam);
}

LRESULT CALLBACK CControlBar::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = reinterpret_cast<CControlBar*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message == WM_NCCREATE) {
    self = static_cast<CControlBar*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    self->window_ = window;
  }
  // A few messages come before WM_NCCREATE and find no object yet.
  if (!self) return ::DefWindowProcW(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    self->window_ = nullptr;
    return ::DefWindowProcW(window, message, wParam, lParam);
  }
  WindowMessage current{window, message, wParam, lParam};
  if (GuardMessage("CControlBar", *self, current)) return current.result;
  return ::DefWindowProcW(window, message, wParam, lParam);
}
