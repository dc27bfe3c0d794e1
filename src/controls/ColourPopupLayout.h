// Where the cells of a colour popup lie, and where the popup stands. All lengths are in pixels of the window's dpi.
#pragma once

#include <optional>

#include "controls/ColourCells.h"
#include "window/Placement.h"

struct ColourPopupMeasures {
  int boxSize = 0;  // a colour's cell is square
  int margin = 0;   // the system's edge width: around the popup, and between its parts
  int border = 0;   // of a swatch
};

ColourPopupMeasures MeasureColourPopup(int edgeWidth, int dpi);

struct TextSize {
  int width = 0, height = 0;
};

class ColourPopupLayout {
 public:
  ColourPopupLayout() = default;
  // A cell without a text is not there.
  ColourPopupLayout(const ColourPopupMeasures& measures, std::optional<TextSize> defaultText,
                    std::optional<TextSize> customText);

  int Width() const { return width_; }
  int Height() const { return height_; }
  const ColourPopupMeasures& Measures() const { return measures_; }
  const ColourCells& Cells() const { return cells_; }

  // Empty for a cell that is not there.
  IntRect CellRect(int cell) const;
  // What of a colour's cell is filled with the colour, its border included.
  IntRect SwatchRect(int cell) const;
  // The cell under a point of the client area, or kNoCell.
  int CellAt(IntPoint point) const;

 private:
  int TextCellHeight(const TextSize& text) const;
  void WidenFor(const TextSize& text);

  ColourPopupMeasures measures_;
  ColourCells cells_;
  int width_ = 0, height_ = 0;
  int gridTop_ = 0;
  IntRect defaultRect_, customRect_;
};

// Where a popup of that size stands: below its picker, flush with the side where lines begin, and inside `screen`;
// above the picker where there is no room below. Where there is none at all it begins at the top.
IntPoint PlaceColourPopup(int width, int height, const IntRect& picker, const IntRect& screen, bool mirrored);
