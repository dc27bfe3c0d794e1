#include <windows.h>

#include "DriverLIB/ModuleState.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "driver/ImportPatch.h"
#include "DriverLIB/CError.h"
#include "DriverLIB/Identity.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/WindowThreadState.h"
#include "support/FailingNew.h"
#include "support/RegistryValue.h"
#include "support/TempFile.h"

namespace {

constexpr char kKernel[] = "kernel32.dll";

DWORD WINAPI NoSlot() { return TLS_OUT_OF_INDEXES; }
BOOL WINAPI NoValue(DWORD, void*) { return FALSE; }

int valuesStored = 0;
BOOL WINAPI NotTheSecondValue(DWORD slot, void* value) {
  static auto* const real = RealFunction(kKernel, "TlsSetValue", TlsSetValue);
  return ++valuesStored == 2 ? FALSE : real(slot, value);
}

int slotsLeft = 0;
DWORD WINAPI FewSlots() {
  static auto* const real = RealFunction(kKernel, "TlsAlloc", TlsAlloc);
  return slotsLeft-- > 0 ? real() : TLS_OUT_OF_INDEXES;
}

// Lets go of everything that the program took at its start, and takes it up again at the end.
class ModuleStateTest : public testing::Test {
 protected:
  ModuleStateTest() {
    FreeThreadState();
    ReleaseThreadSlots();
    SetUILanguage(kEnglish);
  }
  ~ModuleStateTest() override {
    RestoreImport(kKernel, "TlsAlloc");
    RestoreImport(kKernel, "TlsSetValue");
    FreeThreadState();
    ReleaseThreadSlots();
    InitModule(GetModuleHandleW(nullptr));
    InitThreadState(GetModuleHandleW(nullptr));
  }
  static void InThread(void (*body)()) { std::thread(body).join(); }

  HMODULE program = GetModuleHandleW(nullptr);
};

}  // namespace

TEST_F(ModuleStateTest, BeforeTheStartThereIsNothing) {
  EXPECT_EQ(nullptr, CurrentError());
  EXPECT_EQ(nullptr, CurrentWindowThreadState());
  EXPECT_FALSE(InitThreadState(nullptr));  // no slot to store in
  EXPECT_TRUE(FreeThreadState());
  ReleaseThreadSlots();
  CloseTraceAtProcessEnd();
}

TEST_F(ModuleStateTest, TheStartKeepsTheModule) {
  int module;
  ASSERT_TRUE(InitModule(&module));
  EXPECT_EQ(&module, ModuleInstance());
  EXPECT_EQ(nullptr, CurrentError());
  ASSERT_TRUE(InitThreadState(program));  // one is stored already
  EXPECT_EQ(&module, ModuleInstance());
}

TEST_F(ModuleStateTest, AThreadKeepsTheModuleWhenNoneIsStored) {
  ASSERT_TRUE(InitModule(nullptr));
  ASSERT_TRUE(InitThreadState(program));
  EXPECT_EQ(program, ModuleInstance());
}

TEST_F(ModuleStateTest, AThreadGetsBothStatesOnce) {
  ASSERT_TRUE(InitModule(program));
  ASSERT_TRUE(InitThreadState(program));
  CError* error = CurrentError();
  WindowThreadState* window = CurrentWindowThreadState();
  ASSERT_NE(nullptr, error);
  ASSERT_NE(nullptr, window);
  EXPECT_EQ(GetCurrentThreadId(), error->trace->threadId);
  EXPECT_EQ(L't', error->trace->kind);
  EXPECT_EQ(nullptr, window->creating);
  EXPECT_EQ(nullptr, window->creationHook);
  EXPECT_EQ(nullptr, window->running);
  for (uintptr_t word : window->data) EXPECT_EQ(0u, word);
  EXPECT_TRUE(InitThreadState(program));
  EXPECT_EQ(error, CurrentError());
  EXPECT_EQ(window, CurrentWindowThreadState());
}

TEST_F(ModuleStateTest, EachThreadHasItsOwn) {
  ASSERT_TRUE(InitModule(program));
  ASSERT_TRUE(InitThreadState(program));
  CurrentError()->code = 47;
  InThread([] {
    EXPECT_EQ(nullptr, CurrentError());
    EXPECT_TRUE(InitThreadState(nullptr));
    ASSERT_NE(nullptr, CurrentError());
    EXPECT_EQ(0u, CurrentError()->code);
    EXPECT_TRUE(FreeThreadState());
    EXPECT_EQ(nullptr, CurrentError());
    EXPECT_EQ(nullptr, CurrentWindowThreadState());
    EXPECT_TRUE(FreeThreadState());
  });
  EXPECT_EQ(47u, CurrentError()->code);
}

