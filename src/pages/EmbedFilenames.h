// The list of files to attach, as the text of EmbedFilenames: each path in quotation marks, ";" between them.
#pragma once

#include "DriverLIB/CUStringArray.h"

// What the storage of the printer's settings takes.
constexpr int kMaxEmbedFilenamesLength = 760;

// Reads the list into `paths`, whose former elements go. Paths without marks are read as well. Empty ones are left out.
void ReadEmbedFilenames(WideView text, CUStringArray& paths);

CUString EmbedFilenamesText(const CUStringArray& paths);

// Whether the list with one more path still fits.
bool EmbedFilenameFits(const CUStringArray& paths, WideView path);
