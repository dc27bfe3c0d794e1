// Where to click in the navigation bar.
#pragma once

#include <windows.h>

#include "driver/Sheet.h"

// The middle of a folder's button and of an entry of the open folder, counted from 0, in the bar's client area.
POINT BarFolderPoint(HWND bar, int folder);
POINT BarEntryPoint(HWND bar, int entry);

// Opens the page by mouse: a click on its folder, if another one is open, and one on its entry. The mouse leaves the
// bar afterwards, so that nothing stays hot. `shown` tells whether the host now shows the page; it may have refused, or
// have none of that number.
SheetTask ClickPage(Sheet& sheet, int pageId, bool& shown);
