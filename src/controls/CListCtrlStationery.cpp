#include "controls/CListCtrlStationery.h"

#include "controls/ListRowKeys.h"

namespace {

constexpr int kColumnWidth = 180;  // pixels at 96 dpi

CUString SortKey(int column, const StationeryListEntry& entry) {
  CUString key = column == CListCtrlStationery::kNameColumn ? entry.Name() : entry.File();
  key.MakeUpper();
  return key;
}

}  // namespace

void CListCtrlStationery::OnAttached() {
  ChangeStyle(0, LVS_SINGLESEL);
  AddListStyle(LVS_EX_FULLROWSELECT);
}

void CListCtrlStationery::OnDestroyed() {
  accessible_.Disconnect();
  entries_.Clear();
}

void CListCtrlStationery::InsertColumns(const wchar_t* name, const wchar_t* file) {
  InsertColumn(kNameColumn, name, Scale(kColumnWidth));
  InsertColumn(kFileColumn, file, Scale(kColumnWidth));
}

int CListCtrlStationery::AddEntry(std::unique_ptr<StationeryListEntry> entry) {
  const int row = entries_.Add(std::move(entry));
  RefreshRow(row);
  return row;
}

void CListCtrlStationery::RefreshRow(int row) {
  const StationeryListEntry* entry = Entry(row);
  if (!entry) return;
  const CUString file = entry->File();
  SetCell(row, kNameColumn, entry->Name().Text());
  SetCell(row, kFileColumn, file.Mid(file.ReverseFind(L'\\') + 1).Text());
}

void CListCtrlStationery::RefreshRows() {
  for (int row = 0; row < Count(); ++row) RefreshRow(row);
}

void CListCtrlStationery::RemoveEntry(const StationeryListEntry* entry) {
  const int row = RowOf(entry);
  if (DeleteRow(row)) SelectRow(row);
}

void CListCtrlStationery::OnColumnClicked(int column) {
  sorting_.Click(column);
  const bool ascending = sorting_.ascending;
  entries_.Sort([=](const StationeryListEntry& left, const StationeryListEntry& right) {
    const int order = CompareCodeUnits(SortKey(column, left), SortKey(column, right));
    return ascending ? order < 0 : order > 0;
  });
  RefreshRows();
}

bool CListCtrlStationery::OnWindowMessage(WindowMessage& message) {
  const HWND list = Handle();
  const auto handle = [this](const WindowMessage& current) { return DefaultHandling(current); };
  if (entries_.OnMessage(message, handle)) return true;
  if (const int column = ClickedColumn(message); column >= 0) {
    message.result = DefaultHandling(message);
    if (FromHandle(list) == this) OnColumnClicked(column);
    return true;
  }
  if (message.message == WM_GETDLGCODE && WantsDialogKey(*this, reinterpret_cast<const MSG*>(message.lParam))) {
    message.result = DefaultHandling(message) | DLGC_WANTMESSAGE;
    return true;
  }
  return IsHeldDialogKey(message) || accessible_.OnMessage(message);
}
