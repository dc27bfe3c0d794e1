#include "controls/ColourPickerLayout.h"

#include <algorithm>

int PickerMeasures::ArrowSide() const { return std::max({5 * edgeWidth, 5 * edgeHeight, thumbWidth, thumbHeight}); }

int PickerHeight(const PickerMeasures& measures) { return measures.ArrowSide() + 2 * measures.edgeHeight; }

int SmallestPickerWidth(const PickerMeasures& measures) { return 2 * (measures.ArrowSide() + measures.edgeWidth); }

PickerParts LayOutPicker(const PickerMeasures& measures, const IntRect& client, bool hasArrow) {
  const int edgeX = measures.edgeWidth, edgeY = measures.edgeHeight;
  PickerParts parts;
  int end = client.right - edgeX;
  if (hasArrow) {
    parts.arrow = {end - measures.ArrowSide(), client.top + edgeY, end, client.bottom - edgeY};
    end = parts.arrow.left;
  }
  // The focus stands between the edge and these.
  const int top = client.top + 2 * edgeY, bottom = client.bottom - 2 * edgeY, left = client.left + 2 * edgeX;
  parts.swatch = {left, top, std::min(left + (bottom - top), end), bottom};
  parts.text = {parts.swatch.right + 2 * edgeX, top, end - edgeX, bottom};
  return parts;
}
