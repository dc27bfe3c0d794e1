// The printer of the sheet: opened by its name, asked for the administrator's files, closed again, and all that before
// the first page starts. The spooler's functions are bound once in a process, so the test has one of its own.
#include <gtest/gtest.h>

#include <string_view>

#include "driver/ImportPatch.h"
#include "driver/SelfProcess.h"
#include "driver/Text.h"
#include "TestSheet.h"

using namespace sheet_test;

namespace {

const auto kPrinter = reinterpret_cast<HANDLE>(INT_PTR{1234});

std::vector<std::string>* events = nullptr;
decltype(&GetProcAddress) realGetProcAddress = nullptr;

BOOL WINAPI Open(wchar_t* name, HANDLE* printer, void*) {
  events->push_back("open " + ToUtf8(name));
  *printer = kPrinter;
  return TRUE;
}

BOOL WINAPI AskForDriver(HANDLE printer, wchar_t*, DWORD, BYTE*, DWORD, DWORD* needed) {
  events->push_back(printer == kPrinter ? "ask" : "ask another one");
  *needed = 0;
  SetLastError(ERROR_ACCESS_DENIED);
  return FALSE;
}

BOOL WINAPI Close(HANDLE printer) {
  events->push_back(printer == kPrinter ? "close" : "close another one");
  return TRUE;
}

FARPROC WINAPI FindInSpooler(HMODULE module, const char* name) {
  if (!IS_INTRESOURCE(name)) {
    const std::string_view wanted(name);
    if (wanted == "OpenPrinterW") return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&Open));
    if (wanted == "GetPrinterDriverW") return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&AskForDriver));
    if (wanted == "ClosePrinter") return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&Close));
  }
  return realGetProcAddress(module, name);
}

TEST(SheetPrinter, DISABLED_InAProcessOfItsOwn) {
  realGetProcAddress = RealFunction("kernel32.dll", "GetProcAddress", &GetProcAddress);
  PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&FindInSpooler));
  TestSheet test;
  test.Properties().PrinterName.SetString(L"Invoices");
  events = &test.log;
  test.Drive([&](Sheet& sheet) -> SheetTask {
    CO_ASSERT_TRUE(test.log.size() > 4);
    EXPECT_EQ("open Invoices", test.log.front());
    EXPECT_EQ("ask", test.log[1]);
    const auto closed = std::find(test.log.begin(), test.log.end(), "close");
    CO_ASSERT_TRUE(closed + 1 < test.log.end());
    EXPECT_EQ("0/120 init", closed[1]);
    test.log.clear();
    sheet.PressCancel();
    co_return;
  });
  EXPECT_EQ(std::vector<std::string>(), test.log) << "nor later";
}

TEST(SheetPrinter, IsOpenedAndClosedBeforeTheFirstPageStarts) {
  const ProcessResult result =
      RunSelf(L"--gtest_also_run_disabled_tests --gtest_filter=SheetPrinter.DISABLED_InAProcessOfItsOwn");
  EXPECT_EQ(0u, result.exitCode) << result.output;
  EXPECT_NE(std::string::npos, result.output.find("[  PASSED  ] 1 test.")) << result.output;
}

}  // namespace
