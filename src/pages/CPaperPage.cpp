#include "pages/CPaperPage.h"

#include "DriverLIB/ControlNumbers.h"
#include "DriverLIB/MessageText.h"
#include "environment/DefaultPaper.h"
#include "environment/FindRow.h"
#include "MessageIds.h"
#include "pages/HostBits.h"

namespace {

// Hundredths of a point.
constexpr ValueRow kBorders[] = {
    {MSG_PAPER_BORDER_0, 0},
    {MSG_PAPER_BORDER_25, 25},
    {MSG_PAPER_BORDER_50, 50},
    {MSG_PAPER_BORDER_75, 75},
    {MSG_PAPER_BORDER_100, 100},
    {MSG_PAPER_BORDER_150, 150},
    {MSG_PAPER_BORDER_225, 225},
    {MSG_PAPER_BORDER_300, 300},
    {MSG_PAPER_BORDER_450, 450},
    {MSG_PAPER_BORDER_600, 600},
    {},
};

// More than a user can type into any of the edits: what the host has given is read too.
constexpr int kRoom = 32;

constexpr double kSmallestSize = 1, kLargestSize = 6553.5;  // millimetres
constexpr double kMicrometres = 1000;                       // of a millimetre, in which the table has its measures

constexpr NumberRule kScaleRule = {.room = kRoom, .minimum = 1, .maximum = 100, .fallback = kFullScale};
constexpr NumberRule kApplicationScaleRule = {.room = kRoom, .minimum = 1, .maximum = 100000, .fallback = kFullScale};

struct TextLimit {
  int id, characters;
};

constexpr TextLimit kLayoutLimits[] = {
    {IDC_PAPER_WIDTH, 10},       {IDC_PAPER_HEIGHT, 10}, {IDC_PAPER_SCALE_WIDTH, 3},
    {IDC_PAPER_SCALE_HEIGHT, 3}, {IDC_PAPER_SCALE, 6},
};
constexpr TextLimit kMarginLimits[] = {{IDC_PAPER_MARGIN_LEFT, 10}, {IDC_PAPER_MARGIN_TOP, 10}};

// What the host may keep to itself, beside the height of the scaling.
constexpr int kLayoutControls[] = {
    IDC_PAPER_FORMAT,      IDC_PAPER_WIDTH,
    IDC_PAPER_HEIGHT,      IDC_PAPER_PORTRAIT,
    IDC_PAPER_LANDSCAPE,   IDC_PAPER_PICTURE_PORTRAIT,
    IDC_PAPER_SCALE,       IDC_PAPER_PICTURE_LANDSCAPE,
    IDC_PAPER_SCALE_WIDTH, IDC_PAPER_KEEP_RATIO,
};

constexpr int kOtherControls[] = {
    IDC_PAPER_OTHER_GROUP, IDC_PAPER_SOURCE_LABEL,    IDC_PAPER_SOURCE, IDC_PAPER_DESTINATION_LABEL,
    IDC_PAPER_DESTINATION, IDC_PAPER_OTHER_SEPARATOR, IDC_PAPER_DUPLEX, IDC_PAPER_UPPER_EDGE,
};

constexpr PictureRow kPagePictures[] = {
    {IDC_PAPER_SIGN_WARNING, Pictures::kSignWarning16},
    {IDC_PAPER_PICTURE_PORTRAIT, Pictures::kPortrait},
    {IDC_PAPER_PICTURE_LANDSCAPE, Pictures::kLandscape},
};

// The number in an edit, rounded to one decimal place; 0 without one.
double NumberIn(const CWnd& page, int id) {
  double number = 0;
  GetControlDouble(page.Handle(), id, number, kRoom, 1);
  return number;
}

void LimitTexts(const CWnd& page, std::span<const TextLimit> limits) {
  for (const TextLimit& limit : limits) CEdit(page.Item(limit.id)).LimitText(limit.characters);
}

bool FillWithPapers(const CComboBox& combo) {
  for (const PaperRow* paper = kPaperTable; paper->inUse; ++paper)
    if (combo.AddString(MessageText(paper->messageId).Text()) < 0) return false;
  return true;
}

// --- Bins -----------------------------------------------------------------------------------------------------------

bool FillWithBins(const CComboBox& combo, const PaperBin* bins) {
  for (; bins && *bins->name; ++bins)
    if (combo.AddString(CUString(std::wstring_view(bins->name, wcsnlen(bins->name, std::size(bins->name)))).Text()) < 0)
      return false;
  return true;
}

void SelectBin(const CComboBox& combo, const PaperBin* bins, uint16_t number) {
  if (!bins) return;
  const PaperBin* const bin = FindRow50(bins, number);
  combo.Select(bin ? static_cast<int>(bin - bins) : 0);
}

// Whether a bin is selected; its number is then stored.
bool SaveBin(const CComboBox& combo, const PaperBin* bins, uint16_t& number) {
  const int row = bins ? combo.Selection() : -1;
  if (row >= 0) number = bins[row].number;
  return row >= 0;
}

}  // namespace

