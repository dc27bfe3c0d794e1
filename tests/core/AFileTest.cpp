#include "DriverLIB/AFile.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "DriverLIB/MessageText.h"
#include "support/TempFile.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

// Counts what reaches the platform, and fails it on demand.
class WatchedFile : public AFile {
 public:
  using AFile::AFile;

  OpenFlags FlagsRead() { return OpenFlagsRead(); }
  OpenFlags FlagsWrite() { return OpenFlagsWrite(); }
  OpenFlags FlagsAppend() { return OpenFlagsAppend(); }
  FileMode Mode() const { return mode_; }
  platform::FileHandle Handle() const { return handle_; }
  void BreakHandle() { platform::CloseFile(handle_); }
  bool RawLine(char* buffer, uint32_t size) { return ReadRawLine(buffer, size); }

  int opens = 0;
  bool refuseClose = false;
  std::wstring report;

  bool Close() override { return !refuseClose && AFile::Close(); }

 protected:
  bool DoOpen(const OpenFlags& flags) override {
    ++opens;
    return AFile::DoOpen(flags);
  }
  bool ReportFileError(const wchar_t* format, const wchar_t* name, const wchar_t* error) override {
    CUString text;
    text.Format(format, name, L"E");
    report = text.Text();
    EXPECT_STRNE(L"", error);
    EXPECT_EQ(errorText.Text(), error);
    return AFile::ReportFileError(format, name, error);
  }
};

// Has steps that only note how they were called.
class SteppingFile : public AFile {
 public:
  SteppingFile() : AFile(L"steps") {}

  std::vector<std::string> steps;
  bool refuseWrite = false;

  // The steps since the last call.
  std::vector<std::string> Taken() { return std::exchange(steps, {}); }

 protected:
  void Note(const std::string& step, int64_t first, int64_t second = 0, int64_t third = 0) {
    steps.push_back(step + " " + std::to_string(first) + " " + std::to_string(second) + " " + std::to_string(third));
  }
  OpenFlags OpenFlagsRead() override { return {11, 12, 13}; }
  OpenFlags OpenFlagsWrite() override { return {21, 22, 23}; }
  OpenFlags OpenFlagsAppend() override { return {31, 32, 33}; }
  bool DoOpen(const OpenFlags& flags) override {
    Note("open", flags.access, flags.share, flags.disposition);
    return true;
  }
  bool DoClose() override {
    Note("close", 0);
    return true;
  }
  bool DoRead(void*, uint32_t elementSize, uint32_t count, uint32_t& bytesRead) override {
    Note("read", elementSize, count);
    bytesRead = 0;
    return true;
  }
  bool DoWrite(const void*, uint32_t elementSize, uint32_t count) override {
    Note("write", elementSize, count);
    return !refuseWrite;
  }
  bool DoSeek(int64_t offset, uint32_t origin) override {
    Note("seek", offset, origin);
    return true;
  }
};

struct Line {
  bool result;
  std::string text;
  bool complete;
  bool operator==(const Line&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Line& line) {
  return out << line.result << " \"" << line.text << "\" " << line.complete;
}

Line ReadLineOf(AFile& file, uint32_t size = 1000) {
  std::string buffer(size, 'x');
  Line line{};
  line.complete = true;
  line.result = file.ReadLine(buffer.data(), size, line.complete);
  line.text = buffer.c_str();
  return line;
}

class AFileTest : public testing::Test {
 protected:
  TempFile temp{"afile_test.tmp"};
  WatchedFile file{temp.Name()};

  void OpenWith(std::string_view bytes) {
    temp.Put(bytes);
    ASSERT_TRUE(file.OpenRead());
  }
};

}  // namespace

TEST_F(AFileTest, AnEmptyNameNeverReachesThePlatform) {
  WatchedFile nameless;
  EXPECT_FALSE(nameless.OpenRead());
  EXPECT_FALSE(nameless.OpenWrite());
  EXPECT_FALSE(nameless.OpenAppend());
  EXPECT_EQ(0u, nameless.GetSize());
  EXPECT_EQ(0, nameless.opens);
}

