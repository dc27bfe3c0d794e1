#pragma once

#include "environment/TavexDllOf.h"

enum class NemPrintExport {
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

// The print component. One of minor version 0 has neither loading and saving nor the set-up dialog nor mail: those
// operations return 0 then.
class NemPrintDll : public TavexDllOf<NemPrintExport> {
 public:
  static constexpr int kSecondInterface = 2;  // the mode that binds the second form of loading, saving and printing

  bool Load(int mode, const wchar_t* directory, const wchar_t* filename) override;
  void GetName(CEString& name) const override { name = "NEM print"; }
  const PropertyTableRow* GetPropertyTable() const override { return kPrintPropertyTable; }
  void GetShortName(CEString& name) const override { name = "Print"; }

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
  struct LookUp;
  static const LookUp kLookUps[];

  bool Applies(const LookUp& lookUp, int mode) const;
};
