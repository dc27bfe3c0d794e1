#include <windows.h>

#include "DriverLIB/TraceSettings.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>

#include "driver/ImportPatch.h"
#include "DriverLIB/CError.h"
#include "DriverLIB/ModuleState.h"
#include "DriverLIB/Trace.h"
#include "support/FunctionPatch.h"
#include "support/RegistryValue.h"
#include "support/TempFile.h"

namespace {

constexpr char kSystem[] = "advapi32.dll";
constexpr wchar_t kMachinePath[] = L"HKEY_LOCAL_MACHINE\\Software\\NEM software GmbH\\NEM pdf vonder\\TraceFilename";
constexpr wchar_t kUserPath[] = L"HKEY_CURRENT_USER\\Software\\NEM software GmbH\\NEM pdf vonder\\TraceFilename";
constexpr wchar_t kDefaultName[] = L"C:\\NEMpdfVonderTrace\\NEMpdfVonder.log";

// There is no such function in the system. Looking for the real one goes through here too, so it is fetched before.
decltype(&GetProcAddress) realGetProcAddress = nullptr;
FARPROC WINAPI NoSystemVersion(HMODULE module, const char* name) {
  if (HIWORD(name) != 0 && std::string_view(name) == "RtlGetVersion") return nullptr;
  return realGetProcAddress(module, name);
}

// No two of its numbers are the same.
LONG WINAPI DistinctVersion(OSVERSIONINFOEXW* info) {
  EXPECT_EQ(sizeof *info, info->dwOSVersionInfoSize);
  info->dwMajorVersion = 12;
  info->dwMinorVersion = 34;
  info->dwBuildNumber = 0x5A5B;
  info->dwPlatformId = 2;
  info->wProductType = 3;
  info->wSuiteMask = 0x110;
  info->wServicePackMajor = 6;
  info->wServicePackMinor = 7;
  return 0;
}

bool machineLocked = false;
bool userLocked = false;

// Refuses to open keys for writing.
LSTATUS WINAPI LockedCreate(HKEY root, const wchar_t* name, DWORD reserved, wchar_t* keyClass, DWORD options,
                            REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* disposition) {
  static auto* const real = RealFunction(kSystem, "RegCreateKeyExW", RegCreateKeyExW);
  if (root == HKEY_LOCAL_MACHINE ? machineLocked : userLocked) return ERROR_ACCESS_DENIED;
  return real(root, name, reserved, keyClass, options, access, security, key, disposition);
}

class TraceSettingsTest : public testing::Test {
 protected:
  TraceSettingsTest() { PatchImport(kSystem, "RegCreateKeyExW", reinterpret_cast<void*>(LockedCreate)); }
  ~TraceSettingsTest() override {
    RestoreImport(kSystem, "RegCreateKeyExW");
    machineLocked = userLocked = false;
  }

  ProductValue machine{HKEY_LOCAL_MACHINE, L"TraceFilename"};
  ProductValue user{HKEY_CURRENT_USER, L"TraceFilename"};
};

// A thread of its own that the library takes up, runs `body` in, and lets go.
template <typename Body>
DWORD RunThread(Body body) {
  DWORD id = 0;
  std::thread([&] {
    id = GetCurrentThreadId();
    EXPECT_TRUE(InitThreadState(nullptr));
    body();
    EXPECT_TRUE(FreeThreadState());
  }).join();
  return id;
}

}  // namespace

TEST_F(TraceSettingsTest, TheMachinesNameGoesFirst) {
  EXPECT_STREQ(L"", GetTraceFilename(kProductKey).Text());
  user.Set(L"user.log");
  EXPECT_STREQ(L"user.log", GetTraceFilename(kProductKey).Text());
  machine.Set(L"");
  EXPECT_STREQ(L"user.log", GetTraceFilename(kProductKey).Text());
  machine.Set(L"machine.log");
  EXPECT_STREQ(L"machine.log", GetTraceFilename(kProductKey).Text());
  EXPECT_STREQ(L"", GetTraceFilename(L"Software\\NemPdfNoSuchKey").Text());
}

