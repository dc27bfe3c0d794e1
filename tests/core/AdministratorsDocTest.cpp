// The list of keys in docs/administrators.md is made from the key table, the ranges and the catalogue of settings. This
// test renders it and compares; with the environment variable NEMPDF_UPDATE_DOCS set it writes the list anew. The
// examples of the document are checked by the host's own check of such files.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "environment/AdminValidation.h"
#include "host/ConfCheck.h"
#include "host/Text.h"
#include "support/SourceDocument.h"
#include "support/TempFile.h"
#include "ui/SettingsCatalogue.h"

namespace {

constexpr char kKnownOnly[] = "nothing: the dialog reads the key and shows it nowhere";
constexpr char kCheckBox[] = "its check box";
constexpr char kField[] = "its field";

// What the table of keys cannot say. The meaning of a value is that of the property of the same name; a row that names
// none of its own has one.
struct KeyNote {
  const wchar_t* key;
  const char* locks;
  const char* values = nullptr;  // instead of the property's meaning
  const wchar_t* property = nullptr;
};

struct Chapter {
  const char* title;
  std::vector<KeyNote> notes;
};

const std::vector<Chapter> kChapters = {
    {"Graphical Optimization",
     {{L"GraphicResolution_Override", "the resolution with its bar, and the choice by file size"},
      {L"GraphicJpegQuality_Override", "the quality with its bar, and the choice by file size"},
      {L"GraphicCompressMethod_Override", "the compression, and the choice by file size"},
      {L"GraphicColorReduction_Override", "the colour depth, and the choice by file size"}}},
    {"Watermark",
     {{L"WatermarkEnabled_Override", kCheckBox},
      {L"WatermarkAsBackground_Override", kCheckBox},
      {L"WatermarkFilename_Override", "the file name and its button"},
      {L"StationeryEnabled_Override", kCheckBox},
      {L"StationerySelected_Override",
       "the list of stationery with its buttons, if `StationeryInfos_Override` is set too"},
      {L"StationeryInfos_Override", "the same, if `StationerySelected_Override` is set too"},
      {L"StationeryAsForeground_Override", kCheckBox}}},
    {"Colorspace", {{L"Colorspace_Override", "both choices"}}},
    {"ZUGFeRD invoice",
     {{L"ZUGFeRD_Override", "with the value 1 the check box, both methods and the deletion; the value 0 locks nothing"},
      {L"ZUGFeRDCreationMethod_Override", "no control; \"Restore defaults\" leaves the method alone"},
      {L"ZUGFeRDDeleteAfterEmbedding_Override", "no control; \"Restore defaults\" leaves the deletion alone"},
      {L"ZUGFeRDXml_Override",
       "no control; the page shows this file instead of the host's and gives it back to the host"}}},
    {"Fonts",
     {{L"FontsEmbedded_Override", "the four choices"},
      {L"FontsIsEmbeddedOrNoEmbeddedList_Override",
       "both lists with their buttons, if `FontsEmbeddedOrNoEmbeddedList_Override` is set too"},
      {L"FontsEmbeddedOrNoEmbeddedList_Override",
       "the same, if `FontsIsEmbeddedOrNoEmbeddedList_Override` is set too"}}},
    {"PDF-Security",
     {{L"EncryptOwnerPasswordEnabled_Override", kCheckBox},
      {L"EncryptOwnerPassword_Override", kField},
      {L"EncryptUserPasswordEnabled_Override", kCheckBox},
      {L"EncryptUserPassword_Override", kField},
      {L"EncryptPasswordsConfirmed_Override", kCheckBox},
      {L"EncryptEnablePrinting_Override", kCheckBox},
      {L"EncryptEnableModifying_Override", kCheckBox},
      {L"EncryptEnableNotes_Override", kCheckBox},
      {L"EncryptEnableClipboard_Override", kCheckBox},
      {L"EncryptEnableForms_Override", kCheckBox},
      {L"EncryptEnableAssembling_Override", kCheckBox},
      {L"EncryptEnableExtract_Override", kCheckBox}}},
    {"Output format",
     {{L"PdfVersion_Override", "the list of versions"}, {L"PdfAEnabled_Override", kKnownOnly, "PDF/A on or off."}}},
    {"Document Info",
     {{L"Title_Override", kField},
      {L"Author_Override", kField},
      {L"Subject_Override", kField},
      {L"Keywords_Override", kField}}},
    {"Actions",
     {{L"StartActionViewerCheck_Override", kCheckBox, "1 opens the document in the default viewer."},
      {L"StartActionProgramCheck_Override", "its check box and the program's fields",
       "1 starts a program with the document."},
      {L"StartActionProgram_Override", "its field and its button", nullptr, L"StartProgram"},
      {L"StartActionProgramParameters_Override", kField, nullptr, L"StartProgramParameters"},
      {L"StartActionProgramBeforeCheck_Override", kKnownOnly, "1 starts a program before the conversion."},
      {L"StartActionProgramBefore_Override", kKnownOnly, "That program."},
      {L"StartActionProgramParametersBefore_Override", kKnownOnly, "Its parameters."}}},
    {"E-Mail",
     {{L"StartActionMailCheck_Override", kCheckBox, "1 sends the document by mail."},
      {L"MailRecipient_Override", kField},
      {L"MailSubject_Override", kField},
      {L"MailNoteText_Override", kField, nullptr, L"MailNotetext"},
      {L"MailSendImmediate_Override", kCheckBox}}},
    {"Saving",
     {{L"SaveAction_Override", "the choices of name and folder",
       "How the document is saved, the sum of two values. Name: 8 always ask, 16 document name, 24 predefined name. "
       "Folder: 128 current, 192 last, 256 home, 384 desktop, 320 predefined."},
      {L"DestinationDirectoryOrFilename_Override", "folder, name and their button"},
      {L"FileExistsAction_Override", "the list"},
      {L"Settings_Override", "the choice of who shares the settings",
       "Who shares the settings. Any of the values locks the choice."}}},
    {"Update",
     {{L"UpdateType_Override", "the schedule",
       "Bit set: 1 search only manually, 2 do not download, 8 install automatically, 16 beta versions too."},
      {L"DisableManualUpdate", "with the value 1 the button that searches now; the value 0 locks nothing",
       "1 forbids to search for an update by hand."}}},
    {"On no page",
     {{L"TiffResolution_Override", kKnownOnly, "TIFF output: resolution."},
      {L"TiffCompressMethod_Override", kKnownOnly, "TIFF output: compression."},
      {L"TiffColorDepth_Override", kKnownOnly, "TIFF output: colour depth."},
      {L"TiffJpegQuality_Override", kKnownOnly, "TIFF output: JPEG quality."},
      {L"TiffStripSize_Override", kKnownOnly, "TIFF output: size of the strips."},
      {L"TiffSinglePage_Override", kKnownOnly, "TIFF output: a file for each page."},
      {L"ComparableMode_Override", kKnownOnly, "Comparable output."},
      {L"FontsAntialiasing_Override", kKnownOnly, "Smoothing of fonts."}}},
};

std::string Narrow(std::wstring_view text) { return {text.begin(), text.end()}; }

const AdminKey* FindKey(std::wstring_view key) {
  for (const AdminKey* entry = kAdminKeys; entry->key; ++entry)
    if (std::wstring_view(entry->key) == key) return entry;
  return nullptr;
}

const SettingInfo* FindProperty(const KeyNote& note) {
  std::wstring_view name = note.property ? note.property : note.key;
  constexpr std::wstring_view kEnding = L"_Override";
  if (name.ends_with(kEnding)) name.remove_suffix(kEnding.size());
  const auto found = std::find_if(std::begin(kSettings), std::end(kSettings),
                                  [name](const SettingInfo& setting) { return setting.name == name; });
  return found == std::end(kSettings) ? nullptr : &*found;
}

std::string TypeName(AdminEntry type) {
  return type == AdminEntry::Boolean ? "0 or 1" : type == AdminEntry::Number ? "number" : "text";
}

std::string Range(const AdminKey& entry) {
  if (entry.type != AdminEntry::Number) return {};
  for (const AdminRange& range : kAdminRanges) {
    if (range.field != entry.field.number) continue;
    const std::string least = std::to_string(std::max(range.least, 0));
    return range.greatest == kNoLimitAbove ? ", " + least + " and more"
                                           : ", " + least + " to " + std::to_string(range.greatest);
  }
  return {};
}

std::string Row(const KeyNote& note) {
  const AdminKey* entry = FindKey(note.key);
  const SettingInfo* property = note.values ? nullptr : FindProperty(note);
  if (!entry || (!note.values && !property)) return "MISSING: " + Narrow(note.key) + "\n";
  const std::string meaning = note.values ? note.values : std::string(property->meaning);
  return "| `" + Narrow(note.key) + "` | " + TypeName(entry->type) + Range(*entry) + " | " + meaning + " | " +
         note.locks + " |\n";
}

constexpr char kBegin[] = "<!-- keys: generated by tests/core/AdministratorsDocTest.cpp -->\n";
constexpr char kEnd[] = "<!-- end of keys -->\n";

std::string RenderKeys() {
  std::string text = kBegin;
  for (const Chapter& chapter : kChapters) {
    text +=
        "\n### " + std::string(chapter.title) + "\n\n| Key | Type | Meaning and values | Locks |\n|---|---|---|---|\n";
    for (const KeyNote& note : chapter.notes) text += Row(note);
  }
  return text + "\n";
}

const SourceDocument kDocument("docs/administrators.md");

// The content of each fenced block of this kind, in order.
std::vector<std::string> Blocks(const std::string& document, const std::string& kind) {
  std::vector<std::string> blocks;
  const std::string fence = "\n```" + kind + "\n";
  for (size_t begin = 0; (begin = document.find(fence, begin)) != document.npos;) {
    begin += fence.size();
    const size_t end = document.find("```\n", begin);
    blocks.push_back(document.substr(begin, end - begin));
    begin = end;
  }
  return blocks;
}

std::string Checked(const std::string& file) {
  TempFile temp("administrators_doc.conf");
  temp.Put(file);
  AdminSettings record;
  return host::EncodeUtf8(host::DescribeReport(L"NEMpdf.conf", host::CheckConfFile(temp.Name(), record)));
}

TEST(AdministratorsDocument, HasEveryKeyOnce) {
  for (const AdminKey* entry = kAdminKeys; entry->key; ++entry) {
    int count = 0;
    for (const Chapter& chapter : kChapters)
      count += static_cast<int>(std::count_if(chapter.notes.begin(), chapter.notes.end(), [entry](const KeyNote& note) {
        return std::wstring_view(note.key) == std::wstring_view(entry->key);
      }));
    EXPECT_EQ(1, count) << Narrow(entry->key);
  }
  for (const Chapter& chapter : kChapters)
    for (const KeyNote& note : chapter.notes) {
      EXPECT_NE(nullptr, FindKey(note.key)) << Narrow(note.key);
      EXPECT_TRUE(note.values || FindProperty(note)) << Narrow(note.key);
    }
}

TEST(AdministratorsDocument, ListsTheKeysAsTheyAre) {
  std::string document = kDocument.Text();
  const size_t begin = document.find(kBegin), end = document.find(kEnd);
  ASSERT_NE(document.npos, begin);
  ASSERT_NE(document.npos, end);
  ASSERT_LT(begin, end);
  const std::string keys = RenderKeys();
  const bool same = document.substr(begin, end - begin) == keys;
  document.replace(begin, end - begin, keys);
  EXPECT_TRUE(same || kDocument.Update(document)) << kDocument.Stale("the keys");
}

TEST(AdministratorsDocument, ItsSampleIsGood) {
  const std::vector<std::string> samples = Blocks(kDocument.Text(), "conf");
  ASSERT_EQ(2u, samples.size());
  const std::string checked = Checked(samples[0]);
  EXPECT_EQ(0u, checked.find("NEMpdf.conf: good, overrides set: ")) << checked;
}

TEST(AdministratorsDocument, ItsBadExampleHasTheFindingsThatItShows) {
  const std::string document = kDocument.Text();
  const std::vector<std::string> samples = Blocks(document, "conf"), outputs = Blocks(document, "text");
  ASSERT_EQ(2u, samples.size());
  ASSERT_EQ(1u, outputs.size());
  EXPECT_EQ("> NemPdfUIHost.exe --check-conf NEMpdf.conf\n" + Checked(samples[1]), outputs[0]);
}

}  // namespace
