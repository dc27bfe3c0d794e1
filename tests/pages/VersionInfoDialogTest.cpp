// The version dialog, with components that lie beside the library or beside the printer's driver.
#include "pages/CVersionInfoDialog.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "driver/SheetDriver.h"
#include "driver/Text.h"
#include "environment/ProductLocations.h"
#include "resources/ResourceIds.h"
#include "support/ComponentFolder.h"
#include "support/ControlPictures.h"
#include "support/CopiedFile.h"
#include "support/FakeSheet.h"
#include "support/IconPixels.h"
#include "support/PrintText.h"
#include "support/TestPrinter.h"
#include "support/TracedThread.h"

namespace {

using Texts = std::map<int, std::wstring>;

const Texts kLabels = {{1345, L"NEM pdf:"},         {1347, L"NEM pdf vonder:"}, {1346, L"NEM pdf vonder API:"},
                       {1357, L"NEM pdf Add-in:"},  {1353, L"NEM pdf Engine:"}, {1354, L"NEM pdf ShellExt:"},
                       {1355, L"NEM pdf Extract:"}, {1356, L"NEM pdf Toolbox:"}};
constexpr int kValues[] = {1230, 1231, 1232, 1233, 1234, 1235, 1237};

class VersionInfoDialog : public testing::Test {
 protected:
  // Opens the dialog, and gives the button that ended it.
  INT_PTR Run(const std::function<void(Sheet&)>& look, int button = IDOK, HWND owner = nullptr) {
    const auto body = [&](Sheet& sheet) -> SheetTask {
      look(sheet);
      sheet.Press(button);
      co_return;
    };
    return RunSheet([owner] { return CVersionInfoDialog().Run(owner); }, body).value;
  }

  Texts Versions() {
    Texts versions;
    Run([&](Sheet& sheet) {
      for (const int id : kValues) versions[id] = sheet.Control(id).Text();
    });
    return versions;
  }

  std::wstring Library(const wchar_t* file) { return GetLibraryDirectory().Text() + std::wstring(file); }

  LanguageScope english_{kEnglish};
};

}  // namespace

TEST_F(VersionInfoDialog, NamesTheComponents) {
  Run([](Sheet& sheet) {
    EXPECT_EQ(L"NEM pdf version info", WindowText(sheet.Window()));
    for (const auto& [id, label] : kLabels) EXPECT_EQ(label, sheet.Control(id).Text()) << id;
    EXPECT_EQ(L"OK", sheet.Control(IDOK).Text());
  });
}

TEST_F(VersionInfoDialog, WithoutComponentsOnlyTheProductHasAVersion) {
  EXPECT_EQ((Texts{{1230, L"2.10.4"},
                   {1231, L"n/a"},
                   {1232, L"n/a"},
                   {1233, L"n/a"},
                   {1234, L"n/a"},
                   {1235, L"n/a"},
                   {1237, L"n/a"}}),
            Versions());
}

TEST_F(VersionInfoDialog, ShowsTheComponentsBesideTheLibrary) {
  const std::wstring complete = ComponentFolder(L"complete");
  const CopiedFile print(complete + L"NemPrt64.dll", Library(L"NemPrt64.dll"));
  const CopiedFile pdf(complete + L"NemPdf64.dll", Library(L"NemPdf64.dll"));
  const CopiedFile epdf(complete + L"NemEpdf64.dll", Library(L"NemEpdf64.dll"));
  const CopiedFile vdApi(complete + L"NemPdfVdApi64.dll", Library(L"NemPdfVdApi64.dll"));
  const CopiedFile shell(ComponentFolder(L"16") + L"WINWORD.EXE", Library(L"NEMePdf.exe"));
  const CopiedFile addIn(ComponentFolder(L"2013") + L"WINWORD.EXE", Library(L"NEMpdfAddIn.dll"));
  EXPECT_EQ((Texts{{1230, L"2.10.4"},
                   {1231, L"15.0.4420.1017"},
                   {1232, L"2.10.4"},
                   {1233, L"3.5.12"},
                   {1234, L"16.0.4266.1001"},
                   {1235, L"1.0.0"},
                   {1237, L"2.10.4"}}),
            Versions());
}

