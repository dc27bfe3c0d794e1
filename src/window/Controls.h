// The plain control views: a handle as a value with the control's own operations. They own nothing.
#pragma once

#include <vector>

#include "window/CWnd.h"

class CStatic : public CWnd {
 public:
  using CWnd::CWnd;
  explicit CStatic(CWnd window) : CWnd(window) {}
};

class CButton : public CWnd {
 public:
  using CWnd::CWnd;
  explicit CButton(CWnd window) : CWnd(window) {}

  bool IsChecked() const { return Send(BM_GETCHECK) == BST_CHECKED; }
  void SetCheck(bool check) const { Send(BM_SETCHECK, check ? BST_CHECKED : BST_UNCHECKED); }
};

class CEdit : public CWnd {
 public:
  using CWnd::CWnd;
  explicit CEdit(CWnd window) : CWnd(window) {}

  // The most characters that the user can type; a text set by code may be longer.
  void LimitText(int characters) const { Send(EM_SETLIMITTEXT, static_cast<WPARAM>(characters)); }
  void SelectAll() const { Send(EM_SETSEL, 0, -1); }
  // What stands for each character of the text; 0 shows the text itself.
  void SetPasswordCharacter(wchar_t character) const { Send(EM_SETPASSWORDCHAR, character); }
  void SetReadOnly(bool readOnly) const { Send(EM_SETREADONLY, readOnly); }
};

class CComboBox : public CWnd {
 public:
  using CWnd::CWnd;
  explicit CComboBox(CWnd window) : CWnd(window) {}

  void Reset() const { Send(CB_RESETCONTENT); }
  int AddString(const wchar_t* text) const {
    return static_cast<int>(Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
  }
  int Count() const { return static_cast<int>(Send(CB_GETCOUNT)); }
  // The selected row, or -1.
  int Selection() const { return static_cast<int>(Send(CB_GETCURSEL)); }
  // False when there is no such row; -1 takes the selection away.
  bool Select(int row) const { return static_cast<int>(Send(CB_SETCURSEL, static_cast<WPARAM>(row))) == row; }
  void LimitText(int characters) const { Send(CB_LIMITTEXT, static_cast<WPARAM>(characters)); }
  CUString RowText(int row) const;
  // The text of the selected row, empty when there is none. While a selection is being announced (CBN_SELCHANGE) the
  // edit field still holds the text before it; while the user types, the selection is the one before the typing.
  CUString SelectedRowText() const { return RowText(Selection()); }
};

class CListBox : public CWnd {
 public:
  using CWnd::CWnd;
  explicit CListBox(CWnd window) : CWnd(window) {}

  void Reset() const { Send(LB_RESETCONTENT); }
  int AddString(const wchar_t* text) const {
    return static_cast<int>(Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
  }
  int Count() const { return static_cast<int>(Send(LB_GETCOUNT)); }
  int Selection() const { return static_cast<int>(Send(LB_GETCURSEL)); }
  void Select(int row) const { Send(LB_SETCURSEL, static_cast<WPARAM>(row)); }
  void Delete(int row) const { Send(LB_DELETESTRING, static_cast<WPARAM>(row)); }
  // Of a list in which several rows can be selected.
  std::vector<int> SelectedRows() const;
  // The row at a point in client coordinates; -1 outside of all rows.
  int RowAt(POINT point) const;
  CUString RowText(int row) const;
};

class CScrollBar : public CWnd {
 public:
  using CWnd::CWnd;
  explicit CScrollBar(CWnd window) : CWnd(window) {}

  // A bar stands between `minimum` and its highest position, which is `maximum` - `page` + 1.
  void SetRange(int minimum, int maximum, int page) const;
  int Position() const { return ::GetScrollPos(window_, SB_CTL); }
  void SetPosition(int position) const { ::SetScrollPos(window_, SB_CTL, position, TRUE); }
  int Minimum() const { return Info().nMin; }
  int Highest() const;
  int Page() const { return static_cast<int>(Info().nPage); }

 private:
  SCROLLINFO Info() const;
};

class CSliderCtrl : public CWnd {
 public:
  using CWnd::CWnd;
  explicit CSliderCtrl(CWnd window) : CWnd(window) {}

  void SetRange(int minimum, int maximum) const { Send(TBM_SETRANGE, TRUE, MAKELPARAM(minimum, maximum)); }
  int Position() const { return static_cast<int>(Send(TBM_GETPOS)); }
  void SetPosition(int position) const { Send(TBM_SETPOS, TRUE, position); }
};

class CTabCtrl : public CWnd {
 public:
  using CWnd::CWnd;
  explicit CTabCtrl(CWnd window) : CWnd(window) {}

  int Count() const { return static_cast<int>(Send(TCM_GETITEMCOUNT)); }
  int Selection() const { return static_cast<int>(Send(TCM_GETCURSEL)); }
  void Select(int item) const { Send(TCM_SETCURSEL, static_cast<WPARAM>(item)); }
  int InsertItem(int item, const wchar_t* text) const;
  void SetItemSize(int width, int height) const { Send(TCM_SETITEMSIZE, 0, MAKELPARAM(width, height)); }
};

class CListCtrl : public CWnd {
 public:
  using CWnd::CWnd;
  explicit CListCtrl(CWnd window) : CWnd(window) {}

  int Count() const { return static_cast<int>(Send(LVM_GETITEMCOUNT)); }
  int ColumnCount() const;
  void AddListStyle(DWORD style) const { Send(LVM_SETEXTENDEDLISTVIEWSTYLE, style, static_cast<LPARAM>(style)); }
  // The width is one in pixels of the window's dpi.
  int InsertColumn(int column, const wchar_t* title, int width) const;
  void SetColumnWidth(int column, int width) const { Send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), width); }

  int InsertRow(int row, const wchar_t* text, LPARAM data = 0) const;
  bool DeleteRow(int row) const { return row >= 0 && Send(LVM_DELETEITEM, static_cast<WPARAM>(row)); }
  void DeleteAllRows() const { Send(LVM_DELETEALLITEMS); }
  LPARAM RowData(int row) const;  // 0 when there is no such row
  void SetCell(int row, int column, const wchar_t* text) const;
  CUString CellText(int row, int column) const;

  bool IsChecked(int row) const;
  void SetCheck(int row, bool check) const;
  UINT RowState(int row, UINT mask) const { return static_cast<UINT>(Send(LVM_GETITEMSTATE, row, mask)); }
  void SetRowState(int row, UINT mask, UINT state) const;
  // The row that the keyboard stands on, -1 for none.
  int FocusedRow() const { return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED)); }
  // In a list of one selection the selected row, -1 for none.
  int SelectionMark() const { return static_cast<int>(Send(LVM_GETSELECTIONMARK)); }
  void SetSelectionMark(int row) const { Send(LVM_SETSELECTIONMARK, 0, row); }
  void EnsureVisible(int row) const { Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE); }
  // Makes the row the selection mark, visible, selected and focused. Nothing happens when there is no such row.
  void SelectRow(int row) const;

  // In client coordinates; empty when there is no such row.
  RECT RowRect(int row) const;
  RECT CellRect(int row, int column) const;
  // The row at a point, in any of its cells; -1 for none.
  int RowAt(POINT point) const;
};
