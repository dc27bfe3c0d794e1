// How a row of a list box with pictures is laid out.
#pragma once

#include "window/Placement.h"

// What of a row is marked when it is selected or has the keyboard's focus.
enum class HighlightMode { Row = 0, ImageAndText = 1, Text = 2 };

// What the second half of an array of pictures is for; the first half is for rows as they are. A row's picture stands
// in both halves at the same place.
enum class SecondHalf { None, Disabled, Selected };

struct ListImageChoice {
  int index = -1;         // -1 for no picture
  bool drawGrey = false;  // there is none for a disabled row: the normal one is drawn as disabled
};

// The picture of a row that has number `image` among `count` ones.
ListImageChoice ChooseListImage(int image, int count, SecondHalf secondHalf, bool disabled, bool selected);

// All lengths in pixels of the window's dpi. Without pictures the image size is 0.
struct ListRowMeasures {
  int imageWidth = 0, imageHeight = 0;
  int gap = 0;     // left and right of the picture and of the text, and above and below both together
  int offset = 0;  // from the row's left edge, for its indent
};

int ListRowHeight(const ListRowMeasures& measures, int textHeight);

struct ListRowParts {
  IntRect image;
  IntRect text;
  IntRect highlight;
};

// A text that is wider than what is left of the row ends at the row's end.
ListRowParts LayOutListRow(const IntRect& row, const ListRowMeasures& measures, int textWidth, HighlightMode mode);
