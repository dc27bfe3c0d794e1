#include "pages/CFormFieldsPage.h"

#include "controls/LabelText.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "pages/FormatAccess.h"
#include "pages/PdfVersions.h"

namespace {

constexpr int kCharactersDigits = 4;
constexpr NumberRule kCharactersRule = {.room = kCharactersDigits + 1, .minimum = 1, .maximum = 9999, .fallback = 15};

constexpr int kNoteHeight = 15;  // in pixels at 96 dpi

constexpr int kHeadings[] = {IDC_FORM_FIELDS_HEIGHT_HEADING, IDC_FORM_FIELDS_WIDTH_HEADING};

// What the conversion opens; two of these open more.
constexpr int kConversionControls[] = {IDC_FORM_FIELDS_HEIGHT_HEADING, IDC_FORM_FIELDS_AUTO_HEIGHT,
                                       IDC_FORM_FIELDS_WIDTH_HEADING,  IDC_FORM_FIELDS_TEXT_WIDTH,
                                       IDC_FORM_FIELDS_TEXT_HINT,      IDC_FORM_FIELDS_UNIFORM_WIDTH,
                                       IDC_FORM_FIELDS_UNIFORM_HINT};
constexpr int kUniformWidthControls[] = {IDC_FORM_FIELDS_CHARACTERS, IDC_FORM_FIELDS_CHARACTERS_LABEL,
                                         IDC_FORM_FIELDS_UNIFORM_UNLIMITED};

}  // namespace

MessageTable CFormFieldsPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CFormFieldsPage::UpdateControls>(IDC_FORM_FIELDS_CONVERT),
      OnClick<&CFormFieldsPage::UpdateControls>(IDC_FORM_FIELDS_TEXT_WIDTH),
      OnClick<&CFormFieldsPage::UpdateControls>(IDC_FORM_FIELDS_UNIFORM_WIDTH),
      CorrectWhenLeft<kCharactersRule>(IDC_FORM_FIELDS_CHARACTERS),
  };
  return kMessages;
}

void CFormFieldsPage::ExchangeCockpitValues(const CockpitExchange& exchange, FormFieldsCockpitValues& values) {
  exchange.Value(convert, values.showFormfields);
}

BOOL CFormFieldsPage::OnInitDialog() {
  CEdit(Item(IDC_FORM_FIELDS_CHARACTERS)).LimitText(kCharactersDigits);
  Item(IDC_FORM_FIELDS_NOTE).SetText(MessageText(MSG_FORM_FIELDS_NEED_WORD).Text());
  // A screen reader takes no check box for a label.
  const CUString uniformCaption = Item(IDC_FORM_FIELDS_UNIFORM_WIDTH).Text();
  Item(IDC_FORM_FIELDS_UNIFORM_LABEL).SetText(WithoutMarks(uniformCaption).Text());
  if (!CTrackedPage::OnInitDialog()) return FALSE;

  headingFont_ = DeriveFont(Font(), [](LOGFONTW& font) { font.lfWeight = FW_BOLD; });
  for (const int id : kHeadings) Item(id).SetFont(headingFont_.Get());
  noteFont_ = DeriveFont(Font(), [this](LOGFONTW& font) {
    font.lfHeight = Scale(kNoteHeight);
    font.lfWidth = 0;
    font.lfWeight = FW_BOLD;
  });
  Item(IDC_FORM_FIELDS_NOTE).SetFont(noteFont_.Get());

  picture_.Attach(*this, IDC_FORM_FIELDS_PICTURE, Pictures::kForm32);
  unavailablePicture_.Attach(*this, IDC_FORM_FIELDS_UNAVAILABLE_PICTURE, Pictures::kFormUnavailable);
  return TRUE;
}

void CFormFieldsPage::DoDataExchange(CDataExchange& exchange) {
  // PDF/A shows the switch and leaves it as it is, whatever number it has.
  if (exchange.IsLoading() || MayConvert()) exchange.Check(IDC_FORM_FIELDS_CONVERT, convert);
  exchange.Check(IDC_FORM_FIELDS_AUTO_HEIGHT, autoTextHeight);
  exchange.Check(IDC_FORM_FIELDS_TEXT_WIDTH, widthOfDefaultText);
  exchange.CheckInverted(IDC_FORM_FIELDS_TEXT_UNLIMITED, limitedToDefaultText);
  exchange.Check(IDC_FORM_FIELDS_UNIFORM_WIDTH, uniformWidth);
  exchange.Number(IDC_FORM_FIELDS_CHARACTERS, kCharactersRule, characters);
  exchange.CheckInverted(IDC_FORM_FIELDS_UNIFORM_UNLIMITED, limitedToUniformWidth);
  if (!exchange.IsLoading()) return;
  if (!formFieldsEnabled) ShowNoteAlone();
  UpdateControls();
}

// What cannot be set at all would only hide the reason.
void CFormFieldsPage::ShowNoteAlone() {
  for (CWnd control = FirstChild(); control.Handle(); control = control.Next())
    control.Show(control.Id() == IDC_FORM_FIELDS_NOTE || control.Id() == IDC_FORM_FIELDS_UNAVAILABLE_PICTURE);
}

bool CFormFieldsPage::MayConvert() { return AllowsFormFields(PdfVersionFor(*this)); }

void CFormFieldsPage::UpdateControls() {
  if (!formFieldsEnabled) {
    EnableAll(false);
    return;
  }
  Item(IDC_FORM_FIELDS_CONVERT).Enable(MayConvert());
  const bool converts = MayConvert() && IsChecked(IDC_FORM_FIELDS_CONVERT);
  EnableControls(kConversionControls, converts);
  Item(IDC_FORM_FIELDS_TEXT_UNLIMITED).Enable(converts && IsChecked(IDC_FORM_FIELDS_TEXT_WIDTH));
  const bool isUniform = converts && IsChecked(IDC_FORM_FIELDS_UNIFORM_WIDTH);
  EnableControls(kUniformWidthControls, isUniform);
}
