#pragma once

#include "environment/TavexDll.h"

// The job interface of the converter. Only its version is asked for.
class NemVdApiDll : public TavexDll {
 public:
  bool Load(int mode, const wchar_t* directory, const wchar_t* filename) override;
  void GetName(CEString& name) const override { name = "NEM Tiff vonder API"; }

  int SetProperty(const char*, const char*) override { return 0; }
  int GetProperty(const char*, char*, int) override { return 0; }
  int GetLastError(uint32_t*) override { return 0; }
  int GetLastErrorText(char*, int) override { return 0; }
  int GetErrorText(uint32_t, char*, int) override { return 0; }
  const PropertyTableRow* GetPropertyTable() const override { return nullptr; }
  void GetShortName(CEString& name) const override { name = "NEM Pdf vonder API"; }
  int GetVersion(uint32_t* version) const override { return Call(exports_[Export::kGetVersion], version); }

 private:
  enum class Export {
    kGetVersion,
    kSetPropertyA,
    kSetPropertyW,
    kGetPropertyA,
    kGetPropertyW,
    kGetError,
    kGetErrorTextA,
    kJobCreate,
    kJobFree,
    kJobStart,
    kJobPrint,
    kJobWaitFor,
    kInitDevModeProperty,
    kShowDevModeProperty,
    kSaveDevModeProperty,
    kCount
  };
  static const ExportTable<Export>::Names kNames;

  ExportTable<Export> exports_;
};
