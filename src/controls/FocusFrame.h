// How a control that draws itself shows that it has the focus.
#pragma once

#include "window/CWnd.h"

// The user works by keyboard and is to see that the control has the focus.
inline bool ShowsFocus(const CWnd& control) {
  return control.HasFocus() && !(control.Send(WM_QUERYUISTATE) & UISF_HIDEFOCUS);
}

// The dotted rectangle that shows the focus. The colours of what it is drawn on do not matter.
inline void DrawFocus(HDC dc, const RECT& rect) {
  ::SetTextColor(dc, RGB(0, 0, 0));
  ::SetBkColor(dc, RGB(255, 255, 255));
  ::DrawFocusRect(dc, &rect);
}
