#include "pages/CPwdConfirmDialog.h"

#include "DriverLIB/Identity.h"
#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "resources/ResourceIds.h"
#include "sheet/Help.h"
#include "window/CenterWindow.h"
#include "window/PasswordEdit.h"
#include "window/SmallIcon.h"

namespace {

// By the kind of the password.
struct PasswordRow {
  int editId, goodId, badId;
};

constexpr PasswordRow kPasswords[kPasswordCount] = {
    {IDC_CONFIRM_OWNER_PASSWORD, IDC_CONFIRM_OWNER_GOOD, IDC_CONFIRM_OWNER_BAD},
    {IDC_CONFIRM_USER_PASSWORD, IDC_CONFIRM_USER_GOOD, IDC_CONFIRM_USER_BAD},
    {IDC_CONFIRM_EDITING_PASSWORD, IDC_CONFIRM_EDITING_GOOD, IDC_CONFIRM_EDITING_BAD},
};

}  // namespace

CPwdConfirmDialog::CPwdConfirmDialog(const CUString& helpFile)
    : CDialog(IDD_PASSWORD_CONFIRMATION), helpFile_(helpFile) {}

bool CPwdConfirmDialog::OnWindowMessage(WindowMessage& message) {
  static constexpr MessageRow kMessages[] = {
      OnCommand<&CPwdConfirmDialog::OnPasswordEdited>(IDC_CONFIRM_OWNER_PASSWORD, EN_CHANGE),
      OnCommand<&CPwdConfirmDialog::OnPasswordEdited>(IDC_CONFIRM_USER_PASSWORD, EN_CHANGE),
      OnCommand<&CPwdConfirmDialog::OnPasswordEdited>(IDC_CONFIRM_EDITING_PASSWORD, EN_CHANGE),
      OnClick<&CPwdConfirmDialog::ShowPasswords>(IDC_CONFIRM_VISIBLE),
      OnClick<&CPwdConfirmDialog::OnHelpClicked>(IDHELP),
  };
  if (message.message == WM_DESTROY) {
    const FillingScope filling(*this);
    for (const PasswordRow& row : kPasswords) WipePassword(CEdit(Item(row.editId)));
  }
  return DispatchMessages(kMessages, *this, message) || CDialog::OnWindowMessage(message);
}

BOOL CPwdConfirmDialog::OnInitDialog() {
  Item(IDC_CONFIRM_EDITING_LABEL).SetText(MessageText(MSG_CONFIRM_EDITING_PASSWORD).Text());
  if (!CDialog::OnInitDialog()) return FALSE;
  smallIcon_ = SetSmallIcon(*this, IDI_PRODUCT);
  picture_.Attach(*this, IDC_CONFIRM_PICTURE, Pictures::kKey);
  ShowPasswords();
  CWnd first;
  for (const PasswordKind kind : kPasswordKinds) {
    const PasswordRow& row = kPasswords[kind];
    good_[kind].Attach(*this, row.goodId, Pictures::kMarkGood);
    bad_[kind].Attach(*this, row.badId, Pictures::kMarkBad);
    Item(row.editId).Enable(!expected[kind].IsEmpty());
    ShowMark(kind);
    if (!first.IsWindow() && !expected[kind].IsEmpty()) first = Item(row.editId);
  }
  CenterWindow(*this);
  first.Focus();
  return FALSE;
}

void CPwdConfirmDialog::DoDataExchange(CDataExchange& exchange) {
  exchange.Check(IDC_CONFIRM_VISIBLE, passwordsVisible_);
  for (const PasswordKind kind : kPasswordKinds) exchange.Password(kPasswords[kind].editId, typed_[kind]);
  if (!exchange.IsSaving()) return;
  for (const PasswordKind kind : kPasswordKinds) {
    if (typed_[kind] == expected[kind]) continue;
    MsgBoxById(Handle(), kComponentName, MSG_CONFIRM_FAILED, MB_OK | MB_ICONINFORMATION);
    return exchange.Fail(kPasswords[kind].editId);
  }
}

void CPwdConfirmDialog::OnPasswordEdited(WindowMessage& message) {
  for (const PasswordKind kind : kPasswordKinds)
    if (kPasswords[kind].editId == message.CommandId()) ShowMark(kind);
}

// One that is not asked for has no mark.
void CPwdConfirmDialog::ShowMark(PasswordKind kind) {
  CSecretText typed;
  typed = Item(kPasswords[kind].editId).Text();
  const bool isAsked = !expected[kind].IsEmpty();
  const bool isGood = !typed.IsEmpty() && typed == expected[kind];
  good_[kind].Show(isAsked && isGood);
  bad_[kind].Show(isAsked && !isGood);
}

void CPwdConfirmDialog::ShowPasswords() {
  const bool visible = CButton(Item(IDC_CONFIRM_VISIBLE)).IsChecked();
  for (const PasswordRow& row : kPasswords) ShowPassword(CEdit(Item(row.editId)), visible);
}

// The file has no topic of its own for this dialog.
bool CPwdConfirmDialog::OnHelpInfo(const HELPINFO&) {
  OnHelpClicked();
  return true;
}

void CPwdConfirmDialog::OnHelpClicked() {
  ShowHelp(HelpForControl(IDHELP, Item(IDHELP).Handle()), helpFile_.Text(), Handle(), kComponentName);
}
