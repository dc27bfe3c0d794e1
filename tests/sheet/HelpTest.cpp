// Help: which topic of which file opens, and what the user is told when there is none.
#include <gtest/gtest.h>

#include "driver/DialogTemplate.h"
#include "driver/Text.h"
#include "MessageIds.h"
#include "resources/ResourceIds.h"
#include "sheet/Help.h"
#include "support/HelpSpy.h"
#include "TestSheet.h"
#include "ui/PageCatalogue.h"

using namespace sheet_test;

namespace {

constexpr wchar_t kFile[] = L"C:\\Program Files\\help.chm";

constexpr uint16_t kEnglishUI = 0x0409, kGermanUI = 0x0407, kSwissGermanUI = 0x0807, kFrenchUI = 0x040C,
                   kArabicUI = 0x0401;

// A dialog with two controls: the link of the graphic page, which has a topic, and one without.
constexpr int kLink = 1144, kPlain = 1020;

class Help : public testing::Test {
 protected:
  Help() {
    DialogTemplate dialog(WS_POPUP | WS_VISIBLE, {100, 50});
    dialog.Add(L"Static", kLink, At(0, 0, 50, 10));
    dialog.Add(L"Static", kPlain, At(0, 20, 50, 10));
    dialog_ = CWnd(CreateDialogIndirectParamW(
        nullptr, dialog.Get(), nullptr, [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0));
    SetWindowContextHelpId(dialog_.Handle(), 138);
  }
  ~Help() override { DestroyWindow(dialog_.Handle()); }

  bool Show(int controlId, const wchar_t* file = kFile, const wchar_t* title = kTitle) {
    return ShowHelp(HelpForControl(controlId, dialog_.Item(controlId).Handle()), file, dialog_.Handle(), title);
  }

  LanguageScope english_{kEnglish};
  CWnd dialog_;
};

// --- The path ------------------------------------------------------------------------------------------------------

TEST_F(Help, TopicOfTheControlGoesBeforeThatOfThePage) {
  HelpSpy spy;
  EXPECT_TRUE(Show(kLink));
  EXPECT_EQ(std::wstring(kFile) + L"::/Graphical_Optimization.htm", spy.TakePath());
  EXPECT_TRUE(Show(kPlain));
  EXPECT_EQ(std::wstring(kFile) + L"::/Properties_of_the_fonts.htm", spy.TakePath());
}

TEST_F(Help, ControlThatTheDialogDoesNotHaveGivesTheTopicOfThePage) {
  HelpSpy spy;
  for (const int id : {1177, IDHELP, 0, -1}) {
    EXPECT_TRUE(Show(id));
    EXPECT_EQ(std::wstring(kFile) + L"::/Properties_of_the_fonts.htm", spy.TakePath()) << id;
  }
}

TEST_F(Help, WithoutATopicTheFileAloneOpens) {
  HelpSpy spy;
  for (const DWORD helpId : {0u, 191u}) {
    SetWindowContextHelpId(dialog_.Handle(), helpId);
    EXPECT_TRUE(Show(kPlain));
    EXPECT_EQ(kFile, spy.TakePath());
    EXPECT_TRUE(Show(kLink));
    EXPECT_EQ(std::wstring(kFile) + L"::/Graphical_Optimization.htm", spy.TakePath());
  }
}

TEST_F(Help, WithoutAWindowTheFileAloneOpens) {
  HelpSpy spy;
  const HELPINFO help = HelpForControl(kLink, dialog_.Item(kLink).Handle());
  EXPECT_TRUE(ShowHelp(help, kFile, nullptr, kTitle));
  EXPECT_EQ(kFile, spy.TakePath());
  DestroyWindow(dialog_.Handle());
  EXPECT_TRUE(ShowHelp(help, kFile, dialog_.Handle(), kTitle));
  EXPECT_EQ(kFile, spy.TakePath());
}

TEST_F(Help, WithoutAFileTheTopicAloneIsAskedFor) {
  HelpSpy spy;
  EXPECT_TRUE(Show(kLink, nullptr));
  EXPECT_EQ(L"::/Graphical_Optimization.htm", spy.TakePath());
}

TEST_F(Help, GermanHasItsOwnTopics) {
  HelpSpy spy;
  for (const uint16_t language : {kEnglishUI, kFrenchUI, kArabicUI, kGermanUI, kSwissGermanUI}) {
    const LanguageScope scope(language);
    const bool german = PRIMARYLANGID(language) == LANG_GERMAN;
    EXPECT_TRUE(Show(kLink));
    EXPECT_EQ(std::wstring(kFile) +
                  (german ? L"::/Eigenschaften_zur_Graphikoptimierung.htm" : L"::/Graphical_Optimization.htm"),
              spy.TakePath())
        << language;
    EXPECT_TRUE(Show(kPlain));
    EXPECT_EQ(std::wstring(kFile) +
                  (german ? L"::/Eigenschaften_zu_den_Schriftarten.htm" : L"::/Properties_of_the_fonts.htm"),
              spy.TakePath())
        << language;
  }
}

TEST_F(Help, LibraryIsCalledForTheControlWithCommandOne) {
  HelpSpy spy;
  Show(kLink);
  ASSERT_EQ(1u, spy.calls.size());
  EXPECT_EQ(dialog_.Item(kLink).Handle(), spy.calls[0].caller);
  EXPECT_EQ(1u, spy.calls[0].command);
  EXPECT_EQ(0u, spy.calls[0].data);
}

TEST_F(Help, RecordOfAControlIsThatOfF1) {
  const HELPINFO help = HelpForControl(kLink, dialog_.Item(kLink).Handle());
  EXPECT_EQ(sizeof help, help.cbSize);
  EXPECT_EQ(HELPINFO_WINDOW, help.iContextType);
  EXPECT_EQ(kLink, help.iCtrlId);
  EXPECT_EQ(dialog_.Item(kLink).Handle(), help.hItemHandle);
  EXPECT_EQ(static_cast<DWORD_PTR>(-1), help.dwContextId);
  EXPECT_EQ(0, help.MousePos.x);
  EXPECT_EQ(0, help.MousePos.y);
}

// --- The file ------------------------------------------------------------------------------------------------------

ExpectedBox MissingFileBox(const std::wstring& file, const wchar_t* title = kTitle) {
  return {.title = title, .text = L"The help file '" + file + L"' cannot be found.", .icon = MB_ICONERROR};
}

TEST_F(Help, FileThatCannotBeOpenedIsTold) {
  const std::wstring missing = L"C:\\no such folder\\missing.chm";
  Popups popups;
  popups.ExpectBox(MissingFileBox(missing));
  EXPECT_FALSE(Show(kLink, missing.c_str()));
  EXPECT_EQ(dialog_.Handle(), popups.Boxes().back().owner);
}

TEST_F(Help, MissingFileAndTitleAreEmptyTexts) {
  HelpSpy spy;
  spy.succeeds = false;
  Popups popups;
  popups.ExpectBox(MissingFileBox(L"", L""));
  EXPECT_FALSE(Show(kLink, nullptr, nullptr));
}

TEST_F(Help, BoxHasNoOwnerWhenTheWindowIsGone) {
  HelpSpy spy;
  spy.succeeds = false;
  Popups popups;
  popups.ExpectBox(MissingFileBox(kFile));
  EXPECT_FALSE(ShowHelp(HelpForControl(kLink, nullptr), kFile, nullptr, kTitle));
  EXPECT_EQ(nullptr, popups.Boxes().back().owner);
}

// The compiled file lies beside the program.
std::wstring RealFile() {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  std::wstring file = path;
  return file.substr(0, file.find_last_of(L'\\') + 1) + L"help.chm";
}

HMODULE WINAPI LoadNothing(LPCWSTR, HANDLE, DWORD) { return nullptr; }

TEST_F(Help, SystemWithoutTheHelpLibraryCountsAsAMissingFile) {
  Popups popups;
  popups.ExpectBox(MissingFileBox(RealFile()));
  PatchImport("kernel32.dll", "LoadLibraryExW", reinterpret_cast<void*>(&LoadNothing));
  EXPECT_FALSE(Show(kLink, RealFile().c_str()));
  RestoreImport("kernel32.dll", "LoadLibraryExW");
}

TEST_F(Help, BoxSpeaksTheUsersLanguage) {
  HelpSpy spy;
  spy.succeeds = false;
  for (const uint16_t language : {kGermanUI, kArabicUI}) {
    const LanguageScope scope(language);
    Popups popups;
    ExpectedBox box{.title = kTitle, .text = MessageText(MSG_HELP_FILE_NOT_FOUND, kFile).Text(), .icon = MB_ICONERROR};
    EXPECT_EQ(std::wstring::npos, box.text.find(L"cannot be found"));
    EXPECT_NE(std::wstring::npos, box.text.find(kFile));
    box.rightToLeft = language == kArabicUI;
    popups.ExpectBox(box);
    EXPECT_FALSE(Show(kLink));
  }
}

TEST_F(Help, RealFileOpens) {
  const std::wstring file = RealFile();
  ASSERT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(file.c_str())) << ToUtf8(file);
  Popups popups;  // no box comes
  EXPECT_TRUE(Show(kLink, file.c_str()));
  SetWindowContextHelpId(dialog_.Handle(), 0);
  EXPECT_TRUE(Show(kPlain, file.c_str()));
  using HtmlHelpFunction = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
  const auto htmlHelp = reinterpret_cast<HtmlHelpFunction>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"hhctrl.ocx"), "HtmlHelpW")));
  constexpr UINT kCloseAll = 0x12;
  htmlHelp(nullptr, nullptr, kCloseAll, 0);
}

