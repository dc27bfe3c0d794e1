#include "pages/CPdfSecurityPage.h"

#include <algorithm>

#include "controls/LabelText.h"
#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/SecureWipe.h"
#include "MessageIds.h"
#include "pages/CPwdConfirmDialog.h"
#include "pages/FormatAccess.h"
#include "pages/PdfVersions.h"
#include "window/PasswordEdit.h"
#include "window/RadioTable.h"

namespace {

constexpr uint16_t kIndependent = 2;  // the mode in which editing has a password of its own

// By the kind of the password.
struct PasswordRow {
  int editId;
  uint32_t whenEmptyId;
};

constexpr PasswordRow kPasswords[kPasswordCount] = {
    {IDC_SECURITY_OWNER_PASSWORD, MSG_SECURITY_INVALID_OWNER_PASSWORD},
    {IDC_SECURITY_USER_PASSWORD, MSG_SECURITY_INVALID_USER_PASSWORD},
    {IDC_SECURITY_EDITING_PASSWORD, MSG_SECURITY_INVALID_EDITING_PASSWORD},
};

constexpr int kOwnerControls[] = {
    IDC_SECURITY_OWNER_LABEL, IDC_SECURITY_OWNER_PASSWORD, IDC_SECURITY_PRINTING, IDC_SECURITY_MODIFYING,
    IDC_SECURITY_NOTES,       IDC_SECURITY_CLIPBOARD,      IDC_SECURITY_USER,
};
constexpr int kUserControls[] = {IDC_SECURITY_USER_LABEL, IDC_SECURITY_USER_PASSWORD};
constexpr int kDetailedRights[] = {IDC_SECURITY_EXTRACT, IDC_SECURITY_FORMS, IDC_SECURITY_ASSEMBLING};
// By mode: the one in the middle is 0, and stands for all other values.
constexpr int kEditingRadios[] = {IDC_SECURITY_EDITING_OWNER, IDC_SECURITY_EDITING_NONE,
                                  IDC_SECURITY_EDITING_INDEPENDENT};

}  // namespace

CPdfSecurityPage::~CPdfSecurityPage() {
  WipeText(ownerPasswordOverride.value);
  WipeText(userPasswordOverride.value);
}

MessageTable CPdfSecurityPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CPdfSecurityPage::OnOwnerClicked>(IDC_SECURITY_OWNER),
      OnClick<&CPdfSecurityPage::OnUserClicked>(IDC_SECURITY_USER),
      OnClickRange<&CPdfSecurityPage::OnEditingClicked>(IDC_SECURITY_EDITING_NONE, IDC_SECURITY_EDITING_INDEPENDENT),
      OnCommand<&CPdfSecurityPage::OnPasswordEdited>(IDC_SECURITY_OWNER_PASSWORD, EN_CHANGE),
      OnCommand<&CPdfSecurityPage::OnPasswordEdited>(IDC_SECURITY_USER_PASSWORD, EN_CHANGE),
      OnCommand<&CPdfSecurityPage::OnPasswordEdited>(IDC_SECURITY_EDITING_PASSWORD, EN_CHANGE),
      OnClick<&CPdfSecurityPage::ShowPasswords>(IDC_SECURITY_VISIBLE),
  };
  return kMessages;
}

void CPdfSecurityPage::ExchangeCockpitValues(const CockpitExchange& exchange, SecurityCockpitValues& values) {
  exchange.Value(ownerEnabled, values.ownerPasswordEnabled, ownerEnabledOverride.IsSet());
  exchange.Value(userEnabled, values.userPasswordEnabled, userEnabledOverride.IsSet());
  exchange.Value(enhancedMode, values.enhancedPdfPassword);
}

BOOL CPdfSecurityPage::OnInitDialog() {
  for (const PasswordRow& row : kPasswords) {
    const CEdit edit(Item(row.editId));
    edit.LimitText(kLongestPassword);
    ShowPassword(edit, false);
  }
  Item(IDC_SECURITY_EDITING_NONE).SetText(MessageText(MSG_SECURITY_NO_EDITING_PASSWORD).Text());
  // A screen reader takes no radio for a label.
  const CUString editingCaption = Item(IDC_SECURITY_EDITING_INDEPENDENT).Text();
  Item(IDC_SECURITY_EDITING_LABEL).SetText(WithoutMarks(editingCaption).Text());
  if (!CTrackedPage::OnInitDialog()) return FALSE;

  versionLink_.Attach(*this, IDC_SECURITY_VERSION_LINK);
  versionLink_.SetNotifyParent(true);
  versionLink_.SetUnderline(true);
  picture_.Attach(*this, IDC_SECURITY_PICTURE, Pictures::kLock32);
  return TRUE;
}

void CPdfSecurityPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsLoading()) {
    RefreshSharedSwitches();
    Item(IDC_SECURITY_VERSION).SetText(MessageText(PdfVersionRow(PdfVersionFor(*this)).messageId).Text());
    ExchangeValues(exchange);
    independentShown_ = IsChecked(IDC_SECURITY_EDITING_INDEPENDENT);
    ForgetTouches();
    ShowPasswords();
    UpdateControls();
    return;
  }
  RefuseEmptyPasswords(exchange);
  if (exchange.HasFailed()) return;
  UpdateControls();  // another version may have switched the security off
  ExchangeValues(exchange);
  ConfirmPasswords(exchange);
}

void CPdfSecurityPage::ExchangeValues(CDataExchange& exchange) {
  exchange.Check(IDC_SECURITY_CONFIRM, confirm);
  exchange.Check(IDC_SECURITY_USER, userEnabled);
  exchange.Password(IDC_SECURITY_USER_PASSWORD, userPassword, kLongestPassword);
  exchange.Check(IDC_SECURITY_OWNER, ownerEnabled);
  exchange.Password(IDC_SECURITY_OWNER_PASSWORD, ownerPassword, kLongestPassword);
  ExchangeEditingMode(exchange);
  exchange.Password(IDC_SECURITY_EDITING_PASSWORD, enhancedPassword, kLongestPassword);
  exchange.Check(IDC_SECURITY_PRINTING, printing);
  exchange.Check(IDC_SECURITY_MODIFYING, modifying);
  exchange.Check(IDC_SECURITY_NOTES, notes);
  exchange.Check(IDC_SECURITY_CLIPBOARD, clipboard);
  exchange.Check(IDC_SECURITY_FORMS, forms);
  exchange.Check(IDC_SECURITY_ASSEMBLING, assembling);
  exchange.Check(IDC_SECURITY_EXTRACT, extract);
  exchange.Check(IDC_SECURITY_VISIBLE, passwordsVisible);
}

void CPdfSecurityPage::ExchangeEditingMode(CDataExchange& exchange) {
  if (exchange.IsLoading())
    ShowRadio(*this, kEditingRadios, enhancedMode);
  else
    enhancedMode = static_cast<uint16_t>(ShownRadio(*this, kEditingRadios));
}

void CPdfSecurityPage::RefuseEmptyPasswords(CDataExchange& exchange) {
  for (const PasswordRow& row : kPasswords) {
    if (!IsMissing(row.editId)) continue;
    Tell(row.whenEmptyId, MB_OK | MB_ICONWARNING);
    return exchange.Fail(row.editId);
  }
}

void CPdfSecurityPage::ConfirmPasswords(CDataExchange& exchange) {
  const SecuritySwitches switches{ownerEnabled != 0, userEnabled != 0, enhancedMode == kIndependent};
  const CSecretText* const passwords[] = {&ownerPassword, &userPassword, &enhancedPassword};
  PasswordState states[kPasswordCount];
  for (int i = 0; i < kPasswordCount; ++i) states[i] = {!passwords[i]->IsEmpty(), touched_[i]};
  if (!NeedsConfirmation(confirm != 0, switches, states)) return;

  CPwdConfirmDialog dialog(GetHelpFilename());
  for (const PasswordKind kind : kPasswordKinds)
    if (IsConfirmed(kind, switches, states[kind].isSet)) dialog.expected[kind] = *passwords[kind];
  const INT_PTR end = dialog.DoModal(Handle());
  if (end == IDOK) return ForgetTouches();
  if (end != -1) CountAsMessageBox();  // who cancels it knows why the page stays; one that cannot come up tells nobody
  exchange.Fail(EditToCorrect());
}

// Of the first password that the user has touched and can still change; 0 when there is none.
int CPdfSecurityPage::EditToCorrect() const {
  for (int i = 0; i < kPasswordCount; ++i)
    if (touched_[i] && Item(kPasswords[i].editId).IsEnabled()) return kPasswords[i].editId;
  return 0;
}

