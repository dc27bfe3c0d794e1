// The language of the dialogs, as chosen by the user, the administrator or the system.
#pragma once

#include <cstdint>

#include "DriverLIB/Platform.h"

// The registry's choice: that of the user, else that of the machine. 0 when there is none, and when the user chose to
// follow the system (the stored number 1).
uint16_t ReadLanguageSetting();

// The user's language, or on systems before Windows 2000 that of the system; 0 when the version cannot be told.
uint16_t GetSystemLanguage();

// What GetSystemLanguage answers on a system of that version; null for an unknown one.
uint16_t SystemLanguageOf(const platform::SystemVersion* version);
