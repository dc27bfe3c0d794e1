// Colours of the navigation bar, and the arithmetic behind them.
#pragma once

#include <cstdint>

// Red in the lowest byte, then green, then blue, as the platform has it.
using ColorValue = uint32_t;

// The colour with `factor` added to its lightness, which stays between 0 (black) and 1 (white). Hue and saturation
// stay as they are.
ColorValue LightenColor(ColorValue color, double factor);

// The colour of row `row` of a gradient that runs over `rows` rows: the first one has `from`, the last one `to`.
ColorValue GradientColor(ColorValue from, ColorValue to, int row, int rows);

struct ColorPair {
  ColorValue from, to;
  bool operator==(const ColorPair&) const = default;
};

// What the bar takes from the system.
struct SystemColors {
  ColorValue face, activeCaption, inactiveCaption, captionText, window, buttonText, highlight, highlightText;
};

struct BarColors {
  ColorValue a, a2;  // the open folder's button, in this order when hot
  ColorValue b, b2;  // a hot button
  ColorValue c, c2;  // any other button
  ColorValue caption, captionDark;
  ColorValue face;
  ColorValue titleText, captionText, buttonText;
  // A high-contrast scheme: all of them are system colours, no gradient has two, and texts fit their ground.
  bool highContrast;
  ColorValue selectedText;  // on the button of an open or hot folder
  ColorValue markText;      // beside radio buttons and check boxes
  ColorValue linkText;

  ColorPair Title() const { return {caption, captionDark}; }
  ColorPair Header() const { return {highContrast ? caption : face, caption}; }
  ColorPair Folder(bool selected, bool hot) const;
  ColorValue FolderText(bool selected, bool hot) const { return selected || hot ? selectedText : buttonText; }
};

BarColors MakeBarColors(const SystemColors& system, bool highContrast);
