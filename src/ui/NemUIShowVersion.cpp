#include "DriverLIB/ModuleState.h"
#include "NemPdfUI.h"
#include "pages/CVersionInfoDialog.h"

int NemPdfUIShowVersion(void) {
  if (!EnterThread()) return 0;
  return static_cast<int>(CVersionInfoDialog().Run());
}
