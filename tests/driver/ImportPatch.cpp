#include "driver/ImportPatch.h"

#include <windows.h>
// behind windows.h
#include <psapi.h>

#include <cstring>
#include <vector>

namespace {

bool IsSystemModule(HMODULE module) {
  wchar_t path[MAX_PATH], windows[MAX_PATH];
  const DWORD length = GetModuleFileNameW(module, path, MAX_PATH);
  const UINT prefix = GetWindowsDirectoryW(windows, MAX_PATH);
  return length == 0 || (length > prefix && _wcsnicmp(path, windows, prefix) == 0);
}

std::vector<HMODULE> OwnModules() {
  std::vector<HMODULE> modules(1024);
  DWORD bytes = 0;
  if (!K32EnumProcessModules(GetCurrentProcess(), modules.data(), static_cast<DWORD>(modules.size() * sizeof(HMODULE)),
                             &bytes))
    return {};
  modules.resize(std::min<size_t>(modules.size(), bytes / sizeof(HMODULE)));
  std::erase_if(modules, IsSystemModule);
  return modules;
}

void** FindImport(HMODULE module, const char* library, const char* function) {
  auto* base = reinterpret_cast<BYTE*>(module);
  const auto* headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
  const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  if (directory.VirtualAddress == 0) return nullptr;

  auto* import = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
  for (; import->Name != 0; ++import) {
    if (_stricmp(reinterpret_cast<char*>(base + import->Name), library) != 0) continue;
    auto* name = reinterpret_cast<IMAGE_THUNK_DATA*>(base + import->OriginalFirstThunk);
    auto* slot = reinterpret_cast<IMAGE_THUNK_DATA*>(base + import->FirstThunk);
    for (; name->u1.AddressOfData != 0; ++name, ++slot) {
      if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) continue;
      const auto* entry = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
      if (std::strcmp(reinterpret_cast<const char*>(entry->Name), function) == 0)
        return reinterpret_cast<void**>(&slot->u1.Function);
    }
  }
  return nullptr;
}

int SetImport(const char* library, const char* function, void* target) {
  int changed = 0;
  for (HMODULE module : OwnModules()) {
    void** slot = FindImport(module, library, function);
    if (!slot || *slot == target) continue;
    DWORD protection = 0;
    if (!VirtualProtect(slot, sizeof(void*), PAGE_READWRITE, &protection)) continue;
    *slot = target;
    VirtualProtect(slot, sizeof(void*), protection, &protection);
    ++changed;
  }
  return changed;
}

}  // namespace

int PatchImport(const char* library, const char* function, void* replacement) {
  return SetImport(library, function, replacement);
}

int RestoreImport(const char* library, const char* function) {
  return SetImport(library, function, RealImport(library, function));
}

void* RealImport(const char* library, const char* function) {
  return reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA(library), function));
}
