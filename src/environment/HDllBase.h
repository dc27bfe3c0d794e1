#pragma once

#include <windows.h>

#include <cstdint>

#include "DriverLIB/CUString.h"

// Macros of the platform, of which nothing here makes use.
#undef LoadLibrary
#undef FreeModule

// A library that is loaded at run time, and freed when the object goes. Nothing is traced or shown: a failure leaves
// the system's error in `lastError`. An object belongs to one thread; several may hold the same library.
class HDllBase {
 public:
  HDllBase() = default;
  HDllBase(const HDllBase&) = delete;
  HDllBase& operator=(const HDllBase&) = delete;
  virtual ~HDllBase();

  // Only for a fresh object: forgets module, path and error without freeing anything.
  virtual void Init();

  bool IsLoaded() const { return module != nullptr; }
  HMODULE GetModule() const { return module; }

  // No effect on a loaded object: it never changes to another file. With a full path the libraries that the file needs
  // come from its own folder or from the system; a bare name is found where the platform finds it.
  bool LoadLibrary(const wchar_t* filename);
  bool FreeModule();

  // The address of an exported function; null, and false, when there is none.
  bool GetProc(const wchar_t* name, void*& pointer);

  HMODULE module = nullptr;
  CUString path;           // the full path of the loaded file
  uint32_t lastError = 0;  // of the last failed load, look-up or free
};
