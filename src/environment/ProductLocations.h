// Where the product's other parts lie. No failure is shown: it ends in an empty text and a trace line.
#pragma once

#include "DriverLIB/CUString.h"

// The directory of this library itself, with its trailing separator.
CUString GetLibraryDirectory();

// The directory of the printer components, with its trailing separator: that of the driver of the first printer that
// the product has, this library's own where there is none. Empty on failure.
CUString GetAddInNEMDllPath();

// The directory from which the sibling components load, with its trailing separator.
CUString GetProductDirectory();

// Runs the administrator's tool from the install location and waits for its end, however long it takes. True when it
// ran; what it achieved is not known. False when the install location is not known.
bool RunAdminTool(const wchar_t* parameters);
