#include "driver/CommonDialogs.h"
#include "driver/Popups.h"
#include "MessageIds.h"
#include "pages/CNemUIProgramPage.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "support/FileDialogSpy.h"
#include "support/InvalidDataBox.h"
#include "support/WordHost.h"
#include "window/CActivationContext.h"

namespace {

using Values = PageUnderTest::Values;

constexpr int kPredefined = 0x158;  // name and folder

const PageTable kTable = {
    .name = "Saving",
    .pageId = kSavingPage,
    .helpLink = IDC_SAVING_HELP_LINK,
    .rows =
        {
            // Both fields of the value have their own list; what a list does not know becomes its first row.
            Field(L"SaveAction", IDC_SAVING_TYPE)
                .Stores({{0x88, L"Always ask for saving location", 0x88},
                         {0x90, L"Save with document name", 0x90},
                         {0x98, L"Save with predefined name", 0x98},
                         {0, L"Always ask for saving location", 0x88},
                         {0x10, L"Save with document name", 0x90},
                         {0xA0, L"Always ask for saving location", 0x88},
                         {-1, L"Always ask for saving location", 0x88},
                         {0x297, L"Save with document name", 0x90},
                         {0x10098, L"Save with predefined name", 0x98}})
                .LockedBy<&AdminSettings::SaveAction_Override>({IDC_SAVING_TYPE, IDC_SAVING_LOCATION})
                .Tracked<&SavingCockpitValues::saveAction>(),
            Field(L"SaveAction", IDC_SAVING_LOCATION)
                .Stores({{0x88, L"Use current directory", 0x88},
                         {0xC8, L"Use last directory", 0xC8},
                         {0x108, L"Use home directory", 0x108},
                         {0x188, L"Use desktop", 0x188},
                         {0x148, L"Use predefined directory", 0x148},
                         {0, L"Use current directory", 0x88},
                         {0x48, L"Use current directory", 0x88},
                         {0x1C8, L"Use current directory", 0x88},
                         {0x308, L"Use home directory", 0x108}}),
            Choice(L"FileExistsAction", IDC_SAVING_FILE_EXISTS,
                   {{L"Give a warning / prompt for a different file name", 0},
                    {L"Overwrite without prompting", 4},
                    {L"Append to existing file", 6},
                    {L"Insert into existing file at the very top", 7},
                    {L"Generate auto-numbered file names", 5}})
                .LockedBy<&AdminSettings::FileExistsAction_Override>({IDC_SAVING_FILE_EXISTS})
                .Tracked<&SavingCockpitValues::fileExistsAction>(),
            Field(L"DestinationDirectoryOrFilename", IDC_SAVING_FILE)
                .Stores({{L"C:\\Out\\a.pdf", L"a.pdf", L"C:\\Out\\a.pdf"},
                         {L"\\\\server\\share\\a.b.pdf", L"a.b.pdf", L"\\\\server\\share\\a.b.pdf"},
                         {L"C:\\Out", L"Out", L"C:\\Out"},
                         {L"C:a.pdf", L"a.pdf", L"C:\\a.pdf"}})
                .Types({{L"b.pdf", L"b.pdf", L"C:\\Out\\b.pdf"}, {L" b", L" b", L"C:\\Out\\ b"}})
                .Given({{L"SaveAction", kPredefined}})
                .LockedBy<&AdminSettings::DestinationDirectoryOrFilename_Override>(
                    {IDC_SAVING_BROWSE, IDC_SAVING_FOLDER, IDC_SAVING_FILE}),
            Field(L"DestinationDirectoryOrFilename", IDC_SAVING_FOLDER)
                .Stores({{L"C:\\Out\\a.pdf", L"C:\\Out\\", L"C:\\Out\\a.pdf"},
                         {L"\\\\server\\share\\a.pdf", L"\\\\server\\share\\", L"\\\\server\\share\\a.pdf"},
                         {L"Out/a.pdf", L"Out/", L"Out/\\a.pdf"}})
                .Types({{L"D:\\x", L"D:\\x", L"D:\\x\\a.pdf"}, {L"D:\\x\\", L"D:\\x\\", L"D:\\x\\a.pdf"}})
                .Given({{L"SaveAction", kPredefined}}),
            CheckBox(L"DestinationFilenameSuffixEnabled", IDC_SAVING_SUFFIX_CHECK)
                .Given({{L"SaveFormatEPdfEnabled", 1}}),
            Field(L"DestinationFilenameSuffix", IDC_SAVING_SUFFIX)
                .Stores({{L"_e", L"_e", L"_e"}, {L"", L"", L""}, {L"123456789", L"123456789", L"123456789"}})
                .Types({{L"a:\\b", L"a:\\b", L"a:\\b"}, {L"1234567890", L"123456789", L"123456789"}, {L"", L"", L""}})
                .Given({{L"SaveFormatEPdfEnabled", 1}, {L"DestinationFilenameSuffixEnabled", 1}}),
        },
};
const PageTableEntry entry(kTable);

constexpr PageDescription kDescription{IDD_SAVING_PAGE, 0, MSG_PAGE_SAVING, 103, 255, 256};
constexpr int kTypes[] = {0x08, 0x10, 0x18};
constexpr int kLocations[] = {0x80, 0xC0, 0x100, 0x180, 0x140};

constexpr wchar_t kBadFolder[] = L"The destination directory entered is invalid!";
constexpr wchar_t kBadFile[] = L"The file name entered is invalid!";

std::wstring ProgramName() {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::wstring text = path;
  return text.substr(text.find_last_of(L'\\') + 1);
}

class SavingPage : public testing::Test {
 protected:
  SavingPage() { Prepare(test_); }

