// The list of bookmark formats: a check box for those in use, their name, type, look and outline level. Name and level
// are edited in place.
#pragma once

#include <optional>

#include "controls/CListCtrlComboEdit.h"
#include "controls/CTextBox.h"
#include "controls/ListRowEntries.h"
#include "controls/ListSorting.h"

// A bookmark format as the list shows and changes it.
class BookmarkListEntry {
 public:
  virtual ~BookmarkListEntry() = default;

  virtual bool IsUsed() const = 0;
  virtual void SetUsed(bool used) = 0;
  // The name that the user knows. A format of the user's own has its style named alike.
  virtual CUString DisplayName() const = 0;
  virtual void SetDisplayName(const CUString& name) = 0;
  virtual CUString StyleName() const = 0;
  virtual int Level() const = 0;
  virtual void SetLevel(int level) = 0;
  virtual CUString KindText() const = 0;
  virtual CUString FormatText() const = 0;
  virtual bool CanRename() const = 0;  // no style of Word's
  virtual bool CanRemove() const = 0;  // made by the user
};

// Who decides about names: the page, which has the rules and the boxes.
class BookmarkListListener {
 public:
  // The user has typed this name, without blanks at its ends, for the row. False refuses it. The answer shows nothing.
  virtual bool AcceptsName(int row, const CUString& name) = 0;
  // Tells the user why a name was refused. Behind that its box is open again, with the old name.
  virtual void TellRefusal(const CUString& name) = 0;

 protected:
  ~BookmarkListListener() = default;
};

class CListCtrlBookmark : public CListCtrlComboEdit {
 public:
  // Posted to the owner after an edit in place.
  static constexpr UINT kListEditedMessage = 0x8B3;

  enum Column { kUsedColumn, kNameColumn, kTypeColumn, kFormatColumn, kLevelColumn };

  CListCtrlBookmark();

  void SetListener(BookmarkListListener* listener) { listener_ = listener; }
  // Once; the column of the check boxes has no title.
  void InsertColumns(const wchar_t* name, const wchar_t* type, const wchar_t* format, const wchar_t* level);
  // In Word mode the rows are the styles of the open document. The columns differ in width.
  void SetWordMode(bool wordMode);

  // --- Rows ----------------------------------------------------------------------------------------------------------

  // At the end. Gives the row, negative when it could not be added.
  int AddEntry(std::unique_ptr<BookmarkListEntry> entry);
  BookmarkListEntry* Entry(int row) const { return entries_.At(row); }
  // The first row whose style or display name is this one, -1 for none.
  int RowOfName(const CUString& name) const;
  // Removes all rows, and forgets how they were sorted.
  void Clear();

  void SortByColumn(int column, bool ascending);
  void SortInDocumentOrder();
  const ListSorting& Sorting() const { return sorting_; }

  // Shows the hint below the rows, when there is one to show: for formats that are used and that the user has none of
  // yet, or for styles that could not be read.
  void UpdateHint(bool use);
  const CTextBox* Hint() const { return hint_.get(); }

  void OnComboDone(const CUString& text) override;
  int OnEditDone(const CUString& text) override;
  void OnEditRefused(int row, const CUString& text) override;
  void OnUsedChanged(bool checked) override;
  // The selected row goes if the user has made it.
  void RemoveSelected() override;
  // All rows go that the user has made; the others are no longer used.
  void RemoveAll() override;
  void RefreshRow(int row, bool resetSort) override;
  bool CanEditLevel(int) const override { return true; }
  bool CanEditName(int row) const override;

 protected:
  void OnAttached() override;
  void OnDestroyed() override;
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  // False when the rows stay as they are, since a refused text keeps the user in its box.
  template <class Compare>
  bool SortRows(bool ascending, Compare compare);
  void RefreshAllRows();
  void OnColumnClicked(int column);
  void OnEdited();
  std::optional<RECT> HintPlace() const;  // nothing when there is none to show
  void PlaceHint();

  ListRowEntries<BookmarkListEntry> entries_{*this};
  ListSorting sorting_;
  BookmarkListListener* listener_ = nullptr;
  bool wordMode_ = false;
  bool use_ = false;
  std::unique_ptr<CTextBox> hint_;
};
