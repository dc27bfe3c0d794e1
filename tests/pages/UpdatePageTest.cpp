#include "pages/CUpdatePage.h"

#include <gtest/gtest.h>

#include <optional>

#include "driver/ImportPatch.h"
#include "driver/Popups.h"
#include "support/InstalledProduct.h"
#include "support/LoadedUpdator.h"
#include "support/PageUnderTest.h"
#include "support/RegistryValue.h"
#include "support/TracedThread.h"

namespace {

constexpr int kPage = kUpdatePage;
constexpr int kAutomatic = 1455, kManual = 1456, kDownload = 1452, kInstall = 1454, kBeta = 1457, kSearch = 1453;
constexpr int kControls[] = {kAutomatic, kManual, kDownload, kInstall, kBeta, kSearch};

using Ids = std::vector<int>;
using Lines = std::vector<std::wstring>;

class UpdatePage : public testing::Test {
 protected:
  UpdatePage() { test.Sheet().properties.MsgBoxTitle.SetString(L"Title"); }

  void Open() { ASSERT_TRUE(test.Open()); }
  Ids Enabled() { return test.Enabled(kControls); }
  Ids Checked() {
    Ids ids;
    for (const int id : kControls)
      if (id != kSearch && test.Control(id).IsChecked()) ids.push_back(id);
    return ids;
  }
  void Click(int id) { test.Control(id).Click(); }
  void ExpectBox(const std::wstring& text, UINT icon) {
    popups.ExpectBox({.title = L"Title", .text = text, .icon = icon});
  }

  Popups popups;
  InstalledProduct product{ComponentFolder(L"newer")};
  ProductValue schedule{HKEY_CURRENT_USER, L"UpdateType"};
  PageUnderTest test{kPage};
};

// What was traced of the updater: the box asks the registry where it is to go, which leaves lines too.
Lines LinesOfUpdater(TracedThread& thread) {
  Lines lines = thread.Lines();
  std::erase_if(lines, [](const std::wstring& line) { return line.starts_with(L"CRegistryEntry::"); });
  return lines;
}

struct ScheduleCase {
  const wchar_t* stored;  // null: no value
  Ids checked;
  const wchar_t* saved;
};

class UpdateSchedule : public UpdatePage, public testing::WithParamInterface<ScheduleCase> {};

}  // namespace

// --- The schedule --------------------------------------------------------------------------------------------------

TEST_P(UpdateSchedule, ShowsItsBitsAndIsStored) {
  if (GetParam().stored) schedule.Set(GetParam().stored);
  Open();
  EXPECT_EQ(GetParam().checked, Checked());
  EXPECT_TRUE(test.Page().OnKillActive());
  EXPECT_EQ(GetParam().saved, schedule.Text());
}

INSTANTIATE_TEST_SUITE_P(Values, UpdateSchedule,
                         testing::Values(ScheduleCase{nullptr, {kAutomatic, kDownload}, L"0"},
                                         ScheduleCase{L"0", {kAutomatic, kDownload}, L"0"},
                                         ScheduleCase{L"1", {kManual, kDownload}, L"1"},
                                         ScheduleCase{L"2", {kAutomatic}, L"2"},
                                         ScheduleCase{L"4", {kAutomatic, kDownload}, L"0"},  // a bit without a meaning
                                         ScheduleCase{L"8", {kAutomatic, kDownload, kInstall}, L"8"},
                                         ScheduleCase{L"16", {kAutomatic, kDownload, kBeta}, L"16"},
                                         ScheduleCase{L"31", {kManual, kInstall, kBeta}, L"27"},
                                         ScheduleCase{L"27", {kManual, kInstall, kBeta}, L"27"},
                                         ScheduleCase{L"-1", {kManual, kInstall, kBeta}, L"27"},
                                         ScheduleCase{L"text", {kAutomatic, kDownload}, L"0"}));

TEST_F(UpdatePage, NamesItsControls) {
  Open();
  EXPECT_EQ(L"Automatic search for updates periodically", test.Control(kAutomatic).Text());
  EXPECT_EQ(L"Search for updates only manually", test.Control(kManual).Text());
  EXPECT_EQ(L"Download updates automatically", test.Control(kDownload).Text());
  EXPECT_EQ(L"Install updates automatically", test.Control(kInstall).Text());
  EXPECT_EQ(L"Update also to BETA Versions", test.Control(kBeta).Text());
  EXPECT_EQ(L"Search for an update now", test.Control(kSearch).Text());
}

