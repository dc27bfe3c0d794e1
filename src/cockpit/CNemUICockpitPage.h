// The cockpit writes no property of its own. When the factory state was restored, the pages write theirs.
#pragma once

#include "cockpit/CCockpitPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUICockpitPage : public CNemUISettingsPage<CCockpitPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

  // The paper page is not among them: its properties change only where the user has opened it.
  void WriteAllPages();

 protected:
  BindingTable Bindings() const override { return {}; }
  void OnPropertiesWritten() override;
};
