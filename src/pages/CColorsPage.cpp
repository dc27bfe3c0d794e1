#include "pages/CColorsPage.h"

#include "pages/FindPageAs.h"
#include "pages/WatermarkAccess.h"

namespace {

// By the order of the radio buttons.
constexpr uint16_t kCmyk = 1;

}  // namespace

void CColorsPage::ExchangeCockpitValues(const CockpitExchange& exchange, ColorsCockpitValues& values) {
  exchange.Value(colorspace, values.colorspace, colorspaceOverride.IsSet());
  if (exchange.IsToPage() && !colorspaceOverride.IsSet()) TellWatermarkPage();
}

// The watermark page holds the colour space, too. Over a choice on this page it writes an older one back, on purpose; a
// restored one has to outlast that.
void CColorsPage::TellWatermarkPage() {
  if (auto* watermark = FindPageAs<WatermarkAccess>(*this, kWatermarkPage)) watermark->SetColorspace(colorspace);
}

// A number that neither button has shows none on, and is stored as CMYK.
void CColorsPage::DoDataExchange(CDataExchange& exchange) {
  exchange.Radio(IDC_COLORS_RGB, IDC_COLORS_CMYK, colorspace, kCmyk);
  ApplyOverrides();
}

void CColorsPage::ApplyOverrides() { Lock(colorspaceOverride.IsSet(), {IDC_COLORS_RGB, IDC_COLORS_CMYK}); }
