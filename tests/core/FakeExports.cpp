#include "core/FakeExports.h"

#include "ui/PropertyAccess.h"

FakeExports fakeExports;

namespace {

bool IsRefused() {
  ++fakeExports.propertyCalls;
  if (fakeExports.errorsToAnswer == 0) return fakeExports.refusesProperties || fakeExports.refusesHandles;
  --fakeExports.errorsToAnswer;
  return true;
}

int Set(NemPdfUIHandle handle, int32_t index, const void* name, bool wide, const void* value) {
  if (fakeExports.refusesHandles) return NEMPDFUI_BAD_HANDLE;
  return IsRefused() ? 0 : SetProperty(handle, index, name, wide, value);
}

int Get(NemPdfUIHandle handle, int32_t index, const void* name, bool wide, void* buffer, int32_t size) {
  return IsRefused() ? 0 : GetProperty(handle, index, name, wide, buffer, size);
}

}  // namespace

int NemPdfUICreateDialog(NemPdfUIHandle* handle) {
  if (!fakeExports.takesUpThreads) return 0;
  *handle = nullptr;
  if (!fakeExports.hasMemory) return 1;
  *handle = reinterpret_cast<NemPdfUIHandle>(new CDialogProperties);
  ++fakeExports.objectCount;
  return 1;
}

int NemPdfUIFreeDialog(NemPdfUIHandle* handle) {
  CDialogProperties* dialog = DialogFromHandle(*handle);
  if (!dialog) return 0;
  delete dialog;
  --fakeExports.objectCount;
  *handle = nullptr;
  return 1;
}

int NemPdfUIDoModal(NemPdfUIHandle handle) {
  if (fakeExports.whileModal) fakeExports.whileModal(handle);
  return fakeExports.modalResult;
}

int NemPdfUIShowVersion() { return fakeExports.versionResult; }

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
  if (!fakeExports.takesUpThreads) return 0;
  *version = fakeExports.version;
  return 1;
}
