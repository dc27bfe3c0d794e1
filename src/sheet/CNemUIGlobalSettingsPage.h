// Connects a host page with the sheet; its settings index decides which child pages it gets.
#pragma once

#include "sheet/CGlobalSettingsPage.h"
#include "sheet/PageCatalogue.h"

class CNemUIGlobalSettingsPage : public CGlobalSettingsPage {
 public:
  CNemUIGlobalSettingsPage(SheetServices* sheet, const PageDescription& description, int settingsIndex,
                           PageCatalogue catalogue);

  CUString GetHelpFilename() override;
  CUString GetMsgBoxTitle() override;
  // Every child page with a window exchanges, also after one has failed.
  bool ExchangeProperties(CDataExchange& exchange) override;

 private:
  SheetServices* const sheet_;
};
