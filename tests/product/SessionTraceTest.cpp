// A whole session of a host, and what it leaves in the trace of its thread and in the log of message boxes: every line,
// in its order, with nothing else in between. No password is among it.
//
// docs/troubleshooting.md shows both files; the test compares them too, apart from times, versions and file names. With
// the environment variable NEMPDF_UPDATE_DOCS set it writes them anew.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include "driver/Bar.h"
#include "driver/SheetDriver.h"
#include "driver/Text.h"
#include "support/HostDialog.h"
#include "support/RegistryValue.h"
#include "support/SourceDocument.h"
#include "support/TempFile.h"
#include "support/TestPrinter.h"

namespace {

using Lines = std::vector<std::wstring>;

constexpr int kGraphicPage = 108;
constexpr int kSecurityPage = 117;
constexpr int kOwnerSwitch = 1022, kOwnerPassword = 1003;
constexpr wchar_t kPassword[] = L"hunter2";
constexpr char kNarrowPassword[] = "hunter2";

// A line of the trace, in its three parts.
struct TraceLine {
  std::wstring number, stamp, message;
};

// Cuts the file at the ends of its lines. A message may have line feeds of its own, but no pair with a carriage return.
Lines SplitLines(const std::wstring& text) {
  Lines lines;
  size_t begin = 0;
  for (size_t end; (end = text.find(L"\r\n", begin)) != text.npos; begin = end + 2)
    lines.push_back(text.substr(begin, end - begin));
  EXPECT_EQ(text.size(), begin) << "the last line has no end";
  return lines;
}

const std::wregex kStamp(LR"(\d\d\.\d\d\.\d{4} \d\d:\d\d:\d\d )");

// In an order that can be compared: "yyyy.mm.dd hh:mm:ss".
std::wstring SortableStamp(const std::wstring& stamp) {
  return stamp.substr(6, 4) + L"." + stamp.substr(3, 2) + L"." + stamp.substr(0, 2) + stamp.substr(10, 9);
}

std::wstring SortableNow() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  wchar_t text[32];
  wsprintfW(text, L"%04d.%02d.%02d %02d:%02d:%02d", now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute,
            now.wSecond);
  return text;
}

std::vector<TraceLine> ReadTrace(const std::wstring& text) {
  std::vector<TraceLine> lines;
  for (const std::wstring& line : SplitLines(text)) {
    std::wsmatch match;
    const bool good = std::regex_match(line, match, std::wregex(LR"(( *\d+ )(\d[\d.]{9} [\d:]{8} )([\s\S]*))"));
    EXPECT_TRUE(good) << ToUtf8(line);
    if (!good) continue;
    lines.push_back({match[1], match[2], match[3]});
    EXPECT_TRUE(std::regex_match(lines.back().stamp, kStamp)) << ToUtf8(line);
  }
  return lines;
}

std::wstring SystemText(DWORD code) {
  wchar_t text[256] = L"";
  DWORD length =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0, text, 256, nullptr);
  while (length > 0 && (text[length - 1] == L'\r' || text[length - 1] == L'\n')) text[--length] = 0;
  return text;
}

// What the look-up of a value that is not there leaves in the trace.
std::wstring MissingValue(const std::wstring& name) {
  return L"CRegistryEntry::Read(): Software\\NEM software GmbH\\NEM pdf vonder\\" + name +
         L" not found, using default : " + SystemText(ERROR_FILE_NOT_FOUND);
}

// Other threads of the process leave traces too. One that is left would be gone on with by a later thread of its
// number.
void DeleteTraces() {
  WIN32_FIND_DATAW file;
  const HANDLE search = FindFirstFileW(L"session-AddInUI-t*.log", &file);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    DeleteFileW(file.cFileName);
  } while (FindNextFileW(search, &file));
  FindClose(search);
}

class SessionTrace : public testing::Test {
 protected:
  SessionTrace() {
    DeleteTraces();
    for (ProductValue* value : {&machineTrace, &userTrace, &machineLog, &userLog}) {
      value->Set(L"");  // the key is there,
      value->Delete();  // the value is not
    }
    userTrace.Set(L"session.log");
    country.Set(L"49");  // Germany
  }

