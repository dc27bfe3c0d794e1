// The page base: its two exchanges, its start and what it is told.
#include <gtest/gtest.h>

#include <stdexcept>

#include "driver/ImportPatch.h"
#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/NEMPrintMemoryException.h"
#include "MessageIds.h"
#include "resources/ResourceIds.h"
#include "support/PrintText.h"
#include "support/TracedThread.h"
#include "TestSheet.h"

using namespace sheet_test;

namespace {

constexpr PageDescription kDescription{IDD_NO_DOC_SETTINGS_PAGE, 221, MSG_PAGE_FONTS, 110, 269, 271};

// A page with the least that a page must have.
class BarePage : public CNemUIPage {
 public:
  explicit BarePage(const PageDescription& description = kDescription) : CNemUIPage(description) {}

  std::function<bool(CDataExchange&)> exchange = [](CDataExchange&) { return true; };
  std::function<void(CDataExchange&)> controls = [](CDataExchange&) {};
  std::vector<bool> exchanges;  // saving or not

  CUString GetHelpFilename() override { return L""; }
  CUString GetMsgBoxTitle() override { return L"Title"; }
  bool ExchangeProperties(CDataExchange& data) override {
    exchanges.push_back(data.IsSaving());
    return exchange(data);
  }
  void DoDataExchange(CDataExchange& data) override { controls(data); }
  UINT IconId() const { return TabIconId(); }
  std::wstring Caption() const { return TabCaption(); }
  using CNemUIPage::Tell;
};

using Lines = std::vector<std::wstring>;

// What is traced of an exception, before what the box traces.
void ExpectException(TracedThread& trace) {
  const Lines lines = trace.Lines();
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(L"NemUIPage::UpdateDataSuper: caught throwed exception", lines.front());
}

class NemUIPage : public testing::Test {
 protected:
  LanguageScope english_{kEnglish};
  PageParent parent_;
};

TEST_F(NemUIPage, IsWhatItsDescriptionSays) {
  const BarePage page;
  EXPECT_EQ(UINT{IDD_NO_DOC_SETTINGS_PAGE}, page.TemplateId());
  EXPECT_EQ(110, page.GetPageId());
  EXPECT_EQ(221u, page.IconId());
  EXPECT_EQ(L"Fonts", page.Title());
  EXPECT_EQ(L"Fonts", page.Caption());
  EXPECT_EQ(269u, page.Description().imageId);
  EXPECT_EQ(271u, page.Description().maskId);
  EXPECT_FALSE(page.IsLoaded());
  EXPECT_FALSE(page.IsInitialized());
  EXPECT_FALSE(page.IsWindow());
  EXPECT_FALSE(page.tiffVariant);
}

TEST_F(NemUIPage, TitleIsThatOfTheLanguageInWhichItIsMade) {
  const LanguageScope german(0x0407);
  EXPECT_EQ(MessageText(MSG_PAGE_FONTS), BarePage().Title());
  EXPECT_NE(L"Fonts", BarePage().Title());
}

// A page with a table of its own, a link to the help, and something to lock.
class RichPage : public BarePage {
 public:
  int closed = 0;
  WPARAM helpFor = 0;
  using CNemUIPage::Lock;

  LRESULT ShowHelpForControl(WPARAM controlId, LPARAM) override {
    helpFor = controlId;
    return 1;
  }

 protected:
  MessageTable Messages() const override {
    static constexpr MessageRow kMessages[] = {OnMessage<&RichPage::OnClose>(WM_CLOSE)};
    return kMessages;
  }
  int HelpLinkId() const override { return IDC_NO_DOC_SETTINGS_LINK; }