// Print and pdf component belong to the printer, the others to the library.
TEST_F(VersionInfoDialog, LooksForThePrintersComponentsBesideItsDriver) {
  const TestDriver driver;
  const TestPrinter printer(L"Alpha");
  const std::wstring complete = ComponentFolder(L"complete");
  const CopiedFile print(ComponentFolder(L"minor0") + L"NemPrt64.dll", driver.Directory() + L"NemPrt64.dll");
  const CopiedFile pdf(complete + L"NemPdf64.dll", driver.Directory() + L"NemPdf64.dll");
  const CopiedFile epdf(complete + L"NemEpdf64.dll", driver.Directory() + L"NemEpdf64.dll");
  const CopiedFile vdApi(complete + L"NemPdfVdApi64.dll", driver.Directory() + L"NemPdfVdApi64.dll");
  const CopiedFile shell(ComponentFolder(L"16") + L"WINWORD.EXE", driver.Directory() + L"NEMePdf.exe");
  EXPECT_EQ((Texts{{1230, L"2.10.4"},
                   {1231, L"n/a"},
                   {1232, L"2.0.4"},
                   {1233, L"n/a"},
                   {1234, L"n/a"},
                   {1235, L"n/a"},
                   {1237, L"2.10.4"}}),
            Versions());
}

TEST_F(VersionInfoDialog, AComponentThatTellsNoVersionIsAsGoodAsNone) {
  const CopiedFile pdf(ComponentFolder(L"silent") + L"NemPdf64.dll", Library(L"NemPdf64.dll"));
  EXPECT_EQ(L"n/a", Versions()[1237]);
}

// Their exceptions pass our own handlers by. The job of the print component throws when it is freed.
TEST_F(VersionInfoDialog, SurvivesComponentsOfAnotherCompilerThatThrow) {
  const std::wstring foreign = ComponentFolder(L"foreign");
  const CopiedFile print(foreign + L"NemPrt64.dll", Library(L"NemPrt64.dll"));
  const CopiedFile pdf(foreign + L"NemPdf64.dll", Library(L"NemPdf64.dll"));
  Texts versions = Versions();
  EXPECT_EQ(L"2.10.4", versions[1232]);
  EXPECT_EQ(L"n/a", versions[1237]);
}

TEST_F(VersionInfoDialog, TracesWhatCouldNotBeLoadedInTheOrderOfTheQuestions) {
  TracedThread thread;
  Versions();
  std::vector<std::wstring> names;
  for (const std::wstring& line : thread.Lines()) {
    EXPECT_TRUE(line.starts_with(L"Fehler ")) << line;
    names.push_back(line.substr(line.find(L"NEM ")));
  }
  EXPECT_EQ((std::vector<std::wstring>{L"NEM print-DLL", L"NEM Epdf-DLL", L"NEM pdf-DLL", L"NEM VdApi-DLL"}), names);
}

TEST_F(VersionInfoDialog, AsksOnceAndNotAtOk) {
  TracedThread thread;
  Run([&](Sheet&) { thread.Lines(); });
  EXPECT_EQ(std::vector<std::wstring>{}, thread.Lines());
}

TEST_F(VersionInfoDialog, GivesTheButtonThatEndedIt) {
  EXPECT_EQ(IDOK, Run([](Sheet&) {}));
  const auto close = [](Sheet& sheet) -> SheetTask {
    sheet.Close();
    co_return;
  };
  EXPECT_EQ(IDCANCEL, RunSheet([] { return CVersionInfoDialog().Run(); }, close).value);
}

TEST_F(VersionInfoDialog, ShowsTheLogoAndTheProductsIcon) {
  Run([](Sheet& sheet) {
    const HANDLE product = LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(512), IMAGE_ICON,
                                      GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_SHARED);
    ASSERT_NE(nullptr, product);
    EXPECT_EQ(IconPixels(static_cast<HICON>(product)), SmallIconPixels(sheet.Window()));
    ExpectPictures(CWnd(sheet.Window()), {{1111, Pictures::kLogo}});
  });
}

