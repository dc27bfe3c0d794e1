// Sizes and fonts of the system at a window's dpi.
#pragma once

#include "window/Gdi.h"

// GetSystemMetrics for that dpi.
int SystemMetric(int index, int dpi);

// The font of the system's messages.
GdiFont MessageFont(int dpi);
