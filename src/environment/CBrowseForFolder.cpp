#include "environment/CBrowseForFolder.h"

#include <memory>
#include <type_traits>

#include "DriverLIB/Trace.h"

struct CBrowseForFolder::ShellFunctions {
  explicit ShellFunctions(HMODULE library)
      : browse(Bind<decltype(browse)>(library, "SHBrowseForFolderW")),
        pathOf(Bind<decltype(pathOf)>(library, "SHGetPathFromIDListW")),
        allocatorOf(Bind<decltype(allocatorOf)>(library, "SHGetMalloc")) {}
  bool Complete() const { return browse && pathOf && allocatorOf; }

  decltype(&::SHBrowseForFolderW) browse;
  decltype(&::SHGetPathFromIDListW) pathOf;
  decltype(&::SHGetMalloc) allocatorOf;

 private:
  template <class Function>
  static Function Bind(HMODULE library, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(library, name)));
  }
};

namespace {

struct LibraryFreer {
  void operator()(HMODULE library) const { ::FreeLibrary(library); }
};
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryFreer>;

// OLE on this thread, which a thread of the multi-threaded apartment cannot have.
class OleScope {
 public:
  OleScope() : initialized_(SUCCEEDED(::OleInitialize(nullptr))) {}
  ~OleScope() {
    if (initialized_) ::OleUninitialize();
  }
  bool IsInitialized() const { return initialized_; }
  OleScope(const OleScope&) = delete;
  OleScope& operator=(const OleScope&) = delete;

 private:
  bool initialized_;
};

}  // namespace

CBrowseForFolder::CBrowseForFolder(HWND owner, PCIDLIST_ABSOLUTE root) {
  info_.hwndOwner = owner;
  info_.pidlRoot = root;
  info_.pszDisplayName = path_;
  info_.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
  info_.lpfn = OnMessage;
  info_.lParam = reinterpret_cast<LPARAM>(this);
}

void CBrowseForFolder::SetOwner(HWND owner) {
  if (!dialogWindow_) info_.hwndOwner = owner;
}

void CBrowseForFolder::SetRoot(PCIDLIST_ABSOLUTE root) {
  if (!dialogWindow_) info_.pidlRoot = root;
}

void CBrowseForFolder::SetTitle(const wchar_t* title) {
  if (dialogWindow_) return;
  title_.Assign(title);
  info_.lpszTitle = title_.Text();
}

bool CBrowseForFolder::SelectFolder() {
  const Library library(::LoadLibraryExW(L"Shell32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
  if (!library) {
    TraceError("CBrowseForFolder::SelectFolder: LoadLibrary(\"Shell32.dll\") failed");
    return false;
  }
  const ShellFunctions shell(library.get());
  if (!shell.Complete()) {
    TraceError("CBrowseForFolder::SelectFolder: GetProcAddress(\"SHBrowseForFolder\") failed");
    TraceError("CBrowseForFolder::SelectFolder: GetProcAddress(\"SHGetPathFromIDList\") failed");
    TraceError("CBrowseForFolder::SelectFolder: GetProcAddress(\"SHGetMalloc\") failed");
    return false;
  }
  const bool selected = RunPicker(shell);
  dialogWindow_ = nullptr;
  return selected;
}

bool CBrowseForFolder::RunPicker(const ShellFunctions& shell) {
  const OleScope ole;
  BROWSEINFOW info = info_;
  // The new style needs OLE: the shell shows no picker at all where it cannot have both.
  if (!ole.IsInitialized()) info.ulFlags &= ~static_cast<UINT>(BIF_NEWDIALOGSTYLE);
  const PIDLIST_ABSOLUTE item = shell.browse(&info);
  if (!item) return false;
  const bool selected = shell.pathOf(item, path_);
  IMalloc* allocator = nullptr;
  if (SUCCEEDED(shell.allocatorOf(&allocator))) {
    allocator->Free(item);
    allocator->Release();
  }
  selectedFolder.Assign(selected ? path_ : L"");
  return selected;
}

void CBrowseForFolder::EnableOk(bool enable) {
  if (dialogWindow_) ::SendMessageW(dialogWindow_, BFFM_ENABLEOK, 0, enable);
}

void CBrowseForFolder::HandleMessage(HWND dialog, UINT message) {
  dialogWindow_ = dialog;
  switch (message) {
    case BFFM_INITIALIZED:
      return OnInitialized();
    case BFFM_SELCHANGED:
      return OnSelChanged();
    case BFFM_VALIDATEFAILEDW:
      return EnableOk(false);
  }
}

// Nothing may be thrown into the shell.
int CALLBACK CBrowseForFolder::OnMessage(HWND dialog, UINT message, LPARAM, LPARAM self) try {
  reinterpret_cast<CBrowseForFolder*>(self)->HandleMessage(dialog, message);
  return message == BFFM_VALIDATEFAILEDW;  // the picker stays up
} catch (...) {
  TraceError("%hs: caught throwed exception", "CBrowseForFolder::OnMessage");
  return 0;
}
