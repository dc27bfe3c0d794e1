#include "controls/CListCtrlBookmark.h"

#include <algorithm>

#include "controls/BookmarkListOrder.h"
#include "controls/ListRowKeys.h"
#include "DriverLIB/Numbers.h"

namespace {

constexpr int kFirstLevel = 1, kLastLevel = 9;

// Pixels at 96 dpi.
constexpr int kUsedWidth = 20, kNameWidth = 100, kLevelWidth = 30;
constexpr int kTypeWidth = 50, kTypeWidthInWord = 80;
constexpr int kFormatWidth = 160, kFormatWidthInWord = 120;
constexpr int kHintGap = 10, kHintTopWithoutRows = 25, kHintHeight = 50;

constexpr int kHintId = 1;        // within the list
constexpr int kStandardRows = 3;  // the formats that are always there, outside Word mode

int CompareInColumn(int column, const BookmarkListEntry& left, const BookmarkListEntry& right) {
  switch (column) {
    case CListCtrlBookmark::kUsedColumn:
      return left.IsUsed() - right.IsUsed();
    case CListCtrlBookmark::kNameColumn:
      return CompareCodeUnits(left.DisplayName(), right.DisplayName());
    case CListCtrlBookmark::kTypeColumn:
      return CompareCodeUnits(left.KindText(), right.KindText());
    case CListCtrlBookmark::kFormatColumn:
      return CompareCodeUnits(left.FormatText(), right.FormatText());
    default:
      return left.Level() - right.Level();
  }
}

bool IsNotice(const WindowMessage& message, UINT wideCode, UINT narrowCode) {
  if (message.message != WM_NOTIFY) return false;
  const UINT code = message.Notify().code;
  return code == wideCode || code == narrowCode;
}

bool IsEndOfColumnDrag(const WindowMessage& message) { return IsNotice(message, HDN_ENDTRACKW, HDN_ENDTRACKA); }

// Behind it the list makes the column as wide as its texts.
bool IsDividerDoubleClick(const WindowMessage& message) {
  return IsNotice(message, HDN_DIVIDERDBLCLICKW, HDN_DIVIDERDBLCLICKA);
}

bool MovesRows(UINT message) {
  return message == WM_SIZE || message == WM_HSCROLL || message == WM_VSCROLL || message == WM_MOUSEWHEEL ||
         message == WM_MOUSEHWHEEL || message == LVM_SCROLL;
}

}  // namespace

CListCtrlBookmark::CListCtrlBookmark() : CListCtrlComboEdit(kLevelColumn, kNameColumn) {
  SetComboRange(kFirstLevel, kLastLevel);
}

void CListCtrlBookmark::OnAttached() {
  CListCtrlComboEdit::OnAttached();
  AddListStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
}

void CListCtrlBookmark::OnDestroyed() {
  CListCtrlComboEdit::OnDestroyed();
  hint_.reset();
  entries_.Clear();
}

void CListCtrlBookmark::InsertColumns(const wchar_t* name, const wchar_t* type, const wchar_t* format,
                                      const wchar_t* level) {
  InsertColumn(kUsedColumn, L"", Scale(kUsedWidth));
  InsertColumn(kNameColumn, name, Scale(kNameWidth));
  InsertColumn(kTypeColumn, type, 0);
  InsertColumn(kFormatColumn, format, 0);
  InsertColumn(kLevelColumn, level, Scale(kLevelWidth));
  SetWordMode(wordMode_);
}

void CListCtrlBookmark::SetWordMode(bool wordMode) {
  wordMode_ = wordMode;
  hint_.reset();  // it says something else there
  SetColumnWidth(kTypeColumn, Scale(wordMode ? kTypeWidthInWord : kTypeWidth));
  SetColumnWidth(kFormatColumn, Scale(wordMode ? kFormatWidthInWord : kFormatWidth));
}

// --- Rows -----------------------------------------------------------------------------------------------------------

int CListCtrlBookmark::AddEntry(std::unique_ptr<BookmarkListEntry> entry) {
  const int row = entries_.Add(std::move(entry));
  if (row >= 0) RefreshRow(row, false);
  return row;
}

int CListCtrlBookmark::RowOfName(const CUString& name) const {
  for (int row = 0; row < Count(); ++row)
    if (const BookmarkListEntry* entry = Entry(row); entry->StyleName() == name || entry->DisplayName() == name)
      return row;
  return -1;
}

void CListCtrlBookmark::Clear() {
  DeleteAllRows();
  sorting_.Forget();
}

void CListCtrlBookmark::RefreshRow(int row, bool resetSort) {
  if (const BookmarkListEntry* entry = Entry(row)) {
    CUString level;
    level.Format(L"%d", entry->Level());
    SetCell(row, kNameColumn, entry->DisplayName().Text());
    SetCell(row, kTypeColumn, entry->KindText().Text());
    SetCell(row, kFormatColumn, entry->FormatText().Text());
    SetCell(row, kLevelColumn, level.Text());
    SetCheck(row, entry->IsUsed());
  }
  if (resetSort) sorting_.Forget();
}

void CListCtrlBookmark::RefreshAllRows() {
  for (int row = 0; row < Count(); ++row) RefreshRow(row, false);
}

void CListCtrlBookmark::RemoveSelected() {
  const BookmarkListEntry* entry = Entry(SelectionMark());
  if (entry && entry->CanRemove()) DeleteRow(SelectionMark());
  SelectRow(std::min(SelectionMark(), Count() - 1));
}

void CListCtrlBookmark::RemoveAll() {
  for (int row = Count() - 1; row >= 0; --row) {
    BookmarkListEntry* entry = Entry(row);
    if (entry->CanRemove()) {
      DeleteRow(row);
    } else {
      entry->SetUsed(false);
      SetCheck(row, false);
    }
  }
}

