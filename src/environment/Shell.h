// The shell, bound at first use.
#pragma once

#include <windows.h>

// Opens a file or an address with the program that is registered for it. `show` is the window state that the program
// is asked for. False when the shell refuses, or when there is none.
bool OpenWithShell(HWND owner, const wchar_t* target, int show);
