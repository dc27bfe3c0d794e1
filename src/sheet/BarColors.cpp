#include "sheet/BarColors.h"

#include <algorithm>

namespace {

constexpr ColorValue kOpenFolder = 0x1595EE;
constexpr ColorValue kHotFolder = 0x5BC0F7;
constexpr double kLightenOpen = 0.3;
constexpr double kLightenHot = 0.3;
constexpr double kLightenOther = 0.2;
constexpr double kDarkenCaption = -0.2;

constexpr int Red(ColorValue color) { return color & 0xFF; }
constexpr int Green(ColorValue color) { return (color >> 8) & 0xFF; }
constexpr int Blue(ColorValue color) { return (color >> 16) & 0xFF; }
constexpr ColorValue Compose(int red, int green, int blue) {
  return static_cast<ColorValue>(red | (green << 8) | (blue << 16));
}

// Hue from 0 to 6, one unit for each step from one pure colour to the next; lightness and saturation from 0 to 1.
struct Hls {
  double hue, lightness, saturation;
};

Hls ToHls(ColorValue color) {
  const double red = Red(color) / 255.0, green = Green(color) / 255.0, blue = Blue(color) / 255.0;
  const double high = std::max({red, green, blue}), low = std::min({red, green, blue});
  const double range = high - low;
  Hls result{0, (high + low) / 2, 0};
  if (range == 0) return result;  // a grey has no hue
  result.saturation = range / (result.lightness <= 0.5 ? high + low : 2 - high - low);
  if (high == red)
    result.hue = (green - blue) / range;
  else if (high == green)
    result.hue = 2 + (blue - red) / range;
  else
    result.hue = 4 + (red - green) / range;
  if (result.hue < 0) result.hue += 6;
  return result;
}

// One of the three parts, given how far its pure colour is from the hue.
int Part(double low, double high, double hue) {
  if (hue < 0) hue += 6;
  if (hue >= 6) hue -= 6;
  double part = low;
  if (hue < 1)
    part = low + (high - low) * hue;
  else if (hue < 3)
    part = high;
  else if (hue < 4)
    part = low + (high - low) * (4 - hue);
  return static_cast<int>(part * 255 + 0.5);
}

ColorValue FromHls(const Hls& color) {
  const double high = color.lightness <= 0.5 ? color.lightness * (1 + color.saturation)
                                             : color.lightness + color.saturation * (1 - color.lightness);
  const double low = 2 * color.lightness - high;
  return Compose(Part(low, high, color.hue + 2), Part(low, high, color.hue), Part(low, high, color.hue - 2));
}

// Rounded to the nearest, upwards in the middle.
int Between(int from, int to, int row, int last) { return (2 * (from * (last - row) + to * row) + last) / (2 * last); }

}  // namespace

ColorValue LightenColor(ColorValue color, double factor) {
  Hls hls = ToHls(color);
  hls.lightness = std::clamp(hls.lightness + factor, 0.0, 1.0);
  return FromHls(hls);
}

ColorValue GradientColor(ColorValue from, ColorValue to, int row, int rows) {
  if (rows < 2) return from;
  const int last = rows - 1;
  return Compose(Between(Red(from), Red(to), row, last), Between(Green(from), Green(to), row, last),
                 Between(Blue(from), Blue(to), row, last));
}

ColorPair BarColors::Folder(bool selected, bool hot) const {
  if (selected) return hot ? ColorPair{a, a2} : ColorPair{a2, a};
  return hot ? ColorPair{b2, b} : ColorPair{c2, c};
}

BarColors MakeBarColors(const SystemColors& system, bool highContrast) {
  BarColors colors{};
  colors.highContrast = highContrast;
  colors.face = system.face;
  colors.buttonText = system.buttonText;
  colors.captionText = system.captionText;
  colors.caption = system.activeCaption;
  if (highContrast) {
    colors.a = colors.a2 = colors.b = colors.b2 = system.highlight;
    colors.c = colors.c2 = system.face;
    colors.captionDark = system.activeCaption;
    colors.titleText = system.captionText;
    colors.selectedText = system.highlightText;
    colors.markText = system.buttonText;
    colors.linkText = system.buttonText;
    return colors;
  }
  colors.a = kOpenFolder;
  colors.a2 = LightenColor(kOpenFolder, kLightenOpen);
  colors.b = kHotFolder;
  colors.b2 = LightenColor(kHotFolder, kLightenHot);
  colors.c = system.inactiveCaption;
  colors.c2 = LightenColor(system.inactiveCaption, kLightenOther);
  colors.captionDark = LightenColor(system.activeCaption, kDarkenCaption);
  colors.titleText = system.window;
  colors.selectedText = system.buttonText;
  colors.markText = system.window;
  colors.linkText = system.captionText;
  return colors;
}
