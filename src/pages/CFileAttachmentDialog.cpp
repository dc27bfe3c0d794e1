#include "pages/CFileAttachmentDialog.h"

#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/Trace.h"
#include "environment/QuietErrors.h"
#include "MessageIds.h"
#include "pages/EmbedFilenames.h"
#include "Pictures.h"
#include "resources/ResourceIds.h"

namespace {

constexpr ValueRow kConfirmations[] = {
    {MSG_ATTACHMENTS_CONFIRM_NEVER, 0},
    {MSG_ATTACHMENTS_CONFIRM_ALWAYS, 1},
    {MSG_ATTACHMENTS_CONFIRM_MISSING, 2},
    {},
};

// The pictures of the rows: as they are, and behind them as they are when selected.
constexpr int kFoundImage = 0, kMissingImage = 1;
constexpr ListPicture kImages[] = {
    {Pictures::kFile.bitmap, Pictures::kFile.mask},
    {Pictures::kFileMissing.bitmap, Pictures::kFileMissing.mask},
    {Pictures::kFileSelected.bitmap, Pictures::kFileSelected.mask},
    {Pictures::kFileMissingSelected.bitmap, Pictures::kFileMissingSelected.mask},
};

// By the entry in its folder: a file that another program keeps to itself is there, too.
bool IsThere(const CUString& path) {
  const QuietErrors quiet;
  WIN32_FIND_DATAW entry;
  const HANDLE search = ::FindFirstFileW(path.Text(), &entry);
  if (search == INVALID_HANDLE_VALUE) return false;
  ::FindClose(search);
  return true;
}

}  // namespace

void CFileAttachmentDialog::AttachList(const CWnd& page) {
  page_ = page;
  attachmentList.Attach(page, IDC_ATTACHMENTS_LIST);
}

void CFileAttachmentDialog::ExchangeAttachments(CDataExchange& exchange) {
  if (exchange.IsLoading()) LoadList();
  if (exchange.IsSaving()) embedFilenames = EmbedFilenamesText(ListedPaths());
  exchange.Choice(IDC_ATTACHMENTS_CONFIRM, kConfirmations, embedfilenamesConfirmed, NoSelection::GoesOn);
  exchange.Check(IDC_ATTACHMENTS_SHOW, embedfilenamesOpen);
  if (!exchange.IsLoading()) return;
  page_.Item(IDC_ATTACHMENTS_CONFIRM).Enable(confirmEditable);
  page_.Item(IDC_ATTACHMENTS_SHOW).Enable(openEditable);
}

void CFileAttachmentDialog::LoadList() {
  if (!attachmentList.HasImages()) attachmentList.SetImages(kImages, SecondHalf::Selected);
  missingMark_ = MessageText(MSG_ATTACHMENTS_MISSING);
  anyMissing = false;
  attachmentList.Reset();
  CUStringArray paths;
  ReadEmbedFilenames(embedFilenames, paths);
  for (int i = 0; i < paths.Count(); ++i) {
    const bool missing = checkFiles_ && !IsThere(paths[i]);
    anyMissing = anyMissing || missing;
    const CUString text = missing ? missingMark_ + paths[i] : paths[i];
    const int row = attachmentList.AddItem(text.Text(), missing ? kMissingImage : kFoundImage);
    if (row < 0)
      TraceError("CFileAttachmentDialog::DoDataExchange: EmbedFilename %ls not added", paths[i].Text());
    else
      attachmentList.SetItemData(row, static_cast<uint32_t>(i));
  }
}

// The rows' paths: a file that is missing stays in the list.
CUStringArray CFileAttachmentDialog::ListedPaths() const {
  CUStringArray paths;
  for (int row = 0; row < attachmentList.Count(); ++row) {
    const CUString text = attachmentList.RowText(row);
    paths.Add(attachmentList.ItemImage(row) == kMissingImage ? text.Mid(missingMark_.Length()) : text);
  }
  return paths;
}

void CFileAttachmentDialog::AddAttachment(const CUString& path) {
  if (EmbedFilenameFits(ListedPaths(), path))
    attachmentList.AddItem(path.Text(), kFoundImage);
  else
    MsgBoxById(page_.Handle(), MessageText(MSG_ERROR_TITLE).Text(), MSG_ATTACHMENTS_TOO_MANY, MB_OK);
}

void CFileAttachmentDialog::RemoveSelected() {
  const std::vector<int> rows = attachmentList.SelectedRows();
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) attachmentList.DeleteItem(*row);
}