// --- Owner and place -----------------------------------------------------------------------------------------------

namespace {

class TestWindow {
 public:
  TestWindow(RECT place, HWND owner = nullptr)
      : window_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, place.left, place.top,
                                place.right - place.left, place.bottom - place.top, owner, nullptr, nullptr, nullptr)) {
  }
  ~TestWindow() { DestroyWindow(window_); }
  TestWindow(const TestWindow&) = delete;
  TestWindow& operator=(const TestWindow&) = delete;
  HWND Window() const { return window_; }

 private:
  HWND window_;
};

POINT CenterOf(const RECT& rect) { return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}; }

POINT CenterOf(HWND window) {
  RECT rect;
  GetWindowRect(window, &rect);
  return CenterOf(rect);
}

void ExpectNear(POINT expected, POINT actual) {
  EXPECT_NEAR(expected.x, actual.x, 1);
  EXPECT_NEAR(expected.y, actual.y, 1);
}

POINT CenterOfWorkArea() {
  RECT area;
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  return CenterOf(area);
}

}  // namespace

TEST_F(VersionInfoDialog, BelongsToTheGivenWindow) {
  const TestWindow other({0, 0, 100, 100}), owner({100, 50, 500, 400});
  SetActiveWindow(other.Window());
  Run([&](Sheet& sheet) { EXPECT_EQ(owner.Window(), GetWindow(sheet.Window(), GW_OWNER)); }, IDOK, owner.Window());
}

TEST_F(VersionInfoDialog, BelongsToTheActiveWindowWithoutAGivenOne) {
  const TestWindow owner({100, 50, 500, 400});
  SetActiveWindow(owner.Window());
  ASSERT_EQ(owner.Window(), GetActiveWindow());
  Run([&](Sheet& sheet) { EXPECT_EQ(owner.Window(), GetWindow(sheet.Window(), GW_OWNER)); });
}

TEST_F(VersionInfoDialog, StandsOnTheWorkAreaWithoutAWindow) {
  ASSERT_EQ(nullptr, GetActiveWindow());
  Run([](Sheet& sheet) {
    EXPECT_EQ(nullptr, GetWindow(sheet.Window(), GW_OWNER));
    ExpectNear(CenterOfWorkArea(), CenterOf(sheet.Window()));
  });
}

// The sheet's parent is the host's window.
TEST_F(VersionInfoDialog, StandsOnTheParentOfItsParent) {
  const TestWindow host({40, 30, 640, 500}), sheet({500, 300, 900, 700}, host.Window());
  Run([&](Sheet& dialog) { ExpectNear(CenterOf(host.Window()), CenterOf(dialog.Window())); }, IDOK, sheet.Window());
}

TEST_F(VersionInfoDialog, StandsOnTheWorkAreaWhenItsParentHasNone) {
  const TestWindow owner({0, 0, 300, 200});
  Run([](Sheet& sheet) { ExpectNear(CenterOfWorkArea(), CenterOf(sheet.Window())); }, IDOK, owner.Window());
}

// --- Languages -----------------------------------------------------------------------------------------------------

TEST_F(VersionInfoDialog, SpeaksTheUILanguage) {
  for (const auto& [language, title, ok] : {std::tuple{uint16_t{0x0407}, L"NEM pdf Versionsinformationen", L"OK"},
                                            std::tuple{uint16_t{0x040C}, L"Informations de version NEM pdf", L"OK"},
                                            std::tuple{uint16_t{0x0401}, L"معلومات إصدارات NEM pdf", L"موافق"}}) {
    const LanguageScope scope(language);
    Run([&](Sheet& sheet) {
      EXPECT_EQ(title, WindowText(sheet.Window()));
      EXPECT_EQ(ok, sheet.Control(IDOK).Text());
      EXPECT_EQ(language == 0x0401, (GetWindowLongW(sheet.Window(), GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0);
    });
  }
}