TEST_F(AFileTest, EveryOperationGoesThroughItsStep) {
  using Steps = std::vector<std::string>;
  SteppingFile stepping;
  char buffer[8];
  uint32_t count = 0;
  EXPECT_TRUE(stepping.OpenRead());
  EXPECT_EQ(Steps{"open 11 12 13"}, stepping.Taken());
  EXPECT_TRUE(stepping.OpenWrite());
  EXPECT_EQ((Steps{"close 0 0 0", "open 21 22 23"}), stepping.Taken());
  EXPECT_TRUE(stepping.OpenAppend());
  EXPECT_EQ((Steps{"close 0 0 0", "open 31 32 33", "seek 0 2 0"}), stepping.Taken());
  EXPECT_TRUE(stepping.Read(buffer, 2, 8, count));
  EXPECT_TRUE(stepping.ReadAll(buffer, 4, 7));
  EXPECT_EQ((Steps{"read 2 8 0", "read 4 7 0"}), stepping.Taken());
  EXPECT_TRUE(stepping.Write(buffer, 2, 6, count));
  EXPECT_EQ(Steps{"write 2 6 0"}, stepping.Taken());
  EXPECT_TRUE(stepping.WriteLine(L"abc", true));
  EXPECT_EQ((Steps{"write 2 6 0", "write 2 4 0"}), stepping.Taken());
  EXPECT_TRUE(stepping.SeekSet(5));
  EXPECT_TRUE(stepping.SeekEnd(-6));
  EXPECT_TRUE(stepping.SeekCur(7));
  EXPECT_EQ((Steps{"seek 5 0 0", "seek -6 2 0", "seek 7 1 0"}), stepping.Taken());
  bool complete = false;
  EXPECT_TRUE(stepping.ReadLine(buffer, 8, complete));
  EXPECT_EQ(Steps{"read 1 7 0"}, stepping.Taken());
  EXPECT_TRUE(stepping.Close());
  EXPECT_EQ(Steps{"close 0 0 0"}, stepping.Taken());
}

TEST_F(AFileTest, LinesAndWholeReadsGoThroughTheOperationsBetween) {
  class Between : public SteppingFile {
   public:
    bool Read(void*, uint32_t, uint32_t count, uint32_t&) override {
      Note("Read", count);
      return true;
    }

   protected:
    bool WriteText(const wchar_t*, bool appendLineEnd) override {
      Note("WriteText", appendLineEnd);
      return true;
    }
    bool ReadRawLine(char* buffer, uint32_t size) override {
      Note("ReadRawLine", size);
      buffer[0] = 0;
      return true;
    }
  } between;
  char buffer[8];
  bool complete = false;
  EXPECT_TRUE(between.ReadAll(buffer, 1, 8));
  EXPECT_TRUE(between.WriteLine(L"x", true));
  EXPECT_TRUE(between.ReadLine(buffer, 8, complete));
  EXPECT_EQ((std::vector<std::string>{"Read 8 0 0", "WriteText 1 0 0", "ReadRawLine 8 0 0"}), between.Taken());
}

TEST_F(AFileTest, NoLineEndFollowsATextThatCouldNotBeWritten) {
  SteppingFile stepping;
  stepping.refuseWrite = true;
  EXPECT_FALSE(stepping.WriteLine(L"abc", true));
  EXPECT_EQ(std::vector<std::string>{"write 2 6 0"}, stepping.Taken());
}

TEST_F(AFileTest, AccessShareAndDispositionOfEachOpen) {
  const OpenFlags read = file.FlagsRead(), write = file.FlagsWrite(), append = file.FlagsAppend();
  EXPECT_EQ(0x80000000u, read.access);
  EXPECT_EQ(3u, read.share);
  EXPECT_EQ(3u, read.disposition);  // open existing
  EXPECT_EQ(0x40000000u, write.access);
  EXPECT_EQ(1u, write.share);
  EXPECT_EQ(2u, write.disposition);  // create always
  EXPECT_EQ(0xC0000000u, append.access);
  EXPECT_EQ(1u, append.share);
  EXPECT_EQ(4u, append.disposition);  // open always
}

