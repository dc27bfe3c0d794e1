// Whether the form fields of a Word document become form fields of the PDF, and how large those for text are.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "controls/CImageStatic.h"
#include "resources/ResourceIds.h"
#include "window/Gdi.h"

class CFormFieldsPage : public CTrackedPage<FormFieldsCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  uint32_t convert = 0xFFFFFFFF;  // not read yet
  uint32_t autoTextHeight = 0;
  uint32_t widthOfDefaultText = 0;
  uint32_t limitedToDefaultText = 0;  // the box says the opposite
  uint32_t uniformWidth = 0;
  uint32_t limitedToUniformWidth = 0;  // the box says the opposite
  uint16_t characters = 0;             // of the uniform width

  // Whether the host can make form fields at all, which the office add-in alone can.
  uint16_t formFieldsEnabled = 1;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_FORM_FIELDS_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, FormFieldsCockpitValues& values) override;

 private:
  void ShowNoteAlone();
  void UpdateControls();
  bool MayConvert();

  GdiFont headingFont_, noteFont_;
  CImageStatic picture_, unavailablePicture_;
};
