// The language of the dialogs. It is the user's, for all printers and hosts: a value in the registry and no property.
#pragma once

#include "controls/CImageStatic.h"
#include "resources/ResourceIds.h"
#include "sheet/CNemUIPage.h"

class CLangPage : public CNemUIPage {
 public:
  using CNemUIPage::CNemUIPage;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;

 private:
  void OnLanguageClicked();
  void LoadLanguage();
  void SaveLanguage();
  void RefreshLanguageTexts();

  CImageStatic flags_[4];
};
