#pragma once

#include <windows.h>

// True when the text of control `controlId` of `dialog` has `limit` or more characters and there is a control
// `focusId`. That control then gets the focus, and its whole text is selected if `select` is set.
bool IsTextAtLimit(HWND dialog, int controlId, int focusId, int limit, bool select);
