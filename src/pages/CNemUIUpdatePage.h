#pragma once

#include "pages/CUpdatePage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIUpdatePage : public CNemUISettingsPage<CUpdatePage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
};
