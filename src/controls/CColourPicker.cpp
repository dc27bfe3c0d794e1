#include "controls/CColourPicker.h"

// behind Windows.h
#include <oleacc.h>

#include <algorithm>
#include <utility>

#include "controls/BufferedPainting.h"
#include "controls/LabelText.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "window/SystemMetrics.h"

namespace {

RECT ToRect(const IntRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

// A key that ended the popup is still held down and goes on coming: it must neither open the popup anew nor press the
// dialog's buttons.
bool IsHeldOver(UINT message, WPARAM key, LPARAM keyData) {
  return message == WM_KEYDOWN && (HIWORD(keyData) & KF_REPEAT) &&
         (key == VK_RETURN || key == VK_ESCAPE || key == VK_SPACE);
}

void DrawArrow(HDC dc, const IntRect& rect, int half, COLORREF color) {
  const int x = (rect.left + rect.right) / 2, top = (rect.top + rect.bottom - half) / 2;
  const POINT corners[] = {{x - half, top}, {x + half, top}, {x, top + half}};
  const GdiBrush brush(::CreateSolidBrush(color));
  const GdiPen pen(::CreatePen(PS_SOLID, 1, color));
  const SelectScope fill(dc, brush.Get()), line(dc, pen.Get());
  ::Polygon(dc, corners, static_cast<int>(std::size(corners)));
}

}  // namespace

CColourPicker::CColourPicker()
    : defaultText_(MessageText(MSG_COLOUR_AUTOMATIC)), customText_(MessageText(MSG_COLOUR_MORE)) {}

CColourPicker::~CColourPicker() { ClosePopup(); }

void CColourPicker::OnAttached() {
  ClosePopup();  // of a control before
  Send(BM_SETSTYLE, BS_OWNERDRAW, FALSE);
  TakeSize();
}

void CColourPicker::OnDestroyed() {
  ClosePopup();
  CAccessibleControl::OnDestroyed();
}

PickerMeasures CColourPicker::Measures() const {
  const int dpi = Dpi();
  return {SystemMetric(SM_CXEDGE, dpi), SystemMetric(SM_CYEDGE, dpi), SystemMetric(SM_CXHTHUMB, dpi),
          SystemMetric(SM_CYVTHUMB, dpi)};
}

void CColourPicker::TakeSize() const {
  const PickerMeasures measures = Measures();
  RECT rect = RectIn(Parent());
  rect.right = std::max<LONG>(rect.right, rect.left + SmallestPickerWidth(measures));
  rect.bottom = rect.top + PickerHeight(measures);
  Move(rect);
}

// --- Colour ---------------------------------------------------------------------------------------------------------

void CColourPicker::SetColour(COLORREF colour) {
  const bool changed = std::exchange(colour_, colour) != colour;
  if (!Handle()) return;
  Invalidate();
  if (changed) NotifyAccessibleEvent(EVENT_OBJECT_VALUECHANGE, Handle(), kSelf);
}

void CColourPicker::SetDefaultText(const wchar_t* text) {
  defaultText_ = text;
  if (Handle()) Invalidate();
}

void CColourPicker::SetDefaultColour(COLORREF colour) {
  defaultColour_ = colour;
  if (Handle()) Invalidate();
}

void CColourPicker::SetStyle(bool flat, bool arrow, bool colourText) {
  flat_ = flat;
  arrow_ = arrow;
  colourText_ = colourText;
  if (Handle()) Invalidate();
}

// --- Popup ----------------------------------------------------------------------------------------------------------

void CColourPicker::Open() {
  if (open_ || !::IsWindowVisible(Handle()) || !IsEnabled()) return;
  const auto popup = std::make_shared<CColourPopup>(
      ColourPopupSetup{*this, PartName(kSelf), colour_, defaultText_, customText_, customColours_});
  popup_ = popup;
  open_ = true;
  const HWND control = Handle();
  bool opened = false;
  try {
    opened = popup->Open();
  } catch (...) {
    if (FromHandle(control) == this) ClosePopup();
    throw;
  }
  if (FromHandle(control) != this) return;  // what saw the popup come up has ended us
  if (!opened) {
    ClosePopup();
    return;
  }
  Invalidate();
  NotifyAccessibleEvent(EVENT_OBJECT_STATECHANGE, control, kSelf);
  Tell(ColourDropDown, colour_);
}

void CColourPicker::ClosePopup() {
  open_ = false;
  if (const auto popup = std::exchange(popup_, nullptr)) popup->Abandon();
}

// False when the parent has ended the picker: then nothing of it is to be touched.
bool CColourPicker::Tell(UINT message, COLORREF colour) {
  const HWND control = Handle();
  Parent().Send(message, colour, Id());
  return FromHandle(control) == this;
}

void CColourPicker::OnHighlighted(COLORREF colour) {
  if (trackSelection_) SetColour(colour);
  Tell(ColourSelChange, colour);
}

void CColourPicker::OnEnded(UINT code, COLORREF colour) {
  open_ = false;
  popup_.reset();  // it sees to its own end
  SetColour(colour);
  NotifyAccessibleEvent(EVENT_OBJECT_STATECHANGE, Handle(), kSelf);
  if (Tell(ColourCloseUp, colour)) Tell(code, colour);
}

// --- Messages -------------------------------------------------------------------------------------------------------

void CColourPicker::SetHover(bool hover) {
  if (std::exchange(hover_, hover) != hover) Invalidate();
}

void CColourPicker::OnMouseMove() {
  if (hover_) return;
  TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, Handle(), 0};
  ::_TrackMouseEvent(&leaving);
  SetHover(true);
}

