// What becomes of the finished document: how its name and folder are found, what happens to a file that is there
// already, what is added to the names of e.pdf documents, and who shares the printer's settings.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "environment/Override.h"
#include "resources/ResourceIds.h"

class CProgramPage : public CTrackedPage<SavingCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t printOutput = 0;
  uint16_t saveFormatEPdfEnabled = 1;
  uint16_t saveAction = 0;  // the kind of name and the kind of folder
  uint16_t fileExistsAction = 0;
  CUString destinationFile, destinationDirectory;
  uint16_t suffixEnabled = 0;
  CUString suffix;
  uint32_t registryDevmode = 0;
  uint16_t internalUse = 0;
  uint16_t applicationDevmodeStartup = 0;
  uint32_t tiffSinglePage = 0;  // in the place of suffixEnabled where TIFF files are made

  // What an administrator has fixed.
  NumberOverride saveActionOverride;
  NumberOverride fileExistsActionOverride;
  NumberOverride settingsOverride;
  TextOverride destinationOverride;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_SAVING_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, SavingCockpitValues& values) override;

 private:
  void ExchangeChoices(CDataExchange& exchange);
  void ExchangeSuffixCheck(CDataExchange& exchange);
  void LoadScope();
  void SaveScope();
  void SelectApplications(bool all);
  bool ValidateTargetFields(CDataExchange& exchange);
  bool Refuse(CDataExchange& exchange, int control, uint32_t messageId);

  void OnTargetChanged();
  void OnBrowse();
  void OnInstancesClicked();
  void OnSuffixClicked();

  void BrowseForFile();
  void BrowseForFolder();

  void UpdateControls();
  void UpdateSettingsScope();
  void UpdateSettingsVisibility();
  void ApplyOverrides();
};
