#include "DriverLIB/CError.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "DriverLIB/Trace.h"
#include "support/TempFile.h"
#include "support/TracedThread.h"

namespace {

using Messages = std::vector<std::wstring>;

// The thread's state without a trace.
class CErrorTest : public testing::Test {
 protected:
  CError error{L"Name", L"1.0", 0x1000000, 5, L't', L""};
};

}  // namespace

TEST_F(CErrorTest, StartsWithoutError) {
  EXPECT_EQ(0u, error.code);
  EXPECT_EQ(0u, error.lastCode);
  EXPECT_EQ(0u, error.detailValue);
  EXPECT_TRUE(error.detail.IsEmpty());
  ASSERT_NE(nullptr, error.trace);
  EXPECT_FALSE(error.trace->IsOpen());
}

TEST_F(CErrorTest, TheFirstErrorWins) {
  EXPECT_EQ(0, SetError(&error, 29, "..\\NemUI", 220));
  EXPECT_EQ(0, SetError(&error, 99, "..\\NemUI", 275));
  EXPECT_EQ(29u, error.code);
}

TEST_F(CErrorTest, ReportErrorHandsTheCodeOver) {
  error.code = 47;
  error.detailValue = 3;
  error.detail.Assign(L"Name");
  EXPECT_EQ(0, ReportError(&error));
  EXPECT_EQ(0u, error.code);
  EXPECT_EQ(0u, error.detailValue);
  EXPECT_EQ(47u, error.lastCode);
  EXPECT_STREQ(L"Name", error.detail.Text());
}

TEST_F(CErrorTest, ResetErrorClearsEverything) {
  error.code = 47;
  error.lastCode = 29;
  error.detailValue = 3;
  error.detail.Assign(L"Name");
  ResetError(&error);
  EXPECT_EQ(0u, error.code);
  EXPECT_EQ(0u, error.lastCode);
  EXPECT_EQ(0u, error.detailValue);
  EXPECT_TRUE(error.detail.IsEmpty());
  EXPECT_EQ(nullptr, error.detail.Buffer());
}

TEST(CErrorWithoutState, NothingHappens) {
  EXPECT_EQ(0, SetError(nullptr, 29, "x", 1, L"detail"));
  EXPECT_EQ(0, ReportError(nullptr));
  ResetError(nullptr);
  TraceError(nullptr, L"%s", L"nowhere");
}

TEST(CErrorTrace, AFailedOpenIsErrorOne) {
  CError error(L"Name", L"1.0", 0x1000000, 5, L't', L"no_such_folder/trace.log");
  EXPECT_EQ(1u, error.code);
  EXPECT_FALSE(error.trace->IsOpen());
  EXPECT_STREQ(L"no_such_folder/trace.log", error.trace->configuredName.Text());
}

TEST(CErrorTrace, TheBannerNamesComponentAndSystem) {
  TempFile file("banner-x5.log");
  {
    CError error(L"Some Name", L"2.10.4 M7", 0x2100004, 5, L'x', L"banner.log");
    EXPECT_EQ(0u, error.code);
  }
  const std::wstring text = file.Text();
  const size_t banner = text.find(L"Some Name Version 2.10.4 M7 (0x02100004) vom ");
  ASSERT_NE(text.npos, banner);
  EXPECT_EQ(25u, banner);  // behind number and stamp of the first line
  const size_t end = text.find(L"\r\n");
  // date and time: "Mmm dd yyyy, hh:mm:ss"
  EXPECT_EQ(L", ", text.substr(end - 10, 2));
  EXPECT_EQ(L':', text[end - 3]);
  EXPECT_EQ(L':', text[end - 6]);

  platform::SystemVersion system{};
  ASSERT_TRUE(platform::GetSystemVersion(system));
  CUString expected;
  expected.Format(
      L"    Native/Win32: GetVersionEx(EX): %d.%d.%x, platform: 0x%x, product: 0x%x, suite: 0x%x, servicepack: "
      L"%d.%d\r\n",
      system.major, system.minor, system.build, system.platformId, system.productType, system.suiteMask,
      system.servicePackMajor, system.servicePackMinor);
  EXPECT_NE(text.npos, text.find(expected.Text()));
  EXPECT_EQ(text.size() - 15, text.rfind(L"Trace closed.\r\n"));
}

TEST(CErrorTrace, EachErrorIsALineOfItsOwn) {
  TracedThread thread;
  SetError(&thread.Error(), 99, "..\\NemUI", 207, L"Unknown");
  SetError(&thread.Error(), 29, "..\\NemUI", 220);
  SetError(&thread.Error(), 47, "..\\Property", 434, L"Some");
  ReportError(&thread.Error());
  SetError(&thread.Error(), 2, "..\\Property", 713);
  ReportError(&thread.Error());
  SetError(&thread.Error(), 3, "..\\Property", 743, L"");
  const Messages expected = {
      L"Error: Setze Fehler 99(Unknown) in ..\\NemUI(207)",
      L"Error: Aktueller Fehler: 99. Weiterer Fehler 29 in ..\\NemUI(220)",
      L"Error: Aktueller Fehler: 99. Weiterer Fehler 47(Some) in ..\\Property(434)",
      L"Error: Setze Fehler 2 in ..\\Property(713)",
      L"Error: Setze Fehler 3 in ..\\Property(743)",
  };
  EXPECT_EQ(expected, thread.Lines());
  EXPECT_EQ(5, thread.Error().trace->errorCount);
}

