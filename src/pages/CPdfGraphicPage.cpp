#include "pages/CPdfGraphicPage.h"

#include "DriverLIB/MessageText.h"
#include "DriverLIB/Numbers.h"
#include "MessageIds.h"
#include "pages/WebAddress.h"
#include "Pictures.h"
#include "window/ValueScope.h"

namespace {

// The keywords are the names of the rows in the product's own files.
constexpr ValueRow kCompressions[] = {
    {MSG_GRAPHIC_COMPRESS_NONE, 0, "None"},
    {MSG_GRAPHIC_COMPRESS_JPEG, 1, "JPEG"},
    {MSG_GRAPHIC_COMPRESS_ZLIB_JPEG, 3, "ZlibJPEG"},
    {MSG_GRAPHIC_COMPRESS_AUTO_JPEG, 2, "AutomaticJPEG"},
    {MSG_GRAPHIC_COMPRESS_AUTO_ZLIB_JPEG, 4, "AutomaticZlibJPEG"},
    {},
};

constexpr ValueRow kResolutions[] = {
    {MSG_GRAPHIC_RESOLUTION_KEEP, 0},
    {MSG_GRAPHIC_RESOLUTION_50, 50},
    {MSG_GRAPHIC_RESOLUTION_96, 96},
    {MSG_GRAPHIC_RESOLUTION_150, 150},
    {MSG_GRAPHIC_RESOLUTION_300, 300},
    {MSG_GRAPHIC_RESOLUTION_450, 450},
    {MSG_GRAPHIC_RESOLUTION_600, 600},
    {MSG_GRAPHIC_RESOLUTION_900, 900},
    {MSG_GRAPHIC_RESOLUTION_1200, 1200},
    {MSG_GRAPHIC_RESOLUTION_2400, 2400},
    {},
};

constexpr ValueRow kQualities[] = {
    {MSG_GRAPHIC_QUALITY_50, 50},
    {MSG_GRAPHIC_QUALITY_60, 60},
    {MSG_GRAPHIC_QUALITY_75, 75},
    {MSG_GRAPHIC_QUALITY_80, 80},
    {MSG_GRAPHIC_QUALITY_85, 85},
    {MSG_GRAPHIC_QUALITY_100, 100},
    {},
};

constexpr ValueRow kColorReductions[] = {
    {MSG_GRAPHIC_COLORS_KEEP, 0, "None"},
    {MSG_GRAPHIC_COLORS_AUTOMATIC, 1, "Automatic"},
    {},
};

// A bar ends at its highest position, which is the range's end less the page plus 1: 2400 dpi and 100 per cent.
constexpr int kResolutionRange = 2499;
constexpr int kResolutionPage = 100;
constexpr int kQualityRange = 104;
constexpr int kQualityPage = 5;

constexpr int kResolutionDigits = 4;
constexpr int kQualityDigits = 3;

// A combo with an edit field, the bar that moves with it, and the rows that it offers.
struct NumberField {
  CComboBox combo;
  CScrollBar bar;
  const ValueRow* table;
  uint32_t otherValueId;  // message of a number that no row has
};

NumberField ResolutionField(const CWnd& page) {
  return {CComboBox(page.Item(IDC_GRAPHIC_RESOLUTION)), CScrollBar(page.Item(IDC_GRAPHIC_RESOLUTION_BAR)), kResolutions,
          MSG_GRAPHIC_RESOLUTION_VALUE};
}

NumberField QualityField(const CWnd& page) {
  return {CComboBox(page.Item(IDC_GRAPHIC_QUALITY)), CScrollBar(page.Item(IDC_GRAPHIC_QUALITY_BAR)), kQualities,
          MSG_GRAPHIC_QUALITY_VALUE};
}

int NumberIn(const NumberField& field) { return ParseDecimal(field.combo.Text()); }

// A number that the table knows selects its row, another one is written out. The bar limits the number first.
void Normalize(const NumberField& field) {
  field.bar.SetPosition(NumberIn(field));
  const int number = field.bar.Position();
  const int row = FindRowOfValue(field.table, number);
  field.combo.Select(row);
  if (row < 0) field.combo.SetText(MessageText(field.otherValueId, number).Text());
}

void WriteNumber(const NumberField& field, int number) {
  CUString text;
  text.Format(L"%d", number);
  field.combo.SetText(text.Text());
  Normalize(field);
}

constexpr PictureRow kPagePictures[] = {
    {IDC_GRAPHIC_PICTURE_MINIMUM, Pictures::kPresetMinimum},      {IDC_GRAPHIC_PICTURE_SMALL, Pictures::kPresetSmall},
    {IDC_GRAPHIC_PICTURE_COMPACT, Pictures::kPresetCompact},      {IDC_GRAPHIC_PICTURE_BIG, Pictures::kPresetBig},
    {IDC_GRAPHIC_PICTURE_MAXIMUM, Pictures::kPresetMaximum},      {IDC_GRAPHIC_SIGN_WARNING, Pictures::kSignWarning16},
    {IDC_GRAPHIC_SIGN_INFORMATION, Pictures::kSignInformation16},
};

constexpr int kBoldCaptions[] = {IDC_GRAPHIC_FILE_SIZE, IDC_GRAPHIC_PICTURE_QUALITY, IDC_GRAPHIC_OPTIMIZED_FOR};

}  // namespace

