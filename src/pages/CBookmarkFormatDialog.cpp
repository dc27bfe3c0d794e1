#include "pages/CBookmarkFormatDialog.h"

#include <iterator>
#include <utility>

#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/Numbers.h"
#include "MessageIds.h"
#include "pages/FontSizeText.h"
#include "Pictures.h"
#include "resources/ResourceIds.h"
#include "window/AlphaImage.h"

namespace {

constexpr const wchar_t* kSizes[] = {L"8",  L"9",  L"10", L"11", L"12", L"14", L"16", L"18",
                                     L"20", L"22", L"24", L"26", L"28", L"36", L"48", L"72"};

constexpr std::pair<int, PictureNumbers> kStylePictures[] = {
    {IDC_BOOKMARK_FORMAT_BOLD, Pictures::kBold},
    {IDC_BOOKMARK_FORMAT_ITALIC, Pictures::kItalic},
    {IDC_BOOKMARK_FORMAT_UNDERLINE, Pictures::kUnderline},
};

// The first row that begins with the text, or with CB_FINDSTRINGEXACT is the text; -1 for none.
int FindRow(const CComboBox& list, const CUString& text, UINT search = CB_FINDSTRING) {
  if (text.IsEmpty()) return -1;
  return static_cast<int>(list.Send(search, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.Text())));
}

}  // namespace

CBookmarkFormatDialog::CBookmarkFormatDialog(bool underlineLocked)
    : CModelessDialog(IDD_BOOKMARK_FORMAT),
      underlineLocked_(underlineLocked),
      levels_{IDC_BOOKMARK_FORMAT_LEVEL},
      fontNames_{IDC_BOOKMARK_FORMAT_FONT} {}

bool CBookmarkFormatDialog::OnWindowMessage(WindowMessage& message) {
  using Self = CBookmarkFormatDialog;
  static constexpr MessageRow kMessages[] = {
      OnClick<&Self::OnApply>(IDC_BOOKMARK_FORMAT_APPLY),
      OnClick<&Self::OnOk>(IDC_BOOKMARK_FORMAT_OK),
      OnClick<&Self::OnCancel>(IDC_BOOKMARK_FORMAT_CANCEL),
      OnMessage<&Self::OnChanged>(ColourSelEndOk),
      OnCommand<&Self::OnChanged>(IDC_BOOKMARK_FORMAT_NAME, EN_CHANGE),
      OnCommand<&Self::OnChanged>(IDC_BOOKMARK_FORMAT_LEVEL, CBN_SELCHANGE),
      OnCommand<&Self::OnChanged>(IDC_BOOKMARK_FORMAT_FONT, CBN_SELCHANGE),
      OnCommand<&Self::OnSizeChosen>(IDC_BOOKMARK_FORMAT_SIZE, CBN_SELCHANGE),
      OnCommand<&Self::OnChanged>(IDC_BOOKMARK_FORMAT_SIZE, CBN_EDITCHANGE),
      OnClickRange<&Self::OnChanged>(IDC_BOOKMARK_FORMAT_BOLD, IDC_BOOKMARK_FORMAT_UNDERLINE),
  };
  if (message.message == WM_DESTROY) OnEnd();
  return DispatchMessages(kMessages, *this, message) || CModelessDialog::OnWindowMessage(message);
}

BOOL CBookmarkFormatDialog::OnInitDialog() {
  preview_.Attach(*this, IDC_BOOKMARK_FORMAT_PREVIEW);
  colourPicker_.Attach(*this, IDC_BOOKMARK_FORMAT_COLOUR);
  colourPicker_.SetDefaultText(MessageText(MSG_COLOUR_DO_NOT_USE).Text());
  colourPicker_.SetCustomText(MessageText(MSG_COLOUR_MORE).Text());
  LoadPictures();
  return CModelessDialog::OnInitDialog();
}

// Letters are no pictures that a mirrored window may turn round.
void CBookmarkFormatDialog::LoadPictures() {
  for (size_t i = 0; i < std::size(kStylePictures); ++i) {
    const auto& [id, picture] = kStylePictures[i];
    const CWnd button = Item(id);
    AlphaImage image;
    if (!image.Load(static_cast<UINT>(picture.bitmap), static_cast<UINT>(picture.mask), Dpi())) continue;
    stylePictures_[i] = image.MakeIcon(Scale(image.Width()), Scale(image.Height()));
    button.ChangeExtendedStyle(WS_EX_LAYOUTRTL, 0);
    button.Send(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(stylePictures_[i].Get()));
  }
}

// --- Exchange -------------------------------------------------------------------------------------------------------

void CBookmarkFormatDialog::Load() {
  if (IsWindow()) UpdateData(false);
}

bool CBookmarkFormatDialog::Save() {
  const CWnd size = Item(IDC_BOOKMARK_FORMAT_SIZE);
  const CUString text = SizeText();
  if (IsValidFontSize(text)) return UpdateData(true);
  MsgBoxById(Handle(), nullptr, MSG_BOOKMARK_INVALID_SIZE, MB_OK | MB_ICONERROR, text);
  if (size.IsWindow()) size.Focus();
  return false;
}

