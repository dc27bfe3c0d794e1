#include <windows.h>

#include "DriverLIB/TraceSettings.h"

#include "DriverLIB/ATraceFile.h"
#include "DriverLIB/CRegistryEntry.h"
#include "DriverLIB/Identity.h"
#include "DriverLIB/ProductValue.h"

namespace {

constexpr wchar_t kTraceFilename[] = L"TraceFilename";
constexpr wchar_t kDefaultFile[] = L"\\NEMpdfVonder.log";

}  // namespace

CUString GetTraceFilename(const wchar_t* key) { return ReadProductText(key, kTraceFilename); }

CUString MakeAddInTraceName() {
  const CUString general = GetTraceFilename(kProductKey);
  return general.IsEmpty() ? general : InsertInTraceName(general, L"-AddInUI");
}

bool SetTraceEnabled(bool enable, CUString* errorPath, const wchar_t* folder) {
  const CUString name = CUString(folder ? folder : kDefaultTraceFolder) + kDefaultFile;
  CRegistryEntry entry(kProductKey, kTraceFilename);
  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
    entry.SetRoot(root);
    const bool changed = enable ? entry.WriteString(name.Text()) : entry.DeleteValue();
    if (!changed && errorPath) entry.GetFullPathText(*errorPath);
  }
  return GetTraceFilename(kProductKey).IsEmpty() != enable;
}
