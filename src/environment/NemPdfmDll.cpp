#include "environment/NemPdfmDll.h"

constexpr ExportTable<NemPdfmExport>::Names NemPdfmDll::kNames = {
    L"NemPdfGetErrorText", L"NemPdfGetVersion",       L"NemPdfSetProperty", L"NemPdfGetProperty",
    L"NemPdfGetLastError", L"NemPdfGetLastErrorText", L"NemPdfMerge",       L"NemPdfJoin",
};

// The usual file has the name of the 32-bit component; on 64 bits the caller names the file.
bool NemPdfmDll::Load(int, const wchar_t* directory, const wchar_t* filename) {
  if (IsLoaded()) return true;
  return LoadFile(directory, filename, L"NemPdf32.dll") && BindExports(kNames, exports_);
}

int NemPdfmDll::Merge(const char* first, const char* second, const char* target) {
  return Call(exports_[NemPdfmExport::kMerge], first, second, target);
}

int NemPdfmDll::Join(const char* first, const char* second, const char* target) {
  return Call(exports_[NemPdfmExport::kJoin], first, second, target);
}
