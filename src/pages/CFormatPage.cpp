#include "pages/CFormatPage.h"

#include <algorithm>
#include <iterator>

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "pages/EmbedFilenamesAccess.h"
#include "pages/HostBits.h"
#include "pages/PdfVersions.h"
#include "pages/SecurityAccess.h"
#include "pages/WatermarkAccess.h"
#include "pages/ZugferdAccess.h"
#include "window/RadioTable.h"
#include "window/ValueScope.h"

namespace {

// All below the version: settings for the office add-in, and so of new documents alone.
constexpr int kAddInControls[] = {IDC_FORMAT_ADD_IN_FEATURES, IDC_FORMAT_SEPARATOR};
constexpr int kEPdfControls[] = {IDC_FORMAT_EPDF_LABEL, IDC_FORMAT_SAVE_PDF, IDC_FORMAT_SAVE_EPDF, IDC_FORMAT_SAVE_ASK};
constexpr int kEngineControls[] = {IDC_FORMAT_ENGINE_LABEL, IDC_FORMAT_ENGINE_DRIVER, IDC_FORMAT_ENGINE_RTF};
constexpr int kRadios[] = {IDC_FORMAT_SAVE_PDF, IDC_FORMAT_SAVE_EPDF, IDC_FORMAT_SAVE_ASK, IDC_FORMAT_ENGINE_DRIVER,
                           IDC_FORMAT_ENGINE_RTF};

// What a family of versions activates is told to those who come from elsewhere.
struct DefaultsNotice {
  bool (*concerns)(int version);
  bool (*isKnownFrom)(int previousVersion);
  uint32_t messageId;
};

// PDF/A-2u is left out and PDF/A-3u stands here, on purpose.
constexpr bool KnowsPdfA2(int version) { return version == 102 || version == 103 || version == 107; }
constexpr bool KnowsNothing(int) { return false; }

constexpr DefaultsNotice kDefaultsNotices[] = {
    {IsPdfA1, IsPdfA1, MSG_FORMAT_DEFAULTS_PDF_A1},
    {IsPdfA2, KnowsPdfA2, MSG_FORMAT_DEFAULTS_PDF_A2},
    {IsPdfA3, IsPdfA3, MSG_FORMAT_DEFAULTS_PDF_A3},
    {IsPdfUA, KnowsNothing, MSG_FORMAT_DEFAULTS_PDF_UA},
};

// By SaveChoice.
constexpr int kSaveRadios[] = {IDC_FORMAT_SAVE_PDF, IDC_FORMAT_SAVE_EPDF, IDC_FORMAT_SAVE_ASK};

}  // namespace

MessageTable CFormatPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnCommand<&CFormatPage::OnVersionSelected>(IDC_FORMAT_VERSION, CBN_SELCHANGE),
      OnClickRange<&CFormatPage::OnSaveFormatClicked>(IDC_FORMAT_SAVE_PDF, IDC_FORMAT_SAVE_ASK),
      OnClickRange<&CFormatPage::OnEngineClicked>(IDC_FORMAT_ENGINE_DRIVER, IDC_FORMAT_ENGINE_RTF),
  };
  return kMessages;
}

void CFormatPage::ExchangeCockpitValues(const CockpitExchange& exchange, FormatCockpitValues& values) {
  exchange.Value(version, values.pdfVersion, versionOverride.IsSet());
  exchange.Value(saveFormat, values.saveFormat, !globalTab);
  exchange.Value(saveConversion, values.saveConversion, !globalTab);
}

