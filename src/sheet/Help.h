// The help of a control: how it is asked for, and how it is opened.
#pragma once

#include "window/Windows.h"

// The help record of a control, as F1 or a click on a help control makes it.
HELPINFO HelpForControl(int controlId, HWND control);

// Opens the help file at the topic of the record's control, else of the window's context help id. Tells the user when
// the file cannot be opened, and answers false then. `file` and `title` may be null.
bool ShowHelp(const HELPINFO& help, const wchar_t* file, HWND window, const wchar_t* title);
