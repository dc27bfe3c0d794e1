// Whether the PDF becomes a ZUGFeRD invoice, and where its XML comes from.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "environment/Override.h"
#include "pages/ZugferdAccess.h"
#include "resources/ResourceIds.h"

class CZugferdPage : public CTrackedPage<ZugferdCockpitValues>, public ZugferdAccess {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t zugferd = kNotRead;
  uint16_t deleteAfterEmbedding = kNotRead;
  uint16_t showAfterCreation = kNotRead;
  uint16_t creationMethod = kNotRead;  // by the order of the radios: an XML file, content marked in the document
  CUString xmlFile;

  // What an administrator has fixed. Of the switch only an invoice that is on locks controls.
  BooleanOverride zugferdOverride;
  NumberOverride creationMethodOverride;
  BooleanOverride deleteOverride;
  TextOverride xmlOverride;

  void ClearOverrides() override;
  // The link opens a manual in place of the help.
  LRESULT ShowHelpForControl(WPARAM controlId, LPARAM argument) override;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_ZUGFERD_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, ZugferdCockpitValues& values) override;

 private:
  void ExchangeXmlFile(const CDataExchange& exchange);

  void OnCreateInvoice();
  void OnDeleteAfterEmbedding();
  void OnShowAfterCreation();
  void OnBrowseXml();
  void OnCreationMethod();
  void OnDropFiles(WPARAM record, LPARAM);

  void RequirePdfA3();
  void TakeXmlFile(const CUString& path);
  void UpdateControls();
  void ApplyOverrides();
};
