#include "environment/NemPrintJobDll.h"

constexpr ExportTable<NemPrintJobDll::Export>::Names NemPrintJobDll::kNames = {
    L"NemPrJobCreate",      L"NemPrJobFree",     L"NemPrJobLoad",         L"NemPrJobSave",
    L"NemPrJobPrint",       L"NemPrJobConvert",  L"NemPrJobMailSend",     L"NemPrJobSetProperty",
    L"NemPrJobGetProperty", L"NemPrJobGetError", L"NemPrJobGetErrorText", L"NemPrGetVersionText",
};

bool NemPrintJobDll::Load(int mode, const wchar_t* directory, const wchar_t* filename) {
  if (IsLoaded()) return true;
  return NemPrintDll::Load(mode, directory, filename) && BindExports(kNames, exports_);
}

bool NemPrintJobDll::LoadDefault() {
  constexpr int kUsualMode = 1;
  return Load(kUsualMode, nullptr, nullptr);
}

void NemPrintJobDll::ForgetExports() {
  exports_ = {};
  NemPrintDll::ForgetExports();
}

int NemPrintJobDll::SetProperty(const char* name, const char* value) {
  return jobHandle ? JobSetProperty(jobHandle, name, value) : NemPrintDll::SetProperty(name, value);
}

int NemPrintJobDll::GetProperty(const char* name, char* buffer, int size) {
  return jobHandle ? JobGetProperty(jobHandle, name, buffer, size) : NemPrintDll::GetProperty(name, buffer, size);
}

int NemPrintJobDll::GetLastError(uint32_t* code) {
  return jobHandle ? JobGetError(jobHandle, code) : NemPrintDll::GetLastError(code);
}

int NemPrintJobDll::GetLastErrorText(char* buffer, int size) {
  return jobHandle ? JobGetErrorText(jobHandle, buffer, size) : NemPrintDll::GetLastErrorText(buffer, size);
}

int NemPrintJobDll::JobCreate(JobHandle* job) { return Call(exports_[Export::kJobCreate], job); }

int NemPrintJobDll::JobFree(JobHandle* job) { return Call(exports_[Export::kJobFree], job); }

int NemPrintJobDll::JobPrint(JobHandle job, const char* filename) {
  return Call(exports_[Export::kJobPrint], job, filename);
}

int NemPrintJobDll::JobLoad(JobHandle job, const char* filename) {
  return Call(exports_[Export::kJobLoad], job, filename);
}

int NemPrintJobDll::JobSave(JobHandle job, const char* filename) {
  return Call(exports_[Export::kJobSave], job, filename);
}

int NemPrintJobDll::JobConvert(JobHandle job, const char* filename) {
  return Call(exports_[Export::kJobConvert], job, filename);
}

int NemPrintJobDll::JobMailSend(JobHandle job, const char* filename) {
  return Call(exports_[Export::kJobMailSend], job, filename);
}

int NemPrintJobDll::JobGetProperty(JobHandle job, const char* name, char* buffer, int size) {
  return Call(exports_[Export::kJobGetProperty], job, name, buffer, size);
}

int NemPrintJobDll::JobSetProperty(JobHandle job, const char* name, const char* value) {
  return Call(exports_[Export::kJobSetProperty], job, name, value);
}

int NemPrintJobDll::JobGetError(JobHandle job, uint32_t* code) {
  return Call(exports_[Export::kJobGetError], job, code);
}

int NemPrintJobDll::JobGetErrorText(JobHandle job, char* buffer, int size) {
  return Call(exports_[Export::kJobGetErrorText], job, buffer, size);
}

int NemPrintJobDll::GetVersionTextRaw(char* buffer, int size) {
  return Call(exports_[Export::kGetVersionText], buffer, size);
}
