// The colour space of the PDF.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "environment/Override.h"
#include "resources/ResourceIds.h"

class CColorsPage : public CTrackedPage<ColorsCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t colorspace = 0;

  // What an administrator has fixed.
  NumberOverride colorspaceOverride;

 protected:
  void DoDataExchange(CDataExchange& exchange) override;
  int HelpLinkId() const override { return IDC_COLORS_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, ColorsCockpitValues& values) override;

 private:
  void TellWatermarkPage();
  void ApplyOverrides();
};