// At each load: the language may have changed on another page.
TEST_F(UpdatePage, NamesItsControlsInTheLanguageOfTheMoment) {
  Open();
  SetUILanguage(0x0407);
  test.Page().UpdateData(false);
  EXPECT_EQ(L"Jetzt nach einem Update suchen", test.Control(kSearch).Text());
}

TEST_F(UpdatePage, TheMachineHasNoSchedule) {
  ProductValue machine(HKEY_LOCAL_MACHINE, L"UpdateType");
  machine.Set(L"27");
  Open();
  EXPECT_EQ((Ids{kAutomatic, kDownload}), Checked());
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(L"0", schedule.Text());
  EXPECT_EQ(L"27", machine.Text());
}

TEST_F(UpdatePage, StoresTheUsersChoice) {
  Open();
  Click(kInstall);
  Click(kBeta);
  EXPECT_TRUE(test.Page().OnKillActive());
  EXPECT_EQ(L"24", schedule.Text());
  Click(kDownload);  // what depends on it keeps its check
  EXPECT_TRUE(test.Page().OnApply());
  EXPECT_EQ(L"26", schedule.Text());
  Click(kManual);
  EXPECT_EQ((Ids{kManual, kInstall, kBeta}), Checked());
  EXPECT_TRUE(test.Page().OnKillActive());
  EXPECT_EQ(L"27", schedule.Text());
  Click(kAutomatic);
  EXPECT_EQ((Ids{kAutomatic, kInstall, kBeta}), Checked());
}

TEST_F(UpdatePage, ReadsTheScheduleAgainWhenItIsShownAgain) {
  Open();
  test.Page().OnSetActive();  // the first showing
  schedule.Set(L"1");
  test.Page().OnSetActive();
  EXPECT_EQ((Ids{kManual, kDownload}), Checked());
}

// --- What is enabled -----------------------------------------------------------------------------------------------

TEST_F(UpdatePage, InstallingNeedsDownloadingAndBothTheAutomaticSearch) {
  const Ids all(std::begin(kControls), std::end(kControls));
  const Ids withoutInstall{kAutomatic, kManual, kDownload, kBeta, kSearch}, manual{kAutomatic, kManual, kBeta, kSearch};
  Open();
  EXPECT_EQ(all, Enabled());
  Click(kDownload);
  EXPECT_EQ(withoutInstall, Enabled());
  Click(kManual);
  EXPECT_EQ(manual, Enabled());
  Click(kAutomatic);
  EXPECT_EQ(withoutInstall, Enabled());
  Click(kDownload);
  EXPECT_EQ(all, Enabled());
  Click(kInstall);
  Click(kBeta);
  EXPECT_EQ(all, Enabled());
}

TEST_F(UpdatePage, TheSameHoldsForWhatIsStored) {
  schedule.Set(L"2");
  Open();
  EXPECT_EQ((Ids{kAutomatic, kManual, kDownload, kBeta, kSearch}), Enabled());
  schedule.Set(L"1");
  test.Page().UpdateData(false);
  EXPECT_EQ((Ids{kAutomatic, kManual, kBeta, kSearch}), Enabled());
}

TEST_F(UpdatePage, AScheduleOfTheAdministratorLocksTheSchedule) {
  for (const int32_t value : {0, 1, 31, kUnsetBoolean}) {
    PageUnderTest locked(kPage);
    locked.Admin().UpdateType_Override = value;
    ASSERT_TRUE(locked.Open());
    for (const int id : kControls) EXPECT_EQ(id == kSearch, locked.Control(id).IsEnabled()) << value << " " << id;
    ASSERT_TRUE(locked.Save());
    for (const int id : kControls) EXPECT_EQ(id == kSearch, locked.Control(id).IsEnabled()) << value << " " << id;
  }
}

// The value of the administrator is neither shown nor stored.
TEST_F(UpdatePage, AScheduleOfTheAdministratorLeavesTheUsersAsItIs) {
  schedule.Set(L"24");
  test.Admin().UpdateType_Override = 1;
  Open();
  EXPECT_EQ((Ids{kAutomatic, kDownload, kInstall, kBeta}), Checked());
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(L"24", schedule.Text());
}

