#pragma once

#include "environment/TavexDll.h"

// The print component. One of minor version 0 has neither loading and saving nor the set-up dialog nor mail: those
// operations return 0 then.
class NemPrintDll : public TavexDll {
 public:
  static constexpr int kSecondInterface = 2;  // the mode that binds the second form of loading, saving and printing

  bool Load(int mode, const wchar_t* directory, const wchar_t* filename) override;
  void GetName(CEString& name) const override { name = "NEM print"; }

  int SetProperty(const char* name, const char* value) override;
  int GetProperty(const char* name, char* buffer, int size) override;
  int GetLastError(uint32_t* code) override;
  int GetLastErrorText(char* buffer, int size) override;
  int GetErrorText(uint32_t code, char* buffer, int size) override;
  const PropertyTableRow* GetPropertyTable() const override { return kPrintPropertyTable; }
  void GetShortName(CEString& name) const override { name = "Print"; }
  int GetVersion(uint32_t* value) const override;

  int LoadSettings(const char* filename);
  int SaveSettings(const char* filename);
  int Print(const char* filename);
  int ShowPrintDialog(HWND owner);
  int ShowPrintSetupDialog(HWND owner);
  int MailSend(const char* filename);

  uint32_t version = 0;  // of the loaded component

 protected:
  void ForgetExports();

 private:
  enum class Export {
    kGetVersion,
    kLoad,
    kSave,
    kPrint,
    kShowPrintDialog,
    kShowPrintSetupDialog,
    kSetProperty,
    kGetProperty,
    kGetLastError,
    kGetLastErrorText,
    kGetErrorText,
    kMailSend,
    kCount
  };
  struct LookUp;
  static const LookUp kLookUps[];

  bool Applies(const LookUp& lookUp, int mode) const;

  ExportTable<Export> exports_;
};
