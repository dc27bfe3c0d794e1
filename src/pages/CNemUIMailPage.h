// The mail shares a property with the actions page: each of the two changes its own bits alone.
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
