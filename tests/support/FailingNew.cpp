#include "support/FailingNew.h"

#include <cstddef>
#include <new>

namespace {

bool failing = false;
int grantedLeft = 0;

bool IsGranted() { return !failing || grantedLeft-- > 0; }

}  // namespace

FailingNew::FailingNew(int granted) {
  failing = true;
  grantedLeft = granted;
}

FailingNew::~FailingNew() { failing = false; }

// In place of the run-time library's own: what they grant comes from the forms that throw, as it does there, so that
// any delete may free it and a sanitizer finds each in its pair.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return IsGranted() ? ::operator new(size) : nullptr;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return IsGranted() ? ::operator new[](size) : nullptr;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
