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
  void LoadLanguage();
  void SaveLanguage();

  void OnLanguageClicked();

  void RefreshLanguageTexts(uint16_t language);

  uint16_t storedLanguage_ = 0;  // as last read; a reader of the setting answers 0 for the system's, too
  CImageStatic flags_[4];
};
