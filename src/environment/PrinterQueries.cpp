#include "environment/PrinterQueries.h"

#include "DriverLIB/NEMPrintMemoryException.h"
#include "DriverLIB/Trace.h"
#include "environment/CPrinterHandle.h"
#include "environment/Spooler.h"
#include "environment/SystemGeneration.h"

namespace {

constexpr DWORD kLevel = 2;  // the records with the names of server, printer and driver

// The records of the printers of one kind, or null. The list may grow between two calls.
GlobalBlock EnumeratePrinters(DWORD kind, DWORD& count) {
  GlobalBlock block;
  for (DWORD size = 0; !spooler::EnumPrintersW(kind, nullptr, kLevel, block.get(), size, &size, &count);) {
    count = 0;
    if (::GetLastError() != ERROR_INSUFFICIENT_BUFFER) return {};
    block.reset(static_cast<BYTE*>(::GlobalAlloc(GPTR, size)));
    if (!block) throw std::bad_alloc();
  }
  return block;
}

void AddPrintersOfDriver(CUStringArray& names, DWORD kind, const CUString& driverName) {
  DWORD count = 0;
  const GlobalBlock block = EnumeratePrinters(kind, count);
  const auto* const printers = reinterpret_cast<const PRINTER_INFO_2W*>(block.get());
  for (DWORD i = 0; i < count; ++i)
    if (driverName.EqualsNoCase(printers[i].pDriverName)) names.Add(printers[i].pPrinterName);
}

void MoveToFront(CUStringArray& names, const CUString& name) {
  const int index = names.FindExact(name);
  if (index <= 0) return;
  names.SetAt(index, names[0]);
  names.SetAt(0, name);
}

}  // namespace

LocalBlock GetDriverInfo(HANDLE printerHandle, DWORD level) {
  DWORD size = 0;
  if (spooler::GetPrinterDriverW(printerHandle, level, nullptr, 0, &size) ||
      ::GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
    TraceError("GetDriverInfo%d: GetPrinterDriver(1st) error=%08lx", level, ::GetLastError());
    return {};
  }
  LocalBlock block(static_cast<BYTE*>(::LocalAlloc(LMEM_FIXED, size)));
  if (!block) {
    TraceError("GetDriverInfo%d: LocalAlloc(%ld) failed", level, size);
    return {};
  }
  if (!spooler::GetPrinterDriverW(printerHandle, level, block.get(), size, &size)) {
    TraceError("GetDriverInfo%d: GetPrinterDriver(2nd) error=%08lx", level, ::GetLastError());
    return {};
  }
  return block;
}

GlobalBlock GetPrinterInfo(HANDLE printerHandle, DWORD level) {
  DWORD size = 0;
  if (spooler::GetPrinterW(printerHandle, level, nullptr, 0, &size) || ::GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
    TraceError("GetPrinterInfo%d: GetPrinterPrinter(1st) error=%08lx", level, ::GetLastError());
    return {};
  }
  GlobalBlock block(static_cast<BYTE*>(::GlobalAlloc(GPTR, size)));
  if (!block) {
    TraceError("GetPrinterInfo%d: GlobalAlloc(%ld) failed", level, size);
    return {};
  }
  if (!spooler::GetPrinterW(printerHandle, level, block.get(), size, &size)) {
    TraceError("GetPrinterInfo%d: GetPrinterPrinter(2nd) error=%08lx", level, ::GetLastError());
    return {};
  }
  return block;
}

GlobalBlock GetPrinterRegData(HANDLE printerHandle, const wchar_t* name, DWORD* size) {
  if (size) *size = 0;
  DWORD needed = 0;
  DWORD result = spooler::GetPrinterDataW(printerHandle, name, nullptr, nullptr, 0, &needed);
  if (result == ERROR_FILE_NOT_FOUND)
    TraceInfo("GetPrinterRegData: GetPrinterData(%ls) not found", name);
  else if (result != ERROR_MORE_DATA)
    TraceError("GetPrinterRegData: 1st GetPrinterData(%ls) failed, Error=%ld", name, result);
  if (needed == 0) return {};
  GlobalBlock block(static_cast<BYTE*>(::GlobalAlloc(GPTR, needed)));
  if (!block) return {};
  result = spooler::GetPrinterDataW(printerHandle, name, nullptr, block.get(), needed, &needed);
  if (result != ERROR_SUCCESS) {
    TraceError("GetPrinterRegData: 2nd GetPrinterData(%ls) failed, Error=%ld", name, result);
    return {};
  }
  if (size) *size = needed;
  return block;
}

CUString GetPrinterDataText(HANDLE printerHandle, const wchar_t* name) {
  DWORD size = 0;
  const GlobalBlock block = GetPrinterRegData(printerHandle, name, &size);
  if (!block) return {};
  const std::wstring_view stored(reinterpret_cast<const wchar_t*>(block.get()), size / sizeof(wchar_t));
  CUString text(stored.substr(0, stored.rfind(L'\0')));
  text.ReplaceChar(L'\0', L'\n');
  return text;
}

CUString GetDriverDirectory(HANDLE printerHandle) {
  const LocalBlock block = GetDriverInfo(printerHandle, kLevel);
  if (!block) return {};
  const CUString path(reinterpret_cast<const DRIVER_INFO_2W*>(block.get())->pDriverPath);
  return path.Left(path.ReverseFind(L'\\') + 1);
}

bool IsValidPrinterHandle(HANDLE printerHandle) {
  DWORD size = 0;
  return spooler::GetPrinterW(printerHandle, kLevel, nullptr, 0, &size) ||
         ::GetLastError() == ERROR_INSUFFICIENT_BUFFER;
}

bool IsServerPrinterHandle(HANDLE printerHandle) {
  const GlobalBlock block = GetPrinterInfo(printerHandle, kLevel);
  if (!block) {
    TraceWarning("IsServerPrinter: can not get PrinterInfo and server name");
    return false;
  }
  const wchar_t* const server = reinterpret_cast<const PRINTER_INFO_2W*>(block.get())->pServerName;
  return server && *server;
}

bool IsServerPrinter(const wchar_t* printerName) {
  const CPrinterHandle printer(printerName);
  if (!printer || !IsValidPrinterHandle(printer.Get())) {
    TraceInfo("IsServerPrinter: Invalid printer handle %d", ::HandleToLong(printer.Get()));
    return false;
  }
  return IsServerPrinterHandle(printer.Get());
}

bool GetPrinterNames(CUStringArray& names, const wchar_t* driverName) try {
  names.RemoveAll();
  if (!driverName) return false;
  const CUString driver(driverName);
  AddPrintersOfDriver(names, PRINTER_ENUM_LOCAL, driver);
  if (!IsWin9x()) AddPrintersOfDriver(names, PRINTER_ENUM_CONNECTIONS, driver);
  MoveToFront(names, driver);
  return true;
} catch (const std::bad_alloc&) {
  return false;
} catch (NEMPrintMemoryException* exhausted) {
  delete exhausted;
  return false;
}
