#include "environment/ConfFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/CostGrowth.h"
#include "support/PrintText.h"
#include "support/TempFile.h"
#include "support/TracedThread.h"

namespace {

using Texts = std::vector<std::wstring>;

Texts reported;  // the lines for which a box would have come

void Report(const CUString& line) { reported.emplace_back(line.View()); }

std::wstring Widened(const std::string& text) { return {text.begin(), text.end()}; }

class ConfFileTest : public testing::Test {
 protected:
  ConfFileTest() { reported.clear(); }

  bool Parse(std::string_view bytes) {
    temp.Put(bytes);
    ConfFile file(L"", temp.Name());
    const bool parsed = file.Parse(record, Report);
    atEnd = file.IsEof();
    return parsed;
  }
  // As the settings sheet does it for one file.
  void Take(std::string_view bytes) {
    Parse(bytes);
    ConfFile(L"", temp.Name()).Validate(record);
  }

  TempFile temp{"conf_test.conf"};
  TracedThread thread;
  AdminSettings record;
  bool atEnd = false;
};

}  // namespace

static_assert(sizeof(ConfFile) == sizeof(AFile), "only the way of use differs");

// --- Opening ---------------------------------------------------------------------------------------------------------

TEST(PrinterConfFileName, ReplacesThirteenCharacters) {
  const struct {
    const wchar_t* printer;
    const wchar_t* file;
  } rows[] = {
      {L"NEM pdf vonder", L"NEM pdf vonder.conf"},           {L"A/B", L"A_B.conf"},
      {L"[]/\\=+<>:;\",*", L"_____________.conf"},           {L"\\\\server\\printer", L"__server_printer.conf"},
      {L"a|b?c&d'e(f)g.h", L"a|b?c&d'e(f)g.h.conf"},  // no others
      {L"M\u00FCnchen \u20AC", L"M\u00FCnchen \u20AC.conf"}, {L"", L".conf"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.file, PrinterConfFileName(row.printer));
  for (const wchar_t character : std::wstring(L"[]/\\=+<>:;\",*"))
    EXPECT_EQ(L"a_b.conf", PrinterConfFileName(std::wstring{L'a', character, L'b'}));
}

TEST_F(ConfFileTest, JoinsDirectoryAndName) {
  const ConfFile file(L"C:\\drivers\\", L"x.conf");
  EXPECT_EQ(L"C:\\drivers\\x.conf", file.fileName);
}

TEST_F(ConfFileTest, WithoutADirectoryTheNameIsTakenAsItIs) {
  temp.Put("PdfVersion_Override = 14");
  ConfFile file(L"", temp.Name());
  EXPECT_STREQ(temp.Name(), file.fileName.Text());
  EXPECT_TRUE(file.IsOpen());
  EXPECT_EQ(0, file.Tell());
}

TEST_F(ConfFileTest, AMissingFileIsAPlainTraceLineAndStaysClosed) {
  ConfFile file(L"./", temp.Name());
  EXPECT_FALSE(file.IsOpen());
  EXPECT_EQ(Texts{L"Driver Conf file not found ./conf_test.conf"}, thread.Lines());
  EXPECT_EQ(0, thread.Error().trace->errorCount);
  EXPECT_EQ(2u, file.lastError);
}

TEST_F(ConfFileTest, AFileThatIsThereTracesNothing) {
  temp.Put("");
  ConfFile file(L"", temp.Name());
  EXPECT_EQ(Texts{}, thread.Lines());
}

TEST_F(ConfFileTest, TheDestructorClosesTheFile) {
  temp.Put("x");
  { const ConfFile file(L"", temp.Name()); }
  AFile writer(temp.Name());
  EXPECT_TRUE(writer.OpenAppend());
}

TEST_F(ConfFileTest, InitPutsTheRecordToItsUnsetValues) {
  ConfFile file(L"", temp.Name());
  record.PdfVersion_Override = 14;
  record.PdfAEnabled_Override = 1;
  record.Author_Override.Assign(L"Acme");
  EXPECT_TRUE(file.InitSettings(record));
  EXPECT_EQ(-1, record.PdfVersion_Override);
  EXPECT_EQ(255, record.PdfAEnabled_Override);
  EXPECT_EQ(L"Acme", record.Author_Override);
}

// --- Lines -----------------------------------------------------------------------------------------------------------

TEST_F(ConfFileTest, ReadsAWholeFile) {
  EXPECT_TRUE(
      Parse("# comment\r\n[section]\r\n! comment\r\n\r\n"
            "PdfVersion_Override = 105\r\n  Author_Override=\"Acme\"  \r\nStartActionMailCheck_Override = 1"));
  EXPECT_TRUE(atEnd);
  EXPECT_EQ(105, record.PdfVersion_Override);
  EXPECT_EQ(L"Acme", record.Author_Override);
  EXPECT_EQ(1, record.StartActionMailCheck_Override);
  EXPECT_EQ(Texts{}, reported);
  EXPECT_EQ(Texts{}, thread.Lines());
}

TEST_F(ConfFileTest, AnEmptyFileIsRead) {
  EXPECT_TRUE(Parse(""));
  EXPECT_TRUE(atEnd);
  EXPECT_TRUE(Parse("\r\n\r\n"));
}

TEST_F(ConfFileTest, EveryKindOfLineEndEndsALine) {
  for (const std::string end : {"\r\n", "\r", "\n"}) {
    record.PdfVersion_Override = record.Colorspace_Override = -1;
    EXPECT_TRUE(Parse("PdfVersion_Override = 14" + end + end + "Colorspace_Override = 1" + end));
    EXPECT_EQ(14, record.PdfVersion_Override);
    EXPECT_EQ(1, record.Colorspace_Override);
  }
}

TEST_F(ConfFileTest, ABadLineStopsTheFile) {
  for (const std::string bad : {"no equals sign", "Nothing_Override = 1", "pdfversion_override = 14", "= 1"}) {
    reported.clear();
    record.PdfVersion_Override = record.Colorspace_Override = -1;
    EXPECT_FALSE(Parse("PdfVersion_Override = 14\r\n  " + bad + " \r\nColorspace_Override = 1\r\n"));
    EXPECT_FALSE(atEnd);
    EXPECT_EQ(14, record.PdfVersion_Override);  // what was stored before stands,
    EXPECT_EQ(-1, record.Colorspace_Override);  // what follows is lost
    EXPECT_EQ(Texts{Widened(bad)}, reported);
    EXPECT_EQ(Texts{L"Driver Conf bad line " + Widened(bad) + L"!"}, thread.Lines());
  }
  EXPECT_EQ(4, thread.Error().trace->errorCount);
}

TEST_F(ConfFileTest, ABadLineIsReportedAsItStands) {
  EXPECT_FALSE(Parse("EncryptUserPasword_Override = 100%s %1!s! geheim"));
  EXPECT_EQ(Texts{L"EncryptUserPasword_Override = 100%s %1!s! geheim"}, reported);
  EXPECT_EQ(Texts{L"Driver Conf bad line EncryptUserPasword_Override = 100%s %1!s! geheim!"}, thread.Lines());
}

TEST_F(ConfFileTest, WithoutAReportABadLineIsTracedAlone) {
  temp.Put("bad");
  EXPECT_FALSE(ConfFile(L"", temp.Name()).Parse(record, nullptr));
  EXPECT_EQ(Texts{L"Driver Conf bad line bad!"}, thread.Lines());
}

TEST_F(ConfFileTest, ABadBooleanIsTracedWithItsLineAndPassedOver) {
  EXPECT_TRUE(Parse("  StartActionMailCheck_Override = yes \r\nPdfVersion_Override = 14\r\n"));
  EXPECT_EQ(255, record.StartActionMailCheck_Override);
  EXPECT_EQ(14, record.PdfVersion_Override);
  EXPECT_EQ(Texts{}, reported);
  EXPECT_EQ(Texts{L"Unknown BOOLValue StartActionMailCheck_Override = yes!"}, thread.Lines());
}

TEST_F(ConfFileTest, ANegativeNumberIsTracedWithItsValueAndPassedOver) {
  EXPECT_TRUE(Parse("GraphicResolution_Override =  -96 \r\nPdfVersion_Override = 14\r\n"));
  EXPECT_EQ(-1, record.GraphicResolution_Override);
  EXPECT_EQ(14, record.PdfVersion_Override);
  EXPECT_EQ(Texts{}, reported);
  EXPECT_EQ(Texts{L"Unknown non negative number Value -96!"}, thread.Lines());
}

TEST_F(ConfFileTest, AnUnknownTypeIsReportedAndPassedOver) {
  const AdminKey table[] = {
      {L"Odd", static_cast<AdminEntry>(9), {}},
      {L"PdfVersion_Override", AdminEntry::Number, AdminField(&AdminSettings::PdfVersion_Override)},
      {nullptr, AdminEntry::End, {}},
  };
  temp.Put("Odd = 1\nPdfVersion_Override = 14\n");
  ConfFile file(L"", temp.Name());
  EXPECT_FALSE(file.InitSettings(record, table));
  EXPECT_TRUE(file.Parse(record, Report, table));
  EXPECT_EQ(14, record.PdfVersion_Override);
  EXPECT_EQ(Texts{L"Odd = 1"}, reported);
  EXPECT_EQ((Texts{L"Unknown Entrytype!", L"Unknown Entrytype Odd = 1!"}), thread.Lines());
}

TEST_F(ConfFileTest, ALineOfTwelveHundredBytesStopsTheFileAtItsFirstPiece) {
  const std::string line = std::string(1200, 'x') + "\r\nPdfVersion_Override = 14\r\n";
  EXPECT_FALSE(Parse(line));
  EXPECT_EQ(Texts{std::wstring(999, L'x')}, reported);
  EXPECT_EQ(-1, record.PdfVersion_Override);
}

TEST_F(ConfFileTest, ALongerLineIsReadInPieces) {
  const std::string key = "Author_Override = ";
  const std::string first(999 - key.size(), 'a');
  EXPECT_TRUE(Parse(key + first + "Title_Override = b\r\nPdfVersion_Override = 14\r\n"));
  EXPECT_EQ(Widened(first), record.Author_Override.View());
  EXPECT_EQ(L"b", record.Title_Override);  // the next piece is a line of its own
  EXPECT_EQ(14, record.PdfVersion_Override);
}

TEST_F(ConfFileTest, ALineThatFillsThePieceIsWhole) {
  const std::string key = "Author_Override = ";
  for (const size_t length : {997u, 998u, 999u}) {
    for (const char* end : {"\r\n", "\n", "\r"}) {
      const std::string text(length - key.size(), 'a');
      record.PdfVersion_Override = -1;
      EXPECT_TRUE(Parse(key + text + end + "PdfVersion_Override = 14\r\n")) << length;
      EXPECT_EQ(Widened(text), record.Author_Override.View()) << length;
      EXPECT_EQ(14, record.PdfVersion_Override) << length;
    }
  }
}

TEST_F(ConfFileTest, AByteOrderMarkMakesTheFirstLineBad) {
  EXPECT_FALSE(Parse("\xEF\xBB\xBF# comment\r\nPdfVersion_Override = 14\r\n"));
  EXPECT_EQ(1u, reported.size());
}

TEST_F(ConfFileTest, AZeroByteEndsItsLine) {
  EXPECT_TRUE(Parse(std::string("Author_Override = Ac\0me\r\nPdfVersion_Override = 14\r\n", 51)));
  EXPECT_EQ(L"Ac", record.Author_Override);
  EXPECT_EQ(14, record.PdfVersion_Override);
}

TEST_F(ConfFileTest, NoPasswordIsTraced) {
  Parse(
      "EncryptUserPassword_Override = geheim\r\nEncryptOwnerPassword_Override = 'geheim'\r\n"
      "StationeryInfos_Override = {{P:\"geheim\"}}\r\n");
  EXPECT_EQ(L"geheim", record.EncryptUserPassword_Override);
  // Where line ends mix, the password's line may come as the end of another one.
  Parse(
      "EncryptUserPasswordEnabled_Override = x\nEncryptUserPassword_Override = geheim\r\n"
      "PdfVersion_Override = -1\rEncryptOwnerPassword_Override = geheim\r\n");
  for (const std::wstring& line : thread.Lines()) EXPECT_EQ(line.npos, line.find(L"geheim")) << Widened("").c_str();
}

TEST_F(ConfFileTest, AFileThatCannotBeReadToItsEndIsNoSuccess) {
  class Broken : public ConfFile {
   public:
    using ConfFile::ConfFile;

   protected:
    bool DoRead(void*, uint32_t, uint32_t, uint32_t& bytesRead) override {
      bytesRead = 0;
      return false;
    }
  };
  temp.Put("PdfVersion_Override = 14");
  Broken file(L"", temp.Name());
  EXPECT_FALSE(file.Parse(record, Report));
  EXPECT_FALSE(file.IsEof());
  EXPECT_EQ(Texts{}, reported);
}

// --- Two files -------------------------------------------------------------------------------------------------------

TEST_F(ConfFileTest, TheFileReadLastWins) {
  Take("PdfVersion_Override = 14\r\nAuthor_Override = printer\r\n");
  Take("PdfVersion_Override = 17\r\nTitle_Override = general\r\n");
  EXPECT_EQ(17, record.PdfVersion_Override);
  EXPECT_EQ(L"printer", record.Author_Override);
  EXPECT_EQ(L"general", record.Title_Override);
}

TEST_F(ConfFileTest, EachFileIsValidatedByItself) {
  Take("SaveAction_Override = 24\r\n");
  EXPECT_EQ(-1, record.SaveAction_Override);
  Take("DestinationDirectoryOrFilename_Override = C:\\Out\\\r\n");
  EXPECT_EQ(-1, record.SaveAction_Override);  // too late
  Take("SaveAction_Override = 24\r\n");       // the destination is in the record by now
  EXPECT_EQ(24, record.SaveAction_Override);
}

TEST_F(ConfFileTest, TheEdgesOfValidation) {
  Take("GraphicJpegQuality_Override = 101\nPdfVersion_Override = 50\nZUGFeRD_Override = 1\n");
  EXPECT_EQ(-1, record.GraphicJpegQuality_Override);
  EXPECT_EQ(50, record.PdfVersion_Override);
  EXPECT_EQ(1, record.ZUGFeRD_Override);
  Take("GraphicJpegQuality_Override = 100\n");
  EXPECT_EQ(100, record.GraphicJpegQuality_Override);
}

// --- Cost ------------------------------------------------------------------------------------------------------------

namespace {

// Counts what the file costs the platform.
class CountedFile : public ConfFile {
 public:
  using ConfFile::ConfFile;
  uint64_t calls = 0, bytes = 0;

 protected:
  bool DoRead(void* buffer, uint32_t elementSize, uint32_t count, uint32_t& bytesRead) override {
    ++calls;
    const bool read = ConfFile::DoRead(buffer, elementSize, count, bytesRead);
    bytes += bytesRead;
    return read;
  }
  bool DoSeek(int64_t offset, uint32_t origin) override {
    ++calls;
    return ConfFile::DoSeek(offset, origin);
  }
};

std::string LinesOf(size_t size) {
  std::string text;
  while (text.size() < size)
    text +=
        "# a comment between the settings\r\nPdfVersion_Override = 14\r\n\r\nAuthor_Override = \"Acme\"\r\n"
        "StartActionMailCheck_Override = 1\r\nZUGFeRDXml_Override = C:\\Invoices\\invoice.xml\r\n";
  return text;
}

struct Cost {
  double calls, bytes, seconds;
};

Cost CostOf(const wchar_t* name) {
  AdminSettings record;
  CountedFile file(L"", name);
  const double seconds = TimeOf([&] { EXPECT_TRUE(file.Parse(record, nullptr)); });
  return {1.0 * file.calls, 1.0 * file.bytes, seconds};
}

constexpr size_t kHalf = 500'000, kWhole = 1'000'000;

class ConfFileCost : public testing::Test {
 protected:
  ConfFileCost() {
    halfFile.Put(LinesOf(kHalf));
    wholeFile.Put(LinesOf(kWhole));
  }

  TempFile halfFile{"conf_half.conf"};
  TempFile wholeFile{"conf_whole.conf"};
};

}  // namespace

TEST_F(ConfFileCost, TwiceTheFileCostsThePlatformTwice) {
  const Cost half = CostOf(halfFile.Name()), whole = CostOf(wholeFile.Name());
  EXPECT_NEAR(2.0, whole.calls / half.calls, 0.01);
  EXPECT_NEAR(2.0, whole.bytes / half.bytes, 0.01);
  // A line costs a seek and a read of at most 999 bytes, and nothing is read again and again.
  EXPECT_LT(whole.bytes, 999.0 * kWhole / 20);
}

TEST_F(ConfFileCost, TwiceTheFileTakesTwiceAsLong) {
  const auto timeOf = [](const wchar_t* name) {
    double seconds = 1e9;
    for (int reading = 0; reading < 12; ++reading) seconds = std::min(seconds, CostOf(name).seconds);
    return seconds;
  };
  // The best of several readings is what the work itself takes. A machine that is busy gets more of them. A cost by the
  // square would be four times.
  double half = 1e9, whole = 1e9;
  for (int run = 0; run < 12 && (run < 2 || whole > 2.3 * half); ++run) {
    half = std::min(half, timeOf(halfFile.Name()));
    whole = std::min(whole, timeOf(wholeFile.Name()));
  }
  EXPECT_LE(whole, 3.0 * half) << half << " s and " << whole << " s";
}