TEST_F(UpdatePage, TheAdministratorCanLockAll) {
  test.Admin().UpdateType_Override = 1;
  test.Admin().DisableManualUpdate = 1;
  Open();
  EXPECT_EQ(Ids{}, Enabled());
}

TEST_F(UpdatePage, TheAdministratorForbidsTheSearchByHandWith1Alone) {
  for (const auto& [value, open] : {std::pair{kUnsetBoolean, true}, {0, true}, {1, false}, {2, true}}) {
    PageUnderTest locked(kPage);
    locked.Admin().DisableManualUpdate = value;
    ASSERT_TRUE(locked.Open());
    EXPECT_EQ(open, locked.Control(kSearch).IsEnabled()) << value;
    EXPECT_TRUE(locked.Control(kAutomatic).IsEnabled()) << value;
  }
}

TEST_F(UpdatePage, AClickDoesNotOpenWhatIsLocked) {
  test.Admin().UpdateType_Override = 8;
  Open();
  test.Page().Send(WM_COMMAND, MAKEWPARAM(kDownload, BN_CLICKED),
                   reinterpret_cast<LPARAM>(test.Control(kDownload).Window()));
  EXPECT_EQ(Ids{kSearch}, Enabled());
}

TEST_F(UpdatePage, WithoutTheUpdaterAllIsDisabledAndTheScheduleStillShown) {
  schedule.Set(L"24");
  product.Install(ComponentFolder(L"complete"));  // which has no updater
  Open();
  EXPECT_EQ(Ids{}, Enabled());
  EXPECT_EQ((Ids{kAutomatic, kDownload, kInstall, kBeta}), Checked());
  EXPECT_TRUE(test.Page().OnKillActive());
  EXPECT_EQ(L"24", schedule.Text());
}

TEST_F(UpdatePage, AnUpdaterThatIsGoneIsNoticedWhenThePageIsLeft) {
  Open();
  product.Install(ComponentFolder(L"complete"));
  Click(kBeta);  // which asks for no file
  EXPECT_NE(Ids{}, Enabled());
  EXPECT_TRUE(test.Page().OnKillActive());
  EXPECT_EQ(Ids{}, Enabled());
}

namespace {

int askedForUpdater;  // how often the system was
const auto realGetFileAttributes = RealFunction("kernel32.dll", "GetFileAttributesW", &GetFileAttributesW);

DWORD WINAPI WithoutUpdater(const wchar_t* file) {
  if (std::wstring_view(file).find(L"NemUpdator64") == std::wstring_view::npos) return realGetFileAttributes(file);
  ++askedForUpdater;
  SetLastError(ERROR_FILE_NOT_FOUND);
  return INVALID_FILE_ATTRIBUTES;
}

}  // namespace

// It would be looked for on a server of its name.
TEST_F(UpdatePage, TheUpdaterIsNotLookedForWithoutAFolder) {
  PatchImport("kernel32.dll", "GetFileAttributesW", reinterpret_cast<void*>(&WithoutUpdater));
  for (const auto& [folder, asked] : {std::pair{L"", 0}, {L"C:\\Product", 1}}) {
    product.Install(folder);
    PageUnderTest page(kPage);
    askedForUpdater = 0;
    EXPECT_TRUE(page.Open());
    EXPECT_EQ(asked, askedForUpdater) << testing::PrintToString(folder);
    EXPECT_EQ(Ids{}, page.Enabled(kControls));
  }
  RestoreImport("kernel32.dll", "GetFileAttributesW");
}

TEST(UpdatePageAlone, WithoutAnInstalledProductAllIsDisabled) {
  const InstalledProduct none;
  const ProductValue schedule(HKEY_CURRENT_USER, L"UpdateType");
  PageUnderTest test(kPage);
  ASSERT_TRUE(test.Open());
  for (const int id : kControls) EXPECT_FALSE(test.Control(id).IsEnabled()) << id;
}

// --- The search ----------------------------------------------------------------------------------------------------

