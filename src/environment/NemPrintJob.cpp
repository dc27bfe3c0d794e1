#include "environment/NemPrintJob.h"

NemPrintJob::~NemPrintJob() {
  if (!jobHandle) return;
  try {
    NemPrintJobDll::JobFree(&jobHandle);
  } catch (...) {
    // A job that cannot be freed is lost. What was thrown is destroyed here, before the component goes.
  }
  ForgetExports();
  FreeModule();
}

bool NemPrintJob::Load(int mode, const wchar_t* directory, const wchar_t* filename) {
  if (IsLoaded()) return true;
  return NemPrintJobDll::Load(mode, directory, filename) && JobCreate(&jobHandle) && jobHandle;
}

int NemPrintJob::SetProperty(const char* name, const char* value) {
  return jobHandle ? JobSetProperty(jobHandle, name, value) : 0;
}

int NemPrintJob::GetProperty(const char* name, char* buffer, int size) {
  return jobHandle ? JobGetProperty(jobHandle, name, buffer, size) : 0;
}

int NemPrintJob::LoadJob(const char* filename) { return jobHandle ? JobLoad(jobHandle, filename) : 0; }

int NemPrintJob::SaveJob(const char* filename) { return jobHandle ? JobSave(jobHandle, filename) : 0; }

int NemPrintJob::MailSendJob(const char* filename) { return jobHandle ? JobMailSend(jobHandle, filename) : 0; }
