#pragma once

#include "pages/CNoDocSettingsPage.h"
#include "sheet/CNemUISettingsPage.h"

// The placeholder has nothing to exchange: its exchange tells only whether there is a sheet.
class CNemUINoDocSettingsPage : public CNemUISettingsPage<CNoDocSettingsPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override { return {}; }
};
