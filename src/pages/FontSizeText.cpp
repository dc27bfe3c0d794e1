#include "pages/FontSizeText.h"

#include <algorithm>
#include <string>

#include "DriverLIB/Numbers.h"

namespace {

constexpr double kSmallest = 1.0, kLargest = 999.0;
constexpr std::wstring_view kDigits = L"0123456789", kSeparators = L".,", kHalves = L"05";

}  // namespace

double ParseFontSize(WideView text) {
  std::string number;
  for (const wchar_t character : text) {
    if (character >= 0x80) break;
    number += character == L',' ? '.' : static_cast<char>(character);
  }
  return ParseDouble(number);
}

bool IsValidFontSize(WideView text) {
  const size_t separator = std::min(text.find_first_of(kSeparators), text.size());
  const std::wstring_view decimals = text.substr(std::min(separator + 1, text.size()));
  for (const std::wstring_view digits : {text.substr(0, separator), decimals})
    if (digits.find_first_not_of(kDigits) != digits.npos) return false;
  if (!decimals.empty() && kHalves.find(decimals.front()) == kHalves.npos) return false;
  const double size = ParseFontSize(text);
  return size >= kSmallest && size <= kLargest;
}
