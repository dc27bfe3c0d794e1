// The files of an electronic invoice.
#pragma once

#include "DriverLIB/CUString.h"

constexpr int kMaxInvoiceFileLength = 260;

// Whether a path has the extension of an XML file, in small or capital letters.
bool IsXmlFilename(WideView path);

// The path of the manual about content that is marked in a document, as the shell is given it: each backslash doubled.
// `installFolder` ends in a separator.
CUString MarkedContentManual(WideView installFolder);
