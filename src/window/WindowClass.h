// Window classes of the library's own.
#pragma once

#include "window/Windows.h"

// Registers a class for all threads of the process; that it is there already is no failure. When this returns true, the
// calling thread can create its windows.
bool RegisterWindowClass(const WNDCLASSEXW& description);
