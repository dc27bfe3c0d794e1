// The registry tree of the user on whose behalf the calling thread works.
#pragma once

#include <windows.h>

#include <cstdint>

// Opens the tree under HKEY_USERS of the user of the thread's token, or of the process's where the thread has none, in
// the 64-bit view. Null when that fails; the trace tells why. The caller closes the key.
HKEY OpenUserHive(REGSAM access);

// Writes the textual form "S-1-..." of `sid`, terminated. `size` counts characters; when it is too small it becomes
// the size needed, and the system's last error 122. False then and for an invalid `sid`.
bool GetTextualSid(PSID sid, wchar_t* text, uint32_t& size);
