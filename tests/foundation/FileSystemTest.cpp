// What the file class makes of answers that a real disk hardly ever gives, and what the system is asked for.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/ImportPatch.h"
#include "DriverLIB/AFile.h"
#include "DriverLIB/MessageText.h"
#include "support/TempFile.h"

namespace {

constexpr char kKernel[] = "kernel32.dll";

// Keeps what its failures are reported with.
class ReportingFile : public AFile {
 public:
  using AFile::AFile;
  std::vector<std::wstring> formats;

 protected:
  bool ReportFileError(const wchar_t* format, const wchar_t*, const wchar_t*) override {
    formats.push_back(format);
    return false;
  }
};

// A disk that takes one byte less, without calling that an error.
BOOL WINAPI ShortWrite(HANDLE, const void*, DWORD count, DWORD* written, OVERLAPPED*) {
  *written = count - 1;
  return TRUE;
}

BOOL WINAPI HugeSize(HANDLE, LARGE_INTEGER* size) {
  size->QuadPart = (5LL << 32) + 1;
  return TRUE;
}

DWORD textLanguage;

DWORD WINAPI NoteLanguage(DWORD, const void*, DWORD, DWORD language, wchar_t*, DWORD, va_list*) {
  textLanguage = language;
  SetLastError(ERROR_MR_MID_NOT_FOUND);
  return 0;
}

}  // namespace

TEST(FileSystem, AShortWriteIsAFailure) {
  TempFile temp("file_system_test.tmp");
  ReportingFile file(temp.Name());
  ASSERT_TRUE(file.OpenWrite());
  ASSERT_GT(PatchImport(kKernel, "WriteFile", reinterpret_cast<void*>(ShortWrite)), 0);
  uint32_t written = 7;
  const bool done = file.Write("abc", 1, 3, written);
  const bool lineDone = file.WriteLine(L"abc", true);
  RestoreImport(kKernel, "WriteFile");
  EXPECT_FALSE(done);
  EXPECT_EQ(0u, written);
  EXPECT_FALSE(lineDone);
  EXPECT_EQ(std::vector<std::wstring>(2, L"Kann nicht in die Datei %s schreiben: %s."), file.formats);
}

TEST(FileSystem, ASizeHas64Bits) {
  TempFile temp("file_system_test.tmp");
  temp.Put("abc");
  AFile file(temp.Name());
  ASSERT_GT(PatchImport(kKernel, "GetFileSizeEx", reinterpret_cast<void*>(HugeSize)), 0);
  const uint64_t size = file.GetSize();
  RestoreImport(kKernel, "GetFileSizeEx");
  EXPECT_EQ((uint64_t{5} << 32) + 1, size);
}

TEST(FileSystem, AnErrorHasItsTextInTheUsersDefaultLanguage) {
  ASSERT_GT(PatchImport(kKernel, "FormatMessageW", reinterpret_cast<void*>(NoteLanguage)), 0);
  CUString text;
  GetSystemErrorText(text, ERROR_FILE_NOT_FOUND);
  RestoreImport(kKernel, "FormatMessageW");
  EXPECT_EQ(0x0400u, textLanguage);
  EXPECT_STREQ(L"Kein Fehlertext", text.Text()) << "it has none in that language";
}
