// Stands in for the system's dialogs for file names: notes what they are asked, and answers in place of the user.
//
//   FileDialogSpy spy;
//   spy.chosen = L"C:\\tools\\viewer.exe";
//   test.Control(IDC_ACTION_BROWSE).Click();
//   EXPECT_EQ((FileDialogSpy::Calls{{.owner = page, .filter = L"Programs(*.exe)|*.exe|"}}), spy.calls);
#pragma once

#include <windows.h>
// behind windows.h
#include <commdlg.h>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "driver/ImportPatch.h"

class FileDialogSpy {
 public:
  // What a dialog was asked. The values here are those of a page that asks for a file without more ado.
  struct Call {
    bool save = false;
    HWND owner = nullptr;
    std::wstring filter = {};  // with bars in place of the zeros
    DWORD firstRow = 1;
    std::wstring startName = {}, startFolder = {}, extension = {};
    DWORD pathRoom = 260, titleRoom = 257, flags = 0x1804;

    bool operator==(const Call&) const = default;
  };

  using Calls = std::vector<Call>;

  Calls calls;
  std::wstring chosen;  // empty: the user cancels
  DWORD refusal = 0;    // with a start name the dialog does not come up, for this reason
  std::function<void()> whileUp = [] {};

  FileDialogSpy() {
    current = this;
    realFind = RealFunction("kernel32.dll", "GetProcAddress", &GetProcAddress);
    PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&Find));
  }
  ~FileDialogSpy() {
    RestoreImport("kernel32.dll", "GetProcAddress");
    current = nullptr;
  }
  FileDialogSpy(const FileDialogSpy&) = delete;
  FileDialogSpy& operator=(const FileDialogSpy&) = delete;

 private:
  static FARPROC WINAPI Find(HMODULE module, LPCSTR name) {
    if (reinterpret_cast<ULONG_PTR>(name) > 0xFFFF) {
      const std::string_view wanted(name);
      if (wanted == "GetOpenFileNameW") return reinterpret_cast<FARPROC>(&Answer<false>);
      if (wanted == "GetSaveFileNameW") return reinterpret_cast<FARPROC>(&Answer<true>);
      if (wanted == "CommDlgExtendedError") return reinterpret_cast<FARPROC>(&LastError);
    }
    return realFind(module, name);
  }

  static DWORD WINAPI LastError() { return current->lastError_; }

  template <bool kSave>
  static BOOL WINAPI Answer(OPENFILENAMEW* dialog) {
    return current->Run(kSave, *dialog);
  }

  static std::wstring TextOf(const wchar_t* text) { return text ? text : L""; }

  static std::wstring FilterOf(const wchar_t* parts) {
    std::wstring filter;
    for (; *parts; parts += std::wstring_view(parts).size() + 1) filter += std::wstring(parts) + L'|';
    return filter;
  }

  bool Run(bool save, OPENFILENAMEW& dialog) {
    calls.push_back({save, dialog.hwndOwner, FilterOf(dialog.lpstrFilter), dialog.nFilterIndex,
                     TextOf(dialog.lpstrFile), TextOf(dialog.lpstrInitialDir), TextOf(dialog.lpstrDefExt),
                     dialog.nMaxFile, dialog.nMaxFileTitle, dialog.Flags});
    lastError_ = *dialog.lpstrFile ? refusal : 0;
    if (lastError_) return false;
    whileUp();
    if (chosen.empty()) return false;
    lstrcpynW(dialog.lpstrFile, chosen.c_str(), static_cast<int>(dialog.nMaxFile));
    lstrcpynW(dialog.lpstrFileTitle, chosen.substr(chosen.find_last_of(L'\\') + 1).c_str(),
              static_cast<int>(dialog.nMaxFileTitle));
    return true;
  }

  static inline FileDialogSpy* current = nullptr;
  static inline decltype(&GetProcAddress) realFind = nullptr;

  DWORD lastError_ = 0;
};

inline void PrintTo(const FileDialogSpy::Call& call, std::ostream* out) {
  *out << (call.save ? "save" : "open") << " owner " << call.owner << " filter " << testing::PrintToString(call.filter)
       << " row " << call.firstRow << " name " << testing::PrintToString(call.startName) << " folder "
       << testing::PrintToString(call.startFolder) << " extension " << testing::PrintToString(call.extension)
       << " room " << call.pathRoom << " and " << call.titleRoom << " flags " << call.flags;
}
