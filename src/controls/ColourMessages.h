// What a colour popup tells its picker, and the picker its parent. The popup passes the colour in the first argument;
// the picker adds its control id as the second.
#pragma once

#include "window/Windows.h"

constexpr UINT ColourSelChange = 2025;     // a cell is highlighted
constexpr UINT ColourDropDown = 2026;      // the popup is open; the picker's own
constexpr UINT ColourCloseUp = 2027;       // the popup has closed; the picker's own, before one of the next two
constexpr UINT ColourSelEndOk = 2028;      // a colour was chosen
constexpr UINT ColourSelEndCancel = 2029;  // the picker has the colour of before
