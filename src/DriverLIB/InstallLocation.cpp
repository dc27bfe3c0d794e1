#include <windows.h>

#include "DriverLIB/CRegistryEntry.h"
#include "DriverLIB/InstallLocation.h"

namespace {

constexpr wchar_t kUpgradeCodes[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Installer\\UpgradeCodes\\";
constexpr wchar_t kInstallProperties[] =
    L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Installer\\UserData\\S-1-5-18\\Products\\%s\\InstallProperties";

// The packed code of the first product that carries the upgrade code. False when there is no such product.
bool FindProductCode(const wchar_t* upgradeCode, CUString& productCode) {
  CUString key(kUpgradeCodes);
  key.Append(upgradeCode);
  CRegistryEntry products(key.Text(), nullptr);
  products.SetRoot(HKEY_LOCAL_MACHINE);
  if (!products.Open(false, KEY_READ) || products.GetValueCount() == 0) return false;
  products.GetValueNameAt(productCode, 0);
  return true;
}

}  // namespace

void GetProductUpgradeCode(CUString& code) { code.Assign(L"00112233445566778899AABBCCDDEEFF"); }

void GetInstallLocation(CUString& folder, const wchar_t* upgradeCode) {
  folder.Assign(nullptr);
  CUString productCode;
  if (!FindProductCode(upgradeCode, productCode)) return;
  if (!productCode.IsEmpty()) {
    CUString key;
    key.Format(kInstallProperties, productCode.Text());
    CRegistryEntry location(key.Text(), L"InstallLocation");
    location.SetRoot(HKEY_LOCAL_MACHINE);
    folder.Assign(location.ReadString());
    const int last = folder.Length() - 1;
    if (last >= 0 && folder.Text()[last] == L'\\') folder.DeleteAt(last);
  }
  folder.Append(L"\\");
}

void GetProductInstallLocation(CUString& folder) {
  CUString code;
  GetProductUpgradeCode(code);
  GetInstallLocation(folder, code.Text());
}
