#include <windows.h>

#include "environment/CBrowseForFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "driver/CommonDialogs.h"
#include "driver/ImportPatch.h"
#include "driver/Popups.h"
#include "driver/Text.h"
#include "support/PrintText.h"
#include "support/TracedThread.h"
#include "window/CActivationContext.h"

namespace {

using Lines = std::vector<std::wstring>;

constexpr wchar_t kFolder[] = L"C:\\windows\\system32";

class CBrowseForFolderTest : public testing::Test {
 protected:
  CActivationScope scope;
  TracedThread thread;
  Popups popups;
};

bool IsOkEnabled(HWND dialog) { return IsWindowEnabled(GetDlgItem(dialog, IDOK)); }

// The picker that notes what it is told.
struct NotingPicker : CBrowseForFolder {
  using CBrowseForFolder::CBrowseForFolder;
  using CBrowseForFolder::DialogWindow;

  void OnInitialized() override {
    ++initialized;
    windowAtStart = DialogWindow();
  }
  void OnSelChanged() override { ++selections; }

  int initialized = 0, selections = 0;
  HWND windowAtStart = nullptr;
};

std::string missingFunction;

// Taken before anything is patched: finding them takes these functions themselves.
const auto realGetProcAddress = RealFunction("kernel32.dll", "GetProcAddress", &GetProcAddress);
const auto realLoadLibrary = RealFunction("kernel32.dll", "LoadLibraryExW", &LoadLibraryExW);
const auto realFreeLibrary = RealFunction("kernel32.dll", "FreeLibrary", &FreeLibrary);

FARPROC WINAPI WithoutOneFunction(HMODULE module, const char* name) {
  if (reinterpret_cast<ULONG_PTR>(name) > 0xFFFF && name == missingFunction) return nullptr;
  return realGetProcAddress(module, name);
}

HMODULE WINAPI WithoutShell(const wchar_t* name, HANDLE file, DWORD flags) {
  return lstrcmpiW(name, L"shell32.dll") == 0 ? nullptr : realLoadLibrary(name, file, flags);
}

int shellFreed;

BOOL WINAPI CountFree(HMODULE library) {
  shellFreed += library == GetModuleHandleW(L"shell32.dll");
  return realFreeLibrary(library);
}

// With a shell whose functions `lookUp` finds. Its library is freed in any case.
bool SelectBy(decltype(&WithoutOneFunction) lookUp, CBrowseForFolder& picker) {
  shellFreed = 0;
  EXPECT_GT(PatchImport("kernel32.dll", "FreeLibrary", reinterpret_cast<void*>(&CountFree)), 0);
  EXPECT_GT(PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(lookUp)), 0);
  const bool selected = picker.SelectFolder();
  RestoreImport("kernel32.dll", "GetProcAddress");
  RestoreImport("kernel32.dll", "FreeLibrary");
  EXPECT_EQ(1, shellFreed);
  return selected;
}

}  // namespace

TEST_F(CBrowseForFolderTest, GivesTheChosenFolder) {
  popups.ExpectDialog([](HWND dialog) { ChooseFolder(dialog, kFolder); });
  CBrowseForFolder picker;
  EXPECT_TRUE(picker.SelectFolder());
  EXPECT_EQ(0, lstrcmpiW(kFolder, picker.GetFolder().Text())) << testing::PrintToString(picker.GetFolder());
  EXPECT_TRUE(picker.selectedFolder == picker.GetFolder());
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST_F(CBrowseForFolderTest, GivesNothingWhenCancelled) {
  popups.ExpectDialog(DismissDialog);
  CBrowseForFolder picker;
  EXPECT_FALSE(picker.SelectFolder());
  EXPECT_TRUE(picker.GetFolder().IsEmpty());
}

TEST_F(CBrowseForFolderTest, KeepsTheFormerFolderWhenCancelled) {
  CBrowseForFolder picker;
  popups.ExpectDialog([](HWND dialog) { ChooseFolder(dialog, kFolder); });
  EXPECT_TRUE(picker.SelectFolder());
  popups.ExpectDialog(DismissDialog);
  EXPECT_FALSE(picker.SelectFolder());
  EXPECT_EQ(0, lstrcmpiW(kFolder, picker.GetFolder().Text()));
  EXPECT_TRUE(picker.selectedFolder == picker.GetFolder());
}

TEST_F(CBrowseForFolderTest, ShowsItsTitle) {
  CBrowseForFolder picker;
  picker.SetTitle(L"Where to?");
  bool shown = false;
  popups.ExpectDialog([&](HWND dialog) {
    picker.SetTitle(L"Too late");
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
      shown |= WindowText(child) == L"Where to?";
    DismissDialog(dialog);
  });
  picker.SelectFolder();
  EXPECT_TRUE(shown);

  // The title set meanwhile had no effect.
  popups.ExpectDialog([&](HWND dialog) {
    shown = false;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
      shown |= WindowText(child) == L"Where to?";
    DismissDialog(dialog);
  });
  picker.SelectFolder();
  EXPECT_TRUE(shown);
}

TEST_F(CBrowseForFolderTest, BelongsToItsOwner) {
  const HWND owner =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
  CBrowseForFolder first(owner), second;
  second.SetOwner(owner);
  for (CBrowseForFolder* picker : {&first, &second}) {
    HWND found = nullptr;
    popups.ExpectDialog([&](HWND dialog) {
      picker->SetOwner(nullptr);  // no effect now
      found = GetWindow(dialog, GW_OWNER);
      DismissDialog(dialog);
    });
    picker->SelectFolder();
    EXPECT_EQ(owner, found);
  }
  DestroyWindow(owner);
}

TEST_F(CBrowseForFolderTest, TellsOfItsStartAndOfSelections) {
  NotingPicker picker;
  HWND shown = nullptr;
  int before = 0;
  popups.ExpectDialog([&](HWND dialog) {
    shown = dialog;
    before = picker.selections;
    SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(kFolder));
    DismissDialog(dialog);
  });
  picker.SelectFolder();
  EXPECT_EQ(1, picker.initialized);
  EXPECT_EQ(shown, picker.windowAtStart);
  EXPECT_GT(picker.selections, before);
  EXPECT_EQ(nullptr, picker.DialogWindow()) << "the picker is down";
}

