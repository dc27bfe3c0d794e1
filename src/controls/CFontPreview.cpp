#include "controls/CFontPreview.h"

// behind Windows.h
#include <oleacc.h>

#include <cwchar>

#include "controls/BufferedPainting.h"
#include "controls/PointSize.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"

CFontPreview::CFontPreview() : sampleText(MessageText(MSG_FONT_SAMPLE)) {}

void CFontPreview::OnAttached() { Send(BM_SETSTYLE, BS_OWNERDRAW, FALSE); }

GdiFont CFontPreview::MakeFont() const {
  LOGFONTW font{};
  font.lfHeight = FontHeight(static_cast<int>(pointSize), Dpi());
  font.lfWeight = bold ? FW_BOLD : FW_NORMAL;
  font.lfItalic = italic;
  font.lfUnderline = underline;
  font.lfCharSet = DEFAULT_CHARSET;
  std::wcsncpy(font.lfFaceName, faceName.Text(), LF_FACESIZE - 1);
  return GdiFont(::CreateFontIndirectW(&font));
}

void CFontPreview::Draw(HDC dc, RECT rect) const {
  const bool highContrast = IsHighContrast();
  const auto white = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
  ::FillRect(dc, &rect, highContrast ? ::GetSysColorBrush(COLOR_WINDOW) : white);
  const GdiFont font = MakeFont();
  const SelectScope selected(dc, font.Get());
  ::SetBkMode(dc, TRANSPARENT);
  const COLORREF ink = colour == kNoColour ? RGB(0, 0, 0) : colour;
  ::SetTextColor(dc, highContrast ? ::GetSysColor(COLOR_WINDOWTEXT) : ink);
  ::DrawTextW(dc, sampleText.Text(), sampleText.Length(), &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

bool CFontPreview::OnReflected(WindowMessage& message) {
  if (message.message != WM_DRAWITEM) return false;
  const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam);
  DrawItemBuffered(item, [&](HDC dc) { Draw(dc, item.rcItem); });
  message.result = TRUE;
  return true;
}

bool CFontPreview::OnWindowMessage(WindowMessage& message) {
  if (accessibility_.OnMessage(*this, message)) return true;
  switch (message.message) {
    case WM_ERASEBKGND:
      message.result = TRUE;
      return true;
    case WM_NCHITTEST:
      message.result = HTTRANSPARENT;  // the mouse means what lies below
      return true;
    case WM_GETDLGCODE:
      message.result = DLGC_STATIC;
      return true;
    default:
      return false;
  }
}

int CFontPreview::PartRole(int) const { return ROLE_SYSTEM_STATICTEXT; }

int CFontPreview::PartState(int) const { return STATE_SYSTEM_READONLY; }
