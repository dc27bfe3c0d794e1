#include "pages/CNemUIWatermarkPage.h"

// The colour space goes along as it was read: a page that stands behind the one for colours in the exchange of the host
// puts its older value back, on purpose. A restored value comes from that page (SetColorspace).
auto CNemUIWatermarkPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CWatermarkPage::watermarkEnabled, &CDialogProperties::WatermarkEnabled>(),
      Bind<&CWatermarkPage::watermarkAsBackground, &CDialogProperties::WatermarkAsBackground>(),
      Bind<&CWatermarkPage::watermarkFilename, &CDialogProperties::WatermarkFilename>(),
      Bind<&CWatermarkPage::stationeryEnabled, &CDialogProperties::StationeryEnabled>(),
      Bind<&CWatermarkPage::stationeryAsForeground, &CDialogProperties::StationeryAsForeground>(),
      Bind<&CWatermarkPage::stationerySelected, &CDialogProperties::StationerySelected>(),
      Bind<&CWatermarkPage::stationeryInfos, &CDialogProperties::StationeryInfos>(),
      Bind<&CWatermarkPage::colorspace, &CDialogProperties::Colorspace>(),
      BindOverride<&CWatermarkPage::watermarkEnabledOverride, &AdminSettings::WatermarkEnabled_Override>(),
      BindOverride<&CWatermarkPage::watermarkAsBackgroundOverride, &AdminSettings::WatermarkAsBackground_Override>(),
      BindOverride<&CWatermarkPage::watermarkFilenameOverride, &AdminSettings::WatermarkFilename_Override>(),
      BindOverride<&CWatermarkPage::stationeryEnabledOverride, &AdminSettings::StationeryEnabled_Override>(),
      BindOverride<&CWatermarkPage::stationeryAsForegroundOverride, &AdminSettings::StationeryAsForeground_Override>(),
      BindOverride<&CWatermarkPage::stationerySelectedOverride, &AdminSettings::StationerySelected_Override>(),
      BindOverride<&CWatermarkPage::stationeryInfosOverride, &AdminSettings::StationeryInfos_Override>(),
  };
  return kBindings;
}

// A document without a list of its own shows that of the basic settings.
void CNemUIWatermarkPage::OnPropertiesRead() {
  if (stationeryInfos.IsEmpty()) stationeryInfos = Sheet()->Properties().StationeryInfos[kBasicSettings].GetString();
}

bool CNemUIWatermarkPage::IsStationeryEnabled() {
  if (IsLoaded()) return stationeryEnabled != 0;
  return Sheet() && Sheet()->Properties().StationeryEnabled[SettingsIndex()].GetLong() != 0;
}
