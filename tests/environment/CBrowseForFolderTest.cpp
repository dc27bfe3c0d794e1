#include <windows.h>

#include "environment/CBrowseForFolder.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>
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

FARPROC WINAPI WithoutOneFunction(HMODULE module, const char* name) {
  if (reinterpret_cast<ULONG_PTR>(name) > 0xFFFF && name == missingFunction) return nullptr;
  return realGetProcAddress(module, name);
}

HMODULE WINAPI WithoutShell(const wchar_t* name, HANDLE file, DWORD flags) {
  return lstrcmpiW(name, L"shell32.dll") == 0 ? nullptr : realLoadLibrary(name, file, flags);
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
    ASSERT_GT(PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&WithoutOneFunction)), 0);
    const bool selected = picker.SelectFolder();
    RestoreImport("kernel32.dll", "GetProcAddress");
    EXPECT_FALSE(selected);
    const Lines expected = {L"CBrowseForFolder::SelectFolder: GetProcAddress(\"SHBrowseForFolder\") failed",
                            L"CBrowseForFolder::SelectFolder: GetProcAddress(\"SHGetPathFromIDList\") failed",
                            L"CBrowseForFolder::SelectFolder: GetProcAddress(\"SHGetMalloc\") failed"};
    EXPECT_EQ(expected, thread.Lines());
  }
  EXPECT_EQ(9u, thread.Error().trace->errorCount);
}
