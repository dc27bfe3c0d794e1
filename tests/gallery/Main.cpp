// nempdf_gallery DIRECTORY
//
// Writes pictures of all pages of both tabs in all languages to the directory, with the values of the host's sample,
// the lists of pages with entries and the dialogs of these, one of the cockpit with something changed in each of its
// rows, and one of the version dialog. Each language needs a process of its own, since the library takes up its
// language when it is loaded: the program starts itself again as "nempdf_gallery DIRECTORY LANGUAGE".
#include <windows.h>
// behind windows.h
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>

#include "driver/Gallery.h"
#include "driver/RowDialogs.h"
#include "driver/SelfProcess.h"
#include "driver/SheetDriver.h"
#include "driver/Text.h"
#include "host/SettingsFile.h"
#include "NemPdfUI.h"
#include "support/RegistryValue.h"

namespace {

constexpr int kTimeoutSeconds = 180;

const struct {
  const wchar_t* name;
  const wchar_t* id;  // as the product's registry value holds it
} kLanguages[] = {{L"en", L"1033"}, {L"de", L"1031"}, {L"fr", L"1036"}, {L"ar", L"1025"}};

// All settings of the sample; false after saying what is wrong.
bool FillDialog(NemPdfUIHandle dialog) {
  std::ifstream file(NEMPDF_SOURCE_DIR "/host/sample.ini", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  host::Settings settings;
  if (bytes.empty() || !host::ParseSettings(bytes, settings).empty()) {
    std::fprintf(stderr, "The sample settings cannot be read.\n");
    return false;
  }
  host::Assign(settings, NEMPDFUI_DOCUMENT, L"Used", {.number = 1});
  for (const host::Setting& setting : settings) {
    const void* value = setting.value.text.c_str();
    if (setting.IsNumber()) value = &setting.value.number;
    if (NemPdfUISetPropertyW(dialog, setting.set, setting.info->name, value) != 1) return false;
  }
  return true;
}

// Pages with a list get entries.
bool FillLists(NemPdfUIHandle dialog) {
  for (const auto& [property, text] : FilledLists())
    if (NemPdfUISetPropertyW(dialog, 0, property, text) != 1) return false;
  const int32_t on = 1;
  for (const wchar_t* property : FilledListSwitches())
    if (NemPdfUISetPropertyW(dialog, 0, property, &on) != 1) return false;
  return true;
}

// Marks all rows of the cockpit.
bool ChangeAllCategories(NemPdfUIHandle dialog) {
  constexpr struct {
    const wchar_t* name;
    int32_t value;
  } kChanges[] = {
      {L"GraphicJpegQuality", 60},
      {L"Orientation", 2},
      {L"PaperScaleWidth", 50},
      {L"PaperMarginCenter", 0},
      {L"OpenLayout", 1},
      {L"HideToolbar", 1},
      {L"FontsEmbedded", 1},
      {L"WatermarkEnabled", 1},
      {L"StationeryEnabled", 1},
      {L"UseHyperlinkRecognition", 0},
      {L"EmbedFilenamesEnabled", 1},
      {L"OutlineStylesEnabled", 1},
      {L"FileExistsAction", 1},
      {L"PdfVersion", 17},
      {L"SaveConversion", 1},
      {L"StartAction", 2 | 4},
      {L"Colorspace", 1},
      {L"ZUGFeRD", 1},
      {L"ShowFormfields", 1},
      {L"FormfieldUseTextfieldBorder", 1},
      {L"FormfieldUseCheckboxBorder", 0},
      {L"FormfieldUseDropdownBorder", 1},
      {L"EncryptOwnerPasswordEnabled", 1},
      {L"EncryptUserPasswordEnabled", 1},
  };
  for (const auto& [name, value] : kChanges)
    if (NemPdfUISetPropertyW(dialog, 0, name, &value) != 1) return false;
  return NemPdfUISetPropertyW(dialog, 0, L"Title", L"Invoice") == 1;
}

int WriteLanguage(const std::wstring& directory, const std::wstring& language) {
  SetProcessDPIAware();
  NemPdfUIHandle dialog = nullptr;
  if (NemPdfUICreateDialog(&dialog) != 1 || !dialog || !FillDialog(dialog)) return 1;
  GalleryResult gallery;
  const auto run = [&](const auto& write) {
    SheetDriver(kTimeoutSeconds)
        .Run([dialog] { return NemPdfUIDoModal(dialog); },
             [&](Sheet& sheet) -> SheetTask {
               co_await write(sheet, directory, language, gallery);
               sheet.PressCancel();
             });
  };
  run(WriteGallery);
  EXPECT_TRUE(FillLists(dialog));
  run(WriteRowDialogs);
  EXPECT_TRUE(ChangeAllCategories(dialog));
  run(WriteCockpit);
  NemPdfUIFreeDialog(&dialog);
  SheetDriver(kTimeoutSeconds)
      .Run([] { return NemPdfUIShowVersion(); },
           [&](Sheet& version) -> SheetTask {
             co_await version.Settled();
             WriteDialogPicture(version, directory, language, L"version", gallery);
             version.PressOk();
           });

  std::printf("%s: %zu pictures", ToUtf8(language).c_str(), gallery.written.size());
  for (size_t i = 0; i < gallery.missing.size(); ++i)
    std::printf("%s%s", i == 0 ? "; no page for " : ", ", gallery.missing[i].c_str());
  std::printf("\n");
  return testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() || gallery.written.empty();
}

int WriteAll(const std::wstring& directory) {
  int failures = 0;
  // The sample's paper is the default one then, whatever the country of this machine: the cockpit is empty.
  RegistryValue country(HKEY_CURRENT_USER, L"Control Panel\\International", L"iCountry");
  country.Set(L"49");
  for (const auto& [name, id] : kLanguages) {
    ProductValue language(HKEY_CURRENT_USER, L"LanguageID");
    language.Set(id);
    ProductValue schedule(HKEY_CURRENT_USER, L"UpdateType");  // stored whenever the update page is left
    const ProcessResult child = RunSelf(L"\"" + directory + L"\" " + name);
    std::printf("%s", child.output.c_str());
    std::fflush(stdout);
    failures += child.exitCode != 0;
  }
  return failures == 0 ? 0 : 1;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc < 2) {
    std::fprintf(stderr, "nempdf_gallery DIRECTORY\n");
    return 2;
  }
  wchar_t directory[MAX_PATH] = L"";
  GetFullPathNameW(argv[1], MAX_PATH, directory, nullptr);
  CreateDirectoryW(directory, nullptr);
  return argc > 2 ? WriteLanguage(directory, argv[2]) : WriteAll(directory);
}
