// A host that is the office's word processor: a copy of the test program of that name.
//
//   TEST(Page, KnowsWord) {
//     if (!IsInWord()) return RunInWord();
//     ...
//   }
#pragma once

#include <windows.h>
// behind windows.h
#include <gtest/gtest.h>

#include <string>

#include "driver/SelfProcess.h"

namespace word_host {

constexpr wchar_t kFileName[] = L"WINWORD.EXE";

inline std::wstring Program() {
  wchar_t program[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  return program;
}

// Made when the first test asks for it, gone at the end.
class Copy {
 public:
  Copy() : folder_(Program() + L".word") {
    CreateDirectoryW(folder_.c_str(), nullptr);
    EXPECT_TRUE(CopyFileW(Program().c_str(), Path().c_str(), FALSE));
  }
  ~Copy() {
    DeleteFileW(Path().c_str());
    RemoveDirectoryW(folder_.c_str());
  }
  Copy(const Copy&) = delete;
  Copy& operator=(const Copy&) = delete;
  std::wstring Path() const { return folder_ + L"\\" + kFileName; }

 private:
  const std::wstring folder_;
};

}  // namespace word_host

inline bool IsInWord() { return word_host::Program().ends_with(std::wstring(L"\\") + word_host::kFileName); }

// The test that is running, in that program.
inline void RunInWord() {
  static const word_host::Copy copy;
  const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
  const std::string name = std::string(test->test_suite_name()) + "." + test->name();
  const ProcessResult result = RunProgram(copy.Path(), L"--gtest_filter=" + std::wstring(name.begin(), name.end()));
  EXPECT_EQ(0u, result.exitCode) << result.output;
  EXPECT_NE(std::string::npos, result.output.find("[  PASSED  ] 1 test.")) << result.output;
}
