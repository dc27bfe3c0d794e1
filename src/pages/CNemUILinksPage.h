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
