#include "environment/Shell.h"

#include <shellapi.h>

namespace {
constexpr INT_PTR kFirstShellSuccess = 32;  // smaller results are errors
}

bool OpenWithShell(HWND owner, const wchar_t* target, int show) {
  // The library stays loaded: what it opened may still use it.
  static const HMODULE shell = ::LoadLibraryExW(L"shell32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  static const auto execute = reinterpret_cast<decltype(&::ShellExecuteW)>(
      reinterpret_cast<void*>(shell ? ::GetProcAddress(shell, "ShellExecuteW") : nullptr));
  if (!execute) return false;
  return reinterpret_cast<INT_PTR>(execute(owner, L"open", target, nullptr, nullptr, show)) >= kFirstShellSuccess;
}
