#include "pages/AttachmentProperties.h"

void ReadAttachments(CFileAttachmentDialog& attachments, const CDialogProperties& properties, int settingsIndex) {
  attachments.embedFilenames = properties.EmbedFilenames[settingsIndex].GetString();
  ReadConfirmation(attachments, properties);
  attachments.confirmEditable = attachments.openEditable = settingsIndex == kConfirmationSet;
}

void ReadConfirmation(CFileAttachmentDialog& attachments, const CDialogProperties& properties) {
  attachments.embedfilenamesConfirmed = properties.EmbedfilenamesConfirmed[kConfirmationSet].GetLong();
  attachments.embedfilenamesOpen = properties.EmbedfilenamesOpen[kConfirmationSet].GetLong();
}

void WriteConfirmation(const CFileAttachmentDialog& attachments, CDialogProperties& properties) {
  properties.EmbedfilenamesConfirmed[kConfirmationSet].SetLong(attachments.embedfilenamesConfirmed);
  properties.EmbedfilenamesOpen[kConfirmationSet].SetLong(attachments.embedfilenamesOpen);
}
