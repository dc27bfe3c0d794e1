#include "pages/CNemUIActionPage.h"

#include "driver/CommonDialogs.h"
#include "driver/Popups.h"
#include "MessageIds.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "support/FileDialogSpy.h"
#include "support/InvalidDataBox.h"
#include "window/CActivationContext.h"

namespace {

const std::wstring kProgram = L"C:\\tools\\viewer.exe";
const std::wstring k209 = L"C:\\" + std::wstring(206, L'p');
const std::wstring k49(49, L'x');

const PageTable kTable = {
    .name = "Action",
    .pageId = kActionPage,
    .helpLink = IDC_ACTION_HELP_LINK,
    .rows =
        {
            CheckBoxOfBit(L"StartAction", IDC_ACTION_VIEWER, 1)
                .LockedBy<&AdminSettings::StartActionViewerCheck_Override>({IDC_ACTION_VIEWER})
                .Tracked<&ActionCockpitValues::startAction>(),
            CheckBoxOfBit(L"StartAction", IDC_ACTION_PROGRAM_CHECK, 4),
            Field(L"StartProgram", IDC_ACTION_PROGRAM)
                .Stores({{kProgram.c_str(), kProgram, kProgram.c_str()}, {k209.c_str(), k209, k209.c_str()}})
                .Types({{L"notepad", L"notepad", L"notepad"},
                        {k209, k209, k209.c_str()},
                        {k209 + L'q', k209, k209.c_str()}})
                .Given({{L"StartAction", 4}})
                .LockedBy<&AdminSettings::StartActionProgram_Override>({IDC_ACTION_PROGRAM, IDC_ACTION_BROWSE}),
            Field(L"StartProgramParameters", IDC_ACTION_PARAMETERS)
                .Stores({{L"/p", L"/p", L"/p"}, {L"", L"", L""}, {k49.c_str(), k49, k49.c_str()}})
                .Types({{L"\"%1\"", L"\"%1\"", L"\"%1\""}, {k49 + L'y', k49, k49.c_str()}, {L"", L"", L""}})
                .Given({{L"StartAction", 4}})
                .LockedBy<&AdminSettings::StartActionProgramParameters_Override>({IDC_ACTION_PARAMETERS}),
        },
};
const PageTableEntry entry(kTable);

constexpr int kAll[] = {IDC_ACTION_VIEWER, IDC_ACTION_PROGRAM_CHECK,    IDC_ACTION_PROGRAM,
                        IDC_ACTION_BROWSE, IDC_ACTION_PARAMETERS_LABEL, IDC_ACTION_PARAMETERS};
constexpr PageDescription kDescription{IDD_ACTION_PAGE, 0, MSG_PAGE_ACTIONS, 102, 237, 238};

class ActionPage : public testing::Test {
 protected:
  ActionPage() {
    test_.Sheet().properties.MsgBoxTitle.SetString(L"Title");
    test_.Set(L"StartProgram", kProgram);
  }
  bool OpenWith(int32_t actions) {
    test_.Set(L"StartAction", actions);
    return test_.Open();
  }
  ControlRef Control(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return test_.Control(id, where);
  }
  std::vector<int> Enabled() { return test_.Enabled(kAll); }
  void ExpectWarning(ControlRef::Location where = ControlRef::Location::current()) {
    popups_.ExpectBox({.title = L"Title", .text = L"The program entered is invalid!", .icon = MB_ICONEXCLAMATION},
                      where);
  }

