#pragma once

#include "pages/CPaperPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIPaperPage : public CNemUISettingsPage<CPaperPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
};
