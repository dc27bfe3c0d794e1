#include "environment/ConfGrammar.h"

#include <gtest/gtest.h>

#include <string>

#include "support/PrintText.h"
#include "support/TracedThread.h"

namespace {

using Kind = ConfLineKind;

// What a line leaves in a text field that held something before.
CUString StoredText(std::string_view line) {
  AdminSettings record;
  record.Author_Override.Assign(L"before");
  StoreConfLine(ReadConfLine(line), record);
  return record.Author_Override;
}

int32_t StoredNumber(std::string_view value) {
  AdminSettings record;
  record.GraphicResolution_Override = 7;
  StoreConfLine(ReadConfLine("GraphicResolution_Override=" + std::string(value)), record);
  return record.GraphicResolution_Override;
}

int32_t StoredBoolean(std::string_view value) {
  AdminSettings record;
  record.StartActionMailCheck_Override = 7;
  StoreConfLine(ReadConfLine("StartActionMailCheck_Override=" + std::string(value)), record);
  return record.StartActionMailCheck_Override;
}

Kind KindOf(std::string_view line) { return ReadConfLine(line).kind; }

}  // namespace

TEST(ConfGrammar, TellsWhatALineIs) {
  const struct {
    const char* line;
    Kind kind;
  } rows[] = {
      {"", Kind::Empty},
      {" \t\v\f\r\n", Kind::Empty},
      {"# Author_Override = x", Kind::Comment},
      {"! Author_Override = x", Kind::Comment},
      {"[Author_Override = x", Kind::Comment},
      {"[Section]", Kind::Comment},
      {"  \t# indented", Kind::Comment},
      {"; Author_Override = x", Kind::UnknownKey},  // no comment here
      {"// no comment", Kind::NoEqualsSign},
      {"Author_Override", Kind::NoEqualsSign},
      {"Author_Override x", Kind::NoEqualsSign},
      {"x", Kind::NoEqualsSign},
      {"=", Kind::UnknownKey},
      {"= x", Kind::UnknownKey},
      {"Author = x", Kind::UnknownKey},
      {"author_override = x", Kind::UnknownKey},
      {"Author_Override2 = x", Kind::UnknownKey},
      {"Author_Overrid = x", Kind::UnknownKey},
      {"Author _Override = x", Kind::UnknownKey},
      {"Author_Override = x", Kind::Value},
      {"Author_Override=x", Kind::Value},
      {"\t Author_Override \t=\t x \r\n", Kind::Value},
      {"Author_Override = # x", Kind::Value},  // a value may look like a comment
      {"Author_Override =", Kind::NoValue},
      {"Author_Override = \t \n", Kind::NoValue},
      {"GraphicResolution_Override =", Kind::NoValue},
      {"StartActionMailCheck_Override =", Kind::NoValue},
      {"StartActionMailCheck_Override = yes", Kind::BadBoolean},
      {"GraphicResolution_Override = -1", Kind::NegativeNumber},
      {"DisableManualUpdate = 1", Kind::Value},
  };
  for (const auto& row : rows) EXPECT_EQ(row.kind, KindOf(row.line)) << row.line;
}

TEST(ConfGrammar, BadLinesAreThoseThatEndTheirFile) {
  for (const Kind bad : {Kind::NoEqualsSign, Kind::UnknownKey}) EXPECT_TRUE(IsBadLine(bad));
  for (const Kind good : {Kind::Empty, Kind::Comment, Kind::NoValue, Kind::Value, Kind::BadBoolean,
                          Kind::NegativeNumber, Kind::UnknownType})
    EXPECT_FALSE(IsBadLine(good));
}

TEST(ConfGrammar, GivesThePartsOfTheLine) {
  const ConfLine line = ReadConfLine("  Title_Override  =  a = b  \r\n");
  EXPECT_EQ("Title_Override  =  a = b", line.text);
  EXPECT_EQ("Title_Override", line.key);
  EXPECT_EQ("a = b", line.value);
  ASSERT_NE(nullptr, line.entry);
  EXPECT_EQ(std::wstring(L"Title_Override"), line.entry->key);
  EXPECT_EQ(nullptr, ReadConfLine("Nothing = 1").entry);
  EXPECT_EQ("Nothing", ReadConfLine("Nothing = 1").key);
}

TEST(ConfGrammar, KnowsEveryKeyOfTheTable) {
  for (const AdminKey* row = kAdminKeys; row->key; ++row) {
    const std::wstring_view key = row->key;
    const ConfLine line = ReadConfLine(std::string(key.begin(), key.end()) + "=1");
    ASSERT_NE(nullptr, line.entry) << std::string(key.begin(), key.end());
    EXPECT_EQ(std::wstring(key), line.entry->key);
    EXPECT_EQ(row->type, line.entry->type);
    EXPECT_EQ(Kind::Value, line.kind);
  }
}

