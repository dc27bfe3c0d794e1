#include "SystemFiles.h"

#include <windows.h>

#include <algorithm>

#include "Text.h"

namespace host {
namespace {

class CFileHandle {
 public:
  explicit CFileHandle(HANDLE handle) : handle_(handle) {}
  ~CFileHandle() {
    if (IsOpen()) CloseHandle(handle_);
  }
  CFileHandle(const CFileHandle&) = delete;
  CFileHandle& operator=(const CFileHandle&) = delete;

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_;
};

bool WriteAll(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto portion = static_cast<DWORD>(std::min<size_t>(bytes.size(), 1 << 20));
    if (!WriteFile(file, bytes.data(), portion, &written, nullptr)) return false;
    bytes.remove_prefix(written);
  }
  return true;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::wstring& name) {
  const CFileHandle file(CreateFileW(name.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.IsOpen()) return {};
  std::string bytes;
  char portion[16384];
  for (DWORD read = 1; read != 0;) {
    if (!ReadFile(file.Get(), portion, sizeof portion, &read, nullptr)) return {};
    bytes.append(portion, read);
  }
  return bytes;
}

bool WriteWholeFile(const std::wstring& name, std::string_view bytes) {
  const CFileHandle file(
      CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  return file.IsOpen() && WriteAll(file.Get(), bytes);
}

std::wstring LastErrorText() {
  const DWORD code = GetLastError();
  wchar_t text[512];
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
                     nullptr, code, 0, text, static_cast<DWORD>(std::size(text)), nullptr);
  if (length == 0) return L"error " + FormatNumber(code);
  return std::wstring(TrimBlanks({text, length}));
}

void Print(Stream stream, std::wstring_view text) {
  const HANDLE handle = GetStdHandle(stream == Stream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
  DWORD mode = 0;
  if (GetConsoleMode(handle, &mode))
    WriteConsoleW(handle, text.data(), static_cast<DWORD>(text.size()), nullptr, nullptr);
  else
    WriteAll(handle, EncodeUtf8(text));
}

}  // namespace host
