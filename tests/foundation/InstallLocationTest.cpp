#include <windows.h>

#include "DriverLIB/InstallLocation.h"

#include <gtest/gtest.h>

#include <string>

#include "support/RegistryValue.h"

namespace {

constexpr wchar_t kUpgradeCodes[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Installer\\UpgradeCodes\\";
constexpr wchar_t kProducts[] =
    L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Installer\\UserData\\S-1-5-18\\Products\\";
constexpr wchar_t kUpgradeCode[] = L"00112233445566778899AABBCCDDEEFF";
constexpr wchar_t kProduct[] = L"FFEEDDCCBBAA99887766554433221100";

class InstallLocationTest : public testing::Test {
 protected:
  const std::wstring upgradeKey = std::wstring(kUpgradeCodes) + kUpgradeCode;
  const std::wstring productKey = std::wstring(kProducts) + kProduct;
  RegistryTree upgrade{HKEY_LOCAL_MACHINE, upgradeKey.c_str()};
  RegistryTree product{HKEY_LOCAL_MACHINE, productKey.c_str()};

  void AddProduct(const wchar_t* name = kProduct) {
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, upgradeKey.c_str(), name, REG_SZ, L"", 2);
  }
  void SetFolder(const std::wstring& folder) {
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, (productKey + L"\\InstallProperties").c_str(), L"InstallLocation", REG_SZ,
                    folder.c_str(), static_cast<DWORD>((folder.size() + 1) * sizeof(wchar_t)));
  }
  static std::wstring Folder() {
    CUString folder(L"old");
    GetProductInstallLocation(folder);
    return folder.Text();
  }
};

}  // namespace

TEST_F(InstallLocationTest, TheProductHasAnUpgradeCode) {
  CUString code;
  GetProductUpgradeCode(code);
  EXPECT_STREQ(kUpgradeCode, code.Text());
}

TEST_F(InstallLocationTest, AnUnknownProductHasNoFolder) { EXPECT_EQ(L"", Folder()); }

TEST_F(InstallLocationTest, AnUpgradeCodeWithoutProductsHasNoFolder) {
  AddProduct();
  RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, upgradeKey.c_str(), kProduct);
  EXPECT_EQ(L"", Folder());
}

TEST_F(InstallLocationTest, AFolderEndsInOneSeparator) {
  AddProduct();
  SetFolder(L"C:\\Program Files\\NEM");
  EXPECT_EQ(L"C:\\Program Files\\NEM\\", Folder());
  SetFolder(L"C:\\Program Files\\NEM\\");
  EXPECT_EQ(L"C:\\Program Files\\NEM\\", Folder());
}

TEST_F(InstallLocationTest, OnlyOneTrailingSeparatorIsDropped) {
  AddProduct();
  SetFolder(L"C:\\x\\\\");
  EXPECT_EQ(L"C:\\x\\\\", Folder());
}

TEST_F(InstallLocationTest, AFolderThatIsNotRecordedIsJustTheSeparator) {
  AddProduct();
  EXPECT_EQ(L"\\", Folder());
  SetFolder(L"");
  EXPECT_EQ(L"\\", Folder());
}

TEST_F(InstallLocationTest, AProductWithoutACodeIsJustTheSeparator) {
  AddProduct(L"");
  EXPECT_EQ(L"\\", Folder());
}

TEST_F(InstallLocationTest, OtherUpgradeCodesAreFoundLikewise) {
  AddProduct();
  SetFolder(L"D:\\y");
  CUString folder;
  GetInstallLocation(folder, kUpgradeCode);
  EXPECT_STREQ(L"D:\\y\\", folder.Text());
  GetInstallLocation(folder, L"FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF");
  EXPECT_STREQ(L"", folder.Text());
}
