// The spooler, bound at first use: most runs of a host never ask for a printer, and loading its library costs them
// nothing. Each function is the platform's of the same name; without the library it fails with ERROR_PROC_NOT_FOUND.
#pragma once

#include <windows.h>
// behind windows.h
#include <winspool.h>

namespace spooler {

BOOL OpenPrinterW(const wchar_t* name, HANDLE* printer);
BOOL ClosePrinter(HANDLE printer);
BOOL GetPrinterDriverW(HANDLE printer, DWORD level, BYTE* buffer, DWORD size, DWORD* needed);
BOOL GetPrinterW(HANDLE printer, DWORD level, BYTE* buffer, DWORD size, DWORD* needed);
DWORD GetPrinterDataW(HANDLE printer, const wchar_t* name, DWORD* type, BYTE* buffer, DWORD size, DWORD* needed);
BOOL EnumPrintersW(DWORD flags, const wchar_t* name, DWORD level, BYTE* buffer, DWORD size, DWORD* needed,
                   DWORD* count);

}  // namespace spooler
