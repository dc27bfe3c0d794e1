// A file that a test puts somewhere as a copy of another, gone afterwards.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

class CopiedFile {
 public:
  CopiedFile(const std::wstring& source, const std::wstring& target) : target_(target) {
    EXPECT_TRUE(CopyFileW(source.c_str(), target_.c_str(), TRUE)) << GetLastError();
  }
  ~CopiedFile() { DeleteFileW(target_.c_str()); }
  CopiedFile(const CopiedFile&) = delete;
  CopiedFile& operator=(const CopiedFile&) = delete;

 private:
  std::wstring target_;
};
