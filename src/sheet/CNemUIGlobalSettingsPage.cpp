#include "sheet/CNemUIGlobalSettingsPage.h"

#include "sheet/CNemUISettingsPage.h"

CNemUIGlobalSettingsPage::CNemUIGlobalSettingsPage(SheetServices* sheet, const PageDescription& description,
                                                   int settingsIndex, PageCatalogue catalogue)
    : CGlobalSettingsPage(description), sheet_(sheet) {
  for (const PageCatalogueRow& row : catalogue) {
    const PageFactory create = settingsIndex == kBasicSettings ? row.onBasicSettings : row.onDocumentProperties;
    if (create) AddChild(create(sheet, row.description, settingsIndex));
  }
}

CUString CNemUIGlobalSettingsPage::GetHelpFilename() { return sheet_ ? sheet_->GetHelpFilename() : CUString(); }

CUString CNemUIGlobalSettingsPage::GetMsgBoxTitle() { return sheet_ ? sheet_->GetMsgBoxTitle() : CUString(); }

bool CNemUIGlobalSettingsPage::ExchangeProperties(CDataExchange& exchange) {
  if (!sheet_) return false;
  bool exchanged = true;
  for (CNemUIPage* page : Tabs().Pages())
    if (page->IsWindow()) exchanged &= page->UpdateDataSuper(exchange.IsSaving());
  return exchanged;
}
