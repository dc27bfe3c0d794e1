#include "pages/CNemUIProgramPage.h"

#include "pages/DestinationPath.h"

auto CNemUIProgramPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      BindReadOnly<&CProgramPage::printOutput, &CDialogProperties::PrintOutput>(),
      BindReadOnly<&CProgramPage::saveFormatEPdfEnabled, &CDialogProperties::SaveFormatEPdfEnabled>(),
      Bind<&CProgramPage::saveAction, &CDialogProperties::SaveAction>(),
      Bind<&CProgramPage::fileExistsAction, &CDialogProperties::FileExistsAction>(),
      Bind<&CProgramPage::suffixEnabled, &CDialogProperties::DestinationFilenameSuffixEnabled>(),
      Bind<&CProgramPage::suffix, &CDialogProperties::DestinationFilenameSuffix>(),
      Bind<&CProgramPage::registryDevmode, &CDialogProperties::RegistryDevmode>(),
      Bind<&CProgramPage::internalUse, &CDialogProperties::InternalUse>(),
      Bind<&CProgramPage::applicationDevmodeStartup, &CDialogProperties::ApplicationDevmodeStartup>(),
      BindOverride<&CProgramPage::saveActionOverride, &AdminSettings::SaveAction_Override>(),
      BindOverride<&CProgramPage::fileExistsActionOverride, &AdminSettings::FileExistsAction_Override>(),
      BindOverride<&CProgramPage::settingsOverride, &AdminSettings::Settings_Override>(),
      BindOverride<&CProgramPage::destinationOverride, &AdminSettings::DestinationDirectoryOrFilename_Override>(),
  };
  return kBindings;
}

void CNemUIProgramPage::OnPropertiesRead() {
  const DestinationPath target =
      SplitDestination(Sheet()->Properties().DestinationDirectoryOrFilename[SettingsIndex()].GetString());
  destinationDirectory = target.directory;
  destinationFile = target.file;
}

void CNemUIProgramPage::OnPropertiesWritten() {
  Sheet()->Properties().DestinationDirectoryOrFilename[SettingsIndex()].SetString(
      JoinDestination(destinationDirectory, destinationFile));
}
