// A page of a property sheet. The same class serves as a page of the platform's sheet and as a child page that a host
// page creates by itself; only the first kind is sent the sheet's notifications.
#pragma once

#include <vector>

#include "window/CDialog.h"

class CPropertySheet;

class CPropertyPage : public CDialog {
 public:
  using CDialog::CDialog;

  // The page becomes the one that is shown. False refuses.
  virtual bool OnSetActive() { return true; }
  // The page is about to be left. False keeps it.
  virtual bool OnKillActive() { return UpdateData(true); }
  // OK. False keeps the sheet open.
  virtual bool OnApply() { return true; }
  bool OnHelpInfo(const HELPINFO&) override { return false; }

 protected:
  // The page's caption in the tab, and its 16-pixel icon (0 for none).
  virtual const wchar_t* TabCaption() const { return L""; }
  virtual UINT TabIconId() const { return 0; }

  bool OnWindowMessage(WindowMessage& message) override;
  // A page that throws while it is left or applied has refused.
  bool OnHandlerFailed(WindowMessage& message) override;

 private:
  friend class CPropertySheet;
  // The platform's page for this object; null when its template is missing. It belongs to the sheet that runs it.
  HPROPSHEETPAGE CreatePage(CPropertySheet& sheet);
  bool IsFromPlatformSheet(const WindowMessage& message) const;
  static INT_PTR CALLBACK PageProcedure(HWND, UINT, WPARAM, LPARAM);

  CPropertySheet* platformSheet_ = nullptr;
  std::vector<BYTE> template_;  // the platform reads it again whenever it creates the page
  HICON icon_ = nullptr;        // shared: the system frees it
};
