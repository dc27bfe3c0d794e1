// What other pages ask of the watermark page, whether it has been shown or not.
#pragma once

#include <cstdint>

#include "sheet/PageNumbers.h"

class WatermarkAccess {
 public:
  // Whether stationery paper is laid over or under the document, as it stands on the page, before OK as well.
  virtual bool IsStationeryEnabled() = 0;
  // Takes a restored colour space in place of the one that was read.
  virtual void SetColorspace(uint16_t value) = 0;

 protected:
  ~WatermarkAccess() = default;
};
