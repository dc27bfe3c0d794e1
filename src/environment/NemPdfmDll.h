#pragma once

#include "environment/TavexDll.h"

// The PDF tool component.
class NemPdfmDll : public TavexDll {
 public:
  bool Load(int mode, const wchar_t* directory, const wchar_t* filename) override;
  void GetName(CEString& name) const override { name = "NEM pdf toolbox"; }

  int SetProperty(const char* name, const char* value) override;
  int GetProperty(const char* name, char* buffer, int size) override;
  int GetLastError(uint32_t* code) override;
  int GetLastErrorText(char* buffer, int size) override;
  int GetErrorText(uint32_t code, char* buffer, int size) override;
  const PropertyTableRow* GetPropertyTable() const override { return nullptr; }
  void GetShortName(CEString& name) const override { name = "Pdftoolbox"; }
  int GetVersion(uint32_t* version) const override;

  // Put `first` and `second` over each other, or one behind the other, into the file `target`.
  int Merge(const char* first, const char* second, const char* target);
  int Join(const char* first, const char* second, const char* target);

 private:
  enum class Export {
    kGetErrorText,
    kGetVersion,
    kSetProperty,
    kGetProperty,
    kGetLastError,
    kGetLastErrorText,
    kMerge,
    kJoin,
    kCount
  };
  static const ExportTable<Export>::Names kNames;

  ExportTable<Export> exports_;
};
