// A static control that shows a picture of the library: a bitmap with an alpha mask, or with a colour that is
// transparent. The picture keeps its size, scaled to the window's dpi; behind it is the page's own ground.
#pragma once

#include "controls/ImagePlacement.h"
#include "Pictures.h"
#include "window/AlphaImage.h"
#include "window/CSubclassedControl.h"
#include "window/Gdi.h"

constexpr COLORREF kNoTransparentColor = static_cast<COLORREF>(-1);

class CImageStatic : public CSubclassed<CStatic> {
 public:
  using CSubclassed::Attach;
  // The same, and shows a picture of the library there. False when either fails.
  bool Attach(const CWnd& dialog, int id, const PictureNumbers& picture) {
    return Attach(dialog, id) && SetImage(picture.bitmap, kNoTransparentColor, picture.mask);
  }
  // Shows bitmap `bitmapId` in place of an earlier picture. With a mask its brightness is the alpha of each pixel;
  // otherwise the pixels of `transparentColor` are left out. False when there is no such bitmap: then nothing is shown.
  bool SetImage(UINT bitmapId, COLORREF transparentColor, UINT maskId = 0);
  // By default the picture is centred. The margin is one at 96 dpi.
  void SetAlignment(uint32_t flags, int margin);
  bool IsLoaded() const { return loaded_; }
  // In client coordinates.
  const IntRect& TargetRect() const { return target_; }

 protected:
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  void DropImage();
  bool LoadAlphaImage(UINT bitmapId, UINT maskId);
  bool LoadImageList(UINT bitmapId, COLORREF transparentColor);
  void UpdateTarget();
  void Draw(HDC dc) const;

  AlphaImage alphaImage_;       // with a mask
  ImageList images_;            // without one
  int width_ = 0, height_ = 0;  // at the window's dpi
  IntRect target_;
  uint32_t alignment_ = kAlignMiddle | kAlignCenter;
  int margin_ = 0;
  bool loaded_ = false;
};

// A picture of a dialog, and the control that shows it.
struct PictureRow {
  int controlId;
  PictureNumbers picture;
};

template <size_t Count>
void AttachPictures(const CWnd& dialog, CImageStatic (&controls)[Count], const PictureRow (&rows)[Count]) {
  for (size_t i = 0; i < Count; ++i) controls[i].Attach(dialog, rows[i].controlId, rows[i].picture);
}
