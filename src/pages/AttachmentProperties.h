// The properties behind the attachments, which two pages have.
#pragma once

#include "pages/CFileAttachmentDialog.h"
#include "ui/CDialogProperties.h"

// The list is one a settings set. How it is confirmed and shown stands in the basic settings for both.
void ReadAttachments(CFileAttachmentDialog& attachments, const CDialogProperties& properties, int settingsIndex);

// What stands in the basic settings alone, and can be changed on their page alone.
void ReadConfirmation(CFileAttachmentDialog& attachments, const CDialogProperties& properties);
void WriteConfirmation(const CFileAttachmentDialog& attachments, CDialogProperties& properties);
