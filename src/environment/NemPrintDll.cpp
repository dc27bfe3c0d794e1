#include "environment/NemPrintDll.h"

namespace {

enum class When { kAlways, kMode2, kOtherMode, kOtherModeNotMinor0, kNotMinor0 };

}  // namespace

struct NemPrintDll::LookUp {
  const wchar_t* name;
  Export function;
  When when;
};

// In this order, behind the version, which the conditions ask for.
constexpr NemPrintDll::LookUp NemPrintDll::kLookUps[] = {
    {L"NemPrLoad2", Export::kLoad, When::kMode2},
    {L"NemPrSave2", Export::kSave, When::kMode2},
    {L"NemPrPrint2", Export::kPrint, When::kMode2},
    {L"NemPrLoad", Export::kLoad, When::kOtherModeNotMinor0},
    {L"NemPrSave", Export::kSave, When::kOtherModeNotMinor0},
    {L"NemPrPrint", Export::kPrint, When::kOtherMode},
    {L"NemPrShowPrintDialog", Export::kShowPrintDialog, When::kAlways},
    {L"NemPrShowPrintSetupDialog", Export::kShowPrintSetupDialog, When::kNotMinor0},
    {L"NemPrSetProperty", Export::kSetProperty, When::kAlways},
    {L"NemPrGetProperty", Export::kGetProperty, When::kAlways},
    {L"NemPrGetLastError", Export::kGetLastError, When::kAlways},
    {L"NemPrGetLastErrorText", Export::kGetLastErrorText, When::kAlways},
    {L"NemPrGetErrorText", Export::kGetErrorText, When::kAlways},
    {L"NemMailSend", Export::kMailSend, When::kNotMinor0},
};

bool NemPrintDll::Applies(const LookUp& lookUp, int mode) const {
  const bool isMinor0 = (version >> 16 & 0xFF) == 0;
  switch (lookUp.when) {
    case When::kMode2:
      return mode == kSecondInterface;
    case When::kOtherMode:
      return mode != kSecondInterface;
    case When::kOtherModeNotMinor0:
      return mode != kSecondInterface && !isMinor0;
    case When::kNotMinor0:
      return !isMinor0;
    case When::kAlways:
      break;
  }
  return true;
}

// The usual file has the name of the 32-bit component; on 64 bits the caller names the file.
bool NemPrintDll::Load(int mode, const wchar_t* directory, const wchar_t* filename) {
  if (IsLoaded()) return true;
  if (!LoadFile(directory, filename, L"NemPrt32.dll") || !GetProc(L"NemPrGetVersion", exports_[Export::kGetVersion]))
    return false;
  NemPrintDll::GetVersion(&version);
  for (const LookUp& lookUp : kLookUps)
    if (Applies(lookUp, mode) && !GetProc(lookUp.name, exports_[lookUp.function])) return false;
  return true;
}

void NemPrintDll::ForgetExports() {
  exports_ = {};
  version = 0;
}

int NemPrintDll::SetProperty(const char* name, const char* value) {
  return Call(exports_[Export::kSetProperty], name, value);
}

int NemPrintDll::GetProperty(const char* name, char* buffer, int size) {
  return Call(exports_[Export::kGetProperty], name, buffer, size);
}

int NemPrintDll::GetLastError(uint32_t* code) { return Call(exports_[Export::kGetLastError], code); }

int NemPrintDll::GetLastErrorText(char* buffer, int size) {
  return Call(exports_[Export::kGetLastErrorText], buffer, size);
}

int NemPrintDll::GetErrorText(uint32_t code, char* buffer, int size) {
  return Call(exports_[Export::kGetErrorText], code, buffer, size);
}

int NemPrintDll::GetVersion(uint32_t* value) const { return Call(exports_[Export::kGetVersion], value); }

int NemPrintDll::LoadSettings(const char* filename) { return Call(exports_[Export::kLoad], filename); }

int NemPrintDll::SaveSettings(const char* filename) { return Call(exports_[Export::kSave], filename); }

int NemPrintDll::Print(const char* filename) { return Call(exports_[Export::kPrint], filename); }

int NemPrintDll::ShowPrintDialog(HWND owner) { return Call(exports_[Export::kShowPrintDialog], owner); }

int NemPrintDll::ShowPrintSetupDialog(HWND owner) { return Call(exports_[Export::kShowPrintSetupDialog], owner); }

int NemPrintDll::MailSend(const char* filename) { return Call(exports_[Export::kMailSend], filename); }
