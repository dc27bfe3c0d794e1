#include "controls/ColourPopupLayout.h"

#include <algorithm>

namespace {

// In pixels at 96 dpi.
constexpr int kBoxSize = 18;
constexpr int kBorder = 1;
constexpr int kSmallestSwatch = 5;

bool Contains(const IntRect& rect, IntPoint point) {
  return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

}  // namespace

ColourPopupMeasures MeasureColourPopup(int edgeWidth, int dpi) {
  const auto scale = [dpi](int pixels) { return (pixels * dpi + 48) / 96; };
  ColourPopupMeasures measures{scale(kBoxSize), edgeWidth, scale(kBorder)};
  // Wide edges would leave nothing of the colour.
  const int around = 2 * measures.margin + 2 * measures.border;
  if (measures.boxSize - around < scale(kSmallestSwatch)) measures.boxSize = around + scale(kSmallestSwatch);
  return measures;
}

ColourPopupLayout::ColourPopupLayout(const ColourPopupMeasures& measures, std::optional<TextSize> defaultText,
                                     std::optional<TextSize> customText)
    : measures_(measures), cells_{defaultText.has_value(), customText.has_value()} {
  const int margin = measures.margin;
  width_ = kColourColumns * measures.boxSize + 2 * margin;
  height_ = kColourRows * measures.boxSize + 2 * margin;
  gridTop_ = margin;
  if (defaultText) WidenFor(*defaultText);
  if (customText) WidenFor(*customText);
  if (defaultText) {
    const int cellHeight = TextCellHeight(*defaultText);
    defaultRect_ = {margin, margin, width_ - margin, margin + cellHeight};
    gridTop_ += cellHeight + margin;
    height_ += cellHeight + margin;
  }
  if (customText) {
    const int cellHeight = TextCellHeight(*customText);
    customRect_ = {margin, height_, width_ - margin, height_ + cellHeight};
    height_ += cellHeight + margin;
  }
}

int ColourPopupLayout::TextCellHeight(const TextSize& text) const {
  return text.height + 2 * measures_.margin + 2 * measures_.border;
}

void ColourPopupLayout::WidenFor(const TextSize& text) {
  // A margin and a border beside the text, and the margin of the popup.
  width_ = std::max(width_, text.width + 4 * measures_.margin + 2 * measures_.border);
}

IntRect ColourPopupLayout::CellRect(int cell) const {
  if (cell == kDefaultCell) return defaultRect_;
  if (cell == kCustomCell) return customRect_;
  if (!IsColourCell(cell)) return {};
  const int left = cell % kColourColumns * measures_.boxSize + measures_.margin;
  const int top = cell / kColourColumns * measures_.boxSize + gridTop_;
  return {left, top, left + measures_.boxSize, top + measures_.boxSize};
}

IntRect ColourPopupLayout::SwatchRect(int cell) const {
  const IntRect box = CellRect(cell);
  const int inset = measures_.margin + measures_.border;
  return {box.left + inset, box.top + inset, box.right - inset, box.bottom - inset};
}

int ColourPopupLayout::CellAt(IntPoint point) const {
  if (Contains(customRect_, point)) return kCustomCell;
  if (Contains(defaultRect_, point)) return kDefaultCell;
  for (int cell = 0; cell < kPaletteSize; ++cell)
    if (Contains(CellRect(cell), point)) return cell;
  return kNoCell;
}

IntPoint PlaceColourPopup(int width, int height, const IntRect& picker, const IntRect& screen, bool mirrored) {
  IntPoint place{mirrored ? picker.right - width : picker.left, picker.bottom};
  if (place.x + width > screen.right) place.x = screen.right - width;
  if (place.x < screen.left) place.x = screen.left;
  if (place.y + height > screen.bottom) place.y -= height + picker.Height();
  if (place.y < screen.top) place.y = screen.top;
  return place;
}
