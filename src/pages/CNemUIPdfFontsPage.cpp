#include "pages/CNemUIPdfFontsPage.h"

auto CNemUIPdfFontsPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CPdfFontsPage::mode, &CDialogProperties::FontsEmbedded>(),
      BindOverride<&CPdfFontsPage::listOverride, &AdminSettings::FontsEmbeddedOrNoEmbeddedList_Override>(),
      BindOverride<&CPdfFontsPage::listKindOverride, &AdminSettings::FontsIsEmbeddedOrNoEmbeddedList_Override>(),
      BindOverride<&CPdfFontsPage::modeOverride, &AdminSettings::FontsEmbedded_Override>(),
  };
  return kBindings;
}

void CNemUIPdfFontsPage::OnPropertiesRead() {
  const CDialogProperties& properties = Sheet()->Properties();
  texts = FontListTexts::FromStored({properties.FontsIsEmbeddedOrNoEmbeddedList[SettingsIndex()].GetLong() != 0,
                                     properties.FontsEmbeddedOrNoEmbeddedList[SettingsIndex()].GetString()});
}

void CNemUIPdfFontsPage::OnPropertiesWritten() {
  const StoredFontList stored = texts.Stored();
  CDialogProperties& properties = Sheet()->Properties();
  properties.FontsIsEmbeddedOrNoEmbeddedList[SettingsIndex()].SetLong(stored.isEmbedList ? 1 : 0);
  properties.FontsEmbeddedOrNoEmbeddedList[SettingsIndex()].SetString(stored.names);
}
