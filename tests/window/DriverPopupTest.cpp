// The test driver's strict queue of message boxes and dialogs on trial.
#include <windows.h>
// behind windows.h
#include <commdlg.h>
#include <gtest/gtest.h>
#include <shlobj.h>

#include "driver/CommonDialogs.h"
#include "driver/Text.h"
#include "DriverFixture.h"

using namespace driver_test;

namespace {

class DriverPopups : public Driver {};

ExpectedBox DeleteBox(int button) {
  return {.title = kBoxTitle, .text = kBoxText, .icon = MB_ICONWARNING, .button = button};
}

}  // namespace

// --- Boxes ------------------------------------------------------------------------------------------------------

TEST_F(DriverPopups, PressesTheButtonOfAnExpectedBox) {
  for (int button : {IDYES, IDNO, IDCANCEL}) {
    const SheetResult result = Run([button](Sheet& sheet) -> SheetTask {
      sheet.ExpectBox(DeleteBox(button));
      sheet.Control(kBoxButton).Click();
      sheet.PressOk();
      co_return;
    });
    EXPECT_EQ(button, test_.lastBoxAnswer);
    ASSERT_EQ(1u, result.boxes.size());
    EXPECT_EQ((std::vector<int>{IDYES, IDNO, IDCANCEL}), result.boxes[0].buttons);
    EXPECT_EQ(IDNO, result.boxes[0].defaultButton);
    EXPECT_FALSE(result.boxes[0].rightToLeft);
  }
}

TEST_F(DriverPopups, MeetsSeveralBoxesInTheirOrder) {
  Run([](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox({.title = kBoxTitle, .text = L"first", .icon = MB_ICONERROR});
    sheet.ExpectBox({.title = kBoxTitle, .text = L"second"});
    sheet.Control(kTwoBoxesButton).Click();
    sheet.PressOk();
    co_return;
  });
}

TEST_F(DriverPopups, MeetsABoxThatAPostedClickBrings) {
  Run([this](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(DeleteBox(IDYES));
    sheet.Control(kBoxButton).ClickAt(5, 5);
    co_await sheet.Settled();
    EXPECT_EQ(IDYES, test_.lastBoxAnswer);
    sheet.PressOk();
  });
}

TEST_F(DriverPopups, MeetsABoxBeforeTheSheetIsUp) {
  test_.boxAtStart = true;
  SheetDriver driver;
  driver.ExpectBox({.title = kBoxTitle, .text = L"at start"});
  const auto result = driver.Run([this] { return test_.Show(); },
                                 [](Sheet& sheet) -> SheetTask {
                                   EXPECT_TRUE(sheet.IsPropertySheet());
                                   sheet.PressOk();
                                   co_return;
                                 });
  EXPECT_EQ(1, result.value);
}

TEST_F(DriverPopups, TellsABoxThatReadsFromRightToLeft) {
  const SheetResult result = Run([](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox({.title = kBoxTitle, .text = kBoxText, .icon = MB_ICONINFORMATION, .rightToLeft = true});
    sheet.Control(kArabicBoxButton).Click();
    sheet.PressOk();
    co_return;
  });
  EXPECT_TRUE(result.boxes.at(0).rightToLeft);
}

TEST_F(DriverPopups, BoxesAloneNeedNoSheet) {
  Popups popups;
  popups.ExpectBox({.title = L"T", .text = L"Go on?", .icon = MB_ICONQUESTION, .button = IDNO});
  EXPECT_EQ(IDNO, MessageBoxW(nullptr, L"Go on?", L"T", MB_YESNO | MB_ICONQUESTION));
}

TEST_F(DriverPopups, UnexpectedBoxIsClosedAndAFailure) {
  ExpectOneFailure("A message box that nobody expected: title \"NEM test\", text \"Delete the profile",
                   [](Sheet& sheet) -> SheetTask {
                     sheet.Control(kBoxButton).Click();
                     sheet.PressOk();
                     co_return;
                   });
  EXPECT_EQ(IDCANCEL, test_.lastBoxAnswer);
  EXPECT_EQ(1, lastResult_);
}

