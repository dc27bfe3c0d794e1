#include "pages/CStationeryPropertiesDialog.h"

#include <iterator>
#include <utility>

#include "DriverLIB/MessageBoxes.h"
#include "MessageIds.h"
#include "resources/ResourceIds.h"
#include "window/Controls.h"
#include "window/ValueScope.h"

namespace {

constexpr int kMaxDescription = 30;  // characters that the user can type

// By the number of the merge mode.
constexpr int kModeRadios[] = {IDC_STATIONERY_BEHIND_ALL, IDC_STATIONERY_FIRST_TWO_PAGES, IDC_STATIONERY_FIRST_PAGE,
                               IDC_STATIONERY_EVERY_PAGE};

// A number that is no mode shows as mode 0.
constexpr int RadioOf(int mode) {
  return mode >= 0 && mode < static_cast<int>(std::size(kModeRadios)) ? kModeRadios[mode] : kModeRadios[0];
}

}  // namespace

CStationeryPropertiesDialog::CStationeryPropertiesDialog(std::weak_ptr<CStationeryFormat> format)
    : CModelessDialog(IDD_STATIONERY_PROPERTIES), format_(std::move(format)) {}

bool CStationeryPropertiesDialog::OnWindowMessage(WindowMessage& message) {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CStationeryPropertiesDialog::OnApply>(IDC_STATIONERY_APPLY),
      OnClick<&CStationeryPropertiesDialog::OnOk>(IDC_STATIONERY_OK),
      OnClick<&CStationeryPropertiesDialog::OnCancel>(IDC_STATIONERY_CANCEL),
      OnCommand<&CStationeryPropertiesDialog::OnFieldChanged>(IDC_STATIONERY_NAME, EN_CHANGE),
      OnClickRange<&CStationeryPropertiesDialog::OnFieldChanged>(IDC_STATIONERY_FIRST_TWO_PAGES,
                                                                 IDC_STATIONERY_BEHIND_ALL),
  };
  return DispatchMessages(kMessages, *this, message) || CModelessDialog::OnWindowMessage(message);
}

BOOL CStationeryPropertiesDialog::OnInitDialog() {
  CEdit(Item(IDC_STATIONERY_NAME)).LimitText(kMaxDescription);
  Item(IDC_STATIONERY_FILE).ReadLeftToRight();
  // A radio that gets the focus tells a click otherwise, which nobody made.
  for (const int radio : kModeRadios) Item(radio).Send(BM_SETDONTCLICK, TRUE);
  Fill();
  return CModelessDialog::OnInitDialog();
}

void CStationeryPropertiesDialog::SetFormat(std::weak_ptr<CStationeryFormat> format) {
  format_ = std::move(format);
  isNew_ = modified_ = false;
  PostToPage(kModifiedMessage);
  Fill();
}

// The page is told of each change of a control, of those by the dialog itself too.
void CStationeryPropertiesDialog::Fill() {
  if (const auto format = GetFormat()) {
    const ValueScope refreshing(refreshing_, true);
    Item(IDC_STATIONERY_FILE).SetText(format->GetFile().Text());
    // Without a description it takes one from its file, and is as good as new.
    if (format->GetName().IsEmpty()) {
      format->SetFile(format->GetFile());
      isNew_ = true;
    }
    Item(IDC_STATIONERY_NAME).SetText(format->GetName().Text());
    ::CheckRadioButton(Handle(), IDC_STATIONERY_FIRST_TWO_PAGES, IDC_STATIONERY_BEHIND_ALL, RadioOf(format->GetType()));
  }
  Item(IDC_STATIONERY_APPLY).Enable(false);
}

void CStationeryPropertiesDialog::OnFieldChanged() {
  if (!refreshing_) {
    modified_ = true;
    Item(IDC_STATIONERY_APPLY).Enable(true);
  }
  PostToPage(kModifiedMessage);
}

void CStationeryPropertiesDialog::OnApply() {
  if (!HasDescription()) return;
  Save();
  PostToPage(kEntryAppliedMessage, NewEntryMark(isNew_));
  modified_ = false;
  Item(IDC_STATIONERY_APPLY).Enable(false);
  PostToPage(kModifiedMessage);
}

void CStationeryPropertiesDialog::OnOk() {
  if (!HasDescription()) return;
  Save();
  PostToPage(kEntryOkMessage, NewEntryMark(isNew_));
}

void CStationeryPropertiesDialog::OnCancel() { PostToPage(kEntryCancelledMessage, NewEntryMark(isNew_)); }

// With the box up the dialog may come to its end, and this object with it.
bool CStationeryPropertiesDialog::HasDescription() const {
  const CWnd edit = Item(IDC_STATIONERY_NAME);
  if (!edit.Text().IsEmpty()) return true;
  MsgBoxById(Handle(), nullptr, MSG_STATIONERY_EMPTY_DESCRIPTION, MB_OK | MB_ICONERROR);
  if (edit.IsWindow()) edit.Focus();
  return false;
}

void CStationeryPropertiesDialog::Save() {
  const auto format = GetFormat();
  if (!format) return;
  for (int mode = 0; mode < static_cast<int>(std::size(kModeRadios)); ++mode) {
    if (!CButton(Item(kModeRadios[mode])).IsChecked()) continue;
    format->SetType(static_cast<int16_t>(mode));
    break;
  }
  format->SetName(Item(IDC_STATIONERY_NAME).Text());
}
