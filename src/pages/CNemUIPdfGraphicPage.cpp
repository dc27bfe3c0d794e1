#include "pages/CNemUIPdfGraphicPage.h"

auto CNemUIPdfGraphicPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CPdfGraphicPage::compressMethod, &CDialogProperties::GraphicCompressMethod>(),
      Bind<&CPdfGraphicPage::jpegQuality, &CDialogProperties::GraphicJpegQuality>(),
      Bind<&CPdfGraphicPage::resolution, &CDialogProperties::GraphicResolution>(),
      Bind<&CPdfGraphicPage::colorReduction, &CDialogProperties::GraphicColorReduction>(),
      Bind<&CPdfGraphicPage::enhancedReplacements, &CDialogProperties::EnhancedPdfReplacements>(),
      BindOverride<&CPdfGraphicPage::resolutionOverride, &AdminSettings::GraphicResolution_Override>(),
      BindOverride<&CPdfGraphicPage::jpegQualityOverride, &AdminSettings::GraphicJpegQuality_Override>(),
      BindOverride<&CPdfGraphicPage::compressMethodOverride, &AdminSettings::GraphicCompressMethod_Override>(),
      BindOverride<&CPdfGraphicPage::colorReductionOverride, &AdminSettings::GraphicColorReduction_Override>(),
  };
  return kBindings;
}
