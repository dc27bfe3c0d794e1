#include "DriverLIB/ATraceFile.h"

#include <gtest/gtest.h>

#include <cstdarg>
#include <functional>
#include <string>
#include <vector>

#include "support/TempFile.h"

namespace {

// Calls a hook from inside each write.
class HookedTrace : public ATraceFile {
 public:
  std::function<void()> duringWrite;
  std::vector<uint32_t> writes;  // bytes of each

  void Warning(const wchar_t* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    WarningV(format, arguments);
    va_end(arguments);
  }
  void Error(const wchar_t* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    ErrorV(format, arguments);
    va_end(arguments);
  }

 protected:
  bool DoWrite(const void* data, uint32_t elementSize, uint32_t count) override {
    writes.push_back(count);
    const std::function<void()> hook = std::move(duringWrite);
    duringWrite = nullptr;
    if (hook) hook();
    return ATraceFile::DoWrite(data, elementSize, count);
  }
};

bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

// "dd.mm.yyyy hh:mm:ss " at that place.
bool HasStamp(const std::wstring& line, size_t at) {
  const std::wstring_view pattern = L"dd.dd.dddd dd:dd:dd ";
  if (line.size() < at + pattern.size()) return false;
  for (size_t i = 0; i < pattern.size(); ++i)
    if (pattern[i] == L'd' ? !IsDigit(line[at + i]) : line[at + i] != pattern[i]) return false;
  return true;
}

constexpr size_t kNumberLength = 5;
constexpr size_t kStampLength = 20;

class ATraceFileTest : public testing::Test {
 protected:
  TempFile temp{"trace_test-t17.log"};
  HookedTrace trace;

  bool Open() { return trace.OpenTrace(L"trace_test.log", 17, L't'); }
  std::wstring MessageOf(const std::wstring& line) { return line.substr(kNumberLength + kStampLength); }
};

}  // namespace

TEST(ATraceFile, TheThreadsNameGoesBeforeTheLastDot) {
  struct {
    const wchar_t* configured;
    const wchar_t* opened;
  } const rows[] = {
      {L"no_such_folder/trace.log", L"no_such_folder/trace-t17.log"},
      {L"no_such_folder/a.b.log", L"no_such_folder/a.b-t17.log"},
      {L"no_such.folder/trace", L"no_such-t17.folder/trace"},  // the folder's dot is taken
      {L"no_such_folder/trace", L"no_such_folder/trace-t17"},
      {L"no_such_folder/trace.", L"no_such_folder/trace-t17."},
  };
  for (const auto& row : rows) {
    ATraceFile trace;
    EXPECT_FALSE(trace.OpenTrace(row.configured, 17, L't'));
    EXPECT_STREQ(row.configured, trace.configuredName.Text());
    EXPECT_STREQ(row.opened, trace.fileName.Text());
  }
}

TEST(ATraceFile, KindAndThreadMakeUpTheName) {
  ATraceFile trace;
  EXPECT_FALSE(trace.OpenTrace(L"no_such_folder/x.log", 0xFFFFFFFF, L'q'));
  EXPECT_STREQ(L"no_such_folder/x-q4294967295.log", trace.fileName.Text());
  EXPECT_EQ(0xFFFFFFFFu, trace.threadId);
  EXPECT_EQ(L'q', trace.kind);
}

TEST(ATraceFile, NoNameMeansNoTraceAndNoFailure) {
  for (const wchar_t* name : {static_cast<const wchar_t*>(nullptr), L""}) {
    ATraceFile trace;
    EXPECT_TRUE(trace.OpenTrace(name, 17, L't'));
    EXPECT_FALSE(trace.IsOpen());
    trace.Info(L"nowhere");
    EXPECT_EQ(0, trace.lineCount);
  }
}

