// A key that is held goes on sending WM_KEYDOWN, also to a window that came up under it.
#pragma once

#include "window/Windows.h"

inline bool IsRepeatedKey(LPARAM keyData) { return (HIWORD(keyData) & KF_REPEAT) != 0; }

// The keys that press a dialog's buttons wherever the focus is.
inline bool IsDialogKey(WPARAM key) { return key == VK_RETURN || key == VK_ESCAPE; }

// Such a key, still held from before: it was meant for another window, and does nothing.
inline bool IsHeldDialogKey(UINT message, WPARAM key, LPARAM keyData) {
  return message == WM_KEYDOWN && IsDialogKey(key) && IsRepeatedKey(keyData);
}
