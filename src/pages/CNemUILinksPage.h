// The attachments go along. Of them the page writes the list alone, and leaves what is one for both tabs.
#pragma once

#include "pages/CLinksPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUILinksPage : public CNemUISettingsPage<CLinksPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

  void SetEmbedFilenamesEnabled(int value) override;

 protected:
  BindingTable Bindings() const override;
  void OnPropertiesRead() override;
  void OnPropertiesWritten() override;
};