  static void Prepare(PageUnderTest& test) {
    test.Sheet().properties.MsgBoxTitle.SetString(L"Title");
    test.Set(L"SaveAction", 0x88);
    test.Set(L"SaveFormatEPdfEnabled", 1);
    test.Set(L"DestinationDirectoryOrFilename", L"C:\\Out\\a.pdf");
  }
  bool OpenWith(const std::wstring& property, int32_t value) {
    test_.Set(property, value);
    return test_.Open();
  }
  ControlRef Control(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return test_.Control(id, where);
  }
  void SetTextOf(int id, const std::wstring& text) { SetWindowTextW(Control(id).Window(), text.c_str()); }
  // Of one page, of these controls.
  static std::vector<int> Enabled(PageUnderTest& test, std::initializer_list<int> ids) {
    std::vector<int> enabled;
    for (const int id : ids)
      if (test.Control(id).IsEnabled()) enabled.push_back(id);
    return enabled;
  }
  static std::vector<int> EnabledTargets(PageUnderTest& test) {
    return Enabled(
        test, {IDC_SAVING_FOLDER, IDC_SAVING_FOLDER_LABEL, IDC_SAVING_FILE, IDC_SAVING_FILE_LABEL, IDC_SAVING_BROWSE});
  }
  static std::vector<int> EnabledTargets(bool name, bool folder) {
    std::vector<int> enabled;
    if (folder) enabled.insert(enabled.end(), {IDC_SAVING_FOLDER, IDC_SAVING_FOLDER_LABEL});
    if (name) enabled.insert(enabled.end(), {IDC_SAVING_FILE, IDC_SAVING_FILE_LABEL});
    if (name || folder) enabled.push_back(IDC_SAVING_BROWSE);
    return enabled;
  }
  void ExpectWarning(const wchar_t* text, ControlRef::Location where = ControlRef::Location::current()) {
    popups_.ExpectBox({.title = L"Title", .text = text, .icon = MB_ICONEXCLAMATION}, where);
  }
  void ExpectRefusal(const wchar_t* text, ControlRef::Location where = ControlRef::Location::current()) {
    ExpectWarning(text, where);
    EXPECT_FALSE(test_.Page().OnKillActive());
    popups_.CheckAllCame();
  }

