// A control as the user of a page meets it: what it shows, and what can be done to it with mouse and keyboard.
#pragma once

#include <windows.h>

#include <source_location>
#include <string>
#include <vector>

// A handle as a value. Actions take effect before they return and make the notifications that the platform makes for
// the user's own action, in its order; messages that these post need a `co_await sheet.Settled()`. What a user could
// not do, because the control is missing, hidden or disabled, is a failure of the test and changes nothing.
class ControlRef {
 public:
  using Location = std::source_location;

  ControlRef(HWND window, int id, Location where) : window_(window), id_(id), where_(where) {}

  HWND Window() const { return window_; }
  int Id() const { return id_; }
  bool Exists() const { return IsWindow(window_); }

  // --- What it shows --------------------------------------------------------------------------------------------

  std::wstring Text() const;
  bool IsVisible() const { return IsWindowVisible(window_); }
  bool IsEnabled() const { return IsWindowEnabled(window_); }
  bool IsChecked() const;
  bool HasFocus() const;
  bool ReadsLeftToRight() const {
    return !(GetWindowLongW(window_, GWL_EXSTYLE) & (WS_EX_LAYOUTRTL | WS_EX_RTLREADING | WS_EX_RIGHT));
  }

  // Combo boxes, list boxes and list views. SelectedRow is -1 when none is selected.
  int RowCount() const;
  int SelectedRow() const;
  std::wstring Row(int row, int column = 0) const;  // a column only for list views
  std::vector<std::wstring> Rows() const;
  bool IsRowChecked(int row) const;  // list views with check boxes

  // Scroll bars and sliders.
  int Position() const;
  int Minimum() const;
  int Maximum() const;  // the highest position that a user can reach

  // --- What the user does ---------------------------------------------------------------------------------------

  void Focus() const;

  // Buttons, check boxes, radio buttons and links.
  void Click() const;

  // Replaces the whole text by typing, one WM_CHAR each, so that limits, EN_CHANGE and CBN_EDITCHANGE are the real
  // ones. For edits and for combo boxes with an edit.
  void SetText(const std::wstring& text) const;

  // Picks a row: in a combo box by dropping the list and clicking on the row (CBN_DROPDOWN, CBN_SELENDOK, CBN_CLOSEUP,
  // CBN_SELCHANGE, the edit still with the old text at the last), in a list box by clicking on it, in a list view as
  // the arrow keys do.
  void Select(int row) const;
  void Select(const std::wstring& rowText) const;
  void CheckRow(int row, bool checked) const;  // list views with check boxes

  // One scroll notification to the parent: SB_LINEDOWN, SB_PAGEUP, ..., followed by SB_ENDSCROLL; on a slider the key
  // of that meaning.
  void Scroll(int code) const;
  // Drags the thumb to `position`: track, position and end.
  void DragTo(int position) const;

  // Posted mouse messages at a point of the client area, in pixels; they arrive with the next Settled.
  void ClickAt(int x, int y) const;
  void DoubleClickAt(int x, int y) const;
  void RightClickAt(int x, int y) const;
  void MoveMouseTo(int x, int y) const;
  void Drag(POINT from, POINT to) const;

 private:
  bool IsUsable(const char* action) const;
  void Fail(const std::string& text) const;
  HWND EditWindow() const;
  void SelectInCombo(int row) const;
  void ClickListRow(HWND list, int row) const;
  bool IsVertical() const;

  HWND window_;
  int id_;
  Location where_;
};
