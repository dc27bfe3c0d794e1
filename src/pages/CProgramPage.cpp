#include "pages/CProgramPage.h"

#include "DriverLIB/CEPathS.h"
#include "DriverLIB/MessageText.h"
#include "environment/CBrowseForFolder.h"
#include "environment/FileDialog.h"
#include "MessageIds.h"
#include "pages/DestinationPath.h"
#include "pages/HostBits.h"
#include "window/CActivationContext.h"

namespace {

// The two fields of saveAction.
constexpr uint16_t kTypeMask = 0x38;
constexpr uint16_t kLocationMask = 0x1C0;

constexpr int32_t kPredefinedName = 0x18;
constexpr int32_t kPredefinedFolder = 0x140;

constexpr ValueRow kTypes[] = {
    {MSG_SAVING_TYPE_ASK, 0x08},
    {MSG_SAVING_TYPE_DOCUMENT_NAME, 0x10},
    {MSG_SAVING_TYPE_PREDEFINED_NAME, kPredefinedName},
    {},
};

constexpr ValueRow kLocations[] = {
    {MSG_SAVING_LOCATION_CURRENT, 0x080},
    {MSG_SAVING_LOCATION_LAST, 0x0C0},
    {MSG_SAVING_LOCATION_HOME, 0x100},
    {MSG_SAVING_LOCATION_DESKTOP, 0x180},
    {MSG_SAVING_LOCATION_PREDEFINED, kPredefinedFolder},
    {},
};

// Numbered names stand last, on purpose.
constexpr ValueRow kFileExistsActions[] = {
    {MSG_SAVING_EXISTS_WARN, 0},   {MSG_SAVING_EXISTS_OVERWRITE, 4}, {MSG_SAVING_EXISTS_APPEND, 6},
    {MSG_SAVING_EXISTS_INSERT, 7}, {MSG_SAVING_EXISTS_NUMBER, 5},    {},
};

// Characters.
constexpr int kFolderLimit = 259;
constexpr int kFileLimit = 256;
constexpr int kSuffixLimit = 9;
constexpr int kCheckedCharacters = 1024;
constexpr size_t kChosenPathRoom = 512;

// Bits of registryDevmode.
constexpr uint32_t kAllApplications = 1;
constexpr uint32_t kAllInstances = 2;

constexpr uint16_t kStorePermanently = 1;
constexpr uint16_t kFromPrinterSetup = 2;

// Without a selection the first row's value counts; the exchange has failed then and goes on.
uint16_t ChosenValue(CDataExchange& exchange, const CWnd& page, int id, const ValueRow* table) {
  const auto chosen = SelectedValue(CComboBox(page.Item(id)), table);
  if (!chosen) exchange.FailAndGoOn(id);
  return static_cast<uint16_t>(chosen.value_or(table[0].value));
}

// For a caption in which "&" marks the access key.
CUString WithoutAccessKey(CUString text) {
  text.ReplaceStr(L"&", L"&&");
  return text;
}

}  // namespace

MessageTable CProgramPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnCommand<&CProgramPage::OnTargetChanged>(IDC_SAVING_TYPE, CBN_SELCHANGE),
      OnCommand<&CProgramPage::OnTargetChanged>(IDC_SAVING_LOCATION, CBN_SELCHANGE),
      OnClick<&CProgramPage::OnBrowse>(IDC_SAVING_BROWSE),
      OnClick<&CProgramPage::OnInstancesClicked>(IDC_SAVING_INSTANCES),
      OnClick<&CProgramPage::OnSuffixClicked>(IDC_SAVING_SUFFIX_CHECK),
  };
  return kMessages;
}

void CProgramPage::ExchangeCockpitValues(const CockpitExchange& exchange, SavingCockpitValues& values) {
  exchange.Value(saveAction, values.saveAction, saveActionOverride.IsSet());
  exchange.Value(fileExistsAction, values.fileExistsAction, fileExistsActionOverride.IsSet());
}

BOOL CProgramPage::OnInitDialog() {
  const CUString program = CEPathString::ModulePath(nullptr).GetNameAndExtension();
  Item(IDC_SAVING_INSTANCES).SetText(MessageText(MSG_SAVING_INSTANCES, WithoutAccessKey(program)).Text());
  Item(IDC_SAVING_ADD_IN).SetText(MessageText(MSG_SAVING_ADD_IN, program).Text());
  for (const int edit : {IDC_SAVING_FOLDER, IDC_SAVING_FILE, IDC_SAVING_SUFFIX}) Item(edit).ReadLeftToRight();
  if (tiffVariant) {
    Item(IDC_SAVING_SUFFIX).Show(false);
    Item(IDC_SAVING_SUFFIX_CHECK).SetText(MessageText(MSG_SAVING_TIFF_PAGES).Text());
  }
  return CTrackedPage::OnInitDialog();
}

void CProgramPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsSaving() && !ValidateTargetFields(exchange)) return;
  ExchangeChoices(exchange);
  exchange.Text(IDC_SAVING_FOLDER, destinationDirectory, kFolderLimit);
  exchange.Text(IDC_SAVING_FILE, destinationFile, kFileLimit);
  exchange.Text(IDC_SAVING_SUFFIX, suffix, kSuffixLimit);
  ExchangeSuffixCheck(exchange);
  if (exchange.IsSaving()) SaveScope();
  if (!exchange.IsLoading()) return;
  LoadScope();
  UpdateControls();
}

void CProgramPage::ExchangeChoices(CDataExchange& exchange) {
  if (exchange.IsSaving()) {
    saveAction = ChosenValue(exchange, *this, IDC_SAVING_TYPE, kTypes);
    saveAction |= ChosenValue(exchange, *this, IDC_SAVING_LOCATION, kLocations);
    fileExistsAction = ChosenValue(exchange, *this, IDC_SAVING_FILE_EXISTS, kFileExistsActions);
    return;
  }
  uint16_t type = saveAction & kTypeMask;
  uint16_t location = saveAction & kLocationMask;
  exchange.Choice(IDC_SAVING_TYPE, kTypes, type);
  exchange.Choice(IDC_SAVING_LOCATION, kLocations, location);
  exchange.Choice(IDC_SAVING_FILE_EXISTS, kFileExistsActions, fileExistsAction);
}

void CProgramPage::ExchangeSuffixCheck(CDataExchange& exchange) {
  if (tiffVariant)
    exchange.Check(IDC_SAVING_SUFFIX_CHECK, tiffSinglePage);
  else
    exchange.Check(IDC_SAVING_SUFFIX_CHECK, suffixEnabled);
}

void CProgramPage::LoadScope() {
  SelectApplications(registryDevmode & kAllApplications);
  CButton(Item(IDC_SAVING_INSTANCES)).SetCheck(registryDevmode & kAllInstances);
  CButton(Item(IDC_SAVING_STORE)).SetCheck(applicationDevmodeStartup == kStorePermanently);
  CButton(Item(IDC_SAVING_FROM_PRINTER)).SetCheck(applicationDevmodeStartup == kFromPrinterSetup);
}

void CProgramPage::SaveScope() {
  registryDevmode = 0;
  if (IsChecked(IDC_SAVING_INSTANCES)) registryDevmode |= kAllInstances;
  if (IsChecked(IDC_SAVING_ALL_APPLICATIONS)) registryDevmode |= kAllApplications;
  // Any other value of the host stays.
  if (IsChecked(IDC_SAVING_STORE))
    applicationDevmodeStartup = kStorePermanently;
  else if (IsChecked(IDC_SAVING_FROM_PRINTER))
    applicationDevmodeStartup = kFromPrinterSetup;
}

void CProgramPage::SelectApplications(bool all) {
  CButton(Item(IDC_SAVING_ALL_APPLICATIONS)).SetCheck(all);
  CButton(Item(IDC_SAVING_THIS_APPLICATION)).SetCheck(!all);
}

// Contents are looked at whether or not they can be edited: they are stored all the same.
bool CProgramPage::ValidateTargetFields(CDataExchange& exchange) {
  if (IsMissing(IDC_SAVING_FOLDER)) return Refuse(exchange, IDC_SAVING_FOLDER, MSG_SAVING_INVALID_FOLDER);
  if (IsMissing(IDC_SAVING_FILE)) return Refuse(exchange, IDC_SAVING_FILE, MSG_SAVING_INVALID_FILE);
  const auto isValid = [this](int edit, PathTextRule rule) {
    return IsValidPathText(Item(edit).Text().Left(kCheckedCharacters), rule);
  };
  if (!isValid(IDC_SAVING_FILE, PathTextRule::Strict))
    return Refuse(exchange, IDC_SAVING_FILE, MSG_SAVING_INVALID_FILE);
  if (!isValid(IDC_SAVING_SUFFIX, PathTextRule::Lenient))
    return Refuse(exchange, IDC_SAVING_SUFFIX, MSG_SAVING_INVALID_FILE);
  if (!isValid(IDC_SAVING_FOLDER, PathTextRule::Lenient))
    return Refuse(exchange, IDC_SAVING_FOLDER, MSG_SAVING_INVALID_FOLDER);
  return true;
}

bool CProgramPage::Refuse(CDataExchange& exchange, int control, uint32_t messageId) {
  Tell(messageId, MB_OK | MB_ICONEXCLAMATION);
  exchange.Fail(control);
  return false;
}

void CProgramPage::OnTargetChanged() {
  const bool fixedName = SelectedValue(CComboBox(Item(IDC_SAVING_TYPE)), kTypes) == kPredefinedName;
  const bool fixedFolder = SelectedValue(CComboBox(Item(IDC_SAVING_LOCATION)), kLocations) == kPredefinedFolder;
  EnableControls({IDC_SAVING_FOLDER, IDC_SAVING_FOLDER_LABEL}, fixedFolder);
  EnableControls({IDC_SAVING_FILE, IDC_SAVING_FILE_LABEL}, fixedName);
  Item(IDC_SAVING_BROWSE).Enable(fixedName || fixedFolder);
  ApplyOverrides();
}

