#include "window/Controls.h"

#include <algorithm>
#include <string>

namespace {

// Lists and combos tell a row's text alike: a length, then the text into a buffer of that length plus one.
CUString TextOfRow(const CWnd& list, UINT lengthMessage, UINT textMessage, int row) {
  CUString text;
  const LRESULT length = list.Send(lengthMessage, static_cast<WPARAM>(row));
  if (row < 0 || length <= 0) return text;  // CB_ERR and LB_ERR are negative
  text.EnsureCapacity(static_cast<int>(length));
  const LRESULT copied = list.Send(textMessage, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.Buffer()));
  text.SetLength(static_cast<int>(std::max<LRESULT>(copied, 0)));
  return text;
}

}  // namespace

CUString CComboBox::RowText(int row) const { return TextOfRow(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, row); }

CUString CListBox::RowText(int row) const { return TextOfRow(*this, LB_GETTEXTLEN, LB_GETTEXT, row); }

std::vector<int> CListBox::SelectedRows() const {
  std::vector<int> rows(static_cast<size_t>(std::max<LRESULT>(Send(LB_GETSELCOUNT), 0)));
  rows.resize(static_cast<size_t>(
      std::max<LRESULT>(Send(LB_GETSELITEMS, rows.size(), reinterpret_cast<LPARAM>(rows.data())), 0)));
  return rows;
}

int CListBox::RowAt(POINT point) const {
  // The answer is the nearest row, which need not be under the point.
  const int row = LOWORD(Send(LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y)));
  const RECT client = ClientRect();
  RECT rect{};
  const bool found =
      row < Count() && Send(LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect)) >= 0;
  return found && ::PtInRect(&rect, point) && ::PtInRect(&client, point) ? row : -1;
}

void CScrollBar::SetRange(int minimum, int maximum, int page) const {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE;
  info.nMin = minimum;
  info.nMax = maximum;
  info.nPage = static_cast<UINT>(page);
  ::SetScrollInfo(window_, SB_CTL, &info, TRUE);
}

SCROLLINFO CScrollBar::Info() const {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  ::GetScrollInfo(window_, SB_CTL, &info);
  return info;
}

int CScrollBar::Highest() const {
  const SCROLLINFO info = Info();
  return std::max(info.nMin, info.nMax - std::max(static_cast<int>(info.nPage) - 1, 0));
}

int CTabCtrl::InsertItem(int item, const wchar_t* text) const {
  TCITEMW row{};
  row.mask = TCIF_TEXT;
  row.pszText = const_cast<wchar_t*>(text);
  return static_cast<int>(Send(TCM_INSERTITEMW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&row)));
}

int CListCtrl::ColumnCount() const {
  const CWnd header(reinterpret_cast<HWND>(Send(LVM_GETHEADER)));
  return std::max(static_cast<int>(header.Send(HDM_GETITEMCOUNT)), 0);
}

int CListCtrl::InsertColumn(int column, const wchar_t* title, int width) const {
  LVCOLUMNW item{};
  item.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
  item.pszText = const_cast<wchar_t*>(title);
  item.cx = width;
  item.iSubItem = column;
  return static_cast<int>(Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item)));
}

int CListCtrl::InsertRow(int row, const wchar_t* text, LPARAM data) const {
  LVITEMW item{};
  item.mask = LVIF_TEXT | LVIF_PARAM;
  item.iItem = row;
  item.pszText = const_cast<wchar_t*>(text);
  item.lParam = data;
  return window_ ? static_cast<int>(Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item))) : -1;
}

LPARAM CListCtrl::RowData(int row) const {
  LVITEMW item{};
  item.mask = LVIF_PARAM;
  item.iItem = row;
  return row >= 0 && Send(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) ? item.lParam : 0;
}

void CListCtrl::SetCell(int row, int column, const wchar_t* text) const {
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = const_cast<wchar_t*>(text);
  Send(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

CUString CListCtrl::CellText(int row, int column) const {
  // The list does not tell a text's length: one that fills the buffer may go on.
  for (size_t capacity = 256;; capacity *= 2) {
    std::wstring buffer(capacity, L'\0');
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = buffer.data();
    item.cchTextMax = static_cast<int>(capacity);
    const auto length =
        static_cast<size_t>(Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)));
    if (length + 1 < capacity) return CUString(std::wstring_view(buffer).substr(0, length));
  }
}

// A check box is a state image: the first one is empty, the second one is checked.
bool CListCtrl::IsChecked(int row) const { return RowState(row, LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2); }

void CListCtrl::SetCheck(int row, bool check) const {
  SetRowState(row, LVIS_STATEIMAGEMASK, INDEXTOSTATEIMAGEMASK(check ? 2u : 1u));
}

void CListCtrl::SetRowState(int row, UINT mask, UINT state) const {
  LVITEMW item{};
  item.stateMask = mask;
  item.state = state;
  // To the platform row -1 stands for all rows.
  if (row >= 0) Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void CListCtrl::SelectRow(int row) const {
  if (row < 0 || row >= Count()) return;
  SetSelectionMark(row);
  EnsureVisible(row);
  SetRowState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

RECT CListCtrl::RowRect(int row) const {
  RECT rect{LVIR_BOUNDS, 0, 0, 0};
  const bool found = row >= 0 && Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
  return found ? rect : RECT{};
}

RECT CListCtrl::CellRect(int row, int column) const {
  // The bounds of the first cell are those of the row.
  RECT rect{column == 0 ? LVIR_LABEL : LVIR_BOUNDS, column, 0, 0};
  const bool found =
      row >= 0 && row < Count() && Send(LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
  return found ? rect : RECT{};
}

int CListCtrl::RowAt(POINT point) const {
  LVHITTESTINFO hit{};
  hit.pt = point;
  return window_ ? static_cast<int>(Send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit))) : -1;
}