TEST_F(ModuleStateTest, ALetGoThreadCanBeTakenUpAgain) {
  ASSERT_TRUE(InitModule(program));
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(InitThreadState(program));
    EXPECT_NE(nullptr, CurrentError());
    EXPECT_TRUE(FreeThreadState());
    EXPECT_EQ(nullptr, CurrentError());
  }
}

TEST_F(ModuleStateTest, WithoutASlotTheStartFails) {
  PatchImport(kKernel, "TlsAlloc", reinterpret_cast<void*>(NoSlot));
  EXPECT_FALSE(InitModule(program));
  EXPECT_FALSE(InitThreadState(program));
}

TEST_F(ModuleStateTest, WithoutTheSecondSlotTheStartFails) {
  slotsLeft = 1;
  PatchImport(kKernel, "TlsAlloc", reinterpret_cast<void*>(FewSlots));
  EXPECT_FALSE(InitModule(program));
}

TEST_F(ModuleStateTest, AStateThatCannotBeStoredIsAFailure) {
  ASSERT_TRUE(InitModule(program));
  PatchImport(kKernel, "TlsSetValue", reinterpret_cast<void*>(NoValue));
  EXPECT_FALSE(InitThreadState(program));
  RestoreImport(kKernel, "TlsSetValue");
  EXPECT_EQ(nullptr, CurrentError());
  EXPECT_TRUE(InitThreadState(program));
}

TEST_F(ModuleStateTest, WithoutTheSecondStateTheFirstIsTakenBack) {
  const std::string name = "second_state-AddInUI-t" + std::to_string(GetCurrentThreadId()) + ".log";
  TempFile file(name);
  const ProductValue machine(HKEY_LOCAL_MACHINE, L"TraceFilename");
  ProductValue user(HKEY_CURRENT_USER, L"TraceFilename");
  user.Set(L"second_state.log");
  ASSERT_TRUE(InitModule(program));
  valuesStored = 0;
  PatchImport(kKernel, "TlsSetValue", reinterpret_cast<void*>(NotTheSecondValue));
  EXPECT_FALSE(InitThreadState(program));
  RestoreImport(kKernel, "TlsSetValue");
  EXPECT_EQ(3, valuesStored);  // the error state, the window layer's, the error state's end
  EXPECT_EQ(nullptr, CurrentError());
  EXPECT_EQ(nullptr, CurrentWindowThreadState());
  EXPECT_TRUE(file.Text().ends_with(L"Trace closed.\r\n"));  // it has been destroyed
  EXPECT_TRUE(InitThreadState(program));
  EXPECT_NE(nullptr, CurrentError());
  EXPECT_NE(nullptr, CurrentWindowThreadState());
  FreeThreadState();  // the trace is let go before its file
}

TEST_F(ModuleStateTest, ExhaustedMemoryLeavesNull) {
  ASSERT_TRUE(InitModule(program));
  {
    // Two texts of the user's identity are asked for in this way too, while the trace's name is looked up.
    const FailingNew exhausted;
    EXPECT_TRUE(InitThreadState(program));
    EXPECT_EQ(nullptr, CurrentError());
    EXPECT_EQ(nullptr, CurrentWindowThreadState());
    EXPECT_TRUE(FreeThreadState());
  }
  EXPECT_TRUE(InitThreadState(program));
  EXPECT_NE(nullptr, CurrentError());
  EXPECT_NE(nullptr, CurrentWindowThreadState());
}

TEST_F(ModuleStateTest, TheEndOfTheProcessClosesTheTraceAndFreesNothing) {
  const std::string name = "process_end-AddInUI-t" + std::to_string(GetCurrentThreadId()) + ".log";
  TempFile file(name);
  const ProductValue machine(HKEY_LOCAL_MACHINE, L"TraceFilename");
  ProductValue user(HKEY_CURRENT_USER, L"TraceFilename");
  user.Set(L"process_end.log");
  ASSERT_TRUE(InitModule(program));
  ASSERT_TRUE(InitThreadState(program));
  ASSERT_TRUE(CurrentError()->trace->IsOpen());
  CloseTraceAtProcessEnd();
  EXPECT_NE(nullptr, CurrentError());
  EXPECT_NE(nullptr, CurrentWindowThreadState());
  EXPECT_FALSE(CurrentError()->trace->IsOpen());
  const std::wstring text = file.Text();
  EXPECT_EQ(text.size() - 15, text.find(L"Trace closed.\r\n"));
}
