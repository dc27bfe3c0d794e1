#include "controls/CDrawnBox.h"

// behind Windows.h
#include <oleacc.h>

#include "controls/BufferedPainting.h"

bool CDrawnBox::OnReflected(WindowMessage& message) {
  return AnswerDrawItem(message, [this](HDC dc, const DRAWITEMSTRUCT& item) { Draw(dc, item.rcItem); });
}

bool CDrawnBox::OnWindowMessage(WindowMessage& message) {
  if (AnswerReader(message)) return true;
  switch (message.message) {
    case WM_NCHITTEST:
      message.result = HTTRANSPARENT;  // the mouse means what lies below
      return true;
    case WM_GETDLGCODE:
      message.result = DLGC_STATIC;
      return true;
    default:
      // Not left to WM_DRAWITEM alone: a parent may be a list, which hands nothing on.
      return AnswerPainting(message, [this](HDC dc) { Draw(dc, ClientRect()); });
  }
}

int CDrawnBox::PartRole(int) const { return ROLE_SYSTEM_STATICTEXT; }

int CDrawnBox::PartState(int) const { return STATE_SYSTEM_READONLY; }
