#include "window/CWnd.h"

#include <utility>

CUString CWnd::Text() const {
  CUString text;
  const int length = static_cast<int>(Send(WM_GETTEXTLENGTH));
  if (length <= 0) return text;
  text.EnsureCapacity(length);
  // The length is an upper bound: the answer to WM_GETTEXT tells the true one.
  text.ReleaseBuffer(
      static_cast<int>(Send(WM_GETTEXT, static_cast<WPARAM>(length) + 1, reinterpret_cast<LPARAM>(text.Buffer()))));
  return text;
}

void CWnd::SetText(const wchar_t* text) const { Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text ? text : L"")); }

namespace {

// The focus sits on `window` or inside it.
bool HoldsFocus(HWND window) {
  const HWND focus = ::GetFocus();
  return focus && (focus == window || ::IsChild(window, focus));
}

// The window that Tab leads to from `window` within `dialog`; null when there is none outside of `window`.
HWND NextStop(HWND dialog, HWND window) {
  const HWND next = ::GetNextDlgTabItem(dialog, window, FALSE);
  return next && next != window && !::IsChild(window, next) ? next : nullptr;
}

// To the next stop in the dialog, else in the dialog around it: the last control of a page hands on to the sheet. A
// dialog cannot take the focus in its place, since it gives it back to its control.
void MoveFocusOn(HWND window) {
  if (!HoldsFocus(window)) return;
  for (HWND dialog = window; ::GetWindowLongPtrW(dialog, GWL_STYLE) & WS_CHILD;) {
    dialog = ::GetParent(dialog);
    if (const HWND next = NextStop(dialog, window)) {
      ::SetFocus(next);
      return;
    }
  }
}

}  // namespace

void CWnd::Enable(bool enable) const {
  if (!window_ || IsEnabled() == enable) return;
  if (!enable) MoveFocusOn(window_);
  ::EnableWindow(window_, enable);
}

void CWnd::Show(bool show) const {
  if (!window_ || IsShown() == show) return;
  if (!show) MoveFocusOn(window_);
  ::ShowWindow(window_, show ? SW_SHOWNA : SW_HIDE);
}

void CWnd::ChangeStyle(DWORD remove, DWORD add) const {
  const DWORD before = Style(), after = (before & ~remove) | add;
  if (after != before) ::SetWindowLongPtrW(window_, GWL_STYLE, static_cast<LONG_PTR>(after));
}

void CWnd::ChangeExtendedStyle(DWORD remove, DWORD add) const {
  ::SetWindowLongPtrW(window_, GWL_EXSTYLE, static_cast<LONG_PTR>((ExtendedStyle() & ~remove) | add));
}

RECT CWnd::ClientRect() const {
  RECT rect{};
  ::GetClientRect(window_, &rect);
  return rect;
}

RECT CWnd::WindowRect() const {
  RECT rect{};
  ::GetWindowRect(window_, &rect);
  return rect;
}

RECT CWnd::RectIn(CWnd other) const {
  RECT rect = WindowRect();
  ::MapWindowPoints(nullptr, other.Handle(), reinterpret_cast<POINT*>(&rect), 2);
  // A mapping into a mirrored window swaps the sides; newer systems put them right by themselves.
  if (rect.left > rect.right) std::swap(rect.left, rect.right);
  return rect;
}

POINT CWnd::ScreenToClient(POINT point) const {
  ::ScreenToClient(window_, &point);
  return point;
}

void CWnd::Move(const RECT& rect) const {
  ::SetWindowPos(window_, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::PlaceBehind(HWND previous) const {
  ::SetWindowPos(window_, previous, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

int CWnd::Dpi() const {
  // Present since Windows 10; before, all windows share the system's dpi.
  using GetDpiForWindowFunction = UINT(WINAPI*)(HWND);
  static const auto getDpiForWindow = reinterpret_cast<GetDpiForWindowFunction>(
      reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
  if (getDpiForWindow && window_)
    if (const UINT dpi = getDpiForWindow(window_)) return static_cast<int>(dpi);
  const HDC screen = ::GetDC(nullptr);
  const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
  ::ReleaseDC(nullptr, screen);
  return dpi;
}
