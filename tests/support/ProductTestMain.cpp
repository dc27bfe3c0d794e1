// The program of the tests that see the library from outside, as a host does.
#include <gtest/gtest.h>

int wmain(int argc, wchar_t** argv) {
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
