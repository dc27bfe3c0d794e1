// Two switches are one for both tabs: of the two pages, the one on which a switch was changed has its way.
#pragma once

#include "pages/CPdfSecurityPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIPdfSecurityPage : public CNemUISettingsPage<CPdfSecurityPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

  void SwitchPasswordsOff() override;

 protected:
  BindingTable Bindings() const override;
  void OnPropertiesRead() override;
  void OnPropertiesWritten() override;
  void RefreshSharedSwitches() override;

 private:
  uint16_t StoredConfirm() const;
  uint16_t StoredPasswordsVisible() const;

  // As they were read or written last.
  uint16_t confirmExchanged_ = 0;
  uint16_t passwordsVisibleExchanged_ = 0;
};
