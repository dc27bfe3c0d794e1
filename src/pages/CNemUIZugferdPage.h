// Answers other pages from the properties while its own members have not been read.
#pragma once

#include "pages/CZugferdPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIZugferdPage : public CNemUISettingsPage<CZugferdPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

  // What another page may set and ask, whether this one has been shown or not. The pages of this library do with what
  // ZugferdAccess has; the rest is offered, and nobody uses it yet.
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
