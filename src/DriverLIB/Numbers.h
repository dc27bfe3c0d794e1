#pragma once

#include <cstdint>

#include "DriverLIB/CUString.h"

// Reads a decimal number as the run-time library does: leading white space, a sign, digits of any script, up to the
// first other character. Stops at the limits of 32 bits; a text without a number gives 0.
int32_t ParseDecimal(WideView text);

// Reads a floating-point number behind leading white space, with a point and possibly an exponent, up to the first
// character that does not belong to it. A text without a number gives 0.
double ParseDouble(NarrowView text);

// Writes a number by a format for one double, with a point for its decimal sign whatever the locale of the process is.
CUString FormatDouble(const wchar_t* format, double number);

// Rounds half up (-1.5 gives -1) to `digits` decimal places; 0 and less give a whole number.
double RoundDecimal(double value, int digits);
