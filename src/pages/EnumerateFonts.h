// The fonts that are installed for a device.
#pragma once

#include "pages/InstalledFont.h"
#include "window/Windows.h"

// Visits each face in each of its character sets. What the visitor throws ends the visits and comes through.
void EnumerateFonts(HDC dc, const FontVisitor& visit);
