#include "pages/CWatermarkPage.h"

#include <utility>
#include <vector>

#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/SecureWipe.h"
#include "environment/DroppedFiles.h"
#include "environment/FileDialog.h"
#include "environment/Shell.h"
#include "MessageIds.h"
#include "pages/DropTargets.h"
#include "pages/FormatAccess.h"
#include "pages/PdfVersions.h"
#include "pages/StationeryList.h"
#include "window/CActivationContext.h"

namespace {

constexpr int kMaxFile = MAX_PATH - 1;  // characters of the watermark's path

// English in every language, on purpose.
constexpr wchar_t kOnlyPdfText[] = L"Only pdf can be used as a stationery file!";

constexpr int kStationeryControls[] = {IDC_STATIONERY_GROUP,  IDC_STATIONERY_USE,        IDC_STATIONERY_LIST,
                                       IDC_STATIONERY_ADD,    IDC_STATIONERY_PROPERTIES, IDC_STATIONERY_DISPLAY,
                                       IDC_STATIONERY_DELETE, IDC_STATIONERY_FOREGROUND, IDC_STATIONERY_HELP_LINK};

bool IsPdf(const CUString& file) { return file.Mid(file.ReverseFind(L'.') + 1).EqualsNoCase(L"pdf"); }

}  // namespace

CWatermarkPage::~CWatermarkPage() {
  WipeText(stationeryInfos);
  WipeText(stationeryInfosOverride.value);
}

MessageTable CWatermarkPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CWatermarkPage::OnWatermarkCheck>(IDC_WATERMARK_USE),
      OnClick<&CWatermarkPage::OnBrowseWatermark>(IDC_WATERMARK_BROWSE),
      OnClick<&CWatermarkPage::OnStationeryCheck>(IDC_STATIONERY_USE),
      OnClick<&CWatermarkPage::OnAddStationery>(IDC_STATIONERY_ADD),
      OnClick<&CWatermarkPage::OnStationeryProperties>(IDC_STATIONERY_PROPERTIES),
      OnClick<&CWatermarkPage::OnDisplayStationery>(IDC_STATIONERY_DISPLAY),
      OnClick<&CWatermarkPage::OnDeleteStationery>(IDC_STATIONERY_DELETE),
      OnNotify<&CWatermarkPage::OnStationeryDblClk>(IDC_STATIONERY_LIST, static_cast<UINT>(NM_DBLCLK)),
      OnNotify<&CWatermarkPage::OnStationeryReturn>(IDC_STATIONERY_LIST, static_cast<UINT>(NM_RETURN)),
      OnNotify<&CWatermarkPage::OnStationeryKey>(IDC_STATIONERY_LIST, static_cast<UINT>(LVN_KEYDOWN)),
      OnMessage<&CWatermarkPage::OnStationeryApplied>(kEntryAppliedMessage),
      OnMessage<&CWatermarkPage::OnStationeryCancelled>(kEntryCancelledMessage),
      OnMessage<&CWatermarkPage::OnStationeryOk>(kEntryOkMessage),
      OnMessage<&CWatermarkPage::OnStationeryModified>(CStationeryPropertiesDialog::kModifiedMessage),
      OnMessage<&CWatermarkPage::OnDropFiles>(WM_DROPFILES),
      OnMessage<&CWatermarkPage::OnDestroy>(WM_DESTROY),
  };
  return kMessages;
}

void CWatermarkPage::ExchangeCockpitValues(const CockpitExchange& exchange, WatermarkCockpitValues& values) {
  exchange.Value(watermarkEnabled, values.watermarkEnabled, watermarkEnabledOverride.IsSet());
  exchange.Value(stationeryEnabled, values.stationeryEnabled, stationeryEnabledOverride.IsSet());
}

BOOL CWatermarkPage::OnInitDialog() {
  list_.Attach(*this, IDC_STATIONERY_LIST);
  list_.InsertColumns(MessageText(MSG_WATERMARK_COLUMN_DESCRIPTION).Text(),
                      MessageText(MSG_WATERMARK_COLUMN_FILE).Text());
  const CEdit file(Item(IDC_WATERMARK_FILE));
  file.LimitText(kMaxFile);
  file.ReadLeftToRight();
  ChangeExtendedStyle(0, WS_EX_ACCEPTFILES);
  if (!CTrackedPage::OnInitDialog()) return FALSE;

  picture_.Attach(*this, IDC_WATERMARK_PICTURE, Pictures::kWatermark);
  stationeryLink_.Attach(*this, IDC_STATIONERY_HELP_LINK);
  stationeryLink_.SetNotifyParent(true);
  stationeryLink_.SetUnderline(true);
  if (tiffVariant) ShowControls(kStationeryControls, false);
  return TRUE;
}

// --- Exchange -------------------------------------------------------------------------------------------------------

void CWatermarkPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsSaving() && !HasWatermarkFile()) {
    exchange.Fail(IDC_WATERMARK_FILE);
    return;
  }
  exchange.Check(IDC_WATERMARK_USE, watermarkEnabled);
  exchange.Text(IDC_WATERMARK_FILE, watermarkFilename);
  exchange.CheckInverted(IDC_WATERMARK_FOREGROUND, watermarkAsBackground);
  exchange.Check(IDC_STATIONERY_USE, stationeryEnabled);
  exchange.Check(IDC_STATIONERY_FOREGROUND, stationeryAsForeground);
  if (exchange.IsLoading()) {
    LoadStationeries();
    OnStationeryCheck();
    OnWatermarkCheck();
    return;
  }
  SaveStationeries();
  // All is taken over, and still refused.
  if (watermarkFilename.Length() > kMaxFile) exchange.Fail(IDC_WATERMARK_FILE);
}

// An edit that the user cannot get at just now may be empty.
bool CWatermarkPage::HasWatermarkFile() {
  if (!IsMissing(IDC_WATERMARK_FILE)) return true;
  Tell(GetMsgBoxTitle().Text(), MessageText(MSG_WATERMARK_INVALID_FILE), MB_ICONEXCLAMATION);
  return false;
}

void CWatermarkPage::LoadStationeries() {
  dialog_.Close(*this);
  list_.Clear();
  // What can be read of the text is there; nobody is told of the rest.
  StationeryFormats formats;
  ReadStationeryList(stationeryInfos, formats);
  for (auto& format : formats) list_.AddEntry(std::make_unique<StationeryRow>(std::move(format)));
  list_.SetSelectionMark(-1);
  list_.SelectRow(stationerySelected);
}

void CWatermarkPage::SaveStationeries() {
  std::vector<const CStationeryFormat*> formats;
  for (int row = 0; row < list_.Count(); ++row) formats.push_back(Stationery(row).get());
  stationerySelected = SelectedStationery() ? static_cast<uint16_t>(list_.SelectionMark()) : 0;
  if (formats.empty()) stationeryEnabled = 0;
  WipeText(stationeryInfos);
  stationeryInfos = StationeryListText(formats);
  dialog_.Close(*this);
}

// No control shows it.
void CWatermarkPage::SetColorspace(uint16_t value) {
  ReadProperties();
  colorspace = value;
}

// --- Files ----------------------------------------------------------------------------------------------------------

// Empty when the user has chosen none, or the page has come to its end meanwhile.
CUString CWatermarkPage::AskForFile(uint32_t filterId, const CUString& startName) {
  const DialogPause pause(dialog_.Get());
  const CActivationScope look;
  const auto file =
      AskForFileToOpen(Handle(), {.filter = CUString(MessageText(filterId).Text()), .startName = startName});
  return file && IsWindow() ? file->path : CUString();
}

void CWatermarkPage::Tell(const wchar_t* title, const CUString& text, UINT icon) {
  const DialogPause pause(dialog_.Get());
  MsgBox(Handle(), title, text.Text(), MB_OK | icon);
}

void CWatermarkPage::OnBrowseWatermark() {
  const CUString file = AskForFile(MSG_ERROR_ALL_FILES_FILTER, Item(IDC_WATERMARK_FILE).Text());
  if (!file.IsEmpty()) Item(IDC_WATERMARK_FILE).SetText(file.Text());
}

void CWatermarkPage::OnAddStationery() {
  const CUString file = AskForFile(MSG_WATERMARK_PDF_FILTER, CUString());
  if (!file.IsEmpty()) AddStationery(file);
}

void CWatermarkPage::AddStationery(const CUString& file) {
  const auto format = std::make_shared<CStationeryFormat>();
  format->SetFile(file);
  const int row = list_.AddEntry(std::make_unique<StationeryRow>(format));
  if (row < 0) return;
  list_.SelectRow(row);
  ShowProperties(format);
  if (dialog_.IsOpen()) {
    dialog_->SetNew();
    dialog_->Activate();
    dialog_->UpdateLock();
  }
  EnableStationeryControls(true);
}

// The group boxes lie in front of the controls in them, so what falls on a button falls on its group. Whether the check
// boxes are on does not matter. What is fixed stays; while the dialog holds changes, all of the page does.
void CWatermarkPage::OnDropFiles(WPARAM record, LPARAM) {
  const DroppedFiles dropped = TakeDroppedFiles(record);
  if (dropped.paths.Count() != 1 || (dialog_.IsOpen() && dialog_->IsModified())) return;
  const CUString& file = dropped.paths[0];
  if (IsOnControl(*this, dropped.point, {IDC_WATERMARK_GROUP})) {
    if (!watermarkFilenameOverride.IsSet()) Item(IDC_WATERMARK_FILE).SetText(file.Text());
  } else if (IsOnControl(*this, dropped.point, {IDC_STATIONERY_GROUP})) {
    if (!IsListFixed()) DropStationery(file);
  }
}

