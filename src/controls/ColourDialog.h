// The system's dialog for colours, bound at first use.
#pragma once

#include <array>

#include "window/Windows.h"

// The fields in which the user keeps colours of his own; white at first.
struct CustomColours {
  CustomColours() { fields.fill(RGB(255, 255, 255)); }
  std::array<COLORREF, 16> fields;
};

// Shows the dialog, fully open, with `colour` in it. True with the user's choice in `colour`; false when he cancelled,
// or when the system has no such dialog.
bool AskForColour(HWND owner, COLORREF& colour, CustomColours& custom);
