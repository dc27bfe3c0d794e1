// What the user has dropped on a window that accepts files (WS_EX_ACCEPTFILES).
#pragma once

#include <windows.h>

#include "DriverLIB/CUStringArray.h"

struct DroppedFiles {
  POINT point = {};  // where, in client coordinates of the window that is told
  CUStringArray paths;
};

// Reads the record of a WM_DROPFILES, its first argument, and frees it.
DroppedFiles TakeDroppedFiles(WPARAM record);
