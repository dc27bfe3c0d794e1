#include "controls/CIntScrollBar.h"

#include <algorithm>

#include "controls/LabelText.h"
#include "window/CAccessibleObject.h"

int CIntScrollBar::PositionAfter(int code, int given) const {
  const int position = Position();
  switch (code) {
    case SB_LINEUP:
      return std::max(position - 1, Minimum());
    case SB_LINEDOWN:
      return std::min(position + 1, Highest());
    case SB_PAGEUP:
      return std::max(position - Page(), Minimum());
    case SB_PAGEDOWN:
      return std::min(position + Page(), Highest());
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
      return given;
    case SB_TOP:
      return Minimum();
    case SB_BOTTOM:
      return Highest();
    default:
      return position;
  }
}

bool CIntScrollBar::OnWindowMessage(WindowMessage& message) { return AnswerReader(message); }

CUString CIntScrollBar::PartName(int) const { return LabelBefore(*this); }

int CIntScrollBar::PartRole(int) const { return ROLE_SYSTEM_SCROLLBAR; }

CUString CIntScrollBar::PartValue(int) const {
  CUString value;
  value.Format(L"%d", Position());
  return value;
}

bool CIntScrollBar::OnReflected(WindowMessage& message) {
  if (message.message == WM_HSCROLL || message.message == WM_VSCROLL)
    SetPosition(PositionAfter(LOWORD(message.wParam), HIWORD(message.wParam)));
  return false;  // the parent goes on with the new position
}
