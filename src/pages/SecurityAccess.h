// What other pages ask of the security page, whether it has been shown or not.
#pragma once

#include "sheet/PageNumbers.h"

class SecurityAccess {
 public:
  // Switches the owner password, the user password and the one for editing off, which is 0 in all three, and writes
  // the page's properties. A page that has not read its members yet writes 0 straight to the three properties of its
  // settings set, and nothing else.
  virtual void SwitchPasswordsOff() = 0;

 protected:
  ~SecurityAccess() = default;
};
