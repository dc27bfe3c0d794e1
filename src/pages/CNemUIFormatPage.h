// Answers other pages from the properties while its own members have not been read. The kind of file and the engine are
// written by the page of the basic settings alone.
#pragma once

#include "pages/CFormatPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIFormatPage : public CNemUISettingsPage<CFormatPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

  int GetPdfVersion() override;
  void SetPdfVersion(int value) override;
  int GetSaveFormat() override;

 protected:
  BindingTable Bindings() const override;
  void OnPropertiesRead() override;
  void OnPropertiesWritten() override;

 private:
  CProperty& VersionProperty() const;
  uint16_t StoredSaveFormat() const;
};
