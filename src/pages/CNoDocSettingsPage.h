// Stands in for a page that has settings of new documents only: two texts and a link to the help.
#pragma once

#include "resources/ResourceIds.h"
#include "sheet/CNemUIPage.h"

class CNoDocSettingsPage : public CNemUIPage {
 public:
  // The placeholder has a template of its own and remembers the one of the page it stands for.
  explicit CNoDocSettingsPage(const PageDescription& standsFor);

 protected:
  int HelpLinkId() const override { return IDC_NO_DOC_SETTINGS_LINK; }
  // No topic of its own: only its link leads to the help.
  DWORD ContextHelpId() const override { return 0; }

 private:
  const uint32_t replacedTemplateId_;
};
