#include <gtest/gtest.h>

#include "driver/ImportPatch.h"
#include "driver/Popups.h"
#include "pages/CPdfSecurityPage.h"
#include "pages/SecurityAccess.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "support/Accessible.h"
#include "support/ControlPictures.h"
#include "support/FakeFormatPage.h"
#include "support/HelpSpy.h"
#include "support/InvalidDataBox.h"

namespace {

using Cockpit = SecurityCockpitValues;

const std::wstring kThirtyOne = L"0123456789012345678901234567890";

PropertyRow Right(const std::wstring& property, int check) {
  return CheckBox(property, check).Given({{L"EncryptOwnerPasswordEnabled", 1}});
}

const PageTable kTable = {
    .name = "Security",
    .pageId = kSecurityPage,
    .helpLink = IDC_SECURITY_HELP_LINK,
    .rows =
        {
            CheckBox(L"EncryptOwnerPasswordEnabled", 1022)
                .Stores({{65536, L"off", 0}})
                .LockedBy<&AdminSettings::EncryptOwnerPasswordEnabled_Override>({1022})
                .Tracked<&Cockpit::ownerPasswordEnabled>(),
            Field(L"EncryptOwnerPassword", 1003)
                .Stores({{L"one", L"one", L"one"},
                         {L"o", L"o", L"o"},
                         {kThirtyOne.c_str(), kThirtyOne, kThirtyOne.c_str()},
                         {(kThirtyOne + L"1").c_str(), kThirtyOne + L"1", kThirtyOne.c_str()}})
                .Types({{L"new", L"new", L"new"}, {kThirtyOne + L"123", kThirtyOne, kThirtyOne.c_str()}})
                .Given({{L"EncryptOwnerPasswordEnabled", 1}})
                .LockedBy<&AdminSettings::EncryptOwnerPassword_Override>({1280, 1003}),
            CheckBox(L"EncryptUserPasswordEnabled", 1019)
                .Stores({{65536, L"off", 0}})
                .Given({{L"EncryptOwnerPasswordEnabled", 1}})
                .LockedBy<&AdminSettings::EncryptUserPasswordEnabled_Override>({1019})
                .Tracked<&Cockpit::userPasswordEnabled>(),
            Field(L"EncryptUserPassword", 1005)
                .Stores({{L"two", L"two", L"two"},
                         {kThirtyOne.c_str(), kThirtyOne, kThirtyOne.c_str()},
                         {(kThirtyOne + L"1").c_str(), kThirtyOne + L"1", kThirtyOne.c_str()}})
                .Types({{L"new", L"new", L"new"}, {kThirtyOne + L"123", kThirtyOne, kThirtyOne.c_str()}})
                .Given({{L"EncryptOwnerPasswordEnabled", 1}, {L"EncryptUserPasswordEnabled", 1}})
                .LockedBy<&AdminSettings::EncryptUserPassword_Override>({1279, 1005}),
            Radios(L"UseEncryptEnhancedPdfPassword", {1259, 1258, 1260})
                .Stores({{3, L"0", 0}, {-1, L"0", 0}, {0xFFFF, L"0", 0}, {65538, L"2", 2}})
                .Given({{L"SaveFormatEPdfEnabled", 1}})
                .Tracked<&Cockpit::enhancedPdfPassword>(),
            Field(L"EncryptEnhancedPdfPassword", 1007)
                .Stores({{L"three", L"three", L"three"},
                         {kThirtyOne.c_str(), kThirtyOne, kThirtyOne.c_str()},
                         {(kThirtyOne + L"1").c_str(), kThirtyOne + L"1", kThirtyOne.c_str()}})
                .Types({{L"new", L"new", L"new"}, {kThirtyOne + L"123", kThirtyOne, kThirtyOne.c_str()}})
                .Given({{L"SaveFormatEPdfEnabled", 1}, {L"UseEncryptEnhancedPdfPassword", 2}}),
            Right(L"EncryptEnablePrinting", 1008).LockedBy<&AdminSettings::EncryptEnablePrinting_Override>({1008}),
            Right(L"EncryptEnableModifying", 1012).LockedBy<&AdminSettings::EncryptEnableModifying_Override>({1012}),
            Right(L"EncryptEnableNotes", 1006).LockedBy<&AdminSettings::EncryptEnableNotes_Override>({1006}),
            Right(L"EncryptEnableClipboard", 1010).LockedBy<&AdminSettings::EncryptEnableClipboard_Override>({1010}),
            Right(L"EncryptEnableExtract", 1013).LockedBy<&AdminSettings::EncryptEnableExtract_Override>({1013}),
            Right(L"EncryptEnableForms", 1014).LockedBy<&AdminSettings::EncryptEnableForms_Override>({1014}),
            Right(L"EncryptEnableAssembling", 1015).LockedBy<&AdminSettings::EncryptEnableAssembling_Override>({1015}),
        },
};
const PageTableEntry entry(kTable);

constexpr int kEdits[] = {1003, 1005, 1007};
constexpr int kOwnerControls[] = {1280, 1003, 1008, 1012, 1006, 1010, 1019};

class SecurityPage : public testing::Test {
 protected:
  SecurityPage() { Start(); }

