// A host of a certain name, as the office's word processor: a copy of the test program of that name.
//
//   TEST(Page, KnowsWord) {
//     if (!IsInWord()) return RunInWord();
//     ...
//   }
#pragma once

#include <windows.h>
// behind windows.h
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "driver/SelfProcess.h"

namespace named_host {

inline std::wstring Program() {
  wchar_t program[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  return program;
}

// Made when the first test asks for it, gone at the end.
class Copy {
 public:
  explicit Copy(const std::wstring& fileName) : folder_(Program() + L".named"), path_(folder_ + L"\\" + fileName) {
    CreateDirectoryW(folder_.c_str(), nullptr);
    EXPECT_TRUE(CopyFileW(Program().c_str(), path_.c_str(), FALSE));
  }
  ~Copy() {
    DeleteFileW(path_.c_str());
    RemoveDirectoryW(folder_.c_str());  // by the last one
  }
  Copy(const Copy&) = delete;
  Copy& operator=(const Copy&) = delete;
  const std::wstring& Path() const { return path_; }

 private:
  const std::wstring folder_, path_;
};

}  // namespace named_host

inline bool IsInHost(const std::wstring& fileName) { return named_host::Program().ends_with(L"\\" + fileName); }

// The test that is running, in that program.
inline void RunInHost(const std::wstring& fileName) {
  static std::map<std::wstring, named_host::Copy> copies;
  const named_host::Copy& copy = copies.try_emplace(fileName, fileName).first->second;
  const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
  const std::string name = std::string(test->test_suite_name()) + "." + test->name();
  const ProcessResult result = RunProgram(copy.Path(), L"--gtest_filter=" + std::wstring(name.begin(), name.end()));
  EXPECT_EQ(0u, result.exitCode) << result.output;
  EXPECT_NE(std::string::npos, result.output.find("[  PASSED  ] 1 test.")) << result.output;
}

constexpr wchar_t kWordFileName[] = L"WINWORD.EXE";
inline bool IsInWord() { return IsInHost(kWordFileName); }
inline void RunInWord() { RunInHost(kWordFileName); }
