// The colours of form fields: border and background of text boxes, check boxes and dropdown elements, each kind with a
// preview.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "controls/CColourPicker.h"
#include "controls/CFormFieldsPreview.h"
#include "resources/ResourceIds.h"

class CFormFieldsColorPage : public CTrackedPage<FormFieldsColorCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  // A colour, 0x00BBGGRR, counts where its switch is on.
  uint16_t useTextfieldBorder = 0;
  uint32_t textfieldBorderColor = 0;
  uint16_t useTextfieldBackColor = 0;
  uint32_t textfieldBackColor = 0;
  uint16_t useCheckboxBorder = 0;
  uint32_t checkboxBorderColor = 0;
  uint16_t useCheckboxBackColor = 0;
  uint32_t checkboxBackColor = 0;
  uint16_t useDropdownBorder = 0;
  uint32_t dropdownBorderColor = 0;
  uint16_t useDropdownBackColor = 0;
  uint32_t dropdownBackColor = 0;

  // Whether the host can make form fields at all, which the office add-in alone can.
  uint16_t formFieldsEnabled = 1;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  void ExchangeCockpitValues(const CockpitExchange& exchange, FormFieldsColorCockpitValues& values) override;

 private:
  void OnColourChosen(WPARAM colour, LPARAM pickerId);
  void RefreshPreview(size_t kind);

  // Of each kind the border, then the background.
  CColourPicker pickers_[6];
  CFormFieldsPreview previews_[3] = {CFormFieldsPreview(FormFieldKind::Text),
                                     CFormFieldsPreview(FormFieldKind::CheckBox),
                                     CFormFieldsPreview(FormFieldKind::Dropdown)};
};
