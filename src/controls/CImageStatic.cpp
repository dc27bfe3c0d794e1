#include "controls/CImageStatic.h"

#include "controls/BufferedPainting.h"
#include "controls/ImageListDrawing.h"
#include "controls/PageGround.h"
#include "DriverLIB/MessageText.h"

namespace {

// The bitmap in another size. Its pixels are repeated, never mixed: the transparent colour stays what it is.
GdiBitmap Stretch(HBITMAP bitmap, const BITMAP& from, int width, int height) {
  BITMAPINFO format{};
  format.bmiHeader = {sizeof format.bmiHeader, width, height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  GdiBitmap stretched(::CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
  const HDC source = ::CreateCompatibleDC(nullptr), target = ::CreateCompatibleDC(nullptr);
  {
    const SelectScope sourceBitmap(source, bitmap), targetBitmap(target, stretched.Get());
    ::SetStretchBltMode(target, COLORONCOLOR);
    ::StretchBlt(target, 0, 0, width, height, source, 0, 0, from.bmWidth, from.bmHeight, SRCCOPY);
  }
  ::DeleteDC(source);
  ::DeleteDC(target);
  return stretched;
}

}  // namespace

bool CImageStatic::SetImage(UINT bitmapId, COLORREF transparentColor, UINT maskId) {
  DropImage();
  loaded_ = (maskId && LoadAlphaImage(bitmapId, maskId)) || LoadImageList(bitmapId, transparentColor);
  if (!loaded_) DropImage();
  UpdateTarget();
  Invalidate();
  return loaded_;
}

void CImageStatic::SetAlignment(uint32_t flags, int margin) {
  alignment_ = flags;
  margin_ = margin;
  UpdateTarget();
  Invalidate();
}

void CImageStatic::DropImage() {
  alphaImage_ = AlphaImage();
  images_ = ImageList();
  width_ = height_ = 0;
  loaded_ = false;
}

bool CImageStatic::LoadAlphaImage(UINT bitmapId, UINT maskId) {
  if (!alphaImage_.Load(bitmapId, maskId, Dpi())) return false;
  width_ = Scale(alphaImage_.Width());
  height_ = Scale(alphaImage_.Height());
  return true;
}

bool CImageStatic::LoadImageList(UINT bitmapId, COLORREF transparentColor) {
  const GdiBitmap natural(static_cast<HBITMAP>(::LoadImageW(
      static_cast<HINSTANCE>(ModuleInstance()), MAKEINTRESOURCEW(bitmapId), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
  BITMAP description{};
  if (!natural || !::GetObjectW(natural.Get(), sizeof description, &description)) return false;
  width_ = Scale(description.bmWidth);
  height_ = Scale(description.bmHeight);
  const GdiBitmap bitmap = Stretch(natural.Get(), description, width_, height_);
  images_ = ImageList(::ImageList_Create(width_, height_, ILC_COLOR24 | ILC_MASK, 1, 1));
  if (!bitmap || !images_) return false;
  return (transparentColor == kNoTransparentColor
              ? ::ImageList_Add(images_.Get(), bitmap.Get(), nullptr)
              : ::ImageList_AddMasked(images_.Get(), bitmap.Get(), transparentColor)) >= 0;
}

void CImageStatic::UpdateTarget() {
  const RECT client = ClientRect();
  target_ = PlaceImage(width_, height_, {0, 0, client.right, client.bottom}, alignment_, Scale(margin_));
}

void CImageStatic::Draw(HDC dc) const {
  DrawPageGround(*this, dc);
  if (images_)
    DrawListImage(images_.Get(), 0, dc, {target_.left, target_.top}, !IsEnabled());
  else if (loaded_)
    alphaImage_.Draw(dc, {target_.left, target_.top, target_.right, target_.bottom}, !IsEnabled());
}

bool CImageStatic::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_ENABLE:
    case WM_SETTEXT:
      message.result = DefaultHandling(message);  // draws the text at once
      Invalidate();
      return true;
    case WM_SIZE:
      UpdateTarget();
      Invalidate();
      return false;
    default:
      return AnswerPainting(message, [this](HDC dc) { Draw(dc); });
  }
}
