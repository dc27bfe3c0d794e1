// The modal run: tabs, working copy, results, and what the sheet looks like.
#include <gtest/gtest.h>

#include <vector>

#include "driver/ImportPatch.h"
#include "DriverLIB/WindowThreadState.h"
#include "MessageIds.h"
#include "pages/CNemUINoDocSettingsPage.h"
#include "resources/ResourceIds.h"
#include "support/HelpSpy.h"
#include "support/IconPixels.h"
#include "support/PrintText.h"
#include "TestSheet.h"
#include "window/Gdi.h"
#include "window/Placement.h"

using namespace sheet_test;

namespace {

SheetTask PressOk(Sheet& sheet) {
  sheet.PressOk();
  co_return;
}
SheetTask PressCancel(Sheet& sheet) {
  sheet.PressCancel();
  co_return;
}

// --- Tabs ----------------------------------------------------------------------------------------------------------

TEST(SheetRun, WithoutDocumentSettingsThereIsOneTab) {
  TestSheet test;
  test.Properties().Used[0].SetLong(1);  // not asked
  test.Drive([&](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(1, sheet.TabCount());
    EXPECT_EQ(L"Basic Settings", sheet.TabText(0));
    EXPECT_EQ(120, test.CurrentId());
    EXPECT_EQ(0, test.Page(120).SettingsIndex());
    sheet.PressCancel();
    co_return;
  });
}

TEST(SheetRun, WithDocumentSettingsItOpensOnTheSecondTab) {
  for (const int used : {1, -1, 2}) {
    TestSheet test;
    test.Properties().Used[1].SetLong(used);
    test.Drive([&](Sheet& sheet) -> SheetTask {
      EXPECT_EQ(2, sheet.TabCount());
      EXPECT_EQ(L"Basic Settings", sheet.TabText(0));
      EXPECT_EQ(L"e.pdf Document Properties", sheet.TabText(1));
      EXPECT_EQ(1, sheet.CurrentTab());
      EXPECT_EQ(120, test.CurrentId());
      EXPECT_EQ(1, test.Page(120).SettingsIndex());
      sheet.PressCancel();
      co_return;
    });
  }
}

TEST(SheetRun, PrinterThatCannotBeOpenedIsNoFailure) {
  TestSheet test;
  test.Properties().PrinterName.SetString(L"No such printer");
  EXPECT_EQ(1, test.Drive(PressOk).value);
  EXPECT_EQ(L"No such printer", test.Object().GetPrinterName());
}

// --- Result and working copy ---------------------------------------------------------------------------------------

TEST(SheetRun, OkGivesOneAndWritesWhatWasChanged) {
  TestSheet test;
  test.Properties().GraphicResolution[0].SetLong(600);
  EXPECT_EQ(1, test.Drive([&](Sheet& sheet) -> SheetTask {
                     sheet.SelectPage(108);
                     co_await sheet.Settled();
                     EXPECT_EQ(L"600", sheet.Control(kValueEdit).Text());
                     sheet.Control(kValueEdit).SetText(L"150");
                     sheet.PressOk();
                   })
                   .value);
  EXPECT_EQ(150, test.Properties().GraphicResolution[0].GetLong());
}

TEST(SheetRun, CancelAndTheCloseBoxAndEscGiveZeroAndPagesNoWork) {
  const Sheet::Body ways[] = {
      PressCancel,
      [](Sheet& sheet) -> SheetTask {
        sheet.Close();
        co_await sheet.Settled();
      },
      [](Sheet& sheet) -> SheetTask {
        sheet.Key(VK_ESCAPE);
        co_await sheet.Settled();
      },
  };
  for (const Sheet::Body& end : ways) {
    TestSheet test;
    test.Properties().Scale[0].SetLong(100);
    EXPECT_EQ(0, test.Drive([&](Sheet& sheet) -> SheetTask {
                       sheet.Control(kValueEdit).SetText(L"50");
                       test.log.clear();
                       co_await end(sheet);
                     })
                     .value);
    EXPECT_EQ(std::vector<std::string>(), test.log);
    EXPECT_EQ(100, test.Properties().Scale[0].GetLong());
  }
}

TEST(SheetRun, EscInAnEditOfSeveralLinesMeansCancel) {
  TestSheet test;
  EXPECT_EQ(0, test.Drive([&](Sheet& sheet) -> SheetTask {
                     sheet.Control(kNotesEdit).Focus();
                     sheet.Key(VK_ESCAPE);
                     co_await sheet.Settled();
                     EXPECT_FALSE(sheet.IsOpen());
                   })
                   .value);
  EXPECT_EQ(0, test.Count("0/120 save"));
}

TEST(SheetRun, PagesThatWereNeverShownAreNotTouched) {
  TestSheet test;
  for (const int set : {0, 1}) {
    test.Properties().Scale[set].SetLong(77);
    test.Properties().GraphicResolution[set].SetLong(-5);
  }
  test.OfferDocument();
  EXPECT_EQ(1, test.Drive(PressOk).value);
  for (const std::string& event : test.log)
    EXPECT_TRUE(event.starts_with("0/120") || event.starts_with("1/120")) << event;
  EXPECT_EQ(-5, test.Properties().GraphicResolution[0].GetLong());
  EXPECT_EQ(-5, test.Properties().GraphicResolution[1].GetLong());
}

TEST(SheetRun, PropertiesAreReadOnceInThePagesLife) {
  TestSheet test;
  test.Drive([&](Sheet& sheet) -> SheetTask {
    for (const int id : {108, 120, 108, 100, 108}) {
      sheet.SelectPage(id);
      co_await sheet.Settled();
    }
    test.Properties().GraphicResolution[0].SetLong(999);
    test.Page(108).ReadProperties();
    EXPECT_EQ(0, test.Page(108).value);
    sheet.PressCancel();
  });
  for (const char* event : {"0/108 read", "0/108 init", "0/120 read", "0/100 read"})
    EXPECT_EQ(1, test.Count(event)) << event;
}

TEST(SheetRun, OkWritesEachCreatedPageAndAgainThroughItsHost) {
  TestSheet test;
  test.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.SelectPage(108);
    co_await sheet.Settled();
    test.log.clear();
    sheet.PressOk();
  });
  EXPECT_EQ((std::vector<std::string>{"0/108 kill active", "0/108 save", "0/120 apply", "0/120 save", "0/120 write",
                                      "0/108 apply", "0/108 save", "0/108 write", "0/120 write", "0/108 write"}),
            test.log);
}

