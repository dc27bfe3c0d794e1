// A note in the look of a tool tip. A page makes one where the mouse rests on something that has more to say, and ends
// it at the next movement of the mouse.
#pragma once

#include "controls/CNoteBox.h"
#include "window/Placement.h"

class CToolTipBox : public CNoteBox {
 public:
  CToolTipBox() : CNoteBox({8, FW_NORMAL, false}) {}

  // To be set before the box is opened.
  CUString text;
  int lineCount = 0;
  int widthInCharacters = 0;
  IntPoint mousePosition;  // in client coordinates of the page

  // Shows the box beside the mouse, as a child of the page. While it is up the page goes on receiving all movements of
  // the mouse, those over the box as well, and is told when the mouse leaves the box (WM_MOUSELEAVE); it may end the
  // box, and the object, at each.
  bool Open(const CWnd& page, int id);

  const CUString& NoteText() const override { return text; }

 protected:
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  void Draw(HDC dc, const RECT& client) const override;
  int PartRole(int) const override;
  bool Fits(HDC dc, HFONT font, const RECT& inside) const;
  GdiFont FontThatFits(HDC dc, const RECT& inside) const;
  void OnMouseMove(WPARAM keys, LPARAM point) const;
};
