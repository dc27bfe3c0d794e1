// Memory that is exhausted on demand, for all that the library allocates: the throwing forms of new come from the
// run-time library's malloc.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "driver/ImportPatch.h"

// While it lives, each allocation after the first `granted` ones fails. One at a time, and for a few statements only:
// the test's own allocations fail as well.
class FailingMalloc {
 public:
  explicit FailingMalloc(int granted) {
    realMalloc_ = RealFunction("msvcrt.dll", "malloc", &std::malloc);
    realFree_ = RealFunction("msvcrt.dll", "free", &std::free);
    PatchImport("msvcrt.dll", "malloc", reinterpret_cast<void*>(&Malloc));
    PatchImport("msvcrt.dll", "free", reinterpret_cast<void*>(&Free));
    PrepareReserve();
    grantedLeft_ = granted;
    blocksLeft_ = 0;
    counting_ = true;
  }
  ~FailingMalloc() {
    counting_ = false;
    RestoreImport("msvcrt.dll", "free");
    RestoreImport("msvcrt.dll", "malloc");
  }
  FailingMalloc(const FailingMalloc&) = delete;
  FailingMalloc& operator=(const FailingMalloc&) = delete;

  // Blocks that were granted and not given back.
  int BlocksLeft() const { return blocksLeft_; }

 private:
  struct LargeException {
    char bytes[2048];
  };

  // An exception that finds no memory takes it from a reserve of the run-time library, whose lock is allocated when the
  // reserve is first asked: without memory for that lock the program would end.
  static void PrepareReserve() {
    try {
      largestGranted_ = sizeof(LargeException) - 1;
      throw LargeException{};
    } catch (const LargeException&) {
      largestGranted_ = SIZE_MAX;
    }
  }

  static void* Malloc(size_t size) {
    if (size > largestGranted_) return nullptr;
    if (!counting_) return realMalloc_(size);
    if (grantedLeft_ <= 0) return nullptr;
    --grantedLeft_;
    ++blocksLeft_;
    return realMalloc_(size);
  }
  static void Free(void* block) {
    if (counting_ && block) --blocksLeft_;
    realFree_(block);
  }

  static inline bool counting_ = false;
  static inline size_t largestGranted_ = SIZE_MAX;
  static inline int grantedLeft_ = 0, blocksLeft_ = 0;
  static inline void* (*realMalloc_)(size_t) = nullptr;
  static inline void (*realFree_)(void*) = nullptr;
};
