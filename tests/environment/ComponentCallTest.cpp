// The border to components that another compiler has built.
#include <windows.h>

#include "environment/ComponentCall.h"

#include <gtest/gtest.h>

#include <string>

#include "driver/SelfProcess.h"

namespace {

template <class Function>
void* Address(Function* function) {
  return reinterpret_cast<void*>(function);
}

int Join(int first, const char* second, unsigned third, int fourth) {
  return first == -1 && std::string(second) == "second" && third == 0xFFFFFFFF && fourth == 4 ? 33 : 0;
}
int Nothing() { return 7; }
int ThrowOwn() { throw std::string("own"); }
int Raise(DWORD code) {
  RaiseException(code, EXCEPTION_NONCONTINUABLE, 0, nullptr);
  return 1;
}
volatile uintptr_t noMemory = 8;
int Fault() { return *reinterpret_cast<volatile int*>(uintptr_t{noMemory}); }

// A component that holds its own exception.
int HoldOwn() {
  try {
    ThrowOwn();
  } catch (const std::string&) {
    return 5;
  }
  return 0;
}

constexpr DWORD kForeign[] = {
    0xE06D7363,  // C++ of another compiler
    0xE0434352,  // managed code
    0x0EEDFADE,  // another language
    0xC06D007F,  // a function bound late is missing
    1722,        // the number of an error
};

}  // namespace

TEST(ComponentCall, PassesArgumentsAndAnswerOn) {
  const char second[] = "second";
  EXPECT_EQ(33, CallComponent(Address(&Join),
                              {static_cast<uintptr_t>(-1), reinterpret_cast<uintptr_t>(second), 0xFFFFFFFF, 4}));
  EXPECT_EQ(7, CallComponent(Address(&Nothing), {}));
}

TEST(ComponentCall, TurnsWhatAnotherCompilersCodeThrowsIntoAnExceptionOfOurs) {
  for (const DWORD code : kForeign)
    EXPECT_THROW(CallComponent(Address(&Raise), {code}), ComponentException) << std::hex << code;
  EXPECT_EQ(7, CallComponent(Address(&Nothing), {})) << "and goes on";
}

TEST(ComponentCall, LeavesOurOwnExceptionsAsTheyAre) {
  EXPECT_THROW(CallComponent(Address(&ThrowOwn), {}), std::string);
  EXPECT_EQ(5, CallComponent(Address(&HoldOwn), {}));
}

TEST(ComponentCall, LeavesFaultsAndNotesToTheSystem) {
  for (const DWORD code : kForeign) EXPECT_TRUE(IsForeignException(code)) << std::hex << code;
  for (const DWORD code : {0xC0000005ul, 0xC00000FDul, 0xC0000374ul, 0x80000001ul, 0x80000003ul,  // faults
                           0x40010006ul, 0x406D1388ul,                                            // notes
                           0x20474343ul, 0x21474343ul, 0x22474343ul})                             // our own compiler's
    EXPECT_FALSE(IsForeignException(code)) << std::hex << code;
}

// Holds whatever it can, so only a fault gets out of it.
TEST(ComponentFault, DISABLED_InACall) {
  try {
    CallComponent(Address(&Fault), {});
  } catch (...) {
  }
}

TEST(ComponentCall, AFaultEndsTheProcessWhereItHappened) {
  const ProcessResult result =
      RunSelf(L"--gtest_also_run_disabled_tests --gtest_filter=ComponentFault.DISABLED_InACall");
  EXPECT_EQ(0xC0000005ul, result.exitCode) << result.output;
}
