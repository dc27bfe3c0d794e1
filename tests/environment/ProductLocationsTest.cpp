#include <windows.h>

#include "environment/ProductLocations.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "driver/ImportPatch.h"
#include "driver/SelfProcess.h"
#include "environment/PrinterQueries.h"
#include "environment/Spooler.h"
#include "support/ComponentFolder.h"
#include "support/InstalledProduct.h"
#include "support/PrintText.h"
#include "support/TempFile.h"
#include "support/TestPrinter.h"
#include "support/TracedThread.h"

namespace {

using Lines = std::vector<std::wstring>;

std::wstring ProgramDirectory() {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return std::wstring(path).substr(0, std::wstring(path).rfind(L'\\') + 1);
}

}  // namespace

TEST(ProductLocations, AreTheLibrarysOwnWithoutAPrinter) {
  TracedThread thread;
  EXPECT_EQ(ProgramDirectory(), GetAddInNEMDllPath().Text());
  EXPECT_EQ(ProgramDirectory(), GetProductDirectory().Text());
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST(ProductLocations, AreTheDriversWithAPrinter) {
  const TestDriver driver;
  const TestPrinter printer(L"Alpha");
  EXPECT_EQ(driver.Directory(), GetAddInNEMDllPath().Text());
  EXPECT_EQ(driver.Directory(), GetProductDirectory().Text());
}

namespace {

HGLOBAL WINAPI NoGlobalAlloc(UINT, SIZE_T) { return nullptr; }

}  // namespace

TEST(ProductLocations, AreNotKnownWhenThePrintersAreNot) {
  const TestDriver driver;
  const TestPrinter printer(L"Alpha");
  TracedThread thread;
  ASSERT_GT(PatchImport("kernel32.dll", "GlobalAlloc", reinterpret_cast<void*>(&NoGlobalAlloc)), 0);
  const CUString path = GetAddInNEMDllPath();
  RestoreImport("kernel32.dll", "GlobalAlloc");
  EXPECT_TRUE(path.IsEmpty());
  EXPECT_EQ(Lines{L"GetAddInNEMDllPath: GetPrinterNames failed"}, thread.Lines());
  EXPECT_EQ(1, thread.Error().trace->errorCount);
}

// --- The administrator's tool ------------------------------------------------------------------------------------

namespace {

class AdminToolTest : public testing::Test {
 protected:
  AdminToolTest() { SetEnvironmentVariableW(L"NEMPDF_ADMIN_RECORD", record.Name()); }
  ~AdminToolTest() override { SetEnvironmentVariableW(L"NEMPDF_ADMIN_RECORD", nullptr); }

  void Install(const std::wstring& folder) { product.Install(folder); }

  InstalledProduct product;
  TempFile record{"nempdf_admin_record.txt"};
};

}  // namespace

TEST_F(AdminToolTest, RunsToItsEnd) {
  Install(ComponentFolder(L"admin"));
  EXPECT_TRUE(RunAdminTool(L"--RestartSpooler"));
  // Its last deed is done already.
  const std::wstring commandLine = record.Text();
  EXPECT_NE(std::wstring::npos, commandLine.find(L"NEMadmin64.exe"));
  EXPECT_NE(std::wstring::npos, commandLine.find(L" --RestartSpooler"));
}

TEST_F(AdminToolTest, FailsWhereItIsNotInstalled) {
  EXPECT_FALSE(RunAdminTool(L"--RestartSpooler"));
  Install(ComponentFolder(L"complete"));
  EXPECT_FALSE(RunAdminTool(L"--RestartSpooler"));
  EXPECT_FALSE(record.Exists());
}

namespace {

const auto realGetProcAddress = RealFunction("kernel32.dll", "GetProcAddress", &GetProcAddress);

// What the shell was asked for, and how it answers.
SHELLEXECUTEINFOW executed;
std::wstring executedFile;
HANDLE startedProcess;
DWORD shellError;

BOOL WINAPI NoteExecution(SHELLEXECUTEINFOW* info) {
  executed = *info;
  executedFile = info->lpFile;
  info->hProcess = startedProcess;
  if (shellError) SetLastError(shellError);
  return TRUE;
}

// That of a system which tells of no process.
bool isShellOld;

HINSTANCE WINAPI OldExecution(HWND, const wchar_t*, const wchar_t*, const wchar_t*, const wchar_t*, int) {
  constexpr INT_PTR kStarted = 33;
  if (shellError) SetLastError(shellError);
  return reinterpret_cast<HINSTANCE>(kStarted);
}

FARPROC WINAPI WithNotingShell(HMODULE module, const char* name) {
  if (reinterpret_cast<ULONG_PTR>(name) <= 0xFFFF) return realGetProcAddress(module, name);
  const std::string_view wanted(name);
  if (wanted == "ShellExecuteW") return reinterpret_cast<FARPROC>(&OldExecution);
  if (wanted != "ShellExecuteExW") return realGetProcAddress(module, name);
  if (!isShellOld) return reinterpret_cast<FARPROC>(&NoteExecution);
  SetLastError(ERROR_PROC_NOT_FOUND);
  return nullptr;
}

// An error from before counts for nothing.
bool RunNotedAdminTool(HANDLE process, DWORD error) {
  startedProcess = process;
  shellError = error;
  PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&WithNotingShell));
  SetLastError(ERROR_ACCESS_DENIED);
  const bool ran = RunAdminTool(L"--RestartSpooler");
  RestoreImport("kernel32.dll", "GetProcAddress");
  return ran;
}

}  // namespace

