#include <windows.h>
// behind windows.h
#include <sddl.h>

#include "DriverLIB/UserHive.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "driver/ImportPatch.h"
#include "DriverLIB/CRegistryEntry.h"
#include "support/FailingNew.h"
#include "support/RegistryValue.h"
#include "support/TracedThread.h"

namespace {

constexpr char kSystem[] = "advapi32.dll";
constexpr wchar_t kOtherUser[] = L"S-1-5-21-1111111111-222222222-333333333-1001";
constexpr wchar_t kKey[] = L"Software\\NemPdfRegistryTest";
using Messages = std::vector<std::wstring>;

// The user that the thread's token names while the import is replaced.
const wchar_t* tokenUser = kOtherUser;
DWORD sizeError = ERROR_INSUFFICIENT_BUFFER;  // of the call that asks for the size
bool refuseUser = false;
bool breakSid = false;
int tokenCalls = 0;

BOOL WINAPI OtherTokenInformation(HANDLE, TOKEN_INFORMATION_CLASS, void* buffer, DWORD size, DWORD* needed) {
  ++tokenCalls;
  PSID sid = nullptr;
  ConvertStringSidToSidW(tokenUser, &sid);
  const DWORD length = GetLengthSid(sid);
  *needed = sizeof(TOKEN_USER) + length;
  const bool fits = size >= *needed;
  if (fits) {
    auto* user = static_cast<TOKEN_USER*>(buffer);
    user->User.Attributes = 0;
    user->User.Sid = user + 1;
    CopySid(length, user->User.Sid, sid);
    if (breakSid) static_cast<BYTE*>(user->User.Sid)[0] = 77;
  }
  LocalFree(sid);
  SetLastError(fits ? ERROR_ACCESS_DENIED : sizeError);
  return fits ? !refuseUser : sizeError == ERROR_SUCCESS;
}

// The tokens are real. All of Wine's name one user, so a thread's own is made to name another.
BOOL WINAPI OtherUserOfThreads(HANDLE token, TOKEN_INFORMATION_CLASS kind, void* buffer, DWORD size, DWORD* needed) {
  static auto* const real = RealFunction(kSystem, "GetTokenInformation", GetTokenInformation);
  TOKEN_TYPE type = TokenPrimary;
  DWORD length = 0;
  real(token, TokenType, &type, sizeof type, &length);
  return (type == TokenImpersonation ? OtherTokenInformation : real)(token, kind, buffer, size, needed);
}

BOOL WINAPI NoThreadToken(HANDLE, DWORD access, BOOL asSelf, HANDLE*) {
  EXPECT_EQ(static_cast<DWORD>(TOKEN_QUERY), access);
  EXPECT_TRUE(asSelf);
  ++tokenCalls;
  return FALSE;
}
BOOL WINAPI NoProcessToken(HANDLE, DWORD access, HANDLE*) {
  EXPECT_EQ(static_cast<DWORD>(TOKEN_QUERY), access);
  ++tokenCalls;
  return FALSE;
}

struct OpenedKey {
  HKEY root;
  std::wstring name;
  REGSAM access;
  bool operator==(const OpenedKey&) const = default;
};
std::vector<OpenedKey> opened;

LSTATUS WINAPI NoteOpen(HKEY root, const wchar_t* name, DWORD options, REGSAM access, HKEY* key) {
  static auto* const real = RealFunction(kSystem, "RegOpenKeyExW", RegOpenKeyExW);
  opened.push_back({root, name ? name : L"", access});
  return real(root, name, options, access, key);
}
LSTATUS WINAPI NoteCreate(HKEY root, const wchar_t* name, DWORD reserved, wchar_t* keyClass, DWORD options,
                          REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* disposition) {
  static auto* const real = RealFunction(kSystem, "RegCreateKeyExW", RegCreateKeyExW);
  EXPECT_EQ(static_cast<DWORD>(REG_OPTION_NON_VOLATILE), options) << "the next start of the system would not see it";
  opened.push_back({root, name, access});
  return real(root, name, reserved, keyClass, options, access, security, key, disposition);
}

class UserHiveTest : public testing::Test {
 protected:
  ~UserHiveTest() override {
    for (const char* function :
         {"GetTokenInformation", "OpenThreadToken", "OpenProcessToken", "RegOpenKeyExW", "RegCreateKeyExW"})
      RestoreImport(kSystem, function);
    RegDeleteTreeW(HKEY_USERS, kOtherUser);
    tokenUser = kOtherUser;
    sizeError = ERROR_INSUFFICIENT_BUFFER;
    refuseUser = breakSid = false;
    tokenCalls = 0;
    opened.clear();
  }

