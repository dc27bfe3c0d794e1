#include <windows.h>

#include "DriverLIB/Resources.h"

#include "DriverLIB/MessageText.h"

namespace {

BOOL CALLBACK NoteNeutral(HMODULE, const wchar_t*, const wchar_t*, WORD language, LONG_PTR found) {
  *reinterpret_cast<bool*>(found) = language == 0;
  return language != 0;
}

// Searching for language 0 means that of the thread, so what belongs to no language must be asked for in another way.
bool HasNeutral(HMODULE module, const wchar_t* name, const wchar_t* type) {
  bool found = false;
  EnumResourceLanguagesW(module, type, name, NoteNeutral, reinterpret_cast<LONG_PTR>(&found));
  return found;
}

HRSRC FindInChain(HMODULE module, const wchar_t* name, const wchar_t* type, uint16_t language) {
  for (uint16_t candidate : {language, PrimaryLanguage(language), PrimaryLanguage(kEnglish), kEnglish})
    if (HRSRC resource = FindResourceExW(module, type, name, candidate)) return resource;
  return HasNeutral(module, name, type) ? FindResourceExW(module, type, name, 0) : nullptr;
}

}  // namespace

const void* LockResourceLang(void* module, const wchar_t* name, const wchar_t* type, uint16_t language, size_t* size) {
  const HMODULE instance = static_cast<HMODULE>(module);
  HRSRC resource = FindInChain(instance, name, type, language != 0 ? language : GetUILanguage());
  if (size) *size = resource ? SizeofResource(instance, resource) : 0;
  return resource ? LockResource(LoadResource(instance, resource)) : nullptr;
}
