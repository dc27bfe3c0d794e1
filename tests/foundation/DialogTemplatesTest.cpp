// The dialog templates as they lie in the library, in every language.
#include <gtest/gtest.h>

#include <algorithm>

#include <tuple>

#include "resources/ResourceIds.h"
#include "support/ModuleResources.h"

namespace {

using namespace module_resources;

// All pages; the size of each in dialog units.
struct PageSize {
  WORD id;
  short width, height;
};
constexpr PageSize kPages[] = {
    {IDD_PAPER_PAGE, 275, 245},
    {IDD_WATERMARK_PAGE, 275, 245},
    {IDD_ACTION_PAGE, 275, 245},
    {IDD_SAVING_PAGE, 275, 245},
    {IDD_MAIL_PAGE, 275, 245},
    {IDD_DOCUMENT_INFO_PAGE, 275, 245},
    {IDD_INFO_PAGE, 275, 225},
    {IDD_LANGUAGE_PAGE, 275, 245},
    {IDD_GRAPHIC_PAGE, 275, 245},
    {IDD_APPEARANCE_PAGE, 275, 245},
    {IDD_FONTS_PAGE, 275, 245},
    {IDD_COLORSPACE_PAGE, 275, 245},
    {IDD_ZUGFERD_PAGE, 275, 245},
    {IDD_LINKS_PAGE, 275, 245},
    {IDD_ATTACHMENTS_PAGE, 275, 245},
    {IDD_FORM_FIELDS_PAGE, 275, 245},
    {IDD_FORM_FIELDS_COLOR_PAGE, 275, 245},
    {IDD_SECURITY_PAGE, 275, 245},
    {IDD_FORMAT_PAGE, 275, 245},
    {IDD_BOOKMARK_PAGE, 275, 245},
    {IDD_COCKPIT_PAGE, 275, 257},
    {IDD_UPDATE_PAGE, 275, 245},
    {IDD_STATISTICS_PAGE, 275, 245},
    {IDD_NO_DOC_SETTINGS_PAGE, 275, 245},
    {IDD_HOST_PAGE, 386, 274},
};

// Templates without texts of their own: the code sets them.
const std::set<WORD> kNeutralDialogs = {IDD_HOST_PAGE, IDD_LANGUAGE_PAGE, IDD_UPDATE_PAGE, IDD_VERSION_DIALOG};

std::set<WORD> TranslatedDialogs() {
  std::set<WORD> dialogs = Names(RT_DIALOG);
  for (const WORD id : kNeutralDialogs) dialogs.erase(id);
  return dialogs;
}

// All of a control that no translation may change.
auto Shape(const Control& control) {
  return std::tuple(control.id, control.className, control.helpId, control.exStyle, control.style, control.x, control.y,
                    control.width, control.height);
}

// The letters that are the access key of more than one control of the dialog.
std::set<wchar_t> DoubleAccessKeys(const Dialog& dialog) {
  std::set<wchar_t> seen, doubles;
  for (const Control& control : dialog.controls) {
    const wchar_t key = AccessKey(control.text);
    if (key && !seen.insert(key).second) doubles.insert(key);
  }
  return doubles;
}

bool IsLabel(const Control& control) { return control.className == L"Static" && AccessKey(control.text); }

}  // namespace

TEST(DialogTemplates, ExistInExactlyFourLanguages) {
  ASSERT_TRUE(TranslatedDialogs().contains(IDD_GRAPHIC_PAGE));
  for (const WORD id : TranslatedDialogs()) EXPECT_EQ(Languages(RT_DIALOG, id), kLanguages) << id;
}

TEST(DialogTemplates, WithoutTextsBelongToNoLanguage) {
  for (const WORD id : kNeutralDialogs) EXPECT_EQ(Languages(RT_DIALOG, id), std::set<WORD>{LANG_NEUTRAL}) << id;
}

TEST(DialogTemplates, TheVersionDialogHasItsSize) {
  const Dialog dialog = ReadDialog(185, LANG_NEUTRAL);
  EXPECT_EQ(std::tuple(205, 143), std::tuple(dialog.width, dialog.height));
}

