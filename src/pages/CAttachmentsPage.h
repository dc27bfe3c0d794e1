// The files that are attached to the PDF.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "pages/CFileAttachmentDialog.h"
#include "pages/EmbedFilenamesAccess.h"
#include "resources/ResourceIds.h"

class CAttachmentsPage : public CTrackedPage<AttachmentsCockpitValues>,
                         public CFileAttachmentDialog,
                         public EmbedFilenamesAccess {
 public:
  explicit CAttachmentsPage(const PageDescription& description);

  uint16_t embedFilenamesEnabled = kNotRead;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  void ExchangeCockpitValues(const CockpitExchange& exchange, AttachmentsCockpitValues& values) override;

 private:
  void TellLinksPage();

  void OnUseAttachments();
  void OnAddAttachment();
  void OnRemoveAttachment();
  void OnListDblClk();
  LRESULT OnListKey(WPARAM key, LPARAM list);
  void OnDropFiles(WPARAM record, LPARAM);
};
