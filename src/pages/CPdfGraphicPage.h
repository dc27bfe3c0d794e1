// How images are stored in the PDF: by one of five presets on a slider, or value by value.
#pragma once

#include "cockpit/CockpitValues.h"
#include "controls/CImageStatic.h"
#include "controls/CIntScrollBar.h"
#include "controls/CMyHyperLink.h"
#include "environment/AdminSettings.h"
#include "pages/GraphicPresets.h"
#include "resources/ResourceIds.h"
#include "sheet/CNemUIPage.h"

class CPdfGraphicPage : public CNemUIPage, public CockpitPage<GraphicCockpitValues> {
 public:
  using CNemUIPage::CNemUIPage;

  void GetCockpitValues(GraphicCockpitValues& values) override;
  void SetCockpitValues(const GraphicCockpitValues& values) override;

  uint16_t compressMethod = 0;
  uint16_t jpegQuality = 0;
  uint16_t resolution = 0;  // dpi; 0 leaves images as they are
  uint16_t colorReduction = 0;
  uint16_t enhancedReplacements = 0;

  // What an administrator has fixed.
  int32_t resolutionOverride = kUnsetNumber;
  int32_t jpegQualityOverride = kUnsetNumber;
  int32_t compressMethodOverride = kUnsetNumber;
  int32_t colorReductionOverride = kUnsetBoolean;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  static const MessageRow kMessages[];

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
  int SelectedCompression() const;
  GraphicValues Values() const;
  void SetValues(const GraphicValues& values);

  GdiFont boldFont_;
  CIntScrollBar resolutionBar_, qualityBar_;
  CMyHyperLink helpLink_, videoLink_;
  CImageStatic pictures_[7];
  bool applying_ = false;  // a preset is being applied: the loading exchange in it must not apply one again
};
