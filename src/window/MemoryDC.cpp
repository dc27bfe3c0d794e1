#include "window/MemoryDC.h"

MemoryDC::MemoryDC(HDC target, int width, int height) : bitmap_(::CreateCompatibleBitmap(target, width, height)) {
  if (!bitmap_) return;
  dc_ = ::CreateCompatibleDC(target);
  if (!dc_) return;
  previous_ = ::SelectObject(dc_, bitmap_.Get());
  // Behind the selection: a mirrored surface counts from the right edge of its bitmap.
  ::SetLayout(dc_, ::GetLayout(target));
}

MemoryDC::~MemoryDC() {
  if (!dc_) return;
  ::SelectObject(dc_, previous_);
  ::DeleteDC(dc_);
}
