#include "window/NumberEdit.h"

#include "DriverLIB/ControlNumbers.h"
#include "DriverLIB/Numbers.h"

double CorrectNumber(const CWnd& dialog, int id, const NumberRule& rule) {
  constexpr int kDecimalPlaces = 1;
  double number = 0;
  if (GetControlDouble(dialog.Handle(), id, number, rule.room, kDecimalPlaces) && number >= rule.minimum &&
      number <= rule.maximum)
    return number;
  ShowNumber(dialog, id, rule.fallback);
  return rule.fallback;
}

void ShowNumber(const CWnd& dialog, int id, double number) {
  dialog.Item(id).SetText(FormatDouble(L"%g", number).Text());
}
