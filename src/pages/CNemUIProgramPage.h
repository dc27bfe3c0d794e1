// Folder and name of the target, two fields of the page, are one property.
#pragma once

#include "pages/CProgramPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIProgramPage : public CNemUISettingsPage<CProgramPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
  void OnPropertiesRead() override;
  void OnPropertiesWritten() override;
};