TEST_F(CBrowseForFolderTest, EnablesItsOkButtonWhileItIsUp) {
  CBrowseForFolder picker;
  picker.EnableOk(false);
  popups.ExpectDialog([&](HWND dialog) {
    picker.EnableOk(false);
    EXPECT_FALSE(IsOkEnabled(dialog));
    picker.EnableOk(true);
    EXPECT_TRUE(IsOkEnabled(dialog));
    DismissDialog(dialog);
  });
  picker.SelectFolder();
}

TEST_F(CBrowseForFolderTest, ThrowsNothingIntoTheShell) {
  struct ThrowingPicker : CBrowseForFolder {
    void OnInitialized() override { throw std::runtime_error("no"); }
  } picker;
  popups.ExpectDialog(DismissDialog);
  EXPECT_FALSE(picker.SelectFolder());
  EXPECT_EQ(1u, thread.Error().trace->errorCount);
}

// --- A shell of the test's own -----------------------------------------------------------------------------------

namespace {

constexpr UINT kEnableOkMessage = 1125;

// The platform's interfaces have no virtual destructor.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// Counts what is given back.
struct CountingAllocator final : IMalloc {
  HRESULT WINAPI QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG WINAPI AddRef() override { return ++references; }
  ULONG WINAPI Release() override { return --references; }
  void* WINAPI Alloc(SIZE_T) override { return nullptr; }
  void* WINAPI Realloc(void*, SIZE_T) override { return nullptr; }
  void WINAPI Free(void* block) override { freed.push_back(block); }
  SIZE_T WINAPI GetSize(void*) override { return 0; }
  int WINAPI DidAlloc(void*) override { return -1; }
  void WINAPI HeapMinimize() override {}

  ULONG references = 0;
  std::vector<void*> freed;
};

#pragma GCC diagnostic pop

struct FakeShell {
  BROWSEINFOW info = {};
  bool isFolder = true;
  ITEMIDLIST item = {};
  CountingAllocator allocator;
  std::vector<std::pair<UINT, LPARAM>> sent;  // to the picker's window
  std::function<void(HWND)> whileUp;
} * fakeShell;

LRESULT CALLBACK NoteMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message >= WM_USER) fakeShell->sent.emplace_back(message, lParam);
  return DefWindowProcW(window, message, wParam, lParam);
}

PIDLIST_ABSOLUTE WINAPI FakeBrowse(BROWSEINFOW* info) {
  fakeShell->info = *info;
  const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&NoteMessage));
  info->lpfn(window, BFFM_INITIALIZED, 0, info->lParam);
  fakeShell->whileUp(window);
  DestroyWindow(window);
  return reinterpret_cast<PIDLIST_ABSOLUTE>(&fakeShell->item);
}

BOOL WINAPI FakePathOf(PCIDLIST_ABSOLUTE, wchar_t* path) {
  if (fakeShell->isFolder) lstrcpyW(path, kFolder);
  return fakeShell->isFolder;
}

HRESULT WINAPI FakeMalloc(IMalloc** allocator) {
  fakeShell->allocator.AddRef();
  *allocator = &fakeShell->allocator;
  return S_OK;
}

FARPROC WINAPI WithFakeShell(HMODULE module, const char* name) {
  if (reinterpret_cast<ULONG_PTR>(name) > 0xFFFF) {
    const std::string_view wanted(name);
    if (wanted == "SHBrowseForFolderW") return reinterpret_cast<FARPROC>(&FakeBrowse);
    if (wanted == "SHGetPathFromIDListW") return reinterpret_cast<FARPROC>(&FakePathOf);
    if (wanted == "SHGetMalloc") return reinterpret_cast<FARPROC>(&FakeMalloc);
  }
  return realGetProcAddress(module, name);
}

bool SelectIn(FakeShell& shell, CBrowseForFolder& picker) {
  fakeShell = &shell;
  return SelectBy(WithFakeShell, picker);
}

}  // namespace

