#include "window/SmallIcon.h"

#include "DriverLIB/MessageText.h"

void SetSmallIcon(const CWnd& window, UINT iconId) {
  const HANDLE icon = ::LoadImageW(static_cast<HINSTANCE>(ModuleInstance()), MAKEINTRESOURCEW(iconId), IMAGE_ICON,
                                   ::GetSystemMetrics(SM_CXSMICON), ::GetSystemMetrics(SM_CYSMICON), LR_SHARED);
  window.Send(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon));
}