  template <typename Function>
  static void Patch(const char* name, Function* replacement) {
    ASSERT_GT(PatchImport(kSystem, name, reinterpret_cast<void*>(replacement)), 0) << name;
  }
  static void MakeOtherUser() {
    RegSetKeyValueW(HKEY_USERS, (std::wstring(kOtherUser) + L"\\" + kKey).c_str(), L"Value", REG_SZ, L"other", 12);
  }
  static std::wstring ReadValue() {
    CRegistryEntry entry(kKey, L"Value", L"default");
    return entry.ReadString();
  }
  static void MakeOwn() { RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"Value", REG_SZ, L"own", 8); }

  RegistryTree tree{HKEY_CURRENT_USER, kKey};
};

std::wstring TextOf(PSID sid, uint32_t size = 1000) {
  std::wstring text(size, L'#');
  return GetTextualSid(sid, text.data(), size) ? text.c_str() : L"failed";
}

std::wstring RoundTrip(const wchar_t* text) {
  PSID sid = nullptr;
  if (!ConvertStringSidToSidW(text, &sid)) return L"no such SID";
  const std::wstring result = TextOf(sid);
  LocalFree(sid);
  return result;
}

}  // namespace

TEST_F(UserHiveTest, AThreadSeesItsUsersValues) {
  MakeOwn();
  MakeOtherUser();
  EXPECT_EQ(L"own", ReadValue());
  Patch("GetTokenInformation", OtherTokenInformation);
  EXPECT_EQ(L"other", ReadValue());
  EXPECT_TRUE(CRegistryEntry(kKey, L"Written").WriteString(L"by the other"));
  RestoreImport(kSystem, "GetTokenInformation");
  EXPECT_EQ(L"own", ReadValue());
  EXPECT_EQ(nullptr, CRegistryEntry(kKey, L"Written").ReadString());
}

TEST_F(UserHiveTest, AThreadsOwnTokenGoesBeforeTheProcessToken) {
  MakeOwn();
  MakeOtherUser();
  Patch("GetTokenInformation", OtherUserOfThreads);
  EXPECT_EQ(L"own", ReadValue());
  ASSERT_TRUE(ImpersonateSelf(SecurityImpersonation));
  const std::wstring here = ReadValue();
  const bool written = CRegistryEntry(kKey, L"Written").WriteString(L"by the other");
  std::wstring elsewhere;
  std::thread([&] { elsewhere = ReadValue(); }).join();
  ASSERT_TRUE(RevertToSelf());
  EXPECT_EQ(L"other", here);
  EXPECT_TRUE(written);
  EXPECT_EQ(L"own", elsewhere) << "a thread without a token of its own";
  EXPECT_EQ(L"own", ReadValue());
  EXPECT_EQ(nullptr, CRegistryEntry(kKey, L"Written").ReadString());
}

TEST_F(UserHiveTest, UnderTheMachineNoTokenWorkHappens) {
  Patch("GetTokenInformation", OtherTokenInformation);
  Patch("OpenThreadToken", NoThreadToken);
  Patch("OpenProcessToken", NoProcessToken);
  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_USERS, HKEY_CLASSES_ROOT}) {
    CRegistryEntry entry(L"Software", L"NoSuchValue");
    entry.SetRoot(root).ReadString();
    entry.KeyExists();
    entry.GetValueCount();
  }
  EXPECT_EQ(0, tokenCalls);
}

TEST_F(UserHiveTest, KeysAreOpenedInThe64BitViewWithTheLeastAccess) {
  MakeOtherUser();
  Patch("GetTokenInformation", OtherTokenInformation);
  Patch("RegOpenKeyExW", NoteOpen);
  Patch("RegCreateKeyExW", NoteCreate);
  ReadValue();
  ASSERT_EQ(2u, opened.size());
  EXPECT_EQ((OpenedKey{HKEY_USERS, kOtherUser, 0x20119}), opened[0]);
  EXPECT_EQ(0x101u, opened[1].access);
  EXPECT_EQ(kKey, opened[1].name);
  EXPECT_NE(HKEY_CURRENT_USER, opened[1].root);

  opened.clear();
  CRegistryEntry(kKey, L"Value").WriteString(L"x");
  ASSERT_EQ(2u, opened.size());
  EXPECT_EQ((OpenedKey{HKEY_USERS, kOtherUser, 0x20106}), opened[0]);
  EXPECT_EQ(0x20106u, opened[1].access);

  opened.clear();
  CRegistryEntry(kKey, L"Value").Open(true, KEY_SET_VALUE);
  ASSERT_EQ(2u, opened.size());
  EXPECT_EQ((OpenedKey{HKEY_USERS, kOtherUser, 0x20106}), opened[0]);  // the tree has an access of its own
  EXPECT_EQ(0x102u, opened[1].access);

  opened.clear();
  CRegistryEntry machine(L"Software", L"x");
  machine.SetRoot(HKEY_LOCAL_MACHINE).Open(false, KEY_READ);
  EXPECT_EQ(std::vector<OpenedKey>({{HKEY_LOCAL_MACHINE, L"Software", 0x20119}}), opened);
}

