#include "environment/NemVdApiDll.h"

constexpr ExportTable<NemVdApiDll::Export>::Names NemVdApiDll::kNames = {
    L"NemPdfVdAPIGetVersion",
    L"NemPdfVdJobSetPropertyA",
    L"NemPdfVdJobSetPropertyW",
    L"NemPdfVdJobGetPropertyA",
    L"NemPdfVdJobGetPropertyW",
    L"NemPdfVdJobGetError",
    L"NemPdfVdJobGetErrorTextA",
    L"NemPdfVdJobCreate",
    L"NemPdfVdJobFree",
    L"NemPdfVdJobStart",
    L"NemPdfVdJobPrint",
    L"NemPdfVdJobWaitFor",
    L"NemPdfVdJobInitDevModeProperty",
    L"NemPdfVdJobShowDevModeProperty",
    L"NemPdfVdJobSaveDevModeProperty",
};

bool NemVdApiDll::Load(int, const wchar_t* directory, const wchar_t* filename) {
  if (IsLoaded()) return true;
  return LoadFile(directory, filename, L"NemPdfVdApi64.dll") && BindExports(kNames, exports_);
}
