// The examples of docs/hosts.md and README.md, compiled as they stand there, with their sheets closed from outside.
#include "HostProcess.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const std::wstring kHostInC = Widened(NEMPDF_BINARY_DIR "/example_host_c.exe");
const std::wstring kHostInCpp = Widened(NEMPDF_BINARY_DIR "/example_host_cpp.exe");
const std::wstring kHostOfReadme = Widened(NEMPDF_BINARY_DIR "/example_readme_c.exe");

// The text that a program in text mode has written.
std::string Lines(std::string text) {
  std::erase(text, '\r');
  return text;
}

// What the program prints when its sheet, which must have this caption, is closed so.
std::string OutputOf(const std::wstring& program, void (*close)(HWND)) {
  std::wstring caption;
  const HostRun run = RunProgram(program, L"", [&](HWND sheet) {
    wchar_t text[64] = L"";
    GetWindowTextW(sheet, text, 64);
    caption = text;
    close(sheet);
  });
  EXPECT_TRUE(run.opened);
  EXPECT_EQ(L"PDF settings", caption);
  EXPECT_EQ(0u, run.exitCode);
  EXPECT_EQ("", run.errors);
  return Lines(run.output);
}

TEST(HostExamples, InC) {
  EXPECT_EQ("JPEG quality: 85 %\ntitle: Annual report\n", OutputOf(kHostInC, PressOk));
  EXPECT_EQ("cancelled\n", OutputOf(kHostInC, PressCancel));
}

TEST(HostExamples, InCpp) {
  EXPECT_EQ("JPEG quality: 85 %\ntitle: Annual report\npassword: set\n", OutputOf(kHostInCpp, PressOk));
  EXPECT_EQ("cancelled\n", OutputOf(kHostInCpp, PressCancel));
}

TEST(HostExamples, OfTheReadme) {
  EXPECT_EQ("JPEG quality: 85 %\n", OutputOf(kHostOfReadme, PressOk));
  EXPECT_EQ("", OutputOf(kHostOfReadme, PressCancel));
}

}  // namespace
