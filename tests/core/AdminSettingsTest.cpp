#include "environment/AdminSettings.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

// The keys as administrators know them, written out a second time on purpose. "B" boolean, "T" text, "N" number.
struct ExpectedKey {
  const wchar_t* key;
  char type;
};

constexpr ExpectedKey kExpectedKeys[] = {
    {L"StartActionViewerCheck_Override", 'B'},
    {L"StartActionMailCheck_Override", 'B'},
    {L"MailRecipient_Override", 'T'},
    {L"MailSubject_Override", 'T'},
    {L"MailNoteText_Override", 'T'},
    {L"MailSendImmediate_Override", 'B'},
    {L"StartActionProgramCheck_Override", 'B'},
    {L"StartActionProgram_Override", 'T'},
    {L"StartActionProgramParameters_Override", 'T'},
    {L"StartActionProgramBeforeCheck_Override", 'B'},
    {L"StartActionProgramBefore_Override", 'T'},
    {L"StartActionProgramParametersBefore_Override", 'T'},
    {L"TiffResolution_Override", 'N'},
    {L"Author_Override", 'T'},
    {L"Subject_Override", 'T'},
    {L"Keywords_Override", 'T'},
    {L"Title_Override", 'T'},
    {L"WatermarkAsBackground_Override", 'B'},
    {L"WatermarkEnabled_Override", 'B'},
    {L"WatermarkFilename_Override", 'T'},
    {L"TiffCompressMethod_Override", 'N'},
    {L"TiffColorDepth_Override", 'N'},
    {L"TiffJpegQuality_Override", 'N'},
    {L"TiffStripSize_Override", 'N'},
    {L"FontsAntialiasing_Override", 'N'},
    {L"ComparableMode_Override", 'B'},
    {L"FontsAntialiasing_Override", 'N'},
    {L"SaveAction_Override", 'N'},
    {L"DestinationDirectoryOrFilename_Override", 'T'},
    {L"FileExistsAction_Override", 'N'},
    {L"TiffSinglePage_Override", 'B'},
    {L"Settings_Override", 'N'},
    {L"EncryptEnableAssembling_Override", 'B'},
    {L"EncryptEnableClipboard_Override", 'B'},
    {L"EncryptEnableExtract_Override", 'B'},
    {L"EncryptEnableForms_Override", 'B'},
    {L"EncryptEnableModifying_Override", 'B'},
    {L"EncryptEnableNotes_Override", 'B'},
    {L"EncryptEnablePrinting_Override", 'B'},
    {L"EncryptOwnerPassword_Override", 'T'},
    {L"EncryptUserPassword_Override", 'T'},
    {L"EncryptUserPasswordEnabled_Override", 'B'},
    {L"EncryptOwnerPasswordEnabled_Override", 'B'},
    {L"EncryptPasswordsConfirmed_Override", 'B'},
    {L"FontsEmbedded_Override", 'N'},
    {L"FontsIsEmbeddedOrNoEmbeddedList_Override", 'B'},
    {L"FontsEmbeddedOrNoEmbeddedList_Override", 'T'},
    {L"GraphicResolution_Override", 'N'},
    {L"GraphicJpegQuality_Override", 'N'},
    {L"GraphicCompressMethod_Override", 'N'},
    {L"GraphicColorReduction_Override", 'B'},
    {L"Colorspace_Override", 'N'},
    {L"PdfVersion_Override", 'N'},
    {L"PdfAEnabled_Override", 'B'},
    {L"StationeryEnabled_Override", 'B'},
    {L"StationeryInfos_Override", 'T'},
    {L"StationerySelected_Override", 'N'},
    {L"StationeryAsForeground_Override", 'B'},
    {L"UpdateType_Override", 'N'},
    {L"DisableManualUpdate", 'B'},
    {L"ZUGFeRD_Override", 'B'},
    {L"ZUGFeRDCreationMethod_Override", 'N'},
    {L"ZUGFeRDDeleteAfterEmbedding_Override", 'B'},
    {L"ZUGFeRDXml_Override", 'T'},
};

char TypeLetter(AdminEntry type) {
  switch (type) {
    case AdminEntry::Boolean:
      return 'B';
    case AdminEntry::Text:
      return 'T';
    case AdminEntry::Number:
      return 'N';
    default:
      return '?';
  }
}

size_t KeyCount() {
  size_t count = 0;
  while (kAdminKeys[count].key) ++count;
  return count;
}

// Where a row's field stands in the record, in bytes.
size_t Offset(const AdminSettings& record, const AdminKey& row) {
  const char* field = row.type == AdminEntry::Text ? reinterpret_cast<const char*>(&(record.*row.field.text))
                                                   : reinterpret_cast<const char*>(&(record.*row.field.number));
  return static_cast<size_t>(field - reinterpret_cast<const char*>(&record));
}

TEST(AdminSettings, KeyTableHasItsRowsInOrder) {
  ASSERT_EQ(std::size(kExpectedKeys), KeyCount());
  for (size_t i = 0; i < std::size(kExpectedKeys); ++i) {
    EXPECT_EQ(std::wstring(kExpectedKeys[i].key), kAdminKeys[i].key) << "row " << i + 1;
    EXPECT_EQ(kExpectedKeys[i].type, TypeLetter(kAdminKeys[i].type)) << "row " << i + 1;
  }
}

