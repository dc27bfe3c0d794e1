#include "window/WindowClass.h"

namespace {

// Wine says that a class is there while another thread still registers it, and then does not find it. So that thread
// is waited for.
SRWLOCK lock = SRWLOCK_INIT;

}  // namespace

bool RegisterWindowClass(const WNDCLASSEXW& description) {
  ::AcquireSRWLockExclusive(&lock);
  const bool registered = ::RegisterClassExW(&description) || ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
  ::ReleaseSRWLockExclusive(&lock);
  return registered;
}
