#include "pages/CPdfAppearancePage.h"

#include "MessageIds.h"

namespace {

// The keywords are the names of the rows in the product's own files.
constexpr ValueRow kLayouts[] = {
    {MSG_APPEARANCE_LAYOUT_DEFAULT, 0, "Standard"},
    {MSG_APPEARANCE_LAYOUT_SINGLE, 1, "SinglePage"},
    {MSG_APPEARANCE_LAYOUT_CONTINUOUS, 2, "OneColumn"},
    {MSG_APPEARANCE_LAYOUT_FACING, 3, "TwoColumnLeft"},
    {MSG_APPEARANCE_LAYOUT_FACING_ODD, 4, "TwoColumnRight"},  // odd pages on the right
    {},
};

constexpr ValueRow kSizes[] = {
    {MSG_APPEARANCE_SIZE_STANDARD, 0, "Standard"},
    {MSG_APPEARANCE_SIZE_FULL_PAGE, 1, "Fit"},
    {MSG_APPEARANCE_SIZE_PAGE_WIDTH, 2, "FitH"},
    {},
};

constexpr int kFullScreen = 3;

constexpr ValueRow kModes[] = {
    {MSG_APPEARANCE_MODE_STANDARD, 0, "UseNone"},
    {MSG_APPEARANCE_MODE_OUTLINES, 1, "UseOutlines"},
    {MSG_APPEARANCE_MODE_THUMBNAILS, 2, "UseThumbs"},
    {MSG_APPEARANCE_MODE_FULL_SCREEN, kFullScreen, "FullScreen"},
    {},
};

constexpr ValueRow kFullScreenModes[] = {
    {MSG_APPEARANCE_FULL_SCREEN_STANDARD, 0, "UseNone"},
    {MSG_APPEARANCE_FULL_SCREEN_OUTLINES, 1, "UseOutlines"},
    {MSG_APPEARANCE_FULL_SCREEN_THUMBNAILS, 2, "UseThumbs"},
    {MSG_APPEARANCE_FULL_SCREEN_OC, 3, "UseOC"},
    {},
};

constexpr ValueRow kDirections[] = {
    {MSG_APPEARANCE_DIRECTION_LEFT_TO_RIGHT, 0, "L2R"},
    {MSG_APPEARANCE_DIRECTION_RIGHT_TO_LEFT, 1, "R2L"},
    {},
};

constexpr NumberRule kPageRule = {.room = 6, .minimum = 1, .maximum = 32767, .fallback = 1};

}  // namespace

MessageTable CPdfAppearancePage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      CorrectWhenLeft<kPageRule>(IDC_APPEARANCE_PAGE),
      OnCommand<&CPdfAppearancePage::UpdateControls>(IDC_APPEARANCE_MODE, CBN_SELCHANGE),
  };
  return kMessages;
}

void CPdfAppearancePage::ExchangeCockpitValues(const CockpitExchange& exchange, AppearanceCockpitValues& values) {
  exchange.Value(openLayout, values.openLayout);
  exchange.Value(openSize, values.openSize);
  exchange.Value(openPageIndex, values.openPageIndex);
  exchange.Value(openMode, values.openMode);
  exchange.Value(nonFullScreenPageMode, values.nonFullScreenPageMode);
  exchange.Value(direction, values.direction);
  exchange.Value(hideToolbar, values.hideToolbar);
  exchange.Value(hideMenubar, values.hideMenubar);
  exchange.Value(centerWindow, values.centerWindow);
  exchange.Value(fitWindow, values.fitWindow);
  exchange.Value(displayDocTitle, values.displayDocTitle);
  exchange.Value(hideWindowUI, values.hideWindowUI);
}

void CPdfAppearancePage::DoDataExchange(CDataExchange& exchange) {
  exchange.Number(IDC_APPEARANCE_PAGE, kPageRule, openPageIndex);
  exchange.Choice(IDC_APPEARANCE_LAYOUT, kLayouts, openLayout);
  exchange.Choice(IDC_APPEARANCE_SIZE, kSizes, openSize);
  exchange.Choice(IDC_APPEARANCE_MODE, kModes, openMode);
  exchange.Choice(IDC_APPEARANCE_FULL_SCREEN, kFullScreenModes, nonFullScreenPageMode);
  exchange.Choice(IDC_APPEARANCE_DIRECTION, kDirections, direction);
  exchange.Check(IDC_APPEARANCE_HIDE_TOOLBAR, hideToolbar);
  exchange.Check(IDC_APPEARANCE_HIDE_MENU, hideMenubar);
  exchange.Check(IDC_APPEARANCE_CENTER_WINDOW, centerWindow);
  exchange.Check(IDC_APPEARANCE_FIT_WINDOW, fitWindow);
  exchange.Check(IDC_APPEARANCE_DOCUMENT_TITLE, displayDocTitle);
  exchange.Check(IDC_APPEARANCE_HIDE_WINDOW_UI, hideWindowUI);
  if (exchange.IsLoading()) UpdateControls();
}

void CPdfAppearancePage::UpdateControls() {
  const auto mode = SelectedValue(CComboBox(Item(IDC_APPEARANCE_MODE)), kModes);
  if (mode) Item(IDC_APPEARANCE_FULL_SCREEN).Enable(*mode == kFullScreen);
}