TEST(ConfGrammar, TheFirstRowOfAKeyEndsTheSearch) {
  EXPECT_EQ(&kAdminKeys[24], ReadConfLine("FontsAntialiasing_Override = 2").entry);
}

TEST(ConfGrammar, AZeroByteEndsNoKey) {
  EXPECT_EQ(Kind::UnknownKey, KindOf(std::string_view("Author_Override\0=x", 18)));
  EXPECT_EQ(Kind::UnknownKey, KindOf(std::string_view("Author_Override\0\0\0\0=x", 21)));
}

TEST(ConfGrammar, BytesBeyondAsciiMatchNoKey) { EXPECT_EQ(Kind::UnknownKey, KindOf("Author_Overrid\xE5 = x")); }

// --- Booleans and numbers ------------------------------------------------------------------------------------------

TEST(ConfGrammar, ABooleanIsExactlyOneOrZero) {
  EXPECT_EQ(1, StoredBoolean("1"));
  EXPECT_EQ(0, StoredBoolean("0"));
  EXPECT_EQ(1, StoredBoolean(" 1 "));  // the white space around a value is gone
  EXPECT_EQ(7, StoredBoolean(""));
  for (const char* bad : {"2", "-1", "01", "10", "00", "1.", "yes", "true", "\"1\"", "1 # on", "1 0", "255"}) {
    EXPECT_EQ(7, StoredBoolean(bad)) << bad;
    EXPECT_EQ(Kind::BadBoolean, KindOf("StartActionMailCheck_Override=" + std::string(bad))) << bad;
  }
}

TEST(ConfGrammar, ANumberIsReadUpToTheFirstNonDigit) {
  const struct {
    const char* value;
    int32_t number;
  } rows[] = {
      {"0", 0},
      {"600", 600},
      {"  96  ", 96},
      {"007", 7},
      {"150 dpi", 150},
      {"12.9", 12},
      {"0x10", 0},
      {"dpi", 0},
      {"\"600\"", 0},
      {"+5", 5},
      {"+", 0},
      {"-", 0},
      {"-0", 0},
      {"- 5", 0},
      {"--5", 0},
      {"255", 255},
      {"2147483647", INT32_MAX},
      {"2147483648", INT32_MAX},
      {"99999999999999999999999999", INT32_MAX},
      {"\xB2", 0},
      {"", 7},
  };
  for (const auto& row : rows) EXPECT_EQ(row.number, StoredNumber(row.value)) << row.value;
}

TEST(ConfGrammar, ANegativeNumberIsIgnored) {
  for (const char* negative : {"-1", "-600", "-2147483648", "-2147483649", "-99999999999999999999"}) {
    EXPECT_EQ(7, StoredNumber(negative)) << negative;
    EXPECT_EQ(Kind::NegativeNumber, KindOf("GraphicResolution_Override=" + std::string(negative))) << negative;
  }
  EXPECT_EQ(INT32_MIN, ReadConfLine("GraphicResolution_Override=-99999999999").number);
}

// --- Texts ---------------------------------------------------------------------------------------------------------

TEST(ConfGrammar, ATextIsTakenAsItStands) {
  EXPECT_EQ(L"Acme", StoredText("Author_Override = Acme"));
  EXPECT_EQ(L"Acme & Sons, Ltd. # no comment", StoredText("Author_Override =Acme & Sons, Ltd. # no comment \n"));
  EXPECT_EQ(L"a=b", StoredText("Author_Override = a=b"));
  EXPECT_EQ(L"=", StoredText("Author_Override =="));
  EXPECT_EQ(L"C:\\new\\t.exe", StoredText("Author_Override = C:\\new\\t.exe"));
  EXPECT_EQ(L"%s%1!s!", StoredText("Author_Override = %s%1!s!"));
  EXPECT_EQ(L"before", StoredText("Author_Override ="));
}

