// Setting and reading of properties by name, as the exports do it, and the copying of all sets.
//
// The calling thread has been taken up already. The functions take whatever a host may pass; `wide` says whether text
// came in as wide characters or in the ANSI code page.
#pragma once

#include <cstdint>

#include "ui/CDialogProperties.h"

// The result of SetProperty for a bad handle.
constexpr int kBadHandle = 2;

// The dialog object behind a handle; null if the handle is null or leads to something else. Reads four bytes there, if
// they can be read.
CDialogProperties* DialogFromHandle(const void* handle);

// Sets the property `name` of the set `index` to what `value` points to: a 32-bit number or text. A name that is null
// or whose first byte is 0 puts the whole set back to 0 and empty. Returns 1, 0 or kBadHandle.
int SetProperty(const void* handle, int32_t index, const void* name, bool wide, const void* value);

// Delivers the property `name` of the set `index` into the buffer, text always as wide characters. `size` counts
// bytes for a number and wide characters for text. Returns 1, or 0 and nothing is written.
int GetProperty(const void* handle, int32_t index, const void* name, bool wide, void* buffer, int32_t size);

// Gives all three sets of the target the values of the source's. The administrator's record is not copied.
void CopyAllSets(CDialogProperties& target, const CDialogProperties& source);
