// A host as a process of its own: what it prints, how it ends, and its sheet, closed from outside.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "host/Text.h"

inline std::wstring Widened(std::string_view text) { return host::DecodeText(text).text; }

// A file in the folder for temporary files, deleted when it goes.
class CTempFile {
 public:
  explicit CTempFile(const std::wstring& name) {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    name_ = folder + name;
    DeleteFileW(name_.c_str());
  }
  CTempFile(const std::wstring& name, std::string_view content) : CTempFile(name) {
    const HANDLE file = CreateFileW(name_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
    CloseHandle(file);
  }
  ~CTempFile() { DeleteFileW(name_.c_str()); }
  CTempFile(const CTempFile&) = delete;
  CTempFile& operator=(const CTempFile&) = delete;

  const std::wstring& Name() const { return name_; }

  std::optional<std::string> Content() const {
    const HANDLE file = CreateFileW(name_.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    std::string content(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, content.data(), static_cast<DWORD>(content.size()), &read, nullptr);
    CloseHandle(file);
    return content;
  }

 private:
  std::wstring name_;
};

struct HostRun {
  bool opened = false;  // whether a sheet came up
  DWORD exitCode = 0;
  std::string output, errors;
};

// Runs the program until it ends; `withSheet` is called once with its sheet, when that stands.
HostRun RunProgram(const std::wstring& program, const std::wstring& arguments,
                   const std::function<void(HWND)>& withSheet = {});

void PressOk(HWND sheet);
void PressCancel(HWND sheet);
