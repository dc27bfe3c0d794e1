// The program that hosts the library, and versions of files.
#pragma once

#include "DriverLIB/CUString.h"

// The file name of the host's program with its extension.
CUString GetHostFileName();

// Whether the host is the office's word processor, by the name of its file.
bool IsWordHost();

// The file name and version of the host's program, such as "WINWORD.EXE 15.0.4420.1017". A `friendly` name of an
// office program is that of its release: "Microsoft® Word 2013(15.0.4420.1017)".
CUString GetHostApplicationName(bool friendly);

// The file's version as four decimal numbers with points between. Empty when there is no such file, or no version
// record in it.
CUString GetFileVersion(const wchar_t* path);
