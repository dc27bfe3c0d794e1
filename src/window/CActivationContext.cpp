#include "window/CActivationContext.h"

#include <atomic>

#include "DriverLIB/MessageText.h"

namespace {

// Made at first use, not at attach: creating a context takes the loader's time and may load files.
std::atomic<HANDLE> sharedContext{INVALID_HANDLE_VALUE};
SRWLOCK lock = SRWLOCK_INIT;

HANDLE MakeContext() {
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  description.hModule = static_cast<HMODULE>(ModuleInstance());
  description.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
  return ::CreateActCtxW(&description);
}

// Wine registers the classes of common controls 6 when one is first asked for. A thread that asks while another one
// does it finds no such class, and its dialog does not come up: they are asked for here, before any thread goes on.
void MeetControlClasses(HANDLE context) {
  ULONG_PTR cookie = 0;
  if (!::ActivateActCtx(context, &cookie)) return;
  for (const wchar_t* name : {L"Button", L"ComboBox", L"ComboLBox", L"Edit", L"ListBox", L"Static"}) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    ::GetClassInfoExW(nullptr, name, &description);
  }
  ::DeactivateActCtx(0, cookie);
}

HANDLE SharedContext() {
  HANDLE context = sharedContext.load(std::memory_order_acquire);
  if (context != INVALID_HANDLE_VALUE) return context;
  ::AcquireSRWLockExclusive(&lock);
  context = sharedContext.load(std::memory_order_relaxed);
  if (context == INVALID_HANDLE_VALUE) {
    context = MakeContext();
    if (context != INVALID_HANDLE_VALUE) MeetControlClasses(context);
    sharedContext.store(context, std::memory_order_release);
  }
  ::ReleaseSRWLockExclusive(&lock);
  return context;
}

}  // namespace

CActivationScope::CActivationScope() {
  const HANDLE context = SharedContext();
  active_ = context != INVALID_HANDLE_VALUE && ::ActivateActCtx(context, &cookie_);
}

CActivationScope::~CActivationScope() {
  if (active_) ::DeactivateActCtx(0, cookie_);
}

void ReleaseActivationContext() {
  const HANDLE context = sharedContext.exchange(INVALID_HANDLE_VALUE);
  if (context != INVALID_HANDLE_VALUE) ::ReleaseActCtx(context);
}
