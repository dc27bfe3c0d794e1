// Pixels with alpha, and what is done to them before they are blended into a window.
#pragma once

#include <cstdint>
#include <vector>

// Rows from the top, four bytes a pixel: alpha in the highest byte, then red, green and blue, each multiplied by the
// alpha already.
struct AlphaPixels {
  int width = 0, height = 0;
  std::vector<uint32_t> pixels;

  bool IsEmpty() const { return pixels.empty(); }
};

// The colours with the brightness of the mask's pixels as their alpha: white is opaque, black transparent. Both have
// width * height pixels of 0x..RRGGBB.
AlphaPixels CombineWithMask(int width, int height, const uint32_t* colors, const uint32_t* mask);

// The picture in another size. Each pixel is the average of what it covers of the source.
AlphaPixels Resize(const AlphaPixels& source, int width, int height);

// Left and right exchanged, in place.
void Flip(AlphaPixels& picture);

// The colours as they are without the alpha, which stays: icons hold them so. In place.
void DivideByAlpha(AlphaPixels& picture);

// The look of something that cannot be used: grey, and half as opaque. In place.
void MakeDisabled(AlphaPixels& picture);
