#include "driver/Watchdog.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "driver/Pages.h"
#include "driver/Text.h"

namespace {

// The thread that owns the window may be stuck, and would then never answer.
std::wstring TextWithoutWaiting(HWND window) {
  wchar_t text[256] = L"";
  DWORD_PTR copied = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, ARRAYSIZE(text), reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, 200,
                      &copied);
  return text;
}

BOOL CALLBACK PrintWindow(HWND window, LPARAM) {
  if (!IsWindowVisible(window)) return TRUE;
  std::fprintf(stderr, "  %s \"%s\"%s\n", ToUtf8(ClassNameOf(window)).c_str(),
               ToUtf8(TextWithoutWaiting(window)).c_str(), IsWindowEnabled(window) ? "" : " (disabled)");
  EnumChildWindows(
      window,
      [](HWND child, LPARAM) -> BOOL {
        if (!IsWindowVisible(child) || !HasClass(child, L"#32770")) return TRUE;
        const PageInfo* page = FindPageByHelpId(GetWindowContextHelpId(child));
        std::fprintf(stderr, "    page \"%s\"%s%s\n", ToUtf8(TextWithoutWaiting(child)).c_str(), page ? ", " : "",
                     page ? page->name : "");
        return TRUE;
      },
      0);
  return TRUE;
}

void GiveUp(DWORD threadId, int seconds) {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  std::fprintf(stderr, "\nWatchdog: no end after %d seconds in %s.%s. Open windows:\n", seconds,
               test ? test->test_suite_name() : "?", test ? test->name() : "?");
  EnumThreadWindows(threadId, PrintWindow, 0);
  std::fflush(nullptr);
  TerminateProcess(GetCurrentProcess(), Watchdog::kExitCode);
}

int Seconds(int seconds) {
  const char* override = std::getenv("NEMPDF_TEST_TIMEOUT");
  return override && std::atoi(override) > 0 ? std::atoi(override) : seconds;
}

}  // namespace

Watchdog::Watchdog(int seconds)
    : stop_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      thread_([stop = stop_, seconds = Seconds(seconds), threadId = GetCurrentThreadId()] {
        if (WaitForSingleObject(stop, static_cast<DWORD>(seconds) * 1000) == WAIT_TIMEOUT) GiveUp(threadId, seconds);
      }) {}

Watchdog::~Watchdog() {
  SetEvent(stop_);
  thread_.join();
  CloseHandle(stop_);
}
