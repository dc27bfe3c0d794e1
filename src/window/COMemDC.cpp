#include "window/COMemDC.h"

COMemDC::COMemDC(HDC target) : target_(target), dc_(target) {
  const int technology = ::GetDeviceCaps(target, TECHNOLOGY);
  if (technology == DT_RASPRINTER || technology == DT_PLOTTER || technology == DT_METAFILE) return;
  ::GetClipBox(target, &area_);
  // A mirrored surface counts from its right edge. There the bitmap begins, so that it needs no origin aside of that:
  // what such an origin means is not the same on all systems.
  const DWORD layout = ::GetLayout(target);
  if (layout & LAYOUT_RTL) area_.left = 0;
  const HDC memory = ::CreateCompatibleDC(target);
  if (!memory) return;
  bitmap_ = GdiBitmap(::CreateCompatibleBitmap(target, area_.right - area_.left, area_.bottom - area_.top));
  if (!bitmap_) {
    ::DeleteDC(memory);
    return;
  }
  dc_ = memory;
  previous_ = ::SelectObject(dc_, bitmap_.Get());
  // A mirrored window is drawn mirrored, and copied back the same way.
  ::SetLayout(dc_, layout);
  ::SetWindowOrgEx(dc_, area_.left, area_.top, nullptr);
  // What the caller selected stays selected.
  ::SelectObject(dc_, ::GetCurrentObject(target, OBJ_FONT));
}

COMemDC::~COMemDC() {
  if (!IsBuffered()) return;
  ::BitBlt(target_, area_.left, area_.top, area_.right - area_.left, area_.bottom - area_.top, dc_, area_.left,
           area_.top, SRCCOPY);
  ::SelectObject(dc_, previous_);
  ::DeleteDC(dc_);
}