TEST_F(TraceSettingsTest, ThisComponentsNameHasItsInfixBeforeTheLastDot) {
  struct {
    const wchar_t* general;
    const wchar_t* name;
  } const rows[] = {
      {L"C:\\NEMpdfVonderTrace\\NEMpdfVonder.log", L"C:\\NEMpdfVonderTrace\\NEMpdfVonder-AddInUI.log"},
      {L"trace", L"trace-AddInUI"},
      {L"a.b.c", L"a.b-AddInUI.c"},
      {L"C:\\a.b\\trace", L"C:\\a-AddInUI.b\\trace"},  // a folder's dot is taken
      {L".", L"-AddInUI."},
      {L"", L""},
  };
  for (const auto& row : rows) {
    user.Set(row.general);
    EXPECT_STREQ(row.name, MakeAddInTraceName().Text());
  }
  user.Delete();
  EXPECT_STREQ(L"", MakeAddInTraceName().Text());
}

TEST_F(TraceSettingsTest, SwitchingOnWritesBothRoots) {
  CUString errorPath;
  EXPECT_TRUE(SetTraceEnabled(true, &errorPath, nullptr));
  EXPECT_EQ(kDefaultName, machine.Text());
  EXPECT_EQ(kDefaultName, user.Text());
  EXPECT_TRUE(errorPath.IsEmpty());
  EXPECT_TRUE(SetTraceEnabled(true, nullptr, L"D:\\Folder"));
  EXPECT_EQ(L"D:\\Folder\\NEMpdfVonder.log", machine.Text());
  EXPECT_EQ(L"D:\\Folder\\NEMpdfVonder.log", user.Text());
  EXPECT_TRUE(SetTraceEnabled(true, nullptr, L""));  // a folder like any other
  EXPECT_EQ(L"\\NEMpdfVonder.log", machine.Text());
  EXPECT_EQ(L"\\NEMpdfVonder.log", user.Text());
}

TEST_F(TraceSettingsTest, SwitchingOffDeletesBothRoots) {
  machine.Set(L"a");
  user.Set(L"b");
  CUString errorPath;
  EXPECT_TRUE(SetTraceEnabled(false, &errorPath, nullptr));
  EXPECT_EQ(std::nullopt, machine.Text());
  EXPECT_EQ(std::nullopt, user.Text());
  EXPECT_TRUE(errorPath.IsEmpty());
}

TEST_F(TraceSettingsTest, AValueThatIsNotThereCannotBeDeletedAndIsOffAllTheSame) {
  machine.Set(L"a");
  CUString errorPath;
  EXPECT_TRUE(SetTraceEnabled(false, &errorPath, nullptr));
  EXPECT_STREQ(kUserPath, errorPath.Text());
}

TEST_F(TraceSettingsTest, OneRootIsEnoughForSwitchingOn) {
  machineLocked = true;
  CUString errorPath;
  EXPECT_TRUE(SetTraceEnabled(true, &errorPath, nullptr));
  EXPECT_STREQ(kMachinePath, errorPath.Text());
  EXPECT_EQ(std::nullopt, machine.Text());
  EXPECT_EQ(kDefaultName, user.Text());
}

TEST_F(TraceSettingsTest, TheUsersFailureIsToldEvenWhenTheMachinesValueIsOn) {
  userLocked = true;
  CUString errorPath;
  EXPECT_TRUE(SetTraceEnabled(true, &errorPath, nullptr));
  EXPECT_STREQ(kUserPath, errorPath.Text());
  EXPECT_EQ(kDefaultName, machine.Text());
  EXPECT_EQ(std::nullopt, user.Text());
}

TEST_F(TraceSettingsTest, AThreadThatIsThereKeepsItsTrace) {
  const auto openTrace = [] { return CurrentError()->trace->IsOpen(); };
  RunThread([&] {
    EXPECT_TRUE(SetTraceEnabled(true, nullptr, L"."));
    EXPECT_TRUE(InitThreadState(nullptr));
    EXPECT_FALSE(openTrace());
  });
  const DWORD id = RunThread([&] {
    EXPECT_TRUE(SetTraceEnabled(false, nullptr, nullptr));
    EXPECT_TRUE(InitThreadState(nullptr));
    EXPECT_TRUE(openTrace());
  });
  const TempFile file("NEMpdfVonder-AddInUI-t" + std::to_string(id) + ".log", TempFile::Keep{});
  EXPECT_TRUE(file.Text().ends_with(L"Trace closed.\r\n"));
}