  const std::vector<int> kEverything{std::begin(kAll), std::end(kAll)};
  const std::vector<int> kWithoutProgram{IDC_ACTION_VIEWER, IDC_ACTION_PROGRAM_CHECK, IDC_ACTION_PARAMETERS_LABEL};
  CActivationScope look_;
  Popups popups_;
  PageUnderTest test_{kActionPage};
};

TEST_F(ActionPage, ShowsTheCaptionOfTheViewer) {
  ASSERT_TRUE(OpenWith(0));
  EXPECT_EQ(L"Start &default link for PDF-files", Control(IDC_ACTION_VIEWER).Text());
}

TEST_F(ActionPage, TheCommandReadsFromLeftToRightInAMirroredPageToo) {
  const LanguageScope arabic(0x0401);
  ASSERT_TRUE(OpenWith(4));
  EXPECT_TRUE(CWnd(test_.Page().Handle()).IsMirrored());
  for (const int id : {IDC_ACTION_PROGRAM, IDC_ACTION_PARAMETERS}) EXPECT_TRUE(Control(id).ReadsLeftToRight()) << id;
}

// --- What is enabled -------------------------------------------------------------------------------------------------

TEST_F(ActionPage, TheProgramsFieldsAreOpenWhileItIsChecked) {
  ASSERT_TRUE(OpenWith(4));
  EXPECT_EQ(kEverything, Enabled());
  Control(IDC_ACTION_PROGRAM_CHECK).Click();
  EXPECT_EQ(kWithoutProgram, Enabled());
  Control(IDC_ACTION_PROGRAM_CHECK).Click();
  EXPECT_EQ(kEverything, Enabled());
}

TEST_F(ActionPage, TheProgramsFieldsAreClosedAtFirstWithoutIt) {
  ASSERT_TRUE(OpenWith(1 | 2 | 8));
  EXPECT_EQ(kWithoutProgram, Enabled());
}

TEST_F(ActionPage, AFixedCheckClosesItAndTheFieldsWhateverItShows) {
  for (const int32_t fixed : {0, 1, kUnsetNumber}) {
    for (const int32_t actions : {0, 4}) {
      PageUnderTest test(kActionPage);
      test.Set(L"StartAction", actions);
      test.Admin().StartActionProgramCheck_Override = fixed;
      ASSERT_TRUE(test.Open());
      EXPECT_EQ(actions == 4, test.Control(IDC_ACTION_PROGRAM_CHECK).IsChecked()) << "the property's value shows";
      for (const int id : {IDC_ACTION_PROGRAM_CHECK, IDC_ACTION_PROGRAM, IDC_ACTION_BROWSE, IDC_ACTION_PARAMETERS})
        EXPECT_FALSE(test.Control(id).IsEnabled()) << id;
      EXPECT_TRUE(test.Control(IDC_ACTION_VIEWER).IsEnabled());
      EXPECT_TRUE(test.Save()) << "an empty program that cannot be filled is none of the user's";
      EXPECT_EQ(std::to_wstring(actions), test.Value(L"StartAction"));
    }
  }
}

TEST_F(ActionPage, WhatIsFixedStaysClosedWhenTheProgramIsChecked) {
  test_.Admin().StartActionProgram_Override = L"fixed.exe";
  test_.Admin().StartActionProgramParameters_Override = L"/fixed";
  test_.Admin().StartActionViewerCheck_Override = 1;
  ASSERT_TRUE(OpenWith(0));
  EXPECT_EQ(kProgram, Control(IDC_ACTION_PROGRAM).Text());
  Control(IDC_ACTION_PROGRAM_CHECK).Click();
  EXPECT_EQ((std::vector<int>{IDC_ACTION_PROGRAM_CHECK, IDC_ACTION_PARAMETERS_LABEL}), Enabled());
}

TEST_F(ActionPage, WithoutAFileThereIsNothingToStart) {
  for (const int32_t output : {1, 3, 0x10001}) {
    PageUnderTest test(kActionPage);
    test.Set(L"PrintOutput", output);
    test.Set(L"StartAction", 7);
    const auto before = test.AllValues();
    ASSERT_TRUE(test.Open());
    for (const int id : kAll) EXPECT_FALSE(test.Control(id).IsEnabled()) << id;
    EXPECT_TRUE(test.Control(IDC_ACTION_HELP_LINK).IsEnabled());
    EXPECT_TRUE(test.Save()) << "the empty program is not asked for";
    EXPECT_EQ(PageUnderTest::Values(), test.ChangesSince(before));
  }
  test_.Set(L"PrintOutput", 2);
  ASSERT_TRUE(OpenWith(4));
  EXPECT_EQ(kEverything, Enabled());
}

TEST_F(ActionPage, NothingCanBeSetForADocument) {
  FakeSheet sheet;
  PageParent parent;
  sheet.properties.StartAction[1].SetLong(5);
  CNemUIActionPage page(&sheet, kDescription, 1);
  ASSERT_TRUE(page.Create(parent.Window()));
  EXPECT_EQ(std::vector<int>(), EnabledChildren(page.Handle()));
}

// --- Saving ----------------------------------------------------------------------------------------------------------

TEST_F(ActionPage, KeepsTheBitOfTheMailPageAndAllThatItDoesNotKnow) {
  ASSERT_TRUE(OpenWith(2 | 16 | 0x10000));
  test_.Set(L"StartAction", 2 | 8 | 0x20000);  // another page has stored something meanwhile
  Control(IDC_ACTION_VIEWER).Click();
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(std::to_wstring(2 | 1 | 0x20000), test_.Value(L"StartAction")) << "8 is this page's own";
}

TEST_F(ActionPage, AProgramThatIsStartedHasToBeNamed) {
  ASSERT_TRUE(OpenWith(4));
  Control(IDC_ACTION_PROGRAM).SetText(L"");
  Control(IDC_ACTION_VIEWER).Click();
  Control(IDC_ACTION_PARAMETERS).SetText(L"/new");
  const auto before = test_.AllValues();
  ExpectWarning();
  EXPECT_FALSE(test_.Page().OnKillActive());
  EXPECT_TRUE(Control(IDC_ACTION_PROGRAM).HasFocus());
  const auto& page = test_.As<CActionPage>();
  EXPECT_EQ(4, page.startAction) << "nothing is taken over";
  EXPECT_EQ(kProgram, page.startProgram.Text());
  EXPECT_EQ(L"", std::wstring(page.startProgramParameters.Text()));
  ExpectWarning();
  EXPECT_FALSE(test_.Page().OnApply()) << "one box for one failure";
  EXPECT_EQ(PageUnderTest::Values(), test_.ChangesSince(before));
}

TEST_F(ActionPage, AProgramThatIsNotStartedMayBeEmpty) {
  test_.Set(L"StartProgram", L"");
  ASSERT_TRUE(OpenWith(1));
  EXPECT_TRUE(test_.Page().OnKillActive());
}

TEST_F(ActionPage, AnEmptyProgramOfAPageThatIsNotSeenIsLetPass) {
  ASSERT_TRUE(OpenWith(4));
  Control(IDC_ACTION_PROGRAM).SetText(L"");
  test_.Page().Show(false);
  EXPECT_TRUE(test_.Page().UpdateData(true));
}

TEST_F(ActionPage, TextsThatAreTooLongKeepTheUserAndAreTold) {
  const std::wstring program = k209 + L"q", parameters = k49 + L"y";
  for (const bool both : {false, true}) {
    PageUnderTest test(kActionPage);
    test.Set(L"StartAction", 5);
    test.Set(L"StartProgram", both ? program : k209);
    test.Set(L"StartProgramParameters", parameters);
    ASSERT_TRUE(test.Open());
    EXPECT_EQ(parameters, test.Control(IDC_ACTION_PARAMETERS).Text()) << "shown whole";
    test.Control(IDC_ACTION_VIEWER).Click();
    popups_.ExpectBox(InvalidDataBox(L""));
    EXPECT_FALSE(test.Page().OnKillActive());
    EXPECT_TRUE(test.Control(both ? IDC_ACTION_PROGRAM : IDC_ACTION_PARAMETERS).HasFocus());
    const auto& page = test.As<CActionPage>();
    EXPECT_EQ(k209, page.startProgram.Text());
    EXPECT_EQ(k49, page.startProgramParameters.Text());
    EXPECT_EQ(4, page.startAction) << "the exchange goes on";
  }
}

// --- The cockpit -----------------------------------------------------------------------------------------------------

TEST_F(ActionPage, TheCockpitGetsTheBitsOfThisPageAlone) {
  ASSERT_TRUE(OpenWith(4 | 8 | 2));
  ActionCockpitValues values{.startAction = 1 | 2 | 16};
  test_.As<CActionPage>().GetCockpitValues(values);
  EXPECT_EQ(4 | 8 | 2 | 16, values.startAction);
  values.startAction = 0;
  test_.As<CActionPage>().GetCockpitValues(values);
  EXPECT_EQ(4 | 8, values.startAction);
}

TEST_F(ActionPage, TheCockpitSetsWhatIsNotFixed) {
  for (const bool viewerFixed : {false, true}) {
    for (const bool programFixed : {false, true}) {
      PageUnderTest test(kActionPage);
      test.Set(L"StartAction", 2);
      test.Set(L"StartProgram", kProgram);
      if (viewerFixed) test.Admin().StartActionViewerCheck_Override = 0;
      if (programFixed) test.Admin().StartActionProgramCheck_Override = 0;
      ASSERT_TRUE(test.Open());
      test.As<CActionPage>().SetCockpitValues({.startAction = 15});
      EXPECT_EQ((viewerFixed ? 0 : 1) | (programFixed ? 0 : 4) | 8, test.As<CActionPage>().startAction);
      EXPECT_EQ(!viewerFixed, test.Control(IDC_ACTION_VIEWER).IsChecked());
      EXPECT_EQ(!programFixed, test.Control(IDC_ACTION_PROGRAM_CHECK).IsChecked());
      EXPECT_EQ(!programFixed, test.Control(IDC_ACTION_PROGRAM).IsEnabled());
    }
  }
}

// --- Browsing --------------------------------------------------------------------------------------------------------

TEST_F(ActionPage, BrowsingAsksForAProgram) {
  ASSERT_TRUE(OpenWith(4));
  FileDialogSpy spy;
  spy.chosen = L"D:\\apps\\reader.exe";
  Control(IDC_ACTION_BROWSE).Click();
  EXPECT_EQ((FileDialogSpy::Calls{{.owner = test_.Page().Handle(),
                                   .filter = L"Programs(*.exe)|*.exe|All files(*.*)|*.*|",
                                   .startName = kProgram,
                                   .pathRoom = 210,
                                   .flags = 0x1804}}),
            spy.calls);
  EXPECT_EQ(L"D:\\apps\\reader.exe", Control(IDC_ACTION_PROGRAM).Text());
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"D:\\apps\\reader.exe", test_.Value(L"StartProgram"));
}

