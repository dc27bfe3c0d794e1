#include "pages/CNemUIUpdatePage.h"

auto CNemUIUpdatePage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      BindOverride<&CUpdatePage::updateTypeOverride, &AdminSettings::UpdateType_Override>(),
      BindOverride<&CUpdatePage::disableManualUpdate, &AdminSettings::DisableManualUpdate>(),
  };
  return kBindings;
}
