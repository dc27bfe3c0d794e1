// Message boxes with texts of the message table.
#pragma once

#include <windows.h>

#include "DriverLIB/MessageText.h"

// Shows message `id` of `module` with MessageBoxW and returns its result; in Arabic the box reads from right to left.
// `window` is the owner and may be null. A null title is the component's name; an empty one stays empty. While boxes
// are diverted into a log file nothing is shown, and the result is IDOK whatever the buttons are.
int MsgBoxByIdV(HWND window, void* module, const wchar_t* title, uint32_t id, UINT flags,
                const MessageInserts& inserts);

template <typename... Values>
int MsgBoxById(HWND window, void* module, const wchar_t* title, uint32_t id, UINT flags, const Values&... values) {
  return MsgBoxByIdV(window, module, title, id, flags, MessageInserts(values...));
}

// With a message of the library's own module.
template <typename... Values>
int MsgBoxById(HWND window, const wchar_t* title, uint32_t id, UINT flags, const Values&... values) {
  return MsgBoxByIdV(window, ModuleInstance(), title, id, flags, MessageInserts(values...));
}

// The same for a text at hand.
int MsgBox(HWND window, const wchar_t* title, const wchar_t* text, UINT flags);

// How many boxes the calling thread has shown so far, diverted ones included. Whoever tells a failure asks whether
// somebody has told it already.
unsigned MessageBoxCount();
// A dialog of another kind whose end is as clear to the user counts as one of them.
void CountAsMessageBox();

// Appends the box to the file that the registry value LogMsgFile names. True when there is such a value, even if the
// file cannot be written: the box is not to be shown then.
bool LogMessageBox(const wchar_t* title, const wchar_t* text);
