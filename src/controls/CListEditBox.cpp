#include "controls/CListEditBox.h"

#include "controls/CListCtrlComboEdit.h"
#include "window/CActivationContext.h"

CListEditBox::~CListEditBox() {
  const CWnd box(Handle());
  Detach();  // what the window is sent at its end finds no object
  if (!box.IsWindow()) return;
  if (box.HasFocus()) list_.Focus();
  ::DestroyWindow(box.Handle());
}

bool CListEditBox::Create(const RECT& cell, const CUString& text) {
  const CActivationScope look;
  const HWND box = ::CreateWindowExW(
      WS_EX_NOPARENTNOTIFY, L"EDIT", nullptr, WS_CHILD | WS_BORDER | WS_CLIPSIBLINGS | ES_AUTOHSCROLL, cell.left,
      cell.top, cell.right - cell.left, cell.bottom - cell.top, list_.Handle(), nullptr, nullptr, nullptr);
  if (!AttachTo(box)) return false;
  SetFont(list_.Font());
  SetText(text.Text());
  return true;
}

void CListEditBox::Open() const {
  SelectAll();
  Send(EM_SCROLLCARET);
  ::SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
  Focus();
}

void CListEditBox::Leave(bool accept) {
  CListCtrlComboEdit& list = list_;
  const HWND window = list.Handle();
  accept_ = accept;
  list.Focus();
  if (CSubclassedControl::FromHandle(window) == &list) list.SettleRefusal();
}

void CListEditBox::OnFocusLost(WindowMessage& message) {
  message.result = DefaultHandling(message);
  // Ends this object.
  list_.OnEditLeft(Text(), accept_);
}

bool CListEditBox::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_GETDLGCODE:
      message.result = DefaultHandling(message) | DLGC_WANTALLKEYS;
      return true;
    case WM_KEYDOWN:
      if (message.wParam != VK_RETURN && message.wParam != VK_ESCAPE) return false;
      Leave(message.wParam == VK_RETURN);
      return true;
    case WM_CHAR:  // of keys that are no text here: the edit would beep, or take them in
      return message.wParam == VK_RETURN || message.wParam == VK_ESCAPE || message.wParam == VK_TAB;
    case WM_KILLFOCUS:
      OnFocusLost(message);
      return true;
    default:
      return false;
  }
}
