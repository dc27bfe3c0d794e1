#include "pages/CNemUIPdfSecurityPage.h"

namespace {

// Hosts have several numbers for what is on.
bool AreAlike(uint16_t left, uint16_t right) { return (left != 0) == (right != 0); }

}  // namespace

auto CNemUIPdfSecurityPage::Bindings() const -> BindingTable {
  static constexpr Binding kBindings[] = {
      Bind<&CPdfSecurityPage::userEnabled, &CDialogProperties::EncryptUserPasswordEnabled>(),
      Bind<&CPdfSecurityPage::userPassword, &CDialogProperties::EncryptUserPassword>(),
      Bind<&CPdfSecurityPage::ownerEnabled, &CDialogProperties::EncryptOwnerPasswordEnabled>(),
      Bind<&CPdfSecurityPage::ownerPassword, &CDialogProperties::EncryptOwnerPassword>(),
      BindReadOnly<&CPdfSecurityPage::saveFormatEPdfEnabled, &CDialogProperties::SaveFormatEPdfEnabled>(),
      Bind<&CPdfSecurityPage::enhancedMode, &CDialogProperties::UseEncryptEnhancedPdfPassword>(),
      Bind<&CPdfSecurityPage::enhancedPassword, &CDialogProperties::EncryptEnhancedPdfPassword>(),
      Bind<&CPdfSecurityPage::printing, &CDialogProperties::EncryptEnablePrinting>(),
      Bind<&CPdfSecurityPage::modifying, &CDialogProperties::EncryptEnableModifying>(),
      Bind<&CPdfSecurityPage::notes, &CDialogProperties::EncryptEnableNotes>(),
      Bind<&CPdfSecurityPage::clipboard, &CDialogProperties::EncryptEnableClipboard>(),
      Bind<&CPdfSecurityPage::forms, &CDialogProperties::EncryptEnableForms>(),
      Bind<&CPdfSecurityPage::assembling, &CDialogProperties::EncryptEnableAssembling>(),
      Bind<&CPdfSecurityPage::extract, &CDialogProperties::EncryptEnableExtract>(),
      BindOverride<&CPdfSecurityPage::assemblingOverride, &AdminSettings::EncryptEnableAssembling_Override>(),
      BindOverride<&CPdfSecurityPage::clipboardOverride, &AdminSettings::EncryptEnableClipboard_Override>(),
      BindOverride<&CPdfSecurityPage::extractOverride, &AdminSettings::EncryptEnableExtract_Override>(),
      BindOverride<&CPdfSecurityPage::formsOverride, &AdminSettings::EncryptEnableForms_Override>(),
      BindOverride<&CPdfSecurityPage::modifyingOverride, &AdminSettings::EncryptEnableModifying_Override>(),
      BindOverride<&CPdfSecurityPage::notesOverride, &AdminSettings::EncryptEnableNotes_Override>(),
      BindOverride<&CPdfSecurityPage::printingOverride, &AdminSettings::EncryptEnablePrinting_Override>(),
      BindOverride<&CPdfSecurityPage::ownerPasswordOverride, &AdminSettings::EncryptOwnerPassword_Override>(),
      BindOverride<&CPdfSecurityPage::userPasswordOverride, &AdminSettings::EncryptUserPassword_Override>(),
      BindOverride<&CPdfSecurityPage::userEnabledOverride, &AdminSettings::EncryptUserPasswordEnabled_Override>(),
      BindOverride<&CPdfSecurityPage::ownerEnabledOverride, &AdminSettings::EncryptOwnerPasswordEnabled_Override>(),
      BindOverride<&CPdfSecurityPage::confirmOverride, &AdminSettings::EncryptPasswordsConfirmed_Override>(),
  };
  return kBindings;
}

void CNemUIPdfSecurityPage::OnPropertiesRead() {
  confirm = confirmExchanged_ = StoredConfirm();
  passwordsVisible = passwordsVisibleExchanged_ = StoredPasswordsVisible();
}

// Both tabs hold these two. A page on which one has not been changed leaves what the other tab has made of it, and
// takes that over when it shows it again.
void CNemUIPdfSecurityPage::OnPropertiesWritten() {
  if (!AreAlike(confirm, confirmExchanged_) || AreAlike(confirm, StoredConfirm())) {
    Sheet()->Properties().EncryptPasswordsConfirmed[kBasicSettings].SetLong(confirm);
    confirmExchanged_ = confirm;
  }
  if (!AreAlike(passwordsVisible, passwordsVisibleExchanged_) || AreAlike(passwordsVisible, StoredPasswordsVisible())) {
    Sheet()->SetPasswordVisible(passwordsVisible);
    passwordsVisibleExchanged_ = passwordsVisible;
  }
}

void CNemUIPdfSecurityPage::RefreshSharedSwitches() {
  if (AreAlike(confirm, confirmExchanged_)) confirm = confirmExchanged_ = StoredConfirm();
  if (AreAlike(passwordsVisible, passwordsVisibleExchanged_))
    passwordsVisible = passwordsVisibleExchanged_ = StoredPasswordsVisible();
}

uint16_t CNemUIPdfSecurityPage::StoredConfirm() const {
  return static_cast<uint16_t>(Sheet()->Properties().EncryptPasswordsConfirmed[kBasicSettings].GetLong());
}

uint16_t CNemUIPdfSecurityPage::StoredPasswordsVisible() const {
  return static_cast<uint16_t>(Sheet()->GetPasswordVisible());
}

void CNemUIPdfSecurityPage::SwitchPasswordsOff() {
  if (!Sheet()) return;
  if (IsLoaded()) {
    SwitchOff();
    WriteProperties();
    return;
  }
  CDialogProperties& properties = Sheet()->Properties();
  for (CLongProperty* each : {&properties.EncryptOwnerPasswordEnabled[SettingsIndex()],
                              &properties.EncryptUserPasswordEnabled[SettingsIndex()],
                              &properties.UseEncryptEnhancedPdfPassword[SettingsIndex()]})
    each->SetLong(0);
}
