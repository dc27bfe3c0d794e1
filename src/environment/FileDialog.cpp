#include "environment/FileDialog.h"

#include <cderr.h>

#include <algorithm>
#include <string>

#include "DriverLIB/SystemFunction.h"

namespace {

constexpr wchar_t kLibrary[] = L"comdlg32.dll";
constexpr wchar_t kBar = L'|';
constexpr size_t kTitleRoom = 257;

// The platform's form: each part closed by a zero, and one zero more at the end.
std::wstring FilterParts(const CUString& filter) {
  std::wstring parts(filter.Text());
  std::replace(parts.begin(), parts.end(), kBar, L'\0');
  parts += L'\0';
  return parts;
}

std::wstring PathBuffer(const FileDialogRequest& request) {
  std::wstring buffer = std::wstring(request.startName.Text()).substr(0, request.pathRoom - 1);
  buffer.resize(request.pathRoom);
  return buffer;
}

// The dialogs move the current directory of the process to where the user browses, for good. It is the host's: relative
// paths go by it, and a folder that it stands in cannot be removed. The flag against that is documented as without
// effect on opening.
class CurrentDirectoryKeeper {
 public:
  CurrentDirectoryKeeper() : directory_(::GetCurrentDirectoryW(0, nullptr), L'\0') {
    const DWORD length = ::GetCurrentDirectoryW(static_cast<DWORD>(directory_.size()), directory_.data());
    if (length >= directory_.size()) directory_.clear();  // another thread has just moved it
  }
  ~CurrentDirectoryKeeper() {
    if (!directory_.empty()) ::SetCurrentDirectoryW(directory_.c_str());
  }
  CurrentDirectoryKeeper(const CurrentDirectoryKeeper&) = delete;
  CurrentDirectoryKeeper& operator=(const CurrentDirectoryKeeper&) = delete;

 private:
  std::wstring directory_;
};

const wchar_t* TextOrNull(const CUString& text) { return text.IsEmpty() ? nullptr : text.Text(); }

bool WasNameRefused() {
  const auto errorOf = SystemFunction<decltype(::CommDlgExtendedError)>(kLibrary, "CommDlgExtendedError");
  return errorOf && errorOf() == FNERR_INVALIDFILENAME;
}

std::optional<ChosenFile> AskForFile(const char* function, HWND owner, const FileDialogRequest& request) {
  const auto ask = SystemFunction<decltype(::GetOpenFileNameW)>(kLibrary, function);
  if (!ask) return std::nullopt;
  const std::wstring filter = FilterParts(request.filter);
  std::wstring path = PathBuffer(request);
  std::wstring title(kTitleRoom, L'\0');

  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = filter.c_str();
  dialog.nFilterIndex = 1;
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  dialog.lpstrFileTitle = title.data();
  dialog.nMaxFileTitle = static_cast<DWORD>(title.size());
  dialog.lpstrInitialDir = TextOrNull(request.startFolder);
  dialog.lpstrDefExt = TextOrNull(request.defaultExtension);
  dialog.Flags = request.flags;

  const CurrentDirectoryKeeper directory;
  bool chosen = ask(&dialog);
  // A start name with characters that no file may have keeps the dialog from coming up at all.
  if (!chosen && WasNameRefused()) {
    std::fill(path.begin(), path.end(), L'\0');
    chosen = ask(&dialog);
  }
  if (!chosen) return std::nullopt;
  return ChosenFile{CUString(path.c_str()), CUString(title.c_str())};
}

}  // namespace

std::optional<ChosenFile> AskForFileToOpen(HWND owner, const FileDialogRequest& request) {
  return AskForFile("GetOpenFileNameW", owner, request);
}

std::optional<ChosenFile> AskForFileToSave(HWND owner, const FileDialogRequest& request) {
  return AskForFile("GetSaveFileNameW", owner, request);
}