TEST(Trace, NarrowFormatsActAsWideOnes) {
  TracedThread thread;
  TraceInfo("Property %s = %d", L"Size", 7);
  TraceWarning("Getting Property \"%ls\"", L"\u20AC");
  TraceError("narrow %hs", "text");
  const Messages expected = {L"Property Size = 7", L"Getting Property \"\u20AC\"", L"narrow text"};
  EXPECT_EQ(expected, thread.Lines());
  EXPECT_EQ(1, thread.Error().trace->warningCount);
  EXPECT_EQ(1, thread.Error().trace->errorCount);
}

TEST(Trace, WideFormsTakeTheErrorState) {
  TracedThread thread;
  TraceInfo(&thread.Error(), L"a %s", L"b");
  TraceWarning(&thread.Error(), L"c");
  TraceError(&thread.Error(), L"d %d", 4);
  const Messages expected = {L"a b", L"c", L"d 4"};
  EXPECT_EQ(expected, thread.Lines());
  EXPECT_EQ(1, thread.Error().trace->warningCount);
  EXPECT_EQ(1, thread.Error().trace->errorCount);
}

TEST(Trace, WithoutAStateOrAnOpenTraceNothingIsFormatted) {
  // A text that is no text: whoever formatted it would crash.
  const auto* broken = reinterpret_cast<const wchar_t*>(uintptr_t{1});
  ASSERT_TRUE(threadError.Alloc());
  CError* outer = CurrentError();
  threadError.Set(nullptr);
  TraceInfo("%s", broken);
  TraceWarning("%s", broken);
  TraceError("%s", broken);
  CError closed(L"Name", L"1.0", 1, 5, L't', L"");
  threadError.Set(&closed);
  TraceInfo("%s", broken);
  TraceWarning("%s", broken);
  TraceError("%s", broken);
  TraceInfo(&closed, L"%s", broken);
  TraceWarning(&closed, L"%s", broken);
  TraceError(&closed, L"%s", broken);
  threadError.Set(outer);
  EXPECT_EQ(0, closed.trace->errorCount);
}

TEST(CThreadVar, EveryThreadHasItsOwnPointer) {
  CThreadVar<int> variable;
  int mine = 1, other = 2;
  EXPECT_EQ(nullptr, variable.Get());
  EXPECT_FALSE(variable.Set(&mine));  // no slot yet
  ASSERT_TRUE(variable.Alloc());
  EXPECT_EQ(nullptr, variable.Get());
  EXPECT_TRUE(variable.Set(&mine));
  EXPECT_TRUE(variable.Alloc());  // keeps the slot and the pointer
  EXPECT_EQ(&mine, variable.Get());
  int* before = &mine;
  int* after = nullptr;
  std::thread([&] {
    before = variable.Get();
    variable.Set(&other);
    after = variable.Get();
  }).join();
  EXPECT_EQ(nullptr, before);
  EXPECT_EQ(&other, after);
  EXPECT_EQ(&mine, variable.Get());
  EXPECT_TRUE(variable.Free());
  EXPECT_EQ(nullptr, variable.Get());
  EXPECT_FALSE(variable.Set(&mine));
  EXPECT_TRUE(variable.Free());  // none held is success
}

TEST(CThreadVar, AFreshSlotStartsWithNull) {
  int value = 1;
  for (int i = 0; i < 3; ++i) {  // the platform hands the same slot out again
    CThreadVar<int> variable;
    ASSERT_TRUE(variable.Alloc());
    EXPECT_EQ(nullptr, variable.Get());
    variable.Set(&value);
  }
}

TEST(CThreadVar, InitForgetsTheSlot) {
  CThreadVar<int> variable;
  int value = 1;
  ASSERT_TRUE(variable.Alloc());
  variable.Set(&value);
  EXPECT_TRUE(variable.Init());
  EXPECT_EQ(nullptr, variable.Get());
  EXPECT_FALSE(variable.Set(&value));
  ASSERT_TRUE(variable.Alloc());  // another one: nobody has given the first one back
  EXPECT_EQ(nullptr, variable.Get());
}

TEST(CThreadVar, GetLeavesTheSystemsLastErrorAlone) {
  CThreadVar<int> variable;
  ASSERT_TRUE(variable.Alloc());
  platform::SetLastError(1234);
  variable.Get();
  EXPECT_EQ(1234u, platform::LastError());
}
