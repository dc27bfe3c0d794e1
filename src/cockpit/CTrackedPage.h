// The base of a page's logic that the cockpit tracks. The page derives from CTrackedPage<its values> in place of
// CNemUIPage and says in one line a value what is exchanged.
#pragma once

#include "cockpit/CockpitExchange.h"
#include "cockpit/CockpitValues.h"
#include "sheet/CNemUIPage.h"

template <class Values>
class CTrackedPage : public CNemUIPage, public CockpitPage<Values> {
 public:
  using CNemUIPage::CNemUIPage;

  void GetCockpitValues(Values& values) override {
    ReadProperties();
    ExchangeCockpitValues(CockpitExchange(CockpitExchange::Direction::kToCockpit), values);
  }
  void SetCockpitValues(const Values& values) override {
    ReadProperties();
    Values given = values;
    ExchangeCockpitValues(CockpitExchange(CockpitExchange::Direction::kToPage), given);
    if (IsWindow()) UpdateData(false);
  }

 protected:
  virtual void ExchangeCockpitValues(const CockpitExchange& exchange, Values& values) = 0;
};
