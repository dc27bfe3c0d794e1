// Values that an administrator sets for the machine or a user for himself.
#pragma once

#include "DriverLIB/CUString.h"

// The text of `value` under `key`: that of HKEY_LOCAL_MACHINE, or if it is empty that of HKEY_CURRENT_USER.
CUString ReadProductText(const wchar_t* key, const wchar_t* value);
