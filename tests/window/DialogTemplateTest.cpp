// Templates in the user's language.
#include "window/DialogTemplate.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "resources/ResourceIds.h"
#include "support/FakeSheet.h"
#include "support/ModuleResources.h"
#include "TestDialogs.h"

namespace {

using module_resources::Dialog;
using module_resources::TemplateReader;

enum : WORD { kAll = 9001, kEnglishAndGerman, kEnglishOnly, kNeutral, kFrenchOnly };

DialogTemplate Titled(const wchar_t* title) { return DialogTemplate(WS_POPUP, {50, 50}, title); }

class Templates : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    dialogs_ = std::make_unique<TestDialogs>(std::initializer_list<TestDialogs::Row>{
        {kAll, 9, Titled(L"en")},
        {kAll, 7, Titled(L"de")},
        {kAll, 12, Titled(L"fr")},
        {kAll, 1, Titled(L"ar")},
        {kAll, 0x0807, Titled(L"de-CH")},
        {kEnglishAndGerman, 9, Titled(L"en")},
        {kEnglishAndGerman, 7, Titled(L"de")},
        {kEnglishOnly, 9, Titled(L"en")},
        {kNeutral, 0, Titled(L"neutral")},
        {kFrenchOnly, 12, Titled(L"fr")},
    });
  }
  static void TearDownTestSuite() { dialogs_.reset(); }

  static std::optional<Dialog> Load(uint16_t language, UINT id) {
    const LanguageScope scope(language);
    const std::vector<BYTE> bytes = LoadDialogTemplate(id);
    if (bytes.empty()) return std::nullopt;
    return TemplateReader(bytes).Read();
  }
  static std::wstring TitleOf(uint16_t language, UINT id) {
    const std::optional<Dialog> dialog = Load(language, id);
    return dialog ? dialog->text : L"none";
  }

  static std::unique_ptr<TestDialogs> dialogs_;
};

std::unique_ptr<TestDialogs> Templates::dialogs_;

TEST_F(Templates, AreFoundAlongTheChainOfLanguages) {
  struct Row {
    uint16_t language;
    UINT id;
    const wchar_t* title;
  };
  const Row rows[] = {
      {0x0409, kAll, L"en"},
      {0x0807, kAll, L"de-CH"},
      {0x0407, kAll, L"de"},
      {0x0C07, kAll, L"de"},
      {0x040C, kAll, L"fr"},
      {0x0401, kAll, L"ar"},
      {0x0C01, kAll, L"ar"},
      {0x0411, kAll, L"en"},
      {0x0407, kEnglishAndGerman, L"de"},
      {0x040C, kEnglishAndGerman, L"en"},
      {0x0401, kEnglishOnly, L"en"},
      {0x0407, kNeutral, L"neutral"},
      {0x0401, kNeutral, L"neutral"},
      {0x040C, kFrenchOnly, L"fr"},
      {0x0407, kFrenchOnly, L"none"},
      {0x0409, 9999, L"none"},
  };
  for (const Row& row : rows) EXPECT_EQ(row.title, TitleOf(row.language, row.id)) << row.language << ' ' << row.id;
}

TEST_F(Templates, AreMirroredInEveryArabicAndNoOtherLanguage) {
  for (const uint16_t language : {0x0401, 0x0801, 0x0C01, 0x3C01})
    for (const UINT id : {UINT{kAll}, UINT{kEnglishOnly}, UINT{kNeutral}})
      EXPECT_TRUE(Load(language, id)->exStyle & WS_EX_LAYOUTRTL) << language << ' ' << id;
  for (const uint16_t language : {0x0409, 0x0407, 0x040C, 0x040D})
    EXPECT_FALSE(Load(language, kAll)->exStyle & WS_EX_LAYOUTRTL) << language;
}

TEST_F(Templates, AreCopiedAndTheResourceStaysAsItIs) {
  { EXPECT_TRUE(Load(0x0401, kNeutral)->exStyle & WS_EX_LAYOUTRTL); }
  EXPECT_FALSE(Load(0x0409, kNeutral)->exStyle & WS_EX_LAYOUTRTL);
}

TEST_F(Templates, NothingOfTheThreadsLanguageIsAsked) {
  const LCID locale = GetThreadLocale();
  const LANGID language = GetThreadUILanguage();
  SetThreadLocale(0x040C);
  SetThreadUILanguage(0x040C);  // Wine takes the locale only
  const LANGID during = GetThreadUILanguage();
  EXPECT_EQ(L"de", TitleOf(0x0407, kAll));
  EXPECT_EQ(L"none", TitleOf(0x0407, kFrenchOnly));
  EXPECT_EQ(LCID{0x040C}, GetThreadLocale()) << "it is left as it stands";
  EXPECT_EQ(during, GetThreadUILanguage());
  SetThreadLocale(locale);
  SetThreadUILanguage(language);
}

TEST(TemplateMirroring, SetsTheStyleOfBothForms) {
  std::vector<BYTE> extended(sizeof(DWORD) * 10);
  auto* words = reinterpret_cast<DWORD*>(extended.data());
  words[0] = 0xFFFF0001;
  MirrorDialogTemplate(reinterpret_cast<DLGTEMPLATE*>(words));
  EXPECT_EQ((std::vector<DWORD>{0xFFFF0001, 0, WS_EX_LAYOUTRTL, 0}), (std::vector<DWORD>(words, words + 4)));
  DLGTEMPLATE plain{};
  plain.style = WS_POPUP;
  plain.dwExtendedStyle = WS_EX_CONTROLPARENT;
  MirrorDialogTemplate(&plain);
  EXPECT_EQ(DWORD{WS_POPUP}, plain.style);
  EXPECT_EQ(DWORD{WS_EX_CONTROLPARENT | WS_EX_LAYOUTRTL}, plain.dwExtendedStyle);
}

TEST(TemplateMirroring, FollowsThePrimaryLanguage) {
  for (const auto& [language, mirrored] :
       {std::pair{0x0401, true}, {0x0801, true}, {0x5001, true}, {0x0409, false}, {0x0407, false}, {0x0001, true}}) {
    const LanguageScope scope(static_cast<uint16_t>(language));
    EXPECT_EQ(mirrored, IsRightToLeftLanguage()) << language;
  }
}

}  // namespace
