#include "environment/SystemGeneration.h"

bool IsWin9x(const platform::SystemVersion& version) {
  constexpr uint32_t kPlatformNt = 2, kMajorVersionOf9x = 4;
  return version.platformId != kPlatformNt && version.major == kMajorVersionOf9x;
}

bool IsWin9x() {
  platform::SystemVersion version = {};
  return platform::GetSystemVersion(version) && IsWin9x(version);
}
