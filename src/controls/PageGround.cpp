#include "controls/PageGround.h"

void DrawPageGround(const CWnd& control, HDC dc) {
  const RECT client = control.ClientRect();
  const CWnd page = control.Parent();
  // Asked as for a check box, which stands on the page's ground too: links answer the question for a text themselves.
  const auto brush = reinterpret_cast<HBRUSH>(
      page.Send(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control.Handle())));
  // Below the answer, which may be a brush that paints nothing.
  ::FillRect(dc, &client, ::GetSysColorBrush(COLOR_3DFACE));
  if (brush) ::FillRect(dc, &client, brush);
  if (::IsThemeDialogTextureEnabled(page.Handle())) ::DrawThemeParentBackground(control.Handle(), dc, nullptr);
}
