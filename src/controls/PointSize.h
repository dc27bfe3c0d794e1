// The height of a font of `points`, as LOGFONTW wants it: negative, for the height of its characters without the space
// above them.
#pragma once

#include "window/Windows.h"

inline int FontHeight(int points, int dpi) { return -::MulDiv(points, dpi, 72); }
