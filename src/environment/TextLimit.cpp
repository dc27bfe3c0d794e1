#include "environment/TextLimit.h"

bool IsTextAtLimit(HWND dialog, int controlId, int focusId, int limit, bool select) {
  const HWND control = ::GetDlgItem(dialog, controlId), focus = ::GetDlgItem(dialog, focusId);
  if (!control || !focus || ::GetWindowTextLengthW(control) < limit) return false;
  ::SetFocus(focus);
  if (select) ::SendMessageW(focus, EM_SETSEL, 0, -1);
  return true;
}