TEST_F(AFileTest, ModeFollowsOpenAndClose) {
  EXPECT_FALSE(file.IsOpen());
  ASSERT_TRUE(file.OpenWrite());
  EXPECT_EQ(FileMode::Write, file.Mode());
  ASSERT_TRUE(file.OpenRead());  // closes first
  EXPECT_EQ(FileMode::Read, file.Mode());
  ASSERT_TRUE(file.OpenAppend());
  EXPECT_EQ(FileMode::ReadWrite, file.Mode());
  EXPECT_TRUE(file.IsOpen());
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(FileMode::Closed, file.Mode());
  EXPECT_EQ(platform::kInvalidFile, file.Handle());
  EXPECT_TRUE(file.Close());  // closing twice is fine
}

TEST_F(AFileTest, AFileThatCannotBeClosedIsNotOpenedAgain) {
  ASSERT_TRUE(file.OpenWrite());
  file.refuseClose = true;
  EXPECT_FALSE(file.OpenRead());
  EXPECT_EQ(FileMode::Write, file.Mode());
}

TEST_F(AFileTest, AMissingFileKeepsTheSystemError) {
  EXPECT_EQ(0u, file.lastError);
  EXPECT_FALSE(file.OpenRead());
  EXPECT_EQ(platform::kInvalidFile, file.Handle());
  EXPECT_EQ(FileMode::Closed, file.Mode());
  EXPECT_EQ(2u, file.lastError);  // file not found
  CUString expected;
  GetSystemErrorText(expected, 2);
  EXPECT_EQ(expected, file.errorText);
  EXPECT_EQ(L"Kann die Datei afile_test.tmp nicht \u00F6ffnen: E.", file.report);
}

TEST_F(AFileTest, TheLastFailureStaysUntilTheNext) {
  EXPECT_FALSE(file.OpenRead());
  const CUString text = file.errorText;
  ASSERT_TRUE(file.OpenAppend());
  EXPECT_TRUE(file.WriteLine(L"x", true));
  EXPECT_TRUE(file.SeekSet(0));
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(2u, file.lastError);
  EXPECT_EQ(text, file.errorText);
  uint32_t count = 0;
  EXPECT_FALSE(file.Write("x", 1, 1, count));  // closed
  EXPECT_EQ(6u, file.lastError);
}

TEST_F(AFileTest, TheDestructorClosesTheFile) {
  {
    AFile writer(temp.Name());
    ASSERT_TRUE(writer.OpenWrite());
  }
  EXPECT_TRUE(file.OpenWrite());  // nobody else writes
}

TEST_F(AFileTest, OpenWriteEmptiesTheFile) {
  temp.Put("old");
  ASSERT_TRUE(file.OpenWrite());
  file.Close();
  EXPECT_EQ("", temp.Bytes());
}

TEST_F(AFileTest, OpenAppendCreatesAMissingFileAndWritesAtItsStart) {
  ASSERT_TRUE(file.OpenAppend());
  EXPECT_EQ(0, file.Tell());
  uint32_t written = 0;
  EXPECT_TRUE(file.Write("abc", 1, 3, written));
  EXPECT_EQ(3u, written);
  file.Close();
  EXPECT_EQ("abc", temp.Bytes());
}

TEST_F(AFileTest, OpenAppendGoesOnAtTheEnd) {
  temp.Put("abc");
  ASSERT_TRUE(file.OpenAppend());
  EXPECT_EQ(3, file.Tell());
  uint32_t written = 0;
  EXPECT_TRUE(file.Write("de", 1, 2, written));
  file.Close();
  EXPECT_EQ("abcde", temp.Bytes());
}

TEST_F(AFileTest, TheElementSizeIsNotMultipliedIn) {
  OpenWith("abcdef");
  char buffer[8] = {};
  uint32_t bytesRead = 0;
  EXPECT_TRUE(file.Read(buffer, 4, 3, bytesRead));
  EXPECT_EQ(3u, bytesRead);
  EXPECT_STREQ("abc", buffer);
  EXPECT_TRUE(file.ReadAll(buffer, 2, 3));
  EXPECT_STREQ("def", buffer);
}

