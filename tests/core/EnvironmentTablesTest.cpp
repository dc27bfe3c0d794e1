// The decisions and tables of the environment that need no platform.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>

#include "environment/A4Country.h"
#include "environment/ComponentText.h"
#include "environment/FindRow.h"
#include "environment/HostApplicationText.h"
#include "environment/PropertyTable.h"
#include "environment/SystemGeneration.h"

TEST(A4Country, LetterIsThePaperOfTheAmericas) {
  for (const int country : {1, 2, 50, 55, 59, 500, 550, 599}) EXPECT_FALSE(IsA4Country(country)) << country;
  for (const int country : {-1, 0, 3, 33, 49, 60, 499, 600, 966, 5000}) EXPECT_TRUE(IsA4Country(country)) << country;
}

TEST(IsWin9x, TakesMajorVersion4WithoutNt) {
  const auto version = [](uint32_t platformId, uint32_t major) {
    platform::SystemVersion result = {};
    result.platformId = platformId;
    result.major = major;
    return result;
  };
  EXPECT_TRUE(IsWin9x(version(1, 4)));
  EXPECT_FALSE(IsWin9x(version(2, 4)));  // Windows NT 4
  EXPECT_FALSE(IsWin9x(version(2, 10)));
  EXPECT_FALSE(IsWin9x(version(0, 3)));
  EXPECT_FALSE(IsWin9x());
}

// --- How a host is called ----------------------------------------------------------------------------------------

struct HostCase {
  const wchar_t* fileName;
  const wchar_t* version;
  bool friendly;
  std::wstring_view text;
};

TEST(HostApplicationText, NamesOfficeProgramsByTheirYear) {
  constexpr HostCase kCases[] = {
      {L"WINWORD.EXE", L"15.0.4420.1017", true, L"Microsoft\u00AE Word 2013(15.0.4420.1017)"},
      {L"WINWORD.EXE", L"16.0.4266.1001", true, L"Microsoft\u00AE Word 16.0.4266.1001"},
      {L"WINWORD.EXE", L"15.0.4420.1017", false, L"WINWORD.EXE 15.0.4420.1017"},
      {L"winword.exe", L"8.0.0.1", true, L"Microsoft\u00AE Word 97(8.0.0.1)"},
      {L"Excel.exe", L"9.0.0.1", true, L"Microsoft\u00AE Excel 2000(9.0.0.1)"},
      {L"EXCEL.EXE", L"10.0.0.1", true, L"Microsoft\u00AE Excel 2002(10.0.0.1)"},
      {L"POWERPNT.EXE", L"11.0.0.1", true, L"Microsoft\u00AE PowerPoint\u00AE 2003(11.0.0.1)"},
      {L"MSACCESS.EXE", L"12.0.0.1", true, L"Microsoft\u00AE Access 2007(12.0.0.1)"},
      {L"OUTLOOK.EXE", L"14.0.0.1", true, L"Microsoft\u00AE Outlook\u00AE 2010(14.0.0.1)"},
      {L"OUTLOOK.EXE", L"13.0.0.1", true, L"Microsoft\u00AE Outlook\u00AE 13.0.0.1"},  // there was none
      {L"OUTLOOK.EXE", L"150.0.0.1", true, L"Microsoft\u00AE Outlook\u00AE 150.0.0.1"},
      {L"notepad.exe", L"15.0.4420.1017", true, L"notepad.exe 15.0.4420.1017"},
      {L"WINWORD.EXE", L"", true, L"Microsoft\u00AE Word"},
      {L"WINWORD.EXE", L"", false, L"WINWORD.EXE"},
      {L"notepad.exe", L"", true, L"notepad.exe"},
  };
  for (const HostCase& row : kCases) {
    const CUString text = HostApplicationText(row.fileName, row.version, row.friendly);
    EXPECT_TRUE(text == row.text) << std::string(row.text.begin(), row.text.end());
  }
}

// --- Components --------------------------------------------------------------------------------------------------