BOOL CFormatPage::OnInitDialog() {
  if (!FillFromTable(CComboBox(Item(IDC_FORMAT_VERSION)), kPdfVersions)) return FALSE;
  Item(IDC_FORMAT_ADD_IN_FEATURES).SetText(MessageText(MSG_FORMAT_ADD_IN_FEATURES).Text());
  Item(IDC_FORMAT_ENGINE_RTF).SetText(MessageText(MSG_FORMAT_ENGINE_RTF).Text());
  // A radio that gets the focus tells a click otherwise, which nobody made, while another one is still on.
  for (const int radio : kRadios) Item(radio).Send(BM_SETDONTCLICK, TRUE);
  if (!CTrackedPage::OnInitDialog()) return FALSE;

  informationSign_.Attach(*this, IDC_FORMAT_SIGN_INFORMATION, Pictures::kSignInformation32);
  warningSign_.Attach(*this, IDC_FORMAT_SIGN_WARNING, Pictures::kSignWarning32);
  // One hint for all versions; it needs no warning.
  Item(IDC_FORMAT_HINT).SetText(MessageText(MSG_FORMAT_HINT_SECURITY).Text());
  informationSign_.Show(true);
  warningSign_.Show(false);
  return TRUE;
}

void CFormatPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsLoading())
    LoadControls();
  else
    SaveControls(exchange);
}

void CFormatPage::LoadControls() {
  versionAsLoaded_ = version;
  SelectVersion();
  ShowSaveChoice(SaveChoiceOf(saveFormat));
  ShowEngine();
  EnforceVersion();
  UpdateControls();
}

void CFormatPage::SaveControls(CDataExchange& exchange) {
  // A page that has read nothing has nothing to write: it would overwrite what the host has set.
  CNemUIPage* zugferd = FindPage(kZugferdPage);
  if (zugferd && zugferd->IsLoaded()) zugferd->WriteProperties();

  uint16_t selected = 0;
  exchange.Choice(IDC_FORMAT_VERSION, kPdfVersions, selected);
  // The list may have no row for the version that was loaded.
  version = versionTouched_ ? selected : versionAsLoaded_;
  if (exchange.IsSaving()) saveFormat = WithSaveChoice(saveFormat, ShownSaveChoice());
}

void CFormatPage::TakeVersion(uint16_t value) {
  version = versionAsLoaded_ = value;
  if (IsWindow()) SelectVersion();
}

void CFormatPage::OnVersionSelected() {
  if (CComboBox(Item(IDC_FORMAT_VERSION)).Selection() < 0) return;
  const uint16_t previous = version;
  version = static_cast<uint16_t>(SelectedVersion());
  if (!MayTakeVersion()) {
    version = previous;
    SelectVersion();
    return;
  }
  versionTouched_ = true;
  ShowDefaults(previous);
  if (!IsWindow()) return;
  EnforceVersion();
  ShowEngine();
  UpdateControls();
}

// Whether the version that has just been chosen may stand.
bool CFormatPage::MayTakeVersion() {
  if (!globalTab && IsSpecialPdf(version)) return false;
  if (!hasAddIn && RequiresTags(version)) {
    Tell(MSG_FORMAT_NEEDS_ADD_IN, MB_OK | MB_ICONINFORMATION);
    return false;
  }
  return GiveUpInvoice();
}

// An invoice needs PDF/A-3: another version is either not taken, or switches the invoice off.
bool CFormatPage::GiveUpInvoice() {
  auto* zugferd = FindPageAs<ZugferdAccess>(*this, kZugferdPage);
  if (!zugferd || AllowsZugferd(version) || !zugferd->IsZugferdEnabled()) return true;
  if (Tell(MSG_FORMAT_ZUGFERD_QUESTION, MB_OKCANCEL | MB_ICONQUESTION) != IDOK) return false;
  zugferd->ClearOverrides();
  zugferd->SetZugferd(0);
  return true;
}

