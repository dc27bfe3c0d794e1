// The size of a colour picker, and where its parts lie. All lengths are in pixels of the window's dpi.
#pragma once

#include "window/Placement.h"

// Of the system.
struct PickerMeasures {
  int edgeWidth = 0, edgeHeight = 0;
  int thumbWidth = 0, thumbHeight = 0;  // of a horizontal and of a vertical scroll bar

  // The width of the arrow's part.
  int ArrowSide() const;
};

// A picker is as high as its arrow wants it, and at least so wide that there is something beside the arrow.
int PickerHeight(const PickerMeasures& measures);
int SmallestPickerWidth(const PickerMeasures& measures);

struct PickerParts {
  IntRect swatch;
  IntRect text;
  IntRect arrow;  // empty without one
};

PickerParts LayOutPicker(const PickerMeasures& measures, const IntRect& client, bool hasArrow);
