// The look of the library's windows.
#include "window/CActivationContext.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

#include "driver/SelfProcess.h"

namespace {

HANDLE Current() {
  HANDLE context = nullptr;
  GetCurrentActCtx(&context);
  if (context) ReleaseActCtx(context);
  return context;
}

// Common controls 6 put their own classes in place of the system's.
bool HasCommonControls6() {
  ACTCTX_SECTION_KEYED_DATA data{};
  data.cbSize = sizeof data;
  return FindActCtxSectionStringW(0, nullptr, ACTIVATION_CONTEXT_SECTION_WINDOW_CLASS_REDIRECTION, L"Button", &data);
}

TEST(ActivationScope, BringsCommonControls6ForItsLife) {
  const HANDLE before = Current();
  ASSERT_FALSE(HasCommonControls6()) << "the program itself has no such manifest";
  {
    const CActivationScope look;
    EXPECT_TRUE(HasCommonControls6());
    EXPECT_NE(before, Current());
  }
  EXPECT_FALSE(HasCommonControls6());
  EXPECT_EQ(before, Current());
}

TEST(ActivationScope, NestsAndSharesOneContext) {
  const CActivationScope outer;
  const HANDLE shared = Current();
  {
    const CActivationScope inner;
    EXPECT_EQ(shared, Current());
  }
  EXPECT_EQ(shared, Current());
}

TEST(ActivationScope, ServesManyThreadsAtOnce) {
  ReleaseActivationContext();  // all of them make it
  std::vector<std::thread> threads;
  int served[8] = {};
  for (int& one : served)
    threads.emplace_back([&one] {
      const CActivationScope look;
      one = HasCommonControls6();
    });
  for (std::thread& thread : threads) thread.join();
  for (const int one : served) EXPECT_EQ(1, one);
}

// In a process of its own, whose threads are the first to ask for controls; on more than one processor where there are
// some.
TEST(FirstControls, DISABLED_ComeUpOnManyThreadsAtOnce) {
  constexpr int kThreads = 8;
  std::atomic<int> ready{0}, failed{0};
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i)
    threads.emplace_back([&, i] {
      SetThreadAffinityMask(GetCurrentThread(),
                            DWORD_PTR{1} << (i % std::max(1u, std::thread::hardware_concurrency())));
      ++ready;
      while (ready < kThreads) SwitchToThread();
      const CActivationScope look;
      for (const wchar_t* name : {L"Button", L"ComboBox", L"Edit", L"ListBox", L"Static", WC_LISTVIEWW}) {
        const HWND window = CreateWindowExW(0, name, nullptr, WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
        if (!window) ++failed;
        DestroyWindow(window);
      }
    });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(0, failed);
}

// Wine has lost some in each third process.
TEST(ActivationScope, TheFirstControlsOfAProcessComeUpOnManyThreadsAtOnce) {
  for (int process = 0; process < 12; ++process) {
    const ProcessResult result = RunSelf(L"--gtest_also_run_disabled_tests --gtest_filter=FirstControls.*");
    ASSERT_EQ(0u, result.exitCode) << result.output;
    ASSERT_NE(std::string::npos, result.output.find("[  PASSED  ] 1 test")) << result.output;
  }
}

TEST(ActivationScope, ContextCanBeGivenBackAndIsMadeAgain) {
  ReleaseActivationContext();
  ReleaseActivationContext();
  const CActivationScope look;
  EXPECT_TRUE(HasCommonControls6());
}

}  // namespace
