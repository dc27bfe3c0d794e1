// Asks the user to type changed passwords a second time.
#pragma once

#include "controls/CImageStatic.h"
#include "DriverLIB/CSecretText.h"
#include "pages/SecurityRules.h"
#include "window/CDialog.h"
#include "window/Gdi.h"

class CPwdConfirmDialog : public CDialog {
 public:
  explicit CPwdConfirmDialog(const CUString& helpFile);

  // What has to be typed. One that is empty is not asked for.
  CSecretText expected[kPasswordCount];

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  bool OnWindowMessage(WindowMessage& message) override;
  bool OnHelpInfo(const HELPINFO&) override;

 private:
  void OnPasswordEdited(WindowMessage& message);
  void OnHelpClicked();
  void ShowPasswords();
  void ShowMark(PasswordKind kind);

  const CUString helpFile_;
  CSecretText typed_[kPasswordCount];
  uint16_t passwordsVisible_ = 0;
  GdiIcon smallIcon_;
  CImageStatic picture_;
  CImageStatic good_[kPasswordCount], bad_[kPasswordCount];
};
