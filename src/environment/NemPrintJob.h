#pragma once

#include "environment/NemPrintJobDll.h"

// One print job. Loading creates it, the destructor frees it and then the component.
class NemPrintJob : public NemPrintJobDll {
 public:
  ~NemPrintJob() override;

  bool Load(int mode, const wchar_t* directory, const wchar_t* filename) override;

  // Of the job only: 0 when there is none.
  int SetProperty(const char* name, const char* value) override;
  int GetProperty(const char* name, char* buffer, int size) override;
  virtual int LoadJob(const char* filename);
  virtual int SaveJob(const char* filename);
  virtual int MailSendJob(const char* filename);
};
