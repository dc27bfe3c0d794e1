// A bitmap of a given size to draw on, compatible with a target and laid out like it.
#pragma once

#include "window/Gdi.h"

class MemoryDC {
 public:
  MemoryDC(HDC target, int width, int height);
  ~MemoryDC();
  MemoryDC(const MemoryDC&) = delete;
  MemoryDC& operator=(const MemoryDC&) = delete;

  // Null when the system has no room for it.
  operator HDC() const { return dc_; }

 private:
  HDC dc_ = nullptr;
  GdiBitmap bitmap_;
  HGDIOBJ previous_ = nullptr;
};