TEST_F(AdminToolTest, IsOpenedFromTheInstallLocation) {
  Install(L"C:\\Product");
  EXPECT_TRUE(RunNotedAdminTool(nullptr, ERROR_SUCCESS));
  EXPECT_EQ(L"C:\\Product\\\\NEMadmin64.exe", executedFile);
  EXPECT_STREQ(L"open", executed.lpVerb);
  EXPECT_STREQ(L"--RestartSpooler", executed.lpParameters);
  EXPECT_EQ(nullptr, executed.lpDirectory);
  EXPECT_EQ(nullptr, executed.hwnd);
  EXPECT_EQ(SW_SHOW, executed.nShow);
  EXPECT_EQ(static_cast<ULONG>(SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI), executed.fMask)
      << "the caller tells the user of a failure, not the shell";
}

// It would be looked for in the root of the current drive, or on a server of its name.
TEST_F(AdminToolTest, IsNotOpenedWithoutAnInstallLocation) {
  executedFile.clear();
  EXPECT_FALSE(RunNotedAdminTool(nullptr, ERROR_SUCCESS)) << "the product is not recorded";
  Install(L"");
  EXPECT_FALSE(RunNotedAdminTool(nullptr, ERROR_SUCCESS)) << "its folder is not recorded";
  EXPECT_EQ(L"", executedFile);
}

TEST_F(AdminToolTest, FailsByTheSystemsErrorWithoutAProcess) {
  Install(L"C:\\Product");
  for (const bool old : {true, false}) {
    isShellOld = old;
    EXPECT_TRUE(RunNotedAdminTool(nullptr, ERROR_SUCCESS)) << old;
    EXPECT_FALSE(RunNotedAdminTool(nullptr, ERROR_CANCELLED)) << old;
  }
}

namespace {

DWORD awaited, waitResult;

DWORD WINAPI NoteWait(HANDLE, DWORD time) {
  awaited = time;
  return waitResult;
}

}  // namespace

TEST_F(AdminToolTest, IsAwaitedWithoutALimit) {
  Install(L"C:\\Product");
  for (const auto& [result, ended] : {std::pair<DWORD, bool>{WAIT_OBJECT_0, true}, {WAIT_TIMEOUT, false}}) {
    waitResult = result;
    awaited = 0;
    ASSERT_GT(PatchImport("kernel32.dll", "WaitForSingleObject", reinterpret_cast<void*>(&NoteWait)), 0);
    const bool ran = RunNotedAdminTool(CreateEventW(nullptr, TRUE, TRUE, nullptr), ERROR_SUCCESS);
    RestoreImport("kernel32.dll", "WaitForSingleObject");
    EXPECT_EQ(ended, ran);
    EXPECT_EQ(INFINITE, awaited);
  }
}

TEST_F(AdminToolTest, FailsWhenItsEndCannotBeAwaited) {
  Install(L"C:\\Product");
  EXPECT_FALSE(RunNotedAdminTool(reinterpret_cast<HANDLE>(static_cast<INT_PTR>(0x7FFC)), ERROR_SUCCESS));
  HANDLE ended = CreateEventW(nullptr, TRUE, TRUE, nullptr);
  EXPECT_TRUE(RunNotedAdminTool(ended, ERROR_CANCELLED)) << "with a process its end alone counts";
  EXPECT_FALSE(CloseHandle(ended)) << "was closed";
}

