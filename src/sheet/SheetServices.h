// What pages may ask of the sheet. They know this face of it and nothing else.
#pragma once

#include "DriverLIB/CUString.h"

class CDialogProperties;
class CNemUIPage;
struct AdminSettings;

class SheetServices {
 public:
  virtual CUString GetPrinterName() = 0;
  virtual CUString GetHelpFilename() = 0;
  virtual CUString GetMsgBoxTitle() = 0;
  virtual void SetPasswordVisible(int visible) = 0;
  virtual int GetPasswordVisible() = 0;
  // Shows the page with this number on the current tab by way of the navigation bar.
  virtual bool ActivatePage(int pageId) = 0;
  // The page with this number on the current tab; null when there is none. It may not have a window yet.
  virtual CNemUIPage* FindPage(int pageId) = 0;
  virtual AdminSettings* GetAdminSettings() = 0;
  // The working copy of all values, which pages read and write.
  virtual CDialogProperties& Properties() = 0;

 protected:
  ~SheetServices() = default;
};