TEST_F(DriverPopups, SecondBoxIsUnexpectedWhenOneIs) {
  ExpectOneFailure("nobody expected: title \"NEM test\", text \"second\"", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox({.title = kBoxTitle, .text = L"first", .icon = MB_ICONERROR});
    sheet.Control(kTwoBoxesButton).Click();
    sheet.PressOk();
    co_return;
  });
}

TEST_F(DriverPopups, BoxThatDiffersFromTheExpectedOneIsAFailure) {
  const ExpectedBox wrongBoxes[] = {
      {.title = L"NEM Test", .text = kBoxText, .icon = MB_ICONWARNING, .button = IDYES},
      {.title = kBoxTitle, .text = std::wstring(kBoxText) + L" ", .icon = MB_ICONWARNING, .button = IDYES},
      {.title = kBoxTitle, .text = kBoxText, .icon = MB_ICONERROR, .button = IDYES},
      {.title = kBoxTitle, .text = kBoxText, .icon = 0, .button = IDYES},
  };
  for (const ExpectedBox& wrong : wrongBoxes) {
    ExpectOneFailure("A message box came up with", [&wrong](Sheet& sheet) -> SheetTask {
      sheet.ExpectBox(wrong);
      sheet.Control(kBoxButton).Click();
      sheet.PressOk();
      co_return;
    });
    EXPECT_EQ(IDYES, test_.lastBoxAnswer);
  }
}

TEST_F(DriverPopups, WrongReadingOrderIsAFailure) {
  ExpectOneFailure("reads from right to left", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox({.title = kBoxTitle, .text = kBoxText, .icon = MB_ICONINFORMATION, .rightToLeft = false});
    sheet.Control(kArabicBoxButton).Click();
    sheet.PressOk();
    co_return;
  });
}

TEST_F(DriverPopups, BoxWithoutTheButtonIsAFailure) {
  ExpectOneFailure("has no button", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(DeleteBox(IDRETRY));
    sheet.Control(kBoxButton).Click();
    sheet.PressOk();
    co_return;
  });
}

TEST_F(DriverPopups, ExpectedBoxThatNeverCameIsAFailure) {
  ExpectOneFailure("An expected message box never came: title \"NEM test\"", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(DeleteBox(IDYES));
    sheet.PressOk();
    co_return;
  });
}

// --- Dialogs ----------------------------------------------------------------------------------------------------

TEST_F(DriverPopups, DrivesAnExpectedDialogByAFunction) {
  Run([this](Sheet& sheet) -> SheetTask {
    sheet.ExpectDialog([](HWND dialog) { SendMessageW(dialog, WM_COMMAND, IDOK, 0); });
    sheet.Control(kDialogButton).Click();
    EXPECT_EQ(1000, test_.dialogAnswer);
    sheet.PressOk();
    co_return;
  });
}

TEST_F(DriverPopups, DrivesAnExpectedDialogByABodyOfItsOwn) {
  for (bool posted : {false, true}) {
    Run([this, posted](Sheet& sheet) -> SheetTask {
      sheet.ExpectDialog([](Sheet& dialog) -> SheetTask {
        EXPECT_FALSE(dialog.IsPropertySheet());
        dialog.Control(kEdit).SetText(L"abc");
        co_await dialog.Settled();
        dialog.PressOk();
      });
      if (posted)
        sheet.Control(kDialogButton).ClickAt(5, 5);
      else
        sheet.Control(kDialogButton).Click();
      co_await sheet.Settled();
      EXPECT_EQ(1003, test_.dialogAnswer);
      sheet.PressOk();
    });
  }
}

TEST_F(DriverPopups, UnexpectedDialogIsClosedAndAFailure) {
  for (int button : {kDialogButton, kStubbornButton})
    ExpectOneFailure("A dialog that nobody expected: #32770 \"Own dialog\"", [button](Sheet& sheet) -> SheetTask {
      sheet.Control(button).Click();
      sheet.PressOk();
      co_return;
    });
}

TEST_F(DriverPopups, ExpectedDialogThatNeverCameIsAFailure) {
  ExpectOneFailure("An expected dialog never came.", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectDialog([](HWND) {});
    sheet.PressOk();
    co_return;
  });
}