TEST_F(AFileTest, EndOfFileIsSeenByAnEmptyReadOnly) {
  OpenWith("ab");
  char buffer[8];
  uint32_t bytesRead = 0;
  EXPECT_TRUE(file.Read(buffer, 1, 8, bytesRead));
  EXPECT_EQ(2u, bytesRead);
  EXPECT_FALSE(file.IsEof());
  EXPECT_TRUE(file.Read(buffer, 1, 0, bytesRead));
  EXPECT_FALSE(file.IsEof());  // nothing was asked for
  EXPECT_TRUE(file.Read(buffer, 1, 8, bytesRead));
  EXPECT_EQ(0u, bytesRead);
  EXPECT_TRUE(file.IsEof());
}

TEST_F(AFileTest, SeekingAndClosingForgetTheEndOfFile) {
  OpenWith("ab");
  char buffer[8];
  uint32_t bytesRead = 0;
  const auto reachEnd = [&] {
    file.Read(buffer, 1, 8, bytesRead);
    file.Read(buffer, 1, 8, bytesRead);
    return file.IsEof();
  };
  ASSERT_TRUE(reachEnd());
  EXPECT_EQ(2, file.Tell());
  EXPECT_TRUE(file.IsEof());  // asking for the position is no seek
  EXPECT_TRUE(file.SeekSet(0));
  EXPECT_FALSE(file.IsEof());
  ASSERT_TRUE(reachEnd());
  EXPECT_TRUE(file.SeekCur(100));  // behind the end
  EXPECT_FALSE(file.IsEof());
  ASSERT_TRUE(reachEnd());
  file.Close();
  EXPECT_FALSE(file.IsEof());
}

TEST_F(AFileTest, SeeksCountFromTheirOrigin) {
  OpenWith("0123456789");
  EXPECT_TRUE(file.SeekSet(4));
  EXPECT_EQ(4, file.Tell());
  EXPECT_TRUE(file.SeekCur(-1));
  EXPECT_EQ(3, file.Tell());
  EXPECT_TRUE(file.SeekEnd(-2));
  EXPECT_EQ(8, file.Tell());
  EXPECT_TRUE(file.SeekSet(int64_t{5} << 32));
  EXPECT_EQ(int64_t{5} << 32, file.Tell());
}

TEST_F(AFileTest, ASeekBeforeTheStartFails) {
  OpenWith("ab");
  EXPECT_FALSE(file.SeekSet(-1));
  EXPECT_EQ(L"Kann nicht in der Datei afile_test.tmp positionieren: E.", file.report);
  EXPECT_NE(0u, file.lastError);
}

TEST_F(AFileTest, AClosedFileReportsEveryStep) {
  char buffer[4];
  uint32_t count = 7;
  EXPECT_FALSE(file.Read(buffer, 1, 4, count));
  EXPECT_EQ(0u, count);
  EXPECT_EQ(L"Kann die Datei afile_test.tmp nicht lesen: E.", file.report);
  count = 7;
  EXPECT_FALSE(file.Write("x", 1, 1, count));
  EXPECT_EQ(0u, count);
  EXPECT_EQ(L"Kann nicht in die Datei afile_test.tmp schreiben: E.", file.report);
  EXPECT_FALSE(file.SeekSet(0));
  EXPECT_EQ(0, file.Tell());
}

TEST_F(AFileTest, AFailedCloseIsReportedAndStillCloses) {
  ASSERT_TRUE(file.OpenWrite());
  file.BreakHandle();
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(L"Kann die Datei afile_test.tmp nicht schlie\u00DFen: E.", file.report);
  EXPECT_EQ(platform::kInvalidFile, file.Handle());
  EXPECT_FALSE(file.IsOpen());
}

TEST_F(AFileTest, WritingToAReadersHandleFails) {
  OpenWith("abc");
  EXPECT_FALSE(file.WriteLine(L"x", false));
  file.Close();
  EXPECT_EQ("abc", temp.Bytes());
}

TEST_F(AFileTest, WriteLineWrites16BitTextWithoutTerminator) {
  ASSERT_TRUE(file.OpenWrite());
  EXPECT_TRUE(file.WriteLine(L"a\u20AC", true));
  EXPECT_TRUE(file.WriteLine(L"b", false));
  EXPECT_TRUE(file.WriteLine(L"", true));
  EXPECT_TRUE(file.WriteLine(nullptr, false));
  file.Close();
  EXPECT_EQ(L"a\u20AC\r\nb\r\n", temp.Text());
}

