#include "controls/ToolTipPlacement.h"

namespace {

// In pixels at 96 dpi: what a character and a line take in the 8-point font, and the rest of the box.
constexpr int kCharacterWidth = 5, kExtraWidth = 14;
constexpr int kLineHeight = 15, kExtraHeight = 4;

}  // namespace

IntRect PlaceToolTip(int lineCount, int widthInCharacters, IntPoint mouse, const IntRect& client, int dpi) {
  const auto scale = [dpi](int pixels) { return (pixels * dpi + 48) / 96; };
  const int width = scale(widthInCharacters * kCharacterWidth + kExtraWidth);
  const int height = scale(lineCount * kLineHeight + kExtraHeight);
  const int left = client.right - mouse.x < width ? client.right - width - 1 : mouse.x - 1;
  const int top = mouse.y - client.top >= height ? mouse.y - height + 1 : mouse.y - 1;
  return {left, top, left + width, top + height};
}