// --- Printers that the test's spooler cannot have ----------------------------------------------------------------
//
// The spooler is bound at its first use, so each of these stands in a process of its own, with some functions of the
// spooler replaced from the start.

namespace {

constexpr wchar_t kServerPrinter[] = L"\\\\server\\Alpha";

PRINTER_INFO_2W PrinterNamed(const wchar_t* name) {
  PRINTER_INFO_2W info = {};
  info.pPrinterName = const_cast<wchar_t*>(name);
  info.pDriverName = const_cast<wchar_t*>(kTestDriverName);
  return info;
}

// One printer, which belongs to a print server and is connected to it.
PRINTER_INFO_2W ServerPrinter() {
  PRINTER_INFO_2W info = PrinterNamed(kServerPrinter);
  info.pServerName = const_cast<wchar_t*>(L"\\\\server");
  return info;
}

// With one record, or with an array of them.
template <class Info>
BOOL AnswerWith(const Info& info, BYTE* buffer, DWORD size, DWORD* needed) {
  *needed = sizeof info;
  if (size < sizeof info) {
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return FALSE;
  }
  memcpy(buffer, &info, sizeof info);
  return TRUE;
}

BOOL WINAPI OpenAny(wchar_t*, HANDLE* printer, PRINTER_DEFAULTSW*) {
  *printer = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(1234));
  return TRUE;
}
BOOL WINAPI CloseAny(HANDLE) { return TRUE; }
std::wstring openedName;  // of the printer that was to be opened

BOOL WINAPI OpenNone(wchar_t* name, HANDLE*, PRINTER_DEFAULTSW*) {
  openedName = name;
  SetLastError(ERROR_ACCESS_DENIED);
  return FALSE;
}
BOOL WINAPI GetServerPrinter(HANDLE, DWORD, BYTE* buffer, DWORD size, DWORD* needed) {
  return AnswerWith(ServerPrinter(), buffer, size, needed);
}
BOOL WINAPI GetPrinterOfEmptyServer(HANDLE, DWORD, BYTE* buffer, DWORD size, DWORD* needed) {
  PRINTER_INFO_2W info = ServerPrinter();
  info.pServerName = const_cast<wchar_t*>(L"");
  return AnswerWith(info, buffer, size, needed);
}
BOOL WINAPI GetNoPrinter(HANDLE, DWORD, BYTE*, DWORD, DWORD*) {
  SetLastError(ERROR_INVALID_HANDLE);
  return FALSE;
}
BOOL WINAPI GetPrinterAtOnce(HANDLE, DWORD, BYTE*, DWORD, DWORD* needed) {
  *needed = 0;
  SetLastError(ERROR_SUCCESS);
  return TRUE;
}
BOOL WINAPI GetDriverAtOnce(HANDLE, wchar_t*, DWORD, BYTE*, DWORD, DWORD* needed) {
  *needed = 0;
  SetLastError(ERROR_SUCCESS);
  return TRUE;
}
DWORD WINAPI GetEmptyData(HANDLE, wchar_t*, DWORD*, BYTE*, DWORD, DWORD* needed) {
  *needed = 0;
  return ERROR_SUCCESS;
}
// Refuses to tell the size, and tells it all the same.
DWORD WINAPI GetRefusedData(HANDLE, wchar_t*, DWORD*, BYTE* buffer, DWORD, DWORD* needed) {
  *needed = 2;
  if (!buffer) return ERROR_ACCESS_DENIED;
  memcpy(buffer, "ab", 2);
  return ERROR_SUCCESS;
}
std::vector<DWORD> listed;  // the kinds of printers, one for each call

