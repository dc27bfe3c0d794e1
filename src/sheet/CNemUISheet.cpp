#include "sheet/CNemUISheet.h"

#include "environment/CPrinterHandle.h"
#include "environment/ReadAdminSettings.h"
#include "MessageIds.h"
#include "resources/ResourceIds.h"
#include "window/CenterWindow.h"
#include "window/SmallIcon.h"

namespace {

constexpr PageDescription kGlobalPage{IDD_HOST_PAGE, IDI_BASIC_SETTINGS, MSG_TAB_BASIC_SETTINGS};
constexpr PageDescription kDocumentPage{IDD_HOST_PAGE, IDI_DOCUMENT_PROPERTIES, MSG_TAB_DOCUMENT_PROPERTIES};

}  // namespace

CNemUISheet::CNemUISheet(PageCatalogue catalogue)
    : globalPage_(this, kGlobalPage, 0, catalogue), documentPage_(this, kDocumentPage, 1, catalogue) {}

INT_PTR CNemUISheet::Run(HWND owner) {
  AddPage(globalPage_);
  if (OffersDocumentProperties()) AddPage(documentPage_);
  return DoModal(owner, properties_.SheetTitle.GetString().Text());
}

CNemUIGlobalSettingsPage* CNemUISheet::CurrentHost() const {
  return static_cast<CNemUIGlobalSettingsPage*>(CurrentPage());
}

bool CNemUISheet::ActivatePage(int pageId) {
  CNemUIGlobalSettingsPage* host = CurrentHost();
  return host && host->ActivatePage(pageId);
}

CNemUIPage* CNemUISheet::FindPage(int pageId) {
  CNemUIGlobalSettingsPage* host = CurrentHost();
  return host ? host->FindPage(pageId) : nullptr;
}

BOOL CNemUISheet::OnInitDialog(WindowMessage& message) {
  // Before the first page exists: pages take an administrator's values when they read theirs.
  ReadAdministratorSettings();
  const BOOL result = CNemUISheetBase::OnInitDialog(message);
  smallIcon_ = SetSmallIcon(*this, IDI_PRODUCT);
  if (OffersDocumentProperties()) SetActivePage(documentPage_);
  CenterWindow(*this);
  return result;
}

// With no printer the record keeps its initial values, and nothing is fixed.
void CNemUISheet::ReadAdministratorSettings() {
  const CUString printerName = GetPrinterName();
  const CPrinterHandle printer(printerName.Text());
  if (printer) ReadAdminSettings(printer.Get(), GetAdminSettings(), printerName);
}

bool CNemUISheet::OnTabChanging() {
  CNemUIGlobalSettingsPage* host = CurrentHost();
  if (!host || !host->IsWindow()) return true;
  // The other tab's pages compare against fresh values, so what was changed here goes into the properties first.
  return host->OnKillActive() && host->UpdateDataSuper(true);
}

void CNemUISheet::OnTabChanged() {
  CNemUIGlobalSettingsPage* host = CurrentHost();
  if (host && host->IsWindow()) host->UpdateDataSuper(false);
}
