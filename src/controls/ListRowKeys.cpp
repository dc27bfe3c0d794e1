#include "controls/ListRowKeys.h"

#include "window/HeldKeys.h"

bool WantsDialogKey(const CListCtrl& list, const MSG* message) {
  if (!message || message->message != WM_KEYDOWN || !IsDialogKey(message->wParam)) return false;
  return IsRepeatedKey(message->lParam) || (message->wParam == VK_RETURN && list.FocusedRow() >= 0);
}

bool IsHeldDialogKey(const WindowMessage& message) {
  return IsHeldDialogKey(message.message, message.wParam, message.lParam);
}

int ClickedColumn(const WindowMessage& message) {
  if (message.message != WM_NOTIFY) return -1;
  const UINT code = message.Notify().code;
  if (code != static_cast<UINT>(HDN_ITEMCLICKW) && code != static_cast<UINT>(HDN_ITEMCLICKA)) return -1;
  const auto& click = reinterpret_cast<const NMHEADERW&>(message.Notify());
  return click.iButton == 0 ? click.iItem : -1;
}
