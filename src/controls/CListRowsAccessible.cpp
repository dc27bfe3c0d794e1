#include "controls/CListRowsAccessible.h"

// behind Windows.h
#include <oleacc.h>

#include "controls/LabelText.h"

CUString CListRowsAccessible::PartName(int part) const {
  if (part == kSelf) return LabelBefore(list_);
  CUString name;
  const int columns = list_.ColumnCount();
  for (int column = 0; column < columns; ++column) {
    const CUString text = list_.CellText(part - 1, column);
    if (text.IsEmpty()) continue;
    if (!name.IsEmpty()) name += L", ";
    name += text;
  }
  return name;
}

int CListRowsAccessible::PartRole(int part) const { return part == kSelf ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM; }

int CListRowsAccessible::PartState(int part) const {
  if (part == kSelf) return list_.IsEnabled() ? 0 : STATE_SYSTEM_UNAVAILABLE;
  const int row = part - 1;
  int state = list_.IsEnabled() ? STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE : STATE_SYSTEM_UNAVAILABLE;
  if (list_.RowState(row, LVIS_SELECTED)) state |= STATE_SYSTEM_SELECTED;
  if (list_.HasFocus() && list_.RowState(row, LVIS_FOCUSED)) state |= STATE_SYSTEM_FOCUSED;
  if (list_.IsChecked(row)) state |= STATE_SYSTEM_CHECKED;
  const RECT client = list_.ClientRect(), rect = list_.RowRect(row);
  RECT visible{};
  if (!::IntersectRect(&visible, &client, &rect)) state |= STATE_SYSTEM_OFFSCREEN;
  return state;
}
