#include "pages/CAttachmentsPage.h"

#include "DriverLIB/MessageText.h"
#include "environment/DroppedFiles.h"
#include "environment/FileDialog.h"
#include "MessageIds.h"
#include "pages/DropTargets.h"
#include "pages/FormatAccess.h"
#include "pages/PdfVersions.h"
#include "window/CActivationContext.h"

namespace {

// What the list hears of a key.
constexpr LRESULT kKeyDone = -2, kKeyAsUsual = -1;

}  // namespace

CAttachmentsPage::CAttachmentsPage(const PageDescription& description)
    : CTrackedPage(description), CFileAttachmentDialog(/*checkFiles=*/true) {}

MessageTable CAttachmentsPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CAttachmentsPage::OnUseAttachments>(IDC_ATTACHMENTS_USE),
      OnClick<&CAttachmentsPage::OnAddAttachment>(IDC_ATTACHMENTS_ADD),
      OnClick<&CAttachmentsPage::OnRemoveAttachment>(IDC_ATTACHMENTS_REMOVE),
      OnCommand<&CAttachmentsPage::OnListDblClk>(IDC_ATTACHMENTS_LIST, LBN_DBLCLK),
      OnMessage<&CAttachmentsPage::OnListKey>(WM_VKEYTOITEM),
      OnMessage<&CAttachmentsPage::OnDropFiles>(WM_DROPFILES),
  };
  return kMessages;
}

void CAttachmentsPage::ExchangeCockpitValues(const CockpitExchange& exchange, AttachmentsCockpitValues& values) {
  exchange.Value(embedFilenamesEnabled, values.embedFilenamesEnabled);
  if (exchange.IsToPage()) TellLinksPage();
}

BOOL CAttachmentsPage::OnInitDialog() {
  AttachList(*this);
  ChangeExtendedStyle(0, WS_EX_ACCEPTFILES);
  return CTrackedPage::OnInitDialog();
}

void CAttachmentsPage::DoDataExchange(CDataExchange& exchange) {
  ExchangeAttachments(exchange);
  exchange.Check(IDC_ATTACHMENTS_USE, embedFilenamesEnabled);
  if (exchange.IsLoading()) OnUseAttachments();
  if (!exchange.IsSaving()) return;
  if (embedFilenames.IsEmpty()) embedFilenamesEnabled = 0;
  TellLinksPage();
}

// The links page holds the same switch, and would write an older value back.
void CAttachmentsPage::TellLinksPage() {
  if (auto* links = FindPageAs<EmbedFilenamesAccess>(*this, kLinksPage))
    links->SetEmbedFilenamesEnabled(embedFilenamesEnabled);
}

void CAttachmentsPage::OnUseAttachments() {
  const bool allowed = AllowsAttachments(PdfVersionFor(*this));
  const bool use = allowed && IsChecked(IDC_ATTACHMENTS_USE);
  Item(IDC_ATTACHMENTS_USE).Enable(allowed);
  EnableControls({IDC_ATTACHMENTS_LIST, IDC_ATTACHMENTS_ADD, IDC_ATTACHMENTS_REMOVE}, use);
}

void CAttachmentsPage::OnAddAttachment() {
  const CActivationScope look;
  const auto file = AskForFileToOpen(Handle(), {.filter = MessageText(MSG_ATTACHMENTS_FILE_FILTER), .startName = {}});
  // The dialog may have ended the page.
  if (file && IsWindow()) AddAttachment(file->path);
}

void CAttachmentsPage::OnRemoveAttachment() { RemoveSelected(); }

// On a row it removes what is selected, beside the rows it adds.
void CAttachmentsPage::OnListDblClk() {
  const DWORD place = ::GetMessagePos();
  if (attachmentList.RowAt(attachmentList.ScreenToClient({GET_X_LPARAM(place), GET_Y_LPARAM(place)})) < 0)
    OnAddAttachment();
  else
    OnRemoveAttachment();
}

LRESULT CAttachmentsPage::OnListKey(WPARAM key, LPARAM) {
  switch (LOWORD(key)) {
    case VK_INSERT:
      OnAddAttachment();
      return kKeyDone;
    case VK_DELETE:
      OnRemoveAttachment();
      return kKeyDone;
    default:
      return kKeyAsUsual;
  }
}

// Each file is taken or refused by itself.
void CAttachmentsPage::OnDropFiles(WPARAM record, LPARAM) {
  const DroppedFiles dropped = TakeDroppedFiles(record);
  if (!IsOnControl(*this, dropped.point, {IDC_ATTACHMENTS_LIST, IDC_ATTACHMENTS_GROUP})) return;
  // The box about a file that is refused may end the page.
  for (int i = 0; i < dropped.paths.Count() && IsWindow(); ++i) AddAttachment(dropped.paths[i]);
}
