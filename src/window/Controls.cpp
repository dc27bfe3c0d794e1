#include "window/Controls.h"

#include <algorithm>

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