MessageTable CPaperPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnCommand<&CPaperPage::OnPaperSelected>(IDC_PAPER_FORMAT, CBN_SELCHANGE),
      OnCommand<&CPaperPage::OnWidthLeft>(IDC_PAPER_WIDTH, EN_KILLFOCUS),
      OnCommand<&CPaperPage::OnHeightLeft>(IDC_PAPER_HEIGHT, EN_KILLFOCUS),
      OnClick<&CPaperPage::OnRatioClicked>(IDC_PAPER_KEEP_RATIO),
      OnCommand<&CPaperPage::OnScaleWidthEdited>(IDC_PAPER_SCALE_WIDTH, EN_CHANGE),
      OnCommand<&CPaperPage::ShowScaledHeight>(IDC_PAPER_SCALE_HEIGHT, EN_CHANGE),
      CorrectWhenLeft<kScaleRule>(IDC_PAPER_SCALE_WIDTH),
      CorrectWhenLeft<kScaleRule>(IDC_PAPER_SCALE_HEIGHT),
      CorrectWhenLeft<kApplicationScaleRule>(IDC_PAPER_SCALE),
      OnClick<&CPaperPage::UpdateControls>(IDC_PAPER_CENTERED),
      OnCommand<&CPaperPage::CorrectLeftMargin>(IDC_PAPER_MARGIN_LEFT, EN_KILLFOCUS),
      OnCommand<&CPaperPage::CorrectTopMargin>(IDC_PAPER_MARGIN_TOP, EN_KILLFOCUS),
      OnClick<&CPaperPage::UpdateControls>(IDC_PAPER_DUPLEX),
  };
  return kMessages;
}

// A layout that is not the user's choice here is nobody's to compare.
void CPaperPage::ExchangeCockpitValues(const CockpitExchange& exchange, PaperCockpitValues& values) {
  if (IsLayoutOpen()) {
    exchange.Value(paperSize, values.paperSize);
    exchange.Value(orientation, values.orientation);
    exchange.Value(scaleWidth, values.scaleWidth);
    exchange.Value(scaleHeight, values.scaleHeight);
    exchange.Value(scale, values.scale);
  }
  exchange.Value(marginCenter, values.marginCenter);
  exchange.Value(border, values.border);
}

BOOL CPaperPage::OnInitDialog() {
  if (!FillLists() || !CTrackedPage::OnInitDialog()) return FALSE;
  if (!(printOutput & kShowsDuplexAndBins)) ShowControls(kOtherControls, false);
  AttachPictures(*this, pictures_, kPagePictures);
  return TRUE;
}

bool CPaperPage::FillLists() const {
  if (!isWordHost) {
    if (!FillWithPapers(CComboBox(Item(IDC_PAPER_FORMAT)))) return false;
    LimitTexts(*this, kLayoutLimits);
  }
  LimitTexts(*this, kMarginLimits);
  return FillFromTable(CComboBox(Item(IDC_PAPER_BORDER)), kBorders) &&
         FillWithBins(CComboBox(Item(IDC_PAPER_SOURCE)), sources) &&
         FillWithBins(CComboBox(Item(IDC_PAPER_DESTINATION)), destinations);
}

void CPaperPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsLoading())
    LoadControls(exchange);
  else
    SaveControls(exchange);
}

// --- Loading --------------------------------------------------------------------------------------------------------

void CPaperPage::LoadControls(CDataExchange& exchange) {
  if (!isWordHost) LoadLayout(exchange);
  exchange.Check(IDC_PAPER_CENTERED, marginCenter);
  ShowNumber(*this, IDC_PAPER_MARGIN_LEFT, ToMillimetres(marginLeft));
  ShowNumber(*this, IDC_PAPER_MARGIN_TOP, ToMillimetres(marginTop));
  exchange.Choice(IDC_PAPER_BORDER, kBorders, border);
  SelectBin(CComboBox(Item(IDC_PAPER_SOURCE)), sources, paperSource);
  SelectBin(CComboBox(Item(IDC_PAPER_DESTINATION)), destinations, paperDestination);
  CButton(Item(IDC_PAPER_DUPLEX)).SetCheck(duplex != kSimplex);
  CButton(Item(IDC_PAPER_UPPER_EDGE)).SetCheck(duplex == kDuplexUpperEdge);

  FollowScaleWidth();
  ShowScaledWidth();
  ShowScaledHeight();
  UpdateControls();
}