// --- Order ----------------------------------------------------------------------------------------------------------

template <class Compare>
bool CListCtrlBookmark::SortRows(bool ascending, Compare compare) {
  if (!MakeWayForMove()) return false;
  entries_.Sort([=](const BookmarkListEntry& left, const BookmarkListEntry& right) {
    return ascending ? compare(left, right) < 0 : compare(right, left) < 0;
  });
  RefreshAllRows();
  return true;
}

void CListCtrlBookmark::SortByColumn(int column, bool ascending) {
  const auto compare = [=](const auto& left, const auto& right) { return CompareInColumn(column, left, right); };
  if (SortRows(ascending, compare)) sorting_.Sorted(column, ascending);
}

void CListCtrlBookmark::SortInDocumentOrder() {
  const auto compare = [](const BookmarkListEntry& left, const BookmarkListEntry& right) {
    const CUString leftStyle = left.StyleName(), leftName = left.DisplayName();
    const CUString rightStyle = right.StyleName(), rightName = right.DisplayName();
    const BookmarkOrderKey leftKey{leftStyle, leftName}, rightKey{rightStyle, rightName};
    return ComesBeforeInDocument(leftKey, rightKey) ? -1 : 0;
  };
  if (SortRows(true, compare)) sorting_.Forget();
}

void CListCtrlBookmark::OnColumnClicked(int column) {
  if (!MakeWayForMove()) return;
  ListSorting next = sorting_;
  next.Click(column);
  SortByColumn(column, next.ascending);
}

// --- Edits ----------------------------------------------------------------------------------------------------------

bool CListCtrlBookmark::CanEditName(int row) const {
  const BookmarkListEntry* entry = Entry(row);
  return entry && entry->CanRename();
}

void CListCtrlBookmark::OnEdited() { Owner().Post(kListEditedMessage); }

int CListCtrlBookmark::OnEditDone(const CUString& text) {
  const HWND list = Handle();
  const int row = EditRow();
  CUString name = text;
  name.TrimBoth();
  const bool accepted = !listener_ || listener_->AcceptsName(row, name);
  if (FromHandle(list) != this || !Entry(row) || !accepted) return 0;
  CListCtrlComboEdit::OnEditDone(name);
  Entry(row)->SetDisplayName(name);
  if (sorting_.column == kNameColumn) sorting_.Forget();
  OnEdited();
  return 1;
}

void CListCtrlBookmark::OnEditRefused(int row, const CUString& text) {
  const HWND list = Handle();
  CUString name = text;
  name.TrimBoth();
  // A list that is hidden is coming to its end, together with its sheet.
  if (!listener_ || !Entry(row) || !::IsWindowVisible(list)) return;
  listener_->TellRefusal(name);
  // The box may have ended the list, or the row.
  if (FromHandle(list) == this && Entry(row) && IsEnabled()) OpenEdit(row, CellRect(row, EditColumn()));
}

void CListCtrlBookmark::OnComboDone(const CUString& text) {
  CListCtrlComboEdit::OnComboDone(text);
  BookmarkListEntry* entry = Entry(ComboRow());
  if (!entry) return;
  entry->SetLevel(ParseDecimal(text));
  sorting_.Forget();
  OnEdited();
}

void CListCtrlBookmark::OnUsedChanged(bool checked) {
  if (BookmarkListEntry* entry = Entry(SelectionMark())) entry->SetUsed(checked);
  if (sorting_.column == kUsedColumn) sorting_.Forget();
}

// --- Hint -----------------------------------------------------------------------------------------------------------

std::optional<RECT> CListCtrlBookmark::HintPlace() const {
  const int rows = Count();
  if (!use_ || rows != (wordMode_ ? 0 : kStandardRows)) return std::nullopt;
  const int top = rows ? static_cast<int>(RowRect(rows - 1).bottom) + Scale(kHintGap) : Scale(kHintTopWithoutRows);
  return RECT{0, top, ClientRect().right, top + Scale(kHintHeight)};
}

// A hint that stands where it has to is left alone: made anew it would flicker at each step through the rows.
void CListCtrlBookmark::UpdateHint(bool use) {
  use_ = use;
  const std::optional<RECT> place = HintPlace();
  const RECT current = hint_ ? hint_->RectIn(*this) : RECT{};
  if (!place || !hint_ || !::EqualRect(&current, &*place)) PlaceHint();
}

void CListCtrlBookmark::PlaceHint() {
  hint_.reset();
  const std::optional<RECT> place = HintPlace();
  if (!place) return;
  hint_ = std::make_unique<CTextBox>(true, wordMode_);
  hint_->Create(*this, kHintId, *place);
}

// --- Messages -------------------------------------------------------------------------------------------------------

bool CListCtrlBookmark::OnWindowMessage(WindowMessage& message) {
  const HWND list = Handle();
  const auto handle = [this](WindowMessage& current) {
    return CListCtrlComboEdit::OnWindowMessage(current) ? current.result : DefaultHandling(current);
  };
  if (entries_.OnMessage(message, handle)) return true;
  if (MovesRows(message.message)) {
    message.result = handle(message);
    if (FromHandle(list) == this) PlaceHint();
    return true;
  }
  if (const int column = ClickedColumn(message); column >= 0) {
    message.result = DefaultHandling(message);
    if (FromHandle(list) == this) OnColumnClicked(column);
    return true;
  }
  if (IsEndOfColumnDrag(message)) CloseEditors();
  if (IsDividerDoubleClick(message) && !MakeWayForMove()) return true;
  return CListCtrlComboEdit::OnWindowMessage(message);
}
