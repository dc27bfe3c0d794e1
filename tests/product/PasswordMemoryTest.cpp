// A password that was given to the library leaves no copy in the memory of the process: not when it is changed, not
// when the set is put back, not when the dialog object is freed, and not in what a sheet has shown of it. The test
// looks at all memory that can be read.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "driver/SheetDriver.h"
#include "NemPdfUI.h"
#include "support/HostDialog.h"
#include "support/TestPrinter.h"

namespace {

// The password stands nowhere but where the test writes it: it is kept with every bit turned.
constexpr unsigned char kTurned[] = {
    0xFF & ~'c', 0xFF & ~'0', 0xFF & ~'r', 0xFF & ~'r', 0xFF & ~'e', 0xFF & ~'c', 0xFF & ~'t', 0xFF & ~'-',
    0xFF & ~'h', 0xFF & ~'0', 0xFF & ~'r', 0xFF & ~'s', 0xFF & ~'e', 0xFF & ~'-', 0xFF & ~'b', 0xFF & ~'4',
    0xFF & ~'t', 0xFF & ~'t', 0xFF & ~'e', 0xFF & ~'r', 0xFF & ~'y', 0xFF & ~'-', 0xFF & ~'s', 0xFF & ~'t',
};
constexpr size_t kLength = sizeof kTurned;

// A copy of the password that is gone at the end of its scope.
template <class Character>
class Password {
 public:
  Password() {
    for (size_t i = 0; i < kLength; ++i) text_[i] = static_cast<unsigned char>(~kTurned[i]);
    text_[kLength] = 0;
  }
  ~Password() { SecureZeroMemory(text_, sizeof text_); }
  Password(const Password&) = delete;
  Password& operator=(const Password&) = delete;
  const Character* Text() const { return text_; }

 private:
  Character text_[kLength + 1];
};

// A tail of the password at `bytes`, in characters of `width` bytes. Heaps write into the first bytes of what they
// take back, so the head may be gone while the rest can still be read.
bool StandsHere(const volatile unsigned char* bytes, size_t width) {
  constexpr size_t kHead = 8;
  for (size_t i = kHead; i < kLength; ++i) {
    const volatile unsigned char* character = bytes + (i - kHead) * width;
    if (*character != static_cast<unsigned char>(~kTurned[i])) return false;
    if (width == 2 && character[1] != 0) return false;
  }
  return true;
}

bool IsReadable(const MEMORY_BASIC_INFORMATION& region) {
  constexpr DWORD kWritable = PAGE_READWRITE | PAGE_EXECUTE_READWRITE;
  return region.State == MEM_COMMIT && (region.Protect & kWritable) && !(region.Protect & PAGE_GUARD);
}

// Under Wine the registers that a thread had at its last system call lie in memory that can be read, and the vector
// registers still hold what was copied through them last.
void ClearVectorRegisters() {
  asm volatile(
      "pxor %%xmm0, %%xmm0\n\tpxor %%xmm1, %%xmm1\n\tpxor %%xmm2, %%xmm2\n\t"
      "pxor %%xmm3, %%xmm3\n\tpxor %%xmm4, %%xmm4\n\tpxor %%xmm5, %%xmm5" ::
          : "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5");
}

int CountCopies() {
  ClearVectorRegisters();
  int copies = 0;
  MEMORY_BASIC_INFORMATION region;
  for (const char* address = nullptr; VirtualQuery(address, &region, sizeof region);
       address = static_cast<const char*>(region.BaseAddress) + region.RegionSize) {
    if (!IsReadable(region)) continue;
    const auto* begin = static_cast<const volatile unsigned char*>(region.BaseAddress);
    const auto* end = begin + region.RegionSize - kLength * 2;
    for (const auto* byte = begin; byte < end; ++byte)
      if (StandsHere(byte, 1) || StandsHere(byte, 2)) ++copies;
  }
  return copies;
}

struct Form {
  const char* narrowName;
  const wchar_t* wideName;
};

class PasswordMemory : public testing::TestWithParam<Form> {
 protected:
  PasswordMemory() { NemPdfUICreateDialog(&handle_); }
  ~PasswordMemory() override { NemPdfUIFreeDialog(&handle_); }

  void SetInBothSets() {
    {
      const Password<char> narrow;
      EXPECT_EQ(1, NemPdfUISetPropertyA(handle_, 0, GetParam().narrowName, narrow.Text()));
    }
    const Password<wchar_t> wide;
    EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, 1, GetParam().wideName, wide.Text()));
  }

  NemPdfUIHandle handle_ = nullptr;
};

INSTANTIATE_TEST_SUITE_P(Properties, PasswordMemory,
                         testing::Values(Form{"EncryptUserPassword", L"EncryptUserPassword"},
                                         Form{"EncryptOwnerPassword", L"EncryptOwnerPassword"},
                                         Form{"EncryptEnhancedPdfPassword", L"EncryptEnhancedPdfPassword"},
                                         Form{"StationeryInfos", L"StationeryInfos"}),
                         [](const auto& info) { return info.param.narrowName; });

TEST_P(PasswordMemory, HoldsOneCopyForEachSet) {
  EXPECT_EQ(0, CountCopies());
  SetInBothSets();
  EXPECT_EQ(2, CountCopies());  // so the search does find them
}

TEST_P(PasswordMemory, IsCleanWhenThePasswordsHaveChanged) {
  SetInBothSets();
  EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, 0, GetParam().wideName, L"x"));
  EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, 1, GetParam().wideName, nullptr));
  EXPECT_EQ(0, CountCopies());
}

