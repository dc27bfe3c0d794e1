#pragma once

#include "pages/CLangPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUILangPage : public CNemUISettingsPage<CLangPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override { return {}; }
};