void CPaperPage::LoadLayout(CDataExchange& exchange) {
  const PaperRow* const stored = FindStoredPaper(fields, paperSize);
  const PaperRow& paper = stored ? *stored : GetDefaultPaperRow();
  SelectPaper(paper);
  if (paperSize == kPaperUserDefined) {
    ShowNumber(*this, IDC_PAPER_WIDTH, ToMillimetres(paperWidth));
    ShowNumber(*this, IDC_PAPER_HEIGHT, ToMillimetres(paperLength));
  } else {
    ShowMeasures(paper);
  }
  int direction = IsLandscape(fields, orientation) ? 1 : 0;
  exchange.Radio(IDC_PAPER_PORTRAIT, IDC_PAPER_LANDSCAPE, direction);
  CButton(Item(IDC_PAPER_KEEP_RATIO)).SetCheck(scaleWidth == scaleHeight);
  ShowNumber(*this, IDC_PAPER_SCALE_WIDTH, scaleWidth);
  ShowNumber(*this, IDC_PAPER_SCALE_HEIGHT, scaleHeight);
  ShowNumber(*this, IDC_PAPER_SCALE, fields & kScaleField ? scale : kFullScale);
}

// --- Saving ---------------------------------------------------------------------------------------------------------

void CPaperPage::SaveControls(CDataExchange& exchange) {
  if (isWordHost)
    SaveWordLayout();
  else
    SaveLayout(exchange);
  if (!exchange.IsSaving()) return;

  exchange.Check(IDC_PAPER_CENTERED, marginCenter);
  marginLeft = ToTenths(NumberIn(*this, IDC_PAPER_MARGIN_LEFT));
  marginTop = ToTenths(NumberIn(*this, IDC_PAPER_MARGIN_TOP));
  exchange.Choice(IDC_PAPER_BORDER, kBorders, border);
  if (!exchange.IsSaving()) return;

  if (SaveBin(CComboBox(Item(IDC_PAPER_SOURCE)), sources, paperSource)) fields |= kDefaultSourceField;
  SaveBin(CComboBox(Item(IDC_PAPER_DESTINATION)), destinations, paperDestination);
  duplex = DuplexOf(IsChecked(IDC_PAPER_DUPLEX), IsChecked(IDC_PAPER_UPPER_EDGE));
}

// The height of the scaling is corrected only when it is left, on purpose.
void CPaperPage::SaveLayout(CDataExchange& exchange) {
  CorrectWidth();
  CorrectHeight();
  CorrectNumber(*this, IDC_PAPER_SCALE_WIDTH, kScaleRule);  // the height follows the change of the text
  CorrectNumber(*this, IDC_PAPER_SCALE, kApplicationScaleRule);

  paperSize = SelectedPaper().number;
  fields = StoredFields(fields, paperSize);
  if (paperSize == kPaperUserDefined) {
    paperWidth = ToTenths(NumberIn(*this, IDC_PAPER_WIDTH));
    paperLength = ToTenths(NumberIn(*this, IDC_PAPER_HEIGHT));
  }
  int direction = 0;
  exchange.Radio(IDC_PAPER_PORTRAIT, IDC_PAPER_LANDSCAPE, direction);
  orientation = direction == 1 ? kLandscapeOrientation : kPortraitOrientation;
  if (!exchange.IsSaving()) return;
  scaleWidth = ToStoredValue(NumberIn(*this, IDC_PAPER_SCALE_WIDTH));
  scaleHeight = ToStoredValue(NumberIn(*this, IDC_PAPER_SCALE_HEIGHT));
  scale = ToStoredValue(NumberIn(*this, IDC_PAPER_SCALE));
}

// The word processor knows its own layout by this size, which is that of no paper.
void CPaperPage::SaveWordLayout() {
  constexpr uint16_t kMarkWidth = 2159, kMarkLength = 2000;
  paperSize = kPaperUserDefined;
  fields = StoredFields(fields, paperSize);
  paperWidth = kMarkWidth;
  paperLength = kMarkLength;
  orientation = kLandscapeOrientation;
  scaleWidth = scaleHeight = kFullScale;
}

// --- What the user does ---------------------------------------------------------------------------------------------

void CPaperPage::OnPaperSelected() {
  ShowMeasures(SelectedPaper());
  CorrectLeftMargin();
  CorrectTopMargin();
  ShowScaledWidth();
  ShowScaledHeight();
}

void CPaperPage::OnWidthLeft() {
  CorrectWidth();
  CorrectLeftMargin();
  MatchPaper();
  ShowScaledWidth();
}

void CPaperPage::OnHeightLeft() {
  CorrectHeight();
  CorrectTopMargin();
  MatchPaper();
  ShowScaledHeight();
}

