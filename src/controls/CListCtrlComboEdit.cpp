#include "controls/CListCtrlComboEdit.h"

#include <algorithm>
#include <utility>

#include "controls/ListRowKeys.h"

CListCtrlComboEdit::~CListCtrlComboEdit() { DropEditors(); }

void CListCtrlComboEdit::OnAttached() {
  // The list must not draw over its editors.
  ChangeStyle(0, LVS_SINGLESEL | WS_CLIPCHILDREN);
  owner_ = Parent();
}

void CListCtrlComboEdit::SetComboRange(int first, int last) {
  comboFirst_ = first;
  comboLast_ = last;
}

// --- Editors --------------------------------------------------------------------------------------------------------

bool CListCtrlComboEdit::OpenEdit(int row, RECT cell) {
  const HWND list = Handle();
  CloseEdit();
  if (FromHandle(list) != this || edit_ || !CanEditName(row)) return false;
  const RECT client = ClientRect();
  if (!::IntersectRect(&cell, &cell, &client)) return false;
  auto edit = std::make_unique<CListEditBox>(*this);
  if (!edit->Create(cell, CellText(row, editColumn_).Left(kMaxCellText))) return false;
  edit_ = std::move(edit);
  editRow_ = row;
  edit_->Open();
  return true;
}

bool CListCtrlComboEdit::OpenCombo(int row, RECT cell) {
  CloseCombo();
  if (!CanEditLevel(row)) return false;
  cell.bottom = cell.top + (cell.bottom - cell.top) * kDropRows;
  const RECT client = ClientRect();
  cell.left = std::max(cell.left, client.left);
  cell.right = std::min(cell.right, client.right);
  if (cell.left >= cell.right) return false;
  auto combo = std::make_unique<CListComboBox>(*this);
  if (!combo->Create(cell)) return false;
  combo->AddNumbers(comboFirst_, comboLast_);
  combo->Choose(CellText(row, comboColumn_).Left(kMaxCellText));
  combo_ = std::move(combo);
  comboRow_ = row;
  combo_->Open();
  return true;
}

void CListCtrlComboEdit::OnComboDone(const CUString& text) {
  if (comboRow_ >= 0) SetCell(comboRow_, comboColumn_, text.Text());
}

int CListCtrlComboEdit::OnEditDone(const CUString& text) {
  if (editRow_ >= 0) SetCell(editRow_, editColumn_, text.Text());
  return 1;
}

// The derived class may ask others about the text: nothing of this object is touched behind it unasked.
void CListCtrlComboEdit::ApplyEdit(int row, const CUString& text) {
  const HWND list = Handle();
  editRow_ = row;
  const bool accepted = OnEditDone(text) != 0;
  if (FromHandle(list) != this) return;
  if (!edit_) editRow_ = -1;
  if (accepted || edit_) return;
  refusal_ = Refusal{row, text};
  Post(kRefusedMessage);
}

void CListCtrlComboEdit::SettleRefusal() {
  if (const std::optional<Refusal> refusal = std::exchange(refusal_, std::nullopt))
    OnEditRefused(refusal->row, refusal->text);
}

void CListCtrlComboEdit::OnRefused() {
  if (!refusal_) return;
  // The button that was clicked lets the mouse go, and does nothing.
  ::ReleaseCapture();
  SettleRefusal();
}

void CListCtrlComboEdit::OnEditLeft(const CUString& text, bool accept) {
  const HWND list = Handle();
  const int row = editRow_;
  Send(kCloseEditorsMessage);
  // A list that is hidden is coming to its end, together with its sheet: no box may come up now.
  if (FromHandle(list) == this && accept && ::IsWindowVisible(list)) ApplyEdit(row, text);
}

void CListCtrlComboEdit::DropEdit() {
  editRow_ = -1;
  const std::unique_ptr<CListEditBox> edit = std::move(edit_);
}

// Not for the time in which the focus moves.
void CListCtrlComboEdit::CloseEdit() {
  const HWND list = Handle();
  LeaveEdit();
  if (FromHandle(list) == this) SettleRefusal();
}

void CListCtrlComboEdit::LeaveEdit() {
  if (!edit_) return;
  const int row = editRow_;
  const bool apply = edit_->HasFocus() && edit_->Accepts();
  const CUString text = edit_->Text();
  DropEdit();
  if (apply) ApplyEdit(row, text);
}

void CListCtrlComboEdit::CloseCombo() {
  comboRow_ = -1;
  // What the box sends at its end finds none here.
  const std::unique_ptr<CListComboBox> combo = std::move(combo_);
}

void CListCtrlComboEdit::CloseEditors() {
  CloseCombo();
  CloseEdit();
}

void CListCtrlComboEdit::DropEditors() {
  CloseCombo();
  DropEdit();
  refusal_.reset();
}

bool CListCtrlComboEdit::MakeWayForMove() {
  if (!edit_ && !combo_ && !refusal_) return true;
  const HWND list = Handle();
  CloseEditors();
  return FromHandle(list) == this && !edit_;
}