TEST_F(ATraceFileTest, ALineIsNumberStampAndMessage) {
  ASSERT_TRUE(Open());
  trace.Info(L"GetDriverInfo2: LocalAlloc(%d) %s %hs", 312, L"failed", "here");
  const std::wstring text = temp.Text();
  EXPECT_EQ(L"   1 ", text.substr(0, kNumberLength));
  EXPECT_TRUE(HasStamp(text, kNumberLength));
  EXPECT_EQ(L"GetDriverInfo2: LocalAlloc(312) failed here\r\n", MessageOf(text));
}

TEST_F(ATraceFileTest, TextIs16BitLittleEndianWithoutAMark) {
  ASSERT_TRUE(Open());
  trace.Info(L"\u20AC");
  const std::string bytes = temp.Bytes();
  EXPECT_EQ(' ', bytes[0]);
  EXPECT_EQ('\0', bytes[1]);
  EXPECT_EQ(std::string("\xAC\x20\r\0\n\0", 6), bytes.substr(bytes.size() - 6));
}

TEST_F(ATraceFileTest, ALineIsOneWrite) {
  ASSERT_TRUE(Open());
  trace.Info(L"abc");
  const std::vector<uint32_t> expected = {2 * (kNumberLength + kStampLength + 3 + 2)};
  EXPECT_EQ(expected, trace.writes);
}

TEST_F(ATraceFileTest, TheNumberHasFourPlacesOrMore) {
  ASSERT_TRUE(Open());
  trace.lineCount = 16;
  trace.Info(L"a");
  trace.lineCount = 9999;
  trace.Info(L"b");
  const std::wstring text = temp.Text();
  EXPECT_EQ(L"  17 ", text.substr(0, kNumberLength));
  const size_t second = text.find(L"\r\n") + 2;
  EXPECT_EQ(L"10000 ", text.substr(second, kNumberLength + 1));
  EXPECT_TRUE(HasStamp(text, second + kNumberLength + 1));
}

TEST_F(ATraceFileTest, AMessageIsCutAt8192Characters) {
  ASSERT_TRUE(Open());
  const std::wstring longText(9000, L'x');
  trace.Error(L"%s", longText.c_str());
  EXPECT_EQ(std::wstring(8192, L'x') + L"\r\n", MessageOf(temp.Text()));
  EXPECT_EQ(std::wstring(L"trace_test-t17.log (0): ") + std::wstring(8192, L'x') + L" \r\n",
            trace.summary.GetAt(0).Text());
}

TEST_F(ATraceFileTest, AnExistingFileIsExtendedAndLinesCountFromOneAgain) {
  ASSERT_TRUE(Open());
  trace.Info(L"first");
  trace.Close();
  const std::wstring before = temp.Text();
  HookedTrace second;
  ASSERT_TRUE(second.OpenTrace(L"trace_test.log", 17, L't'));
  second.Info(L"second");
  const std::wstring after = temp.Text();
  EXPECT_EQ(before, after.substr(0, before.size()));
  EXPECT_EQ(L"   1 ", after.substr(before.size(), kNumberLength));
  EXPECT_EQ(L"second\r\n", MessageOf(after.substr(before.size())));
}

TEST_F(ATraceFileTest, LevelsDifferInCounterAndSummary) {
  ASSERT_TRUE(Open());
  trace.Info(L"plain");
  trace.Warning(L"careful %d", 1);
  trace.Error(L"wrong %s", L"2");
  trace.Error(L"worse");
  EXPECT_EQ(4, trace.lineCount);
  EXPECT_EQ(1, trace.warningCount);
  EXPECT_EQ(2, trace.errorCount);
  ASSERT_EQ(3, trace.summary.Count());
  EXPECT_STREQ(L"trace_test-t17.log (1): careful 1 \r\n", trace.summary.GetAt(0).Text());
  EXPECT_STREQ(L"trace_test-t17.log (2): wrong 2 \r\n", trace.summary.GetAt(1).Text());
  EXPECT_STREQ(L"trace_test-t17.log (3): worse \r\n", trace.summary.GetAt(2).Text());
}

