#pragma once

#include "pages/CMailPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIMailPage : public CNemUISettingsPage<CMailPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
  void OnPropertiesRead() override;
  void OnPropertiesWritten() override;
};
