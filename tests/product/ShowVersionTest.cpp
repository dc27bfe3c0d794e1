// The version dialog as a host shows it, with components beside the library.
#include <gtest/gtest.h>

#include "driver/SheetDriver.h"
#include "driver/Text.h"
#include "NemPdfUI.h"
#include "support/ComponentFolder.h"
#include "support/CopiedFile.h"

namespace {

std::wstring BesideTheLibrary(const wchar_t* file) {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(GetModuleHandleW(L"NemPdfUI64.dll"), path, MAX_PATH);
  return std::wstring(path).substr(0, std::wstring(path).rfind(L'\\') + 1) + file;
}

SheetTask LookAndPressOk(Sheet& sheet, const wchar_t* epdf, const wchar_t* shellExtension) {
  EXPECT_EQ(L"NEM pdf version info", WindowText(sheet.Window()));
  EXPECT_EQ(L"2.10.4", sheet.Control(1230).Text());
  EXPECT_EQ(epdf, sheet.Control(1233).Text());
  EXPECT_EQ(shellExtension, sheet.Control(1234).Text());
  sheet.PressOk();
  co_return;
}

}  // namespace

TEST(ShowVersion, GivesTheDialogsResult) {
  const auto pressOk = [](Sheet& sheet) { return LookAndPressOk(sheet, L"n/a", L"n/a"); };
  EXPECT_EQ(IDOK, RunSheet([] { return NemPdfUIShowVersion(); }, pressOk).value);
  const auto close = [](Sheet& sheet) -> SheetTask {
    sheet.Close();
    co_return;
  };
  EXPECT_EQ(IDCANCEL, RunSheet([] { return NemPdfUIShowVersion(); }, close).value);
}

TEST(ShowVersion, FindsTheComponentsBesideTheLibrary) {
  const CopiedFile epdf(ComponentFolder(L"complete") + L"NemEpdf64.dll", BesideTheLibrary(L"NemEpdf64.dll"));
  const CopiedFile shell(ComponentFolder(L"16") + L"WINWORD.EXE", BesideTheLibrary(L"NEMePdf.exe"));
  const auto body = [](Sheet& sheet) { return LookAndPressOk(sheet, L"3.5.12", L"16.0.4266.1001"); };
  EXPECT_EQ(IDOK, RunSheet([] { return NemPdfUIShowVersion(); }, body).value);
}
