#include "controls/ListRowLayout.h"

#include <algorithm>

ListImageChoice ChooseListImage(int image, int count, SecondHalf secondHalf, bool disabled, bool selected) {
  if (image < 0 || image >= count) return {};
  const int half = count / 2;
  const bool hasSecond = image < half;
  if (disabled) {
    if (secondHalf == SecondHalf::Disabled && hasSecond) return {half + image, false};
    return {image, true};
  }
  if (selected && secondHalf == SecondHalf::Selected && hasSecond) return {half + image, false};
  return {image, false};
}

int ListRowHeight(const ListRowMeasures& measures, int textHeight) {
  const int imageHeight = measures.imageHeight > 0 ? measures.imageHeight + measures.gap : 0;
  return std::max(textHeight, imageHeight) + measures.gap;
}

ListRowParts LayOutListRow(const IntRect& row, const ListRowMeasures& measures, int textWidth, HighlightMode mode) {
  ListRowParts parts;
  const int begin = row.left + measures.offset;
  int textLeft = begin + measures.gap;
  if (measures.imageWidth > 0) {
    const int top = row.top + (row.Height() - measures.imageHeight) / 2;
    parts.image = {textLeft, top, textLeft + measures.imageWidth, top + measures.imageHeight};
    textLeft = parts.image.right + 2 * measures.gap;
  }
  const int textRight = std::max(textLeft, std::min(textLeft + textWidth, row.right - measures.gap));
  parts.text = {textLeft, row.top, textRight, row.bottom};
  parts.highlight = row;
  if (mode == HighlightMode::Row) return parts;
  parts.highlight.left = mode == HighlightMode::Text ? textLeft - measures.gap : begin;
  parts.highlight.right = std::min(textRight + measures.gap, row.right);
  return parts;
}
