#pragma once

#include "Measure.h"

// From the call to the sheet painted with all its children: the settings sheet, and a bare property sheet of the same
// host template with one child dialog of the same page template.
Comparison BenchOpeningSheet(int rounds);

// From the creation to the painted page: the graphic page, and a bare dialog of its template.
Comparison BenchFirstShowOfGraphicPage(int rounds);

// The same of the fonts page with a thousand fonts, and with a hundred.
Comparison BenchFontsPage(int rounds);

// Memory in use by one open sheet, in bytes of all heaps of the process.
size_t MemoryOfOpenSheet();
