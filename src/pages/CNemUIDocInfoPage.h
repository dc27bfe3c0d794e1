#pragma once

#include "pages/CDocInfoPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIDocInfoPage : public CNemUISettingsPage<CDocInfoPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
};
