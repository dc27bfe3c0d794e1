// Whether the finished document is sent by mail, to whom and with what text.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "environment/Override.h"
#include "resources/ResourceIds.h"

class CMailPage : public CTrackedPage<MailCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t printOutput = 0;
  uint16_t startAction = 0;  // the bit of this page (cockpit/CockpitValues.h)
  uint16_t mailSendImmediate = 0;
  CUString mailRecipient, mailSubject, mailNotetext;

  // What an administrator has fixed.
  BooleanOverride mailCheckOverride;
  BooleanOverride sendImmediateOverride;
  TextOverride recipientOverride, subjectOverride, noteOverride;

 protected:
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  void ExchangeCockpitValues(const CockpitExchange& exchange, MailCockpitValues& values) override;

 private:
  void OnMailCheck();

  void UpdateControls();
  void ApplyOverrides();
};
