// What the library learns of its host and its user.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/ImportPatch.h"
#include "driver/SelfProcess.h"
#include "environment/DefaultPaper.h"
#include "environment/HostApplication.h"
#include "environment/Shell.h"
#include "environment/SystemGeneration.h"
#include "environment/TextLimit.h"
#include "support/ComponentFolder.h"
#include "support/HostProgramScope.h"
#include "support/PrintText.h"
#include "support/RegistryValue.h"
#include "support/TempFile.h"
#include "support/TracedThread.h"

using Lines = std::vector<std::wstring>;

// --- Host application --------------------------------------------------------------------------------------------

namespace {

// What the stand-in for the host writes about itself: the plain name and the friendly one.
std::wstring NamesInside(const wchar_t* folder) {
  TempFile names("nempdf_host_names.txt");
  std::wstring commandLine = L"\"" + ComponentFolder(folder) + L"WINWORD.EXE\" " + names.Name();
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
    return L"not started";
  WaitForSingleObject(process.hProcess, INFINITE);
  CloseHandle(process.hProcess);
  CloseHandle(process.hThread);
  return names.Text();
}

}  // namespace

TEST(HostApplication, IsCalledByItsFileAndVersion) {
  EXPECT_EQ(L"WINWORD.EXE 15.0.4420.1017\nMicrosoft\u00AE Word 2013(15.0.4420.1017)\n", NamesInside(L"2013"));
  EXPECT_EQ(L"WINWORD.EXE 16.0.4266.1001\nMicrosoft\u00AE Word 16.0.4266.1001\n", NamesInside(L"16"));
}

TEST(HostApplication, AnUnknownOneIsCalledByItsFile) {
  for (const bool friendly : {false, true}) {
    const CUString name = GetHostApplicationName(friendly);
    EXPECT_EQ(0, name.Find(L"environment_tests.exe ")) << testing::PrintToString(name);
  }
}

TEST(HostApplication, IsNoWordProcessorUnderAnotherName) {
  EXPECT_EQ(L"environment_tests.exe", GetHostFileName());
  EXPECT_FALSE(IsWordHost());
}

TEST(HostApplication, IsTheWordProcessorByItsFileAlone) {
  const std::pair<const wchar_t*, bool> rows[] = {
      {L"C:\\Office\\WINWORD.EXE", true},      {L"C:\\Office\\winword.exe", true},
      {L"C:\\Office\\WinWord.Exe", true},      {L"C:\\Office\\WINWORD", false},
      {L"C:\\Office\\WINWORD.EXE.exe", false}, {L"C:\\Office\\MYWINWORD.EXE", false},
      {L"C:\\WINWORD.EXE\\a.exe", false},      {L"", false},
  };
  for (const auto& [path, isWord] : rows) {
    const HostProgramScope host(path);
    EXPECT_EQ(isWord, IsWordHost()) << testing::PrintToString(std::wstring(path));
  }
}

TEST(GetFileVersion, ReadsTheFixedRecord) {
  EXPECT_STREQ(L"15.0.4420.1017", GetFileVersion((ComponentFolder(L"2013") + L"WINWORD.EXE").c_str()).Text());
}

TEST(GetFileVersion, IsEmptyWithoutARecord) {
  TempFile plain("nempdf_plain.txt");
  plain.Put("no program at all");
  TracedThread thread;
  EXPECT_TRUE(GetFileVersion(plain.Name()).IsEmpty());
  EXPECT_TRUE(GetFileVersion((ComponentFolder(L"complete") + L"NemPdf64.dll").c_str()).IsEmpty());
  EXPECT_TRUE(GetFileVersion(L"C:\\no such folder\\none.exe").IsEmpty());
  EXPECT_TRUE(GetFileVersion(L"").IsEmpty());
  EXPECT_TRUE(GetFileVersion(nullptr).IsEmpty());
  EXPECT_EQ(Lines{}, thread.Lines());
}

namespace {

// Taken before anything is patched: finding it takes the function itself.
const auto realGetProcAddress = RealFunction("kernel32.dll", "GetProcAddress", &GetProcAddress);

bool IsName(const char* name, std::string_view wanted) {
  return reinterpret_cast<ULONG_PTR>(name) > 0xFFFF && name == wanted;
}

DWORD WINAPI ThrowSize(const wchar_t*, DWORD*) { throw 1; }

FARPROC WINAPI WithThrowingVersions(HMODULE module, const char* name) {
  if (IsName(name, "GetFileVersionInfoSizeW")) return reinterpret_cast<FARPROC>(&ThrowSize);
  return realGetProcAddress(module, name);
}

}  // namespace

