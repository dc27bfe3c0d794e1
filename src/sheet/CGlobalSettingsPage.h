// A tab of the sheet: a host page with the navigation bar on the left and the child pages in a column to its right.
// The host owns its child pages.
#pragma once

#include <memory>
#include <vector>

#include "sheet/CNemUIPage.h"
#include "sheet/COutlook2Ctrl.h"
#include "sheet/CPropertySheetTabCtrl.h"
#include "window/CCmdUI.h"

class CGlobalSettingsPage : public CNemUIPage {
 public:
  explicit CGlobalSettingsPage(const PageDescription& description) : CNemUIPage(description) {}

  // Opens the page's folder in the bar and selects its entry there.
  bool ActivatePage(int pageId) override;
  CNemUIPage* FindPage(int pageId) override;
  // Leaves the current page and shows the one with this number. False when there is none, when it is shown already,
  // or when the current one refuses to be left.
  bool SelectPage(int pageId);
  // The bar asks how the entry of a page stands.
  void UpdatePageCommand(CCmdUI& probe, int pageId);
  CNemUIPage* CurrentChild() const { return tabs_.CurrentPage(); }

  bool OnSetActive() override;
  bool OnKillActive() override;
  bool OnApply() override;
  bool OnHelpInfo(const HELPINFO& help) override;

 protected:
  // A child page joins the host in the order of construction; null is a page that this host does not have.
  void AddChild(std::unique_ptr<CNemUIPage> page);
  const std::vector<std::unique_ptr<CNemUIPage>>& Children() const { return children_; }
  const CPropertySheetTabCtrl& Tabs() const { return tabs_; }

  BOOL OnInitDialog() override;
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  void EnterChildren();
  void FillBar();
  void PlaceBar();

  std::vector<std::unique_ptr<CNemUIPage>> children_;
  CPropertySheetTabCtrl tabs_;
  COutlook2Ctrl bar_;
};
