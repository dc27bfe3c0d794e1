#include "DriverLIB/CThreadVar.h"

CThreadVarBase::~CThreadVarBase() { Free(); }

bool CThreadVarBase::Init() {
  slot_ = platform::kNoThreadSlot;
  return true;
}

bool CThreadVarBase::Alloc() {
  if (slot_ != platform::kNoThreadSlot) return true;
  slot_ = platform::AllocateThreadSlot();
  return SetPointer(nullptr);
}

bool CThreadVarBase::Free() {
  if (slot_ == platform::kNoThreadSlot) return true;
  const bool freed = platform::FreeThreadSlot(slot_);
  slot_ = platform::kNoThreadSlot;
  return freed;
}

bool CThreadVarBase::SetPointer(void* pointer) {
  return slot_ != platform::kNoThreadSlot && platform::SetThreadSlot(slot_, pointer);
}

void* CThreadVarBase::GetPointer() const {
  if (slot_ == platform::kNoThreadSlot) return nullptr;
  // Reading a slot resets the system's last error on Windows. A caller on its way to report that error asks for the
  // thread's state first, so it must survive.
  const uint32_t lastError = platform::LastError();
  void* pointer = platform::GetThreadSlot(slot_);
  platform::SetLastError(lastError);
  return pointer;
}