// In a process of its own, since the functions are looked up once.
TEST(FakeVersions, DISABLED_Throw) {
  PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&WithThrowingVersions));
  TracedThread thread;
  EXPECT_TRUE(GetFileVersion(L"C:\\any.exe").IsEmpty());
  EXPECT_EQ(Lines{L"GetFileVersion: caught throwed exception"}, thread.Lines());
  EXPECT_EQ(1, thread.Error().trace->errorCount);
}

TEST(GetFileVersion, TracesAnException) {
  const ProcessResult result = RunSelf(L"--gtest_also_run_disabled_tests --gtest_filter=FakeVersions.DISABLED_Throw");
  EXPECT_EQ(0u, result.exitCode) << result.output;
  EXPECT_NE(std::string::npos, result.output.find("[  PASSED  ] 1 test.")) << result.output;
}

// --- Default paper -----------------------------------------------------------------------------------------------

namespace {

constexpr wchar_t kInternational[] = L"Control Panel\\International";
constexpr wchar_t kYes[] = L"IsA4PaperDefault = Yes";
constexpr wchar_t kNo[] = L"IsA4PaperDefault = No, Use 'LETTER'";
constexpr wchar_t kNotRead[] = L"IsA4PaperDefault: RegQueryValue 'iCountry' FAILED";

// What the countries setting leads to, and all that is traced about it.
class DefaultPaperTest : public testing::Test {
 protected:
  RegistryValue country{HKEY_CURRENT_USER, kInternational, L"iCountry"};
  TracedThread thread;

  void ExpectPaper(bool isA4, const Lines& lines) {
    EXPECT_EQ(isA4, IsA4PaperDefault());
    EXPECT_EQ(lines, thread.Lines());
    EXPECT_EQ(0u, thread.Error().trace->errorCount) << "the lines are plain ones";
  }
};

}  // namespace

TEST_F(DefaultPaperTest, GoesByTheCountry) {
  for (const wchar_t* code : {L"1", L"2", L"50", L"59", L"500", L"599"}) {
    country.Set(code);
    ExpectPaper(false, {std::wstring(L"IsA4PaperDefault: Country = ") + code, kNo});
  }
  for (const wchar_t* code : {L"3", L"49", L"60", L"499", L"600", L"  49x", L"", L"x"}) {
    country.Set(code);
    ExpectPaper(true, {std::wstring(L"IsA4PaperDefault: Country = ") + code, kYes});
  }
}

TEST_F(DefaultPaperTest, IsLetterWithoutACountry) { ExpectPaper(false, {kNotRead, kNo}); }

TEST_F(DefaultPaperTest, TakesTextOnly) {
  const DWORD number = 49;
  country.SetBytes(REG_DWORD, &number, sizeof number);
  ExpectPaper(false, {L"IsA4PaperDefault: Country = 1", kNotRead, kNo});
}

TEST_F(DefaultPaperTest, TakesNoMoreThan32Bytes) {
  country.SetBytes(REG_SZ, L"0000000000000049x", 32);  // without a terminator
  ExpectPaper(true, {L"IsA4PaperDefault: Country = 0000000000000049", kYes});
  country.Set(L"0000000000000049");
  ExpectPaper(false, {kNotRead, kNo});
}

TEST_F(DefaultPaperTest, IsARowOfThePaperTable) {
  country.Set(L"49");
  EXPECT_EQ(FindPaper(kPaperA4), &GetDefaultPaperRow());
  country.Set(L"1");
  EXPECT_EQ(FindPaper(kPaperLetter), &GetDefaultPaperRow());
}

TEST_F(DefaultPaperTest, IsLetterWithoutTheKey) {
  HKEY moved = nullptr;
  ASSERT_EQ(ERROR_SUCCESS, RegOpenKeyExW(HKEY_CURRENT_USER, L"Control Panel", 0, KEY_ALL_ACCESS, &moved));
  ASSERT_EQ(ERROR_SUCCESS, RegRenameKey(moved, L"International", L"InternationalBefore"));
  const bool isA4 = IsA4PaperDefault();
  RegRenameKey(moved, L"InternationalBefore", L"International");
  RegCloseKey(moved);
  EXPECT_FALSE(isA4);
  const Lines lines = thread.Lines();
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(L"IsA4PaperDefault: RegOpenKey 'Control Panel\\International' FAILED", lines.back());
  EXPECT_EQ(static_cast<int32_t>(lines.size()) - 1, thread.Error().trace->errorCount) << "those of the registry";
}

