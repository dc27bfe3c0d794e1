// The exported functions, but for NemPdfUIDoModal and NemPdfUIShowVersion, which have units of their own. They take up
// the thread and hand on; what they hand on to knows no window. They have no catch-all: destructors clean up, and what
// was thrown passes on.
#include <new>

#include "DriverLIB/CError.h"
#include "DriverLIB/Identity.h"
#include "DriverLIB/ModuleState.h"
#include "NemPdfUI.h"
#include "ui/PropertyAccess.h"

namespace {

constexpr char kSource[] = "..\\NemUI";

static_assert(NEMPDFUI_VERSION == kVersionNumber, "the header that hosts include is of another version");
static_assert(NEMPDFUI_BAD_HANDLE == kBadHandle);

int Set(NemPdfUIHandle handle, int32_t index, const void* name, bool wide, const void* value) {
  return EnterThread() ? SetProperty(handle, index, name, wide, value) : 0;
}

int Get(NemPdfUIHandle handle, int32_t index, const void* name, bool wide, void* buffer, int32_t size) {
  return EnterThread() ? GetProperty(handle, index, name, wide, buffer, size) : 0;
}

}  // namespace

int NemPdfUICreateDialog(NemPdfUIHandle* handle) {
  if (!EnterThread() || !handle) return 0;
  *handle = nullptr;  // should the construction throw
  *handle = reinterpret_cast<NemPdfUIHandle>(new (std::nothrow) CDialogProperties);
  return 1;
}

int NemPdfUIFreeDialog(NemPdfUIHandle* handle) {
  if (!EnterThread() || !handle) return 0;
  CDialogProperties* dialog = DialogFromHandle(*handle);
  if (!dialog || dialog->running) return 0;
  delete dialog;
  *handle = nullptr;
  return 1;
}

int NemPdfUISetPropertyA(NemPdfUIHandle handle, int32_t index, const char* name, const void* value) {
  return Set(handle, index, name, false, value);
}

int NemPdfUISetPropertyW(NemPdfUIHandle handle, int32_t index, const wchar_t* name, const void* value) {
  return Set(handle, index, name, true, value);
}

int NemPdfUIGetPropertyA(NemPdfUIHandle handle, int32_t index, const char* name, void* buffer, int32_t size) {
  return Get(handle, index, name, false, buffer, size);
}

int NemPdfUIGetPropertyW(NemPdfUIHandle handle, int32_t index, const wchar_t* name, void* buffer, int32_t size) {
  return Get(handle, index, name, true, buffer, size);
}

int NemPdfUIGetVersion(uint32_t* version) {
  if (!EnterThread()) return 0;
  // The error is not reported here: it stays with the thread, and the thread's next set or get call answers for it.
  if (!version) return SetError(CurrentError(), kErrorInvalidFunctionArgument, kSource, 282);
  *version = kVersionNumber;
  return 1;
}
