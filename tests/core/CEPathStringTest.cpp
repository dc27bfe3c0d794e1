#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "DriverLIB/CEPathS.h"
#include "DriverLIB/Platform.h"
#include "support/PrintText.h"
#include "support/TracedThread.h"

namespace {

struct Sample {
  std::wstring path, drive, directory, name, extension;
};

std::wstring Repeat(wchar_t character, size_t count) { return std::wstring(count, character); }

const Sample kSamples[] = {
    {L"C:\\a\\b\\c.txt", L"C:", L"\\a\\b\\", L"c", L".txt"},
    {L"C:foo.txt", L"C:", L"", L"foo", L".txt"},
    {L"foo", L"", L"", L"foo", L""},
    {L".ext", L"", L"", L"", L".ext"},
    {L"a.b\\c", L"", L"a.b\\", L"c", L""},
    {L"a/b\\c.d.e", L"", L"a/b\\", L"c.d", L".e"},
    {L"a\\b/c", L"", L"a\\b/", L"c", L""},
    {L"\\\\server\\share\\x.y", L"", L"\\\\server\\share\\", L"x", L".y"},
    {L"C:", L"C:", L"", L"", L""},
    {L"C:\\", L"C:", L"\\", L"", L""},
    {L"C:\\dir.d\\", L"C:", L"\\dir.d\\", L"", L""},
    {L"a.", L"", L"", L"a", L"."},
    {L":x", L"", L"", L":x", L""},
    {L"ab:c", L"", L"", L"ab:c", L""},
    {L"", L"", L"", L"", L""},
    // 255 characters are the most that a part may have.
    {L"C:\\" + Repeat(L'd', 253) + L"\\n.e", L"C:", L"\\" + Repeat(L'd', 253) + L"\\", L"n", L".e"},
    {L"C:\\" + Repeat(L'd', 254) + L"\\n.e", L"", L"", L"", L""},
    {L"C:\\d\\" + Repeat(L'n', 255) + L".e", L"C:", L"\\d\\", Repeat(L'n', 255), L".e"},
    {L"C:\\d\\" + Repeat(L'n', 256) + L".e", L"", L"", L"", L""},
    {L"C:\\d\\n." + Repeat(L'e', 254), L"C:", L"\\d\\", L"n", L"." + Repeat(L'e', 254)},
    {L"C:\\d\\n." + Repeat(L'e', 255), L"", L"", L"", L""},
};

}  // namespace

TEST(CEPathString, StartsEmpty) {
  const CEPathString path;
  EXPECT_EQ(0u, path.LastSystemError());
  EXPECT_TRUE(path.IsEmpty());
  EXPECT_EQ(nullptr, path.Buffer());
}

TEST(CEPathString, SplitsAPath) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(testing::PrintToString(sample.path));
    const CEPathString path(sample.path);
    EXPECT_EQ(path.GetDrive(), sample.drive);
    EXPECT_EQ(path.GetDirectory(), sample.directory);
    EXPECT_EQ(path.GetFileName(), sample.name);
    EXPECT_EQ(path.GetExtension(), sample.extension);
    EXPECT_EQ(path.GetDriveAndDirectory(), sample.drive + sample.directory);
    EXPECT_EQ(path.GetNameAndExtension(), sample.name + sample.extension);
    EXPECT_EQ(path, sample.path);
  }
}

#ifdef _WIN32
TEST(CEPathString, SplitsAsThePlatformDoes) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(testing::PrintToString(sample.path));
    wchar_t drive[_MAX_DRIVE], directory[_MAX_DIR], name[_MAX_FNAME], extension[_MAX_EXT];
    _wsplitpath(sample.path.c_str(), drive, directory, name, extension);
    EXPECT_EQ(sample.drive, drive);
    EXPECT_EQ(sample.directory, directory);
    EXPECT_EQ(sample.name, name);
    EXPECT_EQ(sample.extension, extension);
  }
}
#endif

