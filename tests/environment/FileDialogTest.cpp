#include <windows.h>

#include "environment/FileDialog.h"

#include <cderr.h>
#include <gtest/gtest.h>

#include <string>

#include "driver/CommonDialogs.h"
#include "driver/ImportPatch.h"
#include "driver/Popups.h"
#include "support/CurrentDirectory.h"
#include "support/FileDialogSpy.h"
#include "support/PrintText.h"
#include "window/CActivationContext.h"

namespace {

constexpr wchar_t kFolder[] = L"C:\\windows\\system32";
constexpr wchar_t kLibrary[] = L"C:\\windows\\system32\\kernel32.dll";

class FileDialogTest : public testing::Test {
 protected:
  CActivationScope scope;
  Popups popups;
};

const auto realLoadLibrary = RealFunction("kernel32.dll", "LoadLibraryExW", &LoadLibraryExW);

HMODULE WINAPI WithoutDialogs(const wchar_t* name, HANDLE file, DWORD flags) {
  return lstrcmpiW(name, L"comdlg32.dll") == 0 ? nullptr : realLoadLibrary(name, file, flags);
}

}  // namespace

// --- The system's dialogs ----------------------------------------------------------------------------------------

TEST_F(FileDialogTest, GivesPathAndTitleOfTheFileToOpen) {
  popups.ExpectDialog([](HWND dialog) { ChooseFile(dialog, kLibrary); });
  const auto chosen = AskForFileToOpen(nullptr, {.filter = L"All files(*.*)|*.*|"});
  ASSERT_TRUE(chosen);
  EXPECT_EQ(0, lstrcmpiW(kLibrary, chosen->path.Text())) << testing::PrintToString(chosen->path);
  EXPECT_EQ(0, lstrcmpiW(L"kernel32.dll", chosen->title.Text())) << testing::PrintToString(chosen->title);
}

TEST_F(FileDialogTest, StartsInTheFolderWithTheNameAndAddsTheExtension) {
  popups.ExpectDialog([](HWND dialog) {
    EXPECT_EQ(L"offer.pdf", ProposedFile(dialog));
    ChooseFile(dialog, L"nempdf-no-such-file");
  });
  const auto chosen = AskForFileToSave(nullptr, {.filter = L"Pdf files(*.pdf)|*.pdf|",
                                                 .flags = OFN_PATHMUSTEXIST,
                                                 .startName = L"offer.pdf",
                                                 .startFolder = kFolder,
                                                 .defaultExtension = L"pdf"});
  ASSERT_TRUE(chosen);
  EXPECT_EQ(0, lstrcmpiW(L"C:\\windows\\system32\\nempdf-no-such-file.pdf", chosen->path.Text()))
      << testing::PrintToString(chosen->path);
  EXPECT_EQ(L"nempdf-no-such-file.pdf", chosen->title);
}

TEST_F(FileDialogTest, GivesNothingWhenCancelled) {
  for (const auto ask : {&AskForFileToOpen, &AskForFileToSave}) {
    popups.ExpectDialog(DismissDialog);
    EXPECT_FALSE(ask(nullptr, {.filter = L"All files(*.*)|*.*|"}));
  }
}

TEST_F(FileDialogTest, LeavesTheCurrentDirectoryAsItWas) {
  const CurrentDirectory there(L"C:\\windows");
  popups.ExpectDialog([](HWND dialog) { ChooseFile(dialog, kLibrary); });
  EXPECT_TRUE(AskForFileToOpen(nullptr, {.filter = L"All files(*.*)|*.*|"}));
  EXPECT_EQ(L"C:\\windows", CurrentDirectory::Name());

  FileDialogSpy spy;
  spy.whileUp = [] { SetCurrentDirectoryW(kFolder); };
  for (const wchar_t* chosen : {L"", L"C:\\a.pdf"})
    for (const auto ask : {&AskForFileToOpen, &AskForFileToSave}) {
      spy.chosen = chosen;
      ask(nullptr, {.filter = L"All files(*.*)|*.*|"});
      EXPECT_EQ(L"C:\\windows", CurrentDirectory::Name());
    }
}

