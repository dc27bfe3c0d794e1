// Names for new bookmark formats.
#pragma once

#include <vector>

#include "DriverLIB/CUString.h"

// "Style 1", or the first one with a higher number that is none of these names. ASCII letters count alike in either
// case.
CUString FreeBookmarkName(const std::vector<CUString>& taken);
