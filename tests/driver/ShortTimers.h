// Watches the timers that the product sets, so that a test can wait for the end of a slide instead of for a time.
#pragma once

#include <windows.h>

#include <string>

// From now on SetTimer and KillTimer of all modules that are not the system's are noted. Only timers of at most
// kShortTimer milliseconds count: those move something on the screen.
constexpr UINT kShortTimer = 100;

void WatchShortTimers();

// True while this thread has a window with such a timer running. `description` tells which one.
bool ShortTimerRuns(std::string* description = nullptr);

// SetTimer and KillTimer that the watch does not see.
UINT_PTR SetUnseenTimer(HWND window, UINT_PTR id, UINT milliseconds);
void KillUnseenTimer(HWND window, UINT_PTR id);
