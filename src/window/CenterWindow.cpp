#include "window/CenterWindow.h"

#include <utility>

#include "window/Placement.h"

namespace {

IntRect FromRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

RECT WorkAreaOf(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  ::GetMonitorInfoW(monitor, &info);
  return info.rcWork;
}

}  // namespace

void CenterWindow(const CWnd& window, HWND center) {
  if (!window.IsWindow()) return;
  const DWORD style = window.Style();
  const bool isChild = (style & WS_CHILD) != 0;
  if (center == kCenterByRelation)
    center = isChild ? ::GetParent(window.Handle()) : ::GetWindow(window.Handle(), GW_OWNER);

  RECT own = window.WindowRect();
  IntRect area, reference;
  if (isChild) {
    const CWnd parent = window.Parent();
    own = window.RectIn(parent);
    area = FromRect(parent.ClientRect());
    const CWnd on(center);
    RECT onRect = on.ClientRect();
    ::MapWindowPoints(center, parent.Handle(), reinterpret_cast<POINT*>(&onRect), 2);
    if (onRect.left > onRect.right) std::swap(onRect.left, onRect.right);
    reference = FromRect(onRect);
  } else {
    const DWORD centerStyle = center ? CWnd(center).Style() : 0;
    if (!(centerStyle & WS_VISIBLE) || (centerStyle & WS_MINIMIZE)) center = nullptr;
    if (center) {
      reference = FromRect(CWnd(center).WindowRect());
      area = FromRect(WorkAreaOf(::MonitorFromWindow(center, MONITOR_DEFAULTTONEAREST)));
    } else {
      area = reference = FromRect(WorkAreaOf(::MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY)));
    }
  }
  const IntPoint place = PlaceCentered(own.right - own.left, own.bottom - own.top, reference, area);
  ::SetWindowPos(window.Handle(), nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
