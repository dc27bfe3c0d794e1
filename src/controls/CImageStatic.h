// A static control that shows a picture of the library: a bitmap with an alpha mask, or with a colour that is
// transparent. The picture keeps its size, scaled to the window's dpi.
#pragma once

#include "controls/ImagePlacement.h"
#include "window/AlphaImage.h"
#include "window/CSubclassedControl.h"
#include "window/Gdi.h"

constexpr COLORREF kNoTransparentColor = static_cast<COLORREF>(-1);

class CImageStatic : public CSubclassed<CStatic> {
 public:
  // Shows bitmap `bitmapId` in place of an earlier picture. With a mask its brightness is the alpha of each pixel;
  // otherwise the pixels of `transparentColor` are left out. False when there is no such bitmap: then nothing is shown.
  bool SetImage(UINT bitmapId, COLORREF transparentColor, UINT maskId = 0);
  void SetAlignment(uint32_t flags, int margin);
  bool IsLoaded() const { return loaded_; }
  const IntRect& TargetRect() const { return target_; }

 protected:
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  void DropImage();
  bool LoadImageList(UINT bitmapId, COLORREF transparentColor);
  void UpdateTarget();
  void Paint() const;

  AlphaImage alphaImage_;  // with a mask
  ImageList images_;       // without
  int width_ = 0, height_ = 0;
  IntRect target_;
  uint32_t alignment_ = kAlignMiddle | kAlignCenter;
  int margin_ = 0;
  bool loaded_ = false;
};
