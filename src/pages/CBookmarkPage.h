// Which styles of a Word document make the bookmarks of the PDF, at which level of the outline, and how these look.
#pragma once

#include <functional>
#include <memory>

#include "cockpit/CTrackedPage.h"
#include "controls/CListCtrlBookmark.h"
#include "pages/BookmarkRow.h"
#include "pages/CBookmarkFormatDialog.h"
#include "pages/EnumerateFonts.h"
#include "resources/ResourceIds.h"

class CBookmarkPage : public CTrackedPage<BookmarkCockpitValues>, private BookmarkListListener {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t outlineStylesEnabled = 0;
  CUString outlineStyles;      // the formats in use, and
  CUString outlineFormats;     // all of them (pages/OutlineTexts.h)
  CUString outlineStyleNames;  // read and not used further
  uint16_t internalUse = 0;

  // Lists the fonts of a device, at the page's start. Tests put fonts of their own there.
  std::function<void(HDC, const FontVisitor&)> enumerateFonts = EnumerateFonts;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_BOOKMARK_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, BookmarkCockpitValues& values) override;

 private:
  void ListFonts();
  void LoadFormats();
  void SaveFormats();
  bool FinishEdits();
  bool LeaveEditors();

  void OnUseBookmarks() { UpdateControls(); }
  void OnClickAddBookmarkFormat() { CreateNewBookmarkFormat(/*forceDefault=*/true); }
  void OnClickCopyBookmarkFormat() { CreateNewBookmarkFormat(/*forceDefault=*/false); }
  void OnEditFormat();
  void OnRemoveFormat();
  void OnRemoveAllFormats();
  void OnSelectAll();
  void OnDblClk(WindowMessage& message);
  void OnReturn();
  void OnKeyDown(WindowMessage& message);
  void OnItemChanged(WindowMessage& message);
  void OnListEdited();
  void OnDialogApply();
  void OnDialogCancel(WPARAM mark, LPARAM);
  void OnDialogOk();
  void OnDestroy();

  bool AcceptsName(int row, const CUString& name) override;
  void TellRefusal(const CUString& name) override;

  BookmarkRow* Row(int row) const { return static_cast<BookmarkRow*>(list_.Entry(row)); }
  BookmarkRow* SelectedRow() const { return Row(list_.SelectionMark()); }
  bool IsNameTaken(const CUString& name, const BookmarkListEntry* except) const;
  void CreateNewBookmarkFormat(bool forceDefault);

  void ShowBookmarkFormatDialog(bool isNew);
  bool CheckFormatDialog(uint32_t& messageId, CUString& argument) const;
  bool TakeDialogValues();
  void CloseDialog();

  int Tell(uint32_t messageId, UINT flags, const CUString& argument = {});

  void UpdateControls();
  bool AreAllChecked() const;
  void ShowWordMode();

  CListCtrlBookmark list_;
  CUStringArray fonts_;
  bool wordMode_ = false;       // the rows are the styles of the document that is open in Word
  bool deleteAllowed_ = false;  // the Delete key may remove the selected row
  ListEntryDialog<CBookmarkFormatDialog> dialog_;
  const BookmarkListEntry* editedRow_ = nullptr;  // whose format is in the dialog; only to be compared
  std::unique_ptr<CTextBox> noteBox_;
};
