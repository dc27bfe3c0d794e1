// By which column the user has sorted a list.
#pragma once

#include "DriverLIB/TextView.h"

struct ListSorting {
  int column = -1;  // the last sorted one; -1 when the rows are in no such order any more
  bool ascending = true;

  // A click on the head of a column: on the same one it turns the order round.
  void Click(int clicked);
  void Sorted(int by, bool inAscendingOrder);
  void Forget() { column = -1; }
};

// Texts by their 16-bit code units, whatever the language: negative, 0 or positive.
int CompareCodeUnits(WideView left, WideView right);
