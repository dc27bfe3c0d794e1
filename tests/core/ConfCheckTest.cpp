#include "host/ConfCheck.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "support/PrintText.h"
#include "support/TempFile.h"

using namespace host;

namespace {

constexpr wchar_t kStops[] = L"; the dialog shows an error and stops reading here";

class ConfCheck : public testing::Test {
 protected:
  ConfReport Check(std::string_view bytes) {
    temp.Put(bytes);
    return CheckConfFile(temp.Name(), record);
  }

  // The findings as lines without the file's name.
  std::vector<std::wstring> Found(std::string_view bytes) {
    std::vector<std::wstring> lines;
    for (const ConfFinding& finding : Check(bytes).findings) {
      std::wstring line;
      for (const char digit : std::to_string(finding.line)) line += static_cast<wchar_t>(digit);
      lines.push_back(line + L": " + finding.text);
    }
    return lines;
  }

  using Lines = std::vector<std::wstring>;

  TempFile temp{"conf_check.conf"};
  AdminSettings record;
};

}  // namespace

TEST_F(ConfCheck, AGoodFileHasNoFindings) {
  const ConfReport report = Check(
      "# comment\r\n[section]\r\n\r\nPdfVersion_Override = 105\r\nAuthor_Override =\r\nTitle_Override = \"T\"\r\n");
  EXPECT_TRUE(report.readable);
  EXPECT_TRUE(report.findings.empty());
  EXPECT_EQ(2, report.overrideCount);
  EXPECT_EQ(105, record.PdfVersion_Override);
  EXPECT_EQ(L"x.conf: good, overrides set: 2\n", DescribeReport(L"x.conf", report));
}

TEST_F(ConfCheck, AnEmptyFileIsGood) {
  EXPECT_EQ(L"x.conf: good, overrides set: 0\n", DescribeReport(L"x.conf", Check("")));
  EXPECT_EQ(Lines{}, Found("\r\n\r\n"));
}

TEST_F(ConfCheck, AFileThatIsNotThereCannotBeRead) {
  const ConfReport report = CheckConfFile(L"no such file.conf", record);
  EXPECT_FALSE(report.readable);
  EXPECT_FALSE(report.reason.empty());
}

TEST_F(ConfCheck, AFolderCannotBeRead) { EXPECT_FALSE(CheckConfFile(L".", record).readable); }

TEST_F(ConfCheck, FindsEveryBadLineAndReadsOn) {
  EXPECT_EQ((Lines{std::wstring(L"2: no \"=\"") + kStops, std::wstring(L"3: unknown key \"Nothing\"") + kStops,
                   std::wstring(L"5: unknown key \"\"") + kStops}),
            Found("# comment\r\nbad\r\nNothing = 1\r\nPdfVersion_Override = 14\r\n = x\r\n"));
  EXPECT_EQ(14, record.PdfVersion_Override);
}

TEST_F(ConfCheck, SuggestsTheKeyThatWasMeant) {
  const std::wstring stops = kStops;
  EXPECT_EQ((Lines{L"1: unknown key \"pdfversion_override\", perhaps PdfVersion_Override" + stops,
                   L"2: unknown key \"PdfVersion\", perhaps PdfVersion_Override" + stops,
                   L"3: unknown key \"DisableManualUpdate_Override\", perhaps DisableManualUpdate" + stops,
                   L"4: unknown key \"_Override\"" + stops,
                   L"5: unknown key \"Zugferd\", perhaps "
                   L"ZUGFeRD_Override" +
                       stops}),
            Found("pdfversion_override = 1\nPdfVersion = 1\nDisableManualUpdate_Override = 1\n_Override = 1\n"
                  "Zugferd = 1\n"));
}

TEST_F(ConfCheck, FindsIgnoredValues) {
  EXPECT_EQ((Lines{L"1: StartActionMailCheck_Override: neither 0 nor 1; the line is ignored",
                   L"2: GraphicResolution_Override: a negative number; the line is ignored"}),
            Found("StartActionMailCheck_Override = yes\nGraphicResolution_Override = -96\n"));
}

