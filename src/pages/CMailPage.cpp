#include "pages/CMailPage.h"

#include "pages/HostBits.h"

MessageTable CMailPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CMailPage::OnMailCheck>(IDC_MAIL_SEND),
  };
  return kMessages;
}

void CMailPage::ExchangeCockpitValues(const CockpitExchange& exchange, MailCockpitValues& values) {
  exchange.Bits(startAction, values.startAction, kSendByMail, mailCheckOverride.IsSet());
}

void CMailPage::DoDataExchange(CDataExchange& exchange) {
  exchange.CheckBit(IDC_MAIL_SEND, startAction, kSendByMail);
  exchange.Check(IDC_MAIL_IMMEDIATELY, mailSendImmediate);
  exchange.Text(IDC_MAIL_RECIPIENT, mailRecipient);
  exchange.Text(IDC_MAIL_SUBJECT, mailSubject);
  exchange.Text(IDC_MAIL_NOTE, mailNotetext);
  if (exchange.IsLoading()) UpdateControls();
}

void CMailPage::OnMailCheck() {
  const bool on = IsChecked(IDC_MAIL_SEND);
  EnableControls({IDC_MAIL_IMMEDIATELY, IDC_MAIL_RECIPIENT, IDC_MAIL_SUBJECT, IDC_MAIL_NOTE}, on);
  ApplyOverrides();
}

void CMailPage::UpdateControls() {
  if (globalTab) EnableAll(true);
  OnMailCheck();
  Lock(printOutput & kHostHandlesOutput,
       {IDC_MAIL_SEND, IDC_MAIL_IMMEDIATELY, IDC_MAIL_RECIPIENT_LABEL, IDC_MAIL_SUBJECT_LABEL, IDC_MAIL_NOTE_LABEL,
        IDC_MAIL_RECIPIENT, IDC_MAIL_SUBJECT, IDC_MAIL_NOTE});
  if (!globalTab) EnableAll(false);
  ApplyOverrides();
}

void CMailPage::ApplyOverrides() {
  Lock(mailCheckOverride.IsSet(), {IDC_MAIL_SEND});
  Lock(sendImmediateOverride.IsSet(), {IDC_MAIL_IMMEDIATELY});
  Lock(recipientOverride.IsSet(), {IDC_MAIL_RECIPIENT, IDC_MAIL_RECIPIENT_LABEL});
  Lock(subjectOverride.IsSet(), {IDC_MAIL_SUBJECT, IDC_MAIL_SUBJECT_LABEL});
  Lock(noteOverride.IsSet(), {IDC_MAIL_NOTE, IDC_MAIL_NOTE_LABEL});
}