TEST(ComponentVersionText, ReadsHexadecimalDigitsAsDecimalOnes) {
  EXPECT_STREQ("2.10.4", ComponentVersionText(0x2100004).Text());
  EXPECT_STREQ("0.0.0", ComponentVersionText(0).Text());
  EXPECT_STREQ("ff.ff.ffff", ComponentVersionText(0xFFFFFFFF).Text());
}

TEST(PrintPropertyTable, HasGroupsOfNamesWithAKind) {
  std::set<std::string_view> names;
  int groups = 1;
  const PropertyTableRow* row = kPrintPropertyTable;
  for (; row->name; ++row) {
    const std::string_view name(row->name), kind(row->kind);
    if (name.empty()) {
      EXPECT_TRUE(kind.empty());
      EXPECT_NE('\0', row[1].name ? row[1].name[0] : '\0') << "an empty group";
      ++groups;
      continue;
    }
    EXPECT_TRUE(names.insert(name).second) << name << " twice";
    EXPECT_TRUE(kind == "S" || kind == "B" || kind == "L" || kind == "I" || kind == "X") << name;
  }
  EXPECT_EQ(nullptr, row->kind);
  EXPECT_EQ(5, groups);
  for (const char* name :
       {"InputFilename", "OutputFilename", "OutputFormat", "PrinterName", "DevMode", "PaperWidth", "NVWPageSize",
        "NVWTitleString", "NVWPrintButtonDisable", "NVWMailSubject", "LogFile", "TestFile", "ReferenceFile",
        "JobStatus", "EncryptOwnerPassword", "EncryptEnableExtract", "ShowFormfields", "FormfieldDropdownBackColor"})
    EXPECT_EQ(1u, names.count(name)) << name;
}

// --- Rows by key -------------------------------------------------------------------------------------------------

namespace {

struct Row8 {
  uint32_t messageId;
  uint16_t key;
};
struct Row16 {
  const wchar_t* name;
  uint16_t key;
};
struct Row24 {
  const wchar_t* name;
  const wchar_t* other;
  uint16_t key;
};
struct Row50 {
  wchar_t name[24];
  uint16_t key;
};
static_assert(sizeof(Row8) == 8 && sizeof(Row16) == 16 && sizeof(Row24) == 24 && sizeof(Row50) == 50);

// A first field with only high bits is not 0; what stands behind the end is never found.
constexpr Row8 kRows8[] = {{0x40010000, 7}, {1, 8}, {2, 8}, {0, 9}, {3, 10}};
constexpr Row16 kRows16[] = {{L"a", 7}, {L"b", 8}, {L"c", 8}, {nullptr, 9}, {L"d", 10}};
constexpr Row24 kRows24[] = {{L"a", nullptr, 7}, {L"b", L"", 8}, {L"c", L"", 8}, {nullptr, L"", 9}, {L"d", L"", 10}};
constexpr Row50 kRows50[] = {{L"a", 7}, {L"\u0100", 8}, {L"c", 8}, {L"", 9}, {L"d", 10}};

template <class Row, size_t kCount>
void CheckSearch(const Row* (*find)(const Row*, uint16_t), const Row (&rows)[kCount]) {
  EXPECT_EQ(&rows[0], find(rows, 7));
  EXPECT_EQ(&rows[1], find(rows, 8)) << "the first of two";
  EXPECT_EQ(nullptr, find(rows, 9)) << "the row that ends the table";
  EXPECT_EQ(nullptr, find(rows, 10)) << "behind the end";
  EXPECT_EQ(nullptr, find(rows, 0));
  EXPECT_EQ(nullptr, find(nullptr, 7));
}

}  // namespace

TEST(FindRow, SearchesUpToTheRowWithoutAFirstField) {
  CheckSearch(FindRow8<Row8>, kRows8);
  CheckSearch(FindRow16<Row16>, kRows16);
  CheckSearch(FindRow24<Row24>, kRows24);
  CheckSearch(FindRow50<Row50>, kRows50);
}
