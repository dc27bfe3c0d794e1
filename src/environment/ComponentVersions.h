// The versions of the sibling components, such as "2.10.4". Each component is loaded from `directory`, which ends in a
// separator, for the moment of the question. Empty, with a trace line, when it cannot be loaded, throws, or when no
// directory is given; "n/a" when it tells none.
#pragma once

#include "DriverLIB/CUString.h"

CUString GetPrintVersion(const wchar_t* directory);
CUString GetPdfVersion(const wchar_t* directory);
CUString GetEpdfVersion(const wchar_t* directory);
CUString GetVdApiVersion(const wchar_t* directory);
