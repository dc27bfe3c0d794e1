#pragma once

#include "window/CWnd.h"
#include "window/Gdi.h"

// Gives a window an icon of the library for its title bar, in the size that the window's dpi asks for. The caller keeps
// the icon for as long as the window lives; a shared one would have the size in which any window asked for it first.
[[nodiscard]] GdiIcon SetSmallIcon(const CWnd& window, UINT iconId);