TEST_F(ConfCheck, FindsNumbersThatAreReadInPart) {
  EXPECT_EQ((Lines{L"1: GraphicResolution_Override: read as 96; a number is written with digits only",
                   L"2: GraphicJpegQuality_Override: read as 0; a number is written with digits only"}),
            Found("GraphicResolution_Override = 96 dpi\nGraphicJpegQuality_Override = \"85\"\n"));
  EXPECT_EQ(96, record.GraphicResolution_Override);
}

TEST_F(ConfCheck, FindsWhatValidationDropsWithTheLineAndTheRule) {
  EXPECT_EQ((Lines{L"1: Settings_Override: dropped, valid are 0 to 2",
                   L"2: FontsEmbedded_Override: dropped, valid are 0 to 3",
                   L"3: GraphicJpegQuality_Override: dropped, valid are 0 to 100",
                   L"4: GraphicCompressMethod_Override: dropped, valid are 0 to 4",
                   L"5: Colorspace_Override: dropped, valid are 0 to 1",
                   L"6: PdfVersion_Override: dropped, valid are 13 and more",
                   L"7: UpdateType_Override: dropped, valid are 1 to 31",
                   L"8: SaveAction_Override: dropped, a predefined name or folder needs "
                   L"DestinationDirectoryOrFilename_Override"}),
            Found("Settings_Override = 3\nFontsEmbedded_Override = 4\nGraphicJpegQuality_Override = 101\n"
                  "GraphicCompressMethod_Override = 5\nColorspace_Override = 2\nPdfVersion_Override = 12\n"
                  "UpdateType_Override = 32\nSaveAction_Override = 24\n"));
}

TEST_F(ConfCheck, FindsEachRuleOfInvoices) {
  EXPECT_EQ((Lines{L"1: ZUGFeRD_Override: dropped, ZUGFeRDCreationMethod_Override = 0 needs ZUGFeRDXml_Override",
                   L"2: ZUGFeRDCreationMethod_Override: dropped, ZUGFeRDCreationMethod_Override = 0 needs "
                   L"ZUGFeRDXml_Override"}),
            Found("ZUGFeRD_Override = 1\nZUGFeRDCreationMethod_Override = 0\n"));
  EXPECT_EQ((Lines{L"1: ZUGFeRDDeleteAfterEmbedding_Override: dropped, it needs ZUGFeRD_Override = 1, "
                   L"ZUGFeRDCreationMethod_Override = 0 and ZUGFeRDXml_Override"}),
            Found("ZUGFeRDDeleteAfterEmbedding_Override = 1\n"));
  EXPECT_EQ((Lines{L"2: ZUGFeRDXml_Override: dropped, ZUGFeRDCreationMethod_Override = 1 goes without a file",
                   L"3: ZUGFeRDDeleteAfterEmbedding_Override: dropped, ZUGFeRDCreationMethod_Override = 1 goes without "
                   L"a file"}),
            Found("ZUGFeRDCreationMethod_Override = 1\nZUGFeRDXml_Override = C:\\a.xml\n"
                  "ZUGFeRDDeleteAfterEmbedding_Override = 0\n"));
  EXPECT_EQ((Lines{L"1: ZUGFeRD_Override: dropped, ZUGFeRD_Override = 1 needs a ZUGFeRDCreationMethod_Override other "
                   L"than 255",
                   L"2: ZUGFeRDCreationMethod_Override: dropped, ZUGFeRD_Override = 1 needs a "
                   L"ZUGFeRDCreationMethod_Override other than 255"}),
            Found("ZUGFeRD_Override = 1\nZUGFeRDCreationMethod_Override = 255\n"));
}

TEST_F(ConfCheck, DroppedValuesAreNotCounted) {
  EXPECT_EQ(1, Check("PdfVersion_Override = 12\nColorspace_Override = 1\n").overrideCount);
}

TEST_F(ConfCheck, TheLastLineOfAKeyCounts) {
  EXPECT_EQ(Lines{L"3: PdfVersion_Override: dropped, valid are 13 and more"},
            Found("PdfVersion_Override = 14\n\nPdfVersion_Override = 12\n"));
  EXPECT_EQ(Lines{}, Found("PdfVersion_Override = 12\nPdfVersion_Override = 14\n"));
}