  CActivationScope look_;
  Popups popups_;
  PageUnderTest test_{kSavingPage};
};

// --- Name and folder -------------------------------------------------------------------------------------------------

TEST_F(SavingPage, ListsOfNameAndFolderOfferTheirRowsInOrder) {
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ((std::vector<std::wstring>{L"Always ask for saving location", L"Save with document name",
                                       L"Save with predefined name"}),
            Control(IDC_SAVING_TYPE).Rows());
  EXPECT_EQ((std::vector<std::wstring>{L"Use current directory", L"Use last directory", L"Use home directory",
                                       L"Use desktop", L"Use predefined directory"}),
            Control(IDC_SAVING_LOCATION).Rows());
}

TEST_F(SavingPage, EveryChoiceOfBothIsOpenedAndSaved) {
  for (int type = 0; type < 3; ++type) {
    for (int location = 0; location < 5; ++location) {
      SCOPED_TRACE(std::to_string(type) + " " + std::to_string(location));
      const int action = kTypes[type] | kLocations[location];
      const auto expected = EnabledTargets(kTypes[type] == 0x18, kLocations[location] == 0x140);
      PageUnderTest chosen(kSavingPage), loaded(kSavingPage);
      for (PageUnderTest* test : {&chosen, &loaded}) Prepare(*test);
      ASSERT_TRUE(chosen.Open());
      chosen.Control(IDC_SAVING_TYPE).Select(type);
      chosen.Control(IDC_SAVING_LOCATION).Select(location);
      EXPECT_EQ(expected, EnabledTargets(chosen));
      ASSERT_TRUE(chosen.Save());
      EXPECT_EQ(std::to_wstring(action), chosen.Value(L"SaveAction"));

      loaded.Set(L"SaveAction", action);
      ASSERT_TRUE(loaded.Open());
      EXPECT_EQ(expected, EnabledTargets(loaded));
    }
  }
}

TEST_F(SavingPage, EachOfTheTwoListsOpensItsField) {
  ASSERT_TRUE(test_.Open());
  Control(IDC_SAVING_TYPE).Select(2);
  EXPECT_EQ(EnabledTargets(true, false), EnabledTargets(test_));
  Control(IDC_SAVING_TYPE).Select(0);
  EXPECT_EQ(EnabledTargets(false, false), EnabledTargets(test_));
  Control(IDC_SAVING_LOCATION).Select(4);
  EXPECT_EQ(EnabledTargets(false, true), EnabledTargets(test_));
  Control(IDC_SAVING_LOCATION).Select(0);
  EXPECT_EQ(EnabledTargets(false, false), EnabledTargets(test_));
}

TEST_F(SavingPage, ListsWithoutASelectionFailTheSaveWhichGoesOn) {
  for (const auto& [list, saved] : {std::pair{IDC_SAVING_TYPE, 0x148}, {IDC_SAVING_LOCATION, 0x98}}) {
    PageUnderTest test(kSavingPage);
    Prepare(test);
    test.Set(L"SaveAction", kPredefined);
    ASSERT_TRUE(test.Open());
    SendMessageW(test.Control(list).Window(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    test.Control(IDC_SAVING_FILE).SetText(L"new.pdf");
    test.Control(IDC_SAVING_FILE_EXISTS).Select(1);
    EXPECT_FALSE(test.Page().UpdateData(true));
    test.Page().WriteProperties();
    EXPECT_EQ(std::to_wstring(saved), test.Value(L"SaveAction"));
    EXPECT_EQ(L"4", test.Value(L"FileExistsAction"));
    EXPECT_EQ(L"C:\\Out\\new.pdf", test.Value(L"DestinationDirectoryOrFilename"));
  }
}

TEST_F(SavingPage, ATargetThatIsNotEditedComesBackAsItWas) {
  for (const wchar_t* target : {L"", L"a.pdf", L"C:\\Out\\", L"C:\\Out", L"C:\\", L"\\\\server\\share\\x"}) {
    PageUnderTest test(kSavingPage);
    Prepare(test);
    test.Set(L"DestinationDirectoryOrFilename", target);
    const Values before = test.AllValues();
    ASSERT_TRUE(test.Open());
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(Values(), test.ChangesSince(before));
  }
}

TEST_F(SavingPage, AnEmptyFolderGivesTheBareName) {
  ASSERT_TRUE(OpenWith(L"SaveAction", 0x98));
  SetTextOf(IDC_SAVING_FOLDER, L"");
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"a.pdf", test_.Value(L"DestinationDirectoryOrFilename"));
}

TEST_F(SavingPage, AFixedTargetStaysClosedWhateverIsChosen) {
  test_.Admin().DestinationDirectoryOrFilename_Override = L"D:\\Fixed\\f.pdf";
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(L"a.pdf", Control(IDC_SAVING_FILE).Text()) << "the property's value shows";
  Control(IDC_SAVING_TYPE).Select(2);
  Control(IDC_SAVING_LOCATION).Select(4);
  EXPECT_EQ((std::vector<int>{IDC_SAVING_FOLDER_LABEL, IDC_SAVING_FILE_LABEL}), EnabledTargets(test_));
}

// --- What is wrong ---------------------------------------------------------------------------------------------------

TEST_F(SavingPage, AnEditThatIsOpenHasToBeFilled) {
  ASSERT_TRUE(OpenWith(L"SaveAction", kPredefined));
  Control(IDC_SAVING_FOLDER).SetText(L"");
  Control(IDC_SAVING_FILE).SetText(L"");
  ExpectRefusal(kBadFolder);
  EXPECT_TRUE(Control(IDC_SAVING_FOLDER).HasFocus());
  Control(IDC_SAVING_FOLDER).SetText(L"D:\\");
  ExpectRefusal(kBadFile);
  EXPECT_TRUE(Control(IDC_SAVING_FILE).HasFocus());
  Control(IDC_SAVING_FILE).SetText(L"b");
  EXPECT_TRUE(test_.Page().OnKillActive());
}

TEST_F(SavingPage, AnEditThatIsClosedOrNotSeenMayBeEmpty) {
  ASSERT_TRUE(test_.Open());
  SetTextOf(IDC_SAVING_FOLDER, L"");
  SetTextOf(IDC_SAVING_FILE, L"");
  EXPECT_TRUE(test_.Page().OnKillActive());
  Control(IDC_SAVING_TYPE).Select(2);
  Control(IDC_SAVING_LOCATION).Select(4);
  test_.Page().Show(false);
  EXPECT_TRUE(test_.Page().UpdateData(true));
}

TEST_F(SavingPage, ContentsAreLookedAtWhetherOpenOrNot) {
  ASSERT_TRUE(test_.Open());
  for (const wchar_t* name :
       {L"a:b", L"a\\b", L"a/b", L"a<b", L"a>b", L"a\"b", L"a|b", L"a?b", L"a*b", L"\x1F", L"\u0100", L"\u013C"}) {
    SetTextOf(IDC_SAVING_FILE, name);
    ExpectRefusal(kBadFile);
  }
  SetTextOf(IDC_SAVING_FILE, L"a");
  for (const wchar_t* suffix : {L"<", L">", L"\"", L"|", L"?", L"*", L"\t"}) {
    SetTextOf(IDC_SAVING_SUFFIX, suffix);
    ExpectRefusal(kBadFile);
  }
  SetTextOf(IDC_SAVING_SUFFIX, L":\\/");
  for (const wchar_t* folder : {L"C:\\<", L"C:\\>", L"\"", L"|", L"?", L"*", L"C:\\\x1F"}) {
    SetTextOf(IDC_SAVING_FOLDER, folder);
    ExpectRefusal(kBadFolder);
  }
  SetTextOf(IDC_SAVING_FOLDER, L"C:\\a/b\\");
  EXPECT_TRUE(test_.Page().OnKillActive());
}

TEST_F(SavingPage, TheNameIsLookedAtFirstThenTheCharactersThenTheFolder) {
  ASSERT_TRUE(test_.Open());
  SetTextOf(IDC_SAVING_FILE, L"?");
  SetTextOf(IDC_SAVING_SUFFIX, L"?");
  SetTextOf(IDC_SAVING_FOLDER, L"?");
  ExpectRefusal(kBadFile);
  SetTextOf(IDC_SAVING_FILE, L"");
  ExpectRefusal(kBadFile);
  SetTextOf(IDC_SAVING_SUFFIX, L"");
  ExpectRefusal(kBadFolder);
}

TEST_F(SavingPage, ARefusalTakesNothingOver) {
  ASSERT_TRUE(test_.Open());
  Control(IDC_SAVING_TYPE).Select(1);
  Control(IDC_SAVING_FILE_EXISTS).Select(2);
  Control(IDC_SAVING_SUFFIX_CHECK).Click();
  Control(IDC_SAVING_ALL_APPLICATIONS).Click();
  SetTextOf(IDC_SAVING_FILE, L"?");
  const Values before = test_.AllValues();
  ExpectRefusal(kBadFile);
  test_.Page().WriteProperties();
  EXPECT_EQ(Values(), test_.ChangesSince(before));
  ExpectWarning(kBadFile);
  EXPECT_FALSE(test_.Page().OnApply()) << "one box for one failure";
}

TEST_F(SavingPage, TextsThatAreTooLongKeepTheUserAndAreTold) {
  struct {
    int control;
    size_t limit;
    CUString CProgramPage::*member;
  } const kTexts[] = {{IDC_SAVING_FOLDER, 259, &CProgramPage::destinationDirectory},
                      {IDC_SAVING_FILE, 256, &CProgramPage::destinationFile},
                      {IDC_SAVING_SUFFIX, 9, &CProgramPage::suffix}};
  ASSERT_TRUE(test_.Open());
  for (const auto& text : kTexts) {
    SCOPED_TRACE(text.control);
    const std::wstring before = Control(text.control).Text();
    EXPECT_EQ(static_cast<LRESULT>(text.limit), SendMessageW(Control(text.control).Window(), EM_GETLIMITTEXT, 0, 0));
    SetTextOf(text.control, std::wstring(text.limit, L'x'));
    EXPECT_TRUE(test_.Page().OnKillActive());
    SetTextOf(text.control, std::wstring(text.limit + 1, L'y'));
    Control(IDC_SAVING_FILE_EXISTS).Select(4);
    popups_.ExpectBox(InvalidDataBox(L"Title"));
    EXPECT_FALSE(test_.Page().OnKillActive());
    EXPECT_EQ(std::wstring(text.limit, L'y'), (test_.As<CProgramPage>().*text.member).Text());
    EXPECT_EQ(5, test_.As<CProgramPage>().fileExistsAction) << "the exchange goes on";
    SetTextOf(text.control, before);
    Control(IDC_SAVING_FILE_EXISTS).Select(0);
  }
  EXPECT_EQ(3u, popups_.Boxes().size());
}

TEST_F(SavingPage, ContentsAreLookedAtUpTo1024Characters) {
  ASSERT_TRUE(test_.Open());
  for (const auto& [edit, refusal] :
       {std::pair{IDC_SAVING_FOLDER, kBadFolder}, {IDC_SAVING_FILE, kBadFile}, {IDC_SAVING_SUFFIX, kBadFile}}) {
    const std::wstring before = Control(edit).Text();
    SetTextOf(edit, std::wstring(1023, L'x') + L"?");
    ExpectRefusal(refusal);
    SetTextOf(edit, std::wstring(1024, L'x') + L"?");
    popups_.ExpectBox(InvalidDataBox(L"Title"));
    EXPECT_FALSE(test_.Page().OnKillActive()) << "too long";
    SetTextOf(edit, before);
  }
}

TEST_F(SavingPage, TargetsReadFromLeftToRightInAMirroredPageToo) {
  const LanguageScope arabic(0x0401);
  ASSERT_TRUE(test_.Open());
  EXPECT_TRUE(CWnd(test_.Page().Handle()).IsMirrored());
  for (const int id : {IDC_SAVING_FOLDER, IDC_SAVING_FILE, IDC_SAVING_SUFFIX})
    EXPECT_TRUE(Control(id).ReadsLeftToRight()) << id;
}

// --- Added characters ------------------------------------------------------------------------------------------------

TEST_F(SavingPage, TheCharactersAreOpenWhileTheyAreAdded) {
  ASSERT_TRUE(test_.Open());
  EXPECT_FALSE(Control(IDC_SAVING_SUFFIX).IsEnabled());
  Control(IDC_SAVING_SUFFIX_CHECK).Click();
  EXPECT_TRUE(Control(IDC_SAVING_SUFFIX).IsEnabled());
  Control(IDC_SAVING_SUFFIX_CHECK).Click();
  EXPECT_FALSE(Control(IDC_SAVING_SUFFIX).IsEnabled());
}

TEST_F(SavingPage, WithoutEPdfNothingIsAdded) {
  test_.Set(L"SaveFormatEPdfEnabled", 0);
  test_.Set(L"DestinationFilenameSuffix", L"_e");
  ASSERT_TRUE(OpenWith(L"DestinationFilenameSuffixEnabled", 1));
  EXPECT_FALSE(Control(IDC_SAVING_SUFFIX_CHECK).IsEnabled());
  EXPECT_FALSE(Control(IDC_SAVING_SUFFIX).IsEnabled());
  EXPECT_TRUE(Control(IDC_SAVING_SUFFIX_CHECK).IsChecked());
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"1", test_.Value(L"DestinationFilenameSuffixEnabled"));
  EXPECT_EQ(L"_e", test_.Value(L"DestinationFilenameSuffix"));
}

TEST_F(SavingPage, TheSisterProductAsksForFilesOfSinglePages) {
  test_.Set(L"DestinationFilenameSuffixEnabled", 1);
  test_.Page().tiffVariant = true;
  ASSERT_TRUE(test_.Open());
  EXPECT_FALSE(Control(IDC_SAVING_SUFFIX).IsVisible());
  EXPECT_EQ(L"Create for each &page a TIFF-file", Control(IDC_SAVING_SUFFIX_CHECK).Text());
  EXPECT_FALSE(Control(IDC_SAVING_SUFFIX_CHECK).IsChecked());
  Control(IDC_SAVING_SUFFIX_CHECK).Click();
  ASSERT_TRUE(test_.Page().UpdateData(true));
  EXPECT_EQ(1u, test_.As<CProgramPage>().tiffSinglePage);
  EXPECT_EQ(1, test_.As<CProgramPage>().suffixEnabled) << "left alone";
  ASSERT_TRUE(test_.Page().UpdateData(false));
  EXPECT_TRUE(Control(IDC_SAVING_SUFFIX_CHECK).IsChecked());
}

// --- Where nothing can be set ----------------------------------------------------------------------------------------

TEST_F(SavingPage, WithoutAFileThereIsNoTarget) {
  const std::initializer_list<int> closed = {
      IDC_SAVING_TYPE,        IDC_SAVING_LOCATION,     IDC_SAVING_FOLDER_LABEL, IDC_SAVING_FOLDER,
      IDC_SAVING_FILE_LABEL,  IDC_SAVING_FILE,         IDC_SAVING_BROWSE,       IDC_SAVING_FILE_EXISTS_LABEL,
      IDC_SAVING_FILE_EXISTS, IDC_SAVING_SUFFIX_CHECK, IDC_SAVING_SUFFIX};
  for (const auto& [output, open] : {std::pair{0, true}, {2, true}, {1, false}, {3, false}, {0x10001, false}}) {
    PageUnderTest test(kSavingPage);
    Prepare(test);
    test.Set(L"PrintOutput", output);
    test.Set(L"SaveAction", kPredefined);
    test.Set(L"DestinationFilenameSuffixEnabled", 1);
    if (!open) test.Set(L"DestinationDirectoryOrFilename", L"");
    const Values before = test.AllValues();
    ASSERT_TRUE(test.Open());
    EXPECT_EQ(open ? std::vector<int>(closed) : std::vector<int>(), Enabled(test, closed)) << output;
    EXPECT_TRUE(test.Control(IDC_SAVING_ALL_APPLICATIONS).IsEnabled());
    EXPECT_TRUE(test.Control(IDC_SAVING_HELP_LINK).IsEnabled());
    ASSERT_TRUE(test.Save()) << "an empty target that cannot be filled is let pass";
    EXPECT_EQ(Values(), test.ChangesSince(before));
  }
}

TEST_F(SavingPage, NothingCanBeSetForADocument) {
  FakeSheet sheet;
  PageParent parent;
  for (const int32_t startup : {0, 1}) {
    sheet.properties.ApplicationDevmodeStartup[1].SetLong(startup);
    sheet.properties.SaveAction[1].SetLong(kPredefined);
    CNemUIProgramPage page(&sheet, kDescription, 1);
    ASSERT_TRUE(page.Create(parent.Window()));
    EXPECT_EQ(std::vector<int>(), EnabledChildren(page.Handle()));
  }
}

TEST_F(SavingPage, WhatItOnlyReadsIsNotWritten) {
  test_.Set(L"PrintOutput", 0x10002);
  test_.Set(L"SaveFormatEPdfEnabled", 0x10001);
  test_.Set(L"InternalUse", 0x10010);
  const Values before = test_.AllValues();
  ASSERT_TRUE(test_.Open());
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ((Values{{{0, L"InternalUse"}, L"16"}}), test_.ChangesSince(before)) << "16 bits of it are written back";
}

// --- Who shares the settings -----------------------------------------------------------------------------------------

constexpr int kScope[] = {IDC_SAVING_ALL_APPLICATIONS, IDC_SAVING_THIS_APPLICATION, IDC_SAVING_INSTANCES};

TEST_F(SavingPage, TheScopeIsShownAndItsOtherBitsAreLost) {
  for (const int32_t devmode : {0, 1, 2, 3, 4, 7, -1}) {
    PageUnderTest test(kSavingPage);
    Prepare(test);
    test.Set(L"RegistryDevmode", devmode);
    ASSERT_TRUE(test.Open());
    EXPECT_EQ((devmode & 1) != 0, test.Control(IDC_SAVING_ALL_APPLICATIONS).IsChecked()) << devmode;
    EXPECT_EQ((devmode & 1) == 0, test.Control(IDC_SAVING_THIS_APPLICATION).IsChecked()) << devmode;
    EXPECT_EQ((devmode & 2) != 0, test.Control(IDC_SAVING_INSTANCES).IsChecked()) << devmode;
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(std::to_wstring(devmode & 3), test.Value(L"RegistryDevmode"));
  }
}

TEST_F(SavingPage, TheUserChoosesTheScope) {
  ASSERT_TRUE(test_.Open());
  Control(IDC_SAVING_ALL_APPLICATIONS).Click();
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"1", test_.Value(L"RegistryDevmode"));
  Control(IDC_SAVING_THIS_APPLICATION).Click();
  EXPECT_FALSE(Control(IDC_SAVING_ALL_APPLICATIONS).IsChecked());
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"0", test_.Value(L"RegistryDevmode"));
  Control(IDC_SAVING_INSTANCES).Click();
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"2", test_.Value(L"RegistryDevmode"));
}

