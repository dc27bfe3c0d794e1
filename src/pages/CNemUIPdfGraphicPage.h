#pragma once

#include "pages/CPdfGraphicPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIPdfGraphicPage : public CNemUISettingsPage<CPdfGraphicPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
};
