#pragma once

#include <cstdint>

// A print job of the print component. Texts are 8-bit, sizes count bytes; the operations answer 0 for a failure.
class NemPrintJobDllInterface {
 public:
  using JobHandle = void*;

  virtual bool LoadDefault() = 0;
  virtual bool IsLoaded() const = 0;
  virtual int JobCreate(JobHandle* job) = 0;
  virtual int JobFree(JobHandle* job) = 0;  // and clears the handle
  virtual int JobPrint(JobHandle job, const char* filename) = 0;
  virtual int JobLoad(JobHandle job, const char* filename) = 0;
  virtual int JobSave(JobHandle job, const char* filename) = 0;
  virtual int JobConvert(JobHandle job, const char* filename) = 0;
  virtual int JobGetProperty(JobHandle job, const char* name, char* buffer, int size) = 0;
  virtual int JobSetProperty(JobHandle job, const char* name, const char* value) = 0;
  virtual int JobGetError(JobHandle job, uint32_t* code) = 0;
  virtual int JobGetErrorText(JobHandle job, char* buffer, int size) = 0;
  virtual int GetVersionValue(uint32_t* version) = 0;
  virtual int GetVersionTextRaw(char* buffer, int size) = 0;  // as the component writes it

 protected:
  ~NemPrintJobDllInterface() = default;
};