TEST_F(UserHiveTest, WithoutATokenThePredefinedRootServes) {
  MakeOwn();
  TracedThread thread;
  Patch("OpenThreadToken", NoThreadToken);
  EXPECT_EQ(L"own", ReadValue());  // the process's token
  EXPECT_EQ(Messages(), thread.Lines());
  Patch("OpenProcessToken", NoProcessToken);
  EXPECT_EQ(L"own", ReadValue());
  EXPECT_EQ(Messages({L"CRegistryEntry::OpenRootKey: OpenThreadToken or OpenProcessToken failed"}), thread.Lines());
  EXPECT_EQ(1, thread.Error().trace->errorCount);
}

TEST_F(UserHiveTest, EveryFailureIsTracedAndLeavesThePredefinedRoot) {
  MakeOwn();
  TracedThread thread;
  Patch("GetTokenInformation", OtherTokenInformation);
  const auto expectLine = [&](const wchar_t* line) {
    EXPECT_EQ(L"own", ReadValue());
    EXPECT_EQ(Messages({line}), thread.Lines());
  };
  expectLine(L"CRegistryEntry::OpenRootKey: RegOpenKeyEx failed");  // the other user has no tree
  for (DWORD code : {ERROR_ACCESS_DENIED, ERROR_SUCCESS}) {
    sizeError = code;
    expectLine(L"CRegistryEntry::OpenRootKey: for Write: OpenThreadToken or OpenProcessToken failed");
  }
  sizeError = ERROR_INSUFFICIENT_BUFFER;
  refuseUser = true;
  expectLine(L"CRegistryEntry::OpenRootKey: GetTokenInformation failed");
  refuseUser = false;
  breakSid = true;
  expectLine(L"CRegistryEntry::OpenRootKey: GetTextualSid with TextualSidLength failed");
  EXPECT_EQ(5, thread.Error().trace->errorCount);
}

TEST_F(UserHiveTest, ExhaustedMemoryLeavesThePredefinedRoot) {
  MakeOwn();
  TracedThread thread;
  for (int granted : {0, 1}) {
    const FailingNew exhausted(granted);
    EXPECT_EQ(L"own", ReadValue());
  }
  EXPECT_EQ(Messages({L"CRegistryEntry::OpenRootKey: new TOKEN_USER failed",
                      L"CRegistryEntry::OpenRootKey: GetTextualSid failed"}),
            thread.Lines());
  EXPECT_EQ(2, thread.Error().trace->errorCount);
}

TEST(TextualSid, AgreesWithThePlatform) {
  for (const wchar_t* text :
       {L"S-1-0-0", L"S-1-5-18", kOtherUser, L"S-1-5-21-4294967295-0-1-2-3-4-5-6-7-8-9-10-11-12", L"S-1-4294967295-1"})
    EXPECT_EQ(text, RoundTrip(text));
}

TEST(TextualSid, AWideAuthorityIsHexadecimal) {
  SID sid{SID_REVISION, 1, {{0x01, 0x02, 0x00, 0xAB, 0x0C, 0xFF}}, {7}};
  EXPECT_EQ(L"S-1-0x010200ab0cff-7", TextOf(&sid));
  sid.IdentifierAuthority.Value[0] = 0;
  EXPECT_EQ(L"S-1-0x000200ab0cff-7", TextOf(&sid));
  sid.IdentifierAuthority.Value[1] = 0;
  EXPECT_EQ(L"S-1-11209983-7", TextOf(&sid));
}

TEST(TextualSid, TellsTheSizeNeeded) {
  SID sid{SID_REVISION, 1, SECURITY_NT_AUTHORITY, {18}};
  for (uint32_t size : {0u, 1u, 79u}) {
    SetLastError(0);
    EXPECT_FALSE(GetTextualSid(&sid, nullptr, size));
    EXPECT_EQ(80u, size);
    EXPECT_EQ(122u, GetLastError());
  }
  EXPECT_EQ(L"S-1-5-18", TextOf(&sid, 80));

  PSID four = nullptr;
  ASSERT_TRUE(ConvertStringSidToSidW(L"S-1-5-21-1-2-3", &four));
  uint32_t size = 151;
  EXPECT_FALSE(GetTextualSid(four, nullptr, size));
  EXPECT_EQ(152u, size);
  LocalFree(four);
}

TEST(TextualSid, AnInvalidSidIsRefused) {
  SID sid{77, 1, SECURITY_NT_AUTHORITY, {18}};
  uint32_t size = 0;
  EXPECT_FALSE(GetTextualSid(&sid, nullptr, size));
  EXPECT_EQ(0u, size);
}
