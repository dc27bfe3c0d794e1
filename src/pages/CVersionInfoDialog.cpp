#include "pages/CVersionInfoDialog.h"

#include "DriverLIB/Identity.h"
#include "DriverLIB/MessageText.h"
#include "environment/ComponentVersions.h"
#include "environment/HostApplication.h"
#include "environment/ProductLocations.h"
#include "MessageIds.h"
#include "resources/ResourceIds.h"
#include "window/CenterWindow.h"
#include "window/SmallIcon.h"

namespace {

// The template belongs to no language: these texts come from the message table.
constexpr struct {
  int controlId;
  uint32_t messageId;
} kTexts[] = {
    {IDC_VERSION_PRODUCT_LABEL, MSG_VERSION_PRODUCT},
    {IDC_VERSION_VONDER_LABEL, MSG_VERSION_VONDER},
    {IDC_VERSION_API_LABEL, MSG_VERSION_API},
    {IDC_VERSION_ADD_IN_LABEL, MSG_VERSION_ADD_IN},
    {IDC_VERSION_ENGINE_LABEL, MSG_VERSION_ENGINE},
    {IDC_VERSION_SHELL_EXTENSION_LABEL, MSG_VERSION_SHELL_EXTENSION},
    {IDC_VERSION_EXTRACT_LABEL, MSG_VERSION_EXTRACT},
    {IDC_VERSION_TOOLBOX_LABEL, MSG_VERSION_TOOLBOX},
    {IDOK, MSG_VERSION_OK},
};

CUString VersionOfNeighbour(const wchar_t* filename) {
  return GetFileVersion((GetLibraryDirectory() + filename).Text());
}

// Whom to ask for which version: in this order, since each question may leave its line in the trace.
constexpr struct {
  int controlId;
  CUString (*version)();
} kVersions[] = {
    {IDC_VERSION_ENGINE, [] { return GetPrintVersion(GetProductDirectory().Text()); }},
    {IDC_VERSION_EXTRACT, [] { return GetEpdfVersion(GetLibraryDirectory().Text()); }},
    {IDC_VERSION_TOOLBOX, [] { return GetPdfVersion(GetProductDirectory().Text()); }},
    {IDC_VERSION_API, [] { return GetVdApiVersion(GetLibraryDirectory().Text()); }},
    {IDC_VERSION_SHELL_EXTENSION, [] { return VersionOfNeighbour(L"NEMePdf.exe"); }},
    {IDC_VERSION_ADD_IN, [] { return VersionOfNeighbour(L"NEMpdfAddIn.dll"); }},
    {IDC_VERSION_VONDER, [] { return CUString(kProductVersion); }},
};

}  // namespace

CVersionInfoDialog::CVersionInfoDialog() : CDialog(IDD_VERSION_DIALOG) {}

INT_PTR CVersionInfoDialog::Run(HWND owner) { return DoModal(owner ? owner : ::GetActiveWindow()); }

BOOL CVersionInfoDialog::OnInitDialog() {
  if (const BOOL result = CDialog::OnInitDialog(); !result) return result;
  logo_.Attach(*this, IDC_VERSION_LOGO, Pictures::kLogo);
  for (const auto& [controlId, messageId] : kTexts) Item(controlId).SetText(MessageText(messageId).Text());
  SetText(MessageText(MSG_VERSION_TITLE).Text());
  smallIcon_ = SetSmallIcon(*this, IDI_PRODUCT);
  // Over the program that opened the sheet, whose child the dialog's owner is; on the work area where there is none.
  CenterWindow(*this, Parent().Parent().Handle());
  return TRUE;
}

// The template shows "n/a": a version that is not known leaves it.
void CVersionInfoDialog::DoDataExchange(CDataExchange& exchange) {
  if (!exchange.IsLoading()) return;
  for (const auto& [controlId, version] : kVersions)
    if (const CUString text = version(); !text.IsEmpty()) Item(controlId).SetText(text.Text());
}
