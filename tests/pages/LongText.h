// Texts of more characters than the 32,767 that an edit takes at first.
#pragma once

#include <string>

inline const std::wstring kLongLine(33'000, L'x');

// For an edit of several lines: to wrap one long line costs Wine seconds.
inline const std::wstring kLongText = [] {
  std::wstring text;
  while (text.size() < kLongLine.size()) text += L"one of many lines\r\n";
  return text;
}();
