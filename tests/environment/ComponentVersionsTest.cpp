#include <windows.h>

#include "environment/ComponentVersions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ComponentFolder.h"
#include "support/PrintText.h"
#include "support/TracedThread.h"

namespace {

using Query = CUString (*)(const wchar_t* directory);

struct VersionCase {
  Query query;
  const wchar_t* version;
  std::wstring failure;  // what follows the error's number
};

const VersionCase kCases[] = {
    {GetPrintVersion, L"2.10.4", L" beim Initialisieren der NEM print-DLL"},
    {GetPdfVersion, L"2.10.4", L" beim Initialisieren der NEM pdf-DLL"},
    {GetEpdfVersion, L"3.5.12", L" beim Initialisieren der NEM Epdf-DLL"},
    {GetVdApiVersion, L"1.0.0", L" beim Initialisieren der NEM VdApi-DLL"},
};

using Lines = std::vector<std::wstring>;

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
