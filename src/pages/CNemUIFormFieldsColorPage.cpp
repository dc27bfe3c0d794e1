#include "pages/CNemUIFormFieldsColorPage.h"

auto CNemUIFormFieldsColorPage::Bindings() const -> BindingTable {
  using Page = CFormFieldsColorPage;
  static constexpr Binding kBindings[] = {
      Bind<&Page::useTextfieldBorder, &CDialogProperties::FormfieldUseTextfieldBorder>(),
      Bind<&Page::textfieldBorderColor, &CDialogProperties::FormfieldTextfieldBorderColor>(),
      Bind<&Page::useTextfieldBackColor, &CDialogProperties::FormfieldUseTextfieldBackColor>(),
      Bind<&Page::textfieldBackColor, &CDialogProperties::FormfieldTextfieldBackColor>(),
      Bind<&Page::useCheckboxBorder, &CDialogProperties::FormfieldUseCheckboxBorder>(),
      Bind<&Page::checkboxBorderColor, &CDialogProperties::FormfieldCheckboxBorderColor>(),
      Bind<&Page::useCheckboxBackColor, &CDialogProperties::FormfieldUseCheckboxBackColor>(),
      Bind<&Page::checkboxBackColor, &CDialogProperties::FormfieldCheckboxBackColor>(),
      Bind<&Page::useDropdownBorder, &CDialogProperties::FormfieldUseDropdownBorder>(),
      Bind<&Page::dropdownBorderColor, &CDialogProperties::FormfieldDropdownBorderColor>(),
      Bind<&Page::useDropdownBackColor, &CDialogProperties::FormfieldUseDropdownBackColor>(),
      Bind<&Page::dropdownBackColor, &CDialogProperties::FormfieldDropdownBackColor>(),
      BindReadOnly<&Page::formFieldsEnabled, &CDialogProperties::FormFieldsEnabled>(),
  };
  return kBindings;
}
