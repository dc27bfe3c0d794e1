#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "driver/ImportPatch.h"
#include "driver/Popups.h"
#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/MessageText.h"
#include "support/RegistryValue.h"
#include "support/TempFile.h"
#include "support/TestMessages.h"

namespace {

constexpr uint32_t kQuestion = 0x40010001;
constexpr uint32_t kError = 0xC0010001;

struct Call {
  HWND window = nullptr;
  std::wstring text, title;
  UINT flags = 0;
};
Call lastCall;
int calls = 0;

int WINAPI NoteBox(HWND window, const wchar_t* text, const wchar_t* title, UINT flags) {
  ++calls;
  lastCall = {window, text, title, flags};
  return IDRETRY;
}

class MessageBoxTest : public testing::Test {
 protected:
  ~MessageBoxTest() override { SetUILanguage(outerLanguage); }

  const uint16_t outerLanguage = GetUILanguage();
  ProductValue machineLog{HKEY_LOCAL_MACHINE, L"LogMsgFile"};
  ProductValue userLog{HKEY_CURRENT_USER, L"LogMsgFile"};
  TestMessages messages{{kQuestion, 9, L"Delete \"%1!s!\"?%nReally?%0"}, {kError, 9, L"Error %1!d!%0"}};
};

// With MessageBoxW itself replaced.
class MessageBoxCallTest : public MessageBoxTest {
 protected:
  MessageBoxCallTest() {
    calls = 0;
    PatchImport("user32.dll", "MessageBoxW", reinterpret_cast<void*>(NoteBox));
  }
  ~MessageBoxCallTest() override { RestoreImport("user32.dll", "MessageBoxW"); }
};

// "dd.mm.yyyy hh:mm:ss " with the digits made zeros.
std::wstring WithoutTime(std::wstring line) {
  for (size_t i = 0; i < 20 && i < line.size(); ++i)
    if (line[i] >= L'0' && line[i] <= L'9') line[i] = L'0';
  return line;
}

// A system whose texts have 300 letters.
DWORD languageAskedFor = 0;
DWORD WINAPI LongSystemText(DWORD flags, const void*, DWORD, DWORD language, wchar_t* buffer, DWORD size, va_list*) {
  constexpr DWORD kLength = 300;
  languageAskedFor = language;
  if (flags & FORMAT_MESSAGE_ALLOCATE_BUFFER) {
    void* const memory = LocalAlloc(LPTR, (kLength + 1) * sizeof(wchar_t));
    *reinterpret_cast<void**>(buffer) = memory;
    buffer = static_cast<wchar_t*>(memory);
  } else if (size <= kLength) {
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return 0;
  }
  *std::fill_n(buffer, kLength, L'x') = L'\0';
  return kLength;
}

}  // namespace

TEST(SystemErrorTexts, AreCutAt256CharactersOfTheUsersLanguage) {
  ASSERT_GT(PatchImport("kernel32.dll", "FormatMessageW", reinterpret_cast<void*>(&LongSystemText)), 0);
  CUString text;
  GetSystemErrorText(text, 5);
  RestoreImport("kernel32.dll", "FormatMessageW");
  EXPECT_EQ(std::wstring(256, L'x'), text.Text());
  EXPECT_EQ(DWORD{MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT)}, languageAskedFor);
}

TEST_F(MessageBoxTest, TheBoxShowsTextTitleAndIcon) {
  Popups popups;
  popups.ExpectBox({.title = L"A title",
                    .text = L"Delete \"x\"?\r\nReally?",
                    .icon = MB_ICONQUESTION,
                    .button = IDNO,
                    .rightToLeft = false});
  EXPECT_EQ(IDNO, MsgBoxById(nullptr, messages.Module(), L"A title", kQuestion, MB_YESNO | MB_ICONQUESTION, L"x"));
  popups.ExpectBox({.title = L"NEM pdf AddIn UI", .text = L"Error 5", .icon = MB_ICONERROR, .button = IDOK});
  EXPECT_EQ(IDOK, MsgBoxById(nullptr, messages.Module(), nullptr, kError, MB_OK | MB_ICONERROR, 5));
}

TEST_F(MessageBoxCallTest, OnlyANullTitleIsReplaced) {
  SetUILanguage(kEnglish);
  MsgBoxById(nullptr, messages.Module(), nullptr, kError, MB_OK, 1);
  EXPECT_EQ(L"NEM pdf AddIn UI", lastCall.title);
  MsgBoxById(nullptr, messages.Module(), L"", kError, MB_OK, 1);
  EXPECT_EQ(L"", lastCall.title);
  EXPECT_EQ(2, calls);
}

TEST_F(MessageBoxCallTest, OwnerFlagsAndResultPassUnchanged) {
  SetUILanguage(0x0407);
  HWND owner = GetDesktopWindow();
  EXPECT_EQ(IDRETRY, MsgBoxById(owner, messages.Module(), L"t", kError, MB_RETRYCANCEL | MB_ICONWARNING, 1));
  EXPECT_EQ(owner, lastCall.window);
  EXPECT_EQ(static_cast<UINT>(MB_RETRYCANCEL | MB_ICONWARNING), lastCall.flags);
}

