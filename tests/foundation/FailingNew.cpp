#include "foundation/FailingNew.h"

#include <cstdlib>
#include <new>

namespace {

bool failing = false;
int grantedLeft = 0;

void* Allocate(size_t size) noexcept {
  if (failing && grantedLeft-- <= 0) return nullptr;
  return std::malloc(size > 0 ? size : 1);
}

}  // namespace

FailingNew::FailingNew(int granted) {
  failing = true;
  grantedLeft = granted;
}

FailingNew::~FailingNew() { failing = false; }

// The library's own of these forms take from the same heap, so that any of them may free.
void* operator new(size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
