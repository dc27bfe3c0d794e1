#include "environment/NemEpdfDll.h"

constexpr ExportTable<NemEpdfExport>::Names NemEpdfDll::kNames = {
    L"NemEpdfGetErrorText",    L"NemEpdfGetVersion",       L"NemEpdfSetProperty",     L"NemEpdfGetProperty",
    L"NemEpdfGetLastError",    L"NemEpdfGetLastErrorText", L"NemEpdfIsEPdf",          L"NemEpdfIsEncryptedPdf",
    L"NemEpdfIsPasswordValid", L"NemEpdfGetEPdf",          L"NemEpdfGetEmbeddedFile", L"NemEpdfGetEPdfInfo",
    L"NemEpdfGetEPdfSettings",
};

bool NemEpdfDll::Load(int, const wchar_t* directory, const wchar_t* filename) {
  if (IsLoaded()) return true;
  return LoadFile(directory, filename, L"NemEpdf64.dll") && BindExports(kNames, exports_);
}

int NemEpdfDll::IsEPdf(const char* filename) { return Call(exports_[NemEpdfExport::kIsEPdf], filename); }

int NemEpdfDll::IsEncryptedPdf(const char* filename) {
  return Call(exports_[NemEpdfExport::kIsEncryptedPdf], filename);
}

int NemEpdfDll::IsPasswordValid(const char* filename, const char* password) {
  return Call(exports_[NemEpdfExport::kIsPasswordValid], filename, password);
}

int NemEpdfDll::GetEPdf(const char* filename, const char* password, const char* target) {
  return Call(exports_[NemEpdfExport::kGetEPdf], filename, password, target);
}

int NemEpdfDll::GetEmbeddedFile(const char* filename, const char* password, const char* target) {
  return Call(exports_[NemEpdfExport::kGetEmbeddedFile], filename, password, target);
}

int NemEpdfDll::GetEPdfInfo(const char* filename, const char* password, char* buffer, int size) {
  return Call(exports_[NemEpdfExport::kGetEPdfInfo], filename, password, buffer, size);
}

int NemEpdfDll::GetEPdfSettings(const char* filename, const char* password, char* buffer, int size) {
  return Call(exports_[NemEpdfExport::kGetEPdfSettings], filename, password, buffer, size);
}
