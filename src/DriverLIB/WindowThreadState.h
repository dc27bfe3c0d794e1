// What the window layer keeps for each thread.
#pragma once

#include <cstdint>

#include "DriverLIB/CThreadVar.h"

// Zero at the start; the contents belong to the window layer. Made and destroyed together with the thread's CError.
struct WindowThreadState {
  void* creating = nullptr;      // the object that waits for its window, which the creation hook attaches
  void* creationHook = nullptr;  // the hook's handle (HHOOK) while it is set
  void* running = nullptr;       // the object whose modal loop runs
  void* modeless = nullptr;      // the newest open modeless dialog, which knows the one before it
  void* controls = nullptr;      // the objects on controls, by window: made with the first, gone with the last
  uint32_t messageBoxCount = 0;  // boxes shown or diverted so far
  uintptr_t data[4] = {};        // free
};

extern CThreadVar<WindowThreadState> threadWindowState;

// The calling thread's state; null before the library has met the thread.
inline WindowThreadState* CurrentWindowThreadState() { return threadWindowState.Get(); }
