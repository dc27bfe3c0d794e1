#include "pages/CPdfFontsPage.h"

#include <utility>

#include "DriverLIB/Trace.h"
#include "MessageIds.h"
#include "pages/FormatAccess.h"
#include "pages/PdfVersions.h"
#include "window/RadioTable.h"

namespace {

constexpr uint16_t kAllFonts = 1;

// By mode.
constexpr int kModeRadios[] = {IDC_FONTS_NONE, IDC_FONTS_ALL, IDC_FONTS_SELECTIVE, IDC_FONTS_NO_STANDARD};

constexpr int kLists[] = {IDC_FONTS_EMBED_LABEL, IDC_FONTS_EMBED_LIST, IDC_FONTS_NEVER_LABEL, IDC_FONTS_NEVER_LIST};
constexpr int kButtons[] = {IDC_FONTS_EXCLUDE_ALL, IDC_FONTS_EXCLUDE, IDC_FONTS_EMBED, IDC_FONTS_EMBED_ALL};

constexpr PictureRow kPagePictures[] = {
    {IDC_FONTS_SIGN_INFORMATION, Pictures::kSignInformation16},
    {IDC_FONTS_SIGN_WARNING, Pictures::kSignWarning16},
    {IDC_FONTS_EMBED_PICTURE, Pictures::kFontsEmbedded},
    {IDC_FONTS_NEVER_PICTURE, Pictures::kFontsExcluded},
};

}  // namespace

MessageTable CPdfFontsPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClickRange<&CPdfFontsPage::OnModeClicked>(IDC_FONTS_NONE, IDC_FONTS_SELECTIVE),
      OnClick<&CPdfFontsPage::OnExcludeAll>(IDC_FONTS_EXCLUDE_ALL),
      OnClick<&CPdfFontsPage::OnExclude>(IDC_FONTS_EXCLUDE),
      OnClick<&CPdfFontsPage::OnEmbed>(IDC_FONTS_EMBED),
      OnClick<&CPdfFontsPage::OnEmbedAll>(IDC_FONTS_EMBED_ALL),
      OnCommand<&CPdfFontsPage::OnExclude>(IDC_FONTS_EMBED_LIST, LBN_DBLCLK),
      OnCommand<&CPdfFontsPage::OnEmbed>(IDC_FONTS_NEVER_LIST, LBN_DBLCLK),
  };
  return kMessages;
}

void CPdfFontsPage::ExchangeCockpitValues(const CockpitExchange& exchange, FontsCockpitValues& values) {
  exchange.Value(mode, values.fontsEmbedded, modeOverride.IsSet());
}

BOOL CPdfFontsPage::OnInitDialog() {
  embedList_.Attach(*this, IDC_FONTS_EMBED_LIST);
  neverList_.Attach(*this, IDC_FONTS_NEVER_LIST);
  if (!CTrackedPage::OnInitDialog()) return FALSE;
  AttachPictures(*this, pictures_, kPagePictures);
  return TRUE;
}

// --- Exchange -------------------------------------------------------------------------------------------------------

void CPdfFontsPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsLoading())
    LoadControls();
  else
    SaveControls(exchange);
}

void CPdfFontsPage::LoadControls() {
  ListInstalledFonts();
  showsForcedRadio_ = MustEmbedAll();
  ShowRadio(*this, kModeRadios, showsForcedRadio_ ? kAllFonts : mode);
  radioInForce_ = ChosenRadio();
  FillLists();
  UpdateControls();
}

void CPdfFontsPage::SaveControls(CDataExchange& exchange) {
  // The version may have changed on its own page since the controls were filled: a radio that the version chose is not
  // the user's choice, even when the version has gone.
  if (!MustEmbedAll() && !showsForcedRadio_) mode = static_cast<uint16_t>(ShownRadio(*this, kModeRadios));
  if (ChosenRadio() == IDC_FONTS_SELECTIVE) {
    ReadLists();
    if (texts.ExceedTheRecord())
      TraceWarning("UpdateFontListData: number of selected fonts exceeds devmode limit. Value truncated.");
  }
  if (texts.AreBothTooLong()) {
    exchange.Fail(IDC_FONTS_EMBED_LIST);
    Tell(MSG_FONTS_TOO_MANY, MB_OK | MB_ICONWARNING, kFontListLimit);
    return;
  }
  // At each saving, and OK saves twice. Outside the selective mode, where nobody reads the lists back, the second one
  // finds the dropped list empty; that fits, so the other one is dropped as well. Such a mode has no use for either.
  texts.KeepOne();
}

// --- Modes ----------------------------------------------------------------------------------------------------------

// A radio button tells a click when it gets the keyboard, too: before it is on, and when a box gives the focus back.
void CPdfFontsPage::OnModeClicked(WindowMessage& message) {
  const int radio = message.CommandId();
  if (radio != ChosenRadio() || radio == radioInForce_) return;
  const int previous = std::exchange(radioInForce_, radio);
  if (radio != IDC_FONTS_NONE) Tell(MSG_FONTS_LICENCE, MB_OK | MB_ICONINFORMATION);
  if (!IsWindow()) return;
  if (previous == IDC_FONTS_SELECTIVE) ReadLists();
  FillLists();
  UpdateControls();
}

