#include "environment/DefaultPaper.h"

#include "DriverLIB/CRegistryEntry.h"
#include "DriverLIB/Numbers.h"
#include "DriverLIB/Trace.h"
#include "environment/A4Country.h"

namespace {

constexpr wchar_t kKey[] = L"Control Panel\\International";
constexpr wchar_t kCountry[] = L"iCountry";
constexpr int kUnitedStates = 1;  // when the user's country is not known
constexpr DWORD kMaxBytes = 32;

int ReadCountry(HKEY key) {
  wchar_t text[kMaxBytes / sizeof(wchar_t) + 1] = {};  // terminated, though the stored value need not be
  DWORD size = kMaxBytes, type = REG_NONE;
  if (::RegQueryValueExW(key, kCountry, nullptr, &type, reinterpret_cast<BYTE*>(text), &size) == ERROR_SUCCESS) {
    TraceInfo("IsA4PaperDefault: Country = %s", text);
    if (type == REG_SZ) return ParseDecimal(text);
  }
  TraceInfo("IsA4PaperDefault: RegQueryValue '%ls' FAILED", kCountry);
  return kUnitedStates;
}

}  // namespace

bool IsA4PaperDefault() {
  CRegistryEntry international(kKey, kCountry);
  if (!international.Open(false)) {
    TraceInfo("IsA4PaperDefault: RegOpenKey '%ls' FAILED", kKey);
    return false;
  }
  const bool isA4 = IsA4Country(ReadCountry(international.OpenedKey()));
  TraceInfo(isA4 ? "IsA4PaperDefault = Yes" : "IsA4PaperDefault = No, Use 'LETTER'");
  return isA4;
}

const PaperRow& GetDefaultPaperRow() { return A4OrLetter(IsA4PaperDefault()); }