void CBookmarkFormatDialog::DoDataExchange(CDataExchange& exchange) {
  exchange.Text(IDC_BOOKMARK_FORMAT_NAME, format.displayName);
  exchange.Check(IDC_BOOKMARK_FORMAT_BOLD, format.bold);
  exchange.Check(IDC_BOOKMARK_FORMAT_ITALIC, format.italic);
  exchange.Check(IDC_BOOKMARK_FORMAT_UNDERLINE, format.underline);
  ExchangeColour(exchange, colourPicker_, format.colour);
  if (exchange.IsSaving()) {
    format.level = ParseDecimal(ChosenText(levels_.id));
    format.fontName = ChosenText(fontNames_.id);
    format.fontSize = ParseFontSize(SizeText());
    return;
  }
  FillLists();
  ShowValue(levels_, format.GetLevelText());
  ShowValue(fontNames_, format.fontName);
  const CComboBox sizes(Item(IDC_BOOKMARK_FORMAT_SIZE));
  const int size = FindRow(sizes, format.GetSizeText());
  sizes.Select(size);
  if (size < 0) sizes.SetText(format.GetSizeText().Text());
  if (isNew) {
    const CEdit name(Item(IDC_BOOKMARK_FORMAT_NAME));
    name.SelectAll();
    name.Send(EM_SCROLLCARET);
  }
  EnableControls();
  SetModified(false);
  RefreshPreview(SizeText());
}

void CBookmarkFormatDialog::FillLists() const {
  const CComboBox levels(Item(levels_.id)), names(Item(fontNames_.id)), sizes(Item(IDC_BOOKMARK_FORMAT_SIZE));
  CBookmarkFormat row;
  if (levels.Count() == 0)
    for (row.level = minLevel; row.level <= maxLevel; ++row.level) levels.AddString(row.GetLevelText().Text());
  if (names.Count() == 0)
    for (int i = 0; i < fonts.Count(); ++i) names.AddString(fonts[i].Text());
  if (sizes.Count() == 0)
    for (const wchar_t* size : kSizes) sizes.AddString(size);
}

// A list without an edit field can show the texts of its rows only.
void CBookmarkFormatDialog::ShowValue(ValueList& list, const CUString& text) {
  const CComboBox combo(Item(list.id));
  if (const CUString former = std::exchange(list.added, CUString()); !former.IsEmpty())
    combo.Send(CB_DELETESTRING, static_cast<WPARAM>(FindRow(combo, former, CB_FINDSTRINGEXACT)));
  int row = FindRow(combo, text);
  if (row < 0 && !text.IsEmpty()) {
    list.added = text;
    row = combo.AddString(text.Text());
  }
  combo.Select(row);
}

void CBookmarkFormatDialog::EnableControls() const {
  Item(IDC_BOOKMARK_FORMAT_NAME).Enable(nameEditable);
  Item(IDC_BOOKMARK_FORMAT_LEVEL).Enable(levelEditable);
  for (const int id : {IDC_BOOKMARK_FORMAT_FONT, IDC_BOOKMARK_FORMAT_SIZE, IDC_BOOKMARK_FORMAT_COLOUR,
                       IDC_BOOKMARK_FORMAT_BOLD, IDC_BOOKMARK_FORMAT_ITALIC})
    Item(id).Enable(formatEditable);
  Item(IDC_BOOKMARK_FORMAT_UNDERLINE).Enable(formatEditable && !underlineLocked_);
}

CUString CBookmarkFormatDialog::SizeText() const { return Item(IDC_BOOKMARK_FORMAT_SIZE).Text(); }

// --- Changes --------------------------------------------------------------------------------------------------------

void CBookmarkFormatDialog::SetModified(bool modified) {
  modified_ = modified;
  Item(IDC_BOOKMARK_FORMAT_APPLY).Enable(IsModified());
  PostToPage(kModifiedMessage);
}

void CBookmarkFormatDialog::ClearModified() {
  isNew = false;
  SetModified(false);
}

void CBookmarkFormatDialog::OnChanged() {
  RefreshPreview(SizeText());
  SetModified(true);
}

// The edit field still holds the size before.
void CBookmarkFormatDialog::OnSizeChosen() {
  RefreshPreview(ChosenText(IDC_BOOKMARK_FORMAT_SIZE));
  SetModified(true);
}

void CBookmarkFormatDialog::RefreshPreview(const CUString& sizeText) {
  CBookmarkFormat shown;
  shown.fontName = ChosenText(fontNames_.id);
  shown.fontSize = ParseFontSize(sizeText);
  shown.bold = CButton(Item(IDC_BOOKMARK_FORMAT_BOLD)).IsChecked();
  shown.italic = CButton(Item(IDC_BOOKMARK_FORMAT_ITALIC)).IsChecked();
  shown.underline = CButton(Item(IDC_BOOKMARK_FORMAT_UNDERLINE)).IsChecked();
  shown.colour = colourPicker_.GetColour();

  preview_.faceName = shown.fontName;
  preview_.pointSize = shown.fontSize;
  preview_.bold = shown.bold != 0;
  preview_.italic = shown.italic != 0;
  preview_.underline = shown.underline != 0;
  preview_.colour = shown.colour;
  preview_.Invalidate();
  Item(IDC_BOOKMARK_FORMAT_DESCRIPTION).SetText(shown.GetDescription(ColourName(shown.colour)).Text());
}

// --- Buttons --------------------------------------------------------------------------------------------------------

void CBookmarkFormatDialog::OnApply() {
  if (Save()) PostToPage(kEntryAppliedMessage, NewEntryMark(isNew));
}

void CBookmarkFormatDialog::OnOk() {
  if (!Save()) return;
  if (IsModified())
    PostToPage(kEntryOkMessage, NewEntryMark(isNew));
  else
    PostToPage(kEntryCancelledMessage);
}

void CBookmarkFormatDialog::OnCancel() { PostToPage(kEntryCancelledMessage, NewEntryMark(isNew)); }

void CBookmarkFormatDialog::ShowCheckMessage(uint32_t messageId, const CUString& argument) const {
  MsgBoxById(Handle(), nullptr, messageId, MB_OK | MB_ICONERROR, argument);
}
