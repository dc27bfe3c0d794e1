// Sizes of fonts in points, as users write them: with a decimal point or a decimal comma.
#pragma once

#include "DriverLIB/TextView.h"

// The number at the start of the text; 0 when there is none.
double ParseFontSize(WideView text);

// Digits with at most one point or comma, behind which a 0 or a 5 stands first if anything does, and a number of 1 to
// 999.
bool IsValidFontSize(WideView text);