void CWatermarkPage::DropStationery(const CUString& file) {
  if (IsPdf(file))
    AddStationery(file);
  else
    Tell(kRefusedDropTitle, CUString(kOnlyPdfText), 0);
}

// --- Stationeries ---------------------------------------------------------------------------------------------------

std::shared_ptr<CStationeryFormat> CWatermarkPage::Stationery(int row) const {
  const auto* entry = static_cast<const StationeryRow*>(row < 0 ? nullptr : list_.Entry(row));
  return entry ? entry->Format() : nullptr;
}

void CWatermarkPage::OnStationeryProperties() {
  if (const auto format = SelectedStationery()) ShowProperties(format);
}

void CWatermarkPage::OnDisplayStationery() {
  if (const auto format = SelectedStationery()) OpenWithShell(Handle(), format->GetFile().Text(), SW_SHOWNORMAL);
}

void CWatermarkPage::OnDeleteStationery() {
  const StationeryListEntry* const entry = list_.Entry(list_.SelectionMark());
  if (!entry) return;
  if (dialog_.IsOpen() && dialog_->GetFormat() == SelectedStationery()) dialog_.Close(*this);
  list_.RemoveEntry(entry);
  EnableStationeryControls(true);
}

void CWatermarkPage::OnStationeryDblClk(WindowMessage& message) {
  const int row = ClickedRow(list_, message);
  if (row < 0) return;
  list_.SelectRow(row);
  OnStationeryProperties();
}

void CWatermarkPage::OnStationeryReturn() {
  OnStationeryProperties();
  dialog_.ActivateIfOpen();
}

void CWatermarkPage::OnStationeryKey(WindowMessage& message) {
  if (IsDeleteKey(message) && Item(IDC_STATIONERY_DELETE).IsEnabled()) OnDeleteStationery();
}

// --- Properties -----------------------------------------------------------------------------------------------------

void CWatermarkPage::ShowProperties(const std::shared_ptr<CStationeryFormat>& format) {
  if (dialog_.IsOpen()) {
    dialog_->SetFormat(format);
    return;
  }
  if (!dialog_.Make(format).Open(*this)) dialog_.Drop();
}

void CWatermarkPage::OnStationeryApplied() { list_.RefreshRows(); }

// A dialog that is gone may have been cancelled twice: the second time must not take the next entry.
void CWatermarkPage::OnStationeryCancelled(WPARAM mark, LPARAM) {
  if (!dialog_.IsOpen()) return;
  if (mark == kNewListEntry) OnDeleteStationery();
  dialog_.Close(*this);
}

void CWatermarkPage::OnStationeryOk() {
  list_.RefreshRows();
  dialog_.Close(*this);
}

void CWatermarkPage::OnStationeryModified() {
  if (dialog_.IsOpen()) dialog_->UpdateLock();
}

void CWatermarkPage::OnDestroy() { dialog_.Drop(); }

// --- What is enabled ------------------------------------------------------------------------------------------------

void CWatermarkPage::OnWatermarkCheck() {
  const bool on = IsChecked(IDC_WATERMARK_USE);
  EnableControls({IDC_WATERMARK_FILE, IDC_WATERMARK_BROWSE, IDC_WATERMARK_FOREGROUND}, on);
  ApplyOverrides();
}

// A version without stationery closes the group; the choice itself stays as it is.
void CWatermarkPage::OnStationeryCheck() {
  const bool allowed = AllowsStationery(PdfVersionFor(*this));
  Item(IDC_STATIONERY_USE).Enable(allowed);
  EnableStationeryControls(allowed && IsChecked(IDC_STATIONERY_USE));
}

void CWatermarkPage::EnableStationeryControls(bool enable) {
  EnableControls({IDC_STATIONERY_ADD, IDC_STATIONERY_LIST, IDC_STATIONERY_FOREGROUND}, enable);
  const bool hasRows = list_.Count() > 0;
  EnableControls({IDC_STATIONERY_PROPERTIES, IDC_STATIONERY_DISPLAY, IDC_STATIONERY_DELETE}, enable && hasRows);
  ApplyOverrides();
}

void CWatermarkPage::ApplyOverrides() {
  Lock(watermarkEnabledOverride.IsSet(), {IDC_WATERMARK_USE});
  Lock(watermarkAsBackgroundOverride.IsSet(), {IDC_WATERMARK_FOREGROUND});
  Lock(watermarkFilenameOverride.IsSet(), {IDC_WATERMARK_FILE, IDC_WATERMARK_BROWSE});
  Lock(stationeryEnabledOverride.IsSet(), {IDC_STATIONERY_USE});
  Lock(stationeryAsForegroundOverride.IsSet(), {IDC_STATIONERY_FOREGROUND});
  Lock(IsListFixed(), {IDC_STATIONERY_LIST, IDC_STATIONERY_ADD, IDC_STATIONERY_PROPERTIES, IDC_STATIONERY_DISPLAY,
                       IDC_STATIONERY_DELETE, IDC_STATIONERY_FOREGROUND});
}
