// Stands in for the help library while it lives: notes what is asked of it. One at a time.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "driver/ImportPatch.h"

class HelpSpy {
 public:
  struct Call {
    HWND caller;
    std::wstring path;
    UINT command;
    DWORD_PTR data;
  };

  HelpSpy() {
    current = this;
    realFind = RealFunction("kernel32.dll", "GetProcAddress", &GetProcAddress);
    PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&Find));
  }
  ~HelpSpy() {
    RestoreImport("kernel32.dll", "GetProcAddress");
    current = nullptr;
  }
  HelpSpy(const HelpSpy&) = delete;
  HelpSpy& operator=(const HelpSpy&) = delete;

  std::vector<Call> calls;
  bool succeeds = true;  // what the library answers

  // The path of the only call since the last question; an empty text when there was none or more than one.
  std::wstring TakePath() {
    const std::vector<Call> taken = std::move(calls);
    calls.clear();
    return taken.size() == 1 ? taken.front().path : std::wstring();
  }

 private:
  static FARPROC WINAPI Find(HMODULE module, LPCSTR name) {
    if (!IS_INTRESOURCE(name) && lstrcmpA(name, "HtmlHelpW") == 0)
      return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&Show));
    return realFind(module, name);
  }
  static HWND WINAPI Show(HWND caller, LPCWSTR path, UINT command, DWORD_PTR data) {
    current->calls.push_back({caller, path, command, data});
    return current->succeeds ? GetDesktopWindow() : nullptr;
  }

  static inline HelpSpy* current = nullptr;
  static inline decltype(&GetProcAddress) realFind = nullptr;
};
