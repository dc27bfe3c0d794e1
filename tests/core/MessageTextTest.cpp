#include "DriverLIB/MessageText.h"

#include <gtest/gtest.h>

#include <string>

#include "support/TestMessages.h"

namespace {

constexpr uint16_t kGerman = 0x0407;
constexpr uint16_t kSwissGerman = 0x0807;
constexpr uint16_t kFrench = 0x040C;
constexpr uint16_t kArabic = 0x0401;
constexpr uint16_t kItalian = 0x0410;
constexpr uint16_t kBritish = 0x0809;

enum : uint32_t {
  kNumber = 0x400003E8,
  kAll = 0x40010001,
  kOpenInFrench,
  kEnglishOnly,
  kGermanOnly,
  kNowhere,
  kText,
  kTextAndNumber,
  kLineBreak,
  kNearlyOpen,
  kOpenEverywhere,
};

class MessageTextTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_NE(messages.Module() == nullptr, kHasModule);
    SetModuleInstance(messages.Module());
    SetUILanguage(kEnglish);
  }
  void TearDown() override {
    SetModuleInstance(outerModule);
    SetUILanguage(outerLanguage);
  }

  std::wstring In(uint16_t language, uint32_t id) {
    SetUILanguage(language);
    CUString text(L"old");
    EXPECT_TRUE(LoadMsgText(text, messages.Module(), id));
    EXPECT_EQ(text, MessageText(id));
    return text.Text();
  }

#ifdef _WIN32
  static constexpr bool kHasModule = true;
#else
  static constexpr bool kHasModule = false;
#endif
  void* const outerModule = ModuleInstance();
  const uint16_t outerLanguage = GetUILanguage();
  TestMessages messages{
      {kNumber, 7, L"7%0"},
      {kNumber, 9, L"9%0"},
      {kNumber, 12, L"12%0"},
      {kNumber, 1, L"1%0"},
      {kAll, 7, L"Hallo%0"},
      {kAll, 9, L"Hello%0"},
      {kAll, 12, L"Bonjour%0"},
      {kAll, 1, L"\u0645\u0631\u062D\u0628\u0627%0"},
      {kOpenInFrench, 7, L"Deutsch%0"},
      {kOpenInFrench, 9, L"English%0"},
      {kOpenInFrench, 12, L"XX%0"},
      {kEnglishOnly, 9, L"English only%0"},
      {kGermanOnly, 7, L"Nur Deutsch%0"},
      {kText, 9, L"<%1!s!>%0"},
      {kTextAndNumber, 9, L"%2!d! of %1!s!, %3!u!%0"},
      {kLineBreak, 9, L"a%nb%0"},
      {kNearlyOpen, 9, L"English%0"},
      {kNearlyOpen, 12, L"XXX%0"},
      {kOpenEverywhere, 9, L"XX%0"},
      {kOpenEverywhere, 12, L"XX%0"},
  };
};

}  // namespace

TEST_F(MessageTextTest, TheTablesSpeakWholeLanguages) {
  struct {
    uint16_t language;
    const wchar_t* number;
    const wchar_t* text;
  } const rows[] = {
      {kEnglish, L"9", L"Hello"},
      {kBritish, L"9", L"Hello"},
      {9, L"9", L"Hello"},
      {kGerman, L"7", L"Hallo"},
      {kSwissGerman, L"7", L"Hallo"},
      {7, L"7", L"Hallo"},
      {kFrench, L"12", L"Bonjour"},
      {0x0C0C, L"12", L"Bonjour"},
      {kArabic, L"1", L"\u0645\u0631\u062D\u0628\u0627"},
      {0x0801, L"1", L"\u0645\u0631\u062D\u0628\u0627"},
      {kItalian, L"9", L"Hello"},  // no such table
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.number, In(row.language, kNumber)) << row.language;
    EXPECT_EQ(row.text, In(row.language, kAll)) << row.language;
  }
}

TEST_F(MessageTextTest, AnEntryLeftOpenComesInEnglish) {
  EXPECT_EQ(L"Deutsch", In(kGerman, kOpenInFrench));
  EXPECT_EQ(L"English", In(kFrench, kOpenInFrench));
}

TEST_F(MessageTextTest, OnlyTheTwoLettersMeanOpen) {
  EXPECT_EQ(L"XXX", In(kFrench, kNearlyOpen));
  EXPECT_EQ(L"XX", In(kFrench, kOpenEverywhere));
  EXPECT_EQ(L"XX", In(kEnglish, kOpenEverywhere));
}

TEST_F(MessageTextTest, AMissingEntryComesInEnglish) { EXPECT_EQ(L"English only", In(kGerman, kEnglishOnly)); }