TEST_F(ConfCheck, FontsAntialiasingIsOneOverride) {
  EXPECT_EQ(1, Check("FontsAntialiasing_Override = 2\nFontsAntialiasing_Override = 3\n").overrideCount);
}

TEST_F(ConfCheck, TheFileBeforeCounts) {
  EXPECT_EQ(Lines{}, Found("DestinationDirectoryOrFilename_Override = C:\\Out\\\n"));
  EXPECT_EQ(Lines{}, Found("SaveAction_Override = 24\n"));
  EXPECT_EQ(24, record.SaveAction_Override);

  AdminSettings other;
  temp.Put("ZUGFeRDXml_Override = C:\\a.xml\n");
  EXPECT_TRUE(CheckConfFile(temp.Name(), other).findings.empty());
  temp.Put("ZUGFeRDCreationMethod_Override = 1\n");
  const ConfReport report = CheckConfFile(temp.Name(), other);
  ASSERT_EQ(1u, report.findings.size());
  EXPECT_EQ(0, report.findings[0].line);  // the earlier file has set it
  EXPECT_EQ(L"b.conf: ZUGFeRDXml_Override: dropped, ZUGFeRDCreationMethod_Override = 1 goes without a file\n",
            DescribeReport(L"b.conf", report));
}

// --- The form of lines -----------------------------------------------------------------------------------------------

TEST_F(ConfCheck, FindsLinesThatAreTooLong) {
  const std::wstring stops = kStops;
  const std::string longText(1000, 'a');
  EXPECT_EQ((Lines{L"2: longer than 999 bytes; the rest is read as a line of its own", L"2: no \"=\"" + stops}),
            Found("\nAuthor_Override = " + longText + "\n"));
  // Each further piece is one more.
  const std::wstring tooLong = L"1: longer than 999 bytes; the rest is read as a line of its own";
  EXPECT_EQ((Lines{tooLong, tooLong}),
            Found("Author_Override = " + std::string(981, 'a') + "# " + std::string(997, 'a') + "# a"));
}

TEST_F(ConfCheck, ALineThatFillsItsPieceIsNotTooLong) {
  for (const size_t length : {996u, 997u, 998u, 999u})
    for (const char* end : {"\r\n", "\n", "\r", ""}) {
      const std::string line = "Author_Override = " + std::string(length - 18, 'a');
      EXPECT_EQ(Lines{}, Found(line + end)) << length;
      EXPECT_EQ((Lines{std::wstring(L"2: no \"=\"") + kStops}), Found(line + "\r\nbad")) << length;
      // With another end behind it the next line is read in one piece with this one's end.
      if (!*end) continue;
      EXPECT_EQ(Lines{}, Found(line + end + "PdfVersion_Override = 14\r\n")) << length;
      EXPECT_EQ(14, std::exchange(record.PdfVersion_Override, -1)) << length;
      EXPECT_EQ((Lines{std::wstring(L"2: unknown key \"Nothing\"") + kStops}), Found(line + end + "Nothing = 1\r\n"))
          << length;
    }
}

TEST_F(ConfCheck, WhiteSpaceBehindALongLineDoesNoHarm) {
  const std::string line = "Author_Override = a" + std::string(2000, ' ');
  EXPECT_EQ(Lines{}, Found(line + "\r\n"));
  EXPECT_EQ(Lines{}, Found(line + "\nPdfVersion_Override = 14\r\n"));
  EXPECT_EQ(14, record.PdfVersion_Override);
}

TEST_F(ConfCheck, CountsEveryKindOfLineEnd) {
  const std::wstring stops = kStops;
  for (const std::string end : {"\r\n", "\n", "\r"}) {
    const std::string text = "# a" + end + end + "bad" + end + "PdfVersion_Override = 14" + end + "worse" + end;
    EXPECT_EQ((Lines{L"3: no \"=\"" + stops, L"5: no \"=\"" + stops}), Found(text));
  }
}

