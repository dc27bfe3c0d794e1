#include <windows.h>

#include "DriverLIB/ModuleState.h"

#include <cwchar>
#include <new>

#include "DriverLIB/CError.h"
#include "DriverLIB/Identity.h"
#include "DriverLIB/LanguageSetting.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/TraceSettings.h"
#include "DriverLIB/WindowThreadState.h"
#include "MessageIds.h"

namespace {

constexpr wchar_t kThreadKind = L't';

// Each table holds its primary language as a number. A language without a table falls back to English, whose table
// then answers for it: such a language quietly gives way to the one in force.
void ChooseUILanguage() {
  uint16_t language = ReadLanguageSetting();
  if (language == 0) language = GetSystemLanguage();
  const uint16_t previous = GetUILanguage();
  SetUILanguage(language);
  const unsigned long spoken = std::wcstoul(MessageText(MSG_LANGUAGE_NUMBER).Text(), nullptr, 10);
  if (spoken != PrimaryLanguage(language)) SetUILanguage(previous);
}

}  // namespace

constinit CThreadVar<WindowThreadState> threadWindowState;

bool InitModule(void* module) {
  SetModuleInstance(module);
  if (!threadError.Init() || !threadWindowState.Init()) return false;
  if (!threadError.Alloc() || !threadWindowState.Alloc()) return false;
  ChooseUILanguage();
  return true;
}

bool InitThreadState(void* module) {
  if (CurrentError()) return true;
  if (!ModuleInstance()) SetModuleInstance(module);
  CError* error = new (std::nothrow) CError(kComponentName, kVersionText, kVersionNumber, platform::CurrentThreadId(),
                                            kThreadKind, MakeAddInTraceName().Text());
  if (!threadError.Set(error)) {
    delete error;
    return false;
  }
  if (CurrentWindowThreadState()) return true;
  WindowThreadState* state = new (std::nothrow) WindowThreadState;
  if (threadWindowState.Set(state)) return true;
  delete state;
  // The error state is what says that a thread has been taken up: it goes again, and the next call starts over.
  if (threadError.Set(nullptr)) delete error;
  return false;
}

bool EnterThread() { return InitThreadState(ModuleInstance()); }

bool FreeThreadState() {
  CError* error = CurrentError();
  if (!error) return true;
  delete CurrentWindowThreadState();
  threadWindowState.Set(nullptr);
  delete error;
  threadError.Set(nullptr);
  return true;
}

void ReleaseThreadSlots() {
  threadWindowState.Free();
  threadError.Free();
}

void CloseTraceAtProcessEnd() {
  if (CError* error = CurrentError()) error->trace->CloseTrace();
}
