#include "window/AlphaPixels.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr int kAlphaShift = 24, kRedShift = 16, kGreenShift = 8, kBlueShift = 0;

constexpr uint32_t Channel(uint32_t pixel, int shift) { return (pixel >> shift) & 0xFF; }

constexpr uint32_t Compose(uint32_t alpha, uint32_t red, uint32_t green, uint32_t blue) {
  return alpha << kAlphaShift | red << kRedShift | green << kGreenShift | blue << kBlueShift;
}

constexpr uint32_t Brightness(uint32_t pixel) {
  return (Channel(pixel, kRedShift) + Channel(pixel, kGreenShift) + Channel(pixel, kBlueShift)) / 3;
}

constexpr uint32_t Multiply(uint32_t value, uint32_t alpha) { return (value * alpha + 127) / 255; }
constexpr uint32_t Divide(uint32_t value, uint32_t alpha) { return std::min((value * 255 + alpha / 2) / alpha, 255u); }

// How much of source pixel `from` lies under target pixel `to`, in units of which a source pixel has `targetSize` and
// a target pixel `sourceSize`.
int Overlap(int to, int from, int sourceSize, int targetSize) {
  return std::min((to + 1) * sourceSize, (from + 1) * targetSize) - std::max(to * sourceSize, from * targetSize);
}

uint32_t Average(const AlphaPixels& source, int x, int y, int width, int height) {
  const int firstX = x * source.width / width, firstY = y * source.height / height;
  uint64_t sums[4] = {};
  for (int sy = firstY, tall; sy < source.height && (tall = Overlap(y, sy, source.height, height)) > 0; ++sy)
    for (int sx = firstX, wide; sx < source.width && (wide = Overlap(x, sx, source.width, width)) > 0; ++sx) {
      const uint32_t pixel = source.pixels[static_cast<size_t>(sy) * source.width + sx];
      for (int channel = 0; channel < 4; ++channel)
        sums[channel] += static_cast<uint64_t>(wide) * tall * Channel(pixel, 8 * channel);
    }
  const uint64_t area = static_cast<uint64_t>(source.width) * source.height;
  const auto mean = [area](uint64_t sum) { return static_cast<uint32_t>((sum + area / 2) / area); };
  return Compose(mean(sums[3]), mean(sums[2]), mean(sums[1]), mean(sums[0]));
}

}  // namespace

AlphaPixels CombineWithMask(int width, int height, const uint32_t* colors, const uint32_t* mask) {
  AlphaPixels result{width, height, std::vector<uint32_t>(static_cast<size_t>(width) * height)};
  for (size_t i = 0; i < result.pixels.size(); ++i) {
    const uint32_t alpha = Brightness(mask[i]);
    result.pixels[i] =
        Compose(alpha, Multiply(Channel(colors[i], kRedShift), alpha), Multiply(Channel(colors[i], kGreenShift), alpha),
                Multiply(Channel(colors[i], kBlueShift), alpha));
  }
  return result;
}

AlphaPixels Resize(const AlphaPixels& source, int width, int height) {
  if (source.IsEmpty() || width <= 0 || height <= 0) return {};
  if (width == source.width && height == source.height) return source;
  AlphaPixels result{width, height, {}};
  result.pixels.reserve(static_cast<size_t>(width) * height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) result.pixels.push_back(Average(source, x, y, width, height));
  return result;
}

void Flip(AlphaPixels& picture) {
  for (int y = 0; y < picture.height; ++y) {
    const auto row = picture.pixels.begin() + static_cast<std::ptrdiff_t>(y) * picture.width;
    std::reverse(row, row + picture.width);
  }
}

void DivideByAlpha(AlphaPixels& picture) {
  for (uint32_t& pixel : picture.pixels) {
    const uint32_t alpha = Channel(pixel, kAlphaShift);
    if (alpha == 0) continue;
    pixel = Compose(alpha, Divide(Channel(pixel, kRedShift), alpha), Divide(Channel(pixel, kGreenShift), alpha),
                    Divide(Channel(pixel, kBlueShift), alpha));
  }
}

void MakeDisabled(AlphaPixels& picture) {
  for (uint32_t& pixel : picture.pixels) {
    // The weights of the three colours in what the eye sees as bright, in 256ths.
    const uint32_t grey =
        (Channel(pixel, kRedShift) * 77 + Channel(pixel, kGreenShift) * 151 + Channel(pixel, kBlueShift) * 28) / 256;
    pixel = Compose(Channel(pixel, kAlphaShift) / 2, grey / 2, grey / 2, grey / 2);
  }
}
