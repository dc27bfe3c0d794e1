#pragma once

#include "pages/CZugferdPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIZugferdPage : public CNemUISettingsPage<CZugferdPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

  // What another page sets, whether this one has been shown or not.
  void SetZugferd(int value) override;
  void SetDeleteAfterEmbedding(int value);
  void SetXmlFile(const wchar_t* path);
  void SetShowAfterCreation(int value);
  void SetCreationMethod(int value);
  bool IsZugferdEnabled() override;

 protected:
  BindingTable Bindings() const override;
  void OnPropertiesRead() override;
};