TEST_F(TraceSettingsTest, ASystemWithoutAVersionIsTold) {
  user.Set(L"no_version.log");
  realGetProcAddress = RealFunction("kernel32.dll", "GetProcAddress", GetProcAddress);
  PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(NoSystemVersion));
  const DWORD id = RunThread([] {});
  RestoreImport("kernel32.dll", "GetProcAddress");
  const TempFile file("no_version-AddInUI-t" + std::to_string(id) + ".log", TempFile::Keep{});
  const std::wstring text = file.Text();
  const size_t second = text.find(L"\r\n") + 2;
  EXPECT_EQ(second + 25, text.find(L"GetVersionEx - failed, we are older than NT4 SP6.\r\n"));
}

TEST_F(TraceSettingsTest, TheSystemsNumbersStandInTheirOrder) {
  user.Set(L"version.log");
  DWORD id = 0;
  {
    const FunctionPatch patch(L"ntdll.dll", "RtlGetVersion", reinterpret_cast<void*>(&DistinctVersion));
    id = RunThread([] {});
  }
  const TempFile file("version-AddInUI-t" + std::to_string(id) + ".log", TempFile::Keep{});
  const std::wstring text = file.Text();
  const size_t second = text.find(L"\r\n") + 2;
  EXPECT_EQ(second + 25, text.find(L"    Native/Win32: GetVersionEx(EX): 12.34.5a5b, platform: 0x2, product: 0x3, "
                                   L"suite: 0x110, servicepack: 6.7\r\n"));
}

TEST_F(TraceSettingsTest, TheLaterFailureIsTheOneTold) {
  machineLocked = userLocked = true;
  CUString errorPath;
  EXPECT_FALSE(SetTraceEnabled(true, &errorPath, nullptr));
  EXPECT_STREQ(kUserPath, errorPath.Text());
  EXPECT_FALSE(SetTraceEnabled(true, nullptr, nullptr));
}

TEST_F(TraceSettingsTest, SwitchingOffNeedsBothRoots) {
  for (bool lockMachine : {true, false}) {
    machine.Set(L"a");
    user.Set(L"b");
    machineLocked = lockMachine;
    userLocked = !lockMachine;
    CUString errorPath;
    EXPECT_FALSE(SetTraceEnabled(false, &errorPath, nullptr));
    EXPECT_STREQ(lockMachine ? kMachinePath : kUserPath, errorPath.Text());
    machineLocked = userLocked = false;
  }
}

TEST_F(TraceSettingsTest, EachThreadHasAFileOfItsOwn) {
  user.Set(L"threads.log");
  std::wstring texts[2];
  for (std::wstring& text : texts) {
    const DWORD id = RunThread([] { TraceInfo("from a thread"); });
    TempFile file("threads-AddInUI-t0.log");
    const std::string name = "threads-AddInUI-t" + std::to_string(id) + ".log";
    std::ifstream stream(name, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << name;
    stream.close();
    ASSERT_EQ(0, std::rename(name.c_str(), "threads-AddInUI-t0.log"));
    text = file.Text();
  }
  for (const std::wstring& text : texts) {
    EXPECT_EQ(25u, text.find(L"NEM pdf AddIn UI Version 2.10.4 M7 (0x02100004) vom "));
    EXPECT_NE(text.npos, text.find(L"   2 "));
    EXPECT_NE(text.npos, text.find(L"from a thread\r\n"));
    EXPECT_EQ(text.size() - 15, text.find(L"Trace closed.\r\n"));
  }
}

TEST_F(TraceSettingsTest, AMissingFolderIsAnErrorOnce) {
  user.Set(L"C:\\NemPdfNoSuchFolder\\trace.log");
  RunThread([] {
    EXPECT_EQ(1u, CurrentError()->code);
    EXPECT_FALSE(CurrentError()->trace->IsOpen());
    TraceInfo("nowhere");
    ReportError(CurrentError());
    EXPECT_EQ(0u, CurrentError()->code);
  });
}

TEST_F(TraceSettingsTest, WithoutANameThereIsNoTraceAndNoError) {
  RunThread([] {
    EXPECT_EQ(0u, CurrentError()->code);
    EXPECT_FALSE(CurrentError()->trace->IsOpen());
  });
}