void CPdfSecurityPage::SwitchOff() {
  ownerEnabled = userEnabled = enhancedMode = 0;
  if (IsWindow()) UpdateData(false);
}

bool CPdfSecurityPage::OnWindowMessage(WindowMessage& message) {
  if (message.message == WM_DESTROY) {
    const FillingScope filling(*this);
    for (const PasswordRow& row : kPasswords) WipePassword(CEdit(Item(row.editId)));
  }
  return CTrackedPage::OnWindowMessage(message);
}

LRESULT CPdfSecurityPage::ShowHelpForControl(WPARAM controlId, LPARAM link) {
  if (controlId != IDC_SECURITY_VERSION_LINK) return CTrackedPage::ShowHelpForControl(controlId, link);
  ActivatePage(kFormatPage);
  return 1;
}

void CPdfSecurityPage::OnOwnerClicked() {
  if (IsChecked(IDC_SECURITY_OWNER)) touched_[kOwnerPassword] = true;
  UpdateControls();
}

void CPdfSecurityPage::OnUserClicked() {
  if (IsChecked(IDC_SECURITY_USER)) touched_[kUserPassword] = true;
  UpdateControls();
}

// A radio tells a click when it gets the keyboard, too, which changes nothing.
void CPdfSecurityPage::OnEditingClicked() {
  const bool independent = IsChecked(IDC_SECURITY_EDITING_INDEPENDENT);
  if (independent && !independentShown_) touched_[kEditingPassword] = true;
  independentShown_ = independent;
  UpdateControls();
}

void CPdfSecurityPage::OnPasswordEdited(WindowMessage& message) {
  for (int i = 0; i < kPasswordCount; ++i)
    if (kPasswords[i].editId == message.CommandId()) touched_[i] = true;
}

void CPdfSecurityPage::ForgetTouches() { std::ranges::fill(touched_, false); }

void CPdfSecurityPage::ShowPasswords() {
  for (const PasswordRow& row : kPasswords) ShowPassword(CEdit(Item(row.editId)), IsChecked(IDC_SECURITY_VISIBLE));
}

SecuritySwitches CPdfSecurityPage::ShownSwitches() const {
  return {IsChecked(IDC_SECURITY_OWNER), IsChecked(IDC_SECURITY_USER), IsChecked(IDC_SECURITY_EDITING_INDEPENDENT)};
}

void CPdfSecurityPage::UpdateControls() {
  const SecurityOpenings open = OpenSecurity(ShownSwitches(), PdfVersionFor(*this), saveFormatEPdfEnabled != 0);
  if (!open.ownerSwitch) CButton(Item(IDC_SECURITY_OWNER)).SetCheck(false);
  Item(IDC_SECURITY_OWNER).Enable(open.ownerSwitch);
  EnableControls(kOwnerControls, open.owner);
  EnableControls(kUserControls, open.user);
  EnableControls(kDetailedRights, open.detailedRights);
  EnableControls(kEditingRadios, open.editing);
  Item(IDC_SECURITY_EDITING_PASSWORD).Enable(open.editingPassword);
  Item(IDC_SECURITY_CONFIRM).Enable(globalTab);
  ApplyOverrides();
}

void CPdfSecurityPage::ApplyOverrides() {
  Lock(ownerEnabledOverride.IsSet(), {IDC_SECURITY_OWNER});
  Lock(ownerPasswordOverride.IsSet(), {IDC_SECURITY_OWNER_LABEL, IDC_SECURITY_OWNER_PASSWORD});
  Lock(userEnabledOverride.IsSet(), {IDC_SECURITY_USER});
  Lock(userPasswordOverride.IsSet(), {IDC_SECURITY_USER_LABEL, IDC_SECURITY_USER_PASSWORD});
  Lock(printingOverride.IsSet(), {IDC_SECURITY_PRINTING});
  Lock(modifyingOverride.IsSet(), {IDC_SECURITY_MODIFYING});
  Lock(notesOverride.IsSet(), {IDC_SECURITY_NOTES});
  Lock(clipboardOverride.IsSet(), {IDC_SECURITY_CLIPBOARD});
  Lock(extractOverride.IsSet(), {IDC_SECURITY_EXTRACT});
  Lock(formsOverride.IsSet(), {IDC_SECURITY_FORMS});
  Lock(assemblingOverride.IsSet(), {IDC_SECURITY_ASSEMBLING});
  Lock(confirmOverride.IsSet(), {IDC_SECURITY_CONFIRM});
}
