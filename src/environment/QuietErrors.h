// For the time of a call of this thread: a damaged library or a drive without a disk is an error like any other, not a
// box of the system.
#pragma once

#include <windows.h>

class QuietErrors {
 public:
  QuietErrors() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, &former_); }
  ~QuietErrors() { ::SetThreadErrorMode(former_, nullptr); }
  QuietErrors(const QuietErrors&) = delete;
  QuietErrors& operator=(const QuietErrors&) = delete;

 private:
  DWORD former_ = 0;
};
