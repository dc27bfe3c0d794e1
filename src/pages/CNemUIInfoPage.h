// Brings the notice of the printer, which is no property but data of the printer's own.
#pragma once

#include "pages/CInfoPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIInfoPage : public CNemUISettingsPage<CInfoPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override { return {}; }
  BOOL OnInitDialog() override;
};
