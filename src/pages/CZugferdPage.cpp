#include "pages/CZugferdPage.h"

#include "DriverLIB/InstallLocation.h"
#include "DriverLIB/MessageBoxes.h"
#include "environment/DroppedFiles.h"
#include "environment/FileDialog.h"
#include "environment/Shell.h"
#include "pages/DropTargets.h"
#include "pages/FormatAccess.h"
#include "pages/InvoiceFiles.h"
#include "pages/PdfVersions.h"
#include "window/CActivationContext.h"

namespace {

// By the order of the radio buttons.
constexpr uint16_t kFromFile = 0, kFromContent = 1;

constexpr int kMethodControls[] = {IDC_ZUGFERD_FROM_FILE, IDC_ZUGFERD_FROM_CONTENT};
constexpr int kFileControls[] = {IDC_ZUGFERD_XML_FILE, IDC_ZUGFERD_XML_FILE_LABEL, IDC_ZUGFERD_DELETE,
                                 IDC_ZUGFERD_BROWSE};

constexpr wchar_t kXmlFilter[] = L"xml|*.xml|";
constexpr size_t kXmlPathRoom = 520;
// English in each language, and spelt so.
constexpr wchar_t kInvalidXmlFile[] = L"Invalid ZuFGERD xml filename!";

}  // namespace

MessageTable CZugferdPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CZugferdPage::OnCreateInvoice>(IDC_ZUGFERD_CREATE),
      OnClick<&CZugferdPage::OnDeleteAfterEmbedding>(IDC_ZUGFERD_DELETE),
      OnClick<&CZugferdPage::OnShowAfterCreation>(IDC_ZUGFERD_SHOW),
      OnClick<&CZugferdPage::OnBrowseXml>(IDC_ZUGFERD_BROWSE),
      OnClickRange<&CZugferdPage::OnCreationMethod>(IDC_ZUGFERD_FROM_FILE, IDC_ZUGFERD_FROM_CONTENT),
      OnMessage<&CZugferdPage::OnDropFiles>(WM_DROPFILES),
  };
  return kMessages;
}

void CZugferdPage::ExchangeCockpitValues(const CockpitExchange& exchange, ZugferdCockpitValues& values) {
  // The administrator's file may leave either mark of an unset boolean.
  exchange.Value(zugferd, values.zugferd, IsSetBoolean(zugferdOverride.value));
  exchange.Value(deleteAfterEmbedding, values.deleteAfterEmbedding, IsSetBoolean(deleteOverride.value));
  exchange.Value(showAfterCreation, values.showAfterCreation);
  exchange.Value(creationMethod, values.creationMethod, creationMethodOverride.IsSet());
  exchange.Value(xmlFile, values.xml, xmlOverride.IsSet());
  // Filling the controls leaves a path that stands there, which must not outlast the restored one.
  if (exchange.IsToPage() && IsWindow() && !xmlOverride.IsSet()) Item(IDC_ZUGFERD_XML_FILE).SetText(xmlFile.Text());
}

BOOL CZugferdPage::OnInitDialog() {
  ChangeExtendedStyle(0, WS_EX_ACCEPTFILES);
  Item(IDC_ZUGFERD_XML_FILE).ReadLeftToRight();
  return CTrackedPage::OnInitDialog();
}

void CZugferdPage::DoDataExchange(CDataExchange& exchange) {
  exchange.Check(IDC_ZUGFERD_CREATE, zugferd);
  exchange.Check(IDC_ZUGFERD_DELETE, deleteAfterEmbedding);
  exchange.Check(IDC_ZUGFERD_SHOW, showAfterCreation);
  // A method that no radio shows is stored as one that has not been read.
  exchange.Radio(IDC_ZUGFERD_FROM_FILE, IDC_ZUGFERD_FROM_CONTENT, creationMethod, kNotRead);
  ExchangeXmlFile(exchange);
  if (exchange.IsLoading()) UpdateControls();
}

// A path that stands there stays: a refresh by another page must not undo the user's choice.
void CZugferdPage::ExchangeXmlFile(const CDataExchange& exchange) {
  const CWnd file = Item(IDC_ZUGFERD_XML_FILE);
  const CUString shown = file.Text();
  if (exchange.IsLoading() && shown.IsEmpty() && !xmlFile.IsEmpty()) file.SetText(xmlFile.Text());
  if (exchange.IsSaving()) xmlFile = shown.Left(kMaxInvoiceFileLength);
}