TEST(CEPathString, SetFileNameAndExtReplacesWhatFollowsTheDirectory) {
  CEPathString path(L"C:\\a\\b.txt");
  path.SetFileNameAndExt(L"new.pdf");
  EXPECT_EQ(path, L"C:\\a\\new.pdf");
  path.SetFileNameAndExt(path.GetFileName());
  EXPECT_EQ(path, L"C:\\a\\new");
  path.SetFileNameAndExt(nullptr);
  EXPECT_EQ(path, L"C:\\a\\");
  path.SetFileNameAndExt(path.CharPtr(3));
  EXPECT_EQ(path, L"C:\\a\\a\\");
}

TEST(CEPathString, SetFileNameAndExtWithoutDirectoryKeepsTheDriveOnly) {
  CEPathString path(L"C:b.txt");
  path.SetFileNameAndExt(L"new.pdf");
  EXPECT_EQ(path, L"C:new.pdf");
  path = L"b.txt";
  path.SetFileNameAndExt(L"new.pdf");
  EXPECT_EQ(path, L"new.pdf");
}

TEST(CEPathString, ModulePathIsTheFileOfTheModule) {
  const CEPathString path = CEPathString::ModulePath(nullptr);
  EXPECT_EQ(0, path.GetFileName().Find(L"core_tests")) << testing::PrintToString(std::wstring(path.View()));
  EXPECT_FALSE(path.GetDirectory().IsEmpty());
  EXPECT_TRUE(platform::PathExists(path.Text()));
}

TEST(CEPathString, ValuesAreCopiedAndMoved) {
  CEPathString path(L"C:\\a.b");
  platform::SetLastError(5);
  path.ReportFailure(nullptr, nullptr);
  const CEPathString copy(path);
  EXPECT_EQ(copy, L"C:\\a.b");
  EXPECT_EQ(5u, copy.LastSystemError());
  CEPathString assigned;
  assigned = std::move(path);
  EXPECT_EQ(assigned, L"C:\\a.b");
  assigned = CUString(L"other");
  EXPECT_EQ(assigned, L"other");
}

TEST(CEPathString, TakingATextLeavesTheLastErrorAlone) {
  CEPathString path(L"C:\\a");
  platform::SetLastError(5);
  path.ReportFailure(nullptr, nullptr);
  path = CUString(L"C:\\b");
  CUString other(L"C:\\c");
  swap(path, other);
  EXPECT_EQ(path, L"C:\\c");
  EXPECT_EQ(other, L"C:\\b");
  EXPECT_EQ(5u, path.LastSystemError());
}

TEST(CEPathString, ReportFailureKeepsTheSystemsLastError) {
  TracedThread thread;
  CEPathString path;
  for (const wchar_t* format : {static_cast<const wchar_t*>(nullptr), L""}) {
    platform::SetLastError(1234);
    EXPECT_EQ(0, path.ReportFailure(format, L"argument"));
    EXPECT_EQ(1234u, path.LastSystemError());
    EXPECT_EQ(0u, thread.Error().code);  // there is nothing to say
  }
  EXPECT_TRUE(thread.Lines().empty());
}

TEST(CEPathString, ReportFailureRaisesError118AndTraces) {
  TracedThread thread;
  CEPathString path;
  platform::SetLastError(3);
  EXPECT_EQ(0, path.ReportFailure(L"Pfad %s: %s.", L"C:\\x"));
  EXPECT_EQ(3u, path.LastSystemError());
  EXPECT_EQ(118u, thread.Error().code);
  path.ReportFailure(L"Pfad %s: %s.", nullptr);
  EXPECT_EQ(thread.Lines(),
            (std::vector<std::wstring>{
                L"Error: Setze Fehler 118 in ..\\..\\DriverLIB\\CEPathS(1065)", L"Pfad C:\\x: unbekannt.",
                L"Error: Aktueller Fehler: 118. Weiterer Fehler 118 in ..\\..\\DriverLIB\\CEPathS(1065)",
                L"Pfad : unbekannt."}));
  EXPECT_EQ(2, thread.Error().trace->errorCount);  // the lines of the path itself are plain ones
}

TEST(CEPathString, ReportFailureWithoutErrorStateOnlyKeepsTheError) {
  threadError.Alloc();
  CError* const former = CurrentError();
  threadError.Set(nullptr);
  CEPathString path;
  platform::SetLastError(3);
  EXPECT_EQ(0, path.ReportFailure(L"%s %s", L"x"));
  EXPECT_EQ(3u, path.LastSystemError());
  threadError.Set(former);
}
