// A group of entries in a folder of the navigation bar: under a header, or under a line when it has no text.
#pragma once

#include <vector>

#include "sheet/COL2SubItem.h"

class COL2Item {
 public:
  CUString text;
  int flag = 0;  // 0 gives the group's entries more height
  IntRect rect;  // of the header or line
  std::vector<COL2SubItem> entries;
};
