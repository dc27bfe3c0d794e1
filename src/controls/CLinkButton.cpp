#include "controls/CLinkButton.h"

#include "controls/FocusFrame.h"
#include "controls/LinkColors.h"
#include "controls/PageGround.h"
#include "window/Gdi.h"

void CLinkButton::SetHover(bool hover) {
  if (hover_ == hover) return;
  hover_ = hover;
  Invalidate();
}

void CLinkButton::Draw(HDC dc, const RECT& client) {
  DrawPageGround(*this, dc);
  const GdiFont underlined = DeriveFont(Font(), [](LOGFONTW& font) { font.lfUnderline = TRUE; });
  const SelectScope font(dc, underlined.Get());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, IsHighContrast() ? ::GetSysColor(COLOR_HOTLIGHT) : LinkColor(hover_, false));
  const CUString text = Text();
  RECT place = client;
  ::DrawTextW(dc, text.Text(), text.Length(), &place, DT_SINGLELINE | DT_HIDEPREFIX);
  if (ShowsFocus(*this)) DrawFocus(dc, client);
}

bool CLinkButton::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_MOUSEMOVE: {
      TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, Handle(), 0};
      ::TrackMouseEvent(&leaving);
      SetHover(true);
      return false;
    }
    case WM_MOUSELEAVE:
      SetHover(false);
      return false;
    case WM_SETCURSOR:
      ::SetCursor(::LoadCursorW(nullptr, IDC_HAND));
      message.result = TRUE;
      return true;
    default:
      return CDrawnButton::OnWindowMessage(message);
  }
}
