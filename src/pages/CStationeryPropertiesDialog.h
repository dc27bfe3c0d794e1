// The properties of one stationery of the watermark page's list, beside the sheet.
#pragma once

#include <memory>

#include "pages/CStationeryFormat.h"
#include "pages/ListEntryDialog.h"

class CStationeryPropertiesDialog final : public CModelessDialog {
 public:
  // Posted to the page, beside those of any entry.
  static constexpr UINT kModifiedMessage = 0x850;

  // The entry stays the list's.
  explicit CStationeryPropertiesDialog(std::weak_ptr<CStationeryFormat> format);

  // Null when its row has gone.
  std::shared_ptr<CStationeryFormat> GetFormat() const { return format_.lock(); }
  // Goes over to another entry. What was changed in the former one and not applied is dropped.
  void SetFormat(std::weak_ptr<CStationeryFormat> format);
  // The entry has just been made: until the dialog is done with it, Cancel takes it away again, though it may have been
  // applied.
  void SetNew() { isNew_ = true; }
  bool IsModified() const override { return isNew_ || modified_; }

 protected:
  BOOL OnInitDialog() override;
  void OnCancel() override;
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  void OnApply();
  void OnOk();
  void OnFieldChanged();

  void Fill();
  bool HasDescription() const;
  void Save();

  std::weak_ptr<CStationeryFormat> format_;
  bool isNew_ = false;
  bool modified_ = false;
  bool refreshing_ = false;  // the dialog is filling its controls
};