  // A page with all on: every password set, every switch on, nothing confirmed.
  void Start(int set = 0) {
    test_.reset();
    test_ = std::make_unique<PageUnderTest>(kSecurityPage, set);
    test_->Sheet().properties.MsgBoxTitle.SetString(L"Title");
    test_->Sheet().properties.HelpFilename.SetString(L"help.chm");
    test_->Sheet().pages[kFormatPage] = &format_;
    for (const wchar_t* name :
         {L"EncryptOwnerPasswordEnabled", L"EncryptUserPasswordEnabled", L"SaveFormatEPdfEnabled"})
      test_->Set(name, 1);
    test_->Set(L"UseEncryptEnhancedPdfPassword", 2);
    test_->Set(L"EncryptOwnerPassword", L"one");
    test_->Set(L"EncryptUserPassword", L"two");
    test_->Set(L"EncryptEnhancedPdfPassword", L"three");
  }
  void OpenWith(int version) {
    format_.version = version;
    ASSERT_TRUE(test_->Open());
  }
  void WantConfirmation() { test_->Sheet().properties.EncryptPasswordsConfirmed[0].SetLong(1); }

  ControlRef Control(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return test_->Control(id, where);
  }
  bool IsOpen(int id) { return Control(id).IsEnabled(); }
  void ExpectOpen(bool open, std::initializer_list<int> ids) {
    for (const int id : ids) EXPECT_EQ(open, IsOpen(id)) << id;
  }
  bool Leave() { return test_->Page().OnKillActive(); }
  void ExpectWarning(const std::wstring& text) {
    popups_.ExpectBox({.title = L"Title", .text = text, .icon = MB_ICONWARNING});
  }

  // The confirmation comes up, with these edits open; the user types what is given, or presses Cancel.
  void ExpectConfirmation(std::vector<std::pair<int, std::wstring>> passwords, int button = IDOK) {
    popups_.ExpectDialog([=](HWND dialog) {
      std::set<int> open, wanted;
      for (const int id : kEdits)
        if (IsWindowEnabled(GetDlgItem(dialog, id))) open.insert(id);
      for (const auto& [id, text] : passwords) {
        wanted.insert(id);
        SetDlgItemTextW(dialog, id, text.c_str());
      }
      EXPECT_EQ(wanted, open);
      SendMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
      if (IsWindow(dialog) && IsWindowVisible(dialog) && button != IDCANCEL)
        SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    });
  }