  // Runs `body` on a thread of its own, as which the library traces it. Returns the thread's trace.
  template <typename Body>
  std::wstring Traced(Body body) {
    DWORD id = 0;
    std::thread([&] {
      id = GetCurrentThreadId();
      body();
    }).join();
    const TempFile file("session-AddInUI-t" + std::to_string(id) + ".log", TempFile::Keep{});
    bytes += file.Bytes();
    return file.Text();
  }

  // A session from the creation of the dialog object to its end, with one mistake of each kind.
  void Session(const std::vector<ExpectedBox>& boxes) {
    HostDialog host;
    host.Set(NEMPDFUI_GENERAL, L"PrinterName", L"Invoices");
    host.Set(NEMPDFUI_GENERAL, L"HelpFilename", L"C:\\no such help.chm");
    for (const int set : {0, 1})
      for (const wchar_t* name :
           {L"EncryptUserPassword", L"EncryptOwnerPassword", L"EncryptEnhancedPdfPassword", L"StationeryInfos"})
        host.Set(set, name, kPassword);
    host.Set(0, L"EncryptPasswordsConfirmed", 1);
    EXPECT_EQ(1, NemPdfUISetPropertyA(host.Handle(), 0, "EncryptUserPassword", kNarrowPassword));
    EXPECT_EQ(0, NemPdfUISetPropertyW(host.Handle(), 0, L"EncryptUserPasswort", kPassword));
    EXPECT_EQ(1, NemPdfUISetPropertyW(host.Handle(), 2, L"", kPassword));

    SheetDriver driver;
    for (const ExpectedBox& box : boxes) driver.ExpectBox(box);
    const SheetResult result = driver.Run([&] { return host.DoModal(); },
                                          [](Sheet& sheet) -> SheetTask {
                                            bool shown = false;
                                            co_await ClickPage(sheet, kGraphicPage, shown);
                                            CO_ASSERT_TRUE(shown);
                                            sheet.PressHelp();
                                            co_await sheet.Settled();
                                            CO_ASSERT_TRUE(sheet.SelectPage(kSecurityPage));
                                            co_await sheet.Settled();
                                            sheet.Control(kOwnerSwitch).Click();
                                            sheet.ExpectDialog([](HWND confirmation) {
                                              SetDlgItemTextW(confirmation, kOwnerPassword, kPassword);
                                              SendMessageW(confirmation, WM_COMMAND, IDOK, 0);
                                            });
                                            sheet.PressOk();
                                          });
    EXPECT_EQ(1, result.value);
    EXPECT_EQ(85, host.Long(0, L"GraphicJpegQuality"));
    EXPECT_EQ(kPassword, host.Text(0, L"EncryptUserPassword"));
    wchar_t tooSmall[4];
    EXPECT_EQ(0, NemPdfUIGetPropertyW(host.Handle(), 0, L"EncryptOwnerPassword", tooSmall, 4));
  }

  // Number and time of each line by their form, its message by its text.
  void ExpectTrace(const std::wstring& text, const std::wstring& begin, const Lines& expected) {
    const std::vector<TraceLine> lines = ReadTrace(text);
    ASSERT_EQ(expected.size(), lines.size()) << ToUtf8(text);
    std::wstring last = begin;
    for (size_t i = 0; i < lines.size(); ++i) {
      wchar_t number[16];
      wsprintfW(number, L"%4d ", static_cast<int>(i + 1));
      EXPECT_EQ(number, lines[i].number);
      const std::wstring stamp = SortableStamp(lines[i].stamp);
      EXPECT_LE(last, stamp);
      last = stamp;
      if (i > 1) {
        EXPECT_EQ(expected[i], lines[i].message);
      }
    }
    EXPECT_LE(last, SortableNow());
    EXPECT_TRUE(std::regex_match(
        lines[0].message,
        std::wregex(LR"(NEM pdf AddIn UI Version 2\.10\.4 M7 \(0x02100004\) vom [A-Z][a-z]{2} [ \d]\d \d{4}, )"
                    LR"(\d\d:\d\d:\d\d)")))
        << ToUtf8(lines[0].message);
    EXPECT_TRUE(std::regex_match(
        lines[1].message,
        std::wregex(LR"(    Native/Win32: GetVersionEx\(EX\): \d+\.\d+\.[\da-f]+, platform: 0x2, product: 0x\d+, )"
                    LR"(suite: 0x[\da-f]+, servicepack: \d+\.\d+)")))
        << ToUtf8(lines[1].message);
  }

