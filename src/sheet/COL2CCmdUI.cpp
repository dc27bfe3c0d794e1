#include "sheet/COL2CCmdUI.h"

// The bit says that the owner knows the entry; the bar draws no entry disabled.
void COL2CCmdUI::Enable(bool) { bits_ |= kEnabled; }

void COL2CCmdUI::SetCheck(bool check) {
  if (check) bits_ |= kChecked;
}

void COL2CCmdUI::SetRadio(bool radio) {
  if (radio) bits_ |= kRadio;
}

void COL2CCmdUI::SetText(const wchar_t* text) {
  if (entry_.text.Equals(text)) return;
  entry_.text = text;
  newText_ = true;
}