 private:
  void OnClose() { ++closed; }
};

TEST_F(NemUIPage, ItsTableComesBeforeWhatAllPagesDo) {
  RichPage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  page.Send(WM_CLOSE);
  EXPECT_EQ(1, page.closed);
  EXPECT_EQ(1, page.Send(kShowHelpForControlMessage, 77)) << "what the table does not name goes on to the base";
  EXPECT_EQ(77u, page.helpFor);
}

TEST_F(NemUIPage, ItsLinkAsksForHelp) {
  RichPage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  page.Show(true);
  ControlRef(page.Item(IDC_NO_DOC_SETTINGS_LINK).Handle(), IDC_NO_DOC_SETTINGS_LINK, ControlRef::Location::current())
      .Click();
  EXPECT_EQ(WPARAM{IDC_NO_DOC_SETTINGS_LINK}, page.helpFor);
}

TEST_F(NemUIPage, LockOnlyEverDisables) {
  RichPage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  const CWnd when = page.Item(IDC_NO_DOC_SETTINGS_WHEN), where = page.Item(IDC_NO_DOC_SETTINGS_WHERE);
  page.Lock(false, {IDC_NO_DOC_SETTINGS_WHEN, IDC_NO_DOC_SETTINGS_WHERE});
  EXPECT_TRUE(when.IsEnabled());
  page.Lock(true, {IDC_NO_DOC_SETTINGS_WHEN});
  EXPECT_FALSE(when.IsEnabled());
  EXPECT_TRUE(where.IsEnabled());
  page.Lock(false, {IDC_NO_DOC_SETTINGS_WHEN});
  EXPECT_FALSE(when.IsEnabled());
}

TEST_F(NemUIPage, KnowsNoOtherPages) {
  BarePage page;
  EXPECT_FALSE(page.ActivatePage(120));
  EXPECT_EQ(nullptr, page.FindPage(120));
}

// --- The property exchange -----------------------------------------------------------------------------------------

TEST_F(NemUIPage, UpdateDataSuperGivesTheResultOfTheExchange) {
  BarePage page;
  for (const bool save : {false, true})
    for (const bool result : {false, true}) {
      page.exchange = [result](CDataExchange&) { return result; };
      EXPECT_EQ(result, page.UpdateDataSuper(save));
      EXPECT_EQ(save, page.exchanges.back());
    }
}

TEST_F(NemUIPage, NoExceptionLeavesUpdateDataSuper) {
  const std::function<void()> kinds[] = {[] { throw std::runtime_error("test"); }, [] { throw 5; },
                                         [] { throw new NEMPrintMemoryException; }};
  SetActiveWindow(parent_.Window());
  for (const auto& throwIt : kinds) {
    TracedThread trace;
    BarePage page;
    page.exchange = [&throwIt](CDataExchange&) {
      throwIt();
      return true;
    };
    Popups popups;
    popups.ExpectBox(InvalidDataBox(L"NEM pdf AddIn UI"));
    EXPECT_FALSE(page.UpdateDataSuper(true));
    ASSERT_EQ(1u, popups.Boxes().size());
    EXPECT_EQ(parent_.Window(), popups.Boxes().front().owner) << "the active window";
    ExpectException(trace);
  }
}

int WINAPI NoMemoryForTheBox(HWND, LPCWSTR, LPCWSTR, UINT) { throw std::bad_alloc(); }

TEST_F(NemUIPage, NorDoesOneThatTheTellingThrows) {
  TracedThread trace;
  BarePage page;
  page.exchange = [](CDataExchange&) -> bool { throw std::bad_alloc(); };
  PatchImport("user32.dll", "MessageBoxW", reinterpret_cast<void*>(&NoMemoryForTheBox));
  EXPECT_FALSE(page.UpdateDataSuper(true));
  RestoreImport("user32.dll", "MessageBoxW");
  ExpectException(trace);
}

// --- The start -----------------------------------------------------------------------------------------------------

TEST_F(NemUIPage, StartReadsThePropertiesAndThenFillsTheControls) {
  BarePage page;
  std::string order;
  page.exchange = [&order](CDataExchange& data) {
    order += data.IsSaving() ? "write " : "read ";
    return true;
  };
  page.controls = [&order](CDataExchange& data) { order += data.IsSaving() ? "save " : "load "; };
  ASSERT_TRUE(page.Create(parent_.Window()));
  EXPECT_EQ("read load ", order);
  EXPECT_TRUE(page.IsInitialized());
}

TEST_F(NemUIPage, StartWhoseExchangeFailsEndsThePage) {
  TracedThread trace;
  BarePage page;
  page.exchange = [](CDataExchange&) { return false; };
  EXPECT_FALSE(page.Create(parent_.Window()));
  EXPECT_FALSE(page.IsWindow());
  EXPECT_FALSE(page.IsInitialized());
  EXPECT_EQ((Lines{L"Warning: UpdateData failed during dialog init.", L""}), trace.Lines());
  EXPECT_EQ(-1, page.DoModal(parent_.Window())) << "the result of its dialog";
}

TEST_F(NemUIPage, StartWhoseExchangeThrowsIsToldAndEndsThePage) {
  BarePage page;
  page.exchange = [](CDataExchange&) -> bool { throw std::runtime_error("test"); };
  Popups popups;
  popups.ExpectBox(InvalidDataBox(L"NEM pdf AddIn UI"));
  EXPECT_FALSE(page.Create(parent_.Window()));
  EXPECT_FALSE(page.IsWindow());
}

TEST_F(NemUIPage, StartWhoseControlsCannotBeFilledIsNotInitialised) {
  BarePage page;
  page.controls = [](CDataExchange& data) { data.Fail(0); };
  EXPECT_TRUE(page.Create(parent_.Window()));
  EXPECT_FALSE(page.IsInitialized());
}

TEST_F(NemUIPage, WindowHasTheDialogsNumberAsItsHelpId) {
  BarePage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  EXPECT_EQ(DWORD{IDD_NO_DOC_SETTINGS_PAGE}, GetWindowContextHelpId(page.Handle()));
}

HWND texturedDialog = nullptr;
DWORD textureFlags = 0;

HRESULT WINAPI NoteTexture(HWND dialog, DWORD flags) {
  texturedDialog = dialog;
  textureFlags = flags;
  return S_OK;
}

TEST_F(NemUIPage, StandsOnTheGroundOfItsTab) {
  PatchImport("uxtheme.dll", "EnableThemeDialogTexture", reinterpret_cast<void*>(&NoteTexture));
  BarePage page;
  EXPECT_TRUE(page.Create(parent_.Window()));
  RestoreImport("uxtheme.dll", "EnableThemeDialogTexture");
  EXPECT_EQ(page.Handle(), texturedDialog);
  EXPECT_EQ(DWORD{ETDT_ENABLETAB}, textureFlags);
}

// --- Showing, leaving, applying ------------------------------------------------------------------------------------

TEST_F(NemUIPage, EveryShowingButTheFirstFillsTheControls) {
  BarePage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  int loads = 0;
  page.controls = [&loads](CDataExchange& data) {
    loads += data.IsLoading();
    if (loads == 3) data.Fail(0);
  };
  for (const int expected : {0, 1, 2, 3}) {
    EXPECT_TRUE(page.OnSetActive()) << "whatever comes of it";
    EXPECT_EQ(expected, loads);
  }
}

TEST_F(NemUIPage, LeavingSavesTheControlsAndSaysSoWhenItFails) {
  TracedThread trace;
  BarePage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  EXPECT_TRUE(page.OnKillActive());
  EXPECT_EQ(Lines{}, trace.Lines());
  page.controls = [](CDataExchange& data) { data.Fail(0); };
  Popups popups;
  popups.ExpectBox(InvalidDataBox(L"Title"));
  EXPECT_FALSE(page.OnKillActive());
  ASSERT_EQ(1u, popups.Boxes().size());
  EXPECT_EQ(parent_.Window(), popups.Boxes().front().owner) << "of the page";
  EXPECT_EQ(L"UpdateData failed during page deactivation", trace.Lines().front());
}

TEST_F(NemUIPage, OneFailureHasOneBox) {
  BarePage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  Popups popups;
  const auto expect = [&popups](const wchar_t* text) {
    popups.ExpectBox({.title = L"Title", .text = text, .icon = MB_ICONERROR});
  };
  const auto steps = {&CNemUIPage::OnKillActive, &CNemUIPage::OnApply};
  for (const auto step : steps) {
    page.controls = [&page](CDataExchange& data) {
      page.Tell(MSG_SAVING_INVALID_FILE, MB_OK | MB_ICONERROR);
      data.Fail(0);
    };
    expect(L"The file name entered is invalid!");
    EXPECT_FALSE((page.*step)());
    page.controls = [](CDataExchange& data) {
      CountAsMessageBox();
      data.Fail(0);
    };
    EXPECT_FALSE((page.*step)()) << "a dialog has told it";
    page.controls = [](CDataExchange&) { throw std::runtime_error("test"); };
    popups.ExpectBox(InvalidDataBox(L"NEM pdf AddIn UI"));
    EXPECT_FALSE((page.*step)());
    popups.CheckAllCame();
  }
}

TEST_F(NemUIPage, APageThatEndsInAStepNeedsNoBox) {
  for (const auto step : {&CNemUIPage::OnKillActive, &CNemUIPage::OnApply}) {
    BarePage page;
    ASSERT_TRUE(page.Create(parent_.Window()));
    page.controls = [&page](CDataExchange& data) {
      page.Destroy();
      data.Fail(0);
    };
    Popups popups;
    EXPECT_FALSE((page.*step)());
  }
}

// A page whose boxes cannot be made either.
TEST_F(NemUIPage, NothingThatTheTellingThrowsLeavesTheTwoSteps) {
  BarePage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  page.controls = [](CDataExchange& data) { data.Fail(0); };
  PatchImport("user32.dll", "MessageBoxW", reinterpret_cast<void*>(&NoMemoryForTheBox));
  EXPECT_FALSE(page.OnKillActive());
  EXPECT_FALSE(page.OnApply());
  RestoreImport("user32.dll", "MessageBoxW");
}

TEST_F(NemUIPage, ApplySavesTheControlsAndThenTheProperties) {
  BarePage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  page.exchanges.clear();
  EXPECT_TRUE(page.OnApply());
  EXPECT_EQ(std::vector<bool>{true}, page.exchanges);
}

TEST_F(NemUIPage, ApplyThatFailsSaysSo) {
  BarePage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  page.exchanges.clear();
  Popups popups;
  page.controls = [](CDataExchange& data) { data.Fail(0); };
  popups.ExpectBox(InvalidDataBox(L"Title"));
  EXPECT_FALSE(page.OnApply());
  EXPECT_EQ(std::vector<bool>(), page.exchanges) << "what the controls hold is not written";
  page.controls = [](CDataExchange&) {};
  page.exchange = [](CDataExchange&) { return false; };
  popups.ExpectBox(InvalidDataBox(L"Title"));
  EXPECT_FALSE(page.OnApply());
  for (const BoxRecord& box : popups.Boxes()) EXPECT_EQ(parent_.Window(), box.owner) << "of the page";
}

TEST_F(NemUIPage, BoxReadsFromRightToLeftInArabic) {
  BarePage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  page.exchange = [](CDataExchange&) { return false; };
  for (const uint16_t language : {0x0401, 0x0801}) {
    const LanguageScope arabic(language);
    Popups popups;
    popups.ExpectBox(
        {.title = L"Title", .text = MessageText(MSG_INVALID_DATA).Text(), .icon = MB_ICONERROR, .rightToLeft = true});
    EXPECT_FALSE(page.OnApply());
  }
}

TEST_F(NemUIPage, TellsUnderTheTitleOfItsBoxesAndNothingOnceItHasEnded) {
  BarePage page;
  ASSERT_TRUE(page.Create(parent_.Window()));
  Popups popups;
  popups.ExpectBox({.title = L"Title", .text = MessageText(MSG_INVALID_DATA).Text(), .icon = MB_ICONERROR});
  EXPECT_EQ(IDOK, page.Tell(MSG_INVALID_DATA, MB_OK | MB_ICONERROR));
  DestroyWindow(page.Handle());
  EXPECT_EQ(IDCANCEL, page.Tell(MSG_INVALID_DATA, MB_OK | MB_ICONERROR));
  EXPECT_EQ(1u, popups.Boxes().size());
}

// --- What all glue classes share -----------------------------------------------------------------------------------

class GlueLogic : public CNemUIPage {
 public:
  using CNemUIPage::CNemUIPage;
  int32_t scale = 0;
  CUString watermark;
  uint8_t readOnly = 0;
  int32_t fixed = 0;
  NumberOverride resolutionOverride;
  TextOverride authorOverride;
};

constexpr PropertyBinding<GlueLogic> kBindings[] = {
    Bind<&GlueLogic::scale, &CDialogProperties::Scale>(),
    Bind<&GlueLogic::watermark, &CDialogProperties::WatermarkFilename>(),
    BindReadOnly<&GlueLogic::readOnly, &CDialogProperties::Used>(),
    Bind<&GlueLogic::fixed, &CDialogProperties::GraphicResolution, 0>(),
    BindOverride<&GlueLogic::resolutionOverride, &AdminSettings::GraphicResolution_Override>(),
    BindOverride<&GlueLogic::authorOverride, &AdminSettings::Author_Override>(),
};

class GluePage : public CNemUISettingsPage<GlueLogic> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;
  using CNemUISettingsPage::SettingsIndex;
  using CNemUISettingsPage::Sheet;
  std::string steps;

