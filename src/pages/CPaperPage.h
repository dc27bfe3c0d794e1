// The page format: paper, orientation, scaling, border and margins, and what a printer offers beside. The values are
// the fields of a printer's device mode.
//
// A host may set the layout itself: the page then shows it and says so. Under the office's word processor the layout is
// not shown either, and what is stored are marks for the host.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "controls/CImageStatic.h"
#include "environment/HostApplication.h"
#include "pages/PaperValues.h"
#include "resources/ResourceIds.h"

class CPaperPage : public CTrackedPage<PaperCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t internalUse = 0;
  uint16_t printOutput = 0;
  uint32_t fields = 0;  // which of the values are valid (PaperValues.h)
  uint16_t orientation = 0;
  uint16_t paperSize = 0;                    // number of the paper
  uint16_t paperLength = 0, paperWidth = 0;  // tenths of a millimetre, of a user-defined paper
  uint16_t scale = 0;                        // per cent, of the application
  uint16_t duplex = 0;                       // 1 simplex, 2 duplex, 3 with binding at the upper edge
  uint16_t paperSource = 0;                  // numbers of bins
  uint16_t paperDestination = 0;
  const PaperBin* sources = nullptr;  // lists of bins, which no host supplies at present
  const PaperBin* destinations = nullptr;
  uint16_t scaleWidth = 0, scaleHeight = 0;  // per cent
  uint16_t marginCenter = 0;
  uint16_t marginLeft = 0, marginTop = 0;  // tenths of a millimetre
  uint16_t border = 0;                     // hundredths of a point
  const bool isWordHost = IsWordHost();

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  void ExchangeCockpitValues(const CockpitExchange& exchange, PaperCockpitValues& values) override;

 private:
  bool FillLists() const;

  void LoadControls(CDataExchange& exchange);
  void LoadLayout(CDataExchange& exchange);
  void SaveControls(CDataExchange& exchange);
  void SaveLayout(CDataExchange& exchange);
  void SaveWordLayout();

  void OnPaperSelected();
  void OnWidthLeft();
  void OnHeightLeft();
  void OnRatioClicked();
  void OnScaleWidthEdited();

  void CorrectWidth();
  void CorrectHeight();
  void CorrectLeftMargin();
  void CorrectTopMargin();

  void SelectPaper(const PaperRow& paper) const;
  const PaperRow& SelectedPaper() const;
  void ShowMeasures(const PaperRow& paper) const;
  void MatchPaper() const;
  void FollowScaleWidth() const;
  void ShowScaledWidth();
  void ShowScaledHeight();
  void UpdateControls();

  bool IsLayoutOpen() const;

  CImageStatic pictures_[3];
};
