// A window handle as a value: it owns nothing, can be copied, and may be null. Every operation on a null or dead
// window does nothing and answers 0, false or an empty text.
#pragma once

#include "window/Windows.h"
// behind Windows.h
#include "DriverLIB/CUString.h"

class CWnd {
 public:
  CWnd() = default;
  explicit CWnd(HWND window) : window_(window) {}

  HWND Handle() const { return window_; }
  bool IsWindow() const { return window_ && ::IsWindow(window_); }
  bool operator==(const CWnd& other) const { return window_ == other.window_; }

  // The control `id` of this dialog; a null window when there is none.
  CWnd Item(int id) const { return CWnd(::GetDlgItem(window_, id)); }
  CWnd Parent() const { return CWnd(::GetParent(window_)); }
  // The children of a window, in their order: from the first to a null window.
  CWnd FirstChild() const { return CWnd(window_ ? ::GetWindow(window_, GW_CHILD) : nullptr); }
  CWnd Next() const { return CWnd(window_ ? ::GetWindow(window_, GW_HWNDNEXT) : nullptr); }
  int Id() const { return ::GetDlgCtrlID(window_); }

  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return window_ ? ::SendMessageW(window_, message, wParam, lParam) : 0;
  }
  bool Post(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return window_ && ::PostMessageW(window_, message, wParam, lParam);
  }

  CUString Text() const;
  void SetText(const wchar_t* text) const;

  // Disabling or hiding the focused window moves the focus on first, so that the keyboard is never lost.
  void Enable(bool enable) const;
  void Show(bool show) const;
  bool IsEnabled() const { return window_ && ::IsWindowEnabled(window_); }
  // The window's own state: a control of a page that is not shown may still be visible in this sense.
  bool IsShown() const { return (Style() & WS_VISIBLE) != 0; }
  void Focus() const {
    if (window_) ::SetFocus(window_);  // null would take the focus from whoever has it
  }
  bool HasFocus() const { return window_ && ::GetFocus() == window_; }

  DWORD Style() const { return static_cast<DWORD>(::GetWindowLongPtrW(window_, GWL_STYLE)); }
  DWORD ExtendedStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(window_, GWL_EXSTYLE)); }
  void ChangeStyle(DWORD remove, DWORD add) const;
  void ChangeExtendedStyle(DWORD remove, DWORD add) const;
  // The window lays out from right to left.
  bool IsMirrored() const { return (ExtendedStyle() & WS_EX_LAYOUTRTL) != 0; }
  // In a mirrored dialog too. For paths, parts of them and command lines, whose parts would change places; and for
  // numbers in a column, whose last digits stand one above the other.
  void ReadLeftToRight() const { ChangeExtendedStyle(WS_EX_LAYOUTRTL | WS_EX_RTLREADING | WS_EX_RIGHT, 0); }

  HFONT Font() const { return reinterpret_cast<HFONT>(Send(WM_GETFONT)); }
  void SetFont(HFONT font) const { Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE); }

  RECT ClientRect() const;
  RECT WindowRect() const;  // in screen coordinates
  // The window's rectangle in the client coordinates of `other`, left below right in a mirrored window too.
  RECT RectIn(CWnd other) const;
  POINT ScreenToClient(POINT point) const;
  void Move(const RECT& rect) const;
  // Puts the window behind `previous` in z-order, which is the tab order.
  void PlaceBehind(HWND previous) const;
  void Invalidate(const RECT* rect = nullptr, bool erase = true) const {
    if (window_) ::InvalidateRect(window_, rect, erase);  // null would have all windows of the screen painted anew
  }
  void Redraw() const {
    if (window_) ::UpdateWindow(window_);
  }

  // Dots per inch of the window's display, and a length at 96 dpi scaled to it.
  int Dpi() const;
  int Scale(int pixelsAt96) const { return ::MulDiv(pixelsAt96, Dpi(), 96); }

 protected:
  HWND window_ = nullptr;
};