TEST(DialogTemplates, HaveTheSameControlsInEachLanguage) {
  for (const WORD id : TranslatedDialogs()) {
    const Dialog english = ReadDialog(id, kEnglish);
    ASSERT_FALSE(english.controls.empty()) << id;
    for (const WORD language : kTranslations) {
      const Dialog dialog = ReadDialog(id, language);
      EXPECT_EQ(dialog.style, english.style) << id << " " << language;
      EXPECT_EQ(dialog.helpId, english.helpId) << id << " " << language;
      EXPECT_EQ(std::tuple(dialog.width, dialog.height), std::tuple(english.width, english.height))
          << id << " " << language;
      ASSERT_EQ(dialog.controls.size(), english.controls.size()) << id << " " << language;
      for (size_t i = 0; i < english.controls.size(); ++i) {
        EXPECT_EQ(Shape(dialog.controls[i]), Shape(english.controls[i])) << id << " " << language << " control " << i;
      }
    }
  }
}

TEST(DialogTemplates, AreMirroredInArabicAlone) {
  for (const WORD id : TranslatedDialogs()) {
    const DWORD english = ReadDialog(id, kEnglish).exStyle;
    EXPECT_FALSE(english & WS_EX_LAYOUTRTL) << id;
    EXPECT_EQ(ReadDialog(id, kGerman).exStyle, english) << id;
    EXPECT_EQ(ReadDialog(id, kFrench).exStyle, english) << id;
    EXPECT_EQ(ReadDialog(id, kArabic).exStyle, english | WS_EX_LAYOUTRTL) << id;
  }
}

TEST(DialogTemplates, UseTheDialogFont) {
  for (const WORD id : Names(RT_DIALOG)) {
    for (const WORD language : Languages(RT_DIALOG, id)) {
      const Dialog dialog = ReadDialog(id, language);
      EXPECT_TRUE(dialog.style & DS_SETFONT) << id << " " << language;
      EXPECT_EQ(dialog.face, L"MS Shell Dlg") << id << " " << language;
      EXPECT_EQ(std::tuple(dialog.pointSize, dialog.weight, dialog.italic, dialog.charset), std::tuple(8, 400, 0, 1))
          << id << " " << language;
    }
  }
}

TEST(DialogTemplates, PagesAreControlsOfTheirSize) {
  for (const PageSize& page : kPages) {
    for (const WORD language : Languages(RT_DIALOG, page.id)) {
      const Dialog dialog = ReadDialog(page.id, language);
      EXPECT_EQ(dialog.style, DWORD{DS_SETFONT | DS_CONTROL | WS_CHILD}) << page.id;
      EXPECT_EQ(dialog.exStyle & ~DWORD{WS_EX_LAYOUTRTL}, DWORD{WS_EX_CONTROLPARENT}) << page.id;
      EXPECT_EQ(std::tuple(dialog.width, dialog.height), std::tuple(page.width, page.height)) << page.id;
      for (const Control& control : dialog.controls) {
        const int height = control.className == L"ComboBox" ? 14 : control.height;  // the rest is its open list
        const bool isInside = control.x >= 0 && control.y >= 0 && control.x + control.width <= page.width &&
                              control.y + height <= page.height;
        EXPECT_TRUE(isInside || page.id == IDD_HOST_PAGE) << page.id << " control " << control.id;
      }
    }
  }
}

TEST(DialogTemplates, TheHostPageHasItsHiddenTabControl) {
  const Dialog host = ReadDialog(187, LANG_NEUTRAL);
  ASSERT_EQ(host.controls.size(), 1u);
  const Control& tab = host.controls[0];
  EXPECT_EQ(tab.id, 1243u);
  EXPECT_EQ(tab.className, L"SysTabControl32");
  EXPECT_EQ(std::tuple(tab.x, tab.y, tab.width, tab.height), std::tuple(106, 7, 300, 259));
  EXPECT_FALSE(tab.style & (WS_VISIBLE | WS_TABSTOP));
}

TEST(DialogTemplates, EveryControlHasANumberOfItsOwn) {
  for (const WORD id : Names(RT_DIALOG)) {
    std::set<DWORD> seen;
    for (const Control& control : ReadDialog(id, kNeutralDialogs.contains(id) ? LANG_NEUTRAL : kEnglish).controls) {
      EXPECT_NE(LOWORD(control.id), 0xFFFF) << id;
      EXPECT_NE(control.id, 0u) << id;
      EXPECT_TRUE(seen.insert(control.id).second) << id << " control " << control.id;
    }
  }
}

