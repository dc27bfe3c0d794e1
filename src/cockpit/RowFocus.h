// How the controls of a row tell the cockpit page that the keyboard has come to them.
#pragma once

#include "window/CWnd.h"
#include "window/MessageMap.h"

// To the page: the control with the id in the first argument has got the focus (1 in the second) or lost it (0).
constexpr UINT kRowFocusMessage = WM_APP + 3;

// To be called with each message of the control.
inline void TellRowFocus(const CWnd& control, const WindowMessage& message) {
  if (message.message != WM_SETFOCUS && message.message != WM_KILLFOCUS) return;
  control.Parent().Send(kRowFocusMessage, static_cast<WPARAM>(control.Id()), message.message == WM_SETFOCUS);
}
