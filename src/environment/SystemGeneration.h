#pragma once

#include "DriverLIB/Platform.h"

// Whether the system is a Windows 95, 98 or Me, which knows no printer connections. By the system's real version, not
// the one that a host without a manifest is told.
bool IsWin9x();

// The decision for a given version.
bool IsWin9x(const platform::SystemVersion& version);