TEST_F(SavingPage, InternalUseClosesPartsOfTheScope) {
  for (const int32_t use : {0, 1, 2, 4, 16, 17, 20}) {
    for (const bool instances : {false, true}) {
      PageUnderTest test(kSavingPage);
      Prepare(test);
      test.Set(L"InternalUse", use);
      test.Set(L"RegistryDevmode", instances ? 2 : 0);
      ASSERT_TRUE(test.Open());
      const bool unlocked = !(use & 1);
      EXPECT_EQ(unlocked && !instances, test.Control(IDC_SAVING_ALL_APPLICATIONS).IsEnabled()) << use;
      EXPECT_EQ(unlocked && !instances && !(use & 16), test.Control(IDC_SAVING_THIS_APPLICATION).IsEnabled()) << use;
      EXPECT_EQ(unlocked, test.Control(IDC_SAVING_INSTANCES).IsEnabled()) << use;
      EXPECT_EQ(!(use & 4), test.Control(IDC_SAVING_INSTANCES).IsVisible()) << use;
      EXPECT_EQ(
          instances ? L"All other applications use the &same settings" : L"All applications use the &same settings",
          test.Control(IDC_SAVING_ALL_APPLICATIONS).Text());
    }
  }
}

TEST_F(SavingPage, AClickOnTheInstancesBringsTheStoredScopeBack) {
  for (const int32_t devmode : {0, 1}) {
    PageUnderTest test(kSavingPage);
    Prepare(test);
    test.Set(L"RegistryDevmode", devmode);
    ASSERT_TRUE(test.Open());
    test.Control(devmode ? IDC_SAVING_THIS_APPLICATION : IDC_SAVING_ALL_APPLICATIONS).Click();
    for (const bool checked : {true, false}) {
      test.Control(IDC_SAVING_INSTANCES).Click();
      EXPECT_EQ(devmode == 1, test.Control(IDC_SAVING_ALL_APPLICATIONS).IsChecked());
      EXPECT_EQ(devmode == 0, test.Control(IDC_SAVING_THIS_APPLICATION).IsChecked());
      EXPECT_EQ(!checked, test.Control(IDC_SAVING_ALL_APPLICATIONS).IsEnabled());
      EXPECT_EQ(!checked, test.Control(IDC_SAVING_THIS_APPLICATION).IsEnabled());
      EXPECT_EQ(checked ? L"All other applications use the &same settings" : L"All applications use the &same settings",
                test.Control(IDC_SAVING_ALL_APPLICATIONS).Text());
    }
  }
}

