#include "pages/CBookmarkPage.h"

#include <utility>
#include <vector>

#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/MessageText.h"
#include "environment/HostApplication.h"
#include "MessageIds.h"
#include "pages/BookmarkNames.h"
#include "pages/HostBits.h"
#include "pages/OutlineTexts.h"

namespace {

constexpr int kStandardRows = 3;  // the formats that are always there, outside Word

// Pixels at 96 dpi, and per cent of the page's height.
constexpr int kNoteLeft = 20, kNoteTop = 70;

constexpr int kHiddenUnderWord[] = {IDC_BOOKMARK_NEW, IDC_BOOKMARK_COPY, IDC_BOOKMARK_REMOVE, IDC_BOOKMARK_REMOVE_ALL};

// Empty only when there is no font at all.
CUString DefaultFont(const CUStringArray& fonts) {
  for (const wchar_t* name : {L"Times New Roman", L"Arial", L"Courier"})
    if (const int index = fonts.FindNoCase(name); index >= 0) return fonts[index];
  return fonts[0];
}

}  // namespace

MessageTable CBookmarkPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CBookmarkPage::OnUseBookmarks>(IDC_BOOKMARK_USE),
      OnClick<&CBookmarkPage::OnClickAddBookmarkFormat>(IDC_BOOKMARK_NEW),
      OnClick<&CBookmarkPage::OnClickCopyBookmarkFormat>(IDC_BOOKMARK_COPY),
      OnClick<&CBookmarkPage::OnEditFormat>(IDC_BOOKMARK_EDIT),
      OnClick<&CBookmarkPage::OnRemoveFormat>(IDC_BOOKMARK_REMOVE),
      OnClick<&CBookmarkPage::OnRemoveAllFormats>(IDC_BOOKMARK_REMOVE_ALL),
      OnClick<&CBookmarkPage::OnSelectAll>(IDC_BOOKMARK_SELECT_ALL),
      OnNotify<&CBookmarkPage::OnDblClk>(IDC_BOOKMARK_LIST, static_cast<UINT>(NM_DBLCLK)),
      OnNotify<&CBookmarkPage::OnReturn>(IDC_BOOKMARK_LIST, static_cast<UINT>(NM_RETURN)),
      OnNotify<&CBookmarkPage::OnKeyDown>(IDC_BOOKMARK_LIST, static_cast<UINT>(LVN_KEYDOWN)),
      OnNotify<&CBookmarkPage::OnItemChanged>(IDC_BOOKMARK_LIST, static_cast<UINT>(LVN_ITEMCHANGED)),
      OnMessage<&CBookmarkPage::OnListEdited>(CListCtrlBookmark::kListEditedMessage),
      OnMessage<&CBookmarkPage::OnDialogApply>(kEntryAppliedMessage),
      OnMessage<&CBookmarkPage::OnDialogCancel>(kEntryCancelledMessage),
      OnMessage<&CBookmarkPage::OnDialogOk>(kEntryOkMessage),
      OnMessage<&CBookmarkPage::UpdateControls>(CBookmarkFormatDialog::kModifiedMessage),
      OnMessage<&CBookmarkPage::OnDestroy>(WM_DESTROY),
  };
  return kMessages;
}

void CBookmarkPage::ExchangeCockpitValues(const CockpitExchange& exchange, BookmarkCockpitValues& values) {
  exchange.Value(outlineStylesEnabled, values.outlineStylesEnabled);
}

BOOL CBookmarkPage::OnInitDialog() {
  list_.Attach(*this, IDC_BOOKMARK_LIST);
  list_.SetListener(this);
  list_.InsertColumns(MessageText(MSG_BOOKMARK_COLUMN_NAME).Text(), MessageText(MSG_BOOKMARK_COLUMN_TYPE).Text(),
                      MessageText(MSG_BOOKMARK_COLUMN_FORMAT).Text(), MessageText(MSG_BOOKMARK_COLUMN_LEVEL).Text());
  ListFonts();
  return CTrackedPage::OnInitDialog();
}

// The same face comes in several character sets.
void CBookmarkPage::ListFonts() {
  fonts_.RemoveAll();
  const WindowDC dc(Handle());
  enumerateFonts(dc, [this](const InstalledFont& font) {
    if (IsOffered(font) && fonts_.FindExact(font.name) < 0) fonts_.Add(font.name);
  });
}

