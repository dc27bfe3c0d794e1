#include "pages/CLangPage.h"

#include <algorithm>

#include "DriverLIB/CRegistryEntry.h"
#include "DriverLIB/Identity.h"
#include "DriverLIB/LanguageSetting.h"
#include "MessageIds.h"

namespace {

// How the registry says that the language of the system is to be taken; a reader of the setting answers kNoSetting.
constexpr uint16_t kSystemLanguage = 1;
constexpr uint16_t kNoSetting = 0;

struct LanguageRow {
  int controlId;
  uint32_t messageId;
  uint16_t stored;  // but for the first row, the language itself
};

// In the order of the numbers of the radios. The first row is that of the system, and of every language without a row.
constexpr LanguageRow kLanguages[] = {
    {IDC_LANGUAGE_SYSTEM, MSG_LANGUAGE_SYSTEM, kSystemLanguage},
    {IDC_LANGUAGE_ENGLISH, MSG_LANGUAGE_ENGLISH, MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US)},
    {IDC_LANGUAGE_GERMAN, MSG_LANGUAGE_GERMAN, MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN)},
    {IDC_LANGUAGE_ARABIC, MSG_LANGUAGE_ARABIC, MAKELANGID(LANG_ARABIC, SUBLANG_ARABIC_SAUDI_ARABIA)},
    {IDC_LANGUAGE_FRENCH, MSG_LANGUAGE_FRENCH, MAKELANGID(LANG_FRENCH, SUBLANG_FRENCH)},
};

constexpr PictureRow kFlags[] = {
    {IDC_LANGUAGE_FLAG_ENGLISH, Pictures::kFlagEnglish},
    {IDC_LANGUAGE_FLAG_GERMAN, Pictures::kFlagGerman},
    {IDC_LANGUAGE_FLAG_ARABIC, Pictures::kFlagArabic},
    {IDC_LANGUAGE_FLAG_FRENCH, Pictures::kFlagFrench},
};

// What a running dialog shows for a choice. The system's language takes a new start: until then it is English.
constexpr uint16_t ShownLanguage(uint16_t choice) {
  return choice == kSystemLanguage || choice == kNoSetting ? kEnglish : choice;
}

// The choice of the radio that is on; without one that of the fallback.
uint16_t CheckedLanguage(const CWnd& page, uint16_t fallback) {
  const auto* row = std::ranges::find_if(
      kLanguages, [&](const LanguageRow& language) { return CButton(page.Item(language.controlId)).IsChecked(); });
  return row == std::end(kLanguages) ? fallback : row->stored;
}

}  // namespace

MessageTable CLangPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClickRange<&CLangPage::OnLanguageClicked>(IDC_LANGUAGE_SYSTEM, IDC_LANGUAGE_FRENCH),
  };
  return kMessages;
}

BOOL CLangPage::OnInitDialog() {
  if (!CNemUIPage::OnInitDialog()) return FALSE;
  AttachPictures(*this, flags_, kFlags);
  return TRUE;
}

// Saving is writing to the registry: it happens when the page is left, and Cancel does not undo it.
void CLangPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsLoading())
    LoadLanguage();
  else
    SaveLanguage();
}

void CLangPage::LoadLanguage() {
  RefreshLanguageTexts(GetUILanguage());
  storedLanguage_ = ReadLanguageSetting();
  const auto* row = std::ranges::find(kLanguages, storedLanguage_, &LanguageRow::stored);
  if (row == std::end(kLanguages)) row = kLanguages;
  ::CheckRadioButton(Handle(), IDC_LANGUAGE_SYSTEM, IDC_LANGUAGE_FRENCH, row->controlId);
}

void CLangPage::SaveLanguage() {
  storedLanguage_ = ReadLanguageSetting();
  uint16_t chosen = CheckedLanguage(*this, kSystemLanguage);
  if (storedLanguage_ == kNoSetting && chosen == kSystemLanguage) chosen = kNoSetting;
  if (chosen == storedLanguage_) return;
  CRegistryEntry setting(kProductKey, L"LanguageID");
  if (!setting.SetRoot(HKEY_CURRENT_USER).WriteLong(chosen)) return;
  SetUILanguage(ShownLanguage(chosen));
  Tell(MSG_LANGUAGE_REOPEN, MB_ICONINFORMATION);
  RefreshLanguageTexts(GetUILanguage());
}

// The rows show at once in the language that is chosen. Nothing is stored, and no other page notices.
void CLangPage::OnLanguageClicked() { RefreshLanguageTexts(ShownLanguage(CheckedLanguage(*this, kEnglish))); }

void CLangPage::RefreshLanguageTexts(uint16_t language) {
  for (const LanguageRow& row : kLanguages) Item(row.controlId).SetText(MessageTextIn(language, row.messageId).Text());
}
