// Answers other pages from the properties while its own members have not been read. A document without stationeries of
// its own shows those of the basic settings.
#pragma once

#include "pages/CWatermarkPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIWatermarkPage : public CNemUISettingsPage<CWatermarkPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

  bool IsStationeryEnabled() override;

 protected:
  BindingTable Bindings() const override;
  void OnPropertiesRead() override;
};
