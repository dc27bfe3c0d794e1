#include "window/Windows.h"

#include "controls/CColourPopup.h"
#include "DriverLIB/ModuleState.h"
#include "window/CActivationContext.h"
#include "window/CControlBar.h"

namespace {

bool Attach(HMODULE module) { return InitModule(module) && InitThreadState(module); }

void Detach(bool processEnds) {
  if (processEnds) {
    CloseTraceAtProcessEnd();
    return;
  }
  FreeThreadState();
  CControlBar::UnregisterWindowClass();
  CColourPopup::UnregisterWindowClasses();
  ReleaseActivationContext();
  ReleaseThreadSlots();
}

bool HandleReason(HMODULE module, DWORD reason, bool processEnds) {
  switch (reason) {
    case DLL_PROCESS_ATTACH:
      return Attach(module);
    case DLL_THREAD_ATTACH:
      return InitThreadState(module);
    case DLL_THREAD_DETACH:
      return FreeThreadState();
    case DLL_PROCESS_DETACH:
      Detach(processEnds);
      return true;
    default:
      return true;
  }
}

}  // namespace

// `reserved` is not null at process detach when the whole process ends.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* reserved) {
  try {
    return HandleReason(module, reason, reserved != nullptr);
  } catch (...) {
    return FALSE;  // out of memory: an exception must not reach the loader
  }
}
