#include <windows.h>

#include "DriverLIB/LanguageSetting.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "driver/ImportPatch.h"
#include "DriverLIB/MessageText.h"
#include "DriverLIB/ModuleState.h"
#include "MessageIds.h"
#include "support/FunctionPatch.h"
#include "support/RegistryValue.h"
#include "support/TestMessages.h"

namespace {

constexpr char kKernel[] = "kernel32.dll";

LANGID userLanguage = 0;
LANGID WINAPI UserLanguage() { return userLanguage; }

std::vector<WORD> recordLanguages;
BOOL WINAPI RecordLanguages(HMODULE module, const wchar_t* type, const wchar_t* name, ENUMRESLANGPROCW visit,
                            LONG_PTR parameter) {
  EXPECT_EQ(GetModuleHandleW(L"ntdll.dll"), module);
  EXPECT_EQ(RT_VERSION, type);
  EXPECT_EQ(MAKEINTRESOURCEW(VS_VERSION_INFO), name);
  for (WORD language : recordLanguages)
    if (!visit(module, type, name, language, parameter)) break;
  return TRUE;
}

LONG WINAPI RefuseVersion(OSVERSIONINFOEXW*) { return static_cast<LONG>(0xC0000001); }  // unsuccessful

platform::SystemVersion OldSystem(uint32_t platformId) {
  platform::SystemVersion version{};
  version.major = 4;
  version.platformId = platformId;
  return version;
}

class LanguageTest : public testing::Test {
 protected:
  LanguageTest() {
    userLanguage = 0x0809;
    PatchImport(kKernel, "GetUserDefaultLangID", reinterpret_cast<void*>(UserLanguage));
  }
  ~LanguageTest() override {
    RestoreImport(kKernel, "GetUserDefaultLangID");
    RestoreImport(kKernel, "EnumResourceLanguagesW");
  }

  ProductValue user{HKEY_CURRENT_USER, L"LanguageID"};
  ProductValue machine{HKEY_LOCAL_MACHINE, L"LanguageID"};
};

// Starts the library anew with a message table of four languages.
class LanguageChoiceTest : public LanguageTest {
 protected:
  LanguageChoiceTest() {
    FreeThreadState();
    ReleaseThreadSlots();
  }
  ~LanguageChoiceTest() override {
    SetUILanguage(kEnglish);
    ReleaseThreadSlots();
    InitModule(GetModuleHandleW(nullptr));
    InitThreadState(GetModuleHandleW(nullptr));
  }

  uint16_t Choose(uint16_t before = kEnglish) {
    SetUILanguage(before);
    EXPECT_TRUE(InitModule(messages.Module()));
    ReleaseThreadSlots();
    return GetUILanguage();
  }

  TestMessages messages{{MSG_LANGUAGE_NUMBER, 7, L"7%0"},
                        {MSG_LANGUAGE_NUMBER, 9, L"9%0"},
                        {MSG_LANGUAGE_NUMBER, 12, L"12%0"},
                        {MSG_LANGUAGE_NUMBER, 1, L"1%0"}};
};

}  // namespace

TEST_F(LanguageTest, TheUsersNumberGoesFirst) {
  EXPECT_EQ(0, ReadLanguageSetting());
  machine.Set(L"1036");
  EXPECT_EQ(1036, ReadLanguageSetting());
  user.Set(L"1031");
  EXPECT_EQ(1031, ReadLanguageSetting());
  user.Set(L"0");
  EXPECT_EQ(1036, ReadLanguageSetting());
}

TEST_F(LanguageTest, OnlyTheUserCanAskForTheSystemsLanguage) {
  machine.Set(L"1");
  EXPECT_EQ(1, ReadLanguageSetting());  // a language like any other
}

TEST_F(LanguageTest, AUsersNumberWithoutALanguageStandsBeforeTheMachines) {
  user.Set(L"65536");
  machine.Set(L"1031");
  EXPECT_EQ(0, ReadLanguageSetting());
}

TEST_F(LanguageTest, AUserWhoFollowsTheSystemOverrulesTheMachine) {
  user.Set(L"1");
  machine.Set(L"1031");
  EXPECT_EQ(0, ReadLanguageSetting());
}

