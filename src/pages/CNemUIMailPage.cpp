#include "pages/CNemUIMailPage.h"

#include "pages/StartActions.h"

auto CNemUIMailPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      BindReadOnly<&CMailPage::printOutput, &CDialogProperties::PrintOutput>(),
      Bind<&CMailPage::mailSendImmediate, &CDialogProperties::MailSendImmediate>(),
      Bind<&CMailPage::mailRecipient, &CDialogProperties::MailRecipient>(),
      Bind<&CMailPage::mailSubject, &CDialogProperties::MailSubject>(),
      Bind<&CMailPage::mailNotetext, &CDialogProperties::MailNotetext>(),
      BindOverride<&CMailPage::mailCheckOverride, &AdminSettings::StartActionMailCheck_Override>(),
      BindOverride<&CMailPage::sendImmediateOverride, &AdminSettings::MailSendImmediate_Override>(),
      BindOverride<&CMailPage::recipientOverride, &AdminSettings::MailRecipient_Override>(),
      BindOverride<&CMailPage::subjectOverride, &AdminSettings::MailSubject_Override>(),
      BindOverride<&CMailPage::noteOverride, &AdminSettings::MailNoteText_Override>(),
  };
  return kBindings;
}

void CNemUIMailPage::OnPropertiesRead() {
  startAction = ReadStartActions(Sheet()->Properties(), SettingsIndex(), kMailPageBits);
}

void CNemUIMailPage::OnPropertiesWritten() {
  WriteStartActions(Sheet()->Properties(), SettingsIndex(), kMailPageBits, startAction);
}
