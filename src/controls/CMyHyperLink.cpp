#include "controls/CMyHyperLink.h"

#include "environment/Shell.h"

namespace {

constexpr COLORREF kHoverColor = 0x0000FF;
constexpr COLORREF kLinkColor = 0xFF0000;
constexpr COLORREF kVisitedColor = 0x8F2205;

HCURSOR LinkCursor() {
  const HCURSOR hand = ::LoadCursorW(nullptr, IDC_HAND);
  return hand ? hand : ::LoadCursorW(nullptr, IDC_ARROW);
}

}  // namespace

void CMyHyperLink::OnAttached() {
  ChangeStyle(0, SS_NOTIFY);
  linkFont_ = DeriveFont(Font(), [](LOGFONTW& font) { font.lfUnderline = TRUE; });
  SetFont(linkFont_.Get());
}

COLORREF CMyHyperLink::CurrentColor() const {
  if (IsHighContrast()) return ::GetSysColor(COLOR_HOTLIGHT);
  if (visited_) return kVisitedColor;
  return hover_ ? kHoverColor : kLinkColor;
}

void CMyHyperLink::Follow() {
  // The page may open a box or another page: nothing may hold the mouse then.
  if (::GetCapture() == Handle()) ::ReleaseCapture();
  const HWND control = Handle();
  if (notifyParent_)
    Parent().Send(kLinkClickedMessage, static_cast<WPARAM>(Id()));
  else
    OpenWithShell(::GetAncestor(control, GA_ROOT), url_.Text(), SW_SHOWMINIMIZED);
  if (!::IsWindow(control)) return;
  if (markVisited_) visited_ = true;
  Invalidate();
}

void CMyHyperLink::SetHover(bool hover) {
  if (hover_ == hover) return;
  hover_ = hover;
  Invalidate();
}

void CMyHyperLink::OnMouseMove(POINT point) {
  const RECT client = ClientRect();
  const bool inside = ::PtInRect(&client, point);
  SetHover(inside);
  if (inside && ::GetCapture() != Handle())
    ::SetCapture(Handle());
  else if (!inside && ::GetCapture() == Handle())
    ::ReleaseCapture();
}

bool CMyHyperLink::IsFollowKey(const MSG* key) const {
  return key && key->message == WM_KEYDOWN && (key->wParam == VK_RETURN || key->wParam == VK_SPACE);
}

bool CMyHyperLink::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_MOUSEMOVE:
      OnMouseMove({GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)});
      return false;
    case WM_CAPTURECHANGED:
      if (reinterpret_cast<HWND>(message.lParam) != Handle()) SetHover(false);
      return false;
    case WM_SETCURSOR:
      ::SetCursor(LinkCursor());
      message.result = TRUE;
      return true;
    case WM_GETDLGCODE:
      message.result = DefaultHandling(message);
      if (IsFollowKey(reinterpret_cast<const MSG*>(message.lParam))) message.result |= DLGC_WANTMESSAGE;
      return true;
    case WM_KEYDOWN:
      if (message.wParam != VK_RETURN && message.wParam != VK_SPACE) return false;
      Follow();
      return true;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE:
      Invalidate();
      return false;
    case WM_PAINT:
      message.result = DefaultHandling(message);
      DrawFocus();
      return true;
    default:
      return false;
  }
}

void CMyHyperLink::DrawFocus() const {
  if (!HasFocus() || (Send(WM_QUERYUISTATE) & UISF_HIDEFOCUS)) return;
  const WindowDC dc(Handle());
  const RECT client = ClientRect();
  ::DrawFocusRect(dc, &client);
}

bool CMyHyperLink::OnReflected(WindowMessage& message) {
  if (message.message == WM_COMMAND && message.Notification() == STN_CLICKED) {
    Follow();
    return true;
  }
  if (message.message != WM_CTLCOLORSTATIC) return false;
  const auto dc = reinterpret_cast<HDC>(message.wParam);
  ::SetTextColor(dc, CurrentColor());
  ::SetBkMode(dc, TRANSPARENT);
  message.result = reinterpret_cast<LRESULT>(::GetStockObject(HOLLOW_BRUSH));
  return true;
}
