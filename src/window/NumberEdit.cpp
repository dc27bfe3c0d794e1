#include "window/NumberEdit.h"

#include "DriverLIB/ControlNumbers.h"

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
  CUString text;
  text.Format(L"%g", number);
  text.ReplaceStr(L",", L".");  // the run-time library writes by the locale of the process, which is the host's
  dialog.Item(id).SetText(text.Text());
}
