#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "ui/SettingsCatalogue.h"

namespace {

// The interface as hosts know it, written out a second time on purpose: a name, a type or a place that changes in the
// catalogue breaks hosts, and must break this test first. "L" number, "S" text.
struct ExpectedSetting {
  const wchar_t* name;
  char type;
};

constexpr ExpectedSetting kExpectedGeneral[] = {
    {L"HwndParent", 'L'},   {L"SheetTitle", 'S'},  {L"MsgBoxTitle", 'S'},
    {L"HelpFilename", 'S'}, {L"PrinterName", 'S'}, {L"PasswordVisible", 'L'},
};

constexpr ExpectedSetting kExpectedSettings[] = {
    {L"Used", 'L'},
    {L"PrintOutput", 'L'},
    {L"Fields", 'L'},
    {L"Orientation", 'L'},
    {L"PaperSize", 'L'},
    {L"PaperLength", 'L'},
    {L"PaperWidth", 'L'},
    {L"Scale", 'L'},
    {L"Duplex", 'L'},
    {L"PaperSource", 'L'},
    {L"PaperDestination", 'L'},
    {L"PaperScaleWidth", 'L'},
    {L"PaperScaleHeight", 'L'},
    {L"PaperMarginCenter", 'L'},
    {L"PaperMarginLeft", 'L'},
    {L"PaperMarginTop", 'L'},
    {L"PaperBorder", 'L'},
    {L"WatermarkEnabled", 'L'},
    {L"WatermarkAsBackground", 'L'},
    {L"WatermarkFilename", 'S'},
    {L"UseHyperlinkRecognition", 'L'},
    {L"HyperlinkBorder", 'L'},
    {L"HyperlinkBorderWidth", 'L'},
    {L"HyperlinkBorderColor", 'L'},
    {L"OutlineStylesEnabled", 'L'},
    {L"OutlineStyles", 'S'},
    {L"OutlineFormats", 'S'},
    {L"OutlineStyleNames", 'S'},
    {L"FontsEmbedded", 'L'},
    {L"FontsIsEmbeddedOrNoEmbeddedList", 'L'},
    {L"FontsEmbeddedOrNoEmbeddedList", 'S'},
    {L"EmbedFilenamesEnabled", 'L'},
    {L"EmbedFilenames", 'S'},
    {L"EmbedfilenamesConfirmed", 'L'},
    {L"EmbedfilenamesOpen", 'L'},
    {L"ZUGFeRD", 'L'},
    {L"ZUGFeRDXml", 'S'},
    {L"ZUGFeRDDeleteAfterEmbedding", 'L'},
    {L"ZUGFeRDMarkedContent", 'S'},
    {L"ZUGFeRDShowAfterCreation", 'L'},
    {L"ZUGFeRDCreationMethod", 'L'},
    {L"EncryptPasswordsConfirmed", 'L'},
    {L"EncryptUserPasswordEnabled", 'L'},
    {L"EncryptUserPassword", 'S'},
    {L"EncryptOwnerPasswordEnabled", 'L'},
    {L"EncryptOwnerPassword", 'S'},
    {L"UseEncryptEnhancedPdfPassword", 'L'},
    {L"EncryptEnhancedPdfPassword", 'S'},
    {L"PdfVersion", 'L'},
    {L"EncryptEnablePrinting", 'L'},
    {L"EncryptEnableModifying", 'L'},
    {L"EncryptEnableNotes", 'L'},
    {L"EncryptEnableClipboard", 'L'},
    {L"EncryptEnableForms", 'L'},
    {L"EncryptEnableAssembling", 'L'},
    {L"EncryptEnableExtract", 'L'},
    {L"OpenLayout", 'L'},
    {L"OpenSize", 'L'},
    {L"OpenPageIndex", 'L'},
    {L"OpenMode", 'L'},
    {L"NonFullScreenPageMode", 'L'},
    {L"Direction", 'L'},
    {L"HideToolbar", 'L'},
    {L"HideMenubar", 'L'},
    {L"CenterWindow", 'L'},
    {L"FitWindow", 'L'},
    {L"DisplayDocTitle", 'L'},
    {L"HideWindowUI", 'L'},
    {L"StartAction", 'L'},
    {L"MailSendImmediate", 'L'},
    {L"StartProgram", 'S'},
    {L"StartProgramParameters", 'S'},
    {L"MailRecipient", 'S'},
    {L"MailSubject", 'S'},
    {L"MailNotetext", 'S'},
    {L"GraphicCompressMethod", 'L'},
    {L"GraphicJpegQuality", 'L'},
    {L"GraphicResolution", 'L'},
    {L"GraphicColorReduction", 'L'},
    {L"EnhancedPdfReplacements", 'L'},
    {L"GraphicNotUseRedundancyOptimization", 'L'},
    {L"GraphicRedundancyOptimizationMaxSize", 'L'},
    {L"SaveFormatEPdfEnabled", 'L'},
    {L"SaveFormat", 'L'},
    {L"SaveConversionEnabled", 'L'},
    {L"SaveConversion", 'L'},
    {L"SaveAction", 'L'},
    {L"FileExistsAction", 'L'},
    {L"DestinationDirectoryOrFilename", 'S'},
    {L"DestinationFilenameSuffixEnabled", 'L'},
    {L"DestinationFilenameSuffix", 'S'},
    {L"RegistryDevmode", 'L'},
    {L"InternalUse", 'L'},
    {L"ApplicationDevmodeStartup", 'L'},
    {L"FormFieldsEnabled", 'L'},
    {L"ShowFormfields", 'L'},
    {L"FormfieldUseAutoTextHeight", 'L'},
    {L"FormfieldUseDefaultTextWidth", 'L'},
    {L"FormfieldUseDefaultTextMaxChars", 'L'},
    {L"FormfieldUseInternalCharCount", 'L'},
    {L"FormfieldUseInternalCharCountMaxChars", 'L'},
    {L"FormfieldInternalCharCount", 'L'},
    {L"FormfieldUseTextfieldBorder", 'L'},
    {L"FormfieldTextfieldBorderColor", 'L'},
    {L"FormfieldUseTextfieldBackColor", 'L'},
    {L"FormfieldTextfieldBackColor", 'L'},
    {L"FormfieldUseCheckboxBorder", 'L'},
    {L"FormfieldCheckboxBorderColor", 'L'},
    {L"FormfieldUseCheckboxBackColor", 'L'},
    {L"FormfieldCheckboxBackColor", 'L'},
    {L"FormfieldUseDropdownBorder", 'L'},
    {L"FormfieldDropdownBorderColor", 'L'},
    {L"FormfieldUseDropdownBackColor", 'L'},
    {L"FormfieldDropdownBackColor", 'L'},
    {L"StationeryEnabled", 'L'},
    {L"StationerySelected", 'L'},
    {L"StationeryInfos", 'S'},
    {L"StationeryAsForeground", 'L'},
    {L"Colorspace", 'L'},
    {L"Title", 'S'},
    {L"Author", 'S'},
    {L"Subject", 'S'},
    {L"Keywords", 'S'},
};

template <size_t actualCount, size_t expectedCount>
void ExpectRows(const SettingInfo (&actual)[actualCount], const ExpectedSetting (&expected)[expectedCount]) {
  ASSERT_EQ(expectedCount, actualCount);
  for (size_t i = 0; i < expectedCount; ++i) {
    const std::string narrow(expected[i].name, expected[i].name + std::wstring(expected[i].name).size());
    EXPECT_EQ(std::wstring(expected[i].name), std::wstring(actual[i].name)) << "row " << i + 1;
    EXPECT_EQ(expected[i].type, actual[i].kind == SettingKind::Long ? 'L' : 'S') << narrow;
  }
}

int CountOf(SettingKind kind) {
  return static_cast<int>(
      std::count_if(std::begin(kSettings), std::end(kSettings), [kind](const auto& row) { return row.kind == kind; }));
}

TEST(Catalogue, HasTheGeneralPropertiesInOrder) { ExpectRows(kGeneralProperties, kExpectedGeneral); }

TEST(Catalogue, HasTheSettingsInOrderOfRegistration) { ExpectRows(kSettings, kExpectedSettings); }

TEST(Catalogue, HasHundredNumbersAndTwentyThreeTexts) {
  EXPECT_EQ(6u, kGeneralPropertyCount);
  EXPECT_EQ(123u, kSettingCount);
  EXPECT_EQ(100, CountOf(SettingKind::Long));
  EXPECT_EQ(23, CountOf(SettingKind::Text) + CountOf(SettingKind::Secret));
}

TEST(Catalogue, NamesNoSettingTwice) {
  std::set<std::wstring_view> names;
  for (const auto& row : kSettings) EXPECT_TRUE(names.insert(row.name).second);
  for (const auto& row : kGeneralProperties) EXPECT_TRUE(names.insert(row.name).second);
}

TEST(Catalogue, KnowsWhichTextsHoldPasswords) {
  std::set<std::wstring_view> secrets;
  for (const auto& row : kSettings)
    if (row.kind == SettingKind::Secret) secrets.insert(row.name);
  EXPECT_EQ((std::set<std::wstring_view>{L"EncryptUserPassword", L"EncryptOwnerPassword", L"EncryptEnhancedPdfPassword",
                                         L"StationeryInfos"}),
            secrets);
}

TEST(Catalogue, ExplainsEverySetting) {
  for (const auto& row : kSettings) {
    EXPECT_GT(row.meaning.size(), 8u);
    EXPECT_EQ('.', row.meaning.back());
    EXPECT_EQ(std::string_view::npos, row.meaning.find('|')) << "a bar ends a column of the table: " << row.meaning;
    EXPECT_NE(SettingPage::General, row.page);
  }
  for (const auto& row : kGeneralProperties) EXPECT_EQ(SettingPage::General, row.page);
}

}  // namespace
