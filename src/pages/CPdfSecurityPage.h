// The passwords and rights of the PDF. What is open depends on the PDF version of the format page.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "controls/CImageStatic.h"
#include "controls/CMyHyperLink.h"
#include "DriverLIB/CSecretText.h"
#include "environment/Override.h"
#include "pages/SecurityAccess.h"
#include "pages/SecurityRules.h"
#include "resources/ResourceIds.h"

class CPdfSecurityPage : public CTrackedPage<SecurityCockpitValues>, public SecurityAccess {
 public:
  using CTrackedPage::CTrackedPage;
  // Wipes the texts that hold passwords.
  ~CPdfSecurityPage() override;

  uint16_t confirm = 0;  // changed passwords are typed a second time: one value for both tabs
  uint16_t userEnabled = kNotRead;
  CSecretText userPassword;
  uint16_t ownerEnabled = kNotRead;
  CSecretText ownerPassword;
  uint16_t saveFormatEPdfEnabled = 1;
  uint16_t enhancedMode = kNotRead;  // for editing an e.pdf: 0 the owner's password, 1 none, 2 one of its own
  CSecretText enhancedPassword;
  uint16_t printing = 0, modifying = 0, notes = 0, clipboard = 0, forms = 0, assembling = 0, extract = 0;
  uint16_t passwordsVisible = 0;  // one value for both tabs

  // What an administrator has fixed.
  BooleanOverride assemblingOverride, clipboardOverride, extractOverride, formsOverride, modifyingOverride;
  BooleanOverride notesOverride, printingOverride;
  TextOverride ownerPasswordOverride, userPasswordOverride;
  BooleanOverride userEnabledOverride, ownerEnabledOverride, confirmOverride;

  LRESULT ShowHelpForControl(WPARAM controlId, LPARAM) override;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_SECURITY_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, SecurityCockpitValues& values) override;
  bool OnWindowMessage(WindowMessage& message) override;
  // In the members, and where the page has been shown in its controls.
  void SwitchOff();
  // The controls are about to be filled. The other tab may have changed what both hold.
  virtual void RefreshSharedSwitches() {}

 private:
  void ExchangeValues(CDataExchange& exchange);
  void ExchangeEditingMode(CDataExchange& exchange);
  void RefuseEmptyPasswords(CDataExchange& exchange);
  void ConfirmPasswords(CDataExchange& exchange);
  int EditToCorrect() const;

  void OnOwnerClicked();
  void OnUserClicked();
  void OnEditingClicked();
  void OnPasswordEdited(WindowMessage& message);

  SecuritySwitches ShownSwitches() const;
  void ForgetTouches();
  void ShowPasswords();
  void UpdateControls();
  void ApplyOverrides();

  CImageStatic picture_;
  CMyHyperLink versionLink_;
  bool touched_[kPasswordCount] = {};  // by the user since loading
  bool independentShown_ = false;      // the radio of the independent password is on
};
