// The versions of all components of the product. A component that is not there, or tells no version, shows "n/a".
#pragma once

#include "controls/CImageStatic.h"
#include "window/CDialog.h"
#include "window/Gdi.h"

class CVersionInfoDialog : public CDialog {
 public:
  CVersionInfoDialog();

  // Shows the dialog and gives the button that ended it. Without an owner the thread's active window is taken.
  INT_PTR Run(HWND owner = nullptr);

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;

 private:
  CImageStatic logo_;
  GdiIcon smallIcon_;
};
