#include "controls/CToolTipBox.h"

// behind Windows.h
#include <oleacc.h>

#include <algorithm>

#include "controls/ToolTipPlacement.h"

namespace {

constexpr COLORREF kGroundColor = 0xC8FFFF;
constexpr COLORREF kFrameColor = 0x3C3C3C;
constexpr int kInset = 2;  // pixels at 96 dpi

// The client area of the page, less what lies outside of the window around it and is not seen.
RECT ShownClientRect(const CWnd& page) {
  RECT client = page.ClientRect();
  if (!(page.Style() & WS_CHILD)) return client;
  const CWnd parent = page.Parent();
  RECT frame = parent.ClientRect();
  ::MapWindowPoints(parent.Handle(), page.Handle(), reinterpret_cast<POINT*>(&frame), 2);
  if (frame.left > frame.right) std::swap(frame.left, frame.right);  // mirrored
  RECT shown;
  return ::IntersectRect(&shown, &client, &frame) ? shown : client;
}

}  // namespace

bool CToolTipBox::Open(const CWnd& page, int id) {
  const RECT client = ShownClientRect(page);
  const IntRect place = PlaceToolTip(lineCount, widthInCharacters, mousePosition,
                                     {client.left, client.top, client.right, client.bottom}, page.Dpi());
  return Create(page, id, {place.left, place.top, place.right, place.bottom});
}

void CToolTipBox::Draw(HDC dc, const RECT& client) const {
  const bool highContrast = IsHighContrast();
  const GdiBrush ground(::CreateSolidBrush(highContrast ? ::GetSysColor(COLOR_INFOBK) : kGroundColor));
  const GdiBrush frame(::CreateSolidBrush(highContrast ? ::GetSysColor(COLOR_INFOTEXT) : kFrameColor));
  ::FillRect(dc, &client, ground.Get());
  ::FrameRect(dc, &client, frame.Get());
  RECT inside = client;
  ::InflateRect(&inside, -Scale(kInset), -Scale(kInset));
  const GdiFont narrow = FontThatFits(dc, inside);
  DrawNote(dc, inside, highContrast ? ::GetSysColor(COLOR_INFOTEXT) : RGB(0, 0, 0), narrow.Get());
}

bool CToolTipBox::Fits(HDC dc, HFONT font, const RECT& inside) const {
  const SelectScope scope(dc, font);
  RECT needed = inside;
  ::DrawTextW(dc, text.Text(), text.Length(), &needed, DT_WORDBREAK | DT_NOPREFIX | DT_CALCRECT);
  return needed.bottom <= inside.bottom;
}

// The box is measured by the number of characters and lines. A face whose letters are wider than that is drawn narrower
// rather than broken into more lines, the last of which would be cut. Null when the box's own font will do.
GdiFont CToolTipBox::FontThatFits(HDC dc, const RECT& inside) const {
  if (Fits(dc, Font(), inside)) return {};
  TEXTMETRICW metrics{};
  {
    const SelectScope scope(dc, Font());
    ::GetTextMetricsW(dc, &metrics);
  }
  const LONG narrowest = std::max(1L, metrics.tmAveCharWidth * 3 / 5);
  for (LONG width = metrics.tmAveCharWidth - 1;; --width) {
    GdiFont narrow = DeriveFont(Font(), [width](LOGFONTW& description) { description.lfWidth = width; });
    if (width <= narrowest || Fits(dc, narrow.Get(), inside)) return narrow;
  }
}

void CToolTipBox::OnMouseMove(WPARAM keys, LPARAM point) const {
  const CWnd page = Parent();
  TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, Handle(), 0};
  ::TrackMouseEvent(&leaving);
  POINT onPage{GET_X_LPARAM(point), GET_Y_LPARAM(point)};
  ::MapWindowPoints(Handle(), page.Handle(), &onPage, 1);
  // When a window appears under it, the system reports the mouse anew though it stands still.
  if (onPage.x == mousePosition.x && onPage.y == mousePosition.y) return;
  page.Send(WM_MOUSEMOVE, keys, MAKELPARAM(onPage.x, onPage.y));
}

bool CToolTipBox::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_NCHITTEST:
      // The box stands under the mouse: what lies below must not be hovered or clicked through it.
      message.result = HTCLIENT;
      return true;
    case WM_MOUSEMOVE:
      OnMouseMove(message.wParam, message.lParam);
      return true;
    case WM_MOUSELEAVE:
      Parent().Send(WM_MOUSELEAVE);
      return true;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
      return true;  // takes no focus
    default:
      return CNoteBox::OnWindowMessage(message);
  }
}

int CToolTipBox::PartRole(int) const { return ROLE_SYSTEM_TOOLTIP; }
