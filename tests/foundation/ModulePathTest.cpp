#include <windows.h>

#include "DriverLIB/CEPathS.h"

#include <gtest/gtest.h>

#include <string>

#include "support/HostProgramScope.h"

TEST(ModulePath, IsCutAt259Characters) {
  const std::wstring path = L"C:\\" + std::wstring(300, L'x');
  const HostProgramScope program(path.c_str());
  EXPECT_EQ(path.substr(0, 259), CEPathString::ModulePath(nullptr).Text());
}
