#pragma once

#include "environment/TavexDllOf.h"

enum class NemEpdfExport {
  kGetErrorText,
  kGetVersion,
  kSetProperty,
  kGetProperty,
  kGetLastError,
  kGetLastErrorText,
  kIsEPdf,
  kIsEncryptedPdf,
  kIsPasswordValid,
  kGetEPdf,
  kGetEmbeddedFile,
  kGetEPdfInfo,
  kGetEPdfSettings,
  kCount
};

// The component for enhanced PDF.
class NemEpdfDll : public TavexDllOf<NemEpdfExport> {
 public:
  bool Load(int mode, const wchar_t* directory, const wchar_t* filename) override;
  void GetName(CEString& name) const override { name = "NEM pdf toolbox"; }
  const PropertyTableRow* GetPropertyTable() const override { return nullptr; }
  void GetShortName(CEString& name) const override { name = "Epdf"; }

  int IsEPdf(const char* filename);
  int IsEncryptedPdf(const char* filename);
  int IsPasswordValid(const char* filename, const char* password);
  // Take something out of the enhanced PDF `filename` and write it to the file `target`.
  int GetEPdf(const char* filename, const char* password, const char* target);
  int GetEmbeddedFile(const char* filename, const char* password, const char* target);
  int GetEPdfInfo(const char* filename, const char* password, char* buffer, int size);
  int GetEPdfSettings(const char* filename, const char* password, char* buffer, int size);

 private:
  static const ExportTable<NemEpdfExport>::Names kNames;
};
