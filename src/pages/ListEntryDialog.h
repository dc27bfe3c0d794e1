// What the pages with a list share whose entries have a modeless dialog of their own, one for the whole list.
#pragma once

#include <memory>
#include <utility>

#include "window/CModelessDialog.h"
#include "window/MessageMap.h"

// Posted by the dialog to its page. With each comes kNewListEntry when the entry has just been made, else 0.
constexpr UINT kEntryAppliedMessage = 0x84D;
constexpr UINT kEntryCancelledMessage = 0x84E;
constexpr UINT kEntryOkMessage = 0x84F;
constexpr WPARAM kNewListEntry = 2101;

constexpr WPARAM NewEntryMark(bool isNew) { return isNew ? kNewListEntry : 0; }

// The page's place for the dialog.
template <class Dialog>
class ListEntryDialog {
 public:
  bool IsOpen() const { return dialog_ && dialog_->IsWindow(); }
  Dialog* Get() const { return dialog_.get(); }
  Dialog* operator->() const { return dialog_.get(); }
  Dialog& Make(auto&&... arguments) {
    dialog_ = std::make_unique<Dialog>(std::forward<decltype(arguments)>(arguments)...);
    return *dialog_;
  }
  // For Enter, by keyboard the only way into a dialog that is open already, and for an entry that has just been made.
  void ActivateIfOpen() const {
    if (IsOpen()) dialog_->Activate();
  }
  // The page gets the keyboard back, where it is seen.
  void Close(const CWnd& page) {
    const auto dialog = std::move(dialog_);
    if (!dialog || !dialog->IsWindow()) return;
    dialog->Close();
    if (::IsWindowVisible(page.Handle())) page.Focus();
  }
  void Drop() { dialog_.reset(); }

 private:
  std::unique_ptr<Dialog> dialog_;
};

// NM_DBLCLK of a list: the row that was meant, also where the list names none beside its first column; -1 for none.
inline int ClickedRow(const CListCtrl& list, WindowMessage& message) {
  const auto& click = reinterpret_cast<const NMITEMACTIVATE&>(message.Notify());
  return click.iItem >= 0 ? click.iItem : list.RowAt(click.ptAction);
}

// LVN_KEYDOWN.
inline bool IsDeleteKey(WindowMessage& message) {
  return reinterpret_cast<const NMLVKEYDOWN&>(message.Notify()).wVKey == VK_DELETE;
}
