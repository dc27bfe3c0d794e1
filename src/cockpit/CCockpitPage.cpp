#include "cockpit/CCockpitPage.h"

#include <algorithm>

#include "cockpit/TrackedPages.h"
#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/MessageText.h"
#include "environment/DefaultPaper.h"
#include "MessageIds.h"
#include "resources/ResourceIds.h"
#include "sheet/PageNumbers.h"

namespace {

// A row's controls but for its square and its text, which are numbered through; its caption, and where it leads.
struct RowDescription {
  int linkId;
  uint32_t captionId;
  int pageId;
};

// In the order of the categories.
constexpr RowDescription kRows[kCockpitCategoryCount] = {
    {IDC_COCKPIT_LINK_GRAPHIC, MSG_PAGE_GRAPHICAL_OPTIMIZATION, kGraphicPage},
    {IDC_COCKPIT_LINK_PAPER, MSG_PAGE_PAPER, kPaperPage},
    {IDC_COCKPIT_LINK_APPEARANCE, MSG_PAGE_DISPLAY, kAppearancePage},
    {IDC_COCKPIT_LINK_FONTS, MSG_PAGE_FONTS, kFontsPage},
    {IDC_COCKPIT_LINK_WATERMARK, MSG_ENTRY_STATIONERY_PAPER, kWatermarkPage},
    {IDC_COCKPIT_LINK_LINKS, MSG_PAGE_LINKS, kLinksPage},
    {IDC_COCKPIT_LINK_ATTACHMENTS, MSG_PAGE_ATTACHMENTS, kAttachmentsPage},
    {IDC_COCKPIT_LINK_BOOKMARK, MSG_PAGE_BOOKMARK, kBookmarkPage},
    {IDC_COCKPIT_LINK_SAVING, MSG_PAGE_SAVING, kSavingPage},
    {IDC_COCKPIT_LINK_FORMAT, MSG_PAGE_OUTPUT_FORMAT, kFormatPage},
    {IDC_COCKPIT_LINK_ACTION, MSG_PAGE_ACTIONS, kActionPage},
    {IDC_COCKPIT_LINK_MAIL, MSG_PAGE_MAIL, kMailPage},
    {IDC_COCKPIT_LINK_COLORSPACE, MSG_PAGE_COLORSPACE, kColorsPage},
    {IDC_COCKPIT_LINK_ZUGFERD, MSG_PAGE_ZUGFERD_INVOICE, kZugferdPage},
    {IDC_COCKPIT_LINK_FORM_FIELDS, MSG_PAGE_FIELDS, kFormFieldsPage},
    {IDC_COCKPIT_LINK_FORM_FIELDS_COLOR, MSG_PAGE_COLOR_SETTINGS, kFormFieldsColorPage},
    {IDC_COCKPIT_LINK_SECURITY, MSG_FOLDER_SECURITY, kSecurityPage},
    {IDC_COCKPIT_LINK_DOCUMENT_INFO, MSG_PAGE_DOCUMENT_INFO, kDocInfoPage},
};

// Both ends belong to it.
bool Contains(const RECT& rect, POINT point) {
  return rect.left <= point.x && point.x <= rect.right && rect.top <= point.y && point.y <= rect.bottom;
}

}  // namespace

// Both records agree on the default paper.
CCockpitPage::CCockpitPage(const PageDescription& description)
    : CNemUIPage(description), baseline_(IsA4PaperDefault()), current_(baseline_) {
  for (CCockpitRow& row : rows_) row.square.SetLink(row.link);
}

MessageTable CCockpitPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CCockpitPage::OnRestoreDefaults>(IDC_COCKPIT_RESTORE),
      OnMessage<&CCockpitPage::OnLinkClicked>(kLinkClickedMessage),
      OnMessage<&CCockpitPage::OnMouseLeave>(WM_MOUSELEAVE),
      OnMessage<&CCockpitPage::OnRowFocus>(kRowFocusMessage),
  };
  return kMessages;
}

BOOL CCockpitPage::OnInitDialog() {
  BindControls();
  if (!CNemUIPage::OnInitDialog()) return FALSE;
  restored_ = push_ = false;
  return TRUE;
}

void CCockpitPage::BindControls() {
  for (int i = 0; i < kCockpitCategoryCount; ++i) {
    CCockpitRow& row = rows_[static_cast<size_t>(i)];
    row.square.Attach(*this, IDC_COCKPIT_FIRST_SQUARE + i);
    row.link.Attach(*this, kRows[i].linkId);
    row.link.SetNotifyParent(true);
    row.link.SetUnderline(true);
    row.link.SetText(MessageText(kRows[i].captionId).Text());
    row.text = CStatic(Item(IDC_COCKPIT_FIRST_TEXT + i));
  }
  restore_.Attach(*this, IDC_COCKPIT_RESTORE);
}

bool CCockpitPage::OnKillActive() {
  CloseNote();
  return CNemUIPage::OnKillActive();
}

