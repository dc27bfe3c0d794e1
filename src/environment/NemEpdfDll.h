#pragma once

#include "environment/TavexDll.h"

// The component for enhanced PDF.
class NemEpdfDll : public TavexDll {
 public:
  bool Load(int mode, const wchar_t* directory, const wchar_t* filename) override;
  void GetName(CEString& name) const override { name = "NEM pdf toolbox"; }

  int SetProperty(const char* name, const char* value) override;
  int GetProperty(const char* name, char* buffer, int size) override;
  int GetLastError(uint32_t* code) override;
  int GetLastErrorText(char* buffer, int size) override;
  int GetErrorText(uint32_t code, char* buffer, int size) override;
  const PropertyTableRow* GetPropertyTable() const override { return nullptr; }
  void GetShortName(CEString& name) const override { name = "Epdf"; }
  int GetVersion(uint32_t* version) const override;

  int IsEPdf(const char* filename);
  int IsEncryptedPdf(const char* filename);
  int IsPasswordValid(const char* filename, const char* password);
  // Take something out of the enhanced PDF `filename` and write it to the file `target`.
  int GetEPdf(const char* filename, const char* password, const char* target);
  int GetEmbeddedFile(const char* filename, const char* password, const char* target);
  int GetEPdfInfo(const char* filename, const char* password, char* buffer, int size);
  int GetEPdfSettings(const char* filename, const char* password, char* buffer, int size);

 private:
  enum class Export {
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
  static const ExportTable<Export>::Names kNames;

  ExportTable<Export> exports_;
};
