// A report list in which two columns are edited in place: one by an edit box, one by a combo box of numbers. What an
// edit means is up to the derived class.
//
// The first click on a row selects it; a click on one of the two cells of the selected row opens the editor. By
// keyboard F2 edits the text, F4 and Alt+Down open the combo box; F2 does so as well where the text cannot be edited.
// An editor never stays open over a cell that moves, ends or is disabled. Whoever is about to read what the rows stand
// for calls CloseEditors first, since a typed text may still be in its box.
//
// A refused text is told of in a box, and no box may come up while the focus is on its way from one window to another:
// the button that was clicked would wait for the end of the box, and find the mouse released behind it. So a refusal
// that comes with the loss of the focus is told by a message that the list posts to itself.
#pragma once

#include <memory>
#include <optional>

#include "controls/CListComboBox.h"
#include "controls/CListEditBox.h"
#include "controls/CListRowsAccessible.h"

class CListCtrlComboEdit : public CSubclassed<CListCtrl> {
 public:
  // Sent to the list: closes the editors. With a window in its first argument it closes the combo box only, and only if
  // that is the one: it was posted by a box that may have made room for another one meanwhile.
  static constexpr UINT kCloseEditorsMessage = 0x8B2;
  // Posted to the list by itself: a text was refused when its box lost the focus.
  static constexpr UINT kRefusedMessage = WM_APP + 5;

  CListCtrlComboEdit(int comboColumn, int editColumn) : comboColumn_(comboColumn), editColumn_(editColumn) {}
  ~CListCtrlComboEdit() override;

  void SetComboRange(int first, int last);
  // Who is told of edits; the parent at first.
  void SetOwner(const CWnd& owner) { owner_ = owner; }
  const CWnd& Owner() const { return owner_; }

  // The rows of the open editors, -1 for none, and the editors, null while closed.
  int EditRow() const { return editRow_; }
  int ComboRow() const { return comboRow_; }
  CListEditBox* Edit() const { return edit_.get(); }
  CListComboBox* Combo() const { return combo_.get(); }

  // Open an editor over a cell, whose rectangle is in client coordinates. False when none is open then. In the time of
  // the call an edit that was open is applied, which may show a box.
  bool OpenEdit(int row, RECT cell);
  bool OpenCombo(int row, RECT cell);

  // An edit has ended with this text; EditRow and ComboRow tell where. A number that was chosen; an edited text, which
  // is answered by 0 when it is refused. The answer shows nothing: it may come while the focus moves.
  virtual void OnComboDone(const CUString& text);
  virtual int OnEditDone(const CUString& text);
  // The text for the row was refused: tells the user why, and opens the box again.
  virtual void OnEditRefused(int, const CUString&) {}
  // The mouse has been at the list: the check box of the selected row stands so.
  virtual void OnUsedChanged(bool checked) = 0;
  virtual void RemoveSelected() = 0;
  virtual void RemoveAll() = 0;
  // Shows what a row stands for. With `resetSort` the rows no longer count as sorted.
  virtual void RefreshRow(int row, bool resetSort) = 0;
  // Closes both. An edit box that has the focus applies its text, a combo box applies nothing. A refused text may open
  // the edit box again.
  virtual void CloseEditors();
  virtual bool CanEditLevel(int row) const = 0;
  virtual bool CanEditName(int row) const = 0;

  // The edit box has lost the focus.
  void OnEditLeft(const CUString& text, bool accept);
  // Tells of a refusal that the user has not been told of. The list may end in the box.
  void SettleRefusal();

 protected:
  void OnAttached() override;
  void OnDestroyed() override { accessible_.Disconnect(); }
  bool OnWindowMessage(WindowMessage& message) override;

  int ComboColumn() const { return comboColumn_; }
  int EditColumn() const { return editColumn_; }
  // Closes the editors without applying anything.
  void DropEditors();
  // Closes them before cells move. False when the user is back in one of them, or the list has ended.
  bool MakeWayForMove();

 private:
  static constexpr int kMaxCellText = 254;
  static constexpr int kDropRows = 31;  // height of the combo box with its drop list, in rows

  void OnLeftButtonDown(WindowMessage& message);
  void OnLeftDoubleClick(WindowMessage& message);
  bool ClickSelectedRow(int row, POINT point);
  void TellUsed();
  bool OnKeyDown(const WindowMessage& message);
  void EditByKey(bool name);
  void ShowCell(int row, int column) const;
  bool OnChildMessage(WindowMessage& message);
  void OnCloseEditors(const WindowMessage& message);

  void OnRefused();

  void CloseEdit();
  void LeaveEdit();
  void DropEdit();
  void CloseCombo();
  void ApplyEdit(int row, const CUString& text);

  struct Refusal {
    int row;
    CUString text;
  };

  const int comboColumn_, editColumn_;
  int editRow_ = -1, comboRow_ = -1;
  int comboFirst_ = 0, comboLast_ = 0;
  std::unique_ptr<CListComboBox> combo_;
  std::unique_ptr<CListEditBox> edit_;
  std::optional<Refusal> refusal_;  // not told of yet; no edit box is open then
  CWnd owner_;
  CListRowsAccessible accessible_{*this};
};
