#pragma once

#include "pages/CFormFieldsColorPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIFormFieldsColorPage : public CNemUISettingsPage<CFormFieldsColorPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
};
