// The program of the inside tests: takes the library's code up as the loader would take up the library.
#include <windows.h>

#include <gtest/gtest.h>

#include "DriverLIB/ModuleState.h"

int wmain(int argc, wchar_t** argv) {
  HMODULE module = GetModuleHandleW(nullptr);
  if (!InitModule(module) || !InitThreadState(module)) return 2;
  testing::InitGoogleTest(&argc, argv);
  const int result = RUN_ALL_TESTS();
  FreeThreadState();
  ReleaseThreadSlots();
  return result;
}
