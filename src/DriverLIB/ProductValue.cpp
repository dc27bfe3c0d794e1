#include <windows.h>

#include "DriverLIB/CRegistryEntry.h"
#include "DriverLIB/ProductValue.h"

CUString ReadProductText(const wchar_t* key, const wchar_t* value) {
  CRegistryEntry entry(key, value);
  CUString text(entry.SetRoot(HKEY_LOCAL_MACHINE).ReadString());
  if (text.IsEmpty()) text.Assign(entry.SetRoot(HKEY_CURRENT_USER).ReadString());
  return text;
}
