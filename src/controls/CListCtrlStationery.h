// The list of stationeries: a description and a file a row.
#pragma once

#include "controls/CListRowsAccessible.h"
#include "controls/ListRowEntries.h"
#include "controls/ListSorting.h"
#include "window/CSubclassedControl.h"

// A stationery as the list shows it.
class StationeryListEntry {
 public:
  virtual ~StationeryListEntry() = default;
  virtual CUString Name() const = 0;
  virtual CUString File() const = 0;  // with its path
};

class CListCtrlStationery : public CSubclassed<CListCtrl> {
 public:
  enum Column { kNameColumn, kFileColumn };

  // Once.
  void InsertColumns(const wchar_t* name, const wchar_t* file);

  // At the end. Gives the row, negative when it could not be added.
  int AddEntry(std::unique_ptr<StationeryListEntry> entry);
  // Null when there is no such row.
  StationeryListEntry* Entry(int row) const { return entries_.At(row); }
  int RowOf(const StationeryListEntry* entry) const { return entries_.RowOf(entry); }
  // Removes the row and its entry, and selects the row that is in its place then, if there is one.
  void RemoveEntry(const StationeryListEntry* entry);
  void Clear() { DeleteAllRows(); }
  // Writes the texts of all rows again.
  void RefreshRows();

  const ListSorting& Sorting() const { return sorting_; }

 protected:
  void OnAttached() override;
  void OnDestroyed() override;
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  void RefreshRow(int row);
  void OnColumnClicked(int column);

  ListRowEntries<StationeryListEntry> entries_{*this};
  ListSorting sorting_;
  CListRowsAccessible accessible_{*this};
};