// --- What it looks like --------------------------------------------------------------------------------------------

TEST(SheetRun, CaptionIsTheTitle) {
  TestSheet test;
  test.Properties().SheetTitle.SetString(L"Settings of \x0645 & more");
  test.Drive([](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(L"Settings of \x0645 & more", CWnd(sheet.Window()).Text());
    sheet.PressCancel();
    co_return;
  });
}

TEST(SheetRun, HasOkCancelAndHelpAndNoApply) {
  constexpr int kApply = 0x3021;
  TestSheet test;
  test.Drive([](Sheet& sheet) -> SheetTask {
    for (const int id : {IDOK, IDCANCEL, IDHELP}) {
      EXPECT_TRUE(sheet.SheetControl(id).IsVisible()) << id;
      EXPECT_TRUE(sheet.SheetControl(id).IsEnabled()) << id;
    }
    EXPECT_FALSE(sheet.SheetControl(kApply).Exists() && sheet.SheetControl(kApply).IsVisible());
    sheet.PressCancel();
    co_return;
  });
}

HICON SharedIcon(int id) {
  return static_cast<HICON>(LoadImageW(static_cast<HINSTANCE>(ModuleInstance()), MAKEINTRESOURCEW(id), IMAGE_ICON,
                                       GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_SHARED));
}