  Popups popups_;
  FakeFormatPage format_;
  std::unique_ptr<PageUnderTest> test_;
};

// --- The version ---------------------------------------------------------------------------------------------------

TEST_F(SecurityPage, ShowsTheVersionsRow) {
  for (const auto& [version, text] : {std::pair{16, L"PDF/1.6 (Acrobat 7 or higher - 128bit AES-encryption)"},
                                      {107, L"PDF/A3-u (Acrobat 8 or higher)"},
                                      {99, L"PDF/1.3 (Acrobat 4 or higher - 40bit encryption)"}}) {
    Start();
    OpenWith(version);
    EXPECT_EQ(text, Control(1265).Text());
  }
}

TEST_F(SecurityPage, TheVersionFollowsAtEachShowing) {
  OpenWith(16);
  test_->Page().OnSetActive();
  format_.version = 17;
  test_->Page().OnSetActive();
  EXPECT_EQ(L"PDF/1.7 (Acrobat 8 or higher - 128bit AES-encryption)", Control(1265).Text());
}

TEST_F(SecurityPage, TheLinkLeadsToTheFormatPage) {
  OpenWith(16);
  EXPECT_EQ(L"Change", Control(1266).Text());
  Control(1266).Click();
  EXPECT_EQ(kFormatPage, test_->Sheet().activatedPage);
}

// --- What is open --------------------------------------------------------------------------------------------------

TEST_F(SecurityPage, APlainVersionOpensEverything) {
  for (const int version : {14, 15, 16, 17, 18, 99, 108, 200, 201}) {
    Start();
    OpenWith(version);
    for (const int id : kOwnerControls) EXPECT_TRUE(IsOpen(id)) << version << ' ' << id;
    ExpectOpen(true, {1022, 1279, 1005, 1013, 1014, 1015, 1258, 1259, 1260, 1007, 1245, 1180});
  }
}

TEST_F(SecurityPage, WithoutAFormatPageEverythingIsOpen) {
  test_->Sheet().pages.clear();
  ASSERT_TRUE(test_->Open());
  ExpectOpen(true, {1022, 1003, 1005, 1013, 1258, 1007});
  EXPECT_EQ(L"PDF/1.3 (Acrobat 4 or higher - 40bit encryption)", Control(1265).Text());
}

TEST_F(SecurityPage, PdfAClosesAndSwitchesOff) {
  for (const int version : {100, 101, 102, 103, 104, 105, 106, 107}) {
    Start();
    OpenWith(version);
    EXPECT_FALSE(Control(1022).IsChecked());
    ExpectOpen(false, {1022, 1280, 1003, 1008, 1012, 1006, 1010, 1013, 1014, 1015, 1019, 1279, 1005});
    const bool editing = version >= 105;
    ExpectOpen(editing, {1258, 1259, 1260, 1007});
    ExpectOpen(true, {1245, 1180});
    ASSERT_TRUE(test_->Save());
    EXPECT_EQ(L"0", test_->Value(L"EncryptOwnerPasswordEnabled"));
    EXPECT_EQ(L"1", test_->Value(L"EncryptUserPasswordEnabled"));
    EXPECT_EQ(L"one", test_->Value(L"EncryptOwnerPassword"));
  }
}

TEST_F(SecurityPage, SavingObeysAVersionThatHasComeSince) {
  OpenWith(14);
  EXPECT_TRUE(Control(1022).IsChecked());
  format_.version = 100;
  ASSERT_TRUE(test_->Save());
  EXPECT_FALSE(Control(1022).IsChecked());
  EXPECT_EQ(L"0", test_->Value(L"EncryptOwnerPasswordEnabled"));
}

// What a new version closes is still asked for: the user has left it so.
TEST_F(SecurityPage, PasswordsAreLookedAtBeforeAVersionThatHasComeSinceCounts) {
  OpenWith(14);
  Control(1003).SetText(L"");
  format_.version = 100;
  ExpectWarning(L"The entered password for the security settings is invalid!");
  EXPECT_FALSE(Leave());
  EXPECT_TRUE(Control(1022).IsChecked());
}

TEST_F(SecurityPage, Pdf13HasNoDetailedRightsAndTheyKeepTheirState) {
  test_->Set(L"EncryptEnableForms", 1);
  OpenWith(13);
  ExpectOpen(false, {1013, 1014, 1015});
  ExpectOpen(true, {1003, 1008, 1012, 1006, 1010, 1019, 1005});
  EXPECT_TRUE(Control(1014).IsChecked());
  EXPECT_FALSE(Control(1013).IsChecked());
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(L"1", test_->Value(L"EncryptEnableForms"));
}

TEST_F(SecurityPage, TheOpeningPasswordNeedsTheOther) {
  OpenWith(14);
  Control(1022).Click();
  ExpectOpen(false, {1280, 1003, 1008, 1012, 1006, 1010, 1013, 1014, 1015, 1019, 1279, 1005});
  EXPECT_TRUE(Control(1019).IsChecked());
  ExpectOpen(true, {1022, 1258, 1259, 1260, 1007});
  Control(1022).Click();
  ExpectOpen(true, {1280, 1003, 1008, 1013, 1019, 1279, 1005});
  Control(1019).Click();
  ExpectOpen(false, {1279, 1005});
  ExpectOpen(true, {1019, 1003});
}

TEST_F(SecurityPage, TheEditingPasswordIsOpenWhenItIsIndependent) {
  OpenWith(14);
  for (const auto& [radio, open] : {std::pair{1258, false}, {1260, true}, {1259, false}}) {
    Control(radio).Click();
    EXPECT_EQ(open, IsOpen(1007)) << radio;
  }
}

TEST_F(SecurityPage, WithoutEPdfThereIsNothingToEdit) {
  test_->Set(L"SaveFormatEPdfEnabled", 0);
  OpenWith(14);
  ExpectOpen(false, {1258, 1259, 1260, 1007});
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(L"0", test_->Value(L"SaveFormatEPdfEnabled"));
  EXPECT_EQ(L"2", test_->Value(L"UseEncryptEnhancedPdfPassword"));
}

TEST_F(SecurityPage, EachTabObeysTheEPdfSwitchOfItsOwnSet) {
  for (const int set : {0, 1})
    for (const int enabled : {0, 1}) {
      Start(set);
      test_->Sheet().properties.SaveFormatEPdfEnabled[set].SetLong(enabled);
      test_->Sheet().properties.SaveFormatEPdfEnabled[1 - set].SetLong(1 - enabled);
      OpenWith(14);
      ExpectOpen(enabled != 0, {1258, 1259, 1260, 1007});
    }
}

TEST_F(SecurityPage, WhatItOnlyReadsIsNotWritten) {
  test_->Set(L"SaveFormatEPdfEnabled", 0x10001);
  OpenWith(14);
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(L"65537", test_->Value(L"SaveFormatEPdfEnabled")) << "not even the 16 bits of it";
}

TEST_F(SecurityPage, OverridesOfTheSwitchesLeaveWhatTheyOpenAlone) {
  test_->Admin().EncryptOwnerPasswordEnabled_Override = 0;
  test_->Admin().EncryptUserPasswordEnabled_Override = 0;
  test_->Admin().EncryptPasswordsConfirmed_Override = 1;
  OpenWith(14);
  ExpectOpen(false, {1022, 1019, 1245});
  ExpectOpen(true, {1280, 1003, 1279, 1005});
  EXPECT_TRUE(Control(1022).IsChecked());
  EXPECT_FALSE(Control(1245).IsChecked());
}

TEST_F(SecurityPage, OverridesHoldAfterWhatOpensControls) {
  test_->Admin().EncryptOwnerPassword_Override = L"fixed";
  test_->Admin().EncryptUserPassword_Override = L"fixed";
  test_->Admin().EncryptEnableForms_Override = 1;
  OpenWith(14);
  for (int i = 0; i < 2; ++i) {
    Control(1022).Click();
    Control(1022).Click();
    Control(1019).Click();
    Control(1019).Click();
    ExpectOpen(false, {1280, 1003, 1279, 1005, 1014});
    ExpectOpen(true, {1013, 1015, 1019});
  }
  EXPECT_EQ(L"one", Control(1003).Text()) << "the administrator's password is not shown";
}

// --- One value for both tabs ---------------------------------------------------------------------------------------

TEST_F(SecurityPage, TheConfirmSwitchIsThatOfTheFirstSet) {
  for (const int set : {0, 1})
    for (const auto& [stored, saved] : {std::pair{0, 0}, {1, 1}, {7, 1}, {-1, 1}}) {
      Start(set);
      CDialogProperties& properties = test_->Sheet().properties;
      properties.EncryptPasswordsConfirmed[0].SetLong(stored);
      properties.EncryptPasswordsConfirmed[1].SetLong(55);
      OpenWith(14);
      EXPECT_EQ(set == 0, IsOpen(1245));
      EXPECT_EQ(stored != 0, Control(1245).IsChecked());
      ASSERT_TRUE(test_->Save());
      EXPECT_EQ(saved, properties.EncryptPasswordsConfirmed[0].GetLong());
      EXPECT_EQ(55, properties.EncryptPasswordsConfirmed[1].GetLong());
    }
}

TEST_F(SecurityPage, TheUserSwitchesTheConfirmation) {
  OpenWith(14);
  Control(1245).Click();
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(1, test_->Sheet().properties.EncryptPasswordsConfirmed[0].GetLong());
  EXPECT_EQ(0, test_->Sheet().properties.EncryptPasswordsConfirmed[1].GetLong());
}

TEST_F(SecurityPage, VisibilityIsTheSheets) {
  for (const int set : {0, 1})
    for (const auto& [stored, saved] : {std::pair{0, 0}, {1, 1}, {7, 1}}) {
      Start(set);
      test_->Sheet().properties.PasswordVisible.SetLong(stored);
      OpenWith(14);
      EXPECT_EQ(stored != 0, Control(1180).IsChecked());
      for (const int id : kEdits)
        EXPECT_EQ(stored ? L'\0' : L'*', SendMessageW(Control(id).Window(), EM_GETPASSWORDCHAR, 0, 0)) << id;
      ASSERT_TRUE(test_->Save());
      EXPECT_EQ(saved, test_->Sheet().properties.PasswordVisible.GetLong());
    }
}

TEST_F(SecurityPage, TheUserShowsAndHidesThePasswords) {
  OpenWith(14);
  for (const wchar_t character : {L'\0', L'*', L'\0'}) {
    Control(1180).Click();
    for (const int id : kEdits) {
      EXPECT_EQ(character, SendMessageW(Control(id).Window(), EM_GETPASSWORDCHAR, 0, 0)) << id;
      EXPECT_EQ(character != 0, (GetWindowLongPtrW(Control(id).Window(), GWL_STYLE) & ES_PASSWORD) != 0) << id;
    }
  }
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(1, test_->Sheet().properties.PasswordVisible.GetLong());
}

// Both tabs may have shown the page.
TEST_F(SecurityPage, WhatTheOtherTabHasChangedSincePersists) {
  Start(1);
  OpenWith(14);
  CDialogProperties& properties = test_->Sheet().properties;
  properties.EncryptPasswordsConfirmed[0].SetLong(1);
  properties.PasswordVisible.SetLong(1);
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(1, properties.EncryptPasswordsConfirmed[0].GetLong());
  EXPECT_EQ(1, properties.PasswordVisible.GetLong());
  Control(1180).Click();
  Control(1180).Click();
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(1, properties.PasswordVisible.GetLong());
}

// Hosts have several numbers for a switch that is on.
TEST_F(SecurityPage, WhatTheOtherTabHasSwitchedOffStaysOff) {
  for (const int on : {1, 2, 7, -1}) {
    Start(1);
    CDialogProperties& properties = test_->Sheet().properties;
    properties.EncryptPasswordsConfirmed[0].SetLong(on);
    properties.PasswordVisible.SetLong(on);
    OpenWith(14);
    properties.EncryptPasswordsConfirmed[0].SetLong(0);
    properties.PasswordVisible.SetLong(0);
    ASSERT_TRUE(test_->Save());
    EXPECT_EQ(0, properties.EncryptPasswordsConfirmed[0].GetLong()) << on;
    EXPECT_EQ(0, properties.PasswordVisible.GetLong()) << on;
  }
}

// The cockpit has read the page before, or it was shown itself.
TEST_F(SecurityPage, WhatTheOtherTabHasChangedShowsAndCounts) {
  for (const bool shownBefore : {false, true})
    for (const int stored : {0, 1}) {
      Start(1);
      CDialogProperties& properties = test_->Sheet().properties;
      const auto store = [&](int value) {
        properties.EncryptPasswordsConfirmed[0].SetLong(value);
        properties.PasswordVisible.SetLong(value);
      };
      store(1 - stored);
      test_->Page().ReadProperties();
      if (!shownBefore) store(stored);
      OpenWith(14);
      test_->Page().OnSetActive();
      store(stored);
      if (shownBefore) test_->Page().OnSetActive();
      EXPECT_EQ(stored != 0, Control(1245).IsChecked());
      EXPECT_EQ(stored != 0, Control(1180).IsChecked());
      Control(1003).SetText(L"new");
      if (stored) ExpectConfirmation({{1003, L"new"}, {1005, L"two"}, {1007, L"three"}});
      EXPECT_TRUE(Leave());
      Control(1180).Click();
      ASSERT_TRUE(test_->Save());
      EXPECT_EQ(stored, properties.EncryptPasswordsConfirmed[0].GetLong());
      EXPECT_EQ(1 - stored, properties.PasswordVisible.GetLong());
    }
}

TEST_F(SecurityPage, WhatTheUserHasChangedHereOutlivesAReloading) {
  OpenWith(14);
  Control(1245).Click();
  Control(1180).Click();
  ASSERT_TRUE(Leave());
  for (int i = 0; i < 2; ++i) test_->Page().OnSetActive();
  EXPECT_TRUE(Control(1245).IsChecked());
  EXPECT_TRUE(Control(1180).IsChecked());
}

// --- Empty passwords -----------------------------------------------------------------------------------------------

TEST_F(SecurityPage, AnEmptyPasswordKeepsTheUserOnThePage) {
  const std::pair<int, const wchar_t*> rows[] = {
      {1003, L"The entered password for the security settings is invalid!"},
      {1005, L"The entered password for opening the PDF file is invalid!"},
      {1007, L"The entered password for editing the e.pdf file is invalid!"}};
  for (const auto& [edit, text] : rows) {
    Start();
    OpenWith(14);
    Control(edit).SetText(L"");
    Control(1008).Click();
    ExpectWarning(text);
    EXPECT_FALSE(Leave());
    EXPECT_TRUE(Control(edit).HasFocus());
    test_->Page().WriteProperties();
    EXPECT_EQ(L"0", test_->Value(L"EncryptEnablePrinting")) << "no member is read";
    Control(edit).SetText(L"x");
    EXPECT_TRUE(Leave());
  }
}

TEST_F(SecurityPage, TheFirstEmptyPasswordIsTold) {
  OpenWith(14);
  for (const int id : kEdits) Control(id).SetText(L"");
  ExpectWarning(L"The entered password for the security settings is invalid!");
  EXPECT_FALSE(Leave());
  Control(1003).SetText(L"x");
  ExpectWarning(L"The entered password for opening the PDF file is invalid!");
  EXPECT_FALSE(Leave());
  Control(1022).Click();
  ExpectWarning(L"The entered password for editing the e.pdf file is invalid!");
  EXPECT_FALSE(Leave());
}

TEST_F(SecurityPage, WhatIsClosedMayBeEmpty) {
  for (const wchar_t* name : {L"EncryptOwnerPassword", L"EncryptUserPassword", L"EncryptEnhancedPdfPassword"})
    test_->Set(name, L"");
  test_->Set(L"EncryptOwnerPasswordEnabled", 0);
  test_->Set(L"UseEncryptEnhancedPdfPassword", 1);
  OpenWith(14);
  EXPECT_TRUE(Leave());
}

TEST_F(SecurityPage, WhatAnAdministratorHasFixedMayBeEmpty) {
  test_->Set(L"EncryptOwnerPassword", L"");
  test_->Set(L"EncryptUserPassword", L"");
  test_->Admin().EncryptOwnerPassword_Override = L"fixed";
  test_->Admin().EncryptUserPassword_Override = L"fixed";
  OpenWith(14);
  EXPECT_TRUE(Leave());
}

TEST_F(SecurityPage, APageThatIsNotShownIsNotHeldUp) {
  test_->Set(L"EncryptOwnerPassword", L"");
  OpenWith(14);
  test_->Page().Show(false);
  EXPECT_TRUE(test_->Page().OnApply());
}

TEST_F(SecurityPage, OkTellsAnEmptyPasswordOnce) {
  OpenWith(14);
  Control(1003).SetText(L"");
  ExpectWarning(L"The entered password for the security settings is invalid!");
  EXPECT_FALSE(test_->Page().OnApply());
  EXPECT_EQ(1u, popups_.Boxes().size());
}

// --- Confirmation --------------------------------------------------------------------------------------------------

TEST_F(SecurityPage, NothingTouchedAsksNothing) {
  WantConfirmation();
  OpenWith(14);
  EXPECT_TRUE(Leave());
  test_->Page().OnSetActive();
  test_->Page().OnSetActive();
  Control(1260).Focus();  // a radio that gets the keyboard tells a click
  SendMessageW(test_->Page().Handle(), WM_COMMAND, MAKEWPARAM(1260, BN_CLICKED),
               reinterpret_cast<LPARAM>(Control(1260).Window()));
  Control(1008).Click();
  EXPECT_TRUE(Leave());
}

TEST_F(SecurityPage, WithoutTheSwitchNothingIsAsked) {
  OpenWith(14);
  for (const int id : kEdits) Control(id).SetText(L"new");
  EXPECT_TRUE(Leave());
  WantConfirmation();  // read already
  EXPECT_TRUE(Leave());
}

TEST_F(SecurityPage, ASwitchThatHasJustBeenTurnedOnAsks) {
  OpenWith(14);
  Control(1245).Click();
  Control(1003).SetText(L"new");
  ExpectConfirmation({{1003, L"new"}, {1005, L"two"}, {1007, L"three"}});
  EXPECT_TRUE(Leave());
}

TEST_F(SecurityPage, ASwitchThatHasJustBeenTurnedOffAsksNothing) {
  WantConfirmation();
  OpenWith(14);
  Control(1245).Click();
  Control(1003).SetText(L"new");
  EXPECT_TRUE(Leave());
}

TEST_F(SecurityPage, ATouchedPasswordAsksForAllThatCount) {
  for (const int touched : kEdits) {
    Start();
    WantConfirmation();
    OpenWith(14);
    Control(touched).SetText(L"new");
    const auto now = [&](int id, const wchar_t* before) {
      return std::pair(id, std::wstring(id == touched ? L"new" : before));
    };
    ExpectConfirmation({now(1003, L"one"), now(1005, L"two"), now(1007, L"three")});
    EXPECT_TRUE(Leave()) << touched;
    EXPECT_TRUE(Leave()) << "not a second time";
    ASSERT_TRUE(test_->Save());
    EXPECT_EQ(touched == 1003 ? L"new" : L"one", test_->Value(L"EncryptOwnerPassword"));
    EXPECT_EQ(touched == 1005 ? L"new" : L"two", test_->Value(L"EncryptUserPassword"));
    EXPECT_EQ(touched == 1007 ? L"new" : L"three", test_->Value(L"EncryptEnhancedPdfPassword"));
  }
}

TEST_F(SecurityPage, OnlyPasswordsInUseAreAskedFor) {
  WantConfirmation();
  test_->Set(L"EncryptUserPasswordEnabled", 0);
  test_->Set(L"UseEncryptEnhancedPdfPassword", 0);
  OpenWith(14);
  Control(1003).SetText(L"new");
  ExpectConfirmation({{1003, L"new"}});
  EXPECT_TRUE(Leave());
}

TEST_F(SecurityPage, APasswordThatIsSwitchedOffAgainIsNotAskedFor) {
  WantConfirmation();
  OpenWith(14);
  Control(1005).SetText(L"new");
  Control(1019).Click();
  EXPECT_TRUE(Leave());
}

TEST_F(SecurityPage, SwitchingAPasswordOnTouchesItAndOffDoesNot) {
  const auto leaveWith = [&](std::initializer_list<int> clicks, bool asks) {
    Start();
    WantConfirmation();
    OpenWith(14);
    for (const int id : clicks) Control(id).Click();
    if (asks) ExpectConfirmation({{1003, L"one"}, {1005, L"two"}, {1007, L"three"}});
    EXPECT_TRUE(Leave());
  };
  leaveWith({1022}, false);
  leaveWith({1022, 1022}, true);
  leaveWith({1019}, false);
  leaveWith({1019, 1019}, true);
  leaveWith({1259}, false);
  leaveWith({1260}, false);
  leaveWith({1258, 1260}, true);
}

INT_PTR WINAPI NoDialog(HINSTANCE, const DLGTEMPLATE*, HWND, DLGPROC, LPARAM) { return -1; }

TEST_F(SecurityPage, AConfirmationThatCannotComeUpIsToldOf) {
  WantConfirmation();
  OpenWith(14);
  Control(1005).SetText(L"new");
  ASSERT_GT(PatchImport("user32.dll", "DialogBoxIndirectParamW", reinterpret_cast<void*>(&NoDialog)), 0);
  popups_.ExpectBox(InvalidDataBox(L"Title"));
  EXPECT_FALSE(Leave());
  RestoreImport("user32.dll", "DialogBoxIndirectParamW");
}

TEST_F(SecurityPage, AConfirmationThatIsCancelledKeepsTheUserOnThePage) {
  WantConfirmation();
  OpenWith(14);
  Control(1005).SetText(L"new");
  Control(1008).Click();
  for (int i = 0; i < 2; ++i) {
    ExpectConfirmation({{1003, L"one"}, {1005, L"new"}, {1007, L"three"}}, IDCANCEL);
    EXPECT_FALSE(Leave());
    EXPECT_TRUE(Control(1005).HasFocus());
  }
  test_->Page().WriteProperties();
  EXPECT_EQ(L"new", test_->Value(L"EncryptUserPassword")) << "the members are read all the same";
  EXPECT_EQ(L"1", test_->Value(L"EncryptEnablePrinting"));
  ExpectConfirmation({{1003, L"one"}, {1005, L"new"}, {1007, L"three"}});
  EXPECT_TRUE(Leave());
}

TEST_F(SecurityPage, TheFocusGoesToAPasswordThatCanBeChanged) {
  WantConfirmation();
  OpenWith(14);
  Control(1005).SetText(L"new");
  Control(1019).Click();  // closes it
  Control(1007).SetText(L"new");
  Control(1008).Focus();
  ExpectConfirmation({{1003, L"one"}, {1007, L"new"}}, IDCANCEL);
  EXPECT_FALSE(Leave());
  EXPECT_TRUE(Control(1007).HasFocus());
}

TEST_F(SecurityPage, TheConfirmationHelpsWithTheHostsFile) {
  HelpSpy spy;
  WantConfirmation();
  OpenWith(14);
  Control(1003).SetText(L"new");
  popups_.ExpectDialog([&](HWND dialog) {
    ControlRef(GetDlgItem(dialog, IDHELP), IDHELP, ControlRef::Location::current()).Click();
    EXPECT_EQ(L"help.chm", spy.TakePath());
    SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  });
  EXPECT_FALSE(Leave());
}

TEST_F(SecurityPage, AWrongConfirmationIsTold) {
  WantConfirmation();
  OpenWith(14);
  Control(1003).SetText(L"new");
  ExpectConfirmation({{1003, L"New"}, {1005, L"two"}, {1007, L"three"}});
  popups_.ExpectBox({.title = L"NEM pdf AddIn UI",
                     .text = L"The entered passwords couldn't be confirmed.",
                     .icon = MB_ICONINFORMATION});
  EXPECT_FALSE(Leave());
}

TEST_F(SecurityPage, PdfAAsksForTheEditingPasswordAlone) {
  WantConfirmation();
  OpenWith(106);
  Control(1007).SetText(L"new");
  ExpectConfirmation({{1007, L"new"}});
  EXPECT_TRUE(Leave());
}

TEST_F(SecurityPage, LoadingForgetsWhatWasTouched) {
  WantConfirmation();
  OpenWith(14);
  Control(1003).SetText(L"new");
  test_->Page().UpdateData(false);
  EXPECT_EQ(L"one", Control(1003).Text());
  EXPECT_TRUE(Leave());
}

// The owner of the sheet may go away under the confirmation.
TEST_F(SecurityPage, AConfirmationMayEndThePage) {
  WantConfirmation();
  OpenWith(14);
  Control(1003).SetText(L"new");
  popups_.ExpectDialog([&](HWND dialog) { DestroyWindow(GetWindow(dialog, GW_OWNER)); });
  EXPECT_FALSE(test_->Page().UpdateData(true));
  EXPECT_FALSE(test_->Page().IsWindow());
}

// --- Switched off from elsewhere -----------------------------------------------------------------------------------

TEST_F(SecurityPage, SwitchingOffBeforeReadingWritesThreePropertiesAlone) {
  for (const int set : {0, 1}) {
    Start(set);
    const PageUnderTest::Values before = test_->AllValues();
    test_->As<SecurityAccess>().SwitchPasswordsOff();
    EXPECT_FALSE(test_->Page().IsLoaded());
    EXPECT_EQ((PageUnderTest::Values{{{set, L"EncryptOwnerPasswordEnabled"}, L"0"},
                                     {{set, L"EncryptUserPasswordEnabled"}, L"0"},
                                     {{set, L"UseEncryptEnhancedPdfPassword"}, L"0"}}),
              test_->ChangesSince(before));
  }
}

TEST_F(SecurityPage, SwitchingOffWritesAllThatThePageHasRead) {
  test_->Page().ReadProperties();
  const PageUnderTest::Values before = test_->AllValues();
  test_->Set(L"EncryptEnablePrinting", 1);  // since then
  test_->As<SecurityAccess>().SwitchPasswordsOff();
  EXPECT_EQ((PageUnderTest::Values{{{0, L"EncryptOwnerPasswordEnabled"}, L"0"},
                                   {{0, L"EncryptUserPasswordEnabled"}, L"0"},
                                   {{0, L"UseEncryptEnhancedPdfPassword"}, L"0"}}),
            test_->ChangesSince(before));
}

TEST_F(SecurityPage, SwitchingOffShowsAndLasts) {
  OpenWith(200);
  test_->As<SecurityAccess>().SwitchPasswordsOff();
  EXPECT_FALSE(Control(1022).IsChecked());
  EXPECT_FALSE(Control(1019).IsChecked());
  EXPECT_TRUE(Control(1259).IsChecked());
  EXPECT_FALSE(Control(1260).IsChecked());
  ExpectOpen(false, {1003, 1005, 1007});
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(L"0", test_->Value(L"EncryptOwnerPasswordEnabled"));
  EXPECT_EQ(L"0", test_->Value(L"UseEncryptEnhancedPdfPassword"));
}

TEST_F(SecurityPage, WithoutASheetSwitchingOffDoesNothing) {
  const auto page = MakeCataloguePage(nullptr, kSecurityPage, 0);
  dynamic_cast<SecurityAccess&>(*page).SwitchPasswordsOff();
  EXPECT_FALSE(page->IsLoaded());
}

// --- The look ------------------------------------------------------------------------------------------------------

TEST_F(SecurityPage, CaptionWithASignIsSetByThePage) {
  OpenWith(14);
  EXPECT_EQ(L"&No password for editing the e.pdf document in  MS\u00AE Word", Control(1258).Text());
}

TEST_F(SecurityPage, EachPictureStandsInItsControl) {
  OpenWith(14);
  ExpectPictures(test_->Page(), {{IDC_SECURITY_PICTURE, Pictures::kLock32}});
}

// A screen reader names an edit by the static text directly before it, hidden or not.
TEST_F(SecurityPage, EachPasswordHasANameForScreenReaders) {
  OpenWith(14);
  for (const auto& [edit, name] :
       {std::pair{1003, L"Pass&word:"}, {1005, L"&Password:"}, {1007, L"Independent password:"}})
    EXPECT_EQ(name, TextBefore(Control(edit).Window())) << edit;
}

TEST_F(SecurityPage, PasswordsHaveTheirLimit) {
  OpenWith(14);
  for (const int id : kEdits) EXPECT_EQ(31, SendMessageW(Control(id).Window(), EM_GETLIMITTEXT, 0, 0)) << id;
}

TEST_F(SecurityPage, IsNotReadBeforeItIsAsked) {
  PageUnderTest fresh(kSecurityPage);
  const auto& page = fresh.As<CPdfSecurityPage>();
  EXPECT_EQ(0xFFFF, page.userEnabled);
  EXPECT_EQ(0xFFFF, page.ownerEnabled);
  EXPECT_EQ(0xFFFF, page.enhancedMode);
  EXPECT_EQ(1, page.saveFormatEPdfEnabled);
}

}  // namespace
