#include "pages/CColorsPage.h"

namespace {

// By the order of the radio buttons.
constexpr uint16_t kCmyk = 1;

}  // namespace

void CColorsPage::ExchangeCockpitValues(const CockpitExchange& exchange, ColorsCockpitValues& values) {
  exchange.Value(colorspace, values.colorspace, colorspaceOverride.IsSet());
}

// A number that neither button has shows none on, and is stored as CMYK.
void CColorsPage::DoDataExchange(CDataExchange& exchange) {
  exchange.Radio(IDC_COLORS_RGB, IDC_COLORS_CMYK, colorspace, kCmyk);
  ApplyOverrides();
}

void CColorsPage::ApplyOverrides() { Lock(colorspaceOverride.IsSet(), {IDC_COLORS_RGB, IDC_COLORS_CMYK}); }
