#include "PlatformSpy.h"

#include <gtest/gtest.h>

#include <string_view>

#include "driver/ImportPatch.h"

std::vector<OpenedAddress> openedAddresses;
std::function<void()> whileOpening;

namespace {

constexpr UINT kUsualDpi = 96;
UINT dpiOfWindows = kUsualDpi;
decltype(&::GetProcAddress) realGetProcAddress = nullptr;

HINSTANCE WINAPI FakeShellExecute(HWND owner, const wchar_t* verb, const wchar_t* file, const wchar_t*, const wchar_t*,
                                  INT show) {
  openedAddresses.push_back({owner, verb, file, show, ::GetCapture()});
  if (whileOpening) whileOpening();
  return reinterpret_cast<HINSTANCE>(INT_PTR{42});
}

UINT WINAPI FakeGetDpiForWindow(HWND) { return dpiOfWindows; }

FARPROC WINAPI FakeGetProcAddress(HMODULE module, const char* name) {
  if (IS_INTRESOURCE(name)) return realGetProcAddress(module, name);
  const std::string_view function = name;
  if (function == "ShellExecuteW") return reinterpret_cast<FARPROC>(&FakeShellExecute);
  if (function == "GetDpiForWindow") return reinterpret_cast<FARPROC>(&FakeGetDpiForWindow);
  return realGetProcAddress(module, name);
}

// The functions are bound at first use, once for the process: the spy must be there before.
class PlatformSpy : public testing::Environment {
  void SetUp() override {
    realGetProcAddress = ::GetProcAddress;
    PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&FakeGetProcAddress));
  }
};
const testing::Environment* const kSpy = testing::AddGlobalTestEnvironment(new PlatformSpy);

}  // namespace

DpiScope::DpiScope(UINT dpi) { dpiOfWindows = dpi; }

DpiScope::~DpiScope() { dpiOfWindows = kUsualDpi; }
