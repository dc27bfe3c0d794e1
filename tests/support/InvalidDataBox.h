// The box with which a page tells a failure that nobody else has told.
#pragma once

#include "driver/Popups.h"

inline ExpectedBox InvalidDataBox(const wchar_t* title) {
  return {.title = title, .text = L"Invalid data was made.", .icon = MB_ICONERROR};
}