TEST_F(SavingPage, WhereTheApplicationMayNotManageThemAllApplicationsDo) {
  test_.Set(L"InternalUse", 16);
  ASSERT_TRUE(OpenWith(L"RegistryDevmode", 2));
  EXPECT_TRUE(Control(IDC_SAVING_THIS_APPLICATION).IsChecked());
  Control(IDC_SAVING_INSTANCES).Click();
  EXPECT_TRUE(Control(IDC_SAVING_ALL_APPLICATIONS).IsChecked());
  EXPECT_FALSE(Control(IDC_SAVING_THIS_APPLICATION).IsChecked());
  EXPECT_FALSE(Control(IDC_SAVING_THIS_APPLICATION).IsEnabled());
  Control(IDC_SAVING_INSTANCES).Click();
  EXPECT_TRUE(Control(IDC_SAVING_THIS_APPLICATION).IsChecked()) << "with the instances the stored one shows again";
}

TEST_F(SavingPage, AFixedScopeIsClosed) {
  for (const auto& [value, open] : {std::pair{kUnsetNumber, true}, {0, false}, {2, false}, {kUnsetBoolean, false}}) {
    PageUnderTest test(kSavingPage);
    Prepare(test);
    test.Admin().Settings_Override = value;
    ASSERT_TRUE(test.Open());
    for (const int id : kScope) EXPECT_EQ(open, test.Control(id).IsEnabled()) << id;
    test.Page().OnSetActive();
    test.Page().OnSetActive();
    for (const int id : kScope) EXPECT_EQ(open, test.Control(id).IsEnabled()) << id;
  }
}