// --- The ways to the help ------------------------------------------------------------------------------------------

// The product's own pages: the graphic page, and the placeholders of the document tab.
class SheetHelp : public testing::Test {
 protected:
  SheetHelp() {
    test_.Properties().HelpFilename.SetString(kFile);
    test_.OfferDocument();
  }

  // Runs `body` on the page and cancels.
  void OnPage(int pageId, const Sheet::Body& body) {
    test_.Drive([&](Sheet& sheet) -> SheetTask {
      sheet.SelectPage(pageId);
      co_await sheet.Settled();
      EXPECT_EQ(pageId, test_.CurrentId());
      co_await body(sheet);
      sheet.PressCancel();
    });
  }
  // What the platform makes of the key.
  static void PressF1(HWND focus) {
    HELPINFO help = HelpForControl(GetDlgCtrlID(focus), focus);
    SendMessageW(focus, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
  }
  static std::wstring Path(const wchar_t* topic) { return std::wstring(kFile) + topic; }

  HelpSpy spy_;
  TestSheet test_{{AllPages().begin(), AllPages().end()}};
};

TEST_F(SheetHelp, F1OnAControlOpensThePage) {
  OnPage(108, [this](Sheet& sheet) -> SheetTask {
    const ControlRef combo = sheet.Control(IDC_GRAPHIC_COMPRESSION);
    PressF1(combo.Window());
    CO_ASSERT_EQ(1u, spy_.calls.size());
    EXPECT_EQ(combo.Window(), spy_.calls[0].caller);
    EXPECT_EQ(Path(L"::/Graphical_Optimization.htm"), spy_.TakePath());
    co_return;
  });
}

TEST_F(SheetHelp, F1OnTheBarOpensThePageBesideIt) {
  OnPage(108, [this](Sheet& sheet) -> SheetTask {
    PressF1(sheet.Bar().Window());
    EXPECT_EQ(Path(L"::/Graphical_Optimization.htm"), spy_.TakePath());
    co_return;
  });
}

TEST_F(SheetHelp, HelpButtonOpensThePage) {
  OnPage(108, [this](Sheet& sheet) -> SheetTask {
    sheet.PressHelp();
    CO_ASSERT_EQ(1u, spy_.calls.size());
    EXPECT_EQ(sheet.SheetControl(IDHELP).Window(), spy_.calls[0].caller);
    EXPECT_EQ(Path(L"::/Graphical_Optimization.htm"), spy_.TakePath());
    co_return;
  });
}

TEST_F(SheetHelp, HelpButtonOnAPlaceholderOpensTheFile) {
  OnPage(103, [this](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(0u, GetWindowContextHelpId(sheet.Page()));
    sheet.PressHelp();
    EXPECT_EQ(kFile, spy_.TakePath());
    co_return;
  });
}

TEST_F(SheetHelp, HelpButtonWithoutAPageOpensTheFile) {
  TestSheet test{std::vector<PageCatalogueRow>()};
  test.Properties().HelpFilename.SetString(kFile);
  test.Drive([this](Sheet& sheet) -> SheetTask {
    sheet.PressHelp();
    EXPECT_EQ(kFile, spy_.TakePath());
    sheet.PressCancel();
    co_return;
  });
}

TEST_F(SheetHelp, LinkOpensItsTopic) {
  OnPage(108, [this](Sheet& sheet) -> SheetTask {
    sheet.Control(IDC_GRAPHIC_HELP_LINK).Click();
    co_await sheet.Settled();
    EXPECT_EQ(Path(L"::/Graphical_Optimization.htm"), spy_.TakePath());
  });
}

TEST_F(SheetHelp, LinkOfEachPlaceholderOpensTheDifferenceOfTheTabs) {
  for (const int id : {102, 103, 104, 106}) {
    TestSheet test({AllPages().begin(), AllPages().end()});
    test.Properties().HelpFilename.SetString(kFile);
    test.OfferDocument().Drive([&](Sheet& sheet) -> SheetTask {
      sheet.SelectPage(id);
      EXPECT_EQ(id, test.CurrentId());
      EXPECT_EQ(L"These settings are only available when generating a new PDF or e.pdf document.",
                sheet.Control(IDC_NO_DOC_SETTINGS_WHEN).Text());
      EXPECT_EQ(L"For generating a new document please change to the tab page Basic Settings.",
                sheet.Control(IDC_NO_DOC_SETTINGS_WHERE).Text());
      EXPECT_EQ(L"What is the difference between Basic Settings and e.pdf Document Properties?",
                sheet.Control(IDC_NO_DOC_SETTINGS_LINK).Text());
      sheet.Control(IDC_NO_DOC_SETTINGS_LINK).Click();
      co_await sheet.Settled();
      EXPECT_EQ(Path(L"::/Basics_of_NEM_pdf_vonder.htm"), spy_.TakePath());
      sheet.PressCancel();
    });
  }
}

TEST_F(SheetHelp, ControlWithoutATopicOpensThatOfThePage) {
  OnPage(108, [this](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(1, SendMessageW(sheet.Page(), 0x465, IDC_GRAPHIC_COLOR_DEPTH, 0));
    EXPECT_EQ(Path(L"::/Graphical_Optimization.htm"), spy_.TakePath());
    EXPECT_EQ(1, SendMessageW(sheet.Page(), 0x465, 4711, 0)) << "nor one that is missing";
    EXPECT_EQ(Path(L"::/Graphical_Optimization.htm"), spy_.TakePath());
    co_return;
  });
}

TEST_F(SheetHelp, MissingFileIsToldOnce) {
  spy_.succeeds = false;
  OnPage(108, [](Sheet& sheet) -> SheetTask {
    for (const int way : {0, 1, 2}) {
      sheet.ExpectBox(MissingFileBox(kFile));
      if (way == 0) sheet.PressHelp();
      if (way == 1) PressF1(sheet.Control(IDC_GRAPHIC_SLIDER).Window());
      if (way == 2) sheet.Control(IDC_GRAPHIC_HELP_LINK).Click();
      co_await sheet.Settled();
    }
  });
}

TEST_F(SheetHelp, EachPageHasItsNumberAsHelpId) {
  OnPage(108, [](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(141u, GetWindowContextHelpId(sheet.Page()));
    EXPECT_EQ(187u, GetWindowContextHelpId(sheet.HostPage()));
    co_return;
  });
}

}  // namespace
