// A variable of one pointer that every thread has for itself.
#pragma once

#include <cstdint>

#include "DriverLIB/Platform.h"

// Holds a slot of the platform's thread-local storage. It does not own what the pointers point to: whoever stores an
// object destroys it on the same thread. No `thread_local`: its destructors would run at moments that a library which
// is loaded and unloaded by its host cannot choose.
class CThreadVarBase {
 public:
  constexpr CThreadVarBase() = default;
  CThreadVarBase(const CThreadVarBase&) = delete;
  CThreadVarBase& operator=(const CThreadVarBase&) = delete;

  // Gives the slot back.
  virtual ~CThreadVarBase();

  // Forgets the slot without giving it back. Always true.
  virtual bool Init();

  // Obtains a slot unless one is held; it starts with null on the calling thread. False when the platform has none.
  bool Alloc();

  // Gives the slot back. True also when none is held.
  bool Free();

 protected:
  bool SetPointer(void* pointer);
  void* GetPointer() const;

 private:
  uint32_t slot_ = platform::kNoThreadSlot;
};

template <typename Type>
class CThreadVar : public CThreadVarBase {
 public:
  // Stores the calling thread's pointer. False when no slot is held.
  bool Set(Type* pointer) { return SetPointer(pointer); }

  // The calling thread's pointer, null when none was stored or no slot is held. Leaves the system's last error alone.
  Type* Get() const { return static_cast<Type*>(GetPointer()); }
};
