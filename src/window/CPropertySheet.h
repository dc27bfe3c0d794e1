// The platform's modal property sheet as an object. Its window is taken by the thread's creation hook and subclassed
// before its WM_INITDIALOG, so that a derived class can act before the first page exists.
#pragma once

#include <vector>

#include "window/Controls.h"
#include "window/CPropertyPage.h"

class CPropertySheet : public CWnd, public CMessageTarget {
 public:
  CPropertySheet() = default;
  CPropertySheet(const CPropertySheet&) = delete;
  CPropertySheet& operator=(const CPropertySheet&) = delete;

  // The page stays the caller's and must outlive the run.
  void AddPage(CPropertyPage& page) { pages_.push_back(&page); }

  // Runs the sheet: what PropertySheetW gave, which is -1 when it could not open the sheet; or 0 when there was nothing
  // to run, when a page could not be prepared, or when the sheet was destroyed under the user without an OK.
  INT_PTR DoModal(HWND owner, const wchar_t* caption);

  CTabCtrl GetTabControl() const;
  // The page whose tab is selected or, while a page is being shown, that one; null when the selection is outside the
  // list of pages.
  CPropertyPage* CurrentPage() const;
  // Shows the page without asking anybody but the platform.
  void SetActivePage(CPropertyPage& page);

  // The page has agreed to be left for another tab, and the platform is about to ask it once more.
  bool IsLeaving(const CPropertyPage& page) const { return leaving_ == &page; }
  void NoteApplied(bool applied) { applied_ = applied; }

 protected:
  ~CPropertySheet() override = default;

  // WM_INITDIALOG of the sheet. The base runs the platform's handling, which creates tabs and the first page.
  virtual BOOL OnInitDialog(WindowMessage& message);
  // The user asks for another tab; false keeps the current one.
  virtual bool OnTabChanging() { return true; }
  // Another tab has been selected.
  virtual void OnTabChanged() {}
  // The Help button. False leaves it to the platform.
  virtual bool OnHelp() { return false; }

  bool OnWindowMessage(WindowMessage& message) override;
  // A tab change that throws before the page is left has been refused.
  bool OnHandlerFailed(WindowMessage& message) override;
  LRESULT DefaultHandling(const WindowMessage& message);

 private:
  // Hooks of the running thread: one ties the sheet's window to this object, the other sees the keys of the sheet.
  class HookScope;
  static LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK KeyHook(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK SubclassProcedure(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);
  static int CALLBACK SheetCallback(HWND, UINT message, LPARAM lParam);
  void Attach(HWND window);
  bool TranslateTabKey(const MSG& message);
  bool OnTabNotification(WindowMessage& message);
  LRESULT OnSetCurrentPage(WindowMessage& message);
  void StepTab(int step);
  int PageIndexIn(const WindowMessage& message) const;
  CPropertyPage* PageAt(int index) const;

  std::vector<CPropertyPage*> pages_;
  bool running_ = false;
  bool opened_ = false;                     // the window has come to life
  bool applied_ = false;                    // the last apply was accepted
  bool settingPage_ = false;                // a tab change of our own, which asks nobody
  const CPropertyPage* leaving_ = nullptr;  // agreed to be left
  CPropertyPage* coming_ = nullptr;         // being shown, while its tab may not be selected yet
};
