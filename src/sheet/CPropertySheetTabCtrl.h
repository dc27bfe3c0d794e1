// Holds the child pages of a host page and shows one of them. It is a tab control whose tabs nobody sees: the
// navigation bar selects. A page's window is made when the page is first selected.
#pragma once

#include <vector>

#include "sheet/CNemUIPage.h"
#include "window/CSubclassedControl.h"

class CPropertySheetTabCtrl : public CSubclassed<CTabCtrl> {
 public:
  // The page stays the caller's and must outlive this object. To be called before SetUp.
  void AddPage(CNemUIPage& page) { pages_.push_back(&page); }
  const std::vector<CNemUIPage*>& Pages() const { return pages_; }
  // The page that is shown; null before the first selection.
  CNemUIPage* CurrentPage() const { return current_; }

  // Makes one item a page and selects the first that can be shown. `host` is the parent of the pages' windows and has
  // their font.
  void SetUp(const CWnd& host);
  // Leaves the current page and shows `page`. False when the current page refuses, when `page` is shown already or
  // cannot be: then everything stays as it is.
  bool SelectPage(CNemUIPage& page);

  // The steps of the host, passed on: the first two to the current page, the last one to every page with a window.
  bool OnSetActive();
  bool OnKillActive();
  bool OnApply();

 private:
  bool OnWindowMessage(WindowMessage& message) override;
  bool CreateWindowOf(CNemUIPage& page);
  void Show(CNemUIPage& page);
  RECT PageArea() const;
  int IndexOf(const CNemUIPage& page) const;

  std::vector<CNemUIPage*> pages_;
  CNemUIPage* current_ = nullptr;
  CWnd host_;
};
