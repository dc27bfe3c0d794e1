// How images are stored in the PDF: by one of five presets on a slider, or value by value.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "controls/CImageStatic.h"
#include "controls/CIntScrollBar.h"
#include "controls/CMyHyperLink.h"
#include "environment/Override.h"
#include "pages/GraphicPresets.h"
#include "resources/ResourceIds.h"

class CPdfGraphicPage : public CTrackedPage<GraphicCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t compressMethod = 0;
  uint16_t jpegQuality = 0;
  uint16_t resolution = 0;  // dpi; 0 leaves images as they are
  uint16_t colorReduction = 0;
  uint16_t enhancedReplacements = 0;

  // What an administrator has fixed.
  NumberOverride resolutionOverride;
  NumberOverride jpegQualityOverride;
  NumberOverride compressMethodOverride;
  BooleanOverride colorReductionOverride;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_GRAPHIC_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, GraphicCockpitValues& values) override;

 private:
  void LoadControls(CDataExchange& exchange);
  void SaveControls(CDataExchange& exchange);

  void OnModeClicked();
  void OnResolutionEdited();
  void OnResolutionSelected();
  void OnResolutionLeft();
  void OnQualityEdited();
  void OnQualitySelected();
  void OnQualityLeft();
  void OnScroll(WPARAM code, LPARAM bar);
  void OnSliderMoved(int code);
  void OnMouseMove(WPARAM keys, LPARAM point);

  void ApplyPreset(bool storeValues);
  void ShowPreset(const GraphicPreset& preset);
  void UpdateHint();
  void UpdateControls();
  void ApplyOverrides();

  bool IsUserDefined() const { return CButton(Item(IDC_GRAPHIC_USER_DEFINED)).IsChecked(); }
  GraphicValues Values() const;
  void SetValues(const GraphicValues& values);

  GdiFont boldFont_;
  CIntScrollBar resolutionBar_, qualityBar_;
  CMyHyperLink videoLink_;
  CImageStatic pictures_[7];
  bool applying_ = false;  // a preset is being applied: the loading exchange in it must not apply one again
};
