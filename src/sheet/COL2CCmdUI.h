// The update probe of the navigation bar: gathers what the owner says of an entry.
#pragma once

#include "sheet/COL2SubItem.h"
#include "window/CCmdUI.h"

class COL2CCmdUI : public CCmdUI {
 public:
  static constexpr int kEnabled = 1;  // Enable was called
  static constexpr int kChecked = 2;  // SetCheck(true)
  static constexpr int kRadio = 4;    // SetRadio(true)

  explicit COL2CCmdUI(COL2SubItem& entry) : CCmdUI(entry.commandId), entry_(entry) {}

  int Bits() const { return bits_; }
  bool HasNewText() const { return newText_; }

  void Enable(bool enable) override;
  void SetCheck(bool check) override;
  void SetRadio(bool radio) override;
  // The entry has the text at once.
  void SetText(const wchar_t* text) override;

 private:
  COL2SubItem& entry_;
  int bits_ = 0;
  bool newText_ = false;
};
