#include <windows.h>

#include "environment/PrinterQueries.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "driver/ImportPatch.h"
#include "environment/CPrinterHandle.h"
#include "support/FailingNew.h"
#include "support/PrintText.h"
#include "support/TestPrinter.h"
#include "support/TracedThread.h"

namespace {

using Lines = std::vector<std::wstring>;

const HANDLE kNoPrinter = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(0x7FFF));

class PrinterQueriesTest : public testing::Test {
 protected:
  TestDriver driver;
  TestPrinter printer{L"Alpha"};
  TracedThread thread;

  int32_t Errors() { return thread.Error().trace->errorCount; }
  void SetData(const wchar_t* name, DWORD type, const void* bytes, size_t size) {
    EXPECT_EQ(static_cast<DWORD>(ERROR_SUCCESS),
              SetPrinterDataW(printer.Handle(), const_cast<wchar_t*>(name), type,
                              static_cast<BYTE*>(const_cast<void*>(bytes)), static_cast<DWORD>(size)));
  }
};

// What an allocation does instead: fail, or close a printer behind the back of whoever has asked for its size.
enum class OnAllocation { kFail, kClosePrinter };
OnAllocation onAllocation;
HANDLE printerToClose;
UINT globalFlags;  // of the last allocation

const auto realGlobalAlloc = RealFunction("kernel32.dll", "GlobalAlloc", &GlobalAlloc);
const auto realLocalAlloc = RealFunction("kernel32.dll", "LocalAlloc", &LocalAlloc);

bool Grants() {
  if (onAllocation == OnAllocation::kFail) return false;
  if (const HANDLE printer = std::exchange(printerToClose, nullptr)) ClosePrinter(printer);
  return true;
}
HGLOBAL WINAPI PatchedGlobalAlloc(UINT flags, SIZE_T size) {
  globalFlags = flags;
  return Grants() ? realGlobalAlloc(flags, size) : nullptr;
}
HLOCAL WINAPI PatchedLocalAlloc(UINT flags, SIZE_T size) { return Grants() ? realLocalAlloc(flags, size) : nullptr; }

struct PatchedAllocation {
  explicit PatchedAllocation(OnAllocation behaviour, HANDLE printer = nullptr) {
    onAllocation = behaviour;
    printerToClose = printer;
    PatchImport("kernel32.dll", "GlobalAlloc", reinterpret_cast<void*>(&PatchedGlobalAlloc));
    PatchImport("kernel32.dll", "LocalAlloc", reinterpret_cast<void*>(&PatchedLocalAlloc));
  }
  ~PatchedAllocation() {
    RestoreImport("kernel32.dll", "GlobalAlloc");
    RestoreImport("kernel32.dll", "LocalAlloc");
  }
};

// A further handle of the printer, for tests that lose it.
HANDLE OpenAgain(const TestPrinter& printer) {
  HANDLE handle = nullptr;
  EXPECT_TRUE(spooler::OpenPrinterW(printer.Name().c_str(), &handle));
  return handle;
}

// The line with the size of a block, which depends on the system.
void ExpectAllocationLine(const Lines& lines, std::wstring_view head) {
  ASSERT_EQ(1u, lines.size());
  EXPECT_EQ(0u, lines[0].find(head));
  EXPECT_NE(std::wstring::npos, lines[0].find(L") failed"));
}

}  // namespace

// --- Records -----------------------------------------------------------------------------------------------------