TEST_F(SavingPage, WithTheAddInTheApplicationsStartIsAskedForInPlaceOfTheInstances) {
  for (const int32_t startup : {0, 1, 2, 3}) {
    for (const int32_t use : {0, 4}) {
      PageUnderTest test(kSavingPage);
      Prepare(test);
      test.Set(L"ApplicationDevmodeStartup", startup);
      test.Set(L"InternalUse", use);
      const Values before = test.AllValues();
      ASSERT_TRUE(test.Open());
      EXPECT_EQ(startup == 0 && use == 0, test.Control(IDC_SAVING_INSTANCES).IsVisible()) << startup;
      for (const int id : {IDC_SAVING_ADD_IN, IDC_SAVING_STORE, IDC_SAVING_FROM_PRINTER})
        EXPECT_EQ(startup != 0, test.Control(id).IsVisible()) << startup;
      EXPECT_EQ(startup == 1, test.Control(IDC_SAVING_STORE).IsChecked());
      EXPECT_EQ(startup == 2, test.Control(IDC_SAVING_FROM_PRINTER).IsChecked());
      ASSERT_TRUE(test.Save());
      EXPECT_EQ(Values(), test.ChangesSince(before)) << "a value without a button stays";
    }
  }
}

TEST_F(SavingPage, TheUserChoosesWhatTheApplicationsStartDoes) {
  ASSERT_TRUE(OpenWith(L"ApplicationDevmodeStartup", 3));
  Control(IDC_SAVING_FROM_PRINTER).Click();
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"2", test_.Value(L"ApplicationDevmodeStartup"));
  Control(IDC_SAVING_STORE).Click();
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"1", test_.Value(L"ApplicationDevmodeStartup"));
}

