#pragma once

#include "pages/CPdfGraphicPage.h"
#include "sheet/CNemUISettingsPage.h"

class CNemUIPdfGraphicPage : public CNemUISettingsPage<CPdfGraphicPage> {
 public:
  using CNemUISettingsPage::CNemUISettingsPage;

 protected:
  std::span<const PropertyBinding<CPdfGraphicPage>> Bindings() const override;
};