BOOL WINAPI EnumServerPrinters(DWORD flags, wchar_t*, DWORD, BYTE* buffer, DWORD size, DWORD* needed, DWORD* count) {
  listed.push_back(flags);
  *count = 0;
  *needed = 0;
  if (flags != PRINTER_ENUM_CONNECTIONS) return TRUE;
  if (!AnswerWith(ServerPrinter(), buffer, size, needed)) return FALSE;
  *count = 1;
  return TRUE;
}
BOOL WINAPI EnumTwoPrinters(DWORD flags, wchar_t*, DWORD, BYTE* buffer, DWORD size, DWORD* needed, DWORD* count) {
  const PRINTER_INFO_2W both[] = {PrinterNamed(L"Alpha"), PrinterNamed(kTestDriverName)};
  *count = 0;
  *needed = 0;
  if (flags != PRINTER_ENUM_LOCAL) return TRUE;
  if (!AnswerWith(both, buffer, size, needed)) return FALSE;
  *count = 2;
  return TRUE;
}
// What it counts means nothing.
BOOL WINAPI EnumNothing(DWORD, wchar_t*, DWORD, BYTE*, DWORD, DWORD* needed, DWORD* count) {
  *needed = 0;
  *count = 7;
  SetLastError(RPC_S_SERVER_UNAVAILABLE);
  return FALSE;
}
BOOL WINAPI EnumThrowing(DWORD, wchar_t*, DWORD, BYTE*, DWORD, DWORD*, DWORD*) { throw std::runtime_error("no"); }

decltype(&OpenAny) openPrinter = OpenAny;
decltype(&GetServerPrinter) getPrinter = GetServerPrinter;
decltype(&EnumServerPrinters) enumPrinters = EnumServerPrinters;
decltype(&GetEmptyData) getPrinterData = GetEmptyData;

FARPROC WINAPI GetSpoolerProc(HMODULE module, const char* name) {
  if (reinterpret_cast<ULONG_PTR>(name) > 0xFFFF) {
    const std::string_view wanted(name);
    if (wanted == "OpenPrinterW") return reinterpret_cast<FARPROC>(openPrinter);
    if (wanted == "ClosePrinter") return reinterpret_cast<FARPROC>(&CloseAny);
    if (wanted == "GetPrinterW") return reinterpret_cast<FARPROC>(getPrinter);
    if (wanted == "EnumPrintersW") return reinterpret_cast<FARPROC>(enumPrinters);
    if (wanted == "GetPrinterDriverW") return reinterpret_cast<FARPROC>(&GetDriverAtOnce);
    if (wanted == "GetPrinterDataW") return reinterpret_cast<FARPROC>(getPrinterData);
  }
  return realGetProcAddress(module, name);
}

void PatchSpooler() { PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&GetSpoolerProc)); }

// Whether there is any, and the size that is told.
std::pair<bool, DWORD> ReadData() {
  DWORD size = 99;
  const bool read = GetPrinterRegData(nullptr, L"Data", &size) != nullptr;
  return {read, size};
}

}  // namespace

TEST(FakeSpooler, DISABLED_ServerPrinter) {
  PatchSpooler();
  EXPECT_TRUE(IsServerPrinter(kServerPrinter));
  EXPECT_TRUE(IsServerPrinterHandle(nullptr));
  CUStringArray names;
  EXPECT_TRUE(GetPrinterNames(names, kTestDriverName));
  ASSERT_EQ(1, names.Count());
  EXPECT_STREQ(kServerPrinter, names[0].Text());
  // The last call is that for the records, whose size is known by then.
  EXPECT_EQ((std::vector<DWORD>{PRINTER_ENUM_LOCAL, PRINTER_ENUM_CONNECTIONS, PRINTER_ENUM_CONNECTIONS}), listed);
}

TEST(FakeSpooler, DISABLED_PrinterOfAnEmptyServer) {
  getPrinter = GetPrinterOfEmptyServer;
  PatchSpooler();
  EXPECT_FALSE(IsServerPrinter(kServerPrinter));
  EXPECT_FALSE(IsServerPrinterHandle(nullptr));
}

TEST(FakeSpooler, DISABLED_PrinterThatCannotBeOpened) {
  openPrinter = OpenNone;
  PatchSpooler();
  TracedThread thread;
  EXPECT_TRUE(GetAddInNEMDllPath().IsEmpty());
  EXPECT_EQ(Lines{L"GetAddInNEMDllPath: Invalid printer handle 0"}, thread.Lines());
  EXPECT_EQ(1, thread.Error().trace->errorCount);
}

