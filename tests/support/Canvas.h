// A bitmap of a test's own to draw on, with its pixels to read.
#pragma once

#include <algorithm>

#include "window/Gdi.h"

class Canvas {
 public:
  Canvas(int width, int height, COLORREF ground, bool mirrored = false) : width_(width), height_(height) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = -height;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    dc_ = ::CreateCompatibleDC(nullptr);
    bitmap_ =
        GdiBitmap(::CreateDIBSection(dc_, &format, DIB_RGB_COLORS, reinterpret_cast<void**>(&pixels_), nullptr, 0));
    previous_ = ::SelectObject(dc_, bitmap_.Get());
    for (int i = 0; i < width * height; ++i) pixels_[i] = ToPixel(ground);
    if (mirrored) ::SetLayout(dc_, LAYOUT_RTL);
  }
  ~Canvas() {
    ::SelectObject(dc_, previous_);
    ::DeleteDC(dc_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  operator HDC() const { return dc_; }
  int Width() const { return width_; }
  int Height() const { return height_; }

  // As a COLORREF, counted from the left of the bitmap even when it is drawn on mirrored.
  COLORREF At(int x, int y) const {
    ::GdiFlush();
    return ToPixel(pixels_[y * width_ + x] & 0xFFFFFF);
  }

  // The smallest rectangle that holds all pixels in which the two differ; empty when they are equal.
  RECT DifferenceFrom(const Canvas& other) const {
    RECT box{width_, height_, 0, 0};
    for (int y = 0; y < height_; ++y)
      for (int x = 0; x < width_; ++x)
        if (At(x, y) != other.At(x, y))
          box = {std::min<LONG>(box.left, x), std::min<LONG>(box.top, y), std::max<LONG>(box.right, x + 1),
                 std::max<LONG>(box.bottom, y + 1)};
    return box.left < box.right ? box : RECT{};
  }

 private:
  // Red and blue exchanged; the same way back.
  static DWORD ToPixel(COLORREF color) { return RGB(GetBValue(color), GetGValue(color), GetRValue(color)); }

  int width_, height_;
  HDC dc_;
  GdiBitmap bitmap_;
  HGDIOBJ previous_;
  DWORD* pixels_ = nullptr;
};
