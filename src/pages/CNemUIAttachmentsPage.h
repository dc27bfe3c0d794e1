// The list is one for each tab, the confirmation one for both: the document's page shows it and leaves it as it is.
#pragma once

#include "pages/CAttachmentsPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIAttachmentsPage : public CNemUISettingsPage<CAttachmentsPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

  void SetEmbedFilenamesEnabled(int value) override;

 protected:
  BindingTable Bindings() const override;
  void OnPropertiesRead() override;
  void OnPropertiesWritten() override;
  void DoDataExchange(CDataExchange& exchange) override;
};
