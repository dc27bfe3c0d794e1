#include "pages/CNemUIAttachmentsPage.h"

#include "pages/AttachmentProperties.h"

auto CNemUIAttachmentsPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CAttachmentsPage::embedFilenamesEnabled, &CDialogProperties::EmbedFilenamesEnabled>(),
  };
  return kBindings;
}

void CNemUIAttachmentsPage::OnPropertiesRead() { ReadAttachments(*this, Sheet()->Properties(), SettingsIndex()); }

// The document's page cannot change the confirmation: it would only write an older one over that of the basic settings.
void CNemUIAttachmentsPage::OnPropertiesWritten() {
  CDialogProperties& properties = Sheet()->Properties();
  properties.EmbedFilenames[SettingsIndex()].SetString(embedFilenames);
  if (confirmEditable) WriteConfirmation(*this, properties);
}

// The document's page shows the confirmation as it stands in the basic settings.
void CNemUIAttachmentsPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsLoading() && !confirmEditable) ReadConfirmation(*this, Sheet()->Properties());
  CNemUISettingsPage::DoDataExchange(exchange);
}

void CNemUIAttachmentsPage::SetEmbedFilenamesEnabled(int value) {
  TakeValue<&CAttachmentsPage::embedFilenamesEnabled, &CDialogProperties::EmbedFilenamesEnabled>(value);
}
