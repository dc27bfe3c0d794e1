#pragma once

#include "window/CWnd.h"

// Gives a window an icon of the library for its title bar. The icon is shared: the system frees it.
void SetSmallIcon(const CWnd& window, UINT iconId);
