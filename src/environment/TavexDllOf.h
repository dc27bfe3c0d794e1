#pragma once

#include "environment/TavexDll.h"

// A component of the office module that exports properties, errors and its version. `Export` is the enumeration of its
// functions, which names those six alike in all components.
template <class Export>
class TavexDllOf : public TavexDll {
 public:
  int SetProperty(const char* name, const char* value) override {
    return Call(exports_[Export::kSetProperty], name, value);
  }
  int GetProperty(const char* name, char* buffer, int size) override {
    return Call(exports_[Export::kGetProperty], name, buffer, size);
  }
  int GetLastError(uint32_t* code) override { return Call(exports_[Export::kGetLastError], code); }
  int GetLastErrorText(char* buffer, int size) override {
    return Call(exports_[Export::kGetLastErrorText], buffer, size);
  }
  int GetErrorText(uint32_t code, char* buffer, int size) override {
    return Call(exports_[Export::kGetErrorText], code, buffer, size);
  }
  int GetVersion(uint32_t* version) const override { return Call(exports_[Export::kGetVersion], version); }

 protected:
  ExportTable<Export> exports_;
};
