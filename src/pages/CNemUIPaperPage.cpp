#include "pages/CNemUIPaperPage.h"

auto CNemUIPaperPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      BindReadOnly<&CPaperPage::internalUse, &CDialogProperties::InternalUse>(),
      BindReadOnly<&CPaperPage::printOutput, &CDialogProperties::PrintOutput>(),
      Bind<&CPaperPage::fields, &CDialogProperties::Fields>(),
      Bind<&CPaperPage::orientation, &CDialogProperties::Orientation>(),
      Bind<&CPaperPage::paperSize, &CDialogProperties::PaperSize>(),
      Bind<&CPaperPage::paperLength, &CDialogProperties::PaperLength>(),
      Bind<&CPaperPage::paperWidth, &CDialogProperties::PaperWidth>(),
      Bind<&CPaperPage::scale, &CDialogProperties::Scale>(),
      Bind<&CPaperPage::duplex, &CDialogProperties::Duplex>(),
      Bind<&CPaperPage::paperSource, &CDialogProperties::PaperSource>(),
      Bind<&CPaperPage::paperDestination, &CDialogProperties::PaperDestination>(),
      Bind<&CPaperPage::scaleWidth, &CDialogProperties::PaperScaleWidth>(),
      Bind<&CPaperPage::scaleHeight, &CDialogProperties::PaperScaleHeight>(),
      Bind<&CPaperPage::marginCenter, &CDialogProperties::PaperMarginCenter>(),
      Bind<&CPaperPage::marginLeft, &CDialogProperties::PaperMarginLeft>(),
      Bind<&CPaperPage::marginTop, &CDialogProperties::PaperMarginTop>(),
      Bind<&CPaperPage::border, &CDialogProperties::PaperBorder>(),
  };
  return kBindings;
}
