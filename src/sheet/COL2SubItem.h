// An entry of the navigation bar.
#pragma once

#include <memory>

#include "DriverLIB/CUString.h"
#include "window/Placement.h"

class AlphaImage;

enum class BarEntryKind { Plain = 0, Radio = 1, Link = 2, Check = 3 };

// A platform handle that frees itself with its last owner. Window-free code passes it on without looking.
using OwnedHandle = std::shared_ptr<void>;

class COL2SubItem {
 public:
  // The height of a child window that takes all that the folder area has left.
  static constexpr int kRemainingHeight = -1;

  CUString text;
  OwnedHandle icon;                         // an HICON, or null
  std::shared_ptr<const AlphaImage> image;  // or null; goes before the icon
  BarEntryKind kind = BarEntryKind::Plain;
  IntRect rect;            // of the last arrangement; empty while the entry is not to be seen
  int commandId = 0;       // with a child window: its height at 96 dpi, or kRemainingHeight
  void* window = nullptr;  // the HWND of a child window that stands in place of the entry; not owned
  int probeBits = 0;       // how the entry stood when it was last drawn: bits of COL2CCmdUI

  bool IsSeen() const { return rect.Width() > 0 && rect.Height() > 0; }
  bool HasCommand() const { return !window; }
  // Plain, radio and check entries ask how they stand while nothing happens; a link asks when it is painted only.
  bool IsProbed() const { return HasCommand() && kind != BarEntryKind::Link; }
};
