// Radio buttons whose order in the dialog is not that of their values: a table has them by value.
#pragma once

#include <span>

#include "window/Controls.h"

// A value beyond the table shows as 0.
inline void ShowRadio(const CWnd& dialog, std::span<const int> radios, unsigned value) {
  const int shown = radios[value < radios.size() ? value : 0];
  for (const int id : radios) CButton(dialog.Item(id)).SetCheck(id == shown);
}

// The value of the one that is on; 0 without one.
inline int ShownRadio(const CWnd& dialog, std::span<const int> radios) {
  for (size_t value = 0; value < radios.size(); ++value)
    if (CButton(dialog.Item(radios[value])).IsChecked()) return static_cast<int>(value);
  return 0;
}
