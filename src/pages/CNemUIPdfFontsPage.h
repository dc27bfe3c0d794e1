// The two lists of the page are stored as one, with a mark that says which of them it is.
#pragma once

#include "pages/CPdfFontsPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIPdfFontsPage : public CNemUISettingsPage<CPdfFontsPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  BindingTable Bindings() const override;
  void OnPropertiesRead() override;
  void OnPropertiesWritten() override;
};
