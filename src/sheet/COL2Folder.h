// A folder of the navigation bar. All folders show their buttons; one of them is open and shows its groups.
#pragma once

#include <vector>

#include "sheet/COL2Item.h"

class COL2Folder {
 public:
  CUString text;
  OwnedHandle icon;                         // an HICON, or null
  std::shared_ptr<const AlphaImage> image;  // or null; goes before the icon
  IntRect rect;                             // of the button; empty while there is no room for it
  std::vector<COL2Item> groups;
  int commandId = 0;
};
