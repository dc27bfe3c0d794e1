// The placeholder has nothing to exchange: its exchange tells only whether there is a sheet.
#pragma once

#include "pages/CNoDocSettingsPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUINoDocSettingsPage : public CNemUISettingsPage<CNoDocSettingsPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override { return {}; }
};
