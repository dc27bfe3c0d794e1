#pragma once

#include "environment/TavexDllOf.h"

enum class NemPdfmExport {
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

// The PDF tool component.
class NemPdfmDll : public TavexDllOf<NemPdfmExport> {
 public:
  bool Load(int mode, const wchar_t* directory, const wchar_t* filename) override;
  void GetName(CEString& name) const override { name = "NEM pdf toolbox"; }
  const PropertyTableRow* GetPropertyTable() const override { return nullptr; }
  void GetShortName(CEString& name) const override { name = "Pdftoolbox"; }

  // Put `first` and `second` over each other, or one behind the other, into the file `target`.
  int Merge(const char* first, const char* second, const char* target);
  int Join(const char* first, const char* second, const char* target);

 private:
  static const ExportTable<NemPdfmExport>::Names kNames;
};