// --- Exchange -------------------------------------------------------------------------------------------------------

void CBookmarkPage::DoDataExchange(CDataExchange& exchange) {
  const bool wordMode = (internalUse & kHostSetsDocument) && IsWordHost();
  if (std::exchange(wordMode_, wordMode) != wordMode) list_.SetWordMode(wordMode);
  if (exchange.IsSaving() && !FinishEdits()) {
    exchange.Fail(0);  // the keyboard is where it has to be
    return;
  }
  exchange.Check(IDC_BOOKMARK_USE, outlineStylesEnabled);
  if (exchange.IsLoading())
    LoadFormats();
  else
    SaveFormats();
}

void CBookmarkPage::LoadFormats() {
  list_.Clear();
  OutlineStyles styles;
  ReadOutlineStyles(outlineStyles, styles);
  CBookmarkFormatArray formats;
  ReadOutlineFormats(outlineFormats, styles, wordMode_, formats);
  if (!wordMode_) formats.AddDefaultFormats();
  for (int i = 0; i < formats.Count(); ++i) list_.AddEntry(std::make_unique<BookmarkRow>(*formats.GetAt(i)));
  if (wordMode_)
    list_.SortInDocumentOrder();
  else
    list_.SortByColumn(CListCtrlBookmark::kNameColumn, true);
  list_.SetSelectionMark(-1);
  UpdateControls();
}

void CBookmarkPage::SaveFormats() {
  COutlineWriter writer;
  for (int row = 0; row < list_.Count(); ++row) writer.Add(Row(row)->Format());
  outlineStyles = writer.Styles();
  outlineFormats = writer.Formats();
  if (!writer.AllStylesFit()) MsgBoxById(Handle(), nullptr, MSG_BOOKMARK_TOO_MANY_USED, MB_OK | MB_ICONEXCLAMATION);
}

// False when there is something that the user has to finish first.
bool CBookmarkPage::FinishEdits() {
  if (dialog_.IsOpen() && dialog_->IsModified()) {
    Tell(MSG_INVALID_DATA, MB_OK | MB_ICONERROR);
    if (dialog_.IsOpen()) dialog_->UpdateLock();  // the end of a box may enable its owner
    return false;
  }
  if (!LeaveEditors()) return false;
  CloseDialog();
  return true;
}

// The same for an edit in the list: a refused name leads back there. The page may end in the box that tells why.
bool CBookmarkPage::LeaveEditors() {
  list_.CloseEditors();
  return IsWindow() && !list_.Edit();
}

// --- Formats --------------------------------------------------------------------------------------------------------

void CBookmarkPage::CreateNewBookmarkFormat(bool forceDefault) {
  if (!LeaveEditors()) return;
  const BookmarkRow* const selected = SelectedRow();
  CBookmarkFormat format;
  if (forceDefault || !selected)
    format.fontName = DefaultFont(fonts_);
  else
    format = selected->Format().UserCopy();
  std::vector<CUString> names;
  for (int row = 0; row < list_.Count(); ++row) names.push_back(Row(row)->DisplayName());
  format.displayName = format.styleName = FreeBookmarkName(names);

  {
    const FillingScope filling(*this);
    const int row = list_.AddEntry(std::make_unique<BookmarkRow>(std::move(format)));
    if (row < 0) return;
    list_.SelectRow(row);
  }
  ShowBookmarkFormatDialog(true);
}

void CBookmarkPage::OnEditFormat() {
  if (LeaveEditors()) ShowBookmarkFormatDialog(false);
}

void CBookmarkPage::OnRemoveFormat() {
  if (!LeaveEditors()) return;
  {
    const FillingScope filling(*this);
    list_.RemoveSelected();
  }
  OnListEdited();
}

void CBookmarkPage::OnRemoveAllFormats() {
  if (!LeaveEditors() || Tell(MSG_BOOKMARK_REMOVE_ALL_QUESTION, MB_YESNO | MB_ICONQUESTION) != IDYES || !IsWindow())
    return;
  {
    const FillingScope filling(*this);
    list_.RemoveAll();
    // The mark may have come to stand on a row that nobody has selected.
    if (!list_.RowState(list_.SelectionMark(), LVIS_SELECTED)) list_.SetSelectionMark(-1);
  }
  OnListEdited();
  Tell(MSG_BOOKMARK_ALL_REMOVED, MB_OK | MB_ICONINFORMATION);
}

