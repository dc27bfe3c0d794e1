// The edit box in which a cell of a CListCtrlComboEdit is edited. It exists only while it is open, and belongs to the
// list.
//
// It takes all keys from the dialog: Return keeps the text, Escape drops it, and both go back to the list. Losing the
// focus ends it.
#pragma once

#include "window/CSubclassedControl.h"

class CListCtrlComboEdit;

class CListEditBox : public CSubclassed<CEdit> {
 public:
  explicit CListEditBox(CListCtrlComboEdit& list) : list_(list) {}
  // Ends the window as well; a focus in it goes to the list.
  ~CListEditBox() override;

  // Creates the box over the rectangle, in client coordinates of the list, still hidden. False when there is no window.
  bool Create(const RECT& cell, const CUString& text);
  // Shows it with its whole text selected, and gives it the focus.
  void Open() const;

  // The text is to be kept: it is, unless the user leaves by Escape.
  bool Accepts() const { return accept_; }

 protected:
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  void OnFocusLost(WindowMessage& message);
  // Gives the focus back, which ends this object.
  void Leave(bool accept);

  CListCtrlComboEdit& list_;
  bool accept_ = true;
};