MessageTable CPdfGraphicPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CPdfGraphicPage::OnModeClicked>(IDC_GRAPHIC_BY_FILE_SIZE),
      OnClick<&CPdfGraphicPage::OnModeClicked>(IDC_GRAPHIC_USER_DEFINED),
      OnCommand<&CPdfGraphicPage::OnResolutionEdited>(IDC_GRAPHIC_RESOLUTION, CBN_EDITCHANGE),
      OnCommand<&CPdfGraphicPage::OnResolutionSelected>(IDC_GRAPHIC_RESOLUTION, CBN_SELCHANGE),
      OnCommand<&CPdfGraphicPage::OnResolutionLeft>(IDC_GRAPHIC_RESOLUTION, CBN_KILLFOCUS),
      OnCommand<&CPdfGraphicPage::UpdateControls>(IDC_GRAPHIC_COMPRESSION, CBN_SELCHANGE),
      OnCommand<&CPdfGraphicPage::OnQualityEdited>(IDC_GRAPHIC_QUALITY, CBN_EDITCHANGE),
      OnCommand<&CPdfGraphicPage::OnQualitySelected>(IDC_GRAPHIC_QUALITY, CBN_SELCHANGE),
      OnCommand<&CPdfGraphicPage::OnQualityLeft>(IDC_GRAPHIC_QUALITY, CBN_KILLFOCUS),
      OnMessage<&CPdfGraphicPage::OnScroll>(WM_HSCROLL),
      OnMessage<&CPdfGraphicPage::OnMouseMove>(WM_MOUSEMOVE),
  };
  return kMessages;
}

void CPdfGraphicPage::ExchangeCockpitValues(const CockpitExchange& exchange, GraphicCockpitValues& values) {
  exchange.Value(compressMethod, values.compressMethod, compressMethodOverride.IsSet());
  exchange.Value(jpegQuality, values.jpegQuality, jpegQualityOverride.IsSet());
  exchange.Value(resolution, values.resolution, resolutionOverride.IsSet());
  exchange.Value(colorReduction, values.colorReduction, colorReductionOverride.IsSet());
}

BOOL CPdfGraphicPage::OnInitDialog() {
  if (!FillFromTable(CComboBox(Item(IDC_GRAPHIC_RESOLUTION)), kResolutions) ||
      !FillFromTable(CComboBox(Item(IDC_GRAPHIC_QUALITY)), kQualities))
    return FALSE;
  resolutionBar_.Attach(*this, IDC_GRAPHIC_RESOLUTION_BAR);
  qualityBar_.Attach(*this, IDC_GRAPHIC_QUALITY_BAR);
  videoLink_.Attach(*this, IDC_GRAPHIC_VIDEO_LINK);
  if (!CTrackedPage::OnInitDialog()) return FALSE;

  boldFont_ = DeriveFont(Font(), [](LOGFONTW& font) { font.lfWeight = FW_BOLD; });
  for (const int id : kBoldCaptions) Item(id).SetFont(boldFont_.Get());
  CComboBox(Item(IDC_GRAPHIC_RESOLUTION)).LimitText(kResolutionDigits);
  CComboBox(Item(IDC_GRAPHIC_QUALITY)).LimitText(kQualityDigits);

  AttachPictures(*this, pictures_, kPagePictures);
  return TRUE;
}

void CPdfGraphicPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsLoading())
    LoadControls(exchange);
  else
    SaveControls(exchange);
}