// Shows what the version means for the kind of file, and tells what else it activates.
void CFormatPage::ShowDefaults(int previousVersion) {
  const auto* notice =
      std::ranges::find_if(kDefaultsNotices, [this](const DefaultsNotice& row) { return row.concerns(version); });
  if (notice == std::end(kDefaultsNotices)) {
    ShowSaveChoice(SaveChoiceOf(saveFormat));
    return;
  }
  ShowSaveChoice(SaveChoice::Pdf);
  bool& untold = defaultsUntold_[notice - kDefaultsNotices];
  if (untold && !notice->isKnownFrom(previousVersion)) {
    untold = false;
    Tell(notice->messageId, MB_OK | MB_ICONINFORMATION);
  }
  if (IsWindow() && IsPdfA(version) && stationeryUntold_ && UsesStationery()) {
    stationeryUntold_ = false;
    Tell(MSG_FORMAT_STATIONERY_REMINDER, MB_OK | MB_ICONINFORMATION);
  }
}

bool CFormatPage::UsesStationery() {
  auto* watermark = FindPageAs<WatermarkAccess>(*this, kWatermarkPage);
  return watermark ? watermark->IsStationeryEnabled() : stationeryEnabled != 0;
}

// Switches off on other pages what the version forbids.
void CFormatPage::EnforceVersion() {
  if (IsSpecialPdf(version) && !IsPlainPdf(SelectedVersion()))
    if (auto* security = FindPageAs<SecurityAccess>(*this, kSecurityPage)) security->SwitchPasswordsOff();
  if (AllowsAttachments(version)) return;
  for (const int id : {kAttachmentsPage, kLinksPage})
    if (auto* page = FindPageAs<EmbedFilenamesAccess>(*this, id)) page->SetEmbedFilenamesEnabled(0);
}

void CFormatPage::OnSaveFormatClicked() { saveFormat = WithSaveChoice(saveFormat, ShownSaveChoice()); }

// Whatever tells a click under the box, one box is enough.
void CFormatPage::OnEngineClicked() {
  const bool isRtf = IsChecked(IDC_FORMAT_ENGINE_RTF);
  saveConversion = isRtf ? 1 : 0;
  if (!isRtf || tellingOfEngine_) return;
  const ValueScope telling(tellingOfEngine_, true);
  Tell(MSG_FORMAT_RTF_INFORMATION, MB_OK | MB_ICONINFORMATION);
}

void CFormatPage::SelectVersion() { CComboBox(Item(IDC_FORMAT_VERSION)).Select(RowOfValue(kPdfVersions, version)); }

// The version of the row that is shown, which is another one where the list has no row for the version.
int CFormatPage::SelectedVersion() const {
  const int row = CComboBox(Item(IDC_FORMAT_VERSION)).Selection();
  return kPdfVersions[row < 0 ? 0 : row].value;
}

void CFormatPage::ShowSaveChoice(SaveChoice choice) { ShowRadio(*this, kSaveRadios, static_cast<unsigned>(choice)); }

SaveChoice CFormatPage::ShownSaveChoice() const { return static_cast<SaveChoice>(ShownRadio(*this, kSaveRadios)); }

// The engine that a version forces is shown and not stored: the choice comes back with a version that leaves it.
void CFormatPage::ShowEngine() {
  const bool isRtf = RequiresTags(version) || saveConversion == 1;
  ::CheckRadioButton(Handle(), IDC_FORMAT_ENGINE_DRIVER, IDC_FORMAT_ENGINE_RTF,
                     isRtf ? IDC_FORMAT_ENGINE_RTF : IDC_FORMAT_ENGINE_DRIVER);
}

void CFormatPage::UpdateControls() {
  // The settings of a document are e.pdf, which leaves the version as the one choice.
  EnableControls(kAddInControls, globalTab);
  EnableControls(kEPdfControls, globalTab && !(printOutput & kHostHandlesOutput) && saveFormatEPdfEnabled &&
                                    IsPlainPdf(SelectedVersion()));
  EnableControls(kEngineControls, globalTab && saveConversionEnabled && !RequiresTags(version));
  ApplyOverrides();
}

void CFormatPage::ApplyOverrides() { Lock(versionOverride.IsSet(), {IDC_FORMAT_VERSION}); }
