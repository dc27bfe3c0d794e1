// Where the box with a text about what is under the mouse stands.
#pragma once

#include "window/Placement.h"

// The box's rectangle for a text of so many lines and characters a line. `mouse` and `client` are in the client
// coordinates of the page, of which the box is a child. It stands to the right of the mouse and above it, with the
// mouse on its corner; where there is no room it ends at the client area's right edge, or opens downwards.
IntRect PlaceToolTip(int lineCount, int widthInCharacters, IntPoint mouse, const IntRect& client, int dpi);
