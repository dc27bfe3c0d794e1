#include "DriverLIB/ControlNumbers.h"

#include "DriverLIB/CEString.h"
#include "DriverLIB/CUString.h"
#include "DriverLIB/Numbers.h"

bool GetControlDouble(HWND dialog, int controlId, double& value, int limit, int digits) {
  const HWND control = ::GetDlgItem(dialog, controlId);
  if (!control || limit <= 0) return false;
  CUString text;
  text.EnsureCapacity(limit);
  const int length = ::GetWindowTextW(control, text.Buffer(), limit + 1);
  if (length >= limit) return false;
  text.SetLength(length);
  CEString narrow;
  narrow.AssignWide(text);
  const double number = ParseDouble(narrow);
  value = digits ? RoundDecimal(number, digits) : number;
  return true;
}
