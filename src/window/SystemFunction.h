// Functions of system libraries that are bound at first use, for units of windows.
#pragma once

#include "window/Windows.h"
// behind windows.h
#include "DriverLIB/SystemFunction.h"