TEST_F(LanguageTest, OnlyTheLow16BitsCount) {
  user.Set(L"66567");  // 0x10407
  EXPECT_EQ(0x0407, ReadLanguageSetting());
  user.Delete();
  machine.Set(L"66567");
  EXPECT_EQ(0x0407, ReadLanguageSetting());
}

TEST_F(LanguageTest, TheSystemsLanguageIsThatOfTheUser) {
  userLanguage = 0x0C07;
  EXPECT_EQ(0x0C07, GetSystemLanguage());
}

TEST_F(LanguageTest, AnUnknownSystemHasNoLanguage) { EXPECT_EQ(0, SystemLanguageOf(nullptr)); }

TEST_F(LanguageTest, TheConsumerFamilyKeepsAHexadecimalText) {
  RegistryValue locale(HKEY_CURRENT_USER, L"Control Panel\\Desktop\\ResourceLocale", L"");
  const platform::SystemVersion version = OldSystem(VER_PLATFORM_WIN32_WINDOWS);
  EXPECT_EQ(0x0809, SystemLanguageOf(&version));  // nothing there
  struct {
    const wchar_t* text;
    uint16_t language;
  } const rows[] = {{L"00000407", 0x0407}, {L"40c", 0x040C},  {L"040C,x", 0x040C}, {L"0x407", 0x0809},
                    {L"-407", 0x0809},     {L"fFfF", 0xFFFF}, {L"", 0x0809},       {L"10407", 0x0407}};
  for (const auto& row : rows) {
    locale.Set(row.text);
    EXPECT_EQ(row.language, SystemLanguageOf(&version)) << testing::PrintToString(row.text);
  }
}

TEST_F(LanguageTest, OldSystemsAreKnownByTheirVersionRecord) {
  PatchImport(kKernel, "EnumResourceLanguagesW", reinterpret_cast<void*>(RecordLanguages));
  platform::SystemVersion version = OldSystem(VER_PLATFORM_WIN32_NT);
  const std::pair<std::vector<WORD>, uint16_t> rows[] = {
      {{0x0407}, 0x0407}, {{0x0409, 0x040C}, 0x040C}, {{0x0409, 0x040C, 0x0407}, 0x0809}, {{}, 0x0809}};
  for (const auto& [languages, expected] : rows) {
    recordLanguages = languages;
    EXPECT_EQ(expected, SystemLanguageOf(&version));
  }
  recordLanguages = {0x0407};
  version.major = 5;
  EXPECT_EQ(0x0809, SystemLanguageOf(&version));
}

TEST_F(LanguageTest, TheProductsOwnTablesKnowTheirLanguage) {
  const uint16_t outer = GetUILanguage();
  for (uint16_t language : {0x0407, 0x0409, 0x040C, 0x0401, 0x0807}) {
    SetUILanguage(language);
    EXPECT_EQ(std::to_wstring(PrimaryLanguage(language)), MessageText(MSG_LANGUAGE_NUMBER).Text());
  }
  SetUILanguage(outer);
}

TEST_F(LanguageChoiceTest, ALanguageWithATableStands) {
  for (uint16_t language : {0x0407, 0x0807, 0x0409, 0x0809, 0x040C, 0x0401, 0x0801}) {
    user.Set(std::to_wstring(language));
    EXPECT_EQ(language, Choose());
  }
}

TEST_F(LanguageChoiceTest, ALanguageWithoutATableGivesWay) {
  user.Set(L"1040");
  EXPECT_EQ(kEnglish, Choose());
  EXPECT_EQ(0x040C, Choose(0x040C));  // to the one in force
}

TEST_F(LanguageChoiceTest, TheSystemsLanguageIsTakenWhenNoneIsSet) {
  userLanguage = 0x0C07;
  EXPECT_EQ(0x0C07, Choose());
  userLanguage = 0x0411;
  EXPECT_EQ(kEnglish, Choose());
  user.Set(L"1");
  machine.Set(L"1036");
  userLanguage = 0x0407;
  EXPECT_EQ(0x0407, Choose());
}

TEST_F(LanguageChoiceTest, ASystemThatDoesNotTellItsVersionLeavesTheLanguageInForce) {
  const FunctionPatch refusal(L"ntdll.dll", "RtlGetVersion", reinterpret_cast<void*>(&RefuseVersion));
  EXPECT_EQ(0, GetSystemLanguage());
  EXPECT_EQ(0x040C, Choose(0x040C));
}
