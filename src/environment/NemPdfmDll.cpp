#include "environment/NemPdfmDll.h"

constexpr ExportTable<NemPdfmDll::Export>::Names NemPdfmDll::kNames = {
    L"NemPdfGetErrorText", L"NemPdfGetVersion",       L"NemPdfSetProperty", L"NemPdfGetProperty",
    L"NemPdfGetLastError", L"NemPdfGetLastErrorText", L"NemPdfMerge",       L"NemPdfJoin",
};

// The usual file has the name of the 32-bit component; on 64 bits the caller names the file.
bool NemPdfmDll::Load(int, const wchar_t* directory, const wchar_t* filename) {
  if (IsLoaded()) return true;
  return LoadFile(directory, filename, L"NemPdf32.dll") && BindExports(kNames, exports_);
}

int NemPdfmDll::SetProperty(const char* name, const char* value) {
  return Call(exports_[Export::kSetProperty], name, value);
}

int NemPdfmDll::GetProperty(const char* name, char* buffer, int size) {
  return Call(exports_[Export::kGetProperty], name, buffer, size);
}

int NemPdfmDll::GetLastError(uint32_t* code) { return Call(exports_[Export::kGetLastError], code); }

int NemPdfmDll::GetLastErrorText(char* buffer, int size) {
  return Call(exports_[Export::kGetLastErrorText], buffer, size);
}

int NemPdfmDll::GetErrorText(uint32_t code, char* buffer, int size) {
  return Call(exports_[Export::kGetErrorText], code, buffer, size);
}

int NemPdfmDll::GetVersion(uint32_t* version) const { return Call(exports_[Export::kGetVersion], version); }

int NemPdfmDll::Merge(const char* first, const char* second, const char* target) {
  return Call(exports_[Export::kMerge], first, second, target);
}

int NemPdfmDll::Join(const char* first, const char* second, const char* target) {
  return Call(exports_[Export::kJoin], first, second, target);
}
