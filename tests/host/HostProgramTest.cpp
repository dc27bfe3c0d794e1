// NemPdfUIHost.exe as its user meets it: started as a process, its sheet closed from outside.
#include <windows.h>
// behind windows.h
#include <commctrl.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>

#include "host/SettingsFile.h"
#include "HostProcess.h"

namespace {

const std::wstring kProgram = Widened(NEMPDF_BINARY_DIR "/NemPdfUIHost.exe");
const std::wstring kSample = Widened(NEMPDF_SOURCE_DIR "/host/sample.ini");

HostRun RunHost(const std::wstring& arguments, const std::function<void(HWND)>& withSheet = {}) {
  return RunProgram(kProgram, arguments, withSheet);
}

host::Settings ReadBack(const std::string& bytes) {
  host::Settings settings;
  EXPECT_TRUE(host::ParseSettings(bytes, settings).empty());
  return settings;
}

TEST(HostProgram, PrintsItsUsage) {
  const HostRun run = RunHost(L"--help");
  EXPECT_EQ(run.exitCode, 0u);
  EXPECT_NE(run.output.find("--document"), std::string::npos);
  EXPECT_EQ(run.errors, "");
}

TEST(HostProgram, EndsWith2AndItsUsageForABadOption) {
  const HostRun run = RunHost(L"--nothing");
  EXPECT_EQ(run.exitCode, 2u);
  EXPECT_FALSE(run.opened);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(run.errors.starts_with("NemPdfUIHost: unknown option --nothing\n")) << run.errors;
  EXPECT_NE(run.errors.find("--document"), std::string::npos);
}

TEST(HostProgram, EndsWith2AndTheLineOfEachProblemInAFile) {
  const CTempFile file(L"nempdf \x0645.ini", "[0]\nScale = x\nNoName = 1\n");
  const HostRun run = RunHost(L"\"" + file.Name() + L"\"");
  const std::string name = host::EncodeUtf8(file.Name());
  EXPECT_EQ(run.exitCode, 2u);
  EXPECT_FALSE(run.opened);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors,
            name + ":2: Scale: \"x\" is no 32-bit number\n" + name + ":3: section [0] has no setting \"NoName\"\n");
}

TEST(HostProgram, EndsWith2ForAFileThatCannotBeRead) {
  const HostRun run = RunHost(L"C:\\no\\such.ini");
  EXPECT_EQ(run.exitCode, 2u);
  EXPECT_FALSE(run.opened);
  EXPECT_TRUE(run.errors.starts_with("C:\\no\\such.ini: cannot be read: ")) << run.errors;
}

TEST(HostProgram, CancelChangesAndWritesNothing) {
  const CTempFile written(L"nempdf-written.ini");
  const HostRun run = RunHost(L"--write \"" + written.Name() + L"\"", PressCancel);
  EXPECT_TRUE(run.opened);
  EXPECT_EQ(run.exitCode, 0u);
  EXPECT_EQ(run.output, "cancelled\n");
  EXPECT_EQ(run.errors, "");
  EXPECT_FALSE(written.Content());
}

TEST(HostProgram, OkOnAnUntouchedSheetChangesNothing) {
  const CTempFile written(L"nempdf-written.ini");
  const HostRun run = RunHost(L"\"" + kSample + L"\" --write \"" + written.Name() + L"\"", PressOk);
  EXPECT_EQ(run.exitCode, 0u);
  EXPECT_EQ(run.output, "no changes\n");
  EXPECT_EQ(run.errors, "");

  // Everything is written, with the values of the sample.
  const host::Settings settings = ReadBack(written.Content().value_or(""));
  EXPECT_EQ(settings.size(), 6u + 2 * 123);
  const auto quality =
      std::ranges::find(settings, std::wstring_view(L"GraphicJpegQuality"),
                        [](const host::Setting& setting) { return std::wstring_view(setting.info->name); });
  ASSERT_NE(quality, settings.end());
  EXPECT_EQ(quality->value.number, 85);
}

TEST(HostProgram, WhatItWritesOpensAgainUnchanged) {
  const CTempFile first(L"nempdf-first.ini", "[0]\nTitle = \"a;b\" ^n^s\nEncryptUserPassword = secret\nScale = -1\n");
  const CTempFile second(L"nempdf-second.ini"), third(L"nempdf-third.ini");
  RunHost(L"\"" + first.Name() + L"\" --write \"" + second.Name() + L"\"", PressOk);
  const HostRun run = RunHost(L"\"" + second.Name() + L"\" --write \"" + third.Name() + L"\"", PressOk);
  EXPECT_EQ(run.output, "no changes\n");
  ASSERT_TRUE(second.Content());
  EXPECT_EQ(second.Content(), third.Content());
  EXPECT_NE(second.Content()->find("Title = \"a;b\" ^n^s\r\n"), std::string::npos);
  EXPECT_NE(second.Content()->find("EncryptUserPassword = secret\r\n"), std::string::npos);
}

