#include "environment/HDllBase.h"

#include "DriverLIB/CEPathS.h"
#include "DriverLIB/CEString.h"
#include "environment/QuietErrors.h"

HDllBase::~HDllBase() { FreeModule(); }

void HDllBase::Init() {
  module = nullptr;
  lastError = 0;
  path.Assign(nullptr);
}

bool HDllBase::LoadLibrary(const wchar_t* filename) {
  if (IsLoaded()) return true;
  {
    const QuietErrors quiet;
    module = ::LoadLibraryW(filename);
    if (!module) lastError = ::GetLastError();
  }
  if (!module) return false;
  path = CEPathString::ModulePath(module);
  return true;
}

bool HDllBase::FreeModule() {
  if (!IsLoaded()) return true;
  const bool freed = ::FreeLibrary(module);
  if (!freed) lastError = ::GetLastError();
  module = nullptr;
  return freed;
}

bool HDllBase::GetProc(const wchar_t* name, void*& pointer) {
  CEString narrowName;
  narrowName.AssignWide(name);
  pointer = IsLoaded() ? reinterpret_cast<void*>(::GetProcAddress(module, narrowName.Text())) : nullptr;
  if (!pointer) lastError = IsLoaded() ? ::GetLastError() : ERROR_INVALID_HANDLE;
  return pointer != nullptr;
}
