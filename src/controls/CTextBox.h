// A note about the formats of bookmarks.
#pragma once

#include "controls/CNoteBox.h"

class CTextBox : public CNoteBox {
 public:
  // With a white ground it stands in the list of formats, and says how they can be changed or, with `stylesFailed`, why
  // there are none; without one it stands on the page, and says where the styles of Word can be changed.
  CTextBox(bool whiteBackground, bool stylesFailed);

  const CUString& NoteText() const override { return text_; }

 private:
  void Draw(HDC dc, const RECT& client) const override;
  int PartRole(int) const override;

  const bool whiteBackground_;
  const CUString text_;
};
