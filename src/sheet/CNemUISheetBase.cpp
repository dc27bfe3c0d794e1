#include "sheet/CNemUISheetBase.h"

#include "sheet/Help.h"

bool CNemUISheetBase::OnHelp() {
  CPropertyPage* page = CurrentPage();
  if (!page) return false;
  page->OnHelpInfo(HelpForControl(IDHELP, Item(IDHELP).Handle()));
  return true;
}
