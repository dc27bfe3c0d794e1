#pragma once

#include "pages/CPdfAppearancePage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIPdfAppearancePage : public CNemUISettingsPage<CPdfAppearancePage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
};
