#include "pages/CNemUIPdfAppearancePage.h"

auto CNemUIPdfAppearancePage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CPdfAppearancePage::openLayout, &CDialogProperties::OpenLayout>(),
      Bind<&CPdfAppearancePage::openSize, &CDialogProperties::OpenSize>(),
      Bind<&CPdfAppearancePage::openPageIndex, &CDialogProperties::OpenPageIndex>(),
      Bind<&CPdfAppearancePage::openMode, &CDialogProperties::OpenMode>(),
      Bind<&CPdfAppearancePage::nonFullScreenPageMode, &CDialogProperties::NonFullScreenPageMode>(),
      Bind<&CPdfAppearancePage::direction, &CDialogProperties::Direction>(),
      Bind<&CPdfAppearancePage::hideToolbar, &CDialogProperties::HideToolbar>(),
      Bind<&CPdfAppearancePage::hideMenubar, &CDialogProperties::HideMenubar>(),
      Bind<&CPdfAppearancePage::centerWindow, &CDialogProperties::CenterWindow>(),
      Bind<&CPdfAppearancePage::fitWindow, &CDialogProperties::FitWindow>(),
      Bind<&CPdfAppearancePage::displayDocTitle, &CDialogProperties::DisplayDocTitle>(),
      Bind<&CPdfAppearancePage::hideWindowUI, &CDialogProperties::HideWindowUI>(),
  };
  return kBindings;
}
