#include "pages/CNemUIColorsPage.h"

auto CNemUIColorsPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CColorsPage::colorspace, &CDialogProperties::Colorspace>(),
      BindOverride<&CColorsPage::colorspaceOverride, &AdminSettings::Colorspace_Override>(),
  };
  return kBindings;
}
