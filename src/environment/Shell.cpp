#include "environment/Shell.h"

#include "DriverLIB/SystemFunction.h"

namespace {

// Results of ShellExecuteW below it are errors. The number itself counts as one where a program is started, and as
// success where a file or an address is opened.
constexpr INT_PTR kShellErrorLimit = 32;

template <class Function>
Function* ShellFunction(const char* name) {
  return SystemFunction<Function>(L"shell32.dll", name);  // what was opened may still use the library: it stays
}

}  // namespace

bool OpenWithShell(HWND owner, const wchar_t* target, int show, const wchar_t* verb) {
  static const auto execute = ShellFunction<decltype(::ShellExecuteW)>("ShellExecuteW");
  if (!execute) return false;
  return reinterpret_cast<INT_PTR>(execute(owner, verb, target, nullptr, nullptr, show)) >= kShellErrorLimit;
}

bool ExecuteShell(SHELLEXECUTEINFOW& info) {
  // The error is that of the shell alone, not what the search for its functions has left.
  if (const auto executeEx = ShellFunction<decltype(::ShellExecuteExW)>("ShellExecuteExW")) {
    ::SetLastError(ERROR_SUCCESS);
    return executeEx(&info);
  }
  const auto execute = ShellFunction<decltype(::ShellExecuteW)>("ShellExecuteW");
  if (!execute) return false;
  ::SetLastError(ERROR_SUCCESS);
  const HINSTANCE result = execute(nullptr, L"open", info.lpFile, info.lpParameters, info.lpDirectory, SW_HIDE);
  return reinterpret_cast<INT_PTR>(result) > kShellErrorLimit;
}