TEST_F(SavingPage, CaptionsNameTheHostsProgram) {
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(L"for all &instances/sessions of the application (" + ProgramName() + L") uniformly",
            Control(IDC_SAVING_INSTANCES).Text());
  EXPECT_EQ(L"When using the NEM pdf vonder add-in: The application (" + ProgramName() + L")",
            Control(IDC_SAVING_ADD_IN).Text());
}

TEST_F(SavingPage, CaptionsShowAnAmpersandOfTheHostsName) {
  constexpr wchar_t kHost[] = L"R&D.exe";
  if (!IsInHost(kHost)) return RunInHost(kHost);
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(L"for all &instances/sessions of the application (R&&D.exe) uniformly",
            Control(IDC_SAVING_INSTANCES).Text());
  EXPECT_EQ(L"When using the NEM pdf vonder add-in: The application (R&D.exe)", Control(IDC_SAVING_ADD_IN).Text());
  EXPECT_TRUE(GetWindowLongW(Control(IDC_SAVING_ADD_IN).Window(), GWL_STYLE) & SS_NOPREFIX);
}

// --- The cockpit -----------------------------------------------------------------------------------------------------

TEST_F(SavingPage, TheTargetFollowsTheCockpit) {
  ASSERT_TRUE(OpenWith(L"SaveAction", kPredefined));
  auto& page = test_.As<CProgramPage>();
  page.SetCockpitValues({.saveAction = 0x88, .fileExistsAction = 4});
  EXPECT_TRUE(EnabledTargets(test_).empty());
  EXPECT_EQ(L"Overwrite without prompting", Control(IDC_SAVING_FILE_EXISTS).Text());
  page.SetCockpitValues({.saveAction = kPredefined});
  EXPECT_EQ(EnabledTargets(true, true), EnabledTargets(test_));
}

// --- Searching -------------------------------------------------------------------------------------------------------

