#pragma once

#include "pages/CStatisticsPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIStatisticsPage : public CNemUISettingsPage<CStatisticsPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override { return {}; }
};
