// Painting without flicker: what is drawn goes to a buffer first, and from there to the window in one step.
//
//   default:
//     return AnswerPainting(message, [this](HDC dc) { Draw(dc); });
#pragma once

#include "window/COMemDC.h"
#include "window/MessageMap.h"

// Answers WM_PAINT and WM_PRINTCLIENT of a control. `draw` covers the whole client area.
template <class Draw>
void PaintBuffered(WindowMessage& message, Draw draw) {
  message.result = 0;
  if (message.message == WM_PRINTCLIENT) {
    draw(reinterpret_cast<HDC>(message.wParam));  // a surface of somebody's own: nobody sees it meanwhile
    return;
  }
  const PaintDC paint(message.window);
  const COMemDC buffer(paint);
  draw(static_cast<HDC>(buffer));
}

// Answers what a control is asked for its picture by; false for other messages. There is nothing to erase: `draw`
// covers the whole client area.
template <class Draw>
bool AnswerPainting(WindowMessage& message, Draw draw) {
  switch (message.message) {
    case WM_ERASEBKGND:
      message.result = TRUE;
      return true;
    case WM_PAINT:
    case WM_PRINTCLIENT:
      PaintBuffered(message, draw);
      return true;
    default:
      return false;
  }
}

// Draws an item. `draw` covers the item's rectangle; what it draws outside of it is cut off.
template <class Draw>
void DrawItemBuffered(const DRAWITEMSTRUCT& item, Draw draw) {
  const int state = ::SaveDC(item.hDC);
  ::IntersectClipRect(item.hDC, item.rcItem.left, item.rcItem.top, item.rcItem.right, item.rcItem.bottom);
  {
    const COMemDC buffer(item.hDC);
    draw(static_cast<HDC>(buffer));
  }
  ::RestoreDC(item.hDC, state);
}

// Answers WM_DRAWITEM with `draw(dc, item)`; false for other messages.
template <class Draw>
bool AnswerDrawItem(WindowMessage& message, Draw draw) {
  if (message.message != WM_DRAWITEM) return false;
  const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam);
  DrawItemBuffered(item, [&](HDC dc) { draw(dc, item); });
  message.result = TRUE;
  return true;
}
