// Another program as the library's host. For its life the path of the running program is this one.
#pragma once

#include <windows.h>

#include "driver/ImportPatch.h"

class HostProgramScope {
 public:
  explicit HostProgramScope(const wchar_t* path) {
    path_ = path;
    PatchImport("kernel32.dll", "GetModuleFileNameW", reinterpret_cast<void*>(&FileName));
  }
  ~HostProgramScope() { RestoreImport("kernel32.dll", "GetModuleFileNameW"); }
  HostProgramScope(const HostProgramScope&) = delete;
  HostProgramScope& operator=(const HostProgramScope&) = delete;

 private:
  static DWORD WINAPI FileName(HMODULE module, wchar_t* buffer, DWORD capacity) {
    // Also asked by what restores the import.
    if (module) return real_(module, buffer, capacity);
    lstrcpynW(buffer, path_, static_cast<int>(capacity));
    return static_cast<DWORD>(lstrlenW(buffer));
  }

  static inline const auto real_ = RealFunction("kernel32.dll", "GetModuleFileNameW", &GetModuleFileNameW);
  static inline const wchar_t* path_ = nullptr;
};
