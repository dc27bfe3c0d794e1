#include "environment/NemPrintDll.h"

namespace {

enum class When { kAlways, kMode2, kOtherMode, kOtherModeNotMinor0, kNotMinor0 };

}  // namespace

struct NemPrintDll::LookUp {
  const wchar_t* name;
  NemPrintExport function;
  When when;
};

// In this order, behind the version, which the conditions ask for.
constexpr NemPrintDll::LookUp NemPrintDll::kLookUps[] = {
    {L"NemPrLoad2", NemPrintExport::kLoad, When::kMode2},
    {L"NemPrSave2", NemPrintExport::kSave, When::kMode2},
    {L"NemPrPrint2", NemPrintExport::kPrint, When::kMode2},
    {L"NemPrLoad", NemPrintExport::kLoad, When::kOtherModeNotMinor0},
    {L"NemPrSave", NemPrintExport::kSave, When::kOtherModeNotMinor0},
    {L"NemPrPrint", NemPrintExport::kPrint, When::kOtherMode},
    {L"NemPrShowPrintDialog", NemPrintExport::kShowPrintDialog, When::kAlways},
    {L"NemPrShowPrintSetupDialog", NemPrintExport::kShowPrintSetupDialog, When::kNotMinor0},
    {L"NemPrSetProperty", NemPrintExport::kSetProperty, When::kAlways},
    {L"NemPrGetProperty", NemPrintExport::kGetProperty, When::kAlways},
    {L"NemPrGetLastError", NemPrintExport::kGetLastError, When::kAlways},
    {L"NemPrGetLastErrorText", NemPrintExport::kGetLastErrorText, When::kAlways},
    {L"NemPrGetErrorText", NemPrintExport::kGetErrorText, When::kAlways},
    {L"NemMailSend", NemPrintExport::kMailSend, When::kNotMinor0},
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
  if (!LoadFile(directory, filename, L"NemPrt32.dll") ||
      !GetProc(L"NemPrGetVersion", exports_[NemPrintExport::kGetVersion]))
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

int NemPrintDll::LoadSettings(const char* filename) { return Call(exports_[NemPrintExport::kLoad], filename); }

int NemPrintDll::SaveSettings(const char* filename) { return Call(exports_[NemPrintExport::kSave], filename); }

int NemPrintDll::Print(const char* filename) { return Call(exports_[NemPrintExport::kPrint], filename); }

int NemPrintDll::ShowPrintDialog(HWND owner) { return Call(exports_[NemPrintExport::kShowPrintDialog], owner); }

int NemPrintDll::ShowPrintSetupDialog(HWND owner) {
  return Call(exports_[NemPrintExport::kShowPrintSetupDialog], owner);
}

int NemPrintDll::MailSend(const char* filename) { return Call(exports_[NemPrintExport::kMailSend], filename); }
