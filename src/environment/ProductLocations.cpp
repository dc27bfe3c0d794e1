#include "environment/ProductLocations.h"

#include <windows.h>

#include "DriverLIB/CEPathS.h"
#include "DriverLIB/CUStringArray.h"
#include "DriverLIB/InstallLocation.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/Trace.h"
#include "environment/CPrinterHandle.h"
#include "environment/PrinterQueries.h"
#include "environment/Shell.h"
#include "environment/SystemGeneration.h"

namespace {

constexpr wchar_t kDriverName[] = L"NEM pdf vonder";
constexpr wchar_t kAdminTool[] = L"NEMadmin64.exe";

CUString DriverDirectoryOf(const wchar_t* printerName) {
  const CPrinterHandle printer(printerName);
  if (printer && IsValidPrinterHandle(printer.Get())) return GetDriverDirectory(printer.Get());
  TraceError("GetAddInNEMDllPath: Invalid printer handle %d", ::HandleToLong(printer.Get()));
  return {};
}

// An install location that is not recorded, or without its folder, would lead to the root of the current drive or to a
// server of the tool's name.
bool HasFolder(const CUString& location) { return location.Length() > 1; }

bool WaitForEnd(HANDLE process) {
  const bool ended = ::WaitForSingleObject(process, INFINITE) == WAIT_OBJECT_0;
  ::CloseHandle(process);
  return ended;
}

}  // namespace

CUString GetLibraryDirectory() { return CEPathString::ModulePath(ModuleInstance()).GetDriveAndDirectory(); }

CUString GetAddInNEMDllPath() try {
  CUStringArray printers;
  if (!IsWin9x() && !GetPrinterNames(printers, kDriverName)) {
    TraceError("GetAddInNEMDllPath: GetPrinterNames failed");
    return {};
  }
  if (printers.Count() > 0) return DriverDirectoryOf(printers[0].Text());
  return GetLibraryDirectory();
} catch (...) {
  TraceError("%hs: caught throwed exception", "GetAddInNEMDllPath");
  return {};
}

CUString GetProductDirectory() { return GetAddInNEMDllPath(); }

bool RunAdminTool(const wchar_t* parameters) {
  CUString tool;
  GetProductInstallLocation(tool);
  if (!HasFolder(tool)) return false;
  tool += L"\\";  // a second one, which the system takes as one
  tool += kAdminTool;
  SHELLEXECUTEINFOW info = {};
  info.cbSize = sizeof info;
  info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;  // the caller tells the user, not the shell
  info.lpVerb = L"open";
  info.lpFile = tool.Text();
  info.lpParameters = parameters;
  info.nShow = SW_SHOW;
  ExecuteShell(info);
  return info.hProcess ? WaitForEnd(info.hProcess) : ::GetLastError() == ERROR_SUCCESS;
}