TEST_P(PasswordMemory, IsCleanWhenTheSetsHaveBeenPutBack) {
  SetInBothSets();
  EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, 0, nullptr, nullptr));
  EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, 1, nullptr, nullptr));
  EXPECT_EQ(0, CountCopies());
}

TEST_P(PasswordMemory, IsCleanWhenTheObjectIsFreed) {
  SetInBothSets();
  EXPECT_EQ(1, NemPdfUIFreeDialog(&handle_));
  EXPECT_EQ(0, CountCopies());
}

// --- Sheets --------------------------------------------------------------------------------------------------------

constexpr int kGraphicPage = 108, kSecurityPage = 117;
constexpr int kOwnerSwitch = 1022, kUserSwitch = 1019, kOwnerPassword = 1003, kUserPassword = 1005;
constexpr const wchar_t* kPasswords[] = {L"EncryptOwnerPassword", L"EncryptUserPassword",
                                         L"EncryptEnhancedPdfPassword"};

// Key by key: no text of the test holds the password.
void TypePassword(HWND dialog, int edit) {
  for (const unsigned char turned : kTurned)
    SendDlgItemMessageW(dialog, edit, WM_CHAR, static_cast<unsigned char>(~turned), 0);
}

void SetAllPasswords(const HostDialog& host) {
  const Password<wchar_t> password;
  for (const int set : {0, 1})
    for (const wchar_t* name : kPasswords)
      EXPECT_EQ(1, NemPdfUISetPropertyW(host.Handle(), set, name, password.Text()));
}

// Shows the page on both tabs, where there are more copies than this, and ends the sheet with this button.
void ShowSecurityPage(HostDialog& host, int button, int copies) {
  host.Set(NEMPDFUI_DOCUMENT, L"Used", 1);
  RunSheet([&] { return host.DoModal(); },
           [=](Sheet& sheet) -> SheetTask {
             for (const int tab : {0, 1}) {
               sheet.SelectTab(tab);
               co_await sheet.Settled();
               CO_ASSERT_TRUE(sheet.SelectPage(kSecurityPage));
               co_await sheet.Settled();
               EXPECT_LT(copies, CountCopies()) << "the page holds some, too";
             }
             sheet.Press(button);
           });
}

void ShowPasswords(HostDialog& host, int button) {
  for (const int set : {0, 1}) {
    host.Set(set, L"EncryptOwnerPasswordEnabled", 1);
    host.Set(set, L"EncryptUserPasswordEnabled", 1);
    host.Set(set, L"UseEncryptEnhancedPdfPassword", 2);
  }
  SetAllPasswords(host);
  ShowSecurityPage(host, button, 6);
}

// Writes a file in which the administrator fixes both passwords.
void FixPasswords(const DriverFile& file) {
  const Password<char> password;
  char bytes[256];
  const int length =
      std::snprintf(bytes, sizeof bytes, "EncryptOwnerPassword_Override = %s\r\nEncryptUserPassword_Override = %s\r\n",
                    password.Text(), password.Text());
  file.Put({bytes, static_cast<size_t>(length)});
  SecureZeroMemory(bytes, sizeof bytes);
}

TEST(PasswordMemoryOfSheets, APageLeavesNoneBehind) {
  for (const int button : {IDCANCEL, IDOK}) {
    {
      HostDialog host;
      ShowPasswords(host, button);
      EXPECT_EQ(6, CountCopies()) << "those of the host's object alone";
    }
    EXPECT_EQ(0, CountCopies());
  }
}

TEST(PasswordMemoryOfSheets, TheAdministratorsLeaveNoneBehind) {
  const TestDriver driver;
  const TestPrinter printer(L"Invoices");
  const DriverFile file(driver, L"NEMpdf.conf", "");
  FixPasswords(file);
  ASSERT_EQ(0, CountCopies());
  for (const int button : {IDCANCEL, IDOK}) {
    HostDialog host;
    host.Set(NEMPDFUI_GENERAL, L"PrinterName", printer.Name().c_str());
    ShowSecurityPage(host, button, 2);  // those of the sheet's record
    EXPECT_EQ(0, CountCopies());
  }
}

// One that is typed, confirmed and stored.
TEST(PasswordMemoryOfSheets, AConfirmationLeavesNoneBehind) {
  {
    HostDialog host;
    host.Set(0, L"EncryptPasswordsConfirmed", 1);
    const SheetResult result = RunSheet([&] { return host.DoModal(); },
                                        [](Sheet& sheet) -> SheetTask {
                                          CO_ASSERT_TRUE(sheet.SelectPage(kSecurityPage));
                                          co_await sheet.Settled();
                                          sheet.Control(kOwnerSwitch).Click();
                                          sheet.Control(kUserSwitch).Click();
                                          for (const int edit : {kOwnerPassword, kUserPassword})
                                            TypePassword(sheet.Page(), edit);
                                          sheet.ExpectDialog([](HWND dialog) {
                                            for (const int edit : {kOwnerPassword, kUserPassword})
                                              TypePassword(dialog, edit);
                                            SendMessageW(dialog, WM_COMMAND, IDOK, 0);
                                          });
                                          CO_ASSERT_TRUE(sheet.SelectPage(kGraphicPage));
                                          co_await sheet.Settled();
                                          sheet.PressOk();
                                        });
    EXPECT_EQ(1, result.value);
    EXPECT_EQ(2, CountCopies()) << "those of the host's object alone";
  }
  EXPECT_EQ(0, CountCopies());
}

}  // namespace
