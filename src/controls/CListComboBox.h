// The combo box in which a number in a cell of a CListCtrlComboEdit is chosen: a drop list that exists only while it is
// open, and belongs to the list.
#pragma once

#include "window/CSubclassedControl.h"

class CListCtrlComboEdit;

class CListComboBox : public CSubclassed<CComboBox> {
 public:
  explicit CListComboBox(CListCtrlComboEdit& list) : list_(list) {}
  // Ends the window as well; a focus in it goes to the list.
  ~CListComboBox() override;

  // Creates the box, in client coordinates of the list, still hidden; the rectangle's height is that of the box with
  // its drop list. False when there is no window.
  bool Create(const RECT& rect);
  void AddNumbers(int first, int last) const;
  // Selects the first row that begins with the text. One that no row begins with stands in the box without being a
  // choice.
  void Choose(const CUString& text);
  // Shows it with its drop list open, and gives it the focus.
  void Open() const;

  // The box or its drop list has the focus.
  bool HoldsFocus() const;

  bool OnReflected(WindowMessage& message) override;

 protected:
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  void OnListClosed();
  void OnFocusLost() const;
  bool IsDropped() const { return Send(CB_GETDROPPEDSTATE) != 0; }
  bool ShowsOwnText() const { return Selection() < 0 && !text_.IsEmpty(); }
  void DrawOwnText() const;

  CListCtrlComboEdit& list_;
  CUString text_;        // of the cell
  int initialRow_ = -1;  // the row of that text
};
