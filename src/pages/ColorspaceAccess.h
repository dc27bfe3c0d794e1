// What the colour page asks of the watermark page, which holds the colour space as well and writes it back.
#pragma once

#include <cstdint>

#include "sheet/PageNumbers.h"

class ColorspaceAccess {
 public:
  // Takes a restored colour space in place of the one that was read; the page reads its properties first.
  virtual void SetColorspace(uint16_t value) = 0;

 protected:
  ~ColorspaceAccess() = default;
};
