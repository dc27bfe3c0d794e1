#pragma once

#include "pages/CBookmarkPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIBookmarkPage : public CNemUISettingsPage<CBookmarkPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
};
