// The actions share a property with the mail page: each of the two changes its own bits alone.
#pragma once

#include "pages/CActionPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIActionPage : public CNemUISettingsPage<CActionPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
  void OnPropertiesRead() override;
  void OnPropertiesWritten() override;
};
