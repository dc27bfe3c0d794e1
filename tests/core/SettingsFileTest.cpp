#include "host/SettingsFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "host/Text.h"

using namespace host;

namespace {

std::string Utf16(std::wstring_view text) {
  std::string bytes = "\xFF\xFE";
  for (wchar_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(static_cast<uint16_t>(unit) >> 8);
  }
  return bytes;
}

Settings Parsed(std::string_view bytes) {
  Settings settings;
  const std::vector<FileProblem> problems = ParseSettings(bytes, settings);
  for (const FileProblem& problem : problems) ADD_FAILURE() << problem.line << ": " << EncodeUtf8(problem.reason);
  return settings;
}

Setting Number(int32_t set, std::wstring_view name, int32_t number) {
  return {set, nempdf::FindProperty(set, name), {.number = number}};
}

Setting Text(int32_t set, std::wstring_view name, std::wstring text) {
  return {set, nempdf::FindProperty(set, name), {.text = std::move(text)}};
}

// All problems of a file, one "line: reason" a row.
std::string Problems(std::string_view bytes) {
  Settings settings;
  std::string rows;
  for (const FileProblem& problem : ParseSettings(bytes, settings))
    rows += std::to_string(problem.line) + ": " + EncodeUtf8(problem.reason) + "\n";
  return rows;
}

const std::wstring kTrickyTexts[] = {
    L"\"C:\\a b.doc\";\"C:\\b.pdf\"",
    L"; no comment",
    L"# nor this",
    L"[0]",
    L"a = b",
    L"line\r\nline\nline\r",
    L" \t blanks \t ",
    L"^n is two characters",
    L"\x0645\x0631\x062D\x0628\x0627 \x202B"
    L"abc\x202C",
    L"\xD83D\xDE00 \xD83D",
    L"\x1\x7F\xFEFF",
};

TEST(SettingsFile, ReadsSectionsNumbersAndTexts) {
  const Settings expected = {
      Text(NEMPDFUI_GENERAL, L"PrinterName", L"NEM pdf vonder"),
      Number(NEMPDFUI_SETTINGS, L"GraphicJpegQuality", 85),
      Number(NEMPDFUI_SETTINGS, L"HyperlinkBorderColor", 0xC0C0C0),
      Text(NEMPDFUI_SETTINGS, L"Title", L"Annual; report = \"1\""),
      Text(NEMPDFUI_DOCUMENT, L"Title", L""),
  };
  EXPECT_EQ(Parsed("; comment\n"
                   "  # comment\n"
                   "\n"
                   "[general]\n"
                   "PrinterName = NEM pdf vonder\n"
                   " [0] \n"
                   "GraphicJpegQuality=85\n"
                   "\tHyperlinkBorderColor =\t0xC0C0C0\n"
                   "Title = Annual; report = \"1\"  \n"
                   "[1]\n"
                   "Title ="),
            expected);
}

TEST(SettingsFile, TakesBothLineEndingsAndBothEncodings) {
  const Settings expected = {Text(NEMPDFUI_SETTINGS, L"Title", L"\x0645\x00FC"),
                             Number(NEMPDFUI_SETTINGS, L"PdfVersion", 14)};
  for (const wchar_t* text :
       {L"[0]\nTitle=\x0645\x00FC\nPdfVersion=14\n", L"[0]\r\nTitle=\x0645\x00FC\r\nPdfVersion=14\r\n"}) {
    EXPECT_EQ(Parsed(EncodeUtf8(text)), expected);
    EXPECT_EQ(Parsed("\xEF\xBB\xBF" + EncodeUtf8(text)), expected);
    EXPECT_EQ(Parsed(Utf16(text)), expected);
  }
}

TEST(SettingsFile, AnEmptyFileIsGood) {
  EXPECT_TRUE(Parsed("").empty());
  EXPECT_TRUE(Parsed("[0]").empty());
}

TEST(SettingsFile, KeepsUnescapedTabsInsideAText) {
  EXPECT_EQ(Parsed("[0]\nTitle = a\tb"), Settings{Text(NEMPDFUI_SETTINGS, L"Title", L"a\tb")});
}

TEST(SettingsFile, EveryPropertyOfEverySetIsRead) {
  for (int32_t set : kSets) {
    Settings expected;
    for (const nempdf::PropertyInfo& info : nempdf::Properties(set)) expected.push_back({set, &info, {}});
    EXPECT_EQ(Parsed(WriteSettings(expected)), expected);
  }
}

TEST(SettingsFile, SetsKnowTheirOwnNamesOnly) {
  EXPECT_EQ(nempdf::Properties(NEMPDFUI_GENERAL).size(), 6u);
  EXPECT_EQ(nempdf::Properties(NEMPDFUI_SETTINGS).size(), 123u);
  EXPECT_EQ(nempdf::Properties(NEMPDFUI_DOCUMENT).size(), 123u);
  EXPECT_EQ(Problems("[general]\nTitle = x\n[0]\nPrinterName = x\n"),
            "2: section [general] has no setting \"Title\"\n"
            "4: section [0] has no setting \"PrinterName\"\n");
}

TEST(SettingsFile, EveryTextRoundTrips) {
  for (const std::wstring& text : kTrickyTexts) {
    const Settings settings = {Text(NEMPDFUI_SETTINGS, L"MailNotetext", text)};
    EXPECT_EQ(Parsed(WriteSettings(settings)), settings) << EncodeUtf8(text);
  }
}

TEST(SettingsFile, EveryNumberRoundTrips) {
  for (int32_t number : {0, 1, -1, INT32_MAX, INT32_MIN}) {
    const Settings settings = {Number(NEMPDFUI_DOCUMENT, L"PdfVersion", number)};
    EXPECT_EQ(Parsed(WriteSettings(settings)), settings);
  }
}

TEST(SettingsFile, WritesPasswordsToo) {
  const Settings settings = {Text(NEMPDFUI_SETTINGS, L"EncryptUserPassword", L" ^secret ")};
  EXPECT_EQ(Parsed(WriteSettings(settings)), settings);
}

TEST(SettingsFile, WritesTheSetsInOrderWithWindowsLineEnds) {
  const Settings settings = {Number(NEMPDFUI_DOCUMENT, L"Used", 1), Text(NEMPDFUI_GENERAL, L"SheetTitle", L"T\n"),
                             Number(NEMPDFUI_SETTINGS, L"Scale", -5)};
  EXPECT_EQ(WriteSettings(settings),
            "[general]\r\nSheetTitle = T^n\r\n\r\n[0]\r\nScale = -5\r\n\r\n[1]\r\nUsed = 1\r\n");
}

struct ProblemCase {
  std::string_view file, problems;
};

const ProblemCase kProblems[] = {
    {"Title = x", "1: a section such as [0] must stand before the first setting\n"},
    {"[2]\nTitle = x", "1: unknown section [2]: there are [general], [0] and [1]\n"},
    {"[General]", "1: unknown section [General]: there are [general], [0] and [1]\n"},
    {"[0\nTitle = x", "1: a section needs its closing bracket, as in [0]\n"},
    {"[", "1: a section needs its closing bracket, as in [0]\n"},
    {"[0]\n[1]\n[0]\nTitle = x\n[0]",
     "3: section [0] stands already in line 1\n5: section [0] stands already in line 1\n"},
    {"[0]\nTitle", "2: neither a section nor a comment nor \"name = value\"\n"},
    {"[0]\ntitle = x", "2: section [0] has no setting \"title\"\n"},
    {"[0]\n= x", "2: section [0] has no setting \"\"\n"},
    {"[0]\r\nTitle = x\r\n\r\nTitle = y", "4: Title stands already in line 2\n"},
    {"[0]\nScale = many", "2: Scale: \"many\" is no 32-bit number\n"},
    {"[0]\nScale =", "2: Scale: \"\" is no 32-bit number\n"},
    {"[0]\nScale = 2147483648", "2: Scale: \"2147483648\" is no 32-bit number\n"},
    {"[0]\nTitle = a^b",
     "2: Title: a caret begins one of ^n ^r ^t ^s ^^ and ^u with four hexadecimal digits, not 0000\n"},
    {"[0]\nScale = x\nNoName = 1\nPdfVersion = y",
     "2: Scale: \"x\" is no 32-bit number\n3: section [0] has no setting \"NoName\"\n4: PdfVersion: \"y\" is no 32-bit "
     "number\n"},
    {"[0]\nScale = 1\nTitle = \xFF\nScale = 2",
     "3: the file is neither valid UTF-8 nor UTF-16 with a byte order mark\n"},
};

TEST(SettingsFile, SaysLineAndReasonOfEveryProblem) {
  for (const ProblemCase& row : kProblems) EXPECT_EQ(Problems(row.file), row.problems) << row.file;
}

TEST(SettingsFile, RefusesZeroCharacters) {
  EXPECT_EQ(Problems(std::string_view("[0]\nTitle = a\0b\nScale = 1", 25)), "2: a zero character\n");
}

TEST(SettingsFile, CountsLinesAfterABadOne) {
  EXPECT_EQ(Problems(std::string_view("[0]\n\0\nScale = x", 15)),
            "2: a zero character\n3: Scale: \"x\" is no 32-bit number\n");
}

TEST(SettingsFile, AnOddLastByteOfUtf16IsAProblem) {
  EXPECT_EQ(Problems(Utf16(L"[0]\nScale = 1") + "x"),
            "2: the file is neither valid UTF-8 nor UTF-16 with a byte order mark\n");
}

TEST(SettingsFile, ABadLineAddsNoSetting) {
  Settings settings;
  ParseSettings("[0]\nScale = x\nPdfVersion = 14\nTitle = ^", settings);
  EXPECT_EQ(settings, Settings{Number(NEMPDFUI_SETTINGS, L"PdfVersion", 14)});
}

TEST(SettingsFile, NeverQuotesAPassword) {
  const std::string problems = Problems("[0]\nEncryptUserPassword = hidden^\nEncryptUserPassword = hidden");
  EXPECT_FALSE(problems.empty());
  EXPECT_EQ(problems.find("hidden"), std::string::npos);
}

TEST(SettingsFile, TheSampleIsGood) {
  std::ifstream file(NEMPDF_SOURCE_DIR "/host/sample.ini", std::ios::binary);
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  const Settings settings = Parsed(bytes);
  EXPECT_NE(std::ranges::find(settings, Number(NEMPDFUI_SETTINGS, L"GraphicJpegQuality", 85)), settings.end());
  EXPECT_NE(std::ranges::find(settings, Number(NEMPDFUI_DOCUMENT, L"PdfVersion", 14)), settings.end());
  EXPECT_EQ(Parsed(WriteSettings(settings)), settings);
}

TEST(Settings, AssignReplacesOrAdds) {
  Settings settings = {Number(NEMPDFUI_SETTINGS, L"Used", 0)};
  Assign(settings, NEMPDFUI_DOCUMENT, L"Used", {.number = 1});
  Assign(settings, NEMPDFUI_SETTINGS, L"Used", {.number = 2});
  EXPECT_EQ(settings, (Settings{Number(NEMPDFUI_SETTINGS, L"Used", 2), Number(NEMPDFUI_DOCUMENT, L"Used", 1)}));
}

TEST(Settings, NamesAreComparedExactly) {
  EXPECT_NE(nempdf::FindProperty(NEMPDFUI_SETTINGS, L"EmbedfilenamesOpen"), nullptr);
  EXPECT_EQ(nempdf::FindProperty(NEMPDFUI_SETTINGS, L"EmbedFilenamesOpen"), nullptr);
}

}  // namespace
