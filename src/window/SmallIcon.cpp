#include "window/SmallIcon.h"

#include "DriverLIB/MessageText.h"
#include "window/SystemMetrics.h"

GdiIcon SetSmallIcon(const CWnd& window, UINT iconId) {
  const int dpi = window.Dpi();
  GdiIcon icon(static_cast<HICON>(::LoadImageW(static_cast<HINSTANCE>(ModuleInstance()), MAKEINTRESOURCEW(iconId),
                                               IMAGE_ICON, SystemMetric(SM_CXSMICON, dpi),
                                               SystemMetric(SM_CYSMICON, dpi), LR_DEFAULTCOLOR)));
  window.Send(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon.Get()));
  return icon;
}
