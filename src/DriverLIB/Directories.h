#pragma once

#include "DriverLIB/TextView.h"

// Creates every directory of a local path that does not exist yet. Returns false when one cannot be created, with the
// reason in the system's last error. A path that begins with two separators loses them: no network paths.
bool CreateDirectoryTree(WideView path);
