// The library's functions for window-free tests of hosts: properties are the real ones, the rest does what it is told.
#pragma once

#include <cstdint>
#include <functional>

#include "NemPdfUI.h"

struct FakeExports {
  uint32_t version = NEMPDFUI_VERSION;
  bool takesUpThreads = true;
  bool hasMemory = true;
  bool refusesProperties = false;  // set and get do nothing and give 0
  bool refusesHandles = false;     // as those of objects that have been freed
  int modalResult = 1;
  int versionResult = 1;
  std::function<void(NemPdfUIHandle)> whileModal;

  int objectCount = 0;     // that live
  int propertyCalls = 0;   // of set and get functions
  int errorsToAnswer = 0;  // so many of these calls give 0 first, as after an error that no call has answered for
};

// Of the test that runs: each begins with a new one.
extern FakeExports fakeExports;
