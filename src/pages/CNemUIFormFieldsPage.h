#pragma once

#include "pages/CFormFieldsPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIFormFieldsPage : public CNemUISettingsPage<CFormFieldsPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
};