// An image of the list as it looks on a ground.
std::vector<DWORD> PixelsOf(HIMAGELIST images, int index) {
  constexpr int kSize = 16;
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, kSize, -kSize, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  const HDC dc = CreateCompatibleDC(nullptr);
  void* bits = nullptr;
  const GdiBitmap bitmap(CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  const HGDIOBJ previous = SelectObject(dc, bitmap.Get());
  ImageList_Draw(images, index, dc, 0, 0, ILD_NORMAL);
  GdiFlush();
  const std::vector<DWORD> pixels(static_cast<DWORD*>(bits), static_cast<DWORD*>(bits) + kSize * kSize);
  SelectObject(dc, previous);
  DeleteDC(dc);
  return pixels;
}

TEST(SheetRun, SmallIconIsTheProducts) {
  ASSERT_NE(nullptr, SharedIcon(512));
  TestSheet test;
  test.Drive([](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(IconPixels(SharedIcon(512)), SmallIconPixels(sheet.Window()));
    sheet.PressCancel();
    co_return;
  });
}

TEST(SheetRun, TabsHaveTheirIcons) {
  TestSheet test;
  test.OfferDocument().Drive([&](Sheet& sheet) -> SheetTask {
    const HWND tabs = test.Object().GetTabControl().Handle();
    const auto images = reinterpret_cast<HIMAGELIST>(SendMessageW(tabs, TCM_GETIMAGELIST, 0, 0));
    // A list may hold fewer colours than an icon has: what is expected goes through one like it.
    const ImageList expected(ImageList_Duplicate(images));
    for (const int tab : {0, 1}) {
      TCITEMW item{};
      item.mask = TCIF_IMAGE;
      SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
      ImageList_ReplaceIcon(expected.Get(), 0, SharedIcon(221 + tab));
      EXPECT_EQ(PixelsOf(expected.Get(), 0), PixelsOf(images, item.iImage)) << tab;
      ImageList_ReplaceIcon(expected.Get(), 0, SharedIcon(222 - tab));
      EXPECT_NE(PixelsOf(expected.Get(), 0), PixelsOf(images, item.iImage)) << tab;
    }
    sheet.PressCancel();
    co_return;
  });
}

RECT WorkArea() {
  RECT area{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  return area;
}

TEST(SheetRun, IsCentredOnItsOwner) {
  const HWND owner =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 100, 80, 900, 700, nullptr, nullptr, nullptr, nullptr);
  TestSheet test;
  test.Drive(
      [owner](Sheet& sheet) -> SheetTask {
        EXPECT_EQ(owner, GetWindow(sheet.Window(), GW_OWNER));
        const RECT own = CWnd(sheet.Window()).WindowRect(), area = WorkArea(), reference = CWnd(owner).WindowRect();
        const IntPoint expected = PlaceCentered(own.right - own.left, own.bottom - own.top,
                                                {reference.left, reference.top, reference.right, reference.bottom},
                                                {area.left, area.top, area.right, area.bottom});
        EXPECT_EQ(expected.x, own.left);
        EXPECT_EQ(expected.y, own.top);
        sheet.PressCancel();
        co_return;
      },
      owner);
  DestroyWindow(owner);
}

TEST(SheetRun, WithoutAnOwnerItStandsInTheMiddleOfTheScreen) {
  TestSheet test;
  test.Drive([](Sheet& sheet) -> SheetTask {
    const RECT own = CWnd(sheet.Window()).WindowRect(), area = WorkArea();
    EXPECT_EQ((area.left + area.right) / 2 - (own.right - own.left) / 2, own.left);
    EXPECT_EQ((area.top + area.bottom) / 2 - (own.bottom - own.top) / 2, own.top);
    sheet.PressCancel();
    co_return;
  });
}

TEST(SheetRun, ArabicMirrorsTheSheetAndItsPages) {
  for (const uint16_t language : {0x0401, 0x0C01, 0x0409}) {
    TestSheet test;
    const LanguageScope scope(language);
    const bool mirrored = language != 0x0409;
    test.Drive([&](Sheet& sheet) -> SheetTask {
      for (const HWND window : {sheet.Window(), sheet.HostPage(), sheet.Page()})
        EXPECT_EQ(mirrored, CWnd(window).IsMirrored()) << language;
      sheet.PressCancel();
      co_return;
    });
  }
}

TEST(SheetRun, CannotBeRunTwiceAtOnce) {
  TestSheet test;
  test.Drive([&](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(0, test.Object().DoModal(nullptr, L"second"));
    EXPECT_TRUE(sheet.IsOpen());
    sheet.PressCancel();
    co_return;
  });
}

TEST(SheetRun, WithoutPagesOrTemplatesNothingRuns) {
  struct Empty : CPropertySheet {
  } empty;
  EXPECT_EQ(0, empty.DoModal(nullptr, L"none"));
  struct Missing : CPropertyPage {
    Missing() : CPropertyPage(9999) {}
  } missing;
  struct : CPropertySheet {
  } sheet;
  sheet.AddPage(missing);
  EXPECT_EQ(0, sheet.DoModal(nullptr, L"none"));
}

// A hook of somebody else on this thread refuses the sheet's window.
LRESULT CALLBACK RefuseDialogs(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HCBT_CREATEWND &&
      GetClassLongPtrW(reinterpret_cast<HWND>(wParam), GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG))
    return 1;
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST(SheetRun, SheetThatCannotBeCreatedGivesWhatThePlatformSaysAndLeavesNothingBehind) {
  const PlatformSaysOne platform;
  TestSheet test;
  const HHOOK hook = SetWindowsHookExW(WH_CBT, RefuseDialogs, nullptr, GetCurrentThreadId());
  EXPECT_EQ(1, test.Run());
  UnhookWindowsHookEx(hook);
  EXPECT_EQ(nullptr, test.Object().Handle());
  EXPECT_EQ(nullptr, test.Object().CurrentHost());
  EXPECT_EQ(std::vector<std::string>(), test.log);
  const WindowThreadState& state = *CurrentWindowThreadState();
  EXPECT_EQ(nullptr, state.creating) << "the next dialog of the thread is not the sheet's";
  EXPECT_EQ(nullptr, state.creationHook);
  EXPECT_EQ(nullptr, state.running);
}

TEST(SheetRun, HookIsGoneAsSoonAsTheWindowIsThere) {
  TestSheet test;
  test.Script(0, 120).onInit = [](TestPage&) {
    EXPECT_EQ(nullptr, CurrentWindowThreadState()->creating);
    EXPECT_EQ(nullptr, CurrentWindowThreadState()->creationHook);
    return true;
  };
  test.Drive(PressCancel);
  EXPECT_EQ(1, test.Count("0/120 init"));
  EXPECT_EQ(nullptr, CurrentWindowThreadState()->running);
}

// --- The start -----------------------------------------------------------------------------------------------------

std::vector<int> built;

std::unique_ptr<CNemUIPage> BuildAndNote(SheetServices* sheet, const PageDescription& description, int settingsIndex) {
  EXPECT_EQ(0, sheet->Properties().Used[1].GetLong()) << "the properties are there before the pages";
  built.push_back(settingsIndex);
  return MakePage<CNemUINoDocSettingsPage>(sheet, description, settingsIndex);
}

TEST(SheetRun, BuildingASheetMakesItsPagesAndNoWindow) {
  built.clear();
  const PageCatalogueRow rows[] = {
      {{IDD_NO_DOC_SETTINGS_PAGE, 0, MSG_PAGE_ACTIONS, 102, 0, 0}, BuildAndNote, BuildAndNote},
      {{IDD_NO_DOC_SETTINGS_PAGE, 0, MSG_PAGE_ACTIONS, 107, 0, 0}, BuildAndNote, nullptr}};
  const CNemUISheet sheet(rows);
  EXPECT_EQ((std::vector<int>{0, 0, 1}), built);
  EXPECT_EQ(nullptr, sheet.Handle());
  const TestSheet test;
  EXPECT_EQ(std::vector<std::string>(), test.log) << "no page has done anything";
}

decltype(&DefSubclassProc) realDefaultHandling = nullptr;
LRESULT answerToTheStart = 0;

LRESULT WINAPI AnswerTheStart(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT answer = realDefaultHandling(window, message, wParam, lParam);
  return message == WM_INITDIALOG ? answerToTheStart : answer;
}

class ListeningSheet final : public CNemUISheet {
 public:
  ListeningSheet() : CNemUISheet({}) {}
  BOOL answer = -1;

 private:
  BOOL OnInitDialog(WindowMessage& message) override { return answer = CNemUISheet::OnInitDialog(message); }
};

TEST(SheetRun, AnswerToTheStartIsThePlatforms) {
  realDefaultHandling = RealFunction("comctl32.dll", "DefSubclassProc", &DefSubclassProc);
  ASSERT_LT(0, PatchImport("comctl32.dll", "DefSubclassProc", reinterpret_cast<void*>(&AnswerTheStart)));
  for (const BOOL answer : {TRUE, FALSE}) {
    answerToTheStart = answer;
    ListeningSheet sheet;
    RunSheet([&sheet] { return sheet.Run(nullptr); }, PressCancel);
    EXPECT_EQ(answer, sheet.answer);
  }
  RestoreImport("comctl32.dll", "DefSubclassProc");
}

// --- No current page -----------------------------------------------------------------------------------------------

TEST(SheetRun, SelectionOutsideTheTabsMeansNoPage) {
  HelpSpy spy;
  TestSheet test;
  test.OfferDocument().Drive([&](Sheet& sheet) -> SheetTask {
    const CTabCtrl tabs = test.Object().GetTabControl();
    tabs.Select(-1);
    CO_ASSERT_EQ(-1, tabs.Selection());
    EXPECT_EQ(nullptr, test.Object().CurrentHost());
    EXPECT_EQ(nullptr, test.Object().FindPage(120));
    EXPECT_FALSE(test.Object().ActivatePage(108));
    sheet.PressHelp();
    co_await sheet.Settled();
    EXPECT_TRUE(spy.calls.empty()) << "the platform has no help of its own";
    SendMessageW(sheet.Window(), PSM_SETCURSEL, 0, 0);
    EXPECT_EQ(0, sheet.CurrentTab()) << "there is nobody to refuse";
    EXPECT_EQ(0, test.Count("1/120 write"));
    sheet.PressCancel();
  });
}

TEST(SheetRun, HelpButtonAsksTheCurrentPage) {
  HelpSpy spy;
  TestSheet test;
  test.Drive([&](Sheet& sheet) -> SheetTask {
    sheet.PressHelp();
    co_await sheet.Settled();
    EXPECT_EQ(1, test.Count("0/120 help 9"));
    sheet.PressCancel();
  });
}

// --- Services ------------------------------------------------------------------------------------------------------

TEST(SheetRun, PagesReachTheGeneralPropertiesThroughTheSheet) {
  TestSheet test;
  CDialogProperties& properties = test.Properties();
  properties.PrinterName.SetString(L"Printer");
  properties.HelpFilename.SetString(L"help.chm");
  properties.PasswordVisible.SetLong(1);
  SheetServices& services = test.Object();
  EXPECT_EQ(L"Printer", services.GetPrinterName());
  EXPECT_EQ(L"help.chm", services.GetHelpFilename());
  EXPECT_EQ(kTitle, services.GetMsgBoxTitle());
  EXPECT_EQ(1, services.GetPasswordVisible());
  services.SetPasswordVisible(0);
  EXPECT_EQ(0, properties.PasswordVisible.GetLong());
  EXPECT_EQ(&properties.adminSettings, services.GetAdminSettings());
}

TEST(SheetRun, WithoutAWindowThereIsNoCurrentHost) {
  TestSheet test;
  EXPECT_EQ(nullptr, test.Object().CurrentHost());
  EXPECT_EQ(nullptr, test.Object().FindPage(120));
  EXPECT_FALSE(test.Object().ActivatePage(120));
}

}  // namespace