TEST_F(UpdatePage, HandsANewerVersionOverToTheUpdater) {
  LoadedUpdator updator(L"newer");
  Open();
  Click(kSearch);  // and no box comes, though the user has stopped the updater's dialog
  const std::string sheet = std::to_string(reinterpret_cast<INT_PTR>(GetAncestor(test.Page().Handle(), GA_ROOT)));
  const std::wstring folder = ComponentFolder(L"newer");
  EXPECT_EQ(
      "NemUpdatorJobSetPropertyW(job,product=NEM pdf vonder)\n"
      "NemUpdatorJobSetPropertyW(job,version=2.10.4)\n"
      "NemUpdatorJobSetPropertyW(job,updatelink=https://www.nem-software.example/update)\n"
      "NemUpdatorJobSetPropertyW(job,language=1033)\n"
      "NemUpdatorJobSetPropertyW(job,updatorregistry=Software\\NEM software GmbH\\NEM pdf vonder\\Updator)\n"
      "NemUpdatorJobSetPropertyW(job,downloadtype=ShowDialog)\n"
      "NemUpdatorJobSetPropertyW(job,closewindows={" +
          sheet +
          "};{0})\n"
          "NemUpdatorJobSetPropertyW(job,msilogpath=" +
          std::string(folder.begin(), folder.end()) +
          ")\n"
          "NemUpdatorJobSearchForUpdate(job,1)\n"
          "NemUpdatorJobGetPropertyW(job,newversion=)\n"
          "NemUpdatorJobDownloadUpdate(job,1)\n"
          "NemUpdatorJobFree(,)\n",
      updator.TakeCalls());
  EXPECT_EQ(0, updator.OpenJobs());
}

TEST_F(UpdatePage, AllowsBetaVersionsOnlyWhereTheUserDoes) {
  LoadedUpdator updator(L"newer");
  Open();
  Click(kBeta);
  Click(kSearch);
  const std::string calls = updator.TakeCalls();
  EXPECT_NE(std::string::npos, calls.find("example/update)\nNemUpdatorJobSetPropertyW(job,type=AllowBeta)\n"
                                          "NemUpdatorJobSetPropertyW(job,language="))
      << calls;
  EXPECT_EQ(std::nullopt, schedule.Text()) << "the choice counts before it is stored";
}

TEST_F(UpdatePage, TellsTheUpdaterTheUILanguage) {
  LoadedUpdator updator(L"newer");
  Open();
  SetUILanguage(0x0407);
  Click(kSearch);
  EXPECT_NE(std::string::npos, updator.TakeCalls().find("(job,language=1031)"));
}

TEST_F(UpdatePage, TellsThatThereIsNoNewerVersion) {
  product.Install(ComponentFolder(L"current"));
  LoadedUpdator updator(L"current");
  Open();
  ExpectBox(L"You are using the most current version of this software.", 0);
  Click(kSearch);
  const std::string calls = updator.TakeCalls();
  EXPECT_EQ(std::string::npos, calls.find("NemUpdatorJobDownloadUpdate")) << calls;
  EXPECT_EQ(0, updator.OpenJobs());
}

TEST_F(UpdatePage, AVersionThatIsNotAnsweredIsNoNewerOne) {
  product.Install(ComponentFolder(L"unanswering"));
  Open();
  ExpectBox(L"You are using the most current version of this software.", 0);
  Click(kSearch);
}

TEST_F(UpdatePage, TheJobIsGoneBeforeTheUserIsTold) {
  product.Install(ComponentFolder(L"current"));
  Open();
  static bool loaded;
  loaded = true;
  const HHOOK hook = SetWindowsHookExW(
      WH_CBT,
      [](int code, WPARAM wParam, LPARAM lParam) -> LRESULT {
        if (code == HCBT_ACTIVATE) loaded = GetModuleHandleW(L"NemUpdator64.dll") != nullptr;
        return CallNextHookEx(nullptr, code, wParam, lParam);
      },
      nullptr, GetCurrentThreadId());
  ExpectBox(L"You are using the most current version of this software.", 0);
  Click(kSearch);
  UnhookWindowsHookEx(hook);
  EXPECT_FALSE(loaded);
}