int CPdfFontsPage::ChosenRadio() const { return kModeRadios[ShownRadio(*this, kModeRadios)]; }

bool CPdfFontsPage::MustEmbedAll() { return RequiresEmbeddedFonts(PdfVersionFor(*this)); }

// --- Lists ----------------------------------------------------------------------------------------------------------

// Once in the page's life. The same face comes in several character sets.
void CPdfFontsPage::ListInstalledFonts() {
  if (embedList_.HasImages()) return;
  embedList_.LoadPictures();
  neverList_.LoadPictures();
  const ListRedrawScope redraw(embedList_);
  const WindowDC dc(Handle());
  enumerateFonts(dc, [this](const InstalledFont& font) { AddFont(font); });
}

void CPdfFontsPage::AddFont(const InstalledFont& font) {
  if (!IsOffered(font) || fonts_.Has(font.name)) return;
  const CUString name(font.name);
  const FontPermission permission = PermissionOf(font);
  if (embedList_.AddFont(name.Text(), permission, fonts_.Count()) < 0)
    TraceWarning("FontEnumExCallbackScreen: Font %ls not added", name.Text());
  else
    fonts_.Add(name, permission);
}

void CPdfFontsPage::OnExcludeAll() {
  embedList_.SelectAll();
  OnExclude();
}

void CPdfFontsPage::OnEmbedAll() {
  neverList_.SelectAll();
  OnEmbed();
}

void CPdfFontsPage::MoveSelected(FontList to) {
  if (to == FontList::Embed && UnselectForbidden()) Tell(MSG_FONTS_FORBIDDEN, MB_OK | MB_ICONWARNING);
  if (!IsWindow()) return;
  const CFontListBox& from = BoxOf(OtherList(to));
  for (const int row : from.SelectedRows()) fonts_.Move(from.FontOf(row), to);
  ShowLists();
}

// Whether there was one among those that are to be embedded.
bool CPdfFontsPage::UnselectForbidden() {
  bool found = false;
  for (const int row : neverList_.SelectedRows()) {
    if (MayBeEmbedded(neverList_.PermissionIn(row))) continue;
    neverList_.Unselect(row);
    found = true;
  }
  return found;
}

void CPdfFontsPage::FillLists() {
  if (radioInForce_ == IDC_FONTS_NO_STANDARD)
    fonts_.DistributeStandardFonts();
  else
    fonts_.Distribute(texts);
  fonts_.ExcludeForbidden();
  ShowLists();
}

void CPdfFontsPage::ShowLists() {
  const ListRedrawScope redrawEmbedList(embedList_), redrawNeverList(neverList_);
  MoveRows(FontList::Embed);
  MoveRows(FontList::NeverEmbed);
}

// Moves the rows of a list whose fonts stand in the other one by now; from the end, so that no row is moved twice.
void CPdfFontsPage::MoveRows(FontList list) {
  CFontListBox& from = BoxOf(list);
  CFontListBox& to = BoxOf(OtherList(list));
  for (int row = from.Count() - 1; row >= 0; --row) {
    const int number = from.FontOf(row);
    const FontLists::Font& font = fonts_[number];
    if (font.list != list && to.AddFont(font.name.Text(), font.permission, number) >= 0) from.DeleteItem(row);
  }
}

void CPdfFontsPage::ReadLists() {
  texts.embed = NamesIn(embedList_);
  texts.neverEmbed = NamesIn(neverList_);
}

CUString CPdfFontsPage::NamesIn(const CFontListBox& list) const {
  std::wstring names;
  for (int row = 0; row < list.Count(); ++row) {
    if (row > 0) names += kFontSeparator;
    names += fonts_[list.FontOf(row)].name.View();
  }
  return CUString(std::wstring_view(names));
}

// --- What is enabled ------------------------------------------------------------------------------------------------

void CPdfFontsPage::UpdateControls() {
  const int radio = ChosenRadio();
  const bool isFree = !MustEmbedAll();
  const bool isSelective = radio == IDC_FONTS_SELECTIVE;
  EnableControls(kModeRadios, isFree);
  EnableControls(kLists, isFree && (isSelective || radio == IDC_FONTS_NO_STANDARD));
  EnableControls(kButtons, isFree && isSelective);
  // What is embedded enlarges the file.
  Item(IDC_FONTS_SIGN_INFORMATION).Show(radio == IDC_FONTS_NONE);
  Item(IDC_FONTS_SIGN_WARNING).Show(radio != IDC_FONTS_NONE);
  ApplyOverrides();
}

void CPdfFontsPage::ApplyOverrides() {
  Lock(modeOverride.IsSet(), kModeRadios);
  const bool listsFixed = listKindOverride.IsSet() && listOverride.IsSet();
  Lock(listsFixed, kLists);
  Lock(listsFixed, kButtons);
}