bool CColourPicker::OnWindowMessage(WindowMessage& message) {
  if (AnswerReader(message)) return true;
  switch (message.message) {
    case ColourSelChange:
      OnHighlighted(static_cast<COLORREF>(message.wParam));
      return true;
    case ColourSelEndOk:
    case ColourSelEndCancel:
      OnEnded(message.message, static_cast<COLORREF>(message.wParam));
      return true;
    case WM_MOUSEMOVE:
      OnMouseMove();
      return false;
    case WM_MOUSELEAVE:
      SetHover(false);
      return false;
    case WM_LBUTTONDBLCLK:
      message.message = WM_LBUTTONDOWN;  // a second click opens as the first
      message.result = DefaultHandling(message);
      return true;
    case WM_GETDLGCODE: {
      message.result = DefaultHandling(message);
      const auto* key = reinterpret_cast<const MSG*>(message.lParam);
      if (key && IsHeldOver(key->message, key->wParam, key->lParam)) message.result |= DLGC_WANTMESSAGE;
      return true;
    }
    case WM_KEYDOWN:
      if (message.wParam == VK_F4) Open();
      return message.wParam == VK_F4 || IsHeldOver(message.message, message.wParam, message.lParam);
    case WM_SYSKEYDOWN:  // as a combo
      if (message.wParam != VK_DOWN && message.wParam != VK_UP) return false;
      DefaultHandling(message);  // it learns that Alt was not pressed alone
      Open();
      return true;
    case WM_UPDATEUISTATE:
      Invalidate();
      return false;
    case WM_ERASEBKGND:
      message.result = TRUE;
      return true;
    default:
      return false;
  }
}

bool CColourPicker::OnReflected(WindowMessage& message) {
  if (message.message == WM_COMMAND && message.Notification() == BN_CLICKED) {
    Open();
    return true;
  }
  return AnswerDrawItem(message, [this](HDC dc, const DRAWITEMSTRUCT& item) { Draw(dc, item); });
}

// --- Drawing --------------------------------------------------------------------------------------------------------

CUString CColourPicker::Label() const {
  if (colour_ == kNoColour) return defaultText_;
  return colourText_ ? ColourParts(colour_) : CUString();
}

void CColourPicker::DrawButton(HDC dc, RECT rect, UINT state) const {
  const bool pressed = open_ || (state & ODS_SELECTED);
  if (!flat_) {
    ::DrawFrameControl(dc, &rect, DFC_BUTTON,
                       DFCS_BUTTONPUSH | (pressed ? DFCS_PUSHED : 0) | (state & ODS_DISABLED ? DFCS_INACTIVE : 0));
    return;
  }
  ::FillRect(dc, &rect, ::GetSysColorBrush(COLOR_BTNFACE));
  if (pressed)
    ::DrawEdge(dc, &rect, EDGE_SUNKEN, BF_RECT);
  else if (hover_ && !(state & ODS_DISABLED))
    ::DrawEdge(dc, &rect, EDGE_RAISED, BF_RECT);
  else
    ::FrameRect(dc, &rect, ::GetSysColorBrush(COLOR_BTNSHADOW));
}

void CColourPicker::DrawSwatch(HDC dc, const IntRect& rect, bool disabled) const {
  const RECT swatch = ToRect(rect);
  const COLORREF none = defaultColour_.value_or(::GetSysColor(COLOR_BTNFACE));
  const GdiBrush brush(::CreateSolidBrush(colour_ == kNoColour ? none : colour_));
  ::FillRect(dc, &swatch, brush.Get());
  ::FrameRect(dc, &swatch, ::GetSysColorBrush(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
}

void CColourPicker::Draw(HDC dc, const DRAWITEMSTRUCT& item) const {
  const bool disabled = (item.itemState & ODS_DISABLED) != 0;
  const COLORREF textColor = ::GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
  const RECT& client = item.rcItem;
  const PickerMeasures measures = Measures();
  const PickerParts parts = LayOutPicker(measures, {client.left, client.top, client.right, client.bottom}, arrow_);
  DrawButton(dc, client, item.itemState);
  DrawSwatch(dc, parts.swatch, disabled);
  if (arrow_) DrawArrow(dc, parts.arrow, measures.ArrowSide() / 5, textColor);

  RECT text = ToRect(parts.text);
  const CUString label = Label();
  const SelectScope font(dc, Font());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, textColor);
  ::DrawTextW(dc, label.Text(), label.Length(), &text,
              DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS | DT_NOCLIP);

  if (!(item.itemState & ODS_FOCUS) || (item.itemState & ODS_NOFOCUSRECT)) return;
  RECT focus = client;
  ::InflateRect(&focus, -measures.edgeWidth, -measures.edgeHeight);
  ::SetTextColor(dc, RGB(0, 0, 0));
  ::SetBkColor(dc, RGB(255, 255, 255));
  ::DrawFocusRect(dc, &focus);
}

// --- Screen readers -------------------------------------------------------------------------------------------------

CUString CColourPicker::PartName(int) const {
  const CUString own = WithoutMarks(Text());
  return own.IsEmpty() ? LabelBefore(*this) : own;
}

int CColourPicker::PartRole(int) const { return ROLE_SYSTEM_BUTTONDROPDOWNGRID; }

int CColourPicker::PartState(int) const {
  return STATE_SYSTEM_HASPOPUP | (open_ ? STATE_SYSTEM_EXPANDED | STATE_SYSTEM_PRESSED : STATE_SYSTEM_COLLAPSED) |
         (hover_ ? STATE_SYSTEM_HOTTRACKED : 0);
}

CUString CColourPicker::PartValue(int) const {
  return colour_ == kNoColour && !defaultText_.IsEmpty() ? defaultText_ : ColourName(colour_);
}

CUString CColourPicker::PartAction(int) const { return MessageText(MSG_COLOUR_OPEN_ACTION); }
