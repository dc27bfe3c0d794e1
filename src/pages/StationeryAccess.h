// What other pages ask of the watermark page, whether it has been shown or not.
#pragma once

#include "sheet/PageNumbers.h"

class StationeryAccess {
 public:
  // Whether stationery paper is laid over or under the document, as it stands on the page, before OK as well.
  virtual bool IsStationeryEnabled() = 0;

 protected:
  ~StationeryAccess() = default;
};
