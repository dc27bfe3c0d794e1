#include "pages/CNemUIFormatPage.h"

// The kind of file is one for both tabs.
auto CNemUIFormatPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      BindReadOnly<&CFormatPage::printOutput, &CDialogProperties::PrintOutput>(),
      Bind<&CFormatPage::version, &CDialogProperties::PdfVersion>(),
      BindReadOnly<&CFormatPage::saveFormatEPdfEnabled, &CDialogProperties::SaveFormatEPdfEnabled, kBasicSettings>(),
      BindReadOnly<&CFormatPage::saveConversionEnabled, &CDialogProperties::SaveConversionEnabled>(),
      BindReadOnly<&CFormatPage::stationeryEnabled, &CDialogProperties::StationeryEnabled>(),
      BindOverride<&CFormatPage::versionOverride, &AdminSettings::PdfVersion_Override>(),
  };
  return kBindings;
}

void CNemUIFormatPage::OnPropertiesRead() {
  const CDialogProperties& properties = Sheet()->Properties();
  saveFormat = globalTab ? StoredSaveFormat() : kSaveEPdf;
  saveConversion =
      saveFormatEPdfEnabled ? static_cast<uint16_t>(properties.SaveConversion[SettingsIndex()].GetLong()) : 0;
}

void CNemUIFormatPage::OnPropertiesWritten() {
  if (!globalTab) return;
  CDialogProperties& properties = Sheet()->Properties();
  properties.SaveFormat[kBasicSettings].SetLong(saveFormat);
  properties.SaveConversion[kBasicSettings].SetLong(saveConversion);
}

CProperty& CNemUIFormatPage::VersionProperty() const { return Sheet()->Properties().PdfVersion[SettingsIndex()]; }

int CNemUIFormatPage::GetPdfVersion() {
  if (version != kNotRead) return version;
  return Sheet() ? VersionProperty().GetLong() : 0;
}

void CNemUIFormatPage::SetPdfVersion(int value) {
  if (!Sheet()) return;
  if (IsLoaded()) TakeVersion(static_cast<uint16_t>(value));
  VersionProperty().SetLong(value);
}

uint16_t CNemUIFormatPage::StoredSaveFormat() const {
  const CDialogProperties& properties = Sheet()->Properties();
  return NormalizeSaveFormat(static_cast<uint16_t>(properties.SaveFormat[kBasicSettings].GetLong()),
                             properties.SaveFormatEPdfEnabled[kBasicSettings].GetLong() != 0, globalTab);
}

int CNemUIFormatPage::GetSaveFormat() {
  if (saveFormat != kNotRead) return NormalizeSaveFormat(saveFormat, saveFormatEPdfEnabled != 0, globalTab);
  return Sheet() ? StoredSaveFormat() : 0;
}
