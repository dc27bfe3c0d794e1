// The library's life in a process and in its threads.
#pragma once

// At process attach, once: keeps the module handle (an HMODULE), allocates the thread slots and chooses the UI
// language. False when the platform has no slot left; the load must fail then.
//
// Attach and detach run under the loader's lock: nothing here loads libraries or waits for threads.
bool InitModule(void* module);

// At thread attach: makes the calling thread's CError, with its trace, and the window layer's state, unless they exist.
// False, and neither is left, when they cannot be stored.
bool InitThreadState(void* module);

// At the head of every exported function, for a thread may have come to life before the library was loaded. False if
// the thread cannot be taken up; the export then returns 0.
bool EnterThread();

// At thread detach and process detach: destroys what InitThreadState made. Always true.
bool FreeThreadState();

// At process detach, after FreeThreadState: gives the thread slots back.
void ReleaseThreadSlots();

// At the end of the process, instead of all freeing: other threads have been ended wherever they were, so only the
// last line of this thread's trace is written.
void CloseTraceAtProcessEnd();