// --- System ------------------------------------------------------------------------------------------------------

namespace {

// What a host without a manifest may be told.
BOOL WINAPI TellAnOldVersion(OSVERSIONINFOW* info) {
  info->dwPlatformId = VER_PLATFORM_WIN32_WINDOWS;
  info->dwMajorVersion = 4;
  info->dwMinorVersion = 10;
  return TRUE;
}
DWORD WINAPI OldVersion() { return 0x80000A04; }

// What the system shares with every process, without regard to its manifest.
uint32_t SharedNumber(uintptr_t offset) {
  constexpr uintptr_t kSharedData = 0x7FFE0000;
  return *reinterpret_cast<const volatile uint32_t*>(kSharedData + offset);
}

}  // namespace

TEST(SystemVersion, IsTheRealOneWhateverTheHostIsTold) {
  PatchImport("kernel32.dll", "GetVersionExW", reinterpret_cast<void*>(&TellAnOldVersion));
  PatchImport("kernel32.dll", "GetVersion", reinterpret_cast<void*>(&OldVersion));
  platform::SystemVersion version{};
  const bool known = platform::GetSystemVersion(version), isWin9x = IsWin9x();
  RestoreImport("kernel32.dll", "GetVersionExW");
  RestoreImport("kernel32.dll", "GetVersion");
  ASSERT_TRUE(known);
  EXPECT_FALSE(isWin9x);
  constexpr uintptr_t kMajor = 0x26C, kMinor = 0x270;
  EXPECT_EQ(SharedNumber(kMajor), version.major);
  EXPECT_EQ(SharedNumber(kMinor), version.minor);
}

// --- Shell -------------------------------------------------------------------------------------------------------

namespace {

SHELLEXECUTEINFOW AdminToolInfo(const wchar_t* file) {
  SHELLEXECUTEINFOW info = {};
  info.cbSize = sizeof info;
  info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
  info.lpFile = file;
  info.lpParameters = L"one \"two three\"";
  return info;
}

FARPROC WINAPI WithoutShellExecuteEx(HMODULE module, const char* name) {
  return IsName(name, "ShellExecuteExW") ? nullptr : realGetProcAddress(module, name);
}

// What the older function was asked for, where null is an empty text, and how it answers.
struct Execution {
  HWND owner;
  CUString verb, file, parameters, directory;
  int show;
} execution;
INT_PTR executionResult;

HINSTANCE WINAPI NoteExecution(HWND owner, const wchar_t* verb, const wchar_t* file, const wchar_t* parameters,
                               const wchar_t* directory, int show) {
  execution = {owner, verb, file, parameters, directory, show};
  return reinterpret_cast<HINSTANCE>(executionResult);
}

FARPROC WINAPI WithNotingShell(HMODULE module, const char* name) {
  if (IsName(name, "ShellExecuteW")) return reinterpret_cast<FARPROC>(&NoteExecution);
  return WithoutShellExecuteEx(module, name);
}

struct AdminRecord : TempFile {
  AdminRecord() : TempFile("nempdf_shell_record.txt") { SetEnvironmentVariableW(L"NEMPDF_ADMIN_RECORD", Name()); }
  ~AdminRecord() { SetEnvironmentVariableW(L"NEMPDF_ADMIN_RECORD", nullptr); }
};

}  // namespace

TEST(ExecuteShell, RunsAProgramAndKeepsItsProcess) {
  AdminRecord record;
  const std::wstring tool = ComponentFolder(L"admin") + L"NEMadmin64.exe";
  SHELLEXECUTEINFOW info = AdminToolInfo(tool.c_str());
  ASSERT_TRUE(ExecuteShell(info));
  ASSERT_NE(nullptr, info.hProcess);
  WaitForSingleObject(info.hProcess, INFINITE);
  CloseHandle(info.hProcess);
  EXPECT_NE(std::wstring::npos, record.Text().find(L"one \"two three\""));
}

TEST(ExecuteShell, FailsWithoutTheFile) {
  SHELLEXECUTEINFOW info = AdminToolInfo(L"C:\\no such folder\\none.exe");
  EXPECT_FALSE(ExecuteShell(info));
  EXPECT_EQ(nullptr, info.hProcess);
}

