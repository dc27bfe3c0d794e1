#include "controls/CImageStatic.h"

#include "DriverLIB/MessageText.h"
#include "window/COMemDC.h"

bool CImageStatic::SetImage(UINT bitmapId, COLORREF transparentColor, UINT maskId) {
  DropImage();
  loaded_ = maskId ? alphaImage_.Load(bitmapId, maskId, Dpi()) : LoadImageList(bitmapId, transparentColor);
  if (maskId && loaded_) {
    width_ = Scale(alphaImage_.Width());
    height_ = Scale(alphaImage_.Height());
  }
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

bool CImageStatic::LoadImageList(UINT bitmapId, COLORREF transparentColor) {
  const GdiBitmap bitmap(static_cast<HBITMAP>(::LoadImageW(static_cast<HINSTANCE>(ModuleInstance()),
                                                           MAKEINTRESOURCEW(bitmapId), IMAGE_BITMAP, 0, 0,
                                                           LR_CREATEDIBSECTION)));
  BITMAP description{};
  if (!bitmap || !::GetObjectW(bitmap.Get(), sizeof description, &description)) return false;
  width_ = description.bmWidth;
  height_ = description.bmHeight;
  images_ = ImageList(::ImageList_Create(width_, height_, ILC_COLOR32 | ILC_MASK, 1, 1));
  if (!images_) return false;
  return (transparentColor == kNoTransparentColor
              ? ::ImageList_Add(images_.Get(), bitmap.Get(), nullptr)
              : ::ImageList_AddMasked(images_.Get(), bitmap.Get(), transparentColor)) >= 0;
}

void CImageStatic::UpdateTarget() {
  const RECT client = ClientRect();
  target_ = PlaceImage(width_, height_, {0, 0, client.right, client.bottom}, alignment_, margin_);
}

void CImageStatic::Paint() const {
  const PaintDC paint(Handle());
  const COMemDC dc(paint);
  const RECT client = ClientRect();
  const auto ground = reinterpret_cast<HBRUSH>(
      Parent().Send(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(static_cast<HDC>(dc)),
                    reinterpret_cast<LPARAM>(Handle())));
  ::FillRect(dc, &client, ground ? ground : ::GetSysColorBrush(COLOR_3DFACE));
  // A themed page draws its texture itself, below what is transparent.
  if (::IsThemeDialogTextureEnabled(Parent().Handle())) ::DrawThemeParentBackground(Handle(), dc, nullptr);
  if (!loaded_) return;
  if (images_)
    ::ImageList_Draw(images_.Get(), 0, dc, target_.left, target_.top, ILD_TRANSPARENT);
  else
    alphaImage_.Draw(dc, {target_.left, target_.top, target_.right, target_.bottom}, !IsEnabled());
}

bool CImageStatic::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_ERASEBKGND:
      message.result = TRUE;
      return true;
    case WM_PAINT:
      Paint();
      return true;
    case WM_SIZE:
      UpdateTarget();
      return false;
    default:
      return false;
  }
}
