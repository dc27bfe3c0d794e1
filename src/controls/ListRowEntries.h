// The entries behind the rows of a list, which the list owns: a row's data is its entry, and the entry ends with its
// row.
#pragma once

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <vector>

#include "window/Controls.h"
#include "window/MessageMap.h"

template <class Entry>
class ListRowEntries {
 public:
  explicit ListRowEntries(const CListCtrl& list) : list_(list) {}

  // Adds a row at the end, still without texts. Gives its number, negative when it could not be added.
  int Add(std::unique_ptr<Entry> entry) {
    const LPARAM data = reinterpret_cast<LPARAM>(entry.get());
    entries_.push_back(std::move(entry));
    const int row = list_.InsertRow(list_.Count(), L"", data);
    if (row < 0) entries_.pop_back();
    return row;
  }
  // Null when there is no such row.
  Entry* At(int row) const { return reinterpret_cast<Entry*>(list_.RowData(row)); }
  // -1 when there is none.
  int RowOf(const Entry* entry) const {
    for (int row = 0; row < list_.Count(); ++row)
      if (At(row) == entry) return row;
    return -1;
  }
  size_t Count() const { return entries_.size(); }
  void Clear() { entries_.clear(); }

  // Sorts the rows; those of which none comes before the other keep their order. The selection goes with its row.
  template <class ComesBefore>
  void Sort(ComesBefore comesBefore) const {
    std::vector<const Entry*> order;
    for (int row = 0; row < list_.Count(); ++row) order.push_back(At(row));
    const Entry* const marked = At(list_.SelectionMark());
    std::stable_sort(order.begin(), order.end(),
                     [&](const Entry* left, const Entry* right) { return comesBefore(*left, *right); });
    Ranks ranks;
    for (size_t place = 0; place < order.size(); ++place) ranks[reinterpret_cast<LPARAM>(order[place])] = place;
    list_.Send(LVM_SORTITEMS, reinterpret_cast<WPARAM>(&ranks), reinterpret_cast<LPARAM>(&CompareRanks));
    if (marked) list_.SetSelectionMark(RowOf(marked));
  }

  // A message that takes rows away, whoever sends it. `handle` is what the list itself does with it. True when it was
  // one, and is answered.
  template <class Handling>
  bool OnMessage(WindowMessage& message, Handling handle) {
    if (message.message == LVM_DELETEALLITEMS) {
      message.result = handle(message);
      if (message.result) entries_.clear();
      return true;
    }
    if (message.message != LVM_DELETEITEM) return false;
    const Entry* const entry = At(static_cast<int>(message.wParam));
    message.result = handle(message);
    if (message.result) std::erase_if(entries_, [=](const auto& owned) { return owned.get() == entry; });
    return true;
  }

 private:
  using Ranks = std::unordered_map<LPARAM, size_t>;

  static int CALLBACK CompareRanks(LPARAM left, LPARAM right, LPARAM data) {
    const Ranks& ranks = *reinterpret_cast<const Ranks*>(data);
    const auto leftRank = ranks.find(left), rightRank = ranks.find(right);
    if (leftRank == ranks.end() || rightRank == ranks.end()) return 0;
    return leftRank->second < rightRank->second ? -1 : leftRank->second > rightRank->second ? 1 : 0;
  }

  const CListCtrl& list_;
  std::vector<std::unique_ptr<Entry>> entries_;
};
