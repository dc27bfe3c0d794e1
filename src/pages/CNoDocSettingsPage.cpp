#include "pages/CNoDocSettingsPage.h"

#include "resources/ResourceIds.h"

namespace {

PageDescription WithOwnTemplate(PageDescription description) {
  description.templateId = IDD_NO_DOC_SETTINGS_PAGE;
  return description;
}

}  // namespace

CNoDocSettingsPage::CNoDocSettingsPage(const PageDescription& standsFor)
    : CNemUIPage(WithOwnTemplate(standsFor)), replacedTemplateId_(standsFor.templateId) {}

BOOL CNoDocSettingsPage::OnInitDialog() {
  if (!CNemUIPage::OnInitDialog()) return FALSE;
  difference_.Attach(*this, IDC_NO_DOC_SETTINGS_LINK);
  difference_.SetNotifyParent(true);
  difference_.SetUnderline(true);
  return TRUE;
}
