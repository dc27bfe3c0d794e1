#pragma once

#include "window/CPropertySheet.h"

// A sheet whose Help button asks the current page.
class CNemUISheetBase : public CPropertySheet {
 protected:
  bool OnHelp() override;
};
