#pragma once

#include "window/CWnd.h"

// Says that the function chooses the reference: the parent of a child window, otherwise the owner.
inline const HWND kCenterByRelation = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));

// Centres `window` on `center`, or on the primary monitor's work area when `center` is null, and keeps it inside the
// parent or the monitor. Size, z-order and activation stay as they are.
void CenterWindow(const CWnd& window, HWND center = kCenterByRelation);
