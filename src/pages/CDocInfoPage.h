// Title, author, subject and keywords of the document, and the programs that make it. A host may set the document's
// properties itself: the page then shows them and says so.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "controls/CImageStatic.h"
#include "environment/Override.h"
#include "resources/ResourceIds.h"

class CDocInfoPage : public CTrackedPage<DocInfoCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t internalUse = 0;
  CUString title, author, subject, keywords;

  // What an administrator has fixed.
  TextOverride titleOverride, authorOverride, subjectOverride, keywordsOverride;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void ExchangeCockpitValues(const CockpitExchange& exchange, DocInfoCockpitValues& values) override;

 private:
  void ShowPrograms();
  void UpdateControls();
  void ApplyOverrides();
  bool IsHostsOwn() const;

  CImageStatic warningSign_;
};
