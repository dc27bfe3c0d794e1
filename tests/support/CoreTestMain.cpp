#include <gtest/gtest.h>

#ifdef _WIN32
int wmain(int argc, wchar_t** argv) {
#else
int main(int argc, char** argv) {
#endif
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
