#include "pages/CNemUIBookmarkPage.h"

auto CNemUIBookmarkPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CBookmarkPage::outlineStylesEnabled, &CDialogProperties::OutlineStylesEnabled>(),
      Bind<&CBookmarkPage::outlineStyles, &CDialogProperties::OutlineStyles>(),
      Bind<&CBookmarkPage::outlineFormats, &CDialogProperties::OutlineFormats>(),
      BindReadOnly<&CBookmarkPage::outlineStyleNames, &CDialogProperties::OutlineStyleNames>(),
      BindReadOnly<&CBookmarkPage::internalUse, &CDialogProperties::InternalUse>(),
  };
  return kBindings;
}
