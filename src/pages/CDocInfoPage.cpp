#include "pages/CDocInfoPage.h"

#include "DriverLIB/Identity.h"
#include "DriverLIB/MessageText.h"
#include "environment/HostApplication.h"
#include "MessageIds.h"
#include "pages/HostBits.h"

namespace {

// The largest limit that an edit can have.
constexpr int kNoLimit = 0;

constexpr int kEdits[] = {IDC_DOCUMENT_INFO_TITLE, IDC_DOCUMENT_INFO_AUTHOR, IDC_DOCUMENT_INFO_SUBJECT,
                          IDC_DOCUMENT_INFO_KEYWORDS};
constexpr int kShown[] = {IDC_DOCUMENT_INFO_CREATOR_LABEL, IDC_DOCUMENT_INFO_CREATOR, IDC_DOCUMENT_INFO_GENERATOR_LABEL,
                          IDC_DOCUMENT_INFO_GENERATOR};
constexpr int kUnused[] = {IDC_DOCUMENT_INFO_UNUSED_CREATOR_LABEL, IDC_DOCUMENT_INFO_UNUSED_CREATOR,
                           IDC_DOCUMENT_INFO_UNUSED_GENERATOR_LABEL, IDC_DOCUMENT_INFO_UNUSED_GENERATOR};

}  // namespace

void CDocInfoPage::ExchangeCockpitValues(const CockpitExchange& exchange, DocInfoCockpitValues& values) {
  const bool fixed = IsHostsOwn();
  exchange.Value(title, values.title, fixed || titleOverride.IsSet());
  exchange.Value(author, values.author, fixed || authorOverride.IsSet());
  exchange.Value(subject, values.subject, fixed || subjectOverride.IsSet());
  exchange.Value(keywords, values.keywords, fixed || keywordsOverride.IsSet());
}

BOOL CDocInfoPage::OnInitDialog() {
  for (const int id : kEdits) CEdit(Item(id)).LimitText(kNoLimit);
  if (!CTrackedPage::OnInitDialog()) return FALSE;

  warningSign_.Attach(*this, IDC_DOCUMENT_INFO_SIGN_WARNING, Pictures::kSignWarning16);
  return TRUE;
}

void CDocInfoPage::DoDataExchange(CDataExchange& exchange) {
  exchange.Text(IDC_DOCUMENT_INFO_TITLE, title);
  exchange.Text(IDC_DOCUMENT_INFO_AUTHOR, author);
  exchange.Text(IDC_DOCUMENT_INFO_SUBJECT, subject);
  exchange.Text(IDC_DOCUMENT_INFO_KEYWORDS, keywords);
  if (!exchange.IsLoading()) return;
  ShowPrograms();
  UpdateControls();
}

void CDocInfoPage::ShowPrograms() {
  CUString creator = GetHostApplicationName(true);
  if (!creator.IsEmpty()) creator += L" - ";
  creator = creator + kProductName + L" " + kProductVersion;
  Item(IDC_DOCUMENT_INFO_CREATOR).SetText(creator.Text());
  Item(IDC_DOCUMENT_INFO_GENERATOR).SetText(kProductName);
  ShowControls(kUnused, false);
  ShowControls(kShown, true);
}

bool CDocInfoPage::IsHostsOwn() const { return internalUse & kHostSetsDocument; }

void CDocInfoPage::UpdateControls() {
  const bool open = !IsHostsOwn();
  EnableControls(kEdits, open);
  Item(IDC_DOCUMENT_INFO_HOST_NOTE).SetText(MessageText(MSG_DOCUMENT_INFO_HOST_NOTE, GetHostFileName()).Text());
  ShowControls({IDC_DOCUMENT_INFO_HOST_NOTE, IDC_DOCUMENT_INFO_SIGN_WARNING}, !open);
  ApplyOverrides();
}

void CDocInfoPage::ApplyOverrides() {
  Lock(titleOverride.IsSet(), {IDC_DOCUMENT_INFO_TITLE});
  Lock(authorOverride.IsSet(), {IDC_DOCUMENT_INFO_AUTHOR});
  Lock(subjectOverride.IsSet(), {IDC_DOCUMENT_INFO_SUBJECT});
  Lock(keywordsOverride.IsSet(), {IDC_DOCUMENT_INFO_KEYWORDS});
}