// They may have directories of their own.
TEST(FakeSpooler, DISABLED_TwoPrinters) {
  openPrinter = OpenNone;
  enumPrinters = EnumTwoPrinters;
  PatchSpooler();
  TracedThread thread;
  GetAddInNEMDllPath();
  EXPECT_EQ(kTestDriverName, openedName) << "the first once that named like its driver has come to the front";
}

TEST(FakeSpooler, DISABLED_PrinterThatIsNotValid) {
  getPrinter = GetNoPrinter;
  PatchSpooler();
  TracedThread thread;
  EXPECT_TRUE(GetAddInNEMDllPath().IsEmpty());
  EXPECT_EQ(Lines{L"GetAddInNEMDllPath: Invalid printer handle 1234"}, thread.Lines());
  EXPECT_FALSE(IsServerPrinter(kServerPrinter));
  EXPECT_EQ(Lines{L"IsServerPrinter: Invalid printer handle 1234"}, thread.Lines());
}

// A size of nothing is an answer, but no block.
TEST(FakeSpooler, DISABLED_PrinterThatNeedsNoBlock) {
  getPrinter = GetPrinterAtOnce;
  PatchSpooler();
  TracedThread thread;
  EXPECT_TRUE(IsValidPrinterHandle(nullptr));
  EXPECT_EQ(Lines{}, thread.Lines());
  EXPECT_FALSE(GetPrinterInfo(nullptr, 2));
  EXPECT_EQ(Lines{L"GetPrinterInfo2: GetPrinterPrinter(1st) error=00000000"}, thread.Lines());
  EXPECT_FALSE(GetDriverInfo(nullptr, 2));
  EXPECT_EQ(Lines{L"GetDriverInfo2: GetPrinterDriver(1st) error=00000000"}, thread.Lines());
  EXPECT_EQ(std::pair(false, DWORD{0}), ReadData());
  EXPECT_EQ(Lines{L"GetPrinterRegData: 1st GetPrinterData(Data) failed, Error=0"}, thread.Lines());
  EXPECT_EQ(3, thread.Error().trace->errorCount);
}

// What it reads counts.
TEST(FakeSpooler, DISABLED_PrinterThatRefusesASize) {
  getPrinterData = GetRefusedData;
  PatchSpooler();
  TracedThread thread;
  EXPECT_EQ(std::pair(true, DWORD{2}), ReadData());
  EXPECT_EQ(Lines{L"GetPrinterRegData: 1st GetPrinterData(Data) failed, Error=5"}, thread.Lines());
  EXPECT_EQ(1, thread.Error().trace->errorCount);
}

// It lists nothing, and that is no failure.
TEST(FakeSpooler, DISABLED_SpoolerThatIsStopped) {
  enumPrinters = EnumNothing;
  PatchSpooler();
  TracedThread thread;
  CUStringArray names;
  EXPECT_TRUE(GetPrinterNames(names, kTestDriverName));
  EXPECT_EQ(0, names.Count());
  EXPECT_EQ(ProgramDirectory(), GetAddInNEMDllPath().Text());
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST(FakeSpooler, DISABLED_SpoolerThatThrows) {
  enumPrinters = EnumThrowing;
  PatchSpooler();
  TracedThread thread;
  EXPECT_TRUE(GetAddInNEMDllPath().IsEmpty());
  EXPECT_EQ(Lines{L"GetAddInNEMDllPath: caught throwed exception"}, thread.Lines());
  EXPECT_EQ(1, thread.Error().trace->errorCount);
}

class FakeSpoolerProcess : public testing::TestWithParam<const wchar_t*> {};

TEST_P(FakeSpoolerProcess, Passes) {
  const ProcessResult result =
      RunSelf(std::wstring(L"--gtest_also_run_disabled_tests --gtest_filter=FakeSpooler.DISABLED_") + GetParam());
  EXPECT_EQ(0u, result.exitCode) << result.output;
  EXPECT_NE(std::string::npos, result.output.find("[  PASSED  ] 1 test.")) << result.output;
}

INSTANTIATE_TEST_SUITE_P(All, FakeSpoolerProcess,
                         testing::Values(L"ServerPrinter", L"PrinterOfAnEmptyServer", L"PrinterThatCannotBeOpened",
                                         L"TwoPrinters", L"PrinterThatIsNotValid", L"PrinterThatNeedsNoBlock",
                                         L"PrinterThatRefusesASize", L"SpoolerThatIsStopped", L"SpoolerThatThrows"));
