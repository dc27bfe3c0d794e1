#include <windows.h>

#include "DriverLIB/LanguageSetting.h"

#include "DriverLIB/CRegistryEntry.h"
#include "DriverLIB/Identity.h"

namespace {

constexpr int32_t kFollowSystem = 1;

// Hexadecimal digits up to the first other character.
uint32_t HexNumber(const wchar_t* text) {
  uint32_t number = 0;
  for (; *text; ++text) {
    const wchar_t letter = *text | 0x20;
    if (*text >= L'0' && *text <= L'9')
      number = number * 16 + (*text - L'0');
    else if (letter >= L'a' && letter <= L'f')
      number = number * 16 + (letter - L'a' + 10);
    else
      break;
  }
  return number;
}

// Where the consumer family of old systems keeps its language.
uint16_t ResourceLocale() {
  CRegistryEntry entry(L"Control Panel\\Desktop\\ResourceLocale", nullptr);
  entry.ReadString();
  return static_cast<uint16_t>(HexNumber(entry.data.Text()));
}

struct LanguageCount {
  int count = 0;
  uint16_t last = 0;
};

BOOL CALLBACK CountLanguage(HMODULE, const wchar_t*, const wchar_t*, WORD language, LONG_PTR parameter) {
  LanguageCount& languages = *reinterpret_cast<LanguageCount*>(parameter);
  ++languages.count;
  languages.last = language;
  return TRUE;
}

// The languages of the system's own version record: that of a localised system, with or without English beside it.
uint16_t SystemVersionRecordLanguage() {
  LanguageCount languages;
  EnumResourceLanguagesW(GetModuleHandleW(L"ntdll.dll"), RT_VERSION, MAKEINTRESOURCEW(1), CountLanguage,
                         reinterpret_cast<LONG_PTR>(&languages));
  return languages.count <= 2 ? languages.last : 0;
}

}  // namespace

uint16_t ReadLanguageSetting() {
  CRegistryEntry entry(kProductKey, L"LanguageID");
  const int32_t user = entry.SetRoot(HKEY_CURRENT_USER).ReadLong();
  if (user == kFollowSystem) return 0;
  if (user != 0) return static_cast<uint16_t>(user);
  return static_cast<uint16_t>(entry.SetRoot(HKEY_LOCAL_MACHINE).ReadLong());
}

uint16_t GetSystemLanguage() {
  platform::SystemVersion version;
  return SystemLanguageOf(platform::GetSystemVersion(version) ? &version : nullptr);
}

uint16_t SystemLanguageOf(const platform::SystemVersion* version) {
  if (!version) return 0;
  uint16_t language = 0;
  if (version->platformId == VER_PLATFORM_WIN32_WINDOWS)
    language = ResourceLocale();
  else if (version->platformId == VER_PLATFORM_WIN32_NT && version->major < 5)
    language = SystemVersionRecordLanguage();
  return language != 0 ? language : GetUserDefaultLangID();
}
