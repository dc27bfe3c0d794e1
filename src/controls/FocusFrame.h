#pragma once

#include "window/Windows.h"

// The dotted rectangle that shows the focus. The colours of what it is drawn on do not matter.
inline void DrawFocus(HDC dc, const RECT& rect) {
  ::SetTextColor(dc, RGB(0, 0, 0));
  ::SetBkColor(dc, RGB(255, 255, 255));
  ::DrawFocusRect(dc, &rect);
}
