// The ground of a control that looks transparent.
#pragma once

#include "window/CWnd.h"

// Fills the control's client area with what its parent shows there: the dialog's colour, or the texture of a themed tab
// page.
void DrawPageGround(const CWnd& control, HDC dc);