// The mouse's way over the page goes on to the default processing.
bool CCockpitPage::OnWindowMessage(WindowMessage& message) {
  if (message.message == WM_MOUSEMOVE) OnMouseMove({GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)});
  return CNemUIPage::OnWindowMessage(message);
}

// --- Values ---------------------------------------------------------------------------------------------------------

void CCockpitPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsLoading()) {
    CollectValues();
    UpdateAllRows();
  } else if (push_) {
    PushValues();
    push_ = false;
  }
}

// A page that this run does not have leaves its values as they are, at their defaults.
void CCockpitPage::CollectValues() {
  for (const TrackedPage& tracked : TrackedPages())
    if (CNemUIPage* page = FindPage(tracked.pageId)) tracked.collect(*page, current_);
}

void CCockpitPage::PushValues() {
  for (const TrackedPage& tracked : TrackedPages())
    if (CNemUIPage* page = FindPage(tracked.pageId)) tracked.push(*page, current_);
}

void CCockpitPage::UpdateAllRows() {
  CloseNote();
  for (int32_t i = 0; i < kCockpitCategoryCount; ++i) UpdateRow(i + 1, rows_[static_cast<size_t>(i)]);
}

// A row is marked or it is not: how much of its category differs is left to the comparison.
void CCockpitPage::UpdateRow(int32_t category, CCockpitRow& row) {
  CUString label, detail;
  int32_t lineCount = 0, width = 0;
  const bool marked = CompareCategory(baseline_, current_, category, label, detail, lineCount, width) > kLeastWeight;
  row.square.SetIntensity(marked ? 1.0 : 0.0);
  row.square.SetDifferences(label);
  const CUString changed = MessageText(MSG_COCKPIT_CHANGED);
  const CUString text = marked ? CUString(L"(" + label + L")") : CUString();
  if (row.text.Text() != text) row.text.SetText(text.Text());
  row.toolTip = marked ? changed + L"\n" + detail : CUString();
  row.toolTipLines = marked ? lineCount + 1 : 0;
  row.toolTipWidth = marked ? std::max(changed.Length(), width) : 0;
}

void CCockpitPage::OnRestoreDefaults() {
  const HWND window = Handle();
  if (MsgBoxById(window, GetMsgBoxTitle().Text(), MSG_COCKPIT_RESTORE_QUESTION, MB_YESNO | MB_ICONWARNING) != IDYES)
    return;
  if (!::IsWindow(window)) return;  // the box has outlived us
  current_.ResetToDefaults();
  restored_ = push_ = true;
  UpdateData(true);
  // What an administrator has fixed comes back as it was.
  UpdateData(false);
}

// --- Links and squares ----------------------------------------------------------------------------------------------

LRESULT CCockpitPage::OnLinkClicked(WPARAM controlId, LPARAM) {
  for (const RowDescription& row : kRows)
    if (static_cast<WPARAM>(row.linkId) == controlId) return ActivatePage(row.pageId);
  return 0;
}

// --- Notes ----------------------------------------------------------------------------------------------------------

void CCockpitPage::OnMouseMove(POINT point) {
  // When a window appears under it, the system reports the mouse anew though it stands still.
  if (note_ && noteFor_ == NoteFor::Keyboard && point.x == restingMouse_.x && point.y == restingMouse_.y) return;
  CloseNote();
  for (const CCockpitRow& row : rows_) {
    if (!Contains(row.text.RectIn(*this), point)) continue;
    OpenNote(row, point, NoteFor::Mouse);
    return;
  }
}

void CCockpitPage::OnMouseLeave() {
  if (noteFor_ == NoteFor::Mouse) CloseNote();
}

// The note stands above the row's text, so that row and note can be read together.
void CCockpitPage::OnRowFocus(WPARAM controlId, LPARAM hasFocus) {
  if (!hasFocus) {
    if (noteFor_ == NoteFor::Keyboard) CloseNote();
    return;
  }
  const auto id = static_cast<int>(controlId);
  const auto row = std::find_if(rows_.begin(), rows_.end(), [id](const CCockpitRow& candidate) {
    return candidate.square.Id() == id || candidate.link.Id() == id;
  });
  if (row == rows_.end()) return;
  CloseNote();
  const RECT text = row->text.RectIn(*this);
  OpenNote(*row, {text.left, text.top}, NoteFor::Keyboard);
}

void CCockpitPage::OpenNote(const CCockpitRow& row, POINT point, NoteFor whom) {
  if (row.toolTip.IsEmpty()) return;
  noteFor_ = whom;
  ::GetCursorPos(&restingMouse_);
  restingMouse_ = ScreenToClient(restingMouse_);
  note_ = std::make_unique<CToolTipBox>();
  note_->text = row.toolTip;
  note_->lineCount = row.toolTipLines;
  note_->widthInCharacters = row.toolTipWidth;
  note_->mousePosition = {point.x, point.y};
  note_->Open(*this, IDC_COCKPIT_NOTE);
}
