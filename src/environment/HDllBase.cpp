#include "environment/HDllBase.h"

#include "DriverLIB/CEPathS.h"
#include "DriverLIB/CEString.h"
#include "environment/QuietErrors.h"

namespace {

bool IsSeparator(wchar_t character) { return character == L'\\' || character == L'/'; }

// With a drive and from its root, or on a server. A null text is none.
bool IsFullPath(const wchar_t* path) {
  if (!path || !path[0] || !path[1]) return false;
  return path[1] == L':' ? IsSeparator(path[2]) : IsSeparator(path[0]) && IsSeparator(path[1]);
}

// What a library needs in its turn comes from beside it or from the system, never from the host's folder, the current
// directory or the path of the environment. A name without a folder is left to the platform's own search.
HMODULE LoadWithItsNeeds(const wchar_t* filename) {
  if (!IsFullPath(filename)) return ::LoadLibraryW(filename);
  const HMODULE module =
      ::LoadLibraryExW(filename, nullptr, LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
  // A system that does not know these flags yet looks beside the library first, at least.
  if (!module && ::GetLastError() == ERROR_INVALID_PARAMETER)
    return ::LoadLibraryExW(filename, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  return module;
}

}  // namespace

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
    module = LoadWithItsNeeds(filename);
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