// The dialogs can end the page.
void CProgramPage::OnBrowse() {
  const CActivationScope look;
  if (Item(IDC_SAVING_FILE).IsEnabled())
    BrowseForFile();
  else
    BrowseForFolder();
}

void CProgramPage::BrowseForFile() {
  const auto chosen =
      AskForFileToSave(Handle(), {.filter = MessageText(MSG_SAVING_FILTER_PDF) + MessageText(MSG_SAVING_FILTER_ALL),
                                  .flags = OFN_PATHMUSTEXIST,
                                  .pathRoom = kChosenPathRoom,
                                  .startName = Item(IDC_SAVING_FILE).Text().Left(kFileLimit),
                                  .startFolder = Item(IDC_SAVING_FOLDER).Text().Left(kFolderLimit),
                                  .defaultExtension = L"pdf"});
  if (!chosen) return;
  const auto target = SplitChosenFile(chosen->path, chosen->title);
  if (!target) return;
  Item(IDC_SAVING_FOLDER).SetText(target->directory.Text());
  Item(IDC_SAVING_FILE).SetText(target->file.Text());
}

void CProgramPage::BrowseForFolder() {
  CBrowseForFolder picker(Handle());
  picker.SetTitle(GetMsgBoxTitle().Text());
  if (!picker.SelectFolder()) return;
  Item(IDC_SAVING_FOLDER).SetText(picker.GetFolder().Text());
  Item(IDC_SAVING_FILE).SetText(L"");
}

void CProgramPage::OnInstancesClicked() {
  const bool single = !IsChecked(IDC_SAVING_INSTANCES);
  SelectApplications((single && (internalUse & kNotByApplication)) || (registryDevmode & kAllApplications));
  UpdateSettingsScope();
}

void CProgramPage::OnSuffixClicked() { Item(IDC_SAVING_SUFFIX).Enable(IsChecked(IDC_SAVING_SUFFIX_CHECK)); }

void CProgramPage::UpdateControls() {
  if (globalTab) EnableAll(true);
  OnTargetChanged();
  UpdateSettingsScope();
  OnSuffixClicked();
  // The added characters have a meaning for e.pdf documents only.
  Lock(!saveFormatEPdfEnabled, {IDC_SAVING_SUFFIX_CHECK, IDC_SAVING_SUFFIX});
  Lock(printOutput & kHostHandlesOutput,
       {IDC_SAVING_TYPE, IDC_SAVING_LOCATION, IDC_SAVING_FOLDER_LABEL, IDC_SAVING_FOLDER, IDC_SAVING_FILE_LABEL,
        IDC_SAVING_FILE, IDC_SAVING_BROWSE, IDC_SAVING_FILE_EXISTS_LABEL, IDC_SAVING_FILE_EXISTS,
        IDC_SAVING_SUFFIX_CHECK, IDC_SAVING_SUFFIX});
  if (!globalTab) EnableAll(false);
  UpdateSettingsVisibility();
  ApplyOverrides();
}

void CProgramPage::UpdateSettingsScope() {
  const CButton instances(Item(IDC_SAVING_INSTANCES));
  if (!instances.IsWindow()) return;  // a template may lack the group
  const bool unlocked = !(internalUse & kScopeLocked);
  const bool single = !instances.IsChecked();
  Item(IDC_SAVING_ALL_APPLICATIONS).Enable(unlocked && single);
  Item(IDC_SAVING_THIS_APPLICATION).Enable(unlocked && single && !(internalUse & kNotByApplication));
  instances.Enable(unlocked);
  Item(IDC_SAVING_ALL_APPLICATIONS)
      .SetText(MessageText(single ? MSG_SAVING_ALL_APPLICATIONS : MSG_SAVING_ALL_OTHER_APPLICATIONS).Text());
}

void CProgramPage::UpdateSettingsVisibility() {
  if (!Item(IDC_SAVING_ALL_APPLICATIONS).IsWindow()) return;
  const bool fromAddIn = applicationDevmodeStartup != 0;
  Item(IDC_SAVING_INSTANCES).Show(!fromAddIn && !(internalUse & kInstancesHidden));
  ShowControls({IDC_SAVING_ADD_IN, IDC_SAVING_STORE, IDC_SAVING_FROM_PRINTER}, fromAddIn);
}

void CProgramPage::ApplyOverrides() {
  Lock(saveActionOverride.IsSet(), {IDC_SAVING_TYPE, IDC_SAVING_LOCATION});
  Lock(fileExistsActionOverride.IsSet(), {IDC_SAVING_FILE_EXISTS});
  Lock(settingsOverride.IsSet(), {IDC_SAVING_ALL_APPLICATIONS, IDC_SAVING_THIS_APPLICATION, IDC_SAVING_INSTANCES});
  Lock(destinationOverride.IsSet(), {IDC_SAVING_BROWSE, IDC_SAVING_FOLDER, IDC_SAVING_FILE});
}
