// The look of the library's windows: common controls 6 by the manifest in its own resources, since a host may have
// none. A scope stands around everything that creates windows.
#pragma once

#include "window/Windows.h"

class CActivationScope {
 public:
  CActivationScope();
  ~CActivationScope();
  CActivationScope(const CActivationScope&) = delete;
  CActivationScope& operator=(const CActivationScope&) = delete;

 private:
  ULONG_PTR cookie_ = 0;
  bool active_ = false;
};

// Gives the context back; at the library's detach, never while a scope stands.
void ReleaseActivationContext();
