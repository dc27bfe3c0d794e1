// The modal settings sheet. It owns the working copy of all properties, which the pages edit, and its two tabs; it
// lives for one run.
#pragma once

#include "sheet/CNemUIGlobalSettingsPage.h"
#include "sheet/CNemUISheetBase.h"
#include "sheet/SheetServices.h"
#include "ui/CDialogProperties.h"
#include "window/Gdi.h"

class CNemUISheet : public CNemUISheetBase, public SheetServices {
 public:
  explicit CNemUISheet(PageCatalogue catalogue);

  // Runs the sheet on the values of Properties(), owned by `owner` (or by nobody). 0 means that nothing is to be taken
  // over from the working copy.
  INT_PTR Run(HWND owner);

  CUString GetPrinterName() override { return properties_.PrinterName.GetString(); }
  CUString GetHelpFilename() override { return properties_.HelpFilename.GetString(); }
  CUString GetMsgBoxTitle() override { return properties_.MsgBoxTitle.GetString(); }
  void SetPasswordVisible(int visible) override { properties_.PasswordVisible.SetLong(visible); }
  int GetPasswordVisible() override { return properties_.PasswordVisible.GetLong(); }
  bool ActivatePage(int pageId) override;
  CNemUIPage* FindPage(int pageId) override;
  AdminSettings* GetAdminSettings() override { return &properties_.adminSettings; }
  CDialogProperties& Properties() override { return properties_; }

  CNemUIGlobalSettingsPage* CurrentHost() const;

 protected:
  BOOL OnInitDialog(WindowMessage& message) override;
  bool OnTabChanging() override;
  void OnTabChanged() override;

 private:
  void ReadAdministratorSettings();
  bool OffersDocumentProperties() const { return properties_.Used[1].GetLong() != 0; }

  CDialogProperties properties_;
  GdiIcon smallIcon_;
  CNemUIGlobalSettingsPage globalPage_;
  CNemUIGlobalSettingsPage documentPage_;
};
