#include "DriverLIB/Numbers.h"

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <string>

#include "DriverLIB/Platform.h"

namespace {

// The zeros of the scripts whose digits the run-time library reads, Latin and Arabic ones first.
constexpr wchar_t kZeros[] = {L'0',   0x0660, 0x06F0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0C66,
                              0x0CE6, 0x0D66, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x17E0, 0x1810, 0xFF10};

// The value of a digit, -1 for any other character.
int DigitValue(wchar_t character) {
  for (const wchar_t zero : kZeros)
    if (character >= zero && character <= zero + 9) return character - zero;
  return -1;
}

bool IsSign(char character) { return character == '+' || character == '-'; }

size_t CountDigits(std::string_view text) { return std::min(text.find_first_not_of("0123456789"), text.size()); }

// The length of what may be a number at the start of `text`: sign, digits with a point, exponent, each or none.
size_t NumberLength(std::string_view text) {
  size_t length = !text.empty() && IsSign(text.front()) ? 1 : 0;
  length += CountDigits(text.substr(length));
  if (length < text.size() && text[length] == '.') length += 1 + CountDigits(text.substr(length + 1));
  if (length < text.size() && (text[length] == 'e' || text[length] == 'E')) {
    ++length;
    if (length < text.size() && IsSign(text[length])) ++length;
    length += CountDigits(text.substr(length));
  }
  return length;
}

}  // namespace

int32_t ParseDecimal(WideView text) {
  size_t i = 0;
  while (i < text.size() && platform::IsWideSpace(text[i])) ++i;
  const bool negative = i < text.size() && text[i] == L'-';
  if (i < text.size() && (text[i] == L'-' || text[i] == L'+')) ++i;
  const int64_t limit = negative ? -int64_t{INT32_MIN} : INT32_MAX;
  int64_t value = 0;
  for (int digit; i < text.size() && (digit = DigitValue(text[i])) >= 0; ++i)
    value = std::min(value * 10 + digit, limit);
  return static_cast<int32_t>(negative ? -value : value);
}

double ParseDouble(NarrowView text) {
  std::string_view rest = text;
  while (!rest.empty() && platform::IsNarrowSpace(static_cast<unsigned char>(rest.front()))) rest.remove_prefix(1);
  // Only what is a number everywhere: run-time libraries differ in names of infinity, hexadecimal digits and the like.
  std::string number(rest.substr(0, NumberLength(rest)));
  // The run-time library reads by the locale of the process, which it shares with the host.
  if (const size_t point = number.find('.'); point != number.npos) number[point] = *std::localeconv()->decimal_point;
  return std::atof(number.c_str());
}

CUString FormatDouble(const wchar_t* format, double number) {
  CUString text;
  text.Format(format, number);
  // The run-time library writes by the locale of the process, too: what no number has anywhere is its decimal sign.
  const std::wstring_view written = text.View();
  const size_t sign = std::isfinite(number) ? written.find_first_not_of(L"+-0123456789.e") : written.npos;
  if (sign == written.npos) return text;
  const size_t decimals = std::min(written.find_first_of(L"0123456789", sign), written.size());
  return written.substr(0, sign) + CUString(L".") + written.substr(decimals);
}

double RoundDecimal(double value, int digits) {
  if (digits <= 0) return std::floor(value + 0.5);
  const double power = std::pow(10.0, digits);
  const double scaled = value * power + 0.5;
  return std::isfinite(scaled) ? std::floor(scaled) / power : value;
}
