#include "environment/Spooler.h"

#include "DriverLIB/SystemFunction.h"

namespace {

template <class Function>
Function* Bind(const char* name) {
  return SystemFunction<Function>(L"winspool.drv", name);
}

BOOL FailUnbound() {
  ::SetLastError(ERROR_PROC_NOT_FOUND);
  return FALSE;
}

}  // namespace

// The platform writes to none of the names, though it does not promise that in its types.
namespace spooler {

BOOL OpenPrinterW(const wchar_t* name, HANDLE* printer) {
  static const auto open = Bind<decltype(::OpenPrinterW)>("OpenPrinterW");
  return open ? open(const_cast<wchar_t*>(name), printer, nullptr) : FailUnbound();
}

BOOL ClosePrinter(HANDLE printer) {
  static const auto close = Bind<decltype(::ClosePrinter)>("ClosePrinter");
  return close ? close(printer) : FailUnbound();
}

BOOL GetPrinterDriverW(HANDLE printer, DWORD level, BYTE* buffer, DWORD size, DWORD* needed) {
  static const auto get = Bind<decltype(::GetPrinterDriverW)>("GetPrinterDriverW");
  return get ? get(printer, nullptr, level, buffer, size, needed) : FailUnbound();
}

BOOL GetPrinterW(HANDLE printer, DWORD level, BYTE* buffer, DWORD size, DWORD* needed) {
  static const auto get = Bind<decltype(::GetPrinterW)>("GetPrinterW");
  return get ? get(printer, level, buffer, size, needed) : FailUnbound();
}

DWORD GetPrinterDataW(HANDLE printer, const wchar_t* name, DWORD* type, BYTE* buffer, DWORD size, DWORD* needed) {
  static const auto get = Bind<decltype(::GetPrinterDataW)>("GetPrinterDataW");
  return get ? get(printer, const_cast<wchar_t*>(name), type, buffer, size, needed) : ERROR_PROC_NOT_FOUND;
}

BOOL EnumPrintersW(DWORD flags, const wchar_t* name, DWORD level, BYTE* buffer, DWORD size, DWORD* needed,
                   DWORD* count) {
  static const auto enumerate = Bind<decltype(::EnumPrintersW)>("EnumPrintersW");
  return enumerate ? enumerate(flags, const_cast<wchar_t*>(name), level, buffer, size, needed, count) : FailUnbound();
}

}  // namespace spooler