void CBookmarkPage::OnSelectAll() {
  const bool used = IsChecked(IDC_BOOKMARK_SELECT_ALL);
  {
    const FillingScope filling(*this);
    for (int row = 0; row < list_.Count(); ++row) {
      Row(row)->SetUsed(used);
      list_.RefreshRow(row, false);
    }
  }
  UpdateControls();
}

void CBookmarkPage::OnDblClk(WindowMessage& message) {
  const int row = ClickedRow(list_, message);
  if (row < 0) return;
  list_.SelectRow(row);
  OnEditFormat();
}

void CBookmarkPage::OnReturn() {
  OnEditFormat();
  dialog_.ActivateIfOpen();
}

void CBookmarkPage::OnKeyDown(WindowMessage& message) {
  if (IsDeleteKey(message) && deleteAllowed_) OnRemoveFormat();
}

// What is written into the cells does not matter. The platform moves its mark by keys only behind the message.
void CBookmarkPage::OnItemChanged(WindowMessage& message) {
  const auto& change = reinterpret_cast<const NMLISTVIEW&>(message.Notify());
  const UINT changed = change.uOldState ^ change.uNewState;
  if (!(change.uChanged & LVIF_STATE) || !(changed & (LVIS_SELECTED | LVIS_STATEIMAGEMASK))) return;
  if (changed & change.uNewState & LVIS_SELECTED) list_.SetSelectionMark(change.iItem);
  OnListEdited();
}

// What was changed in the dialog and not applied is lost. A format that is still new stays so: what is told here may be
// an edit that was under way when it was made.
void CBookmarkPage::OnListEdited() {
  if (dialog_.IsOpen() && SelectedRow())
    ShowBookmarkFormatDialog(dialog_->isNew && SelectedRow() == editedRow_);
  else
    UpdateControls();
}

bool CBookmarkPage::IsNameTaken(const CUString& name, const BookmarkListEntry* except) const {
  const int row = list_.RowOfName(name);
  return row >= 0 && Row(row) != except;
}

bool CBookmarkPage::AcceptsName(int row, const CUString& name) {
  return IsValidBookmarkName(name) && !IsNameTaken(name, Row(row));
}

void CBookmarkPage::TellRefusal(const CUString& name) {
  Tell(IsValidBookmarkName(name) ? MSG_BOOKMARK_NAME_TAKEN : MSG_BOOKMARK_INVALID_NAME, MB_OK | MB_ICONERROR, name);
}

int CBookmarkPage::Tell(uint32_t messageId, UINT flags, const CUString& argument) {
  const DialogPause pause(dialog_.Get());
  return CNemUIPage::Tell(messageId, flags, argument);
}

// --- Dialog ---------------------------------------------------------------------------------------------------------

void CBookmarkPage::ShowBookmarkFormatDialog(bool isNew) {
  const BookmarkRow* const row = SelectedRow();
  if (!row) return;
  const bool isOpen = dialog_.IsOpen();
  if (!isOpen) {
    dialog_.Make(/*underlineLocked=*/!wordMode_).fonts = fonts_;
  }
  dialog_->format = row->Format();
  dialog_->isNew = isNew;
  dialog_->nameEditable = dialog_->formatEditable = row->CanRename();
  editedRow_ = row;
  if (isOpen) {
    dialog_->Load();
    dialog_->Show(true);
  } else if (!dialog_->Open(*this)) {
    CloseDialog();
  }
  if (isNew) dialog_.ActivateIfOpen();
  UpdateControls();
}

// What speaks against the format in the dialog: a message, or 0 when the user has been told already. In a box of the
// dialog its object may end.
bool CBookmarkPage::CheckFormatDialog(uint32_t& messageId, CUString& argument) const {
  messageId = 0;
  if (!dialog_->Save()) return false;
  if (wordMode_) return true;
  const CBookmarkFormat& format = dialog_->format;
  argument = format.displayName;
  argument.TrimBoth();
  if (!IsValidBookmarkName(argument)) {
    messageId = MSG_BOOKMARK_INVALID_NAME;
    return false;
  }
  if (IsNameTaken(argument, editedRow_)) {
    messageId = MSG_BOOKMARK_NAME_TAKEN;
    return false;
  }
  for (int row = 0; row < list_.Count(); ++row) {
    if (Row(row) == editedRow_ || !SameProperties(Row(row)->Format(), format)) continue;
    argument = Row(row)->DisplayName();
    messageId = MSG_BOOKMARK_SAME_PROPERTIES;
    return false;
  }
  return true;
}

