#include "environment/ComponentVersions.h"

#include "DriverLIB/Trace.h"
#include "environment/NemEpdfDll.h"
#include "environment/NemPdfmDll.h"
#include "environment/NemPrintJob.h"
#include "environment/NemVdApiDll.h"

namespace {

struct ComponentQuery {
  const wchar_t* filename;  // null for the binding's own
  const char* failure;
  const char* exception;
};

constexpr int kMode = 1;

template <class Binding>
CUString VersionOf(const wchar_t* directory, const ComponentQuery& query) {
  // Where the components lie is not known: the platform's own search would take any file of that name.
  if (!directory || !*directory) {
    TraceInfo(query.failure, ERROR_PATH_NOT_FOUND);
    return {};
  }
  Binding component;  // outlives the handler: what the component threw is destroyed by its own code
  try {
    if (!component.Load(kMode, directory, query.filename)) {
      TraceInfo(query.failure, component.lastError);
      return {};
    }
    CEString text;
    component.GetVersionText(text);
    CUString version;
    version.AssignNarrow(text);
    return version;
  } catch (...) {
    TraceError(query.exception);
    return {};
  }
}

}  // namespace

CUString GetPrintVersion(const wchar_t* directory) {
  return VersionOf<NemPrintJob>(directory, {L"NemPrt64.dll", "Fehler %ld beim Initialisieren der NEM print-DLL",
                                            "UpdateData: Exception gefangen beim Ermitteln der Print-Version"});
}

CUString GetPdfVersion(const wchar_t* directory) {
  return VersionOf<NemPdfmDll>(directory, {L"NemPdf64.dll", "Fehler %ld beim Initialisieren der NEM pdf-DLL",
                                           "UpdateData: Exception gefangen beim Ermitteln der Toolbox-Version"});
}

CUString GetEpdfVersion(const wchar_t* directory) {
  return VersionOf<NemEpdfDll>(directory, {nullptr, "Fehler %ld beim Initialisieren der NEM Epdf-DLL",
                                           "UpdateData: Exception gefangen beim Ermitteln der Epdf-Version"});
}

CUString GetVdApiVersion(const wchar_t* directory) {
  return VersionOf<NemVdApiDll>(directory, {nullptr, "Fehler %ld beim Initialisieren der NEM VdApi-DLL",
                                            "UpdateData: Exception gefangen beim Ermitteln der VdApi-Version"});
}
