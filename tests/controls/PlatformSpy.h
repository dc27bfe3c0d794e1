// What the controls ask the system for and a test decides: the dpi of their window, and the opening of addresses, which
// is noted down and not done.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

struct OpenedAddress {
  HWND owner;
  std::wstring verb, target;
  int show;
  HWND capture;  // who had the mouse meanwhile
};

// What the shell was asked for since the last clear().
extern std::vector<OpenedAddress> openedAddresses;
// Runs while the shell is at it.
extern std::function<void()> whileOpening;

// For its life all windows have this dpi.
class DpiScope {
 public:
  explicit DpiScope(UINT dpi);
  ~DpiScope();
  DpiScope(const DpiScope&) = delete;
  DpiScope& operator=(const DpiScope&) = delete;
};