TEST(HostProgram, SaysWhenItCannotWrite) {
  const HostRun run = RunHost(L"--write C:\\no\\such\\folder.ini", PressOk);
  EXPECT_EQ(run.exitCode, 1u);
  EXPECT_EQ(run.output, "no changes\n");
  EXPECT_TRUE(run.errors.starts_with("NemPdfUIHost: C:\\no\\such\\folder.ini: cannot be written: ")) << run.errors;
}

TEST(HostProgram, DocumentOffersTheSecondTab) {
  const auto countTabs = [](LRESULT& tabs) {
    return [&tabs](HWND sheet) {
      const HWND tabControl = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
      tabs = SendMessageW(tabControl, TCM_GETITEMCOUNT, 0, 0);
      PressCancel(sheet);
    };
  };
  LRESULT without = 0, with = 0;
  RunHost(L"", countTabs(without));
  RunHost(L"--document", countTabs(with));
  EXPECT_EQ(without, 1);
  EXPECT_EQ(with, 2);
}

TEST(HostProgram, PrinterGoesOverThatOfTheFile) {
  const CTempFile written(L"nempdf-written.ini");
  RunHost(L"\"" + kSample + L"\" --printer \"Another printer\" --write \"" + written.Name() + L"\"", PressOk);
  EXPECT_NE(written.Content().value_or("").find("PrinterName = Another printer\r\n"), std::string::npos);
}

TEST(HostProgram, ReadsUtf16) {
  std::string bytes = "\xFF\xFE";
  for (wchar_t unit : std::wstring(L"[general]\r\nSheetTitle=\x0645")) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  const CTempFile file(L"nempdf-utf16.ini", bytes);
  std::wstring title;
  RunHost(L"\"" + file.Name() + L"\"", [&](HWND sheet) {
    wchar_t text[64] = L"";
    GetWindowTextW(sheet, text, 64);
    title = text;
    PressCancel(sheet);
  });
  EXPECT_EQ(title, L"\x0645");
}

// --- The check of configuration files ----------------------------------------------------------------------------

TEST(HostProgram, CheckConfEndsWith0ForGoodFiles) {
  const CTempFile own(L"nempdf printer \x0645.conf", "DestinationDirectoryOrFilename_Override = C:\\Out\\\r\n");
  const CTempFile general(L"NEMpdf.conf", "# comment\r\nSaveAction_Override = 24\r\n");
  const HostRun run = RunHost(L"--check-conf \"" + own.Name() + L"\" \"" + general.Name() + L"\"");
  EXPECT_EQ(run.exitCode, 0u);
  EXPECT_FALSE(run.opened);
  EXPECT_EQ(run.output, host::EncodeUtf8(own.Name()) + ": good, overrides set: 1\n" + host::EncodeUtf8(general.Name()) +
                            ": good, overrides set: 1\n");
  EXPECT_EQ(run.errors, "");
}

TEST(HostProgram, CheckConfEndsWith1AndPrintsAllThatIsWrong) {
  const CTempFile good(L"nempdf-good.conf", "PdfVersion_Override = 14\r\n");
  const CTempFile bad(L"nempdf-bad.conf",
                      "bad\r\nStartActionMailCheck_Override = yes\r\nColorspace_Override = -1\r\n"
                      "PdfVersion_Override = 12\r\nAuthor_Override = " +
                          std::string(990, 'a') + "\r\n");
  const HostRun run = RunHost(L"--check-conf \"" + bad.Name() + L"\" \"" + good.Name() + L"\"");
  const std::string name = host::EncodeUtf8(bad.Name());
  EXPECT_EQ(run.exitCode, 1u);
  EXPECT_EQ(run.output, name + ":1: no \"=\"; the dialog shows an error and stops reading here\n" + name +
                            ":2: StartActionMailCheck_Override: neither 0 nor 1; the line is ignored\n" + name +
                            ":3: Colorspace_Override: a negative number; the line is ignored\n" + name +
                            ":4: PdfVersion_Override: dropped, valid are 13 and more\n" + name +
                            ":5: longer than 999 bytes; the rest is read as a line of its own\n" + name +
                            ":5: no \"=\"; the dialog shows an error and stops reading here\n" +
                            host::EncodeUtf8(good.Name()) + ": good, overrides set: 1\n");
  EXPECT_EQ(run.errors, "");
}

TEST(HostProgram, CheckConfEndsWith2ForAFileThatCannotBeRead) {
  const CTempFile bad(L"nempdf-bad.conf", "bad\r\n");
  const HostRun run = RunHost(L"--check-conf C:\\no\\such.conf \"" + bad.Name() + L"\"");
  EXPECT_EQ(run.exitCode, 2u);
  EXPECT_TRUE(run.errors.starts_with("C:\\no\\such.conf: cannot be read: ")) << run.errors;
  EXPECT_NE(run.output.find(":1: no"), std::string::npos);  // the others are checked all the same
}

TEST(HostProgram, CheckConfEndsWith2WithoutAFile) {
  const HostRun run = RunHost(L"--check-conf");
  EXPECT_EQ(run.exitCode, 2u);
  EXPECT_TRUE(run.errors.starts_with("NemPdfUIHost: --check-conf needs a file name\n")) << run.errors;
}

}  // namespace
