#include "pages/CNemUIZugferdPage.h"

auto CNemUIZugferdPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CZugferdPage::zugferd, &CDialogProperties::ZUGFeRD>(),
      Bind<&CZugferdPage::xmlFile, &CDialogProperties::ZUGFeRDXml>(),
      Bind<&CZugferdPage::deleteAfterEmbedding, &CDialogProperties::ZUGFeRDDeleteAfterEmbedding>(),
      Bind<&CZugferdPage::creationMethod, &CDialogProperties::ZUGFeRDCreationMethod>(),
      Bind<&CZugferdPage::showAfterCreation, &CDialogProperties::ZUGFeRDShowAfterCreation>(),
      BindOverride<&CZugferdPage::zugferdOverride, &AdminSettings::ZUGFeRD_Override>(),
      BindOverride<&CZugferdPage::creationMethodOverride, &AdminSettings::ZUGFeRDCreationMethod_Override>(),
      BindOverride<&CZugferdPage::deleteOverride, &AdminSettings::ZUGFeRDDeleteAfterEmbedding_Override>(),
      BindOverride<&CZugferdPage::xmlOverride, &AdminSettings::ZUGFeRDXml_Override>(),
  };
  return kBindings;
}

// The administrator's file is shown and stored in place of the host's.
void CNemUIZugferdPage::OnPropertiesRead() {
  if (xmlOverride.IsSet()) xmlFile = xmlOverride.value;
}

void CNemUIZugferdPage::SetZugferd(int value) { TakeValue<&CZugferdPage::zugferd, &CDialogProperties::ZUGFeRD>(value); }

void CNemUIZugferdPage::SetDeleteAfterEmbedding(int value) {
  TakeValue<&CZugferdPage::deleteAfterEmbedding, &CDialogProperties::ZUGFeRDDeleteAfterEmbedding>(value);
}

void CNemUIZugferdPage::SetXmlFile(const wchar_t* path) {
  if (!Sheet()) return;
  const CUString file(path);
  if (IsLoaded() && !file.IsEmpty()) {
    xmlFile = file;
    if (IsWindow()) UpdateData(false);
  }
  Sheet()->Properties().ZUGFeRDXml[SettingsIndex()].SetString(file);
}

void CNemUIZugferdPage::SetShowAfterCreation(int value) {
  TakeValue<&CZugferdPage::showAfterCreation, &CDialogProperties::ZUGFeRDShowAfterCreation>(value);
}

void CNemUIZugferdPage::SetCreationMethod(int value) {
  TakeValue<&CZugferdPage::creationMethod, &CDialogProperties::ZUGFeRDCreationMethod>(value);
}

bool CNemUIZugferdPage::IsZugferdEnabled() {
  if (IsLoaded()) return zugferd != 0;
  return Sheet() && Sheet()->Properties().ZUGFeRD[SettingsIndex()].GetLong() != 0;
}
