// What other pages ask of the attachments page and of the links page: both hold the switch for file attachments.
#pragma once

#include "sheet/PageNumbers.h"

class EmbedFilenamesAccess {
 public:
  // Into the member and the controls; straight into the property while the page has not read its members.
  virtual void SetEmbedFilenamesEnabled(int value) = 0;

 protected:
  ~EmbedFilenamesAccess() = default;
};
