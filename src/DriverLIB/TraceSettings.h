// Which trace file the registry asks for.
#pragma once

#include "DriverLIB/CUString.h"

// Where trace files go when nobody chooses another folder.
constexpr wchar_t kDefaultTraceFolder[] = L"C:\\NEMpdfVonderTrace";

// The value TraceFilename under `key`, empty when there is none: the general name, from which each component derives
// its own.
CUString GetTraceFilename(const wchar_t* key);

// This component's name: the product's general one with "-AddInUI" put before its last dot, also one in a folder's
// name. Empty without a general name.
CUString MakeAddInTraceName();

// Sets or deletes the value for the machine and for the user, with the name that belongs to `folder` or, if null, to
// the default folder. `errorPath`, if not null, receives the path of the value that could not be changed last. True
// when the trace is on or off as asked: switching on needs one success, switching off both. Threads that enter the
// library later follow.
bool SetTraceEnabled(bool enable, CUString* errorPath, const wchar_t* folder);