TEST(ExecuteShell, FallsBackToTheOlderFunction) {
  AdminRecord record;
  const std::wstring tool = ComponentFolder(L"admin") + L"NEMadmin64.exe";
  ASSERT_GT(PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&WithoutShellExecuteEx)), 0);
  SHELLEXECUTEINFOW info = AdminToolInfo(tool.c_str());
  const bool started = ExecuteShell(info);
  SHELLEXECUTEINFOW missing = AdminToolInfo(L"C:\\no such folder\\none.exe");
  const bool startedMissing = ExecuteShell(missing);
  RestoreImport("kernel32.dll", "GetProcAddress");
  EXPECT_TRUE(started);
  EXPECT_EQ(nullptr, info.hProcess);
  EXPECT_FALSE(startedMissing);
}

TEST(ExecuteShell, HandsFileParametersAndDirectoryToTheOlderFunction) {
  SHELLEXECUTEINFOW info = AdminToolInfo(L"C:\\tool.exe");
  info.hwnd = GetDesktopWindow();
  info.lpVerb = L"print";
  info.lpDirectory = L"C:\\work";
  info.nShow = SW_SHOWMAXIMIZED;
  ASSERT_GT(PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&WithNotingShell)), 0);
  executionResult = 32;
  const bool limit = ExecuteShell(info);
  executionResult = 33;
  const bool above = ExecuteShell(info);
  RestoreImport("kernel32.dll", "GetProcAddress");
  EXPECT_FALSE(limit);
  EXPECT_TRUE(above);
  EXPECT_EQ(nullptr, execution.owner);
  EXPECT_EQ(L"open", execution.verb);
  EXPECT_EQ(L"C:\\tool.exe", execution.file);
  EXPECT_EQ(L"one \"two three\"", execution.parameters);
  EXPECT_EQ(L"C:\\work", execution.directory);
  EXPECT_EQ(SW_HIDE, execution.show);
}

// The function is bound at its first use, once for the process: no other test may have used it.
TEST(OpenWithShell, SucceedsFromThirtyTwoOn) {
  ASSERT_GT(PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&WithNotingShell)), 0);
  const std::pair<INT_PTR, bool> results[] = {{33, true}, {32, true}, {31, false}, {2, false}, {0, false}};
  for (const auto& [result, success] : results) {
    executionResult = result;
    EXPECT_EQ(success, OpenWithShell(nullptr, L"https://www.nem-software.example/", SW_SHOWMINIMIZED)) << result;
  }
  RestoreImport("kernel32.dll", "GetProcAddress");
  EXPECT_EQ(L"open", execution.verb);
  EXPECT_EQ(L"https://www.nem-software.example/", execution.file);
  EXPECT_EQ(L"", execution.parameters);
  EXPECT_EQ(SW_SHOWMINIMIZED, execution.show);
}

// --- Text limit --------------------------------------------------------------------------------------------------

namespace {

constexpr int kEdit = 1000, kFocused = 1001, kMissing = 1002;

class TextLimitTest : public testing::Test {
 protected:
  TextLimitTest() {
    for (const int id : {kEdit, kFocused})
      CreateWindowExW(0, L"EDIT", id == kEdit ? L"12345" : L"abc", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, dialog_,
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    SetFocus(dialog_);
  }
  ~TextLimitTest() override { DestroyWindow(dialog_); }

  bool IsFocused() const { return GetFocus() == GetDlgItem(dialog_, kFocused); }
  DWORD Selection() const { return static_cast<DWORD>(SendDlgItemMessageW(dialog_, kFocused, EM_GETSEL, 0, 0)); }

  HWND dialog_ =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr, nullptr, nullptr);
};

}  // namespace

TEST_F(TextLimitTest, IsReachedByAsManyCharacters) {
  EXPECT_TRUE(IsTextAtLimit(dialog_, kEdit, kFocused, 5, false));
  EXPECT_TRUE(IsFocused());
  EXPECT_EQ(MAKELONG(0, 0), static_cast<LONG>(Selection()));
  EXPECT_TRUE(IsTextAtLimit(dialog_, kEdit, kFocused, 4, true));
  EXPECT_EQ(MAKELONG(0, 3), static_cast<LONG>(Selection()));
}

TEST_F(TextLimitTest, IsNotReachedByFewer) {
  EXPECT_FALSE(IsTextAtLimit(dialog_, kEdit, kFocused, 6, true));
  EXPECT_FALSE(IsFocused());
}

TEST_F(TextLimitTest, IsNotReachedWithoutTheControls) {
  EXPECT_FALSE(IsTextAtLimit(dialog_, kEdit, kMissing, 5, true));
  EXPECT_FALSE(IsTextAtLimit(dialog_, kMissing, kFocused, 0, true));
  EXPECT_FALSE(IsFocused());
}
