// Arithmetic of placing windows.
#pragma once

// Named so that they do not meet the platform's Rectangle and Point.
struct IntRect {
  int left = 0, top = 0, right = 0, bottom = 0;

  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  bool operator==(const IntRect&) const = default;
};

struct IntPoint {
  int x = 0, y = 0;
  bool operator==(const IntPoint&) const = default;
};

// Where a window of the given size stands when it is centred on `reference` and kept inside `area`. A window that is
// larger than the area begins at the area's left and top edge and ends outside it.
IntPoint PlaceCentered(int width, int height, const IntRect& reference, const IntRect& area);

// Where the left edge of a window of this width stands beside `reference`: at its right edge, or, when the window would
// pass the right edge of `area` there, with its own right edge at the left one.
int PlaceBeside(int width, const IntRect& reference, const IntRect& area);
