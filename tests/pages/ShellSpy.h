// Stands in for the shell in all tests of this program: what pages have it open is noted and not done.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

struct ShellCall {
  HWND owner;
  std::optional<std::wstring> verb;
  std::wstring target;
  int show;
};

// Since the last clear().
extern std::vector<ShellCall> shellCalls;