void CPaperPage::OnRatioClicked() {
  FollowScaleWidth();
  UpdateControls();
}

void CPaperPage::OnScaleWidthEdited() {
  FollowScaleWidth();
  ShowScaledWidth();
}

// --- Corrections: silent --------------------------------------------------------------------------------------------

void CPaperPage::CorrectWidth() {
  CorrectNumber(*this, IDC_PAPER_WIDTH,
                {kRoom, kSmallestSize, kLargestSize, GetDefaultPaperRow().width / kMicrometres});
}

void CPaperPage::CorrectHeight() {
  CorrectNumber(*this, IDC_PAPER_HEIGHT,
                {kRoom, kSmallestSize, kLargestSize, GetDefaultPaperRow().height / kMicrometres});
}

// Under the word processor the page knows no size that a margin could exceed.
void CPaperPage::CorrectLeftMargin() {
  if (!isWordHost) CorrectNumber(*this, IDC_PAPER_MARGIN_LEFT, {kRoom, 0, NumberIn(*this, IDC_PAPER_WIDTH), 0});
}

void CPaperPage::CorrectTopMargin() {
  if (!isWordHost) CorrectNumber(*this, IDC_PAPER_MARGIN_TOP, {kRoom, 0, NumberIn(*this, IDC_PAPER_HEIGHT), 0});
}

// --- Showing --------------------------------------------------------------------------------------------------------

void CPaperPage::SelectPaper(const PaperRow& paper) const {
  CComboBox(Item(IDC_PAPER_FORMAT)).Select(static_cast<int>(&paper - kPaperTable));
}

const PaperRow& CPaperPage::SelectedPaper() const {
  const PaperRow* const paper = PaperAt(CComboBox(Item(IDC_PAPER_FORMAT)).Selection());
  return paper ? *paper : GetDefaultPaperRow();
}

// The user-defined paper has none until the user types them.
void CPaperPage::ShowMeasures(const PaperRow& paper) const {
  if (paper.number == kPaperUserDefined) {
    Item(IDC_PAPER_WIDTH).SetText(L"");
    Item(IDC_PAPER_HEIGHT).SetText(L"");
  } else {
    ShowNumber(*this, IDC_PAPER_WIDTH, paper.width / kMicrometres);
    ShowNumber(*this, IDC_PAPER_HEIGHT, paper.height / kMicrometres);
  }
}

void CPaperPage::MatchPaper() const {
  SelectPaper(PaperOfSize(NumberIn(*this, IDC_PAPER_WIDTH), NumberIn(*this, IDC_PAPER_HEIGHT)));
}

// A change of the height's text shows the scaled height anew.
void CPaperPage::FollowScaleWidth() const {
  if (IsChecked(IDC_PAPER_KEEP_RATIO))
    ShowNumber(*this, IDC_PAPER_SCALE_HEIGHT, NumberIn(*this, IDC_PAPER_SCALE_WIDTH));
}

void CPaperPage::ShowScaledWidth() {
  if (isWordHost) return;
  const double width = NumberIn(*this, IDC_PAPER_SCALE_WIDTH) * NumberIn(*this, IDC_PAPER_WIDTH) / 100;
  ShowNumber(*this, IDC_PAPER_SCALED_WIDTH, width);
}

void CPaperPage::ShowScaledHeight() {
  if (isWordHost) return;
  const double height = NumberIn(*this, IDC_PAPER_SCALE_HEIGHT) * NumberIn(*this, IDC_PAPER_HEIGHT) / 100;
  ShowNumber(*this, IDC_PAPER_SCALED_HEIGHT, height);
}

bool CPaperPage::IsLayoutOpen() const { return !isWordHost && !(internalUse & kHostSetsDocument); }

void CPaperPage::UpdateControls() {
  const bool open = IsLayoutOpen();
  EnableControls(kLayoutControls, open);
  Item(IDC_PAPER_SCALE_HEIGHT).Enable(open && !IsChecked(IDC_PAPER_KEEP_RATIO));

  const bool centered = IsChecked(IDC_PAPER_CENTERED);
  EnableControls({IDC_PAPER_MARGIN_LEFT, IDC_PAPER_MARGIN_TOP}, !centered);

  const bool printsDuplex = IsChecked(IDC_PAPER_DUPLEX);
  const CButton upperEdge(Item(IDC_PAPER_UPPER_EDGE));
  upperEdge.Enable(printsDuplex);
  if (!printsDuplex) upperEdge.SetCheck(false);

  Item(IDC_PAPER_HOST_NOTE).SetText(MessageText(MSG_PAPER_HOST_NOTE, GetHostFileName()).Text());
  ShowControls({IDC_PAPER_HOST_NOTE, IDC_PAPER_SIGN_WARNING}, !open);
}