 protected:
  std::span<const PropertyBinding<GlueLogic>> Bindings() const override { return kBindings; }
  void OnPropertiesRead() override { steps += IsLoaded() ? "read again " : "read "; }
  void OnPropertiesWritten() override { steps += "written "; }
};

TEST_F(NemUIPage, GlueForwardsToTheSheet) {
  FakeSheet sheet;
  sheet.properties.HelpFilename.SetString(L"help.chm");
  sheet.properties.MsgBoxTitle.SetString(L"Title");
  GluePage page(&sheet, kDescription, 1);
  sheet.pages[120] = &page;
  EXPECT_EQ(L"help.chm", page.GetHelpFilename());
  EXPECT_EQ(L"Title", page.GetMsgBoxTitle());
  EXPECT_TRUE(page.ActivatePage(117));
  EXPECT_EQ(117, sheet.activatedPage);
  EXPECT_EQ(&page, page.FindPage(120));
  EXPECT_EQ(nullptr, page.FindPage(121));
  EXPECT_EQ(1, page.SettingsIndex());
  EXPECT_EQ(&sheet, page.Sheet());
}

TEST_F(NemUIPage, GlueTellsThePageWhichSettingsItStandsFor) {
  EXPECT_TRUE(GluePage(nullptr, kDescription, 0).globalTab);
  EXPECT_FALSE(GluePage(nullptr, kDescription, 1).globalTab);
}

