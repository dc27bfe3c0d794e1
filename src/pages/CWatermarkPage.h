// What is laid over the document: a watermark, which is an image, and a stationery, which is a PDF out of a list.
#pragma once

#include <memory>

#include "cockpit/CTrackedPage.h"
#include "controls/CImageStatic.h"
#include "controls/CMyHyperLink.h"
#include "environment/Override.h"
#include "pages/CStationeryPropertiesDialog.h"
#include "pages/StationeryRow.h"
#include "pages/WatermarkAccess.h"
#include "resources/ResourceIds.h"

class CWatermarkPage : public CTrackedPage<WatermarkCockpitValues>, public WatermarkAccess {
 public:
  using CTrackedPage::CTrackedPage;
  ~CWatermarkPage() override;

  uint16_t watermarkEnabled = 0;
  uint16_t watermarkAsBackground = 0;
  CUString watermarkFilename;
  uint16_t stationeryEnabled = 0;
  uint16_t stationeryAsForeground = 0;
  uint16_t stationerySelected = 0;  // row of the list
  CUString stationeryInfos;         // the list as text (pages/StationeryList.h); holds passwords, and is wiped
  uint16_t colorspace = 0;          // written back as it was read or restored

  // What an administrator has fixed.
  BooleanOverride watermarkEnabledOverride;
  BooleanOverride watermarkAsBackgroundOverride;
  TextOverride watermarkFilenameOverride;
  BooleanOverride stationeryEnabledOverride;
  BooleanOverride stationeryAsForegroundOverride;
  NumberOverride stationerySelectedOverride;
  TextOverride stationeryInfosOverride;  // with passwords, too

  void SetColorspace(uint16_t value) override;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_WATERMARK_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, WatermarkCockpitValues& values) override;

 private:
  void LoadStationeries();
  void SaveStationeries();

  void OnWatermarkCheck();
  void OnBrowseWatermark();
  void OnStationeryCheck();
  void OnAddStationery();
  void OnStationeryProperties();
  void OnDisplayStationery();
  void OnDeleteStationery();
  void OnStationeryDblClk(WindowMessage& message);
  void OnStationeryReturn();
  void OnStationeryKey(WindowMessage& message);
  void OnStationeryApplied();
  void OnStationeryCancelled(WPARAM mark, LPARAM);
  void OnStationeryOk();
  void OnStationeryModified();
  void OnDropFiles(WPARAM record, LPARAM);
  void OnDestroy();

  CUString AskForFile(uint32_t filterId, const CUString& startName);
  void Tell(const wchar_t* title, const CUString& text, UINT icon);
  bool HasWatermarkFile();
  void AddStationery(const CUString& file);
  void DropStationery(const CUString& file);
  std::shared_ptr<CStationeryFormat> Stationery(int row) const;
  std::shared_ptr<CStationeryFormat> SelectedStationery() const { return Stationery(list_.SelectionMark()); }

  void ShowProperties(const std::shared_ptr<CStationeryFormat>& format);

  void EnableStationeryControls(bool enable);
  void ApplyOverrides();
  bool IsListFixed() const { return stationerySelectedOverride.IsSet() && stationeryInfosOverride.IsSet(); }

  CListCtrlStationery list_;
  CImageStatic picture_;
  CMyHyperLink stationeryLink_;
  ListEntryDialog<CStationeryPropertiesDialog> dialog_;
};