TEST(AdminSettings, KeyTableHasSixtyFourRowsAndAClosingOne) {
  EXPECT_EQ(64u, KeyCount());
  EXPECT_EQ(AdminEntry::End, kAdminKeys[64].type);
}

TEST(AdminSettings, EntryTypesHaveTheirNumbers) {
  EXPECT_EQ(1, static_cast<int>(AdminEntry::Boolean));
  EXPECT_EQ(2, static_cast<int>(AdminEntry::Text));
  EXPECT_EQ(3, static_cast<int>(AdminEntry::Number));
}

TEST(AdminSettings, RecordHasSixtyThreeFields) {
  const AdminSettings record;
  std::set<size_t> places;
  for (size_t i = 0; i < KeyCount(); ++i) places.insert(Offset(record, kAdminKeys[i]));
  EXPECT_EQ(63u, places.size());
  size_t fieldBytes = 0;
#define NEMPDF_ADD_FIELD(key, type) fieldBytes += sizeof(AdminSettings::key);
  NEMPDF_ADMIN_RECORD(NEMPDF_ADD_FIELD)
#undef NEMPDF_ADD_FIELD
  size_t tableBytes = 0;
  for (size_t i = 0; i < KeyCount(); ++i)
    if (std::wstring(kAdminKeys[i].key) != L"FontsAntialiasing_Override" || i == 24)
      tableBytes += kAdminKeys[i].type == AdminEntry::Text ? sizeof(CUString) : sizeof(int32_t);
  EXPECT_EQ(tableBytes, fieldBytes);  // no field without a key
}

TEST(AdminSettings, FontsAntialiasingStandsTwiceInTheTable) {
  const AdminSettings record;
  EXPECT_EQ(std::wstring(L"FontsAntialiasing_Override"), kAdminKeys[24].key);
  EXPECT_EQ(std::wstring(L"FontsAntialiasing_Override"), kAdminKeys[26].key);
  EXPECT_EQ(Offset(record, kAdminKeys[24]), Offset(record, kAdminKeys[26]));
}

TEST(AdminSettings, FieldsStandInTheOrderOfTheTableButForTwoExceptions) {
  const AdminSettings record;
  std::vector<std::wstring> order;
  for (const auto& row : kExpectedKeys) order.push_back(row.key);
  // Author, Title, Keywords, Subject instead of Author, Subject, Keywords, Title
  ASSERT_EQ(L"Author_Override", order[13]);
  std::swap(order[14], order[16]);
  // ComparableMode in front of FontsAntialiasing
  order.erase(order.begin() + 24);
  size_t previous = 0;
  for (size_t i = 0; i < order.size(); ++i) {
    size_t row = 0;
    while (order[i] != kAdminKeys[row].key) ++row;
    const size_t place = Offset(record, kAdminKeys[row]);
    EXPECT_TRUE(i == 0 || place > previous) << "field " << i + 1;
    previous = place;
  }
}

TEST(AdminSettings, EachKeyLeadsToTheFieldOfItsName) {
  AdminSettings record;
  size_t matched = 0;
#define NEMPDF_EXPECT_FIELD(name, entry)                                                                             \
  for (size_t i = 0; i < KeyCount(); ++i)                                                                            \
    if (std::wstring(kAdminKeys[i].key) == L## #name) {                                                              \
      ++matched;                                                                                                     \
      const auto* field = reinterpret_cast<const char*>(&record.name);                                               \
      EXPECT_EQ(static_cast<size_t>(field - reinterpret_cast<const char*>(&record)), Offset(record, kAdminKeys[i])); \
    }
  NEMPDF_ADMIN_RECORD(NEMPDF_EXPECT_FIELD)
#undef NEMPDF_EXPECT_FIELD
  EXPECT_EQ(64u, matched);
}

TEST(AdminSettings, StartsUnset) {
  const AdminSettings record;
  for (size_t i = 0; i < KeyCount(); ++i) {
    const AdminKey& row = kAdminKeys[i];
    switch (row.type) {
      case AdminEntry::Boolean:
        EXPECT_EQ(255, record.*row.field.number);
        break;
      case AdminEntry::Number:
        EXPECT_EQ(-1, record.*row.field.number);
        break;
      default:
        EXPECT_TRUE((record.*row.field.text).IsEmpty());
    }
  }
}

TEST(AdminSettings, KnowsWhatIsSet) {
  EXPECT_TRUE(IsSetBoolean(0));
  EXPECT_TRUE(IsSetBoolean(1));
  EXPECT_FALSE(IsSetBoolean(255));
  EXPECT_FALSE(IsSetBoolean(-1));  // a cleared ZUGFeRD group
  EXPECT_TRUE(IsSetNumber(0));
  EXPECT_TRUE(IsSetNumber(255));
  EXPECT_FALSE(IsSetNumber(-1));
  EXPECT_EQ(0xFFFFFFFFu, static_cast<uint32_t>(kUnsetNumber));
  EXPECT_FALSE(IsSetText(CUString()));
  EXPECT_TRUE(IsSetText(CUString(L" ")));
}

TEST(AdminSettings, IsCopiedAsAWhole) {
  AdminSettings record;
  record.PdfVersion_Override = 14;
  record.Author_Override.Assign(L"Acme");
  const AdminSettings copy = record;
  EXPECT_EQ(14, copy.PdfVersion_Override);
  EXPECT_TRUE(copy.Author_Override == L"Acme");
}

}  // namespace
