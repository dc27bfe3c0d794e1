// What the spooler knows of printers. A failure ends in a null block, an empty text or false, mostly behind a trace
// line, so that a caller can ask without any error handling of its own. `printerHandle` is a handle of the spooler
// (CPrinterHandle.h).
#pragma once

#include <windows.h>

#include <memory>

#include "DriverLIB/CUString.h"
#include "DriverLIB/CUStringArray.h"

struct LocalBlockDeleter {
  void operator()(BYTE* block) const { ::LocalFree(block); }
};
struct GlobalBlockDeleter {
  void operator()(BYTE* block) const { ::GlobalFree(block); }
};

// A record of the spooler with the texts that it points to, freed by LocalFree or GlobalFree. Whoever releases one
// frees it by the function that it is named after.
using LocalBlock = std::unique_ptr<BYTE, LocalBlockDeleter>;
using GlobalBlock = std::unique_ptr<BYTE, GlobalBlockDeleter>;

// The record of the printer's driver: DRIVER_INFO_2W for level 2.
LocalBlock GetDriverInfo(HANDLE printerHandle, DWORD level);

// The record of the printer: PRINTER_INFO_2W for level 2.
GlobalBlock GetPrinterInfo(HANDLE printerHandle, DWORD level);

// The printer data value `name`, as it is stored, and its size in bytes if asked for; null when it is empty.
GlobalBlock GetPrinterRegData(HANDLE printerHandle, const wchar_t* name, DWORD* size = nullptr);

// The same as text; a value of several strings becomes one line each.
CUString GetPrinterDataText(HANDLE printerHandle, const wchar_t* name);

// The directory of the printer's driver file with its trailing separator. The administrator's files lie there.
CUString GetDriverDirectory(HANDLE printerHandle);

bool IsValidPrinterHandle(HANDLE printerHandle);

// Whether the printer belongs to a print server. False when it is not known.
bool IsServerPrinterHandle(HANDLE printerHandle);
bool IsServerPrinter(const wchar_t* printerName);

// The local and connected printers that use the driver, whose name is compared without regard to case. A printer that
// is named exactly like the driver comes first. False without a driver name, or when memory is short.
bool GetPrinterNames(CUStringArray& names, const wchar_t* driverName);
