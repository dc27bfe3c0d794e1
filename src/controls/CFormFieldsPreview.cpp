#include "controls/CFormFieldsPreview.h"

// behind Windows.h
#include <oleacc.h>

#include "controls/BufferedPainting.h"
#include "controls/ColourPalette.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"

namespace {

// In pixels at 96 dpi.
constexpr int kFontHeight = 20;
constexpr int kInset = 5;
constexpr int kCrossWidth = 2;
constexpr int kDropButtonWidth = 15, kDropButtonInset = 2;
constexpr int kBorderWidth = 3;

constexpr COLORREF kNone = CFormFieldsPreview::kNone;

CUString NameOf(COLORREF colour) { return ColourName(colour == kNone ? kNoColour : colour); }

}  // namespace

void CFormFieldsPreview::OnAttached() {
  LOGFONTW font{};
  font.lfHeight = Scale(kFontHeight);
  font.lfCharSet = DEFAULT_CHARSET;
  ::lstrcpynW(font.lfFaceName, L"Times New Roman", LF_FACESIZE);
  font_ = GdiFont(::CreateFontIndirectW(&font));
}

void CFormFieldsPreview::SetColours(COLORREF border, COLORREF background) {
  borderColour_ = border == kNoColour ? kNone : border;
  backgroundColour_ = background == kNoColour ? kNone : background;
  if (!Handle()) return;
  Invalidate();
  NotifyAccessibleEvent(EVENT_OBJECT_VALUECHANGE, Handle(), kSelf);
}

// --- Drawing --------------------------------------------------------------------------------------------------------

// The document's black, unless it could not be seen on the system's ground.
COLORREF CFormFieldsPreview::InkColour() const {
  if (!IsEnabled()) return ::GetSysColor(COLOR_GRAYTEXT);
  if (backgroundColour_ == kNone && IsHighContrast()) return ::GetSysColor(COLOR_WINDOWTEXT);
  return RGB(0, 0, 0);
}

void CFormFieldsPreview::DrawSample(HDC dc, RECT client) const {
  const CUString sample = MessageText(MSG_FORM_FIELD_SAMPLE);
  const SelectScope font(dc, font_.Get());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, InkColour());
  client.left += Scale(kInset);
  ::DrawTextW(dc, sample.Text(), sample.Length(), &client, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void CFormFieldsPreview::DrawCross(HDC dc, const RECT& client) const {
  RECT box = client;
  ::InflateRect(&box, -Scale(kInset), -Scale(kInset));
  const GdiPen pen(::CreatePen(PS_SOLID, Scale(kCrossWidth), InkColour()));
  const SelectScope line(dc, pen.Get());
  ::MoveToEx(dc, box.left, box.top, nullptr);
  ::LineTo(dc, box.right, box.bottom);
  ::MoveToEx(dc, box.right, box.top, nullptr);
  ::LineTo(dc, box.left, box.bottom);
}

void CFormFieldsPreview::DrawDropButton(HDC dc, const RECT& client) const {
  RECT button = client;
  ::InflateRect(&button, -Scale(kDropButtonInset), -Scale(kDropButtonInset));
  button.left = button.right - Scale(kDropButtonWidth);
  ::DrawFrameControl(dc, &button, DFC_SCROLL, DFCS_SCROLLDOWN | (IsEnabled() ? 0 : DFCS_INACTIVE));
}

void CFormFieldsPreview::DrawBorder(HDC dc, const RECT& client) const {
  const GdiPen pen(::CreatePen(PS_SOLID, Scale(kBorderWidth), borderColour_));
  const SelectScope line(dc, pen.Get()), hollow(dc, ::GetStockObject(HOLLOW_BRUSH));
  ::Rectangle(dc, client.left, client.top, client.right, client.bottom);
}

void CFormFieldsPreview::Draw(HDC dc) const {
  const RECT client = ClientRect();
  ::FillRect(dc, &client, ::GetSysColorBrush(COLOR_WINDOW));
  if (backgroundColour_ != kNone) {
    const GdiBrush ground(::CreateSolidBrush(backgroundColour_));
    ::FillRect(dc, &client, ground.Get());
  }
  if (kind_ == FormFieldKind::CheckBox)
    DrawCross(dc, client);
  else
    DrawSample(dc, client);
  if (kind_ == FormFieldKind::Dropdown) DrawDropButton(dc, client);
  if (borderColour_ != kNone) DrawBorder(dc, client);
}

bool CFormFieldsPreview::OnWindowMessage(WindowMessage& message) {
  if (AnswerReader(message)) return true;
  switch (message.message) {
    case WM_ENABLE:
    case WM_SETTEXT:
      message.result = DefaultHandling(message);  // a static text draws at once
      Invalidate();
      return true;
    default:
      return AnswerPainting(message, [this](HDC dc) { Draw(dc); });
  }
}

// --- Screen readers -------------------------------------------------------------------------------------------------

CUString CFormFieldsPreview::PartName(int) const { return MessageText(MSG_FORM_FIELD_PREVIEW); }

int CFormFieldsPreview::PartRole(int) const { return ROLE_SYSTEM_GRAPHIC; }

int CFormFieldsPreview::PartState(int) const { return STATE_SYSTEM_READONLY; }

CUString CFormFieldsPreview::PartValue(int) const {
  return MessageText(MSG_FORM_FIELD_PREVIEW_COLOURS, NameOf(borderColour_), NameOf(backgroundColour_));
}
