#include "pages/CNemUIFormatPage.h"

namespace {

// The kind of file is one for all settings sets.
constexpr int kSaveFormatSet = 0;

}  // namespace

CNemUIFormatPage::CNemUIFormatPage(SheetServices* sheet, const PageDescription& description, int settingsIndex)
    : CNemUISettingsPage(sheet, description, settingsIndex) {
  isFirstSet = settingsIndex == 0;
}

auto CNemUIFormatPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      BindReadOnly<&CFormatPage::printOutput, &CDialogProperties::PrintOutput>(),
      Bind<&CFormatPage::version, &CDialogProperties::PdfVersion>(),
      BindReadOnly<&CFormatPage::saveConversionEnabled, &CDialogProperties::SaveConversionEnabled>(),
      BindReadOnly<&CFormatPage::stationeryEnabled, &CDialogProperties::StationeryEnabled>(),
      BindOverride<&CFormatPage::versionOverride, &AdminSettings::PdfVersion_Override>(),
  };
  return kBindings;
}

void CNemUIFormatPage::OnPropertiesRead() {
  const CDialogProperties& properties = Sheet()->Properties();
  saveFormatEPdfEnabled = static_cast<uint16_t>(properties.SaveFormatEPdfEnabled[kSaveFormatSet].GetLong());
  saveFormat = isFirstSet ? StoredSaveFormat() : kSaveEPdf;
  saveConversion =
      saveFormatEPdfEnabled ? static_cast<uint16_t>(properties.SaveConversion[SettingsIndex()].GetLong()) : 0;
}

void CNemUIFormatPage::OnPropertiesWritten() {
  if (!isFirstSet) return;
  CDialogProperties& properties = Sheet()->Properties();
  properties.SaveFormat[kSaveFormatSet].SetLong(saveFormat);
  properties.SaveConversion[kSaveFormatSet].SetLong(saveConversion);
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
  return NormalizeSaveFormat(static_cast<uint16_t>(properties.SaveFormat[kSaveFormatSet].GetLong()),
                             properties.SaveFormatEPdfEnabled[kSaveFormatSet].GetLong() != 0, isFirstSet);
}

int CNemUIFormatPage::GetSaveFormat() {
  if (saveFormat != kNotRead) return NormalizeSaveFormat(saveFormat, saveFormatEPdfEnabled != 0, isFirstSet);
  return Sheet() ? StoredSaveFormat() : 0;
}