TEST_F(CBrowseForFolderTest, AsksTheShellForFoldersOfTheFileSystem) {
  ITEMIDLIST first = {}, second = {};
  const auto root = reinterpret_cast<PCIDLIST_ABSOLUTE>(&first), other = reinterpret_cast<PCIDLIST_ABSOLUTE>(&second);
  CBrowseForFolder picker(GetDesktopWindow(), other);
  picker.SetRoot(root);
  picker.SetTitle(L"Where to?");
  FakeShell shell;
  shell.whileUp = [&](HWND) { picker.SetRoot(other); };
  EXPECT_TRUE(SelectIn(shell, picker));
  EXPECT_EQ(65u, shell.info.ulFlags);
  EXPECT_EQ(GetDesktopWindow(), shell.info.hwndOwner);
  EXPECT_EQ(root, shell.info.pidlRoot);
  EXPECT_STREQ(L"Where to?", shell.info.lpszTitle);
  EXPECT_NE(nullptr, shell.info.pszDisplayName);
  EXPECT_EQ(reinterpret_cast<LPARAM>(&picker), shell.info.lParam);

  shell.whileUp = [](HWND) {};
  EXPECT_TRUE(SelectIn(shell, picker));
  EXPECT_EQ(root, shell.info.pidlRoot) << "a root set while the picker was up had no effect";
}

// There the shell shows no picker of the new style.
TEST_F(CBrowseForFolderTest, AsksForTheOldStyleInTheMultiThreadedApartment) {
  ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)));
  CBrowseForFolder picker;
  FakeShell shell;
  shell.whileUp = [](HWND) {};
  EXPECT_TRUE(SelectIn(shell, picker));
  EXPECT_EQ(static_cast<UINT>(BIF_RETURNONLYFSDIRS), shell.info.ulFlags);
  CoUninitialize();
  EXPECT_TRUE(SelectIn(shell, picker));
  EXPECT_EQ(65u, shell.info.ulFlags) << "which lasts for that time only";
}

TEST_F(CBrowseForFolderTest, TurnsOkOffWhenAValidationFailed) {
  CBrowseForFolder picker;
  FakeShell shell;
  shell.whileUp = [&](HWND window) { shell.info.lpfn(window, BFFM_VALIDATEFAILEDW, 0, shell.info.lParam); };
  EXPECT_TRUE(SelectIn(shell, picker));
  EXPECT_EQ((std::vector<std::pair<UINT, LPARAM>>{{kEnableOkMessage, FALSE}}), shell.sent);
}

TEST_F(CBrowseForFolderTest, GivesTheItemBackToTheShell) {
  CBrowseForFolder picker;
  FakeShell shell;
  shell.whileUp = [](HWND) {};
  EXPECT_TRUE(SelectIn(shell, picker));
  EXPECT_EQ(std::vector<void*>{&shell.item}, shell.allocator.freed);
  EXPECT_EQ(0u, shell.allocator.references);
}

TEST_F(CBrowseForFolderTest, SelectsNothingThatIsNoFolder) {
  CBrowseForFolder picker;
  FakeShell shell;
  shell.whileUp = [](HWND) {};
  EXPECT_TRUE(SelectIn(shell, picker));
  EXPECT_STREQ(kFolder, picker.selectedFolder.Text());
  shell.isFolder = false;
  EXPECT_FALSE(SelectIn(shell, picker));
  EXPECT_TRUE(picker.selectedFolder.IsEmpty());
  EXPECT_EQ(2u, shell.allocator.freed.size());
}

// --- A shell that lacks something --------------------------------------------------------------------------------

TEST_F(CBrowseForFolderTest, TellsOfAMissingLibrary) {
  CBrowseForFolder picker;
  ASSERT_GT(PatchImport("kernel32.dll", "LoadLibraryExW", reinterpret_cast<void*>(&WithoutShell)), 0);
  const bool selected = picker.SelectFolder();
  RestoreImport("kernel32.dll", "LoadLibraryExW");
  EXPECT_FALSE(selected);
  EXPECT_EQ(Lines{L"CBrowseForFolder::SelectFolder: LoadLibrary(\"Shell32.dll\") failed"}, thread.Lines());
  EXPECT_EQ(1u, thread.Error().trace->errorCount);
}

TEST_F(CBrowseForFolderTest, TellsOfAllFunctionsWhenOneIsMissing) {
  for (const char* name : {"SHBrowseForFolderW", "SHGetPathFromIDListW", "SHGetMalloc"}) {
    missingFunction = name;
    CBrowseForFolder picker;
    EXPECT_FALSE(SelectBy(WithoutOneFunction, picker));
    const Lines expected = {L"CBrowseForFolder::SelectFolder: GetProcAddress(\"SHBrowseForFolder\") failed",
                            L"CBrowseForFolder::SelectFolder: GetProcAddress(\"SHGetPathFromIDList\") failed",
                            L"CBrowseForFolder::SelectFolder: GetProcAddress(\"SHGetMalloc\") failed"};
    EXPECT_EQ(expected, thread.Lines());
  }
  EXPECT_EQ(9u, thread.Error().trace->errorCount);
}