void CPdfGraphicPage::LoadControls(CDataExchange& exchange) {
  const NumberField resolutionField = ResolutionField(*this);
  const NumberField qualityField = QualityField(*this);
  resolutionField.bar.SetRange(0, kResolutionRange, kResolutionPage);
  qualityField.bar.SetRange(0, kQualityRange, kQualityPage);
  CSliderCtrl slider(Item(IDC_GRAPHIC_SLIDER));
  slider.SetRange(kFirstPreset, kLastPreset);
  videoLink_.SetUrl(WebAddress(MSG_VIDEO_ADDRESS).Text());
  videoLink_.Show(OffersVideo());

  exchange.Choice(IDC_GRAPHIC_COMPRESSION, kCompressions, compressMethod);
  WriteNumber(qualityField, jpegQuality);
  WriteNumber(resolutionField, resolution);
  exchange.Choice(IDC_GRAPHIC_COLOR_DEPTH, kColorReductions, colorReduction);

  const int preset = FindGraphicPreset(Values());
  ::CheckRadioButton(Handle(), IDC_GRAPHIC_BY_FILE_SIZE, IDC_GRAPHIC_USER_DEFINED,
                     preset == kUserDefinedPreset ? IDC_GRAPHIC_USER_DEFINED : IDC_GRAPHIC_BY_FILE_SIZE);
  slider.SetPosition(preset == kUserDefinedPreset ? kMiddlePreset : preset);
  ApplyPreset(false);

  UpdateControls();
  UpdateHint();
}

void CPdfGraphicPage::SaveControls(CDataExchange& exchange) {
  exchange.Choice(IDC_GRAPHIC_COMPRESSION, kCompressions, compressMethod);
  exchange.Number(IDC_GRAPHIC_QUALITY, jpegQuality);
  exchange.Number(IDC_GRAPHIC_RESOLUTION, resolution);
  exchange.Choice(IDC_GRAPHIC_COLOR_DEPTH, kColorReductions, colorReduction);
  enhancedReplacements = 0;
}

GraphicValues CPdfGraphicPage::Values() const {
  return {resolution, compressMethod, jpegQuality, colorReduction, enhancedReplacements};
}

void CPdfGraphicPage::SetValues(const GraphicValues& values) {
  resolution = values.resolution;
  compressMethod = values.compressMethod;
  jpegQuality = values.jpegQuality;
  colorReduction = values.colorReduction;
  enhancedReplacements = values.enhancedReplacements;
}

// Shows the preset that the radio buttons and the slider choose. Storing its values also shows them; without that the
// choice stands, even where the values happen to be a preset's.
void CPdfGraphicPage::ApplyPreset(bool storeValues) {
  if (applying_) {
    applying_ = false;
    return;
  }
  const ValueScope applying(applying_, true);
  const int number = IsUserDefined() ? kUserDefinedPreset : CSliderCtrl(Item(IDC_GRAPHIC_SLIDER)).Position();
  const GraphicPreset& preset = GetGraphicPreset(number);
  ShowPreset(preset);
  if (storeValues && number >= kFirstPreset) {
    SetValues(preset.values);
    UpdateData(false);
  }
}

void CPdfGraphicPage::ShowPreset(const GraphicPreset& preset) {
  for (int id = IDC_GRAPHIC_PICTURE_BIG; id <= IDC_GRAPHIC_PICTURE_MINIMUM; ++id) Item(id).Show(id == preset.pictureId);
  Item(IDC_GRAPHIC_FILE_SIZE).SetText(MessageText(preset.fileSizeId).Text());
  Item(IDC_GRAPHIC_PICTURE_QUALITY).SetText(MessageText(preset.qualityId).Text());
  Item(IDC_GRAPHIC_OPTIMIZED_FOR).SetText(MessageText(preset.optimizedForId).Text());
}

void CPdfGraphicPage::OnModeClicked() {
  ApplyPreset(true);
  UpdateControls();
}

void CPdfGraphicPage::OnResolutionEdited() {
  const NumberField field = ResolutionField(*this);
  field.bar.SetPosition(NumberIn(field));
  UpdateHint();
}

void CPdfGraphicPage::OnResolutionSelected() {
  const NumberField field = ResolutionField(*this);
  field.bar.SetPosition(ParseDecimal(field.combo.SelectedRowText()));
  UpdateHint();
}

void CPdfGraphicPage::OnResolutionLeft() {
  Normalize(ResolutionField(*this));
  UpdateHint();
}

void CPdfGraphicPage::OnQualityEdited() {
  const NumberField field = QualityField(*this);
  field.bar.SetPosition(NumberIn(field));
}

