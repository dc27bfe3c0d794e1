#include "cockpit/CNemUICockpitPage.h"

#include "sheet/PageNumbers.h"

namespace {

constexpr int kWrittenPages[] = {
    kGraphicPage,  kAppearancePage, kFontsPage,           kWatermarkPage, kLinksPage,   kAttachmentsPage,
    kBookmarkPage, kSavingPage,     kFormatPage,          kActionPage,    kMailPage,    kColorsPage,
    kZugferdPage,  kFormFieldsPage, kFormFieldsColorPage, kSecurityPage,  kDocInfoPage,
};

}  // namespace

void CNemUICockpitPage::WriteAllPages() {
  for (const int pageId : kWrittenPages)
    if (CNemUIPage* page = FindPage(pageId)) page->WriteProperties();
}

void CNemUICockpitPage::OnPropertiesWritten() {
  if (HasRestored()) WriteAllPages();
}
