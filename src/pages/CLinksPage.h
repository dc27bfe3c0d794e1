// Whether addresses in the printed text become links, and how these are drawn. The page holds the attachments, too,
// without a control for them.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "controls/CColourPicker.h"
#include "pages/CFileAttachmentDialog.h"
#include "pages/EmbedFilenamesAccess.h"
#include "resources/ResourceIds.h"

class CLinksPage : public CTrackedPage<LinksCockpitValues>, public CFileAttachmentDialog, public EmbedFilenamesAccess {
 public:
  explicit CLinksPage(const PageDescription& description);

  uint16_t useHyperlinkRecognition = 0;
  uint16_t hyperlinkBorder = 0;
  uint16_t hyperlinkBorderWidth = 0;  // hundredths of a point
  uint32_t hyperlinkBorderColor = 0;  // 0x00BBGGRR
  uint16_t embedFilenamesEnabled = kNotRead;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  void ExchangeCockpitValues(const CockpitExchange& exchange, LinksCockpitValues& values) override;

 private:
  void ExchangeWidth(CDataExchange& exchange);
  void OnUseLinks();

  CColourPicker colourPicker_;
};