TEST(ConfGrammar, QuotationMarksComeOffBothEndsOrNone) {
  const struct {
    const char* value;
    const wchar_t* text;
  } rows[] = {
      {"\"Acme\"", L"Acme"},
      {"'Acme'", L"Acme"},
      {"\"Acme'", L"Acme"},  // the two need not match
      {"'Acme\"", L"Acme"},
      {"'Acme", L"'Acme"},
      {"Acme'", L"Acme'"},
      {"\"Acme", L"\"Acme"},
      {"say \"hello\"", L"say \"hello\""},
      {"\"say\" \"hello\"", L"say\" \"hello"},
      {"\"  Acme  \"", L"  Acme  "},  // blanks within them stay
      {"''Acme'''", L"Acme"},
      {"\"\"Acme\"", L"Acme"},
      {"\"'x'\"", L"'x'"},    // single ones go first, from both ends,
      {"'\"x\"'", L"x"},      // so that these all go
      {"'\"'x'\"'", L"'x'"},  // and of these two rounds
      {"\"", L" "},
      {"'", L" "},
      {"\"\"", L" "},
      {"''", L" "},
      {"'\"\"'", L" "},
      {"\"'\"", L"'"},
      {"\" \"", L" "},
  };
  for (const auto& row : rows)
    EXPECT_EQ(row.text, StoredText("Author_Override = " + std::string(row.value))) << row.value;
}

TEST(ConfGrammar, TextComesFromTheAnsiCodePage) {
  CUString expected;
  expected.AssignNarrow("M\xFCller");
  EXPECT_EQ(expected, StoredText("Author_Override = M\xFCller"));
}

TEST(ConfGrammar, ALaterLineGoesOverAnEarlierOne) {
  AdminSettings record;
  for (const char* line : {"Author_Override = first", "Author_Override = second", "Author_Override ="})
    StoreConfLine(ReadConfLine(line), record);
  EXPECT_EQ(L"second", record.Author_Override);
}

TEST(ConfGrammar, AShorterPasswordLeavesNothingOfTheLonger) {
  AdminSettings record;
  StoreConfLine(ReadConfLine("EncryptUserPassword_Override = geheimnis"), record);
  const wchar_t* buffer = record.EncryptUserPassword_Override.Buffer();
  const int capacity = record.EncryptUserPassword_Override.Capacity();
  StoreConfLine(ReadConfLine("EncryptUserPassword_Override = ab"), record);
  EXPECT_EQ(L"ab", record.EncryptUserPassword_Override);
  ASSERT_EQ(buffer, record.EncryptUserPassword_Override.Buffer());
  for (int i = 2; i < capacity; ++i) EXPECT_EQ(L'\0', buffer[i]) << i;
}

TEST(ConfGrammar, OtherLinesStoreNothing) {
  AdminSettings record;
  for (const char* line : {"", "# GraphicResolution_Override = 96", "GraphicResolution_Override = -96",
                           "GraphicResolution_Override", "graphicresolution_override = 96"})
    StoreConfLine(ReadConfLine(line), record);
  EXPECT_EQ(kUnsetNumber, record.GraphicResolution_Override);
}

// --- The table -------------------------------------------------------------------------------------------------------

namespace {

// A table that is wrong: its first row has a type that there is not.
const AdminKey kWrongTable[] = {
    {L"Odd", static_cast<AdminEntry>(9), {}},
    {L"PdfVersion_Override", AdminEntry::Number, AdminField(&AdminSettings::PdfVersion_Override)},
    {nullptr, AdminEntry::End, {}},
};

}  // namespace

TEST(ConfGrammar, AnUnknownTypeIsNoValue) {
  const ConfLine line = ReadConfLine("Odd = 1", kWrongTable);
  EXPECT_EQ(Kind::UnknownType, line.kind);
  AdminSettings record;
  StoreConfLine(line, record);
  EXPECT_EQ(Kind::UnknownType, ReadConfLine("Odd =", kWrongTable).kind);
}

TEST(ConfGrammar, InitPutsNumbersBackAndLeavesTexts) {
  AdminSettings record;
  for (const AdminKey* row = kAdminKeys; row->key; ++row) {
    if (row->type == AdminEntry::Text)
      (record.*row->field.text).Assign(L"x");
    else
      record.*row->field.number = 1;
  }
  EXPECT_TRUE(InitAdminSettings(record));
  for (const AdminKey* row = kAdminKeys; row->key; ++row) {
    if (row->type == AdminEntry::Text)
      EXPECT_EQ(L"x", record.*row->field.text);
    else
      EXPECT_EQ(row->type == AdminEntry::Boolean ? 255 : -1, record.*row->field.number);
  }
}

TEST(ConfGrammar, InitTracesAnUnknownTypeAndGoesOn) {
  TracedThread thread;
  AdminSettings record;
  record.PdfVersion_Override = 14;
  EXPECT_FALSE(InitAdminSettings(record, kWrongTable));
  EXPECT_EQ(-1, record.PdfVersion_Override);
  EXPECT_EQ(std::vector<std::wstring>{L"Unknown Entrytype!"}, thread.Lines());
}