void CPdfGraphicPage::OnQualitySelected() {
  const NumberField field = QualityField(*this);
  field.bar.SetPosition(ParseDecimal(field.combo.SelectedRowText()));
}

void CPdfGraphicPage::OnQualityLeft() { Normalize(QualityField(*this)); }

void CPdfGraphicPage::OnScroll(WPARAM code, LPARAM bar) {
  const CWnd control(reinterpret_cast<HWND>(bar));
  switch (control.Id()) {
    case IDC_GRAPHIC_SLIDER:
      OnSliderMoved(LOWORD(code));
      break;
    case IDC_GRAPHIC_RESOLUTION_BAR:
      WriteNumber(ResolutionField(*this), CScrollBar(control).Position());
      UpdateHint();
      break;
    case IDC_GRAPHIC_QUALITY_BAR:
      WriteNumber(QualityField(*this), CScrollBar(control).Position());
      break;
    default:
      break;
  }
}

void CPdfGraphicPage::OnSliderMoved(int code) {
  if (code == TB_THUMBPOSITION || code == TB_ENDTRACK) return;
  ApplyPreset(true);
  if (!IsUserDefined()) return;
  ::CheckRadioButton(Handle(), IDC_GRAPHIC_BY_FILE_SIZE, IDC_GRAPHIC_USER_DEFINED, IDC_GRAPHIC_BY_FILE_SIZE);
  OnModeClicked();
}

// A mouse over the slider opens it even in the user-defined state, so that it can be grabbed and thereby chosen. While
// it is disabled, the mouse over it is the page's.
void CPdfGraphicPage::OnMouseMove(WPARAM, LPARAM point) {
  const CWnd slider = Item(IDC_GRAPHIC_SLIDER);
  const RECT area = slider.RectIn(*this);
  const bool over = ::PtInRect(&area, {GET_X_LPARAM(point), GET_Y_LPARAM(point)});
  if (over && Item(IDC_GRAPHIC_BY_FILE_SIZE).IsEnabled())
    slider.Enable(true);
  else if (IsUserDefined())
    slider.Enable(false);
}

void CPdfGraphicPage::UpdateHint() {
  const int dpi = ResolutionField(*this).bar.Position();
  const bool reduces = dpi > 0;
  Item(IDC_GRAPHIC_HINT)
      .SetText((reduces ? MessageText(MSG_GRAPHIC_HINT_REDUCED, dpi) : MessageText(MSG_GRAPHIC_HINT_ORIGINAL)).Text());
  Item(IDC_GRAPHIC_SIGN_WARNING).Show(reduces);
  Item(IDC_GRAPHIC_SIGN_INFORMATION).Show(!reduces);
}

void CPdfGraphicPage::UpdateControls() {
  const bool custom = IsUserDefined();
  const bool usesJpeg = SelectedValue(CComboBox(Item(IDC_GRAPHIC_COMPRESSION)), kCompressions).value_or(0) != 0;
  Item(IDC_GRAPHIC_SLIDER).Enable(!custom);
  Item(IDC_GRAPHIC_RESOLUTION).Enable(custom);
  Item(IDC_GRAPHIC_RESOLUTION_BAR).Enable(custom);
  Item(IDC_GRAPHIC_COMPRESSION).Enable(custom);
  Item(IDC_GRAPHIC_QUALITY).Enable(custom && usesJpeg);
  Item(IDC_GRAPHIC_QUALITY_BAR).Enable(custom && usesJpeg);
  Item(IDC_GRAPHIC_COLOR_DEPTH).Enable(custom);
  ApplyOverrides();
}

void CPdfGraphicPage::ApplyOverrides() {
  const bool resolutionFixed = resolutionOverride.IsSet();
  const bool qualityFixed = jpegQualityOverride.IsSet();
  const bool compressionFixed = compressMethodOverride.IsSet();
  const bool colorsFixed = colorReductionOverride.IsSet();
  Lock(resolutionFixed, {IDC_GRAPHIC_RESOLUTION, IDC_GRAPHIC_RESOLUTION_BAR});
  Lock(qualityFixed, {IDC_GRAPHIC_QUALITY, IDC_GRAPHIC_QUALITY_BAR});
  Lock(compressionFixed, {IDC_GRAPHIC_COMPRESSION});
  Lock(colorsFixed, {IDC_GRAPHIC_COLOR_DEPTH});
  // A preset would change all four.
  Lock(resolutionFixed || qualityFixed || compressionFixed || colorsFixed,
       {IDC_GRAPHIC_BY_FILE_SIZE, IDC_GRAPHIC_SLIDER});
}
