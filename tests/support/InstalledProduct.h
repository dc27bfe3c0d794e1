// The product as the platform's installer has recorded it, gone afterwards.
#pragma once

#include <windows.h>

#include <string>

#include "support/RegistryValue.h"

class InstalledProduct {
 public:
  InstalledProduct() = default;
  explicit InstalledProduct(const std::wstring& folder) { Install(folder); }

  // Into a folder, which is written down as it comes.
  void Install(const std::wstring& folder) {
    const auto bytes = static_cast<DWORD>((folder.size() + 1) * sizeof(wchar_t));
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, kUpgrade, L"FFEEDDCCBBAA99887766554433221100", REG_SZ, L"", sizeof(wchar_t));
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, (std::wstring(kProduct) + L"\\InstallProperties").c_str(), L"InstallLocation",
                    REG_SZ, folder.c_str(), bytes);
  }

 private:
  static constexpr wchar_t kUpgrade[] =
      L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Installer\\UpgradeCodes\\00112233445566778899AABBCCDDEEFF";
  static constexpr wchar_t kProduct[] =
      L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Installer\\UserData\\S-1-5-18\\Products\\"
      L"FFEEDDCCBBAA99887766554433221100";

  RegistryTree upgrade_{HKEY_LOCAL_MACHINE, kUpgrade};
  RegistryTree product_{HKEY_LOCAL_MACHINE, kProduct};
};
