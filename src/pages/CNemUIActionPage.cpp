#include "pages/CNemUIActionPage.h"

#include "pages/StartActions.h"

auto CNemUIActionPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      BindReadOnly<&CActionPage::printOutput, &CDialogProperties::PrintOutput>(),
      Bind<&CActionPage::startProgram, &CDialogProperties::StartProgram>(),
      Bind<&CActionPage::startProgramParameters, &CDialogProperties::StartProgramParameters>(),
      BindOverride<&CActionPage::viewerCheckOverride, &AdminSettings::StartActionViewerCheck_Override>(),
      BindOverride<&CActionPage::programCheckOverride, &AdminSettings::StartActionProgramCheck_Override>(),
      BindOverride<&CActionPage::programOverride, &AdminSettings::StartActionProgram_Override>(),
      BindOverride<&CActionPage::parametersOverride, &AdminSettings::StartActionProgramParameters_Override>(),
  };
  return kBindings;
}

void CNemUIActionPage::OnPropertiesRead() {
  startAction = ReadStartActions(Sheet()->Properties(), SettingsIndex(), kActionPageBits);
}

void CNemUIActionPage::OnPropertiesWritten() {
  WriteStartActions(Sheet()->Properties(), SettingsIndex(), kActionPageBits, startAction);
}
