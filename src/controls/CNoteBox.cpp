#include "controls/CNoteBox.h"

#include "controls/PointSize.h"
#include "window/CActivationContext.h"

CNoteBox::~CNoteBox() { Destroy(); }

void CNoteBox::Destroy() {
  const HWND window = Handle();
  Detach();  // what the window is sent at its end finds no object
  if (window) ::DestroyWindow(window);
  OnDestroyed();
}

bool CNoteBox::Create(const CWnd& parent, int id, const RECT& rect) {
  Destroy();
  const CActivationScope look;
  const HWND window =
      ::CreateWindowExW(WS_EX_NOPARENTNOTIFY, L"BUTTON", NoteText().Text(), WS_CHILD | WS_CLIPSIBLINGS | BS_OWNERDRAW,
                        rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, parent.Handle(),
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  if (!AttachTo(window)) return false;
  // The face is the page's.
  font_ = DeriveFont(parent.Font(), [this](LOGFONTW& font) {
    font.lfHeight = FontHeight(style_.points, Dpi());
    font.lfWidth = 0;
    font.lfWeight = style_.weight;
    font.lfItalic = style_.italic;
    font.lfUnderline = FALSE;
  });
  SetFont(font_.Get());
  // New children come in below the others.
  ::SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  return true;
}

void CNoteBox::DrawNote(HDC dc, RECT rect, COLORREF color, HFONT font, UINT format) const {
  const SelectScope scope(dc, font ? font : Font());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, color);
  ::DrawTextW(dc, NoteText().Text(), NoteText().Length(), &rect, DT_WORDBREAK | DT_NOPREFIX | format);
}