TEST(DialogTemplates, AccessKeysAreUniqueInTranslations) {
  for (const WORD id : TranslatedDialogs()) {
    for (const WORD language : kTranslations) {
      EXPECT_EQ(DoubleAccessKeys(ReadDialog(id, language)), std::set<wchar_t>{}) << id << " " << language;
    }
  }
}

// English captions are as they have always been; these pages have doubles among them.
TEST(DialogTemplates, EnglishAccessKeysAreUniqueButForTheKnownDoubles) {
  const std::map<WORD, std::set<wchar_t>> known = {
      {IDD_APPEARANCE_PAGE, {L'P', L'S'}},
      {IDD_FORM_FIELDS_PAGE, {L'C'}},
      {IDD_FONTS_PAGE, {L'D'}},
      {IDD_WATERMARK_PAGE, {L'D', L'U'}},
  };
  for (const WORD id : TranslatedDialogs()) {
    const auto doubles = known.find(id);
    EXPECT_EQ(DoubleAccessKeys(ReadDialog(id, kEnglish)),
              doubles == known.end() ? std::set<wchar_t>{} : doubles->second)
        << id;
  }
}

TEST(DialogTemplates, WhatHasAnAccessKeyInEnglishHasOneInEachLanguage) {
  for (const WORD id : TranslatedDialogs()) {
    const Dialog english = ReadDialog(id, kEnglish);
    for (const WORD language : kTranslations) {
      const Dialog dialog = ReadDialog(id, language);
      for (size_t i = 0; i < std::min(dialog.controls.size(), english.controls.size()); ++i) {
        EXPECT_EQ(AccessKey(dialog.controls[i].text) != 0, AccessKey(english.controls[i].text) != 0)
            << id << " " << language << " control " << english.controls[i].id;
      }
    }
  }
}

TEST(DialogTemplates, ALabelWithAnAccessKeyStandsBeforeItsField) {
  for (const WORD id : TranslatedDialogs()) {
    const Dialog dialog = ReadDialog(id, kEnglish);
    for (size_t i = 0; i < dialog.controls.size(); ++i) {
      if (!IsLabel(dialog.controls[i])) continue;
      ASSERT_LT(i + 1, dialog.controls.size()) << id;
      EXPECT_TRUE(dialog.controls[i + 1].style & WS_TABSTOP) << id << " control " << dialog.controls[i].id;
    }
  }
}

// Words that are the same in that language. Any other text that equals the English one has been forgotten.
TEST(DialogTemplates, TranslationsDifferFromTheEnglishText) {
  const std::pair<std::wstring, std::set<WORD>> same[] = {
      {L"e.pdf:", {kGerman, kArabic}}, {L"Layout", {kGerman}},           {L"&CMYK", {kGerman, kArabic}},
      {L"mm", {kGerman, kFrench}},     {L"%", {kGerman, kFrench}},       {L"&Portrait", {kFrench}},
      {L"OK", {kGerman, kFrench}},     {L"Support", {kGerman, kFrench}}, {L"&OK", {kGerman, kFrench}},
      {L"Name:", {kGerman}},
  };
  const auto isSame = [&same](const std::wstring& text, WORD language) {
    return std::ranges::any_of(same,
                               [&](const auto& row) { return row.first == text && row.second.contains(language); });
  };
  const std::set<std::wstring> arrows = {L">>", L">", L"<", L"<<"};
  for (const WORD id : TranslatedDialogs()) {
    const Dialog english = ReadDialog(id, kEnglish);
    for (const WORD language : kTranslations) {
      const Dialog dialog = ReadDialog(id, language);
      for (size_t i = 0; i < std::min(dialog.controls.size(), english.controls.size()); ++i) {
        const std::wstring& text = english.controls[i].text;
        if (text.empty() || dialog.controls[i].text != text || arrows.contains(text)) continue;
        EXPECT_TRUE(isSame(text, language)) << id << " " << language << " control " << english.controls[i].id;
      }
    }
  }
}