TEST_F(MessageTextTest, AnEntryThatEnglishLacksIsEmpty) {
  EXPECT_EQ(L"", In(kEnglish, kGermanOnly));
  EXPECT_EQ(L"", In(kFrench, kGermanOnly));
  EXPECT_EQ(L"Nur Deutsch", In(kGerman, kGermanOnly));
}

TEST_F(MessageTextTest, AnUnknownIdIsAnEmptyTextAndNoFailure) {
  for (uint16_t language : {kEnglish, kGerman, kItalian}) EXPECT_EQ(L"", In(language, kNowhere));
}

TEST_F(MessageTextTest, InsertsAreTextsAndNumbers) {
  EXPECT_STREQ(L"-5 of file, 7", MessageText(kTextAndNumber, L"file", -5, 7u).Text());
  EXPECT_STREQ(L"2 of name, 4000000000", MessageText(kTextAndNumber, CUString(L"name"), 2L, 4000000000u).Text());
  const wchar_t array[] = L"array";
  EXPECT_STREQ(L"65535 of array, 1", MessageText(kTextAndNumber, array, uint16_t{0xFFFF}, true).Text());
}

TEST_F(MessageTextTest, AnInsertThatNobodyPassedIsEmpty) {
  EXPECT_STREQ(L"<>", MessageText(kText).Text());
  EXPECT_STREQ(L"<>", MessageText(kText, static_cast<const wchar_t*>(nullptr)).Text());
  EXPECT_STREQ(L"<>", MessageText(kText, CUString()).Text());
}

TEST_F(MessageTextTest, PercentNBreaksTheLine) { EXPECT_STREQ(L"a\r\nb", MessageText(kLineBreak).Text()); }

TEST_F(MessageTextTest, LoadMsgTextReservesRoomAndCountsTheLengthAnew) {
  CUString text(L"something long before");
  EXPECT_TRUE(LoadMsgText(text, messages.Module(), kAll));
  EXPECT_EQ(5, text.Length());
  EXPECT_GE(text.Capacity(), 32768);
}

TEST_F(MessageTextTest, TheInsertMayBeTheTextItself) {
  CUString text(L"inner");
  EXPECT_TRUE(LoadMsgText(text, messages.Module(), kText, text));
  EXPECT_TRUE(LoadMsgText(text, messages.Module(), kText, text));
  EXPECT_STREQ(L"<<inner>>", text.Text());
}

TEST_F(MessageTextTest, MessageTextIsNoLargerThanItsText) {
  for (int length : {0, 1, 1020, 1021, 1022, 1023, 5000, 30000}) {
    const std::wstring insert(length, L'x');
    const CUString text = MessageText(kText, insert.c_str());
    EXPECT_EQ(L"<" + insert + L">", text.Text());
    EXPECT_EQ(text.Length(), text.Capacity());
  }
}

TEST_F(MessageTextTest, ABufferIsFilledToItsLastButOneCharacter) {
  wchar_t buffer[8] = L"#######";
  EXPECT_TRUE(FormatMsgLang(messages.Module(), buffer, 4, kAll, MessageInserts()));
  EXPECT_STREQ(L"Hel", buffer);
  EXPECT_EQ(L'#', buffer[4]);
  EXPECT_TRUE(FormatMsgLang(messages.Module(), buffer, 1, kAll, MessageInserts()));
  EXPECT_STREQ(L"", buffer);
}

TEST_F(MessageTextTest, WithoutABufferThereIsNoText) {
  wchar_t character = L'#';
  EXPECT_FALSE(FormatMsgLang(messages.Module(), nullptr, 10, kAll, MessageInserts()));
  EXPECT_FALSE(FormatMsgLang(messages.Module(), &character, 0, kAll, MessageInserts()));
  EXPECT_EQ(L'#', character);
}

TEST_F(MessageTextTest, LanguageZeroLeavesTheLanguageUnchanged) {
  SetUILanguage(kFrench);
  SetUILanguage(0);
  EXPECT_EQ(kFrench, GetUILanguage());
}

TEST(UILanguage, AllOfArabicReadsFromRightToLeft) {
  for (uint16_t language : {0x0001, 0x0401, 0x0801, 0x4001}) EXPECT_TRUE(IsRightToLeft(language));
  for (uint16_t language : {0x0007, 0x0409, 0x040C, 0x0000, 0x0411}) EXPECT_FALSE(IsRightToLeft(language));
}

TEST(SystemErrorTexts, AreOneLine) {
  CUString text;
  GetSystemErrorText(text, 2);
  ASSERT_FALSE(text.IsEmpty());
  EXPECT_STRNE(L"Kein Fehlertext", text.Text());
  EXPECT_EQ(-1, text.FindOneOf(L"\r\n"));
}

TEST(SystemErrorTexts, AnUnknownErrorHasNone) {
  CUString text(L"old");
  GetSystemErrorText(text, 0x2FFFFFFF);
  EXPECT_STREQ(L"Kein Fehlertext", text.Text());
}
