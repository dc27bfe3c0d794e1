#include "pages/CLinksPage.h"

#include <algorithm>

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "pages/LinkBorders.h"

namespace {

// The texts are the same in each language. False when a row could not be inserted.
bool FillWidths(const CComboBox& widths) {
  if (widths.Count() > 0) return true;
  return std::ranges::all_of(kLinkBorderWidths,
                             [&](const LinkBorderWidth& row) { return widths.AddString(row.text) >= 0; });
}

}  // namespace

CLinksPage::CLinksPage(const PageDescription& description)
    : CTrackedPage(description), CFileAttachmentDialog(/*checkFiles=*/true) {}

MessageTable CLinksPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CLinksPage::OnUseLinks>(IDC_LINKS_RECOGNIZE),
      OnCommand<&CLinksPage::OnUseLinks>(IDC_LINKS_BORDER, CBN_SELCHANGE),
  };
  return kMessages;
}

void CLinksPage::ExchangeCockpitValues(const CockpitExchange& exchange, LinksCockpitValues& values) {
  exchange.Value(useHyperlinkRecognition, values.useHyperlinkRecognition);
}

BOOL CLinksPage::OnInitDialog() {
  colourPicker_.Attach(*this, IDC_LINKS_COLOR);
  // A border always has a colour.
  colourPicker_.SetDefaultText(L"");
  colourPicker_.SetCustomText(MessageText(MSG_COLOUR_MORE).Text());
  return CTrackedPage::OnInitDialog();
}

void CLinksPage::DoDataExchange(CDataExchange& exchange) {
  exchange.Check(IDC_LINKS_RECOGNIZE, useHyperlinkRecognition);
  exchange.Choice(IDC_LINKS_BORDER, kLinkBorders, hyperlinkBorder, NoSelection::GoesOn);
  ExchangeWidth(exchange);
  ExchangeColour(exchange, colourPicker_, hyperlinkBorderColor);
  if (exchange.IsLoading()) OnUseLinks();
}

void CLinksPage::ExchangeWidth(CDataExchange& exchange) {
  const CComboBox widths(Item(IDC_LINKS_WIDTH));
  if (exchange.IsLoading() && (!FillWidths(widths) || !widths.Select(RowOfLinkBorderWidth(hyperlinkBorderWidth))))
    exchange.FailAndGoOn(IDC_LINKS_WIDTH);
  if (!exchange.IsSaving()) return;
  const int row = widths.Selection();
  hyperlinkBorderWidth = static_cast<uint16_t>(kLinkBorderWidths[std::max(row, 0)].width);
  if (row < 0) exchange.FailAndGoOn(IDC_LINKS_WIDTH);
}

void CLinksPage::OnUseLinks() {
  const bool use = IsChecked(IDC_LINKS_RECOGNIZE);
  const bool hasBorder =
      SelectedValue(CComboBox(Item(IDC_LINKS_BORDER)), kLinkBorders).value_or(kNoLinkBorder) != kNoLinkBorder;
  Item(IDC_LINKS_BORDER).Enable(use);
  EnableControls({IDC_LINKS_WIDTH, IDC_LINKS_COLOR}, use && hasBorder);
}
