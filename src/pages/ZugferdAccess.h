// What other pages ask of the ZUGFeRD page, whether it has been shown or not.
#pragma once

#include "sheet/PageNumbers.h"

class ZugferdAccess {
 public:
  virtual bool IsZugferdEnabled() = 0;
  // Into the member and the controls; straight into the property while the page has not read its members.
  virtual void SetZugferd(int value) = 0;
  // Forgets what an administrator has fixed on the page, so that nothing holds the invoice on.
  virtual void ClearOverrides() = 0;

 protected:
  ~ZugferdAccess() = default;
};
