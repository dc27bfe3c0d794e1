#include "DriverLIB/CError.h"

#include "DriverLIB/Trace.h"

// The build defines these from the date of the sources, so that equal sources give an equal library.
#ifndef NEMPDF_BUILD_DATE
#define NEMPDF_BUILD_DATE __DATE__
#define NEMPDF_BUILD_TIME __TIME__
#endif

namespace {

void TraceBanner(ATraceFile& trace, const wchar_t* componentName, const wchar_t* versionText, uint32_t versionNumber) {
  trace.Info(L"%s Version %s (%#8.8lx) vom %hs, %hs", componentName, versionText,
             static_cast<unsigned long>(versionNumber), NEMPDF_BUILD_DATE, NEMPDF_BUILD_TIME);
  platform::SystemVersion system;
  if (platform::GetSystemVersion(system))
    trace.Info(
        L"    Native/Win32: GetVersionEx(EX): %d.%d.%x, platform: 0x%x, product: 0x%x, suite: 0x%x, "
        L"servicepack: %d.%d",
        system.major, system.minor, system.build, system.platformId, system.productType, system.suiteMask,
        system.servicePackMajor, system.servicePackMinor);
  else
    trace.Info(L"GetVersionEx - failed, we are older than NT4 SP6.");
}

}  // namespace

constinit CThreadVar<CError> threadError;

CError::CError(const wchar_t* componentName, const wchar_t* versionText, uint32_t versionNumber, uint32_t threadId,
               wchar_t kind, const wchar_t* traceFileName) {
  trace = &traceFile_;
  if (!trace->OpenTrace(traceFileName, threadId, kind))
    code = kErrorTraceNotOpened;
  else if (trace->IsOpen())
    TraceBanner(*trace, componentName, versionText, versionNumber);
}

int SetError(CError* error, uint32_t code, const char* sourceName, int line, const wchar_t* detail) {
  if (!error) return 0;
  const bool hasDetail = detail && *detail;
  const uint32_t current = error->code;
  if (current == kErrorNone) {
    error->code = code;
    if (hasDetail)
      TraceError(error, L"Error: Setze Fehler %d(%s) in %hs(%d)", code, detail, sourceName, line);
    else
      TraceError(error, L"Error: Setze Fehler %d in %hs(%d)", code, sourceName, line);
  } else if (hasDetail) {
    TraceError(error, L"Error: Aktueller Fehler: %d. Weiterer Fehler %d(%s) in %hs(%d)", current, code, detail,
               sourceName, line);
  } else {
    TraceError(error, L"Error: Aktueller Fehler: %d. Weiterer Fehler %d in %hs(%d)", current, code, sourceName, line);
  }
  return 0;
}

int ReportError(CError* error) {
  if (error) {
    error->lastCode = error->code;
    error->code = kErrorNone;
    error->detailValue = 0;
  }
  return 0;
}

void ResetError(CError* error) {
  if (!error) return;
  error->lastCode = kErrorNone;
  error->code = kErrorNone;
  error->detailValue = 0;
  error->detail = CUString();
}
