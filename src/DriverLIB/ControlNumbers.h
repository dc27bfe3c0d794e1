#pragma once

#include <windows.h>

// Reads the number in control `controlId` of `dialog`, whose text must have fewer than `limit` characters, and rounds
// it to `digits` decimal places unless `digits` is 0. An empty text gives 0. Returns false, leaving `value` alone,
// when the text is too long or there is no such control.
bool GetControlDouble(HWND dialog, int controlId, double& value, int limit, int digits);