TEST_F(AFileTest, GetSizeOpensAClosedFile) {
  temp.Put("12345");
  EXPECT_EQ(5u, file.GetSize());
  EXPECT_EQ(FileMode::Read, file.Mode());
  EXPECT_EQ(5u, file.GetSize());
  EXPECT_EQ(1, file.opens);
}

TEST_F(AFileTest, GetSizeOfAMissingFileIsZero) { EXPECT_EQ(0u, file.GetSize()); }

TEST_F(AFileTest, ASizeThatCannotBeToldIsReportedAndZero) {
  OpenWith("12345");
  file.BreakHandle();
  EXPECT_EQ(0u, file.GetSize());
  EXPECT_EQ(L"Kann die Datei afile_test.tmp nicht lesen: E.", file.report);
}

TEST_F(AFileTest, ReopenTakesOverAReadersPosition) {
  OpenWith("0123456789");
  file.SeekSet(6);
  AFile second(temp.Name());
  EXPECT_TRUE(second.Reopen(file));
  EXPECT_EQ(6, second.Tell());
}

TEST_F(AFileTest, ReopenIsTrueEvenWhenThisFileCannotBeOpened) {
  OpenWith("0123456789");
  AFile nameless, missing(L"no_such_file.tmp");
  EXPECT_TRUE(nameless.Reopen(file));
  EXPECT_TRUE(missing.Reopen(file));
  EXPECT_FALSE(nameless.IsOpen());
  EXPECT_FALSE(missing.IsOpen());
}

TEST_F(AFileTest, ReopenLeavesOtherModesAlone) {
  ASSERT_TRUE(file.OpenWrite());
  AFile second(temp.Name());
  EXPECT_TRUE(second.Reopen(file));
  EXPECT_FALSE(second.IsOpen());
  file.Close();
  EXPECT_TRUE(second.Reopen(file));
  EXPECT_FALSE(second.IsOpen());
}

TEST_F(AFileTest, ReadLineMakesEveryLineEndASingleLineFeed) {
  struct {
    const char* bytes;
    const char* first;
    const char* second;
  } const rows[] = {
      {"a\r\nb", "a\n", "b"},
      {"a\nb", "a\n", "b"},
      {"a\rb", "a\n", "b"},
      {"\r\nb", "\n", "b"},
      {"a\n\rb", "a\n\n", "b"},      // the lone carriage return goes before the lone line
                                     // feed
      {"a\rb\r\nc", "a\rb\n", "c"},  // a pair goes before a lone carriage return,
      {"a\nb\r\nc", "a\nb\n", "c"},  // and before a lone line feed
      {"a\r\r\nb", "a\r\n", "b"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(std::string(row.bytes)));
    OpenWith(row.bytes);
    EXPECT_EQ((Line{true, row.first, true}), ReadLineOf(file));
    EXPECT_EQ((Line{true, row.second, false}), ReadLineOf(file));
  }
}

TEST_F(AFileTest, ReadLineGivesTheLastLineWithoutALineEnd) {
  OpenWith("a\r\nb");
  EXPECT_EQ((Line{true, "a\n", true}), ReadLineOf(file));
  EXPECT_EQ((Line{true, "b", false}), ReadLineOf(file));
  EXPECT_EQ((Line{true, "", true}), ReadLineOf(file));  // the read that finds the end
  EXPECT_EQ((Line{false, "", false}), ReadLineOf(file));
}

TEST_F(AFileTest, AnEmptyTextIsCompleteAtTheEndOnly) {
  OpenWith(std::string_view("\0a\nb", 4));
  EXPECT_EQ((Line{true, "", false}), ReadLineOf(file));
  EXPECT_EQ((Line{true, "b", false}), ReadLineOf(file));
  EXPECT_EQ((Line{true, "", true}), ReadLineOf(file));
}

TEST_F(AFileTest, ReadLineOfAnEmptyFile) {
  OpenWith("");
  EXPECT_EQ((Line{true, "", true}), ReadLineOf(file));
  EXPECT_TRUE(file.IsEof());
  EXPECT_EQ((Line{false, "", false}), ReadLineOf(file));
}

