#include <windows.h>

#include "environment/ComponentVersions.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "driver/ImportPatch.h"
#include "support/ComponentFolder.h"
#include "support/PrintText.h"
#include "support/TracedThread.h"

namespace {

using Query = CUString (*)(const wchar_t* directory);

struct VersionCase {
  Query query;
  const wchar_t* version;
  std::wstring failure;    // what follows the error's number
  std::wstring exception;  // the line
};

const VersionCase kCases[] = {
    {GetPrintVersion, L"2.10.4", L" beim Initialisieren der NEM print-DLL",
     L"UpdateData: Exception gefangen beim Ermitteln der Print-Version"},
    {GetPdfVersion, L"2.10.4", L" beim Initialisieren der NEM pdf-DLL",
     L"UpdateData: Exception gefangen beim Ermitteln der Toolbox-Version"},
    {GetEpdfVersion, L"3.5.12", L" beim Initialisieren der NEM Epdf-DLL",
     L"UpdateData: Exception gefangen beim Ermitteln der Epdf-Version"},
    {GetVdApiVersion, L"1.0.0", L" beim Initialisieren der NEM VdApi-DLL",
     L"UpdateData: Exception gefangen beim Ermitteln der VdApi-Version"},
};

using Lines = std::vector<std::wstring>;

const auto realGetProcAddress = RealFunction("kernel32.dll", "GetProcAddress", &GetProcAddress);

int ThrowVersion(uint32_t*) { throw 1; }

FARPROC WINAPI WithThrowingVersions(HMODULE module, const char* name) {
  if (reinterpret_cast<ULONG_PTR>(name) > 0xFFFF && std::string_view(name).ends_with("GetVersion"))
    return reinterpret_cast<FARPROC>(&ThrowVersion);
  return realGetProcAddress(module, name);
}

}  // namespace

TEST(ComponentVersions, ComeFromTheComponents) {
  TracedThread thread;
  for (const VersionCase& row : kCases) {
    EXPECT_STREQ(row.version, row.query(ComponentFolder(L"complete").c_str()).Text());
    EXPECT_EQ(Lines{}, thread.Lines());
  }
  for (const wchar_t* file : {L"NemPrt64.dll", L"NemPdf64.dll", L"NemEpdf64.dll", L"NemPdfVdApi64.dll"})
    EXPECT_EQ(nullptr, GetModuleHandleW(file)) << "is left loaded";
}

TEST(ComponentVersions, AreEmptyWithoutTheComponent) {
  TracedThread thread;
  for (const VersionCase& row : kCases) {
    EXPECT_TRUE(row.query(ComponentFolder(L"none").c_str()).IsEmpty());
    const Lines lines = thread.Lines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_TRUE(lines[0] == L"Fehler 126" + row.failure || lines[0] == L"Fehler 3" + row.failure) << lines[0];
  }
  EXPECT_EQ(0, thread.Error().trace->errorCount) << "the lines are plain ones";
}

TEST(ComponentVersions, AreEmptyWhenTheComponentLacksAnExport) {
  TracedThread thread;
  EXPECT_TRUE(GetPdfVersion(ComponentFolder(L"lacking").c_str()).IsEmpty());
  EXPECT_EQ(Lines{L"Fehler 127 beim Initialisieren der NEM pdf-DLL"}, thread.Lines());
}

TEST(ComponentVersions, AreEmptyWhenNoJobCanBeMade) {
  TracedThread thread;
  EXPECT_TRUE(GetPrintVersion(ComponentFolder(L"createfails").c_str()).IsEmpty());
  EXPECT_EQ(Lines{L"Fehler 0 beim Initialisieren der NEM print-DLL"}, thread.Lines());
}

TEST(ComponentVersions, AreNotKnownWhenTheComponentTellsNone) {
  TracedThread thread;
  EXPECT_STREQ(L"n/a", GetPdfVersion(ComponentFolder(L"silent").c_str()).Text());
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST(ComponentVersions, SurviveAComponentThatThrows) {
  TracedThread thread;
  EXPECT_TRUE(GetPdfVersion(ComponentFolder(L"throwing").c_str()).IsEmpty());
  const Lines lines = thread.Lines();
  ASSERT_EQ(1u, lines.size());
  EXPECT_NE(std::wstring::npos, lines[0].find(L"UpdateData: Exception gefangen beim Ermitteln der Toolbox-Version"));
}

// What code of another compiler throws passes our own handlers by.
TEST(ComponentVersions, SurviveAComponentOfAnotherCompilerThatThrows) {
  TracedThread thread;
  EXPECT_TRUE(GetPdfVersion(ComponentFolder(L"foreign").c_str()).IsEmpty());
  EXPECT_EQ(Lines{L"UpdateData: Exception gefangen beim Ermitteln der Toolbox-Version"}, thread.Lines());
  EXPECT_EQ(nullptr, GetModuleHandleW(L"NemPdf64.dll"));
}

TEST(ComponentVersions, SurviveAJobThatThrowsAtItsEnd) {
  TracedThread thread;
  EXPECT_STREQ(L"2.10.4", GetPrintVersion(ComponentFolder(L"foreign").c_str()).Text());
  EXPECT_EQ(Lines{}, thread.Lines());
  EXPECT_EQ(nullptr, GetModuleHandleW(L"NemPrt64.dll")) << "the component is freed all the same";
}

// The platform's search would find a file of that name somewhere.
TEST(ComponentVersions, AreNotLookedForWithoutADirectory) {
  TracedThread thread;
  ASSERT_TRUE(SetDllDirectoryW(ComponentFolder(L"complete").c_str()));
  for (const wchar_t* directory : {static_cast<const wchar_t*>(nullptr), L""})
    for (const VersionCase& row : kCases) {
      EXPECT_TRUE(row.query(directory).IsEmpty());
      EXPECT_EQ(Lines{L"Fehler 3" + row.failure}, thread.Lines());
    }
  SetDllDirectoryW(nullptr);
}

TEST(ComponentVersions, EachTellsOfItsException) {
  TracedThread thread;
  for (const VersionCase& row : kCases) {
    ASSERT_GT(PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&WithThrowingVersions)), 0);
    const CUString version = row.query(ComponentFolder(L"complete").c_str());
    RestoreImport("kernel32.dll", "GetProcAddress");
    EXPECT_TRUE(version.IsEmpty());
    EXPECT_EQ(Lines{row.exception}, thread.Lines());
  }
  EXPECT_EQ(4, thread.Error().trace->errorCount);
}
