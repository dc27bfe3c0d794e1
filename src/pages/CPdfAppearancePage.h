// How the PDF opens in a reader: layout, size, page, window, and six switches of the reader.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "resources/ResourceIds.h"

class CPdfAppearancePage : public CTrackedPage<AppearanceCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t openLayout = 0, openSize = 0, openPageIndex = 0;
  uint16_t openMode = 0, nonFullScreenPageMode = 0, direction = 0;
  uint16_t hideToolbar = 0, hideMenubar = 0, centerWindow = 0, fitWindow = 0, displayDocTitle = 0, hideWindowUI = 0;

 protected:
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_APPEARANCE_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, AppearanceCockpitValues& values) override;

 private:
  void UpdateControls();
};
