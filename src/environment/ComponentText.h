// Texts about the sibling components.
#pragma once

#include <cstdint>

#include "DriverLIB/CEString.h"

// A version number as text: 8 bits major number, 8 bits minor number, 16 bits patch level, in hexadecimal digits that
// are read as decimal ones. 0x2100004 is 2.10.4.
CEString ComponentVersionText(uint32_t version);
