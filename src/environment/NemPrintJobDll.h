#pragma once

#include "environment/NemPrintDll.h"
#include "environment/NemPrintJobDllInterface.h"

// The print component with its job functions. With a `jobHandle`, properties and errors are those of the job; without
// one they are the component's own.
class NemPrintJobDll : public NemPrintJobDllInterface, public NemPrintDll {
 public:
  bool Load(int mode, const wchar_t* directory, const wchar_t* filename) override;
  int SetProperty(const char* name, const char* value) override;
  int GetProperty(const char* name, char* buffer, int size) override;
  int GetLastError(uint32_t* code) override;
  int GetLastErrorText(char* buffer, int size) override;

  bool LoadDefault() override;
  bool IsLoaded() const override { return HDllBase::IsLoaded(); }
  int JobCreate(JobHandle* job) override;
  int JobFree(JobHandle* job) override;
  int JobPrint(JobHandle job, const char* filename) override;
  int JobLoad(JobHandle job, const char* filename) override;
  int JobSave(JobHandle job, const char* filename) override;
  int JobConvert(JobHandle job, const char* filename) override;
  int JobGetProperty(JobHandle job, const char* name, char* buffer, int size) override;
  int JobSetProperty(JobHandle job, const char* name, const char* value) override;
  int JobGetError(JobHandle job, uint32_t* code) override;
  int JobGetErrorText(JobHandle job, char* buffer, int size) override;
  int GetVersionValue(uint32_t* value) override { return GetVersion(value); }
  int GetVersionTextRaw(char* buffer, int size) override;
  virtual int JobMailSend(JobHandle job, const char* filename);

  JobHandle jobHandle = nullptr;

 protected:
  void ForgetExports();

 private:
  enum class Export {
    kJobCreate,
    kJobFree,
    kJobLoad,
    kJobSave,
    kJobPrint,
    kJobConvert,
    kJobMailSend,
    kJobSetProperty,
    kJobGetProperty,
    kJobGetError,
    kJobGetErrorText,
    kGetVersionText,
    kCount
  };
  static const ExportTable<Export>::Names kNames;

  ExportTable<Export> exports_;
};
