#include "controls/CMyHyperLink.h"

// behind Windows.h
#include <oleacc.h>

#include "controls/BufferedPainting.h"
#include "controls/FocusFrame.h"
#include "controls/LabelText.h"
#include "controls/PageGround.h"
#include "DriverLIB/MessageText.h"
#include "environment/Shell.h"
#include "MessageIds.h"
#include "window/HeldKeys.h"

namespace {

HCURSOR LinkCursor() {
  const HCURSOR hand = ::LoadCursorW(nullptr, IDC_HAND);
  return hand ? hand : ::LoadCursorW(nullptr, IDC_ARROW);
}

bool IsFollowKey(WPARAM key) { return key == VK_RETURN || key == VK_SPACE; }

// The dialog must not take it: neither the key for its default button, nor the character for an access key.
bool IsFollowMessage(const MSG* message) {
  return message && (message->message == WM_KEYDOWN || message->message == WM_CHAR) && IsFollowKey(message->wParam);
}

}  // namespace

CMyHyperLink::~CMyHyperLink() {
  // The control may live on, our font does not. Nothing is drawn: the page is coming to its end as well.
  const CWnd control(Handle());
  Detach();
  control.Send(WM_SETFONT, reinterpret_cast<WPARAM>(baseFont_), FALSE);
}

void CMyHyperLink::OnAttached() {
  ChangeStyle(0, SS_NOTIFY);
  cursor_ = LinkCursor();
  SetFont(Font());
}

// --- Following ------------------------------------------------------------------------------------------------------

void CMyHyperLink::Follow() {
  // The page may open a box or another page: nothing may hold the mouse then.
  if (::GetCapture() == Handle()) ::ReleaseCapture();
  const HWND control = Handle();
  if (notifyParent_) {
    Parent().Send(kLinkClickedMessage, static_cast<WPARAM>(Id()));
  } else if (const CUString url = url_; !url.IsEmpty()) {
    OpenWithShell(::GetAncestor(control, GA_ROOT), url.Text(), SW_SHOWMINIMIZED);
  }
  if (FromHandle(control) != this) return;  // what was opened has ended us
  if (markVisited_) {
    visited_ = true;
    NotifyAccessibleEvent(EVENT_OBJECT_STATECHANGE, control, kSelf);
  }
  Invalidate();
}

// --- Mouse ----------------------------------------------------------------------------------------------------------

bool CMyHyperLink::IsOver(LPARAM point) const {
  const RECT client = ClientRect();
  // A page that is left by keyboard hides the link while it has the mouse.
  return ::IsWindowVisible(Handle()) && ::PtInRect(&client, {GET_X_LPARAM(point), GET_Y_LPARAM(point)});
}

void CMyHyperLink::SetHover(bool hover) {
  if (hover_ == hover) return;
  hover_ = hover;
  Invalidate();
}

void CMyHyperLink::OnMouseMove(LPARAM point) {
  if (!IsOver(point)) {
    OnMouseGone();
    return;
  }
  if (::GetCapture() != Handle()) {
    ::SetCapture(Handle());
    // A capture without a pressed button ends at another program's window, and nobody tells.
    TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, Handle(), 0};
    ::TrackMouseEvent(&leaving);
  }
  ::SetCursor(cursor_);  // a window that has captured the mouse is not asked for it
  SetHover(true);
}

void CMyHyperLink::OnMouseGone() {
  SetHover(false);
  if (::GetCapture() == Handle()) ::ReleaseCapture();
}

// --- Drawing --------------------------------------------------------------------------------------------------------

COLORREF CMyHyperLink::Color() const {
  return IsHighContrast() ? ::GetSysColor(COLOR_HOTLIGHT) : LinkColor(hover_, visited_);
}

// The message brings the font of the dialog; the control gets the same with a line below.
void CMyHyperLink::SetLinkFont(WindowMessage& message) {
  baseFont_ = reinterpret_cast<HFONT>(message.wParam);
  GdiFont font = DeriveFont(baseFont_, [](LOGFONTW& description) { description.lfUnderline = TRUE; });
  if (font) message.wParam = reinterpret_cast<WPARAM>(font.Get());
  message.result = DefaultHandling(message);
  linkFont_ = std::move(font);
}

// The static text is drawn by the control itself, which knows its styles; it asks for the colours by way of the parent.
void CMyHyperLink::Draw(HDC dc) {
  DrawPageGround(*this, dc);
  DefaultHandling({Handle(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT});
  if (ShowsFocus(*this)) DrawFocus(dc, ClientRect());
}

bool CMyHyperLink::OnReflected(WindowMessage& message) {
  if (message.message == WM_COMMAND && message.Notification() == STN_CLICKED) {
    Follow();
    return true;
  }
  if (message.message != WM_CTLCOLORSTATIC) return false;
  const auto dc = reinterpret_cast<HDC>(message.wParam);
  ::SetTextColor(dc, Color());
  ::SetBkMode(dc, TRANSPARENT);
  message.result = reinterpret_cast<LRESULT>(::GetStockObject(HOLLOW_BRUSH));
  return true;
}

// --- Messages -------------------------------------------------------------------------------------------------------

bool CMyHyperLink::OnWindowMessage(WindowMessage& message) {
  if (AnswerReader(message)) return true;
  switch (message.message) {
    case WM_MOUSEMOVE:
      OnMouseMove(message.lParam);
      return false;
    case WM_MOUSELEAVE:
      OnMouseGone();
      return false;
    case WM_CAPTURECHANGED:
      if (reinterpret_cast<HWND>(message.lParam) != Handle()) SetHover(false);
      return false;
    case WM_LBUTTONDOWN:
      if (IsOver(message.lParam)) return false;  // the control makes a click of it
      OnMouseGone();
      return true;
    case WM_SETCURSOR:
      ::SetCursor(cursor_);
      message.result = TRUE;
      return true;
    case WM_GETDLGCODE:
      // No mere text: an access key in it leads here.
      message.result = DefaultHandling(message) & ~DLGC_STATIC;
      if (IsFollowMessage(reinterpret_cast<const MSG*>(message.lParam))) message.result |= DLGC_WANTMESSAGE;
      return true;
    case WM_KEYDOWN:
      if (!IsFollowKey(message.wParam)) return false;
      if (!IsRepeatedKey(message.lParam)) Follow();
      return true;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE:
      Invalidate();
      return false;
    case WM_SETFONT:
      SetLinkFont(message);
      Invalidate();
      return true;
    case WM_ENABLE:
    case WM_SETTEXT:
      message.result = DefaultHandling(message);  // draws over what is there
      Invalidate();
      return true;
    default:
      return AnswerPainting(message, [this](HDC dc) { Draw(dc); });
  }
}

// --- Screen readers -------------------------------------------------------------------------------------------------

CUString CMyHyperLink::PartName(int) const { return Style() & SS_NOPREFIX ? Text() : WithoutMarks(Text()); }

int CMyHyperLink::PartRole(int) const { return ROLE_SYSTEM_LINK; }

int CMyHyperLink::PartState(int) const {
  return STATE_SYSTEM_LINKED | (hover_ ? STATE_SYSTEM_HOTTRACKED : 0) | (visited_ ? STATE_SYSTEM_TRAVERSED : 0);
}

CUString CMyHyperLink::PartValue(int) const { return notifyParent_ ? CUString() : url_; }

CUString CMyHyperLink::PartAction(int) const { return MessageText(MSG_LINK_ACTION); }
