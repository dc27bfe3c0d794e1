#include "environment/NemEpdfDll.h"

constexpr ExportTable<NemEpdfDll::Export>::Names NemEpdfDll::kNames = {
    L"NemEpdfGetErrorText",    L"NemEpdfGetVersion",       L"NemEpdfSetProperty",     L"NemEpdfGetProperty",
    L"NemEpdfGetLastError",    L"NemEpdfGetLastErrorText", L"NemEpdfIsEPdf",          L"NemEpdfIsEncryptedPdf",
    L"NemEpdfIsPasswordValid", L"NemEpdfGetEPdf",          L"NemEpdfGetEmbeddedFile", L"NemEpdfGetEPdfInfo",
    L"NemEpdfGetEPdfSettings",
};

bool NemEpdfDll::Load(int, const wchar_t* directory, const wchar_t* filename) {
  if (IsLoaded()) return true;
  return LoadFile(directory, filename, L"NemEpdf64.dll") && BindExports(kNames, exports_);
}

int NemEpdfDll::SetProperty(const char* name, const char* value) {
  return Call(exports_[Export::kSetProperty], name, value);
}

int NemEpdfDll::GetProperty(const char* name, char* buffer, int size) {
  return Call(exports_[Export::kGetProperty], name, buffer, size);
}

int NemEpdfDll::GetLastError(uint32_t* code) { return Call(exports_[Export::kGetLastError], code); }

int NemEpdfDll::GetLastErrorText(char* buffer, int size) {
  return Call(exports_[Export::kGetLastErrorText], buffer, size);
}

int NemEpdfDll::GetErrorText(uint32_t code, char* buffer, int size) {
  return Call(exports_[Export::kGetErrorText], code, buffer, size);
}

int NemEpdfDll::GetVersion(uint32_t* version) const { return Call(exports_[Export::kGetVersion], version); }

int NemEpdfDll::IsEPdf(const char* filename) { return Call(exports_[Export::kIsEPdf], filename); }

int NemEpdfDll::IsEncryptedPdf(const char* filename) { return Call(exports_[Export::kIsEncryptedPdf], filename); }

int NemEpdfDll::IsPasswordValid(const char* filename, const char* password) {
  return Call(exports_[Export::kIsPasswordValid], filename, password);
}

int NemEpdfDll::GetEPdf(const char* filename, const char* password, const char* target) {
  return Call(exports_[Export::kGetEPdf], filename, password, target);
}

int NemEpdfDll::GetEmbeddedFile(const char* filename, const char* password, const char* target) {
  return Call(exports_[Export::kGetEmbeddedFile], filename, password, target);
}

int NemEpdfDll::GetEPdfInfo(const char* filename, const char* password, char* buffer, int size) {
  return Call(exports_[Export::kGetEPdfInfo], filename, password, buffer, size);
}

int NemEpdfDll::GetEPdfSettings(const char* filename, const char* password, char* buffer, int size) {
  return Call(exports_[Export::kGetEPdfSettings], filename, password, buffer, size);
}
