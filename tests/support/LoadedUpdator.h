// The updater of the tests, kept in memory: what it has noted can be read when the job that used it is gone.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "support/ComponentFolder.h"

class LoadedUpdator {
 public:
  // Of that kind (tests/components/CMakeLists.txt).
  explicit LoadedUpdator(const std::wstring& kind)
      : module_(LoadLibraryW((ComponentFolder(kind) + L"NemUpdator64.dll").c_str())) {
    EXPECT_TRUE(module_);
    TakeCalls();
  }
  ~LoadedUpdator() { FreeLibrary(module_); }
  LoadedUpdator(const LoadedUpdator&) = delete;
  LoadedUpdator& operator=(const LoadedUpdator&) = delete;

  // What was noted since the last question, a line for each call.
  std::string TakeCalls() {
    auto* calls = static_cast<char*>(Find("calls"));
    std::string result(calls);
    *calls = '\0';
    return result;
  }
  // Created and not yet freed.
  int OpenJobs() { return *static_cast<int*>(Find("openJobs")); }

 private:
  void* Find(const char* name) { return reinterpret_cast<void*>(GetProcAddress(module_, name)); }

  HMODULE module_;
};
