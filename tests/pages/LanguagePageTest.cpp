#include "pages/CLangPage.h"

#include <gtest/gtest.h>

#include <optional>

#include "driver/ImportPatch.h"
#include "driver/Popups.h"
#include "MessageIds.h"
#include "Pictures.h"
#include "support/ControlPictures.h"
#include "support/PageUnderTest.h"
#include "support/RegistryValue.h"

namespace {

constexpr int kPage = kLanguagePage;
constexpr int kSystem = 1381, kEnglishRow = 1382, kGermanRow = 1383, kArabicRow = 1384, kFrenchRow = 1385;
constexpr int kRows[] = {kSystem, kEnglishRow, kGermanRow, kArabicRow, kFrenchRow};

using Texts = std::vector<std::wstring>;
const Texts kEnglishTexts = {L"System language", L"English", L"German", L"Arabic", L"French"};
const Texts kGermanTexts = {L"Systemsprache", L"Englisch", L"Deutsch", L"Arabisch", L"Französisch"};
const Texts kFrenchTexts = {L"Langue du système", L"Anglais", L"Allemand", L"Arabe", L"Français"};
const Texts kArabicTexts = {L"لغة النظام", L"الإنجليزية", L"الألمانية", L"العربية", L"الفرنسية"};

const std::wstring kReopen =
    L"Please reopen the NEM pdf vonder settings dialog, so that the new language can be applied everywhere";
const std::wstring kReopenGerman =
    L"Bitte öffnen Sie den Einstellungsdialog von NEM pdf vonder erneut, damit die neue Sprache überall verwendet wird";

LSTATUS WINAPI DenyWriting(HKEY, const wchar_t*, DWORD, DWORD, const BYTE*, DWORD) { return ERROR_ACCESS_DENIED; }

class LanguagePage : public testing::Test {
 protected:
  LanguagePage() { test.Sheet().properties.MsgBoxTitle.SetString(L"Title"); }

  void Open() { ASSERT_TRUE(test.Open()); }
  int CheckedRow() {
    int checked = 0;
    for (const int id : kRows)
      if (test.Control(id).IsChecked()) checked = checked ? -1 : id;
    return checked;
  }
  Texts RowTexts() {
    Texts texts;
    for (const int id : kRows) texts.push_back(test.Control(id).Text());
    return texts;
  }
  void Choose(int id) { test.Control(id).Click(); }
  void ExpectNotice(const std::wstring& text) {
    popups.ExpectBox({.title = L"Title", .text = text, .icon = MB_ICONINFORMATION});
  }

  Popups popups;
  ProductValue user{HKEY_CURRENT_USER, L"LanguageID"}, machine{HKEY_LOCAL_MACHINE, L"LanguageID"};
  PageUnderTest test{kPage};
};

struct StoredCase {
  const wchar_t *user, *machine;  // null: no value
  int row;
};

class StoredLanguage : public LanguagePage, public testing::WithParamInterface<StoredCase> {};

}  // namespace

// --- Showing -------------------------------------------------------------------------------------------------------

TEST_P(StoredLanguage, ChecksItsRow) {
  if (GetParam().user) user.Set(GetParam().user);
  if (GetParam().machine) machine.Set(GetParam().machine);
  Open();
  EXPECT_EQ(GetParam().row, CheckedRow());
}

INSTANTIATE_TEST_SUITE_P(Values, StoredLanguage,
                         testing::Values(StoredCase{nullptr, nullptr, kSystem}, StoredCase{L"1", nullptr, kSystem},
                                         StoredCase{L"1033", nullptr, kEnglishRow},
                                         StoredCase{L"1031", nullptr, kGermanRow},
                                         StoredCase{L"1025", nullptr, kArabicRow},
                                         StoredCase{L"1036", nullptr, kFrenchRow},
                                         StoredCase{L"1040", nullptr, kSystem},  // no row
                                         StoredCase{nullptr, L"1031", kGermanRow}, StoredCase{L"1", L"1031", kSystem},
                                         StoredCase{L"1036", L"1031", kFrenchRow}));