TEST_F(PrinterQueriesTest, GiveThePrintersRecord) {
  const GlobalBlock block = GetPrinterInfo(printer.Handle(), 2);
  ASSERT_TRUE(block);
  const auto& info = *reinterpret_cast<const PRINTER_INFO_2W*>(block.get());
  EXPECT_STREQ(L"Alpha", info.pPrinterName);
  EXPECT_STREQ(kTestDriverName, info.pDriverName);
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST_F(PrinterQueriesTest, GiveTheDriversRecord) {
  const LocalBlock block = GetDriverInfo(printer.Handle(), 2);
  ASSERT_TRUE(block);
  EXPECT_STREQ(kTestDriverName, reinterpret_cast<const DRIVER_INFO_2W*>(block.get())->pName);
  EXPECT_EQ(driver.Directory(), GetDriverDirectory(printer.Handle()).Text());
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST_F(PrinterQueriesTest, TraceAHandleThatIsNoPrinters) {
  EXPECT_FALSE(GetPrinterInfo(kNoPrinter, 2));
  EXPECT_EQ(Lines{L"GetPrinterInfo2: GetPrinterPrinter(1st) error=00000006"}, thread.Lines());
  EXPECT_FALSE(GetDriverInfo(kNoPrinter, 3));
  EXPECT_EQ(Lines{L"GetDriverInfo3: GetPrinterDriver(1st) error=00000006"}, thread.Lines());
  EXPECT_EQ(2, Errors());
  EXPECT_TRUE(GetDriverDirectory(kNoPrinter).IsEmpty());
}

TEST_F(PrinterQueriesTest, TraceExhaustedMemory) {
  const PatchedAllocation patched(OnAllocation::kFail);
  EXPECT_FALSE(GetPrinterInfo(printer.Handle(), 2));
  ExpectAllocationLine(thread.Lines(), L"GetPrinterInfo2: GlobalAlloc(");
  EXPECT_FALSE(GetDriverInfo(printer.Handle(), 2));
  ExpectAllocationLine(thread.Lines(), L"GetDriverInfo2: LocalAlloc(");
  EXPECT_EQ(2, Errors());
}

TEST_F(PrinterQueriesTest, ZeroTheBlocksThatGlobalFreeTakes) {
  SetData(L"Bytes", REG_BINARY, "ab", 2);
  const PatchedAllocation patched(OnAllocation::kClosePrinter);
  globalFlags = 0;
  EXPECT_TRUE(GetPrinterInfo(printer.Handle(), 2));
  EXPECT_TRUE(globalFlags & GMEM_ZEROINIT);
  globalFlags = 0;
  EXPECT_TRUE(GetPrinterRegData(printer.Handle(), L"Bytes"));
  EXPECT_TRUE(globalFlags & GMEM_ZEROINIT);
}

TEST_F(PrinterQueriesTest, TraceAPrinterThatGoesMeanwhile) {
  for (const bool ofDriver : {false, true}) {
    const HANDLE handle = OpenAgain(printer);
    const PatchedAllocation patched(OnAllocation::kClosePrinter, handle);
    if (ofDriver)
      EXPECT_FALSE(GetDriverInfo(handle, 2));
    else
      EXPECT_FALSE(GetPrinterInfo(handle, 2));
    EXPECT_EQ(Lines{ofDriver ? L"GetDriverInfo2: GetPrinterDriver(2nd) error=00000006"
                             : L"GetPrinterInfo2: GetPrinterPrinter(2nd) error=00000006"},
              thread.Lines());
  }
  EXPECT_EQ(2, Errors());
}

// --- Printer data ------------------------------------------------------------------------------------------------

TEST_F(PrinterQueriesTest, GivePrinterDataAsItIsStored) {
  const BYTE bytes[] = {1, 0, 2};
  SetData(L"Bytes", REG_BINARY, bytes, sizeof bytes);
  DWORD size = 99;
  const GlobalBlock block = GetPrinterRegData(printer.Handle(), L"Bytes", &size);
  ASSERT_TRUE(block);
  ASSERT_EQ(sizeof bytes, size);
  EXPECT_EQ(0, memcmp(bytes, block.get(), sizeof bytes));
  EXPECT_TRUE(GetPrinterRegData(printer.Handle(), L"Bytes"));
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST_F(PrinterQueriesTest, TellPlainlyOfMissingData) {
  DWORD size = 99;
  EXPECT_FALSE(GetPrinterRegData(printer.Handle(), L"Missing", &size));
  EXPECT_EQ(0u, size);
  EXPECT_TRUE(GetPrinterDataText(printer.Handle(), L"Missing").IsEmpty());
  EXPECT_EQ((Lines{2, L"GetPrinterRegData: GetPrinterData(Missing) not found"}), thread.Lines());
  EXPECT_EQ(0, Errors());
}

TEST_F(PrinterQueriesTest, TraceDataThatCannotBeRead) {
  DWORD size = 99;
  EXPECT_FALSE(GetPrinterRegData(kNoPrinter, L"Bytes", &size));
  EXPECT_EQ(0u, size);
  EXPECT_EQ(Lines{L"GetPrinterRegData: 1st GetPrinterData(Bytes) failed, Error=6"}, thread.Lines());

  SetData(L"Bytes", REG_BINARY, "ab", 2);
  const HANDLE handle = OpenAgain(printer);
  const PatchedAllocation patched(OnAllocation::kClosePrinter, handle);
  size = 99;
  EXPECT_FALSE(GetPrinterRegData(handle, L"Bytes", &size));
  EXPECT_EQ(0u, size);
  EXPECT_EQ(Lines{L"GetPrinterRegData: 2nd GetPrinterData(Bytes) failed, Error=6"}, thread.Lines());
  EXPECT_EQ(2, Errors());
}

TEST_F(PrinterQueriesTest, GiveNoDataWithoutMemory) {
  SetData(L"Bytes", REG_BINARY, "ab", 2);
  const PatchedAllocation patched(OnAllocation::kFail);
  DWORD size = 99;
  EXPECT_FALSE(GetPrinterRegData(printer.Handle(), L"Bytes", &size));
  EXPECT_EQ(0u, size);
  EXPECT_EQ(Lines{}, thread.Lines()) << "nothing is read a second time";
}

TEST_F(PrinterQueriesTest, GivePrinterDataAsLines) {
  struct {
    DWORD type;
    std::wstring stored;
    std::wstring text;
  } const cases[] = {
      {REG_SZ, std::wstring(L"one\0", 4), L"one"},
      {REG_BINARY, L"unterminated", L"unterminated"},
      {REG_BINARY, std::wstring(L"one\0two\0", 8), L"one\ntwo"},
      {REG_MULTI_SZ, std::wstring(L"one\0two\0\0", 9), L"one\ntwo\n"},
      {REG_BINARY, std::wstring(L"\0", 1), L""},
  };
  for (const auto& row : cases) {
    SetData(L"NoticeText", row.type, row.stored.data(), row.stored.size() * sizeof(wchar_t));
    const CUString text = GetPrinterDataText(printer.Handle(), L"NoticeText");
    EXPECT_TRUE(text == row.text) << testing::PrintToString(text);
    EXPECT_EQ(row.text.size(), static_cast<size_t>(text.Length()));
  }
}

// --- Handles -----------------------------------------------------------------------------------------------------

TEST_F(PrinterQueriesTest, KnowAPrintersHandle) {
  EXPECT_TRUE(IsValidPrinterHandle(printer.Handle()));
  EXPECT_FALSE(IsValidPrinterHandle(kNoPrinter));
  EXPECT_FALSE(IsValidPrinterHandle(nullptr));
}

TEST_F(PrinterQueriesTest, KnowThatALocalPrinterHasNoServer) {
  EXPECT_FALSE(IsServerPrinterHandle(printer.Handle()));
  EXPECT_FALSE(IsServerPrinter(L"Alpha"));
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST_F(PrinterQueriesTest, WarnWhenTheServerIsNotKnown) {
  EXPECT_FALSE(IsServerPrinterHandle(kNoPrinter));
  const Lines expected = {L"GetPrinterInfo2: GetPrinterPrinter(1st) error=00000006",
                          L"IsServerPrinter: can not get PrinterInfo and server name"};
  EXPECT_EQ(expected, thread.Lines());
  EXPECT_EQ(1, thread.Error().trace->warningCount);
}

TEST_F(PrinterQueriesTest, TellPlainlyOfAPrinterThatIsNotThere) {
  EXPECT_FALSE(IsServerPrinter(L"No such printer"));
  EXPECT_EQ(Lines{L"IsServerPrinter: Invalid printer handle 0"}, thread.Lines());
  EXPECT_EQ(0, Errors());
}

// --- Names -------------------------------------------------------------------------------------------------------

namespace {

Lines Names(const wchar_t* driverName) {
  CUStringArray names;
  names.Add(L"old");
  EXPECT_TRUE(GetPrinterNames(names, driverName));
  Lines result;
  for (int i = 0; i < names.Count(); ++i) result.emplace_back(names[i].Text());
  return result;
}

}  // namespace

TEST_F(PrinterQueriesTest, ListThePrintersOfADriver) {
  const TestDriver other(L"Other driver");
  const TestPrinter elsewhere(L"Elsewhere", L"Other driver");
  EXPECT_EQ(Lines{L"Alpha"}, Names(kTestDriverName));
  EXPECT_EQ(Lines{L"Alpha"}, Names(L"nem PDF Vonder"));
  EXPECT_EQ(Lines{L"Elsewhere"}, Names(L"Other driver"));
  EXPECT_EQ(Lines{}, Names(L"No driver"));
}

TEST_F(PrinterQueriesTest, ListThePrinterThatIsNamedLikeItsDriverFirst) {
  const TestPrinter like(kTestDriverName);
  EXPECT_EQ((Lines{kTestDriverName, L"Alpha"}), Names(kTestDriverName));
}

TEST_F(PrinterQueriesTest, APrinterThatIsNamedAlmostLikeItsDriverHasNoPrecedence) {
  const TestPrinter almost(L"nem PDF vonder");
  EXPECT_EQ((Lines{L"Alpha", L"nem PDF vonder"}), Names(kTestDriverName));
}

TEST_F(PrinterQueriesTest, ThatPrinterChangesPlacesWithTheFirst) {
  const TestPrinter second(L"Beta"), like(kTestDriverName);
  ASSERT_EQ((Lines{kTestDriverName, L"Beta", L"Alpha"}), Names(kTestDriverName));
}

TEST_F(PrinterQueriesTest, ListNothingWithoutADriverName) {
  CUStringArray names;
  names.Add(L"old");
  EXPECT_FALSE(GetPrinterNames(names, nullptr));
  EXPECT_EQ(0, names.Count());
}

TEST_F(PrinterQueriesTest, ListNothingWithoutMemory) {
  CUStringArray names;
  const PatchedAllocation patched(OnAllocation::kFail);
  EXPECT_FALSE(GetPrinterNames(names, kTestDriverName));
}

TEST_F(PrinterQueriesTest, ListNothingWhenTheListCannotGrow) {
  CUStringArray names;
  bool listed = true;
  {
    const FailingNew exhausted;
    listed = GetPrinterNames(names, kTestDriverName);
  }
  EXPECT_FALSE(listed);
}