TEST_F(DriverPopups, DialogWhereABoxIsExpectedIsAFailure) {
  const auto failures = FailuresOf([](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(DeleteBox(IDYES));
    sheet.Control(kDialogButton).Click();
    sheet.PressOk();
    co_return;
  });
  ASSERT_EQ(2u, failures.size());
  EXPECT_NE(std::string::npos, failures[0].find("A dialog that nobody expected"));
  EXPECT_NE(std::string::npos, failures[1].find("never came"));
}

TEST_F(DriverPopups, DialogThatItsBodyLeavesOpenIsAFailure) {
  ExpectOneFailure("The body left the dialog open", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectDialog([](Sheet& dialog) -> SheetTask { co_await dialog.Settled(); });
    sheet.Control(kDialogButton).Click();
    sheet.PressOk();
    co_return;
  });
}

// --- Dialogs of the system --------------------------------------------------------------------------------------

namespace {

// Bound at run time, as the product does it.
template <typename Function>
Function* Bind(const wchar_t* library, const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(library), name)));
}

}  // namespace

TEST(DriverCommonDialogs, FileDialogsTakeAPath) {
  const std::wstring path = L"C:\\windows\\system32\\kernel32.dll";
  for (const char* function : {"GetOpenFileNameW", "GetSaveFileNameW"}) {
    wchar_t file[MAX_PATH] = L"proposed.dll";
    OPENFILENAMEW parameters = {};
    parameters.lStructSize = sizeof parameters;
    parameters.lpstrFile = file;
    parameters.nMaxFile = MAX_PATH;
    parameters.lpstrInitialDir = L"C:\\windows\\temp";
    parameters.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR;
    Popups popups;
    popups.ExpectDialog([&path](HWND dialog) {
      EXPECT_EQ(L"proposed.dll", ProposedFile(dialog));
      ChooseFile(dialog, path);
    });
    EXPECT_TRUE(Bind<BOOL WINAPI(OPENFILENAMEW*)>(L"comdlg32.dll", function)(&parameters));
    EXPECT_EQ(path, file);
  }
}

TEST(DriverCommonDialogs, DismissingIsCancelling) {
  COLORREF custom[16] = {};
  CHOOSECOLORW parameters = {};
  parameters.lStructSize = sizeof parameters;
  parameters.lpCustColors = custom;
  Popups popups;
  popups.ExpectDialog(DismissDialog);
  EXPECT_FALSE(Bind<BOOL WINAPI(CHOOSECOLORW*)>(L"comdlg32.dll", "ChooseColorW")(&parameters));
}

TEST(DriverCommonDialogs, FolderDialogTakesAPath) {
  CoInitialize(nullptr);
  BROWSEINFOW parameters = {};
  parameters.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
  Popups popups;
  popups.ExpectDialog([](HWND dialog) { ChooseFolder(dialog, L"C:\\windows\\system32"); });
  const LPITEMIDLIST folder =
      Bind<LPITEMIDLIST WINAPI(BROWSEINFOW*)>(L"shell32.dll", "SHBrowseForFolderW")(&parameters);
  ASSERT_NE(nullptr, folder);
  wchar_t path[MAX_PATH] = L"";
  EXPECT_TRUE(Bind<BOOL WINAPI(LPCITEMIDLIST, wchar_t*)>(L"shell32.dll", "SHGetPathFromIDListW")(folder, path));
  EXPECT_STRCASEEQ("C:\\windows\\system32", ToUtf8(path).c_str());
  CoTaskMemFree(folder);
  CoUninitialize();
}

TEST(DriverCommonDialogs, ColourDialogTakesAColour) {
  COLORREF custom[16] = {};
  CHOOSECOLORW parameters = {};
  parameters.lStructSize = sizeof parameters;
  parameters.lpCustColors = custom;
  parameters.Flags = CC_FULLOPEN | CC_RGBINIT;
  Popups popups;
  popups.ExpectDialog([](HWND dialog) { ChooseColour(dialog, RGB(17, 34, 51)); });
  EXPECT_TRUE(Bind<BOOL WINAPI(CHOOSECOLORW*)>(L"comdlg32.dll", "ChooseColorW")(&parameters));
  EXPECT_EQ(RGB(17, 34, 51), parameters.rgbResult);
}
