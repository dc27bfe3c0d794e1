// A sheet whose Help button asks the current page.
#pragma once

#include "window/CPropertySheet.h"

class CNemUISheetBase : public CPropertySheet {
 protected:
  bool OnHelp() override;
};