void CZugferdPage::ClearOverrides() {
  zugferdOverride = {};
  creationMethodOverride = {};
  deleteOverride = {};
  xmlOverride = {};
}

LRESULT CZugferdPage::ShowHelpForControl(WPARAM controlId, LPARAM argument) {
  if (controlId != IDC_ZUGFERD_HELP_LINK) return CTrackedPage::ShowHelpForControl(controlId, argument);
  CUString folder;
  GetProductInstallLocation(folder);
  // Behind no folder the name alone would lead anywhere, to another computer at worst.
  if (folder.Length() <= 1) return 1;
  OpenWithShell(Handle(), MarkedContentManual(folder).Text(), SW_SHOW, nullptr);
  return 1;
}

void CZugferdPage::OnCreateInvoice() {
  zugferd = IsChecked(IDC_ZUGFERD_CREATE) ? 1 : 0;
  if (zugferd) RequirePdfA3();
  UpdateControls();
}

// An invoice is PDF/A-3: another version gives way without a word. Without the invoice the version stays.
void CZugferdPage::RequirePdfA3() {
  auto* format = FindPageAs<FormatAccess>(*this, kFormatPage);
  if (format && !AllowsZugferd(format->GetPdfVersion())) format->SetPdfVersion(kZugferdPdfVersion);
}

void CZugferdPage::OnDeleteAfterEmbedding() { deleteAfterEmbedding = IsChecked(IDC_ZUGFERD_DELETE) ? 1 : 0; }

void CZugferdPage::OnShowAfterCreation() { showAfterCreation = IsChecked(IDC_ZUGFERD_SHOW) ? 1 : 0; }

// Cancel forgets the former file, on purpose.
void CZugferdPage::OnBrowseXml() {
  const CActivationScope look;
  const auto file = AskForFileToOpen(Handle(), {.filter = kXmlFilter,
                                                .flags = OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST,
                                                .pathRoom = kXmlPathRoom,
                                                .startName = {}});
  // The dialog may have ended the page.
  if (IsWindow()) TakeXmlFile(file ? file->path : CUString());
}

void CZugferdPage::TakeXmlFile(const CUString& path) {
  xmlFile = path;
  Item(IDC_ZUGFERD_XML_FILE).SetText(path.Text());
}

void CZugferdPage::OnCreationMethod() {
  if (IsChecked(IDC_ZUGFERD_FROM_FILE))
    creationMethod = kFromFile;
  else if (IsChecked(IDC_ZUGFERD_FROM_CONTENT))
    creationMethod = kFromContent;
  else
    return;
  UpdateControls();
}

void CZugferdPage::OnDropFiles(WPARAM record, LPARAM) {
  const DroppedFiles dropped = TakeDroppedFiles(record);
  if (!IsOnControl(*this, dropped.point, {IDC_ZUGFERD_XML_FILE, IDC_ZUGFERD_XML_FILE_LABEL})) return;
  if (!Item(IDC_ZUGFERD_XML_FILE).IsEnabled() || dropped.paths.Count() != 1) return;
  if (IsXmlFilename(dropped.paths[0]))
    TakeXmlFile(dropped.paths[0]);
  else
    MsgBox(Handle(), kRefusedDropTitle, kInvalidXmlFile, MB_OK);
}

void CZugferdPage::UpdateControls() {
  const bool on = zugferd != 0;
  // The invoice is switched on in the basic settings alone.
  Item(IDC_ZUGFERD_CREATE).Enable(globalTab);
  EnableControls(kMethodControls, on);
  EnableControls(kFileControls, on && creationMethod == kFromFile);
  Item(IDC_ZUGFERD_SHOW).Enable(on && creationMethod == kFromContent);
  ApplyOverrides();
}

void CZugferdPage::ApplyOverrides() {
  Lock(zugferdOverride.value == 1,
       {IDC_ZUGFERD_CREATE, IDC_ZUGFERD_FROM_FILE, IDC_ZUGFERD_FROM_CONTENT, IDC_ZUGFERD_DELETE});
}
