#include "pages/CNemUILinksPage.h"

#include "pages/AttachmentProperties.h"

auto CNemUILinksPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CLinksPage::useHyperlinkRecognition, &CDialogProperties::UseHyperlinkRecognition>(),
      Bind<&CLinksPage::hyperlinkBorder, &CDialogProperties::HyperlinkBorder>(),
      Bind<&CLinksPage::hyperlinkBorderWidth, &CDialogProperties::HyperlinkBorderWidth>(),
      Bind<&CLinksPage::hyperlinkBorderColor, &CDialogProperties::HyperlinkBorderColor>(),
      Bind<&CLinksPage::embedFilenamesEnabled, &CDialogProperties::EmbedFilenamesEnabled>(),
  };
  return kBindings;
}

void CNemUILinksPage::OnPropertiesRead() { ReadAttachments(*this, Sheet()->Properties(), SettingsIndex()); }

// The attachments page of the tab writes behind this one, so a list that was changed there stands. The confirmation
// belongs to the other tab as well, whose page may have been written already: it is left as it is.
void CNemUILinksPage::OnPropertiesWritten() {
  Sheet()->Properties().EmbedFilenames[SettingsIndex()].SetString(embedFilenames);
}

void CNemUILinksPage::SetEmbedFilenamesEnabled(int value) {
  TakeValue<&CLinksPage::embedFilenamesEnabled, &CDialogProperties::EmbedFilenamesEnabled>(value);
}