// The updater may show windows of its own, and lets the user's clicks through meanwhile.
TEST_F(UpdatePage, ASecondClickStartsNoSecondSearch) {
  product.Install(ComponentFolder(L"pumping"));
  LoadedUpdator updator(L"pumping");
  Open();
  PostMessageW(test.Page().Handle(), WM_COMMAND, MAKEWPARAM(kSearch, BN_CLICKED),
               reinterpret_cast<LPARAM>(test.Control(kSearch).Window()));
  ExpectBox(L"You are using the most current version of this software.", 0);
  Click(kSearch);
  const std::string calls = updator.TakeCalls();
  const size_t first = calls.find("NemUpdatorJobSearchForUpdate");
  EXPECT_NE(std::string::npos, first);
  EXPECT_EQ(std::string::npos, calls.find("NemUpdatorJobSearchForUpdate", first + 1)) << calls;
  ExpectBox(L"You are using the most current version of this software.", 0);
  Click(kSearch);  // later it does
}

TEST_F(UpdatePage, APageThatEndsMeanwhileTellsNothing) {
  product.Install(ComponentFolder(L"pumping"));
  Open();
  static CNemUIPage* page;
  page = &test.Page();
  SetTimer(nullptr, 0, USER_TIMER_MINIMUM, [](HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    page->Destroy();
  });
  Sleep(10 * USER_TIMER_MINIMUM);
  Click(kSearch);
  EXPECT_FALSE(test.Page().IsWindow());
}

// The code that destroys what was thrown lies in the updater, which stays until then. The foreign one throws as code of
// another compiler does, and once more when its job is freed.
TEST_F(UpdatePage, AnUpdaterThatThrowsHasFailed) {
  const std::wstring ofSearch = L"CUpdatePage::OnSearchClicked: exception of the updater",
                     ofJob = L"~NemUpdateJob: exception of the updater";
  for (const auto& [kind, lines] : {std::pair{L"throwing", Lines{ofSearch}}, {L"foreign", Lines{ofSearch, ofJob}}}) {
    product.Install(ComponentFolder(kind));
    PageUnderTest page(kPage);
    page.Sheet().properties.MsgBoxTitle.SetString(L"Title");
    ASSERT_TRUE(page.Open());
    for (int i = 0; i < 2; ++i) {
      TracedThread thread;
      ExpectBox(L"The update check wasn't able to proceed. The reported error was \"\".", 0);
      page.Control(kSearch).Click();
      EXPECT_EQ(nullptr, GetModuleHandleW(L"NemUpdator64.dll"));
      EXPECT_EQ(lines, LinesOfUpdater(thread));
    }
  }
}

TEST_F(UpdatePage, TellsWhyTheSearchFailed) {
  product.Install(ComponentFolder(L"failing"));
  LoadedUpdator updator(L"failing");
  Open();
  ExpectBox(L"The update check wasn't able to proceed. The reported error was \"no road to the server\".", 0);
  Click(kSearch);
  const std::string calls = updator.TakeCalls();
  EXPECT_EQ(std::string::npos, calls.find("newversion")) << calls;
  EXPECT_EQ(0, updator.OpenJobs());
}

TEST_F(UpdatePage, AFailureWithoutATextShowsNone) {
  product.Install(ComponentFolder(L"silent"));
  Open();
  ExpectBox(L"The update check wasn't able to proceed. The reported error was \"\".", 0);
  Click(kSearch);
}

TEST_F(UpdatePage, TellsThatTheUpdaterCannotBeUsed) {
  for (const wchar_t* kind : {L"lacking", L"createfails", L"nohandle"}) {
    product.Install(ComponentFolder(kind));
    PageUnderTest page(kPage);
    page.Sheet().properties.MsgBoxTitle.SetString(L"Title");
    ASSERT_TRUE(page.Open());
    ExpectBox(L"There was an error during initializing the update process.", MB_ICONERROR);
    page.Control(kSearch).Click();
    EXPECT_EQ(nullptr, GetModuleHandleW(L"NemUpdator64.dll")) << "the job is gone";
  }
}

TEST_F(UpdatePage, TouchesNoProperty) {
  Open();
  const auto before = test.AllValues();
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(PageUnderTest::Values{}, test.ChangesSince(before));
}

TEST_F(UpdatePage, HasItsNumberAsHelpId) {
  Open();
  EXPECT_EQ(1367u, GetWindowContextHelpId(test.Page().Handle()));
}