TEST_F(SavingPage, WithANameTheSaveDialogIsAsked) {
  ASSERT_TRUE(OpenWith(L"SaveAction", 0x98));
  EXPECT_FALSE(Control(IDC_SAVING_FOLDER).IsEnabled());
  FileDialogSpy spy;
  spy.chosen = L"D:\\Docs\\Docs\\b.pdf";
  Control(IDC_SAVING_BROWSE).Click();
  EXPECT_EQ((FileDialogSpy::Calls{{.save = true,
                                   .owner = test_.Page().Handle(),
                                   .filter = L"Pdf files(*.pdf)|*.pdf|All Files(*.*)|*.*|",
                                   .startName = L"a.pdf",
                                   .startFolder = L"C:\\Out\\",
                                   .extension = L"pdf",
                                   .pathRoom = 512,
                                   .titleRoom = 257,
                                   .flags = 0x800}}),
            spy.calls);
  EXPECT_EQ(L"D:\\Docs\\Docs", Control(IDC_SAVING_FOLDER).Text());
  EXPECT_EQ(L"b.pdf", Control(IDC_SAVING_FILE).Text());
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(L"D:\\Docs\\Docs\\b.pdf", test_.Value(L"DestinationDirectoryOrFilename"));
}

TEST_F(SavingPage, ALongTargetIsCutForTheDialog) {
  ASSERT_TRUE(OpenWith(L"SaveAction", 0x98));
  SetTextOf(IDC_SAVING_FOLDER, std::wstring(300, L'f'));
  SetTextOf(IDC_SAVING_FILE, std::wstring(300, L'n'));
  FileDialogSpy spy;
  Control(IDC_SAVING_BROWSE).Click();
  ASSERT_EQ(1u, spy.calls.size());
  EXPECT_EQ(std::wstring(259, L'f'), spy.calls[0].startFolder);
  EXPECT_EQ(std::wstring(256, L'n'), spy.calls[0].startName);
}

TEST_F(SavingPage, CancellingTheSaveDialogChangesNothing) {
  ASSERT_TRUE(OpenWith(L"SaveAction", kPredefined));
  FileDialogSpy spy;
  Control(IDC_SAVING_BROWSE).Click();
  EXPECT_EQ(1u, spy.calls.size());
  EXPECT_EQ(L"C:\\Out\\", Control(IDC_SAVING_FOLDER).Text());
  EXPECT_EQ(L"a.pdf", Control(IDC_SAVING_FILE).Text());
}

TEST_F(SavingPage, ThePageMayEndWhileTheSaveDialogIsUp) {
  ASSERT_TRUE(OpenWith(L"SaveAction", kPredefined));
  FileDialogSpy spy;
  spy.chosen = L"D:\\b.pdf";
  spy.whileUp = [this] { test_.Page().Destroy(); };
  SendMessageW(test_.Page().Handle(), WM_COMMAND, MAKEWPARAM(IDC_SAVING_BROWSE, BN_CLICKED),
               reinterpret_cast<LPARAM>(Control(IDC_SAVING_BROWSE).Window()));
  EXPECT_FALSE(test_.Page().IsWindow());
}

TEST_F(SavingPage, TheSystemsSaveDialogStartsInTheFolder) {
  test_.Set(L"DestinationDirectoryOrFilename", L"C:\\windows\\system32\\offer.pdf");
  ASSERT_TRUE(OpenWith(L"SaveAction", kPredefined));
  popups_.ExpectDialog([](HWND dialog) {
    EXPECT_EQ(L"offer.pdf", ProposedFile(dialog));
    ChooseFile(dialog, L"nempdf-no-such-file");
  });
  Control(IDC_SAVING_BROWSE).Click();
  EXPECT_EQ(0, lstrcmpiW(L"C:\\windows\\system32", Control(IDC_SAVING_FOLDER).Text().c_str()));
  EXPECT_EQ(L"nempdf-no-such-file.pdf", Control(IDC_SAVING_FILE).Text());
}

TEST_F(SavingPage, WithAFolderAloneTheFolderPickerIsAskedAndEmptiesTheName) {
  ASSERT_TRUE(OpenWith(L"SaveAction", 0x148));
  bool titled = false;
  popups_.ExpectDialog([&](HWND dialog) {
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
      wchar_t text[16] = L"";
      GetWindowTextW(child, text, 16);
      titled |= std::wstring(text) == L"Title";
    }
    EXPECT_EQ(GetAncestor(test_.Page().Handle(), GA_ROOT), GetWindow(dialog, GW_OWNER));
    ChooseFolder(dialog, L"C:\\windows\\system32");
  });
  Control(IDC_SAVING_BROWSE).Click();
  EXPECT_TRUE(titled);
  EXPECT_EQ(0, lstrcmpiW(L"C:\\windows\\system32", Control(IDC_SAVING_FOLDER).Text().c_str()));
  EXPECT_EQ(L"", Control(IDC_SAVING_FILE).Text());
}

TEST_F(SavingPage, CancellingTheFolderPickerChangesNothing) {
  ASSERT_TRUE(OpenWith(L"SaveAction", 0x148));
  popups_.ExpectDialog(DismissDialog);
  Control(IDC_SAVING_BROWSE).Click();
  EXPECT_EQ(L"C:\\Out\\", Control(IDC_SAVING_FOLDER).Text());
  EXPECT_EQ(L"a.pdf", Control(IDC_SAVING_FILE).Text());
}

}  // namespace