TEST_F(ConfCheck, FindsLinesThatAreReadAsOne) {
  EXPECT_EQ((Lines{L"2: lines that end in different ways; those up to line 3 are read as one",
                   L"2: StartActionMailCheck_Override: neither 0 nor 1; the line is ignored"}),
            Found("\r\nStartActionMailCheck_Override = 1\nPdfVersion_Override = 14\r\nColorspace_Override = 1\r\n"));
  EXPECT_EQ(-1, record.PdfVersion_Override);
  EXPECT_EQ(1, record.Colorspace_Override);
  // Empty lines may be of another kind.
  EXPECT_EQ(Lines{}, Found("\n\n\nStartActionMailCheck_Override = 1\r\n\n"));
}

TEST_F(ConfCheck, FindsZeroBytes) {
  EXPECT_EQ(Lines{L"1: a zero byte; the rest of the line is not read"},
            Found(std::string_view("Author_Override = a\0b\nColorspace_Override = 1\n", 46)));
}

TEST_F(ConfCheck, FindsForeignEncodings) {
  EXPECT_EQ(Lines{L"1: the file is UTF-16; it must be text in the ANSI code page"},
            Found(std::string_view("\xFF\xFE\x41\0\x42\0", 6)));
  EXPECT_EQ(Lines{L"1: the file is UTF-16; it must be text in the ANSI code page"},
            Found(std::string_view("\xFE\xFF\0\x41\0\x42", 6)));
  const Lines found = Found("\xEF\xBB\xBFPdfVersion_Override = 14\n");
  ASSERT_EQ(2u, found.size());
  EXPECT_EQ(L"1: a byte order mark of UTF-8; the file must be text in the ANSI code page", found[0]);
  EXPECT_EQ(0u, found[1].find(L"1: unknown key"));
}

TEST_F(ConfCheck, ShowsNoValues) {
  const ConfReport report = Check(
      "EncryptUserPasword_Override = geheim\ngeheim\nEncryptUserPassword_Override = geheim\n"
      "EncryptUserPasswordEnabled_Override = geheim\nPdfVersion_Override = -1 geheim\n"
      "GraphicResolution_Override = 1 geheim\nEncryptUserPassword_Override = geheim" +
      std::string(1000, ' ') + "geheim\n");
  EXPECT_GE(report.findings.size(), 6u);
  EXPECT_EQ(std::wstring::npos, DescribeReport(L"x.conf", report).find(L"geheim"));
}

TEST_F(ConfCheck, ShowsNothingOfTheRestOfALongLine) {
  const std::wstring stops = kStops;
  const std::string password = "EncryptUserPassword_Override = " + std::string(999 - 31, 'a');
  EXPECT_EQ((Lines{L"1: longer than 999 bytes; the rest is read as a line of its own",
                   L"1: no key of the list in the rest of the line" + stops}),
            Found(password + "geheim=geheim\n"));
}

TEST_F(ConfCheck, AKeyIsShownInOneShortLine) {
  const std::wstring stops = kStops;
  EXPECT_EQ(Lines{L"1: unknown key \"" + std::wstring(60, L'k') + L"...\"" + stops},
            Found(std::string(61, 'k') + "=1"));
  EXPECT_EQ(Lines{L"1: unknown key \"a^tb^^\"" + stops}, Found("a\tb^ = 1"));
}

TEST_F(ConfCheck, FindingsComeInTheOrderOfTheirLines) {
  const std::wstring stops = kStops;
  EXPECT_EQ((Lines{L"1: PdfVersion_Override: dropped, valid are 13 and more", L"2: no \"=\"" + stops,
                   L"3: Colorspace_Override: dropped, valid are 0 to 1"}),
            Found("PdfVersion_Override = 5\nbad\nColorspace_Override = 5\n"));
}

TEST_F(ConfCheck, AMegabyteIsCheckedInNoTime) {
  std::string text;
  while (text.size() < 1'000'000) text += "Author_Override = a\nTitle_Override = b\r\nbad\r\n";
  EXPECT_GT(Check(text).findings.size(), 20000u);
}
