#pragma once

#include "environment/PaperTable.h"

// Whether the default paper is A4 in the user's country, Letter otherwise and where the country is not known.
bool IsA4PaperDefault();

// The row of that paper in the paper table.
const PaperRow& GetDefaultPaperRow();
