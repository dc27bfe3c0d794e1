#include "environment/Shell.h"

#include "DriverLIB/SystemFunction.h"

namespace {

constexpr INT_PTR kShellErrorLimit = 32;  // smaller results of ShellExecuteW are errors

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
  if (const auto executeEx = ShellFunction<decltype(::ShellExecuteExW)>("ShellExecuteExW")) return executeEx(&info);
  const auto execute = ShellFunction<decltype(::ShellExecuteW)>("ShellExecuteW");
  if (!execute) return false;
  const HINSTANCE result = execute(nullptr, L"open", info.lpFile, info.lpParameters, info.lpDirectory, SW_HIDE);
  return reinterpret_cast<INT_PTR>(result) > kShellErrorLimit;
}
