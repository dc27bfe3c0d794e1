// Enter in a list whose entry has its dialog open already.
#pragma once

#include <gtest/gtest.h>

#include "driver/Sheet.h"

// From the list, with the sheet in front, the keyboard goes back into the dialog.
template <class List>
SheetTask ExpectEnterLeadsBack(Sheet& sheet, List list, HWND dialog) {
  SetActiveWindow(sheet.Window());
  list.Focus();
  sheet.Key(VK_RETURN);
  co_await sheet.Settled();
  EXPECT_EQ(dialog, GetActiveWindow()) << "back into the open dialog";
  EXPECT_TRUE(IsChild(dialog, GetFocus()));
}
