// A drawing surface that does not flicker: it draws to a bitmap of the target's clip box and copies itself back when
// it dies. On a printing surface it draws directly.
#pragma once

#include "window/Gdi.h"

class COMemDC {
 public:
  explicit COMemDC(HDC target);
  ~COMemDC();
  COMemDC(const COMemDC&) = delete;
  COMemDC& operator=(const COMemDC&) = delete;

  operator HDC() const { return dc_; }
  bool IsBuffered() const { return dc_ != target_; }

 private:
  HDC target_;
  HDC dc_;
  RECT area_{};
  GdiBitmap bitmap_;
  HGDIOBJ previous_ = nullptr;
};
