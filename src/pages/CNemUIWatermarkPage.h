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
