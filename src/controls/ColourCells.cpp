#include "controls/ColourCells.h"

namespace {

constexpr int kLastColour = kPaletteSize - 1;

}  // namespace

int ColourCells::CellOf(uint32_t colour) const {
  if (colour == kNoColour && hasDefault) return kDefaultCell;
  const int row = PaletteRowOf(colour);
  if (row >= 0) return row;
  return hasCustom ? kCustomCell : kNoCell;
}

int ColourCells::Next(int cell, CellStep step) const {
  const int distance = static_cast<int>(step);
  return distance > 0 ? Forward(cell, distance) : Backward(cell, -distance);
}

int ColourCells::Forward(int cell, int distance) const {
  if (cell == kCustomCell) return hasDefault ? kDefaultCell : 0;
  if (!IsColourCell(cell)) return 0;
  if (cell + distance <= kLastColour) return cell + distance;
  if (hasCustom) return kCustomCell;
  return hasDefault ? kDefaultCell : 0;
}

int ColourCells::Backward(int cell, int distance) const {
  if (cell == kDefaultCell) return hasCustom ? kCustomCell : kLastColour;
  if (!IsColourCell(cell)) return kLastColour;
  if (cell - distance >= 0) return cell - distance;
  if (hasDefault) return kDefaultCell;
  return hasCustom ? kCustomCell : kLastColour;
}

int ColourCells::PositionOf(int cell) const {
  if (cell == kDefaultCell) return hasDefault ? 1 : 0;
  if (cell == kCustomCell) return hasCustom ? Count() : 0;
  return IsColourCell(cell) ? cell + 1 + hasDefault : 0;
}

int ColourCells::CellAtPosition(int position) const {
  if (hasDefault && position == 1) return kDefaultCell;
  if (hasCustom && position == Count()) return kCustomCell;
  return position - 1 - hasDefault;
}
