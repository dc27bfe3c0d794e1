#include "controls/ImageListDrawing.h"

namespace {

// While one stands, the context counts in the pixels of its surface, from left to right.
class DeviceScope {
 public:
  explicit DeviceScope(HDC dc) : dc_(dc), layout_(::GetLayout(dc)), state_(::SaveDC(dc)) {
    ::SetLayout(dc, 0);
    ::SetMapMode(dc, MM_TEXT);
    ::SetWindowOrgEx(dc, 0, 0, nullptr);
    ::SetViewportOrgEx(dc, 0, 0, nullptr);
  }
  ~DeviceScope() {
    ::SetLayout(dc_, layout_);
    ::RestoreDC(dc_, state_);
  }
  DeviceScope(const DeviceScope&) = delete;
  DeviceScope& operator=(const DeviceScope&) = delete;

 private:
  HDC dc_;
  DWORD layout_;
  int state_;
};

// The left edge on the surface of what stands from `leftTop` on, `width` wide.
POINT OnDevice(HDC dc, POINT leftTop, int width) {
  if (!(::GetLayout(dc) & LAYOUT_RTL)) {
    ::LPtoDP(dc, &leftTop, 1);
    return leftTop;
  }
  // Mirrored: its last column is the first one on the surface.
  leftTop.x += width - 1;
  ::LPtoDP(dc, &leftTop, 1);
  return leftTop;
}

}  // namespace

void DrawListImage(HIMAGELIST images, int index, HDC dc, POINT leftTop, bool disabled) {
  if (!images || index < 0 || index >= ::ImageList_GetImageCount(images)) return;
  IMAGELISTDRAWPARAMS drawing{};
  drawing.cbSize = sizeof drawing;
  drawing.himl = images;
  drawing.i = index;
  drawing.hdcDst = dc;
  drawing.rgbBk = CLR_NONE;
  drawing.rgbFg = CLR_NONE;
  drawing.fStyle = ILD_TRANSPARENT;
  drawing.fState = disabled ? ILS_SATURATE : ILS_NORMAL;
  ::ImageList_GetIconSize(images, &drawing.cx, &drawing.cy);
  const POINT place = OnDevice(dc, leftTop, drawing.cx);
  drawing.x = place.x;
  drawing.y = place.y;
  const DeviceScope device(dc);
  ::ImageList_DrawIndirect(&drawing);
}