// Into the selected row. False when they are not good, and the user knows.
bool CBookmarkPage::TakeDialogValues() {
  uint32_t messageId = 0;
  CUString argument;
  if (!CheckFormatDialog(messageId, argument)) {
    if (messageId) dialog_->ShowCheckMessage(messageId, argument);
    return false;
  }
  if (BookmarkRow* const row = SelectedRow()) {
    dialog_->format.displayName.TrimBoth();
    row->Take(dialog_->format);
    list_.RefreshRow(list_.SelectionMark(), true);
  }
  return true;
}

// A dialog that is gone may have posted more than one message.
void CBookmarkPage::OnDialogApply() {
  if (!dialog_.IsOpen() || !TakeDialogValues()) return;
  dialog_->ClearModified();
  UpdateControls();
}

void CBookmarkPage::OnDialogCancel(WPARAM mark, LPARAM) {
  if (!dialog_.IsOpen()) return;
  if (mark == kNewListEntry) {
    const FillingScope filling(*this);
    list_.RemoveSelected();
  }
  CloseDialog();
  UpdateControls();
}

void CBookmarkPage::OnDialogOk() {
  if (!dialog_.IsOpen() || !TakeDialogValues()) return;
  CloseDialog();
  UpdateControls();
}

void CBookmarkPage::CloseDialog() {
  editedRow_ = nullptr;
  dialog_.Close(*this);
}

void CBookmarkPage::OnDestroy() {
  dialog_.Drop();
  noteBox_.reset();
}

// --- What is enabled ------------------------------------------------------------------------------------------------

void CBookmarkPage::UpdateControls() {
  const BookmarkRow* const selected = SelectedRow();
  const int rows = list_.Count();
  const bool use = IsChecked(IDC_BOOKMARK_USE);
  const bool changeable = use && !wordMode_;
  deleteAllowed_ = changeable && selected && selected->CanRemove();
  const std::pair<int, bool> states[] = {
      {IDC_BOOKMARK_LIST, use},
      {IDC_BOOKMARK_SELECT_ALL, use && rows > 0},
      {IDC_BOOKMARK_NEW, changeable},
      {IDC_BOOKMARK_EDIT, use && selected && !dialog_.IsOpen()},
      {IDC_BOOKMARK_COPY, changeable && selected},
      {IDC_BOOKMARK_REMOVE, deleteAllowed_},
      {IDC_BOOKMARK_REMOVE_ALL, changeable && rows > kStandardRows},
  };
  for (const auto& [id, enabled] : states) Item(id).Enable(enabled);

  CButton(Item(IDC_BOOKMARK_SELECT_ALL)).SetCheck(rows > 0 && AreAllChecked());
  if (!selected) CloseDialog();
  if (dialog_.IsOpen()) dialog_->UpdateLock();
  list_.UpdateHint(use);
  Item(IDC_BOOKMARK_SELECT_ALL).Show(false);
  if (wordMode_) ShowWordMode();
}

bool CBookmarkPage::AreAllChecked() const {
  for (int row = 0; row < list_.Count(); ++row)
    if (!list_.IsChecked(row)) return false;
  return true;
}

// Once: what the user cannot do there goes, and a note says where styles are changed.
void CBookmarkPage::ShowWordMode() {
  if (noteBox_) return;
  ShowControls(kHiddenUnderWord, false);
  const RECT size = Item(IDC_BOOKMARK_NOTE_PLACE).RectIn(*this);
  const int left = Scale(kNoteLeft), top = static_cast<int>(ClientRect().bottom) * kNoteTop / 100;
  noteBox_ = std::make_unique<CTextBox>(false, false);
  noteBox_->Create(*this, IDC_BOOKMARK_NOTE, {left, top, left + size.right - size.left, top + size.bottom - size.top});
}
