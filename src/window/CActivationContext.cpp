#include "window/CActivationContext.h"

#include <atomic>

#include "DriverLIB/MessageText.h"

namespace {

// Made at first use, not at attach: creating a context takes the loader's time and may load files.
std::atomic<HANDLE> sharedContext{INVALID_HANDLE_VALUE};

HANDLE SharedContext() {
  HANDLE context = sharedContext.load(std::memory_order_acquire);
  if (context != INVALID_HANDLE_VALUE) return context;
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  description.hModule = static_cast<HMODULE>(ModuleInstance());
  description.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
  context = ::CreateActCtxW(&description);
  HANDLE expected = INVALID_HANDLE_VALUE;
  if (context != INVALID_HANDLE_VALUE && !sharedContext.compare_exchange_strong(expected, context)) {
    ::ReleaseActCtx(context);  // another thread was faster
    context = expected;
  }
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
