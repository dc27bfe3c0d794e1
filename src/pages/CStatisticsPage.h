// How many documents have been made, in all and this month. Other parts of the product count; the page only reads.
#pragma once

#include "controls/CMyHyperLink.h"
#include "resources/ResourceIds.h"
#include "sheet/CNemUIPage.h"

class CStatisticsPage : public CNemUIPage {
 public:
  using CNemUIPage::CNemUIPage;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;

 private:
  CMyHyperLink links_[3];
};
