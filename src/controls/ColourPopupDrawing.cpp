// How a colour popup looks: all its colours but those of the palette are the system's.
#include "controls/CColourPopup.h"

namespace {

RECT ToRect(const IntRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

bool HasPalette(HDC dc) { return (::GetDeviceCaps(dc, RASTERCAPS) & RC_PALETTE) != 0; }

// A palette in a device context that needs one, for a scope.
class PaletteScope {
 public:
  PaletteScope(HDC dc, HPALETTE palette)
      : dc_(dc), previous_(HasPalette(dc) ? ::SelectPalette(dc, palette, FALSE) : nullptr) {
    if (previous_) ::RealizePalette(dc_);
  }
  ~PaletteScope() {
    if (previous_) ::SelectPalette(dc_, previous_, TRUE);
  }
  PaletteScope(const PaletteScope&) = delete;
  PaletteScope& operator=(const PaletteScope&) = delete;

 private:
  HDC dc_;
  HPALETTE previous_;
};

void Frame(HDC dc, RECT rect, int width, int systemColor) {
  for (; width > 0; --width) {
    ::FrameRect(dc, &rect, ::GetSysColorBrush(systemColor));
    ::InflateRect(&rect, -1, -1);
  }
}

}  // namespace

void CColourPopup::RealizePalette() const {
  const WindowDC dc(window_);
  const PaletteScope palette(dc, palette_.Get());
}

void CColourPopup::InvalidateCell(int cell) const {
  const RECT rect = ToRect(layout_.CellRect(cell));
  if (!::IsRectEmpty(&rect)) Invalidate(&rect, false);
}

void CColourPopup::Draw(HDC dc) const {
  const PaletteScope palette(dc, palette_.Get());
  RECT client = ClientRect();
  ::FillRect(dc, &client, ::GetSysColorBrush(COLOR_BTNFACE));
  ::DrawEdge(dc, &client, EDGE_RAISED, BF_RECT);
  const ColourCells& cells = layout_.Cells();
  for (int position = 1; position <= cells.Count(); ++position) DrawCell(dc, cells.CellAtPosition(position));
}

void CColourPopup::DrawCell(HDC dc, int cell) const {
  RECT rect = ToRect(layout_.CellRect(cell));
  const int border = layout_.Measures().border;
  if (IsColourCell(cell))
    DrawSwatch(dc, cell);
  else
    Frame(dc, rect, 1, COLOR_BTNSHADOW);
  if (cell == chosen_)
    ::DrawEdge(dc, &rect, BDR_SUNKENOUTER, BF_RECT);
  else if (cell == highlighted_)
    ::DrawEdge(dc, &rect, BDR_RAISEDINNER, BF_RECT);
  if (!IsColourCell(cell)) {
    const SelectScope font(dc, font_.Get());
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, ::GetSysColor(COLOR_BTNTEXT));
    ::DrawTextW(dc, TextOf(cell).Text(), TextOf(cell).Length(), &rect,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  }
  if (cell != highlighted_) return;
  // An edge alone is hardly seen.
  ::InflateRect(&rect, -1, -1);
  Frame(dc, rect, border, COLOR_HIGHLIGHT);
}

void CColourPopup::DrawSwatch(HDC dc, int cell) const {
  const RECT swatch = ToRect(layout_.SwatchRect(cell));
  constexpr COLORREF kNearestInPalette = 0x02000000;
  const COLORREF colour = kPalette[cell].colour;
  const GdiBrush brush(::CreateSolidBrush(HasPalette(dc) ? colour | kNearestInPalette : colour));
  ::FillRect(dc, &swatch, brush.Get());
  Frame(dc, swatch, layout_.Measures().border, COLOR_BTNSHADOW);
}
