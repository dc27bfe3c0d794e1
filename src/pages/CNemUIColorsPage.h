#pragma once

#include "pages/CColorsPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIColorsPage : public CNemUISettingsPage<CColorsPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
};