TEST_F(MessageBoxCallTest, EveryArabicReadsFromRightToLeft) {
  for (uint16_t language : {0x0401, 0x0801, 0x0001, 0x4001}) {
    SetUILanguage(language);
    MsgBoxById(nullptr, messages.Module(), L"t", kError, MB_ICONERROR, 1);
    EXPECT_EQ(0x180000u | MB_ICONERROR, lastCall.flags) << language;
  }
  for (uint16_t language : {0x0407, 0x0409, 0x040C, 0x0410}) {
    SetUILanguage(language);
    MsgBoxById(nullptr, messages.Module(), L"t", kError, MB_ICONERROR, 1);
    EXPECT_EQ(static_cast<UINT>(MB_ICONERROR), lastCall.flags) << language;
  }
}

TEST_F(MessageBoxCallTest, AMessageThatDoesNotExistIsAnEmptyBox) {
  MsgBoxById(nullptr, messages.Module(), L"t", 0x40019999, MB_OK);
  EXPECT_EQ(L"", lastCall.text);
}

TEST_F(MessageBoxCallTest, TheShortFormTakesTheLibrarysOwnMessages) {
  void* const outer = ModuleInstance();
  SetModuleInstance(messages.Module());
  SetUILanguage(kEnglish);
  MsgBoxById(nullptr, L"t", kError, MB_OK, 7);
  EXPECT_EQ(L"Error 7", lastCall.text);
  SetModuleInstance(outer);
}

TEST_F(MessageBoxCallTest, WithALogFileAQuestionIsNeverAsked) {
  TempFile log("message_boxes.log");
  userLog.Set(log.Name());
  SetUILanguage(kEnglish);
  EXPECT_EQ(1, MsgBoxById(nullptr, messages.Module(), nullptr, kError, MB_YESNO, 3));
  EXPECT_EQ(1, MsgBoxById(nullptr, messages.Module(), L"T", kError, MB_OK, 4));
  EXPECT_EQ(0, calls);
  const std::wstring text = log.Text();
  const size_t second = text.find(L"\r\n") + 2;
  EXPECT_EQ(L"00.00.0000 00:00:00 TITEL: \"NEM pdf AddIn UI\" MESSAGE: \"Error 3\"\r\n",
            WithoutTime(text.substr(0, second)));
  EXPECT_EQ(L"00.00.0000 00:00:00 TITEL: \"T\" MESSAGE: \"Error 4\"\r\n", WithoutTime(text.substr(second)));
}

TEST_F(MessageBoxCallTest, TheLogIsExtendedAsLittleEndian16BitTextWithoutAMark) {
  TempFile log("message_boxes.log");
  log.Put("before");
  userLog.Set(log.Name());
  EXPECT_TRUE(LogMessageBox(L"\u20AC", L"a\r\nb"));
  constexpr size_t kStart = 6;  // "before"
  constexpr size_t kStampBytes = 40;
  const std::string bytes = log.Bytes();
  EXPECT_EQ("before", bytes.substr(0, kStart));
  EXPECT_EQ('.', bytes[kStart + 4]);
  EXPECT_EQ('\0', bytes[kStart + 5]);
  const std::wstring text = L"TITEL: \"\u20AC\" MESSAGE: \"a\r\nb\"\r\n";
  std::string expected;
  for (const wchar_t character : text) {
    expected += static_cast<char>(character & 0xFF);
    expected += static_cast<char>(character >> 8);
  }
  EXPECT_EQ(expected, bytes.substr(kStart + kStampBytes));
}

TEST_F(MessageBoxCallTest, ShownAndDivertedBoxesAreCounted) {
  const unsigned before = MessageBoxCount();
  MsgBoxById(nullptr, messages.Module(), L"T", kError, MB_OK, 4);
  userLog.Set(L"C:\\NemPdfNoSuchFolder\\boxes.log");
  MsgBoxById(nullptr, messages.Module(), L"T", kError, MB_OK, 4);
  EXPECT_EQ(before + 2, MessageBoxCount());
}

TEST_F(MessageBoxCallTest, TheMachinesLogFileGoesFirst) {
  TempFile machineFile("machine_boxes.log");
  TempFile userFile("user_boxes.log");
  userLog.Set(userFile.Name());
  machineLog.Set(machineFile.Name());
  EXPECT_TRUE(LogMessageBox(L"a", L"b"));
  EXPECT_TRUE(machineFile.Exists());
  EXPECT_FALSE(userFile.Exists());
  machineLog.Set(L"");
  EXPECT_TRUE(LogMessageBox(L"a", L"b"));
  EXPECT_TRUE(userFile.Exists());
  userLog.Delete();
  EXPECT_FALSE(LogMessageBox(L"a", L"b"));
}

TEST_F(MessageBoxCallTest, ALogFileThatCannotBeOpenedLosesTheLineOnly) {
  userLog.Set(L"C:\\NemPdfNoSuchFolder\\boxes.log");
  EXPECT_EQ(1, MsgBoxById(nullptr, messages.Module(), L"T", kError, MB_YESNO, 4));
  EXPECT_EQ(0, calls);
}
