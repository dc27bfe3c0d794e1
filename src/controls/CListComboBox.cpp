#include "controls/CListComboBox.h"

#include "controls/CListCtrlComboEdit.h"
#include "window/CActivationContext.h"
#include "window/Gdi.h"

CListComboBox::~CListComboBox() {
  const CWnd box(Handle());
  const bool focused = HoldsFocus();
  Detach();  // what the window is sent at its end finds no object
  if (!box.IsWindow()) return;
  if (focused) list_.Focus();
  ::DestroyWindow(box.Handle());
}

bool CListComboBox::Create(const RECT& rect) {
  const CActivationScope look;
  const HWND box = ::CreateWindowExW(WS_EX_NOPARENTNOTIFY, L"COMBOBOX", nullptr,
                                     WS_CHILD | WS_VSCROLL | WS_CLIPSIBLINGS | CBS_DROPDOWNLIST | CBS_HASSTRINGS,
                                     rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                                     list_.Handle(), nullptr, nullptr, nullptr);
  if (!AttachTo(box)) return false;
  SetFont(list_.Font());
  return true;
}

void CListComboBox::AddNumbers(int first, int last) const {
  for (int number = first; number <= last; ++number) {
    CUString text;
    text.Format(L"%d", number);
    AddString(text.Text());
  }
}

void CListComboBox::Choose(const CUString& text) {
  text_ = text;
  // An empty text begins every row.
  if (!text.IsEmpty())
    initialRow_ = static_cast<int>(Send(CB_FINDSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.Text())));
  Select(initialRow_);
}

void CListComboBox::Open() const {
  Send(CB_SHOWDROPDOWN, TRUE);
  ::SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
  Focus();
}

bool CListComboBox::HoldsFocus() const {
  const HWND focus = ::GetFocus();
  return focus && (focus == Handle() || ::IsChild(Handle(), focus));
}

void CListComboBox::OnListClosed() {
  const HWND box = Handle();
  CListCtrlComboEdit& list = list_;
  const CUString text = SelectedRowText();
  // A list that is hidden is coming to its end.
  if (!text.IsEmpty() && ::IsWindowVisible(list.Handle())) list.OnComboDone(text);
  if (FromHandle(box) != this) return;
  // A box that closes because the user has gone elsewhere does not fetch them back.
  if (HoldsFocus()) list.Focus();
}

// The box is still in the middle of its message: it ends behind that.
void CListComboBox::OnFocusLost() const {
  ::ShowWindow(Handle(), SW_HIDE);
  list_.Post(CListCtrlComboEdit::kCloseEditorsMessage, reinterpret_cast<WPARAM>(Handle()));
}

bool CListComboBox::OnReflected(WindowMessage& message) {
  if (message.message != WM_COMMAND) return false;
  switch (message.Notification()) {
    case CBN_SELENDCANCEL:  // what the user has looked through is no choice
      Select(initialRow_);
      break;
    case CBN_CLOSEUP:
      OnListClosed();
      break;
    case CBN_KILLFOCUS:
      OnFocusLost();
      break;
    default:
      break;
  }
  return true;
}

// A drop list shows the text of its selected row only.
void CListComboBox::DrawOwnText() const {
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  if (!::GetComboBoxInfo(Handle(), &info)) return;
  const WindowDC dc(Handle());
  const SelectScope font(dc, Font());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
  ::InflateRect(&info.rcItem, -Scale(2), 0);
  ::DrawTextW(dc, text_.Text(), text_.Length(), &info.rcItem,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

bool CListComboBox::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_GETDLGCODE: {
      const auto* key = reinterpret_cast<const MSG*>(message.lParam);
      message.result = DefaultHandling(message);
      if (key && (key->wParam == VK_RETURN || key->wParam == VK_ESCAPE)) message.result |= DLGC_WANTMESSAGE;
      return true;
    }
    case WM_KEYDOWN:
      if ((message.wParam != VK_RETURN && message.wParam != VK_ESCAPE) || IsDropped()) return false;
      list_.Focus();
      return true;
    case WM_GETTEXTLENGTH:
      if (!ShowsOwnText()) return false;
      message.result = text_.Length();
      return true;
    case WM_GETTEXT:
      if (!ShowsOwnText() || !message.wParam) return false;
      ::lstrcpynW(reinterpret_cast<wchar_t*>(message.lParam), text_.Text(), static_cast<int>(message.wParam));
      message.result = ::lstrlenW(reinterpret_cast<const wchar_t*>(message.lParam));
      return true;
    case WM_PAINT:
      message.result = DefaultHandling(message);
      if (ShowsOwnText()) DrawOwnText();
      return true;
    default:
      return false;
  }
}
