// The stack protector's guard, and what becomes of a program that overruns a buffer.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

#include "driver/SelfProcess.h"

extern "C" uintptr_t __stack_chk_guard;  // NOLINT(bugprone-reserved-identifier): the compiler's name

namespace {

constexpr unsigned long kStackBufferOverrun = 0xC0000409;  // STATUS_STACK_BUFFER_OVERRUN

[[gnu::noinline]] size_t Overrun(size_t length) {
  char buffer[16];
  std::memset(buffer, 'x', length);
  asm volatile("" : : "r"(buffer) : "memory");  // the buffer is looked at
  return std::strlen("");
}

}  // namespace

// Runs only as the child of the test below.
TEST(StackProtector, DISABLED_OverrunsABuffer) {
  volatile size_t length = 48;  // not known to the compiler
  Overrun(length);
  FAIL() << "still here";
}

TEST(StackProtector, OverrunEndsTheProcessAtOnce) {
  const ProcessResult child =
      RunSelf(L"--gtest_also_run_disabled_tests --gtest_filter=StackProtector.DISABLED_OverrunsABuffer");
  EXPECT_EQ(kStackBufferOverrun, child.exitCode);
  EXPECT_EQ(std::string::npos, child.output.find("still here"));
}

TEST(StackProtector, GuardIsDrawnAnewAndBeginsWithAZero) {
  EXPECT_EQ(0u, __stack_chk_guard & 0xFF);
  const ProcessResult first = RunSelf(L"--gtest_also_run_disabled_tests --gtest_filter=StackProtector.DISABLED_Tells");
  const ProcessResult second = RunSelf(L"--gtest_also_run_disabled_tests --gtest_filter=StackProtector.DISABLED_Tells");
  const auto guard = [](const std::string& output) {
    const size_t start = output.find("guard ");
    return start == std::string::npos ? std::string() : output.substr(start, output.find('\n', start) - start);
  };
  EXPECT_FALSE(guard(first.output).empty());
  EXPECT_NE(guard(first.output), guard(second.output));
}

// Runs only as the child of the test above.
TEST(StackProtector, DISABLED_Tells) {
  std::printf("guard %llx\n", static_cast<unsigned long long>(__stack_chk_guard));
}