TEST_F(ATraceFileTest, AClosedTraceCountsNothing) {
  trace.Warning(L"a");
  trace.Error(L"b");
  EXPECT_EQ(0, trace.warningCount);
  EXPECT_EQ(0, trace.errorCount);
  EXPECT_EQ(0, trace.lineCount);
  EXPECT_EQ(0, trace.summary.Count());
  EXPECT_FALSE(temp.Exists());
}

TEST_F(ATraceFileTest, ATraceCallFromInsideTheTraceWritesNothing) {
  ASSERT_TRUE(Open());
  trace.duringWrite = [&] {
    trace.Info(L"inner");
    trace.Error(L"inner error");
  };
  trace.Info(L"outer");
  trace.Info(L"next");
  EXPECT_EQ(2u, trace.writes.size());
  EXPECT_EQ(2, trace.lineCount);
  EXPECT_EQ(1, trace.errorCount);  // it is counted all the same
  const std::wstring text = temp.Text();
  EXPECT_EQ(text.npos, text.find(L"inner"));
  EXPECT_NE(text.npos, text.find(L"next"));
}

TEST_F(ATraceFileTest, AThrowFromInsideALineLeavesTheTraceUsable) {
  ASSERT_TRUE(Open());
  trace.duringWrite = [] { throw 1; };
  EXPECT_ANY_THROW(trace.Info(L"lost"));
  trace.Info(L"next");
  EXPECT_EQ(L"next\r\n", MessageOf(temp.Text()));
}

TEST_F(ATraceFileTest, CloseTraceWritesTheLastLineOnce) {
  {
    HookedTrace inner;
    ASSERT_TRUE(inner.OpenTrace(L"trace_test.log", 17, L't'));
    inner.CloseTrace();
    EXPECT_FALSE(inner.IsOpen());
    inner.CloseTrace();
  }
  EXPECT_EQ(L"Trace closed.\r\n", MessageOf(temp.Text()));
}

TEST_F(ATraceFileTest, EachOpeningCountsFromZero) {
  ASSERT_TRUE(Open());
  trace.Warning(L"careful");
  trace.Error(L"wrong");
  trace.CloseTrace();
  ASSERT_TRUE(Open());
  EXPECT_EQ(0, trace.lineCount);
  EXPECT_EQ(0, trace.warningCount);
  EXPECT_EQ(0, trace.errorCount);
}

TEST_F(ATraceFileTest, TheDestructorClosesTheTrace) {
  {
    ATraceFile inner;
    ASSERT_TRUE(inner.OpenTrace(L"trace_test.log", 17, L't'));
  }
  EXPECT_EQ(L"Trace closed.\r\n", MessageOf(temp.Text()));
}

TEST_F(ATraceFileTest, TheSystemsLastErrorSurvivesALine) {
  ASSERT_TRUE(Open());
  trace.duringWrite = [] { platform::SetLastError(99); };
  platform::SetLastError(1234);
  trace.Info(L"x");
  EXPECT_EQ(1234u, platform::LastError());
}

TEST(TimeStamp, IsTheLocalTimeWithTheDayFirst) {
  platform::LocalTime before{}, after{};
  wchar_t stamp[kTimeStampSize];
  do {
    before = platform::GetLocalTime();
    FormatTimeStamp(stamp);
    after = platform::GetLocalTime();
  } while (before.second != after.second);
  CUString expected;
  expected.Format(L"%02d.%02d.%04d %02d:%02d:%02d ", before.day, before.month, before.year, before.hour, before.minute,
                  before.second);
  EXPECT_STREQ(expected.Text(), stamp);
}

TEST(TimeStamp, HasTheFormOfTracesAndLogs) {
  wchar_t stamp[kTimeStampSize];
  FormatTimeStamp(stamp);
  EXPECT_EQ(kStampLength, std::wstring_view(stamp).size());
  EXPECT_TRUE(HasStamp(stamp, 0));
}
