#include "pages/CNoDocSettingsPage.h"

namespace {

PageDescription WithOwnTemplate(PageDescription description) {
  description.templateId = IDD_NO_DOC_SETTINGS_PAGE;
  return description;
}

}  // namespace

CNoDocSettingsPage::CNoDocSettingsPage(const PageDescription& standsFor)
    : CNemUIPage(WithOwnTemplate(standsFor)), replacedTemplateId_(standsFor.templateId) {}
