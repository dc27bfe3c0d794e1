#include "cockpit/CNemUICockpitPage.h"

namespace {

constexpr int kWrittenPages[] = {
    108,  // graphic
    109,  // appearance
    110,  // fonts
    101,  // watermark
    113,  // links
    114,  // attachments
    119,  // bookmark
    103,  // saving
    118,  // format
    102,  // action
    104,  // mail
    111,  // colour space
    112,  // ZUGFeRD
    115,  // form fields
    116,  // form-field colours
    117,  // security
    105,  // document info
};

}  // namespace

void CNemUICockpitPage::WriteAllPages() {
  for (const int pageId : kWrittenPages)
    if (CNemUIPage* page = FindPage(pageId)) page->WriteProperties();
}

void CNemUICockpitPage::OnPropertiesWritten() {
  if (HasRestored()) WriteAllPages();
}
