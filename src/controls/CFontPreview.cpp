#include "controls/CFontPreview.h"

#include <cwchar>

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

void CFontPreview::Draw(HDC dc, const RECT& client) const {
  const bool highContrast = IsHighContrast();
  const auto white = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
  ::FillRect(dc, &client, highContrast ? ::GetSysColorBrush(COLOR_WINDOW) : white);
  const GdiFont font = MakeFont();
  const SelectScope selected(dc, font.Get());
  ::SetBkMode(dc, TRANSPARENT);
  const COLORREF ink = colour == kNoColour ? RGB(0, 0, 0) : colour;
  ::SetTextColor(dc, highContrast ? ::GetSysColor(COLOR_WINDOWTEXT) : ink);
  RECT rect = client;
  ::DrawTextW(dc, sampleText.Text(), sampleText.Length(), &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}