  // In neither form that text takes in files.
  void ExpectNoPassword() const {
    std::string wide;
    for (const char character : std::string("hunter2")) wide += {character, '\0'};
    ASSERT_FALSE(bytes.empty());
    EXPECT_EQ(std::string::npos, bytes.find("hunter2"));
    EXPECT_EQ(std::string::npos, bytes.find(wide));
  }

  // The messages of a session; what its boxes add stands where they come up.
  Lines Expected(const Lines& badLineBox, const Lines& helpBox) const {
    Lines lines = {
        L"(the component)",
        L"(the system)",
        L"Error: SetProperty EncryptUserPasswort failed",
        L"Error: Setze Fehler 99(EncryptUserPasswort) in ..\\NemUI(207)",
        L"Warning: Property \"\" nicht verfuegbar (Set)",
        // The cockpits of both tabs.
        L"IsA4PaperDefault: Country = 49",
        L"IsA4PaperDefault = Yes",
        L"IsA4PaperDefault: Country = 49",
        L"IsA4PaperDefault = Yes",
        L"Driver Conf file not found " + driver.Directory() + L"NEMpdf.conf",
        L"Unknown BOOLValue StartActionMailCheck_Override = yes!",
        L"Unknown non negative number Value -96!",
        L"Driver Conf bad line SaveAktion_Override = 16!",
    };
    lines.insert(lines.end(), badLineBox.begin(), badLineBox.end());
    for (const wchar_t* line : {L"Error: ReadAdminSettings->Parse", L"Error: not completly parsed"})
      lines.emplace_back(line);
    lines.insert(lines.end(), helpBox.begin(), helpBox.end());
    for (const wchar_t* line :
         {L"Getting Property \"GraphicJpegQuality\"", L"Getting Property \"EncryptUserPassword\"",
          L"Getting Property \"EncryptOwnerPassword\"", L"Error: Setze Fehler 47 in ..\\Property(434)",
          L"Error: GetProperty EncryptOwnerPassword failed",
          L"Error: Aktueller Fehler: 47. Weiterer Fehler 99(EncryptOwnerPassword) in ..\\NemUI(275)", L"Trace closed."})
      lines.emplace_back(line);
    return lines;
  }

  ProductValue machineTrace{HKEY_LOCAL_MACHINE, L"TraceFilename"};
  ProductValue userTrace{HKEY_CURRENT_USER, L"TraceFilename"};
  ProductValue machineLog{HKEY_LOCAL_MACHINE, L"LogMsgFile"};
  ProductValue userLog{HKEY_CURRENT_USER, L"LogMsgFile"};
  RegistryValue country{HKEY_CURRENT_USER, L"Control Panel\\International", L"iCountry"};
  TestDriver driver;
  TestPrinter printer{L"Invoices"};
  DriverFile file{driver, L"Invoices.conf",
                  "EncryptOwnerPassword_Override = hunter2\r\n"
                  "StationeryInfos_Override = {{NAME:\"a\";FILE:\"b\";P:\"hunter2\";TYPE:\"0\"}}\r\n"
                  "StartActionMailCheck_Override = yes\r\n"
                  "GraphicResolution_Override = -96\r\n"
                  "SaveAktion_Override = 16\r\n"};
  const std::wstring badLineText =
      L"There was an error in the admin configuration file in line \"SaveAktion_Override = 16\".";
  const std::wstring noHelpText = L"The help file 'C:\\no such help.chm' cannot be found.";
  std::string bytes;  // of all that was written
};

const SourceDocument kDocument("docs/troubleshooting.md");

// What differs from run to run, made alike.
std::string Timeless(std::string text) {
  const std::pair<const char*, const char*> patterns[] = {
      {R"(\d\d\.\d\d\.\d{4} \d\d:\d\d:\d\d)", "(time)"},
      {R"(vom .*)", "vom (build)"},
      {R"(GetVersionEx\(EX\): .*)", "GetVersionEx(EX): (system)"},
  };
  for (const auto& [pattern, replacement] : patterns) text = std::regex_replace(text, std::regex(pattern), replacement);
  return text;
}

