// Another current directory of the process, for as long as this lives.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

class CurrentDirectory {
 public:
  explicit CurrentDirectory(const std::wstring& directory) : previous_(Name()) {
    EXPECT_TRUE(SetCurrentDirectoryW(directory.c_str())) << GetLastError();
  }
  ~CurrentDirectory() { SetCurrentDirectoryW(previous_.c_str()); }
  CurrentDirectory(const CurrentDirectory&) = delete;
  CurrentDirectory& operator=(const CurrentDirectory&) = delete;

  // That of the moment.
  static std::wstring Name() {
    wchar_t name[MAX_PATH] = L"";
    GetCurrentDirectoryW(MAX_PATH, name);
    return name;
  }

 private:
  std::wstring previous_;
};
