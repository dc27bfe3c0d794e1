#include "controls/ImagePlacement.h"

#include <algorithm>

IntRect PlaceImage(int imageWidth, int imageHeight, const IntRect& client, uint32_t flags, int margin) {
  const int spareWidth = client.Width() - imageWidth, spareHeight = client.Height() - imageHeight;
  int x = margin, y = margin;
  if (flags & kAlignRight) x = spareWidth - margin;
  if ((flags & kAlignMiddle) && spareHeight >= 0)
    y = spareHeight / 2;
  else if (flags & kAlignBottom)
    y = std::max(spareHeight, margin);
  if ((flags & kAlignCenter) && spareWidth >= 0) x = spareWidth / 2;
  const int left = client.left + x, top = client.top + y;
  return {left, top, left + imageWidth, top + imageHeight};
}
