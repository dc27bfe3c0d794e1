#include "pages/CNemUIDocInfoPage.h"

auto CNemUIDocInfoPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      BindReadOnly<&CDocInfoPage::internalUse, &CDialogProperties::InternalUse>(),
      Bind<&CDocInfoPage::title, &CDialogProperties::Title>(),
      Bind<&CDocInfoPage::author, &CDialogProperties::Author>(),
      Bind<&CDocInfoPage::subject, &CDialogProperties::Subject>(),
      Bind<&CDocInfoPage::keywords, &CDialogProperties::Keywords>(),
      BindOverride<&CDocInfoPage::titleOverride, &AdminSettings::Title_Override>(),
      BindOverride<&CDocInfoPage::authorOverride, &AdminSettings::Author_Override>(),
      BindOverride<&CDocInfoPage::subjectOverride, &AdminSettings::Subject_Override>(),
      BindOverride<&CDocInfoPage::keywordsOverride, &AdminSettings::Keywords_Override>(),
  };
  return kBindings;
}