TEST_F(AFileTest, ReadLineCutsALongLine) {
  OpenWith(std::string(1500, 'a') + "\r\nb\r\n");
  EXPECT_EQ((Line{true, std::string(999, 'a'), false}), ReadLineOf(file));
  EXPECT_EQ((Line{true, std::string(501, 'a') + "\n", true}), ReadLineOf(file));
  EXPECT_EQ((Line{true, "b\n", true}), ReadLineOf(file));
}

TEST_F(AFileTest, APairThatTheBufferCutsIsReadWhole) {
  OpenWith("abc\r\nd");
  EXPECT_EQ((Line{true, "abc", false}), ReadLineOf(file, 5));  // the carriage return is the last byte that fits
  EXPECT_EQ((Line{true, "\n", true}), ReadLineOf(file, 5));
  EXPECT_EQ((Line{true, "d", false}), ReadLineOf(file, 5));
}

TEST_F(AFileTest, ACarriageReturnThatEndsTheFileIsALineEnd) {
  OpenWith("ab\r");
  EXPECT_EQ((Line{true, "ab\n", true}), ReadLineOf(file));
}

TEST_F(AFileTest, ReadLineWithTheSmallestBuffersEnds) {
  for (uint32_t size : {2u, 3u}) {
    OpenWith("a\r\rb\r\n");
    std::string all;
    int calls = 0;
    for (; !file.IsEof() && calls < 20; ++calls) all += ReadLineOf(file, size).text;
    EXPECT_LT(calls, 20) << size;
    EXPECT_EQ('a', all.front());
    EXPECT_NE(all.npos, all.find('b')) << size;
  }
}

TEST_F(AFileTest, ReadLineLeavesNothingBehindTheText) {
  OpenWith("ab\ncd");
  char buffer[16];
  bool complete = false;
  EXPECT_TRUE(file.ReadLine(buffer, sizeof buffer, complete));
  EXPECT_STREQ("ab\n", buffer);
  EXPECT_EQ('\xFF', buffer[10]);
  EXPECT_TRUE(file.ReadLine(buffer, 0, complete));  // touches nothing
  EXPECT_STREQ("ab\n", buffer);
}

TEST_F(AFileTest, AFailedReadEndsReadLine) {
  char buffer[4] = "abc";
  bool complete = true;
  EXPECT_FALSE(file.ReadLine(buffer, sizeof buffer, complete));
  EXPECT_FALSE(complete);
  EXPECT_EQ('\xFF', buffer[0]);  // made a terminator at the end of the file only
}

TEST_F(AFileTest, ReadRawLineOfSizeZeroIsTrueAtOnce) { EXPECT_TRUE(file.RawLine(nullptr, 0)); }

TEST_F(AFileTest, FileExistsKnowsFilesAndFolders) {
  EXPECT_FALSE(FileExists(nullptr));
  EXPECT_FALSE(FileExists(temp.Name()));
  temp.Put("");
  EXPECT_TRUE(FileExists(temp.Name()));
  EXPECT_TRUE(FileExists(L"."));
}

#ifdef _WIN32

TEST_F(AFileTest, SlashesAreTriedAsBackslashesTheSecondTime) {
  temp.Put("abc");
  // With this prefix the platform itself takes a slash for a part of the name.
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetFullPathNameW(temp.Name(), MAX_PATH, path.data(), nullptr));
  for (int i = 0; i < 2; ++i) path[path.rfind(L'\\')] = L'/';
  path.insert(0, L"\\\\?\\");
  ASSERT_EQ(platform::kInvalidFile,
            platform::OpenFile(path.c_str(), platform::kAccessRead, platform::kShareRead, platform::kOpenExisting));
  AFile slashed(path.c_str());
  EXPECT_TRUE(slashed.OpenRead());
  EXPECT_STREQ(path.c_str(), slashed.fileName.Text());  // the name stays as it was given
}

TEST_F(AFileTest, AnAppendedFileCanBeReadButNotWrittenByOthers) {
  ASSERT_TRUE(file.OpenAppend());
  AFile other(temp.Name());
  EXPECT_TRUE(other.OpenRead());
  EXPECT_FALSE(other.OpenAppend());
  EXPECT_FALSE(other.OpenWrite());
}

#endif