TEST_F(FileDialogTest, BelongsToItsOwner) {
  const HWND owner =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
  HWND found = nullptr;
  popups.ExpectDialog([&](HWND dialog) {
    found = GetWindow(dialog, GW_OWNER);
    DismissDialog(dialog);
  });
  EXPECT_FALSE(AskForFileToOpen(owner, {.filter = L"All files(*.*)|*.*|"}));
  EXPECT_EQ(owner, found);
  DestroyWindow(owner);
}

TEST_F(FileDialogTest, GivesNothingOnASystemWithoutTheDialogs) {
  ASSERT_GT(PatchImport("kernel32.dll", "LoadLibraryExW", reinterpret_cast<void*>(&WithoutDialogs)), 0);
  const auto open = AskForFileToOpen(nullptr, {.filter = L"All files(*.*)|*.*|"});
  const auto save = AskForFileToSave(nullptr, {.filter = L"All files(*.*)|*.*|"});
  RestoreImport("kernel32.dll", "LoadLibraryExW");
  EXPECT_FALSE(open || save);
}

// --- What they are asked -----------------------------------------------------------------------------------------

TEST_F(FileDialogTest, AsksForAnExistingFileUnlessToldOtherwise) {
  FileDialogSpy spy;
  EXPECT_FALSE(AskForFileToOpen(GetDesktopWindow(), {.filter = L"Programs(*.exe)|*.exe|All files(*.*)|*.*||"}));
  EXPECT_EQ((FileDialogSpy::Calls{{.save = false,
                                   .owner = GetDesktopWindow(),
                                   .filter = L"Programs(*.exe)|*.exe|All files(*.*)|*.*|",
                                   .firstRow = 1,
                                   .startName = L"",
                                   .startFolder = L"",
                                   .extension = L"",
                                   .pathRoom = MAX_PATH,
                                   .titleRoom = 257,
                                   .flags = 0x1804}}),
            spy.calls);
}

TEST_F(FileDialogTest, GivesThePathThatFitsTheRoom) {
  FileDialogSpy spy;
  spy.chosen = L"C:\\a\\b.pdf";
  const auto chosen = AskForFileToSave(
      nullptr,
      {.filter = L"All files(*.*)|*.*|", .flags = OFN_PATHMUSTEXIST, .pathRoom = 11, .startName = L"0123456789ab"});
  ASSERT_TRUE(chosen);
  EXPECT_EQ(L"C:\\a\\b.pdf", chosen->path);
  EXPECT_EQ(L"b.pdf", chosen->title);
  EXPECT_TRUE(spy.calls[0].save);
  EXPECT_EQ(0x800u, spy.calls[0].flags);
  EXPECT_EQ(11u, spy.calls[0].pathRoom);
  EXPECT_EQ(L"0123456789", spy.calls[0].startName) << "cut to the room";
}

TEST_F(FileDialogTest, ComesUpWithoutTheStartNameThatTheSystemRefuses) {
  FileDialogSpy spy;
  spy.refusal = FNERR_INVALIDFILENAME;
  spy.chosen = L"C:\\a.pdf";
  const auto chosen = AskForFileToSave(nullptr, {.filter = L"All files(*.*)|*.*|", .startName = L"a?b"});
  ASSERT_EQ(2u, spy.calls.size());
  EXPECT_EQ(L"a?b", spy.calls[0].startName);
  EXPECT_EQ(L"", spy.calls[1].startName);
  ASSERT_TRUE(chosen);
  EXPECT_EQ(L"C:\\a.pdf", chosen->path);

  spy.calls.clear();
  spy.refusal = FNERR_SUBCLASSFAILURE;
  EXPECT_FALSE(AskForFileToSave(nullptr, {.filter = L"All files(*.*)|*.*|", .startName = L"a?b"}));
  EXPECT_EQ(1u, spy.calls.size()) << "another reason stays one";
}