void CListCtrlComboEdit::OnCloseEditors(const WindowMessage& message) {
  if (!message.wParam)
    CloseEditors();
  else if (combo_ && combo_->Handle() == reinterpret_cast<HWND>(message.wParam))
    CloseCombo();
}

// --- Mouse ----------------------------------------------------------------------------------------------------------

// A click into one of the two cells that can be edited. True when the click is done with.
bool CListCtrlComboEdit::ClickSelectedRow(int row, POINT point) {
  const RECT editCell = CellRect(row, editColumn_), comboCell = CellRect(row, comboColumn_);
  const HWND list = Handle();
  if (::PtInRect(&editCell, point)) {
    // The list has the focus as after any click into it.
    if (!OpenEdit(row, editCell) && FromHandle(list) == this && !edit_) Focus();
    return true;
  }
  if (::PtInRect(&comboCell, point)) {
    if (!OpenCombo(row, comboCell)) Focus();
    return true;
  }
  CloseCombo();
  return false;
}

void CListCtrlComboEdit::OnLeftButtonDown(WindowMessage& message) {
  const HWND list = Handle();
  const POINT point{GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
  // Whatever is clicked ends the edit; its own cell lies under its box. A refused text keeps the user there.
  CloseEdit();
  if (FromHandle(list) != this || edit_) return;
  const int row = RowAt(point);
  if (row >= 0 && row == SelectionMark()) {
    if (ClickSelectedRow(row, point)) return;
  } else if (row >= 0) {
    SelectRow(row);
  } else {
    SetSelectionMark(-1);
  }
  message.result = DefaultHandling(message);
  if (FromHandle(list) == this) TellUsed();
}

// The second click of two reaches check boxes too.
void CListCtrlComboEdit::OnLeftDoubleClick(WindowMessage& message) {
  const HWND list = Handle();
  message.result = DefaultHandling(message);
  if (FromHandle(list) == this) TellUsed();
}

void CListCtrlComboEdit::TellUsed() {
  if (const int row = SelectionMark(); row >= 0 && row < Count()) OnUsedChanged(IsChecked(row));
}

// --- Keyboard -------------------------------------------------------------------------------------------------------

// Scrolls sideways as far as the cell needs.
void CListCtrlComboEdit::ShowCell(int row, int column) const {
  EnsureVisible(row);
  const RECT cell = CellRect(row, column), client = ClientRect();
  if (cell.left < client.left)
    Send(LVM_SCROLL, static_cast<WPARAM>(cell.left - client.left));
  else if (cell.right > client.right)
    Send(LVM_SCROLL, static_cast<WPARAM>(std::min(cell.right - client.right, cell.left - client.left)));
}

void CListCtrlComboEdit::EditByKey(bool name) {
  const int row = SelectionMark();
  if (row < 0 || row >= Count()) return;
  const int column = name && CanEditName(row) ? editColumn_ : comboColumn_;
  ShowCell(row, column);
  if (column == editColumn_)
    OpenEdit(row, CellRect(row, column));
  else
    OpenCombo(row, CellRect(row, column));
}

bool CListCtrlComboEdit::OnKeyDown(const WindowMessage& message) {
  if (IsHeldDialogKey(message)) return true;
  const bool withAlt = message.message == WM_SYSKEYDOWN;
  if (!withAlt && message.wParam == VK_F2)
    EditByKey(true);
  else if (withAlt ? message.wParam == VK_DOWN : message.wParam == VK_F4)
    EditByKey(false);
  else
    return false;
  return true;
}

// --- Messages -------------------------------------------------------------------------------------------------------

// What the windows in the list tell their parent is for their own objects. The list itself takes an edit box for one
// of its own.
bool CListCtrlComboEdit::OnChildMessage(WindowMessage& message) {
  const HWND child = message.message == WM_DRAWITEM ? reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam)->hwndItem
                                                    : reinterpret_cast<HWND>(message.lParam);
  CSubclassedControl* const control = FromHandle(child);
  if (!control) return false;
  control->OnReflected(message);
  return true;
}

bool CListCtrlComboEdit::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_LBUTTONDOWN:
      OnLeftButtonDown(message);
      return true;
    case WM_LBUTTONDBLCLK:
      OnLeftDoubleClick(message);
      return true;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      return OnKeyDown(message);
    case WM_GETDLGCODE:
      if (!WantsDialogKey(*this, reinterpret_cast<const MSG*>(message.lParam))) return false;
      message.result = DefaultHandling(message) | DLGC_WANTMESSAGE;
      return true;
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case LVM_SCROLL:
    case WM_SIZE:
      return !MakeWayForMove();
    case WM_ENABLE:
      // Whoever disables the list takes the focus from its box first: a refusal is told behind that.
      if (!message.wParam) {
        CloseCombo();
        LeaveEdit();
      }
      return false;
    case WM_DESTROY:
    case LVM_DELETEITEM:
    case LVM_DELETEALLITEMS:
      DropEditors();
      return false;
    case WM_COMMAND:
    case WM_DRAWITEM:
      return OnChildMessage(message);
    case kCloseEditorsMessage:
      OnCloseEditors(message);
      return true;
    case kRefusedMessage:
      OnRefused();
      return true;
    default:
      return accessible_.OnMessage(message);
  }
}