TEST_F(NemUIPage, GlueLooksForPagesOnItsOwnTab) {
  FakeSheet sheet;
  CNemUIGlobalSettingsPage tab(&sheet, kDescription, 0, {});
  GluePage page(&sheet, kDescription, 0);
  sheet.pages[120] = &page;
  page.SetHost(tab);
  EXPECT_EQ(nullptr, page.FindPage(120)) << "what the sheet finds is on the tab that is shown";
}

TEST_F(NemUIPage, GlueWithoutASheetHasNothing) {
  GluePage page(nullptr, kDescription, 0);
  EXPECT_EQ(L"", page.GetHelpFilename());
  EXPECT_EQ(L"", page.GetMsgBoxTitle());
  EXPECT_FALSE(page.ActivatePage(117));
  EXPECT_EQ(nullptr, page.FindPage(120));
  EXPECT_FALSE(page.UpdateDataSuper(false));
  EXPECT_FALSE(page.UpdateDataSuper(true));
  page.ReadProperties();
  page.WriteProperties();
  EXPECT_FALSE(page.IsLoaded());
  EXPECT_EQ("", page.steps);
}

TEST_F(NemUIPage, GlueReadsOnceAndWritesTheSameEachTime) {
  FakeSheet sheet;
  CDialogProperties& properties = sheet.properties;
  for (const int set : {0, 1}) {
    properties.Scale[set].SetLong(100 + set);
    properties.WatermarkFilename[set].SetString(set ? L"second" : L"first");
    properties.Used[set].SetLong(set);
    properties.GraphicResolution[set].SetLong(600 + set);
  }
  properties.adminSettings.GraphicResolution_Override = 72;
  properties.adminSettings.Author_Override = L"Company";
  GluePage page(&sheet, kDescription, 1);
  EXPECT_TRUE(page.UpdateDataSuper(false));
  EXPECT_EQ(101, page.scale);
  EXPECT_EQ(L"second", page.watermark);
  EXPECT_EQ(1, page.readOnly);
  EXPECT_EQ(600, page.fixed) << "the set that the row fixes";
  EXPECT_EQ(72, page.resolutionOverride.value);
  EXPECT_EQ(L"Company", page.authorOverride.value);
  EXPECT_TRUE(page.IsLoaded());
  properties.Scale[1].SetLong(5);
  EXPECT_TRUE(page.UpdateDataSuper(false));
  EXPECT_EQ(101, page.scale) << "a loaded page reads nothing";

  page.scale = 50;
  page.watermark = L"third";
  page.readOnly = 9;
  page.fixed = 300;
  page.resolutionOverride.value = 9;
  page.authorOverride.value = L"User";
  for (int times = 0; times < 3; ++times) {
    EXPECT_TRUE(page.UpdateDataSuper(true));
    EXPECT_EQ(50, properties.Scale[1].GetLong());
    EXPECT_EQ(L"third", properties.WatermarkFilename[1].GetString());
    EXPECT_EQ(1, properties.Used[1].GetLong()) << "read only";
    EXPECT_EQ(300, properties.GraphicResolution[0].GetLong());
    EXPECT_EQ(72, properties.adminSettings.GraphicResolution_Override);
    EXPECT_EQ(L"Company", properties.adminSettings.Author_Override);
    EXPECT_EQ(100, properties.Scale[0].GetLong()) << "the other set";
    EXPECT_EQ(601, properties.GraphicResolution[1].GetLong());
  }
  EXPECT_EQ("read written written written ", page.steps);
}

}  // namespace
