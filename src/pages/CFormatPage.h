// The PDF version of the output, which other pages obey; the kind of file; the conversion engine.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "controls/CImageStatic.h"
#include "environment/Override.h"
#include "pages/FormatAccess.h"
#include "pages/SaveFormat.h"
#include "resources/ResourceIds.h"

class CFormatPage : public CTrackedPage<FormatCockpitValues>, public FormatAccess {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t printOutput = 0;
  uint16_t version = kNotRead;  // as the list shows it, unless it has no row for it
  uint16_t saveFormatEPdfEnabled = 1;
  uint16_t saveFormat = kNotRead;
  uint16_t saveConversionEnabled = 1;
  uint16_t saveConversion = 0;     // 0 printer driver, 1 RTF
  uint16_t stationeryEnabled = 0;  // as the property was; the watermark page knows better

  // What an administrator has fixed.
  NumberOverride versionOverride;

  // Without the office add-in nothing tags a document. Nothing in this library says that it is not there.
  bool hasAddIn = true;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_FORMAT_MANUAL_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, FormatCockpitValues& values) override;
  // As if it had been loaded: an untouched list then stores this version.
  void TakeVersion(uint16_t value);

 private:
  void LoadControls();
  void SaveControls(CDataExchange& exchange);

  void OnVersionSelected();
  void OnSaveFormatClicked();
  void OnEngineClicked();

  bool MayTakeVersion();
  bool GiveUpInvoice();
  void ShowDefaults(int previousVersion);
  bool UsesStationery();
  void EnforceVersion();

  void SelectVersion();
  int SelectedVersion() const;
  void ShowSaveChoice(SaveChoice choice);
  SaveChoice ShownSaveChoice() const;
  void ShowEngine();
  void UpdateControls();
  void ApplyOverrides();

  CImageStatic informationSign_, warningSign_;
  uint16_t versionAsLoaded_ = kNotRead;
  bool versionTouched_ = false;  // the user has chosen one
  // Told once in the page's life: what PDF/A-1, 2, 3 and PDF/UA activate, and what they ask of stationery paper.
  bool defaultsUntold_[4] = {true, true, true, true};
  bool stationeryUntold_ = true;
  bool tellingOfEngine_ = false;
};
