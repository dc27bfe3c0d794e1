// Enter on a row of a list: the list takes the key from its dialog and tells its parent by NM_RETURN.
#pragma once

#include "window/Controls.h"
#include "window/MessageMap.h"

// WM_GETDLGCODE: the list wants Enter while the keyboard stands on a row. It also wants an Enter or Esc that is still
// held from elsewhere, an editor in the list or a box: it would press the sheet's buttons.
bool WantsDialogKey(const CListCtrl& list, const MSG* message);

// WM_KEYDOWN: true for such a held key, which does nothing.
bool IsHeldDialogKey(const WindowMessage& message);

// WM_NOTIFY of the list's own head: the column whose head was clicked with the left button, -1 for anything else.
int ClickedColumn(const WindowMessage& message);
