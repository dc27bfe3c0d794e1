// Lets a failed comparison show a string of the library as text instead of bytes.
#pragma once

#include <gtest/gtest.h>

#include <ostream>

#include "DriverLIB/CEString.h"
#include "DriverLIB/CUString.h"

inline void PrintTo(const CUString& text, std::ostream* stream) {
  *stream << testing::PrintToString(std::wstring(text.View()));
}

inline void PrintTo(const CEString& text, std::ostream* stream) {
  *stream << testing::PrintToString(std::string(text.View()));
}