TEST_F(LanguagePage, ShowsItsRowsInTheUILanguage) {
  Open();
  EXPECT_EQ(kEnglishTexts, RowTexts());
  const LanguageScope german(0x0407);
  PageUnderTest other(kPage);
  SetUILanguage(0x0407);
  ASSERT_TRUE(other.Open());
  EXPECT_EQ(L"Französisch", other.Control(kFrenchRow).Text());
}

TEST_F(LanguagePage, ShowsFourFlags) {
  Open();
  ExpectPictures(test.Page(), {{1388, Pictures::kFlagEnglish},
                               {1390, Pictures::kFlagGerman},
                               {1386, Pictures::kFlagArabic},
                               {1389, Pictures::kFlagFrench}});
  EXPECT_EQ(311, Pictures::kFlagEnglish.bitmap);
  EXPECT_EQ(313, Pictures::kFlagGerman.bitmap);
  EXPECT_EQ(315, Pictures::kFlagArabic.bitmap);
  EXPECT_EQ(314, Pictures::kFlagFrench.bitmap);
  for (const auto& flag : {Pictures::kFlagEnglish, Pictures::kFlagGerman, Pictures::kFlagArabic, Pictures::kFlagFrench})
    EXPECT_EQ(320, flag.mask);
}

TEST_F(LanguagePage, HasItsNumberAsHelpId) {
  Open();
  EXPECT_EQ(1366u, GetWindowContextHelpId(test.Page().Handle()));
}

// --- Choosing ------------------------------------------------------------------------------------------------------

TEST_F(LanguagePage, AClickShowsTheRowsInTheirNewLanguageAndChangesNothingElse) {
  user.Set(L"1036");
  Open();
  const std::pair<int, const Texts*> previews[] = {{kGermanRow, &kGermanTexts}, {kArabicRow, &kArabicTexts},
                                                   {kFrenchRow, &kFrenchTexts}, {kEnglishRow, &kEnglishTexts},
                                                   {kGermanRow, &kGermanTexts}, {kSystem, &kEnglishTexts}};
  for (const auto& [row, texts] : previews) {
    Choose(row);
    EXPECT_EQ(row, CheckedRow());
    EXPECT_EQ(*texts, RowTexts()) << row;
    EXPECT_EQ(kEnglish, GetUILanguage());
    EXPECT_EQ(L"1036", user.Text());
  }
}

TEST_F(LanguagePage, WithoutACheckedRowThePreviewIsEnglish) {
  SetUILanguage(0x0407);
  Open();
  CheckRadioButton(test.Page().Handle(), kSystem, kFrenchRow, 0);
  test.Page().Send(WM_COMMAND, MAKEWPARAM(kGermanRow, BN_CLICKED),
                   reinterpret_cast<LPARAM>(test.Control(1383).Window()));
  EXPECT_EQ(kEnglishTexts, RowTexts());
  EXPECT_EQ(0x0407, GetUILanguage());
}

// --- Storing -------------------------------------------------------------------------------------------------------

TEST_F(LanguagePage, StoresAChoiceAndSpeaksIt) {
  Open();
  Choose(kGermanRow);
  ExpectNotice(kReopenGerman);
  EXPECT_TRUE(test.Page().OnKillActive());
  EXPECT_EQ(L"1031", user.Text());
  EXPECT_EQ(std::nullopt, machine.Text());
  EXPECT_EQ(0x0407, GetUILanguage());
  EXPECT_EQ(kGermanTexts, RowTexts());
  EXPECT_EQ(GetAncestor(test.Page().Handle(), GA_ROOT), popups.Boxes()[0].owner);
}

TEST_F(LanguagePage, StoresTheNumberOfEachLanguage) {
  const std::pair<int, const wchar_t*> rows[] = {
      {kGermanRow, L"1031"}, {kFrenchRow, L"1036"}, {kEnglishRow, L"1033"}, {kSystem, L"1"}};
  Open();
  for (const auto& [row, stored] : rows) {
    Choose(row);
    {
      const LanguageScope chosen(row == kSystem ? kEnglish : static_cast<uint16_t>(std::stoi(stored)));
      ExpectNotice(MessageText(MSG_LANGUAGE_REOPEN).Text());
    }
    EXPECT_TRUE(test.Page().UpdateData(true));
    EXPECT_EQ(stored, user.Text());
  }
}

