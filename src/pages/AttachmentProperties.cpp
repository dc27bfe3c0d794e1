#include "pages/AttachmentProperties.h"

#include "sheet/CNemUISettingsPage.h"

void ReadAttachments(CFileAttachmentDialog& attachments, const CDialogProperties& properties, int settingsIndex) {
  attachments.embedFilenames = properties.EmbedFilenames[settingsIndex].GetString();
  ReadConfirmation(attachments, properties);
  attachments.confirmEditable = attachments.openEditable = settingsIndex == kBasicSettings;
}

void ReadConfirmation(CFileAttachmentDialog& attachments, const CDialogProperties& properties) {
  attachments.embedfilenamesConfirmed = properties.EmbedfilenamesConfirmed[kBasicSettings].GetLong();
  attachments.embedfilenamesOpen = properties.EmbedfilenamesOpen[kBasicSettings].GetLong();
}

void WriteConfirmation(const CFileAttachmentDialog& attachments, CDialogProperties& properties) {
  properties.EmbedfilenamesConfirmed[kBasicSettings].SetLong(attachments.embedfilenamesConfirmed);
  properties.EmbedfilenamesOpen[kBasicSettings].SetLong(attachments.embedfilenamesOpen);
}
