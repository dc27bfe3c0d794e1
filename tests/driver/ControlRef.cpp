#include "driver/ControlRef.h"

#include <windowsx.h>
// behind windowsx.h
#include <commctrl.h>
#include <gtest/gtest.h>

#include "driver/Text.h"

namespace {

enum class Kind { kOther, kCombo, kListBox, kListView, kSlider, kScrollBar };

Kind KindOf(HWND window) {
  static constexpr struct {
    const wchar_t* className;
    Kind kind;
  } kKinds[] = {{L"ComboBox", Kind::kCombo},
                {L"ListBox", Kind::kListBox},
                {L"SysListView32", Kind::kListView},
                {L"msctls_trackbar32", Kind::kSlider},
                {L"ScrollBar", Kind::kScrollBar}};
  for (const auto& [className, kind] : kKinds)
    if (HasClass(window, className)) return kind;
  return Kind::kOther;
}

COMBOBOXINFO ComboInfo(HWND combo) {
  COMBOBOXINFO info = {};
  info.cbSize = sizeof info;
  GetComboBoxInfo(combo, &info);
  return info;
}

SCROLLINFO ScrollInfo(HWND scrollBar) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(scrollBar, SB_CTL, &info);
  return info;
}

std::wstring ReadRow(HWND window, UINT lengthMessage, UINT textMessage, int row) {
  const LRESULT length = SendMessageW(window, lengthMessage, row, 0);
  if (length < 0) return {};
  std::wstring text(static_cast<size_t>(length) + 1, L'\0');
  text.resize(static_cast<size_t>(SendMessageW(window, textMessage, row, reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

}  // namespace

void ControlRef::Fail(const std::string& text) const {
  ADD_FAILURE_AT(where_.file_name(), static_cast<int>(where_.line())) << text;
}

bool ControlRef::IsUsable(const char* action) const {
  const std::string name = "Cannot " + std::string(action) + " control " + std::to_string(id_);
  if (!Exists()) {
    Fail(name + ": there is none");
    return false;
  }
  const char* reason = !IsVisible() ? "hidden" : !IsEnabled() ? "disabled" : nullptr;
  if (reason) Fail(name + ": it is " + reason + ", " + DescribeWindow(window_));
  return !reason;
}

// --- What it shows ----------------------------------------------------------------------------------------------

std::wstring ControlRef::Text() const { return WindowText(window_); }

bool ControlRef::IsChecked() const { return SendMessageW(window_, BM_GETCHECK, 0, 0) == BST_CHECKED; }

bool ControlRef::HasFocus() const {
  const HWND focus = GetFocus();
  return focus && (focus == window_ || IsChild(window_, focus));
}

int ControlRef::RowCount() const {
  switch (KindOf(window_)) {
    case Kind::kCombo:
      return static_cast<int>(SendMessageW(window_, CB_GETCOUNT, 0, 0));
    case Kind::kListBox:
      return static_cast<int>(SendMessageW(window_, LB_GETCOUNT, 0, 0));
    case Kind::kListView:
      return ListView_GetItemCount(window_);
    default:
      return 0;
  }
}

int ControlRef::SelectedRow() const {
  switch (KindOf(window_)) {
    case Kind::kCombo:
      return static_cast<int>(SendMessageW(window_, CB_GETCURSEL, 0, 0));
    case Kind::kListBox:
      return static_cast<int>(SendMessageW(window_, LB_GETCURSEL, 0, 0));
    case Kind::kListView:
      return ListView_GetNextItem(window_, -1, LVNI_SELECTED);
    default:
      return -1;
  }
}

std::wstring ControlRef::Row(int row, int column) const {
  switch (KindOf(window_)) {
    case Kind::kCombo:
      return ReadRow(window_, CB_GETLBTEXTLEN, CB_GETLBTEXT, row);
    case Kind::kListBox:
      return ReadRow(window_, LB_GETTEXTLEN, LB_GETTEXT, row);
    case Kind::kListView: {
      wchar_t text[1024] = L"";
      ListView_GetItemText(window_, row, column, text, ARRAYSIZE(text));
      return text;
    }
    default:
      return {};
  }
}

std::vector<std::wstring> ControlRef::Rows() const {
  std::vector<std::wstring> rows;
  for (int row = 0; row < RowCount(); ++row) rows.push_back(Row(row));
  return rows;
}

bool ControlRef::IsRowChecked(int row) const { return ListView_GetCheckState(window_, row) == 1; }

int ControlRef::Position() const {
  if (KindOf(window_) == Kind::kSlider) return static_cast<int>(SendMessageW(window_, TBM_GETPOS, 0, 0));
  return ScrollInfo(window_).nPos;
}

int ControlRef::Minimum() const {
  if (KindOf(window_) == Kind::kSlider) return static_cast<int>(SendMessageW(window_, TBM_GETRANGEMIN, 0, 0));
  return ScrollInfo(window_).nMin;
}

int ControlRef::Maximum() const {
  if (KindOf(window_) == Kind::kSlider) return static_cast<int>(SendMessageW(window_, TBM_GETRANGEMAX, 0, 0));
  const SCROLLINFO info = ScrollInfo(window_);
  return info.nMax - (info.nPage > 0 ? static_cast<int>(info.nPage) - 1 : 0);
}

// --- What the user does -----------------------------------------------------------------------------------------

void ControlRef::Focus() const {
  if (IsUsable("focus")) SetFocus(window_);
}

void ControlRef::Click() const {
  if (!IsUsable("click")) return;
  // A click on a static control (a link) reaches it as mouse messages; a button does the same for BM_CLICK.
  if (HasClass(window_, L"Button")) {
    SendMessageW(window_, BM_CLICK, 0, 0);
    return;
  }
  RECT client = {};
  GetClientRect(window_, &client);
  const LPARAM point = MAKELPARAM(client.right / 2, client.bottom / 2);
  SendMessageW(window_, WM_MOUSEMOVE, 0, point);
  SendMessageW(window_, WM_LBUTTONDOWN, MK_LBUTTON, point);
  SendMessageW(window_, WM_LBUTTONUP, 0, point);
}

HWND ControlRef::EditWindow() const { return KindOf(window_) == Kind::kCombo ? ComboInfo(window_).hwndItem : window_; }

void ControlRef::SetText(const std::wstring& text) const {
  if (!IsUsable("type into")) return;
  const HWND edit = EditWindow();
  if (!edit || !HasClass(edit, L"Edit"))
    return Fail("Cannot type into " + DescribeWindow(window_) + ": it has no edit");
  if (GetWindowLongW(edit, GWL_STYLE) & ES_READONLY)
    return Fail("Cannot type into " + DescribeWindow(window_) + ": it is read-only");
  SetFocus(edit);
  SendMessageW(edit, EM_SETSEL, 0, -1);
  if (text.empty()) SendMessageW(edit, WM_CHAR, L'\b', 1);
  for (wchar_t character : text) SendMessageW(edit, WM_CHAR, character == L'\n' ? L'\r' : character, 1);
}

void ControlRef::Select(int row) const {
  if (!IsUsable("select in")) return;
  if (row < 0 || row >= RowCount())
    return Fail("Cannot select row " + std::to_string(row) + " of " + std::to_string(RowCount()) + " in " +
                DescribeWindow(window_));
  SetFocus(window_);
  switch (KindOf(window_)) {
    case Kind::kCombo:
      return SelectInCombo(row);
    case Kind::kListBox:
      return ClickListRow(window_, row);
    default:
      break;
  }
  ListView_SetItemState(window_, -1, 0, LVIS_SELECTED);
  ListView_SetItemState(window_, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void ControlRef::Select(const std::wstring& rowText) const {
  for (int row = 0; row < RowCount(); ++row)
    if (Row(row) == rowText) return Select(row);
  if (IsUsable("select in")) Fail("No row \"" + ToUtf8(rowText) + "\" in " + DescribeWindow(window_));
}

void ControlRef::SelectInCombo(int row) const {
  SendMessageW(window_, CB_SHOWDROPDOWN, TRUE, 0);
  ClickListRow(ComboInfo(window_).hwndList, row);
}

void ControlRef::ClickListRow(HWND list, int row) const {
  SendMessageW(list, LB_SETTOPINDEX, row, 0);
  RECT bounds = {};
  SendMessageW(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&bounds));
  const LPARAM point = MAKELPARAM(bounds.left + 2, (bounds.top + bounds.bottom) / 2);
  SendMessageW(list, WM_MOUSEMOVE, 0, point);
  SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, point);
  SendMessageW(list, WM_LBUTTONUP, 0, point);
}

void ControlRef::CheckRow(int row, bool checked) const {
  if (IsUsable("check a row of")) ListView_SetCheckState(window_, row, checked);
}

bool ControlRef::IsVertical() const {
  return GetWindowLongW(window_, GWL_STYLE) & (KindOf(window_) == Kind::kSlider ? TBS_VERT : SBS_VERT);
}

void ControlRef::Scroll(int code) const {
  if (!IsUsable("scroll")) return;
  SetFocus(window_);
  const HWND parent = GetParent(window_);
  const UINT message = IsVertical() ? WM_VSCROLL : WM_HSCROLL;
  if (KindOf(window_) == Kind::kSlider) {
    // The codes of sliders and scroll bars agree. The keys up and down are not swapped in a mirrored window.
    static constexpr WORD kKeys[] = {VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT, 0, 0, VK_HOME, VK_END};
    SendMessageW(window_, WM_KEYDOWN, kKeys[code & 7], 1);
    SendMessageW(window_, WM_KEYUP, kKeys[code & 7], static_cast<LPARAM>(0xC0000001));
    return;
  }
  SendMessageW(parent, message, MAKEWPARAM(code, 0), reinterpret_cast<LPARAM>(window_));
  SendMessageW(parent, message, MAKEWPARAM(SB_ENDSCROLL, 0), reinterpret_cast<LPARAM>(window_));
}

void ControlRef::DragTo(int position) const {
  if (!IsUsable("drag")) return;
  if (position < Minimum() || position > Maximum())
    return Fail("Cannot drag " + DescribeWindow(window_) + " to " + std::to_string(position) + ": it ends at " +
                std::to_string(Minimum()) + " and " + std::to_string(Maximum()));
  SetFocus(window_);
  const HWND parent = GetParent(window_);
  const UINT message = IsVertical() ? WM_VSCROLL : WM_HSCROLL;
  if (KindOf(window_) == Kind::kSlider) SendMessageW(window_, TBM_SETPOS, TRUE, position);
  for (int code : {SB_THUMBTRACK, SB_THUMBPOSITION})
    SendMessageW(parent, message, MAKEWPARAM(code, position), reinterpret_cast<LPARAM>(window_));
  SendMessageW(parent, message, MAKEWPARAM(SB_ENDSCROLL, 0), reinterpret_cast<LPARAM>(window_));
}

void ControlRef::ClickAt(int x, int y) const {
  if (!IsUsable("click")) return;
  MoveMouseTo(x, y);
  PostMessageW(window_, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  PostMessageW(window_, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void ControlRef::DoubleClickAt(int x, int y) const {
  if (!IsUsable("click")) return;
  ClickAt(x, y);
  PostMessageW(window_, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y));
  PostMessageW(window_, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void ControlRef::RightClickAt(int x, int y) const {
  if (!IsUsable("click")) return;
  MoveMouseTo(x, y);
  PostMessageW(window_, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(x, y));
  PostMessageW(window_, WM_RBUTTONUP, 0, MAKELPARAM(x, y));
}

void ControlRef::MoveMouseTo(int x, int y) const { PostMessageW(window_, WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }

void ControlRef::Drag(POINT from, POINT to) const {
  if (!IsUsable("drag in")) return;
  MoveMouseTo(from.x, from.y);
  PostMessageW(window_, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
  PostMessageW(window_, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM((from.x + to.x) / 2, (from.y + to.y) / 2));
  PostMessageW(window_, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
  PostMessageW(window_, WM_LBUTTONUP, 0, MAKELPARAM(to.x, to.y));
}
