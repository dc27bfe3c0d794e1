#include "ShellSpy.h"

#include <gtest/gtest.h>

#include <cstring>

#include "driver/ImportPatch.h"
#include "environment/Shell.h"

std::vector<ShellCall> shellCalls;

namespace {

decltype(&::GetProcAddress) realFind = nullptr;

HINSTANCE WINAPI Execute(HWND owner, const wchar_t* verb, const wchar_t* file, const wchar_t*, const wchar_t*,
                         INT show) {
  shellCalls.push_back({owner, verb ? std::optional<std::wstring>(verb) : std::nullopt, file, show});
  return reinterpret_cast<HINSTANCE>(INT_PTR{42});
}

FARPROC WINAPI Find(HMODULE module, const char* name) {
  if (!IS_INTRESOURCE(name) && std::strcmp(name, "ShellExecuteW") == 0)
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&Execute));
  return realFind(module, name);
}

// The library keeps the function that it finds first.
class ShellSpy : public testing::Environment {
  void SetUp() override {
    realFind = RealFunction("kernel32.dll", "GetProcAddress", &::GetProcAddress);
    PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&Find));
    OpenWithShell(nullptr, L"", 0);
    RestoreImport("kernel32.dll", "GetProcAddress");
    shellCalls.clear();
  }
};
const testing::Environment* const kSpy = testing::AddGlobalTestEnvironment(new ShellSpy);

}  // namespace