TEST_F(LanguagePage, TellsOnceForLeavingAndApplying) {
  Open();
  Choose(kArabicRow);
  ExpectNotice(L"يرجى إعادة فتح مربع حوار إعدادات NEM pdf vonder لتطبيق اللغة الجديدة في كل مكان");
  EXPECT_TRUE(test.Page().OnKillActive());
  EXPECT_TRUE(test.Page().OnApply());
  EXPECT_EQ(L"1025", user.Text());
}

TEST_F(LanguagePage, ASystemThatIsChosenIsEnglishUntilTheNextStart) {
  SetUILanguage(0x0407);
  user.Set(L"1031");
  Open();
  Choose(kSystem);
  ExpectNotice(kReopen);
  EXPECT_TRUE(test.Page().UpdateData(true));
  EXPECT_EQ(L"1", user.Text());
  EXPECT_EQ(kEnglish, GetUILanguage());
  EXPECT_TRUE(test.Page().UpdateData(true)) << "and once is enough";
}

TEST_F(LanguagePage, TheUserLeavesTheMachinesLanguageByWayOfTheSystem) {
  machine.Set(L"1031");
  Open();
  Choose(kSystem);
  ExpectNotice(kReopen);
  EXPECT_TRUE(test.Page().UpdateData(true));
  EXPECT_EQ(L"1", user.Text());
  EXPECT_EQ(L"1031", machine.Text());
}

TEST_F(LanguagePage, WhatIsStoredIsNotStoredAgain) {
  Open();
  EXPECT_TRUE(test.Page().UpdateData(true));
  EXPECT_EQ(std::nullopt, user.Text()) << "the system, and nothing stored";
  user.Set(L"1");
  EXPECT_TRUE(test.Page().UpdateData(true));
  EXPECT_EQ(L"1", user.Text());
  user.Set(L"01031");  // still that text afterwards: nobody has written
  Choose(kFrenchRow);
  Choose(kGermanRow);
  EXPECT_TRUE(test.Page().UpdateData(true));
  EXPECT_EQ(L"01031", user.Text());
  user.Delete();
  machine.Set(L"1031");
  EXPECT_TRUE(test.Page().UpdateData(true));
  EXPECT_EQ(std::nullopt, user.Text());
  EXPECT_EQ(kEnglish, GetUILanguage());
}

// Its row is that of the system, and so the system is what the user leaves the page with.
TEST_F(LanguagePage, ALanguageWithoutARowGivesWayToTheSystem) {
  SetUILanguage(0x0407);
  user.Set(L"1040");
  Open();
  EXPECT_EQ(kGermanTexts, RowTexts());
  ExpectNotice(kReopen);
  EXPECT_TRUE(test.Page().UpdateData(true));
  EXPECT_EQ(L"1", user.Text());
  EXPECT_EQ(kEnglish, GetUILanguage());
  EXPECT_EQ(kEnglishTexts, RowTexts()) << "without a click";
}

TEST_F(LanguagePage, WithoutACheckedRowTheSystemIsStored) {
  user.Set(L"1033");
  Open();
  CheckRadioButton(test.Page().Handle(), kSystem, kFrenchRow, 0);
  ExpectNotice(kReopen);
  EXPECT_TRUE(test.Page().UpdateData(true));
  EXPECT_EQ(L"1", user.Text());
}

TEST_F(LanguagePage, AChoiceThatCannotBeStoredChangesNothing) {
  Open();
  Choose(kGermanRow);
  PatchImport("advapi32.dll", "RegSetValueExW", reinterpret_cast<void*>(&DenyWriting));
  EXPECT_TRUE(test.Page().OnKillActive());
  RestoreImport("advapi32.dll", "RegSetValueExW");
  EXPECT_EQ(std::nullopt, user.Text());
  EXPECT_EQ(kEnglish, GetUILanguage());
  EXPECT_TRUE(test.Page().UpdateData(false));
  EXPECT_EQ(kSystem, CheckedRow()) << "when the page is shown again";
  EXPECT_EQ(kEnglishTexts, RowTexts());
}

TEST_F(LanguagePage, TouchesNoProperty) {
  Open();
  const auto before = test.AllValues();
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(PageUnderTest::Values{}, test.ChangesSince(before));
}
