// What the fuzzers of the outline texts have in common: the rules, written a second time and slowly.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace outline_model {

using Text = std::wstring;

inline bool IsSpace(wchar_t character) { return (character >= 9 && character <= 13) || character == L' '; }

inline Text Trimmed(Text text) {
  while (!text.empty() && IsSpace(text.front())) text.erase(0, 1);
  while (!text.empty() && IsSpace(text.back())) text.pop_back();
  return text;
}

inline int32_t Number(const Text& text) {
  size_t i = 0;
  while (i < text.size() && IsSpace(text[i])) ++i;
  const bool negative = i < text.size() && text[i] == L'-';
  if (i < text.size() && (text[i] == L'-' || text[i] == L'+')) ++i;
  int64_t value = 0;
  for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9' && value <= INT32_MAX; ++i)
    value = value * 10 + (text[i] - L'0');
  return static_cast<int32_t>(std::clamp<int64_t>(negative ? -value : value, INT32_MIN, INT32_MAX));
}

// The library knows digits and white space of all scripts, these rules those of Latin ones.
inline void DropOtherScripts(Text& text) {
  std::erase_if(text, [](wchar_t character) { return character > 0xFF; });
}

struct Styles {
  std::vector<Text> names;
  std::vector<int32_t> levels;
};

inline Styles ReadStyles(Text text) {
  Styles styles;
  for (bool isName = true; !text.empty(); isName = !isName) {
    const size_t end = text.find(L';');
    const Text part = Trimmed(text.substr(0, end));
    text = end == text.npos ? Text() : text.substr(end + 1);
    if (part.empty()) continue;
    if (isName)
      styles.names.push_back(part);
    else
      styles.levels.push_back(Number(part));
  }
  return styles;
}

}  // namespace outline_model
