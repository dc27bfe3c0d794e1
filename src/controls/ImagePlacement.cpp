#include "controls/ImagePlacement.h"

#include <algorithm>

IntRect PlaceImage(int imageWidth, int imageHeight, const IntRect& client, uint32_t flags, int margin) {
  int left = client.left + margin;
  int top = client.top + margin;
  if (flags & kAlignRight) left = client.right - margin - imageWidth;
  if ((flags & kAlignMiddle) && client.Height() > imageHeight)
    top = client.top + (client.Height() - imageHeight) / 2;
  else if (flags & kAlignBottom)
    top = std::max(client.bottom - margin - imageHeight, client.top + margin);
  if ((flags & kAlignCenter) && client.Width() > imageWidth) left = client.left + (client.Width() - imageWidth) / 2;
  return {left, top, left + imageWidth, top + imageHeight};
}
