// Version and support; and a click on the logo, which switches trace files on and off.
#pragma once

#include "controls/CImageStatic.h"
#include "controls/CMyHyperLink.h"
#include "resources/ResourceIds.h"
#include "sheet/CNemUIPage.h"

class CInfoPage : public CNemUIPage {
 public:
  using CNemUIPage::CNemUIPage;

  // What the printer has to say, as it is stored: with \n for the end of a line. Empty when it says nothing.
  CUString noticeText;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;

 private:
  void OnVersionsClicked();
  void OnLogoClicked();

  void SwitchTrace(bool enable, const CUString& folder);
  CUString ChooseTraceFolder();

  CImageStatic logo_;
  CMyHyperLink links_[5];
};
