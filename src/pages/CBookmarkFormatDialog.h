// One format of the bookmark page's list, with a sample of its look, beside the sheet. It works on a copy: the row is
// changed by the page alone, when the dialog tells it what the user did.
#pragma once

#include "controls/CColourPicker.h"
#include "controls/CFontPreview.h"
#include "DriverLIB/CUStringArray.h"
#include "pages/CBookmarkFormat.h"
#include "pages/ListEntryDialog.h"

class CBookmarkFormatDialog final : public CModelessDialog {
 public:
  // Posted to the page, beside those of any entry.
  static constexpr UINT kModifiedMessage = 0x851;  // at each change, and at the dialog's end

  // The entries of a PDF's outline cannot be underlined.
  explicit CBookmarkFormatDialog(bool underlineLocked);

  // What is edited, with the name that the user knows, and what of it can be.
  CBookmarkFormat format;
  bool isNew = false;  // the format has just been made: until it is applied, Cancel takes it away again
  bool nameEditable = true, levelEditable = true, formatEditable = true;
  // The rows of the lists.
  CUStringArray fonts;
  int minLevel = 1, maxLevel = 9;

  // Shows the members. What was changed before and not applied is dropped.
  void Load();
  // Takes the controls' contents over. False when they cannot be, after the user has been told why: the dialog, and its
  // object, may have come to their end then.
  bool Save();
  bool IsModified() const override { return isNew || modified_; }
  // The page has taken the format over.
  void ClearModified();
  // Tells what speaks against the format. The dialog may end while the box is up.
  void ShowCheckMessage(uint32_t messageId, const CUString& argument) const;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void OnCancel() override;
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  // A combo with rows, of which one is the value.
  struct ValueList {
    int id;
    CUString added = {};  // a row for a value that is none of the others, while it is shown
  };

  void OnApply();
  void OnOk();
  void OnChanged();
  void OnSizeChosen();
  void OnEnd() const { PostToPage(kModifiedMessage); }

  void LoadPictures();
  void FillLists() const;
  void ShowValue(ValueList& list, const CUString& text);
  void EnableControls() const;
  void SetModified(bool modified);
  void RefreshPreview(const CUString& sizeText);
  CUString ChosenText(int list) const { return CComboBox(Item(list)).SelectedRowText(); }
  CUString SizeText() const;

  const bool underlineLocked_;
  bool modified_ = false;
  ValueList levels_, fontNames_;
  CColourPicker colourPicker_;
  CFontPreview preview_;
  GdiIcon stylePictures_[3];
};
