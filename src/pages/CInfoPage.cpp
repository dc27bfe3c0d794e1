#include "pages/CInfoPage.h"

#include "DriverLIB/AFile.h"
#include "DriverLIB/Directories.h"
#include "DriverLIB/Identity.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/TraceSettings.h"
#include "environment/CBrowseForFolder.h"
#include "environment/ProductLocations.h"
#include "pages/CVersionInfoDialog.h"
#include "pages/WebAddress.h"
#include "window/CActivationContext.h"

namespace {

struct LinkRow {
  int controlId;
  uint32_t addressId;
};

constexpr LinkRow kLinks[] = {
    {IDC_INFO_WEB_LINK, MSG_INFO_PRODUCT_ADDRESS}, {IDC_INFO_FAQ_LINK, MSG_INFO_FAQ_ADDRESS},
    {IDC_INFO_FORUM_LINK, MSG_INFO_FORUM_ADDRESS}, {IDC_INFO_NEWSLETTER_LINK, MSG_INFO_NEWSLETTER_ADDRESS},
    {IDC_INFO_VIDEO_LINK, MSG_VIDEO_ADDRESS},
};

// The tool has the rights that a restart of the spooler needs.
bool RestartSpooler() { return RunAdminTool(L"--RestartSpooler"); }

CUString FolderOf(const CUString& filename) { return filename.Left(filename.ReverseFind(L'\\')); }

}  // namespace

MessageTable CInfoPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CInfoPage::OnVersionsClicked>(IDC_INFO_VERSIONS),
      OnCommand<&CInfoPage::OnLogoClicked>(IDC_INFO_LOGO, STN_CLICKED),
  };
  return kMessages;
}

BOOL CInfoPage::OnInitDialog() {
  if (!CNemUIPage::OnInitDialog()) return FALSE;

  Item(IDC_INFO_VERSION_LABEL).SetText(MessageText(MSG_INFO_VERSION_LABEL).Text());
  logo_.Attach(*this, IDC_INFO_LOGO, Pictures::kLogo);

  for (size_t i = 0; i < std::size(kLinks); ++i) {
    links_[i].Attach(*this, kLinks[i].controlId);
    links_[i].SetUnderline(true);
  }
  return TRUE;
}

void CInfoPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsLoading()) {
    Item(IDC_INFO_VERSION).SetText(kProductVersion);
    CUString notice = noticeText;
    notice.ReplaceStr(L"\\n", L"\r\n");
    if (!notice.IsEmpty()) Item(IDC_INFO_NOTICE).SetText(notice.Text());
    // Anew each time: the language page may have changed what they are.
    Item(IDC_INFO_WEB_LINK).SetText(WebAddress(MSG_INFO_PRODUCT_ADDRESS).Text());
    for (size_t i = 0; i < std::size(kLinks); ++i) links_[i].SetUrl(WebAddress(kLinks[i].addressId).Text());
  }
  Item(IDC_INFO_VIDEO_LINK).Show(OffersVideo());
}

void CInfoPage::OnVersionsClicked() { CVersionInfoDialog().Run(Handle()); }

void CInfoPage::OnLogoClicked() {
  const CUString traceFile = GetTraceFilename(kProductKey);
  const bool enable = traceFile.IsEmpty();
  if (Tell(enable ? MSG_INFO_ASK_TRACE_ON : MSG_INFO_ASK_TRACE_OFF, MB_YESNO | MB_ICONQUESTION) != IDYES || !IsWindow())
    return;
  const CUString folder = enable ? ChooseTraceFolder() : FolderOf(traceFile);
  if (IsWindow()) SwitchTrace(enable, folder);
}

// Every failure but that of the registry is told, and the rest goes on.
void CInfoPage::SwitchTrace(bool enable, const CUString& folder) {
  CUString errorPath;
  if (!SetTraceEnabled(enable, &errorPath, folder.Text())) {
    Tell(MSG_INFO_REGISTRY_NOT_CHANGED, MB_ICONERROR, errorPath);
    return;
  }
  if (!RestartSpooler()) Tell(MSG_INFO_SPOOLER_NOT_RESTARTED, MB_ICONWARNING);
  if (!enable) {
    Tell(MSG_INFO_TRACE_OFF, MB_ICONINFORMATION);
    return;
  }
  // The message shows no name, though it has a place for one: the one behind it names the folder.
  if (!FileExists(folder.Text()) && !CreateDirectoryTree(folder)) Tell(MSG_INFO_FOLDER_NOT_CREATED, MB_ICONWARNING);
  Tell(MSG_INFO_TRACE_ON, MB_ICONINFORMATION, folder);
}

// The default folder unless the user picks another one.
CUString CInfoPage::ChooseTraceFolder() {
  CBrowseForFolder picker(Handle());
  picker.SetTitle(MessageText(MSG_INFO_CHOOSE_FOLDER, kDefaultTraceFolder).Text());
  const CActivationScope look;
  return picker.SelectFolder() ? picker.GetFolder() : CUString(kDefaultTraceFolder);
}
