#include "pages/CNemUIFormFieldsPage.h"

auto CNemUIFormFieldsPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CFormFieldsPage::convert, &CDialogProperties::ShowFormfields>(),
      Bind<&CFormFieldsPage::autoTextHeight, &CDialogProperties::FormfieldUseAutoTextHeight>(),
      Bind<&CFormFieldsPage::widthOfDefaultText, &CDialogProperties::FormfieldUseDefaultTextWidth>(),
      Bind<&CFormFieldsPage::limitedToDefaultText, &CDialogProperties::FormfieldUseDefaultTextMaxChars>(),
      Bind<&CFormFieldsPage::uniformWidth, &CDialogProperties::FormfieldUseInternalCharCount>(),
      Bind<&CFormFieldsPage::limitedToUniformWidth, &CDialogProperties::FormfieldUseInternalCharCountMaxChars>(),
      Bind<&CFormFieldsPage::characters, &CDialogProperties::FormfieldInternalCharCount>(),
      BindReadOnly<&CFormFieldsPage::formFieldsEnabled, &CDialogProperties::FormFieldsEnabled>(),
  };
  return kBindings;
}