// The document shows what was written as the block behind this mark.
void ExpectShown(const std::string& mark, const std::wstring& written) {
  std::string shown = ToUtf8(written);
  shown.erase(std::remove(shown.begin(), shown.end(), '\r'), shown.end());
  std::string document = kDocument.Text();
  const std::string fence = "<!-- " + mark + ": of tests/product/SessionTraceTest.cpp -->\n\n```text\n";
  const size_t found = document.find(fence);
  ASSERT_NE(document.npos, found) << kDocument.Path() << " has no block of " << mark;
  const size_t begin = found + fence.size();
  const size_t end = document.find("```\n", begin);
  ASSERT_NE(document.npos, end);
  if (Timeless(shown) == Timeless(document.substr(begin, end - begin))) return;
  document.replace(begin, end - begin, shown);
  if (!kDocument.Update(document)) ADD_FAILURE() << kDocument.Stale("this session") << '\n' << shown;
}

}  // namespace

TEST_F(SessionTrace, EveryLineOfASessionIsAccountedFor) {
  const std::wstring begin = SortableNow();
  const std::wstring text = Traced([&] {
    Session({{.title = L"NEM pdf AddIn UI", .text = badLineText, .icon = MB_ICONERROR},
             {.title = L"Host", .text = noHelpText, .icon = MB_ICONERROR}});
  });
  const Lines logLookUp = {MissingValue(L"LogMsgFile"), MissingValue(L"LogMsgFile")};  // machine, user
  ExpectTrace(text, begin, Expected(logLookUp, logLookUp));
  ExpectNoPassword();
  ExpectShown("trace", text);
}

TEST_F(SessionTrace, WithAMessageLogNoBoxIsShownAndEveryLineOfItIsAccountedFor) {
  const TempFile log("session-boxes.log");
  userLog.Set(log.Name());
  const std::wstring begin = SortableNow();
  const std::wstring text = Traced([&] { Session({}); });
  const Lines logLookUp = {MissingValue(L"LogMsgFile")};  // the machine's
  ExpectTrace(text, begin, Expected(logLookUp, logLookUp));

  const Lines lines = SplitLines(log.Text());
  const Lines expected = {L"TITEL: \"NEM pdf AddIn UI\" MESSAGE: \"" + badLineText + L"\"",
                          L"TITEL: \"Host\" MESSAGE: \"" + noHelpText + L"\""};
  ASSERT_EQ(expected.size(), lines.size()) << ToUtf8(log.Text());
  std::wstring last = begin;
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::wstring stamp = lines[i].substr(0, 20);
    EXPECT_TRUE(std::regex_match(stamp, kStamp)) << ToUtf8(lines[i]);
    EXPECT_LE(last, SortableStamp(stamp));
    last = SortableStamp(stamp);
    EXPECT_EQ(expected[i], lines[i].substr(20));
  }
  EXPECT_LE(last, SortableNow());
  bytes += log.Bytes();
  ExpectNoPassword();
  ExpectShown("message log", log.Text());
}

TEST_F(SessionTrace, ASessionWithoutMistakesLeavesLittle) {
  file.Put("EncryptOwnerPassword_Override = hunter2\r\nGraphicJpegQuality_Override = 60\r\n");
  const DriverFile general(driver, L"NEMpdf.conf", "");
  const std::wstring begin = SortableNow();
  const std::wstring text = Traced([&] {
    HostDialog host;
    host.Set(NEMPDFUI_GENERAL, L"PrinterName", L"Invoices").Set(0, L"EncryptUserPassword", kPassword);
    const SheetResult result = RunSheet([&] { return host.DoModal(); },
                                        [](Sheet& sheet) -> SheetTask {
                                          bool shown = false;
                                          co_await ClickPage(sheet, kGraphicPage, shown);
                                          CO_ASSERT_TRUE(shown);
                                          sheet.PressOk();
                                        });
    EXPECT_EQ(1, result.value);
  });
  ExpectTrace(text, begin,
              {L"(the component)", L"(the system)", L"IsA4PaperDefault: Country = 49", L"IsA4PaperDefault = Yes",
               L"IsA4PaperDefault: Country = 49", L"IsA4PaperDefault = Yes", L"Trace closed."});
  ExpectNoPassword();
}
