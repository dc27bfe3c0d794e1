// The shell, bound at first use.
#pragma once

#include <windows.h>
// behind windows.h
#include <shellapi.h>

// Opens a file or an address with the program that is registered for it. `show` is the window state that the program
// is asked for; a null verb is the file type's own default. False when the shell refuses, or when there is none.
bool OpenWithShell(HWND owner, const wchar_t* target, int show, const wchar_t* verb = L"open");

// ShellExecuteExW. On a shell without it the file, parameters and directory of `info` are opened without a window and
// without a process handle. The system's last error is that of the shell afterwards, 0 if it has none; without a
// shell, that of the search for it.
bool ExecuteShell(SHELLEXECUTEINFOW& info);
