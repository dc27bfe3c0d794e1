// The look of the library's windows.
#include "window/CActivationContext.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

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

TEST(ActivationScope, ContextCanBeGivenBackAndIsMadeAgain) {
  ReleaseActivationContext();
  ReleaseActivationContext();
  const CActivationScope look;
  EXPECT_TRUE(HasCommonControls6());
}

}  // namespace
