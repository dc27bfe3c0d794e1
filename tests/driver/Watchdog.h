// Ends a test program that hangs.
#pragma once

#include <windows.h>

#include <thread>

// While it lives it counts the time. When that is over it prints the running test, the page that is shown and all
// open windows of the thread that made it, and ends the process with kExitCode: a hung modal loop cannot be left in
// any other way.
class Watchdog {
 public:
  static constexpr UINT kExitCode = 97;
  static constexpr int kUsualSeconds = 20;

  // The environment variable NEMPDF_TEST_TIMEOUT, in seconds, overrides `seconds`.
  explicit Watchdog(int seconds = kUsualSeconds);
  ~Watchdog();
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

 private:
  HANDLE stop_;
  std::thread thread_;
};
