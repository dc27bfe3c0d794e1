// How recognized links are drawn.
#pragma once

#include "window/ValueTable.h"

constexpr int32_t kNoLinkBorder = 0;  // then width and colour say nothing

// Closed by a row of zeros.
extern const ValueRow kLinkBorders[];

struct LinkBorderWidth {
  const wchar_t* text;  // the same in each language
  int32_t width;        // hundredths of a point
};

constexpr int kLinkBorderWidthCount = 9;
extern const LinkBorderWidth kLinkBorderWidths[kLinkBorderWidthCount];

// The row of a width; an unknown one falls to the first row.
int RowOfLinkBorderWidth(int32_t width);