TEST_F(ActionPage, CancellingTheDialogChangesNothing) {
  ASSERT_TRUE(OpenWith(4));
  FileDialogSpy spy;
  Control(IDC_ACTION_BROWSE).Click();
  EXPECT_EQ(1u, spy.calls.size());
  EXPECT_EQ(kProgram, Control(IDC_ACTION_PROGRAM).Text());
}

TEST_F(ActionPage, ThePageMayEndWhileTheDialogIsUp) {
  ASSERT_TRUE(OpenWith(4));
  FileDialogSpy spy;
  spy.chosen = L"D:\\apps\\reader.exe";
  spy.whileUp = [this] { test_.Page().Destroy(); };
  const HWND button = Control(IDC_ACTION_BROWSE).Window();
  SendMessageW(test_.Page().Handle(), WM_COMMAND, MAKEWPARAM(IDC_ACTION_BROWSE, BN_CLICKED),
               reinterpret_cast<LPARAM>(button));
  EXPECT_FALSE(test_.Page().IsWindow());
}

TEST_F(ActionPage, TheSystemsDialogGivesTheProgram) {
  test_.Set(L"StartProgram", L"");
  ASSERT_TRUE(OpenWith(4));
  popups_.ExpectDialog([](HWND dialog) { ChooseFile(dialog, L"C:\\windows\\system32\\notepad.exe"); });
  Control(IDC_ACTION_BROWSE).Click();
  EXPECT_EQ(0, lstrcmpiW(L"C:\\windows\\system32\\notepad.exe", Control(IDC_ACTION_PROGRAM).Text().c_str()));
}

}  // namespace
