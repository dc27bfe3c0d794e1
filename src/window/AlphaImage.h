// A picture with alpha from the library's resources: a bitmap, and a mask whose brightness is the picture's alpha.
#pragma once

#include "window/AlphaPixels.h"
#include "window/Gdi.h"

class AlphaImage {
 public:
  AlphaImage() = default;
  AlphaImage(AlphaImage&&) noexcept = default;
  AlphaImage& operator=(AlphaImage&&) noexcept = default;

  // Loads the pair by its resource numbers, for displays of more than 96 dpi at twice the size if there is one. Both
  // bitmaps must have the same size. False leaves the image empty. The table of pictures decides whether it is
  // flipped in a mirrored window.
  bool Load(UINT bitmapId, UINT maskId, int dpi);

  bool IsEmpty() const { return pixels_.IsEmpty(); }
  // Its size at 96 dpi.
  int Width() const { return width_; }
  int Height() const { return height_; }
  const AlphaPixels& Pixels() const { return pixels_; }

  // Blends the whole picture into the rectangle, which may have any size and be mirrored. `disabled` draws it grey.
  void Draw(HDC dc, const RECT& rect, bool disabled = false) const;
  // The picture in that size as an icon, which buttons draw in each of their states. None when it is empty.
  GdiIcon MakeIcon(int width, int height) const;

 private:
  friend AlphaImage MakeAlphaImage(HBITMAP bitmap, HBITMAP mask);

  // The picture as it was drawn last: elements are drawn again and again in the same size.
  struct Rendition {
    GdiBitmap bitmap;
    int width = 0, height = 0;
    bool flipped = false, disabled = false;
  };
  HBITMAP Render(int width, int height, bool flipped, bool disabled) const;

  AlphaPixels pixels_;
  int width_ = 0, height_ = 0;
  bool flips_ = false;
  mutable Rendition rendition_;
};

// One image with alpha out of a bitmap and a mask of the same size; the bitmaps stay the caller's. Empty when they do
// not fit. A null mask means an opaque picture.
AlphaImage MakeAlphaImage(HBITMAP bitmap, HBITMAP mask);
