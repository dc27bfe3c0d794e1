// What is started when the document is there: the default viewer, and a program of the user's choice.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "environment/Override.h"
#include "resources/ResourceIds.h"

class CActionPage : public CTrackedPage<ActionCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t printOutput = 0;
  uint16_t startAction = 0;  // the bits of this page (cockpit/CockpitValues.h)
  CUString startProgram, startProgramParameters;

  // What an administrator has fixed.
  BooleanOverride viewerCheckOverride;
  BooleanOverride programCheckOverride;
  TextOverride programOverride, parametersOverride;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_ACTION_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, ActionCockpitValues& values) override;

 private:
  bool ValidateProgram(CDataExchange& exchange);

  void OnProgramCheck();
  void OnBrowseProgram();

  void UpdateControls();
  void ApplyViewerOverride();
};
