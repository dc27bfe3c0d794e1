#include "pages/CFormFieldsColorPage.h"

#include <iterator>

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"

namespace {

using Page = CFormFieldsColorPage;

struct ColorRow {
  int pickerId;
  uint16_t Page::*use;
  uint32_t Page::*color;
};

// In the order of the pickers.
constexpr ColorRow kColors[] = {
    {IDC_FORM_COLORS_TEXT_BORDER, &Page::useTextfieldBorder, &Page::textfieldBorderColor},
    {IDC_FORM_COLORS_TEXT_BACKGROUND, &Page::useTextfieldBackColor, &Page::textfieldBackColor},
    {IDC_FORM_COLORS_CHECK_BORDER, &Page::useCheckboxBorder, &Page::checkboxBorderColor},
    {IDC_FORM_COLORS_CHECK_BACKGROUND, &Page::useCheckboxBackColor, &Page::checkboxBackColor},
    {IDC_FORM_COLORS_DROPDOWN_BORDER, &Page::useDropdownBorder, &Page::dropdownBorderColor},
    {IDC_FORM_COLORS_DROPDOWN_BACKGROUND, &Page::useDropdownBackColor, &Page::dropdownBackColor},
};

constexpr int kPreviews[] = {IDC_FORM_COLORS_TEXT_PREVIEW, IDC_FORM_COLORS_CHECK_PREVIEW,
                             IDC_FORM_COLORS_DROPDOWN_PREVIEW};

}  // namespace

MessageTable CFormFieldsColorPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnMessage<&CFormFieldsColorPage::OnColourChosen>(ColourSelEndOk),
  };
  return kMessages;
}

void CFormFieldsColorPage::ExchangeCockpitValues(const CockpitExchange& exchange,
                                                 FormFieldsColorCockpitValues& values) {
  exchange.Value(useTextfieldBorder, values.useTextfieldBorder);
  exchange.Value(textfieldBorderColor, values.textfieldBorderColor);
  exchange.Value(useTextfieldBackColor, values.useTextfieldBackColor);
  exchange.Value(textfieldBackColor, values.textfieldBackColor);
  exchange.Value(useCheckboxBorder, values.useCheckboxBorder);
  exchange.Value(checkboxBorderColor, values.checkboxBorderColor);
  exchange.Value(useCheckboxBackColor, values.useCheckboxBackColor);
  exchange.Value(checkboxBackColor, values.checkboxBackColor);
  exchange.Value(useDropdownBorder, values.useDropdownBorder);
  exchange.Value(dropdownBorderColor, values.dropdownBorderColor);
  exchange.Value(useDropdownBackColor, values.useDropdownBackColor);
  exchange.Value(dropdownBackColor, values.dropdownBackColor);
}

BOOL CFormFieldsColorPage::OnInitDialog() {
  for (size_t i = 0; i < std::size(kColors); ++i) {
    pickers_[i].Attach(*this, kColors[i].pickerId);
    pickers_[i].SetCustomText(MessageText(MSG_COLOUR_MORE).Text());
    pickers_[i].SetDefaultText(MessageText(MSG_COLOUR_DO_NOT_USE).Text());
  }
  for (size_t i = 0; i < std::size(kPreviews); ++i) previews_[i].Attach(*this, kPreviews[i]);
  return CTrackedPage::OnInitDialog();
}

// A colour that is not used shows as none, and is stored as none.
void CFormFieldsColorPage::DoDataExchange(CDataExchange& exchange) {
  for (size_t i = 0; i < std::size(kColors); ++i) {
    auto& use = this->*kColors[i].use;
    auto& color = this->*kColors[i].color;
    uint32_t shown = use ? color : kNoColour;
    ExchangeColour(exchange, pickers_[i], shown);
    if (!exchange.IsSaving()) continue;
    color = shown;
    use = shown != kNoColour;
  }
  if (!exchange.IsLoading()) return;
  for (size_t kind = 0; kind < std::size(kPreviews); ++kind) RefreshPreview(kind);
  EnableAll(formFieldsEnabled != 0);
}

void CFormFieldsColorPage::OnColourChosen(WPARAM, LPARAM pickerId) {
  for (size_t i = 0; i < std::size(kColors); ++i)
    if (kColors[i].pickerId == pickerId) RefreshPreview(i / 2);
}

void CFormFieldsColorPage::RefreshPreview(size_t kind) {
  previews_[kind].SetColours(pickers_[2 * kind].GetColour(), pickers_[2 * kind + 1].GetColour());
}
