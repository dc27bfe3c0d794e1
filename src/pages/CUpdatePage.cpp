#include "pages/CUpdatePage.h"

#include "DriverLIB/AFile.h"
#include "DriverLIB/CRegistryEntry.h"
#include "DriverLIB/Identity.h"
#include "DriverLIB/InstallLocation.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/Trace.h"
#include "environment/NemUpdateJob.h"
#include "pages/WebAddress.h"
#include "window/ValueScope.h"

namespace {

constexpr wchar_t kUpdator[] = L"NemUpdator64.dll";
constexpr int kJobFlag = 1;  // of all the updater's operations

struct TextRow {
  int controlId;
  uint32_t messageId;
};

constexpr TextRow kTexts[] = {
    {IDC_UPDATE_AUTOMATIC, MSG_UPDATE_AUTOMATIC}, {IDC_UPDATE_MANUAL, MSG_UPDATE_MANUAL},
    {IDC_UPDATE_DOWNLOAD, MSG_UPDATE_DOWNLOAD},   {IDC_UPDATE_INSTALL, MSG_UPDATE_INSTALL},
    {IDC_UPDATE_BETA, MSG_UPDATE_BETA},           {IDC_UPDATE_SEARCH, MSG_UPDATE_SEARCH_NOW},
};

struct ScheduleRow {
  int controlId;
  int32_t bit;
  bool isInverse;  // the bit is set while the control is not checked
};

// The bits of the stored schedule. The bit 4 is not used.
constexpr ScheduleRow kSchedule[] = {
    {IDC_UPDATE_MANUAL, 1, false},
    {IDC_UPDATE_DOWNLOAD, 2, true},
    {IDC_UPDATE_INSTALL, 8, false},
    {IDC_UPDATE_BETA, 16, false},
};

CUString InstallLocation() {
  CUString folder;
  GetProductInstallLocation(folder);
  return folder;
}

// What the updater closes before it installs: the sheet that the page stands in, and the window that the sheet belongs
// to.
CUString WindowsToClose(const CWnd& page) {
  const CWnd sheet(::GetAncestor(page.Handle(), GA_ROOT));
  const auto number = [](const CWnd& window) {
    return static_cast<long long>(reinterpret_cast<INT_PTR>(window.Handle()));
  };
  CUString text;
  text.Format(L"{%lld};{%lld}", number(sheet), number(sheet.Parent()));
  return text;
}

}  // namespace

MessageTable CUpdatePage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CUpdatePage::UpdateUpdateControls>(IDC_UPDATE_DOWNLOAD),
      OnClickRange<&CUpdatePage::UpdateUpdateControls>(IDC_UPDATE_INSTALL, IDC_UPDATE_BETA),
      OnClick<&CUpdatePage::OnSearchClicked>(IDC_UPDATE_SEARCH),
  };
  return kMessages;
}

// Saving is writing to the registry: it happens when the page is left, and Cancel does not undo it.
void CUpdatePage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsLoading())
    LoadSchedule();
  else
    SaveSchedule();
}

void CUpdatePage::LoadSchedule() {
  const int32_t schedule = CRegistryEntry(kProductKey, L"UpdateType").ReadLong();
  for (const ScheduleRow& row : kSchedule)
    CButton(Item(row.controlId)).SetCheck(((schedule & row.bit) != 0) != row.isInverse);
  CButton(Item(IDC_UPDATE_AUTOMATIC)).SetCheck(!IsChecked(IDC_UPDATE_MANUAL));
  for (const TextRow& row : kTexts) Item(row.controlId).SetText(MessageText(row.messageId).Text());
  CheckUpdaterPresent();
  UpdateUpdateControls();
}

void CUpdatePage::SaveSchedule() {
  int32_t schedule = 0;
  for (const ScheduleRow& row : kSchedule)
    if (IsChecked(row.controlId) != row.isInverse) schedule |= row.bit;
  CRegistryEntry(kProductKey, L"UpdateType").WriteLong(schedule);
  CheckUpdaterPresent();
  ApplyUpdateOverrides();
}

void CUpdatePage::CheckUpdaterPresent() {
  const CUString folder = InstallLocation();
  // A second separator does no harm, but two alone would name a server.
  isUpdaterMissing_ = folder.Length() <= 1 || !FileExists((folder + L"\\" + kUpdator).Text());
}

// An updater that installs closes the sheet: a page that is gone has nothing to tell.
void CUpdatePage::OnSearchClicked() {
  if (isSearching_) return;
  const ValueScope searching(isSearching_, true);
  if (IsNewest()) Tell(MSG_UPDATE_NONE, 0);
}

// True when the search has found nothing newer. One that fails, or that goes on in the updater's dialog, has told so.
bool CUpdatePage::IsNewest() {
  NemUpdateJob job;  // outlives the handler: what the updater threw is destroyed by its own code
  try {
    if (!job.Load(kJobFlag, InstallLocation().Text(), kUpdator)) {
      Tell(MSG_UPDATE_NOT_INITIALIZED, MB_ICONERROR);
      return false;
    }
    SetJobProperties(job);
    if (!job.SearchForUpdate(kJobFlag)) {
      Tell(MSG_UPDATE_FAILED, 0, job.GetLastErrorText());
      return false;
    }
    CUString newVersion;
    job.GetProperty(L"newversion", newVersion);
    if (newVersion.IsEmpty()) return true;
    job.DownloadUpdate(kJobFlag);  // the updater's own dialog goes on, and tells what fails
  } catch (...) {
    TraceError("CUpdatePage::OnSearchClicked: exception of the updater");
    Tell(MSG_UPDATE_FAILED, 0);
  }
  return false;
}

void CUpdatePage::SetJobProperties(NemUpdateJob& job) {
  job.SetProperty(L"product", L"NEM pdf vonder");
  job.SetProperty(L"version", kProductVersion);
  job.SetProperty(L"updatelink", WebAddress(L"/update").Text());
  if (IsChecked(IDC_UPDATE_BETA)) job.SetProperty(L"type", L"AllowBeta");
  job.SetLongProperty(L"language", GetUILanguage());
  job.SetProperty(L"updatorregistry", (CUString(kProductKey) + L"\\Updator").Text());
  job.SetProperty(L"downloadtype", L"ShowDialog");
  job.SetProperty(L"closewindows", WindowsToClose(*this).Text());
  job.SetProperty(L"msilogpath", InstallLocation().Text());
}

// What is disabled keeps its check, and is stored.
void CUpdatePage::UpdateUpdateControls() {
  const bool automatic = !IsChecked(IDC_UPDATE_MANUAL);
  Item(IDC_UPDATE_DOWNLOAD).Enable(automatic);
  Item(IDC_UPDATE_INSTALL).Enable(automatic && IsChecked(IDC_UPDATE_DOWNLOAD));
  ApplyUpdateOverrides();
}

void CUpdatePage::ApplyUpdateOverrides() {
  Lock(isUpdaterMissing_ || updateTypeOverride.IsSet(),
       {IDC_UPDATE_AUTOMATIC, IDC_UPDATE_DOWNLOAD, IDC_UPDATE_INSTALL, IDC_UPDATE_MANUAL, IDC_UPDATE_BETA});
  Lock(isUpdaterMissing_ || disableManualUpdate.value == 1, {IDC_UPDATE_SEARCH});
}
