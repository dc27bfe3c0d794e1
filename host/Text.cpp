#include "Text.h"

namespace host {
namespace {

constexpr wchar_t kByteOrderMark = 0xFEFF;
constexpr uint32_t kReplacementCharacter = 0xFFFD;

bool IsHighSurrogate(uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
bool IsSurrogate(uint32_t unit) { return IsHighSurrogate(unit) || IsLowSurrogate(unit); }
bool IsBlank(wchar_t character) { return character == L' ' || character == L'\t'; }

void AppendCodePoint(uint32_t codePoint, std::wstring& text) {
  if (codePoint < 0x10000) {
    text += static_cast<wchar_t>(codePoint);
    return;
  }
  text += static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10));
  text += static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
}

// Takes the first character off valid UTF-8 bytes. False for bytes that are not: cut or overlong sequences,
// surrogates, and numbers beyond Unicode.
bool TakeCodePoint(std::string_view& bytes, uint32_t& codePoint) {
  struct Form {
    uint8_t mask, lead;
    uint32_t least;
  };
  constexpr Form kForms[] = {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};

  const auto lead = static_cast<uint8_t>(bytes[0]);
  size_t length = 1;
  for (const Form& form : kForms) {
    if ((lead & form.mask) == form.lead) {
      if (bytes.size() < length) return false;
      codePoint = lead & static_cast<uint8_t>(~form.mask);
      for (size_t i = 1; i < length; ++i) {
        const auto next = static_cast<uint8_t>(bytes[i]);
        if ((next & 0xC0) != 0x80) return false;
        codePoint = codePoint << 6 | (next & 0x3F);
      }
      bytes.remove_prefix(length);
      return codePoint >= form.least && codePoint <= 0x10FFFF && !IsSurrogate(codePoint);
    }
    ++length;
  }
  return false;
}

DecodedText DecodeUtf8(std::string_view bytes) {
  DecodedText result{.text = {}, .complete = true};
  result.text.reserve(bytes.size());
  while (!bytes.empty()) {
    uint32_t codePoint = 0;
    if (!TakeCodePoint(bytes, codePoint)) {
      result.complete = false;
      break;
    }
    AppendCodePoint(codePoint, result.text);
  }
  return result;
}

DecodedText DecodeUtf16(std::string_view bytes) {
  DecodedText result{.text = {}, .complete = bytes.size() % 2 == 0};
  result.text.reserve(bytes.size() / 2);
  for (size_t i = 0; i + 1 < bytes.size(); i += 2)
    result.text += static_cast<wchar_t>(static_cast<uint8_t>(bytes[i]) | static_cast<uint8_t>(bytes[i + 1]) << 8);
  return result;
}

void AppendUtf8(uint32_t codePoint, std::string& bytes) {
  if (codePoint < 0x80) {
    bytes += static_cast<char>(codePoint);
    return;
  }
  const int following = codePoint < 0x800 ? 1 : codePoint < 0x10000 ? 2 : 3;
  constexpr uint8_t kLeads[] = {0, 0xC0, 0xE0, 0xF0};
  bytes += static_cast<char>(kLeads[following] | codePoint >> (6 * following));
  for (int i = following - 1; i >= 0; --i) bytes += static_cast<char>(0x80 | (codePoint >> (6 * i) & 0x3F));
}

int DigitValue(wchar_t character) {
  if (character >= L'0' && character <= L'9') return character - L'0';
  if (character >= L'a' && character <= L'f') return character - L'a' + 10;
  if (character >= L'A' && character <= L'F') return character - L'A' + 10;
  return -1;
}

// The number behind `digits`, at most `greatest`.
std::optional<int64_t> ParseDigits(std::wstring_view digits, int base, int64_t greatest) {
  if (digits.empty()) return {};
  int64_t number = 0;
  for (wchar_t character : digits) {
    const int digit = DigitValue(character);
    if (digit < 0 || digit >= base) return {};
    number = number * base + digit;
    if (number > greatest) return {};
  }
  return number;
}

void AppendHexEscape(wchar_t unit, std::wstring& line) {
  line += L"^u";
  for (int shift = 12; shift >= 0; shift -= 4) line += L"0123456789ABCDEF"[unit >> shift & 0xF];
}

// The letter of the escape that stands for `character`, 0 when it has none.
wchar_t EscapeLetter(wchar_t character) {
  switch (character) {
    case L'\n':
      return L'n';
    case L'\r':
      return L'r';
    case L'\t':
      return L't';
    case L' ':
      return L's';
    case L'^':
      return L'^';
    default:
      return 0;
  }
}

}  // namespace

DecodedText DecodeText(std::string_view bytes) {
  constexpr std::string_view kUtf16Mark = "\xFF\xFE";
  constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kUtf16Mark)) return DecodeUtf16(bytes.substr(kUtf16Mark.size()));
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  return DecodeUtf8(bytes);
}

std::string EncodeUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    uint32_t codePoint = static_cast<uint16_t>(text[i]);
    if (IsHighSurrogate(codePoint) && i + 1 < text.size() && IsLowSurrogate(static_cast<uint16_t>(text[i + 1])))
      codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (static_cast<uint16_t>(text[++i]) - 0xDC00);
    AppendUtf8(IsSurrogate(codePoint) ? kReplacementCharacter : codePoint, bytes);
  }
  return bytes;
}

std::wstring EscapeText(std::wstring_view text) {
  std::wstring line;
  line.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    const wchar_t unit = text[i];
    const bool isPair = IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
    const bool isInside = i > 0 && i + 1 < text.size();
    const wchar_t letter = unit == L' ' && isInside ? 0 : EscapeLetter(unit);
    if (letter) {
      (line += L'^') += letter;
    } else if (isPair) {
      (line += unit) += text[++i];
    } else if (unit < 0x20 || unit == 0x7F || unit == kByteOrderMark || IsSurrogate(unit)) {
      AppendHexEscape(unit, line);
    } else {
      line += unit;
    }
  }
  return line;
}

std::optional<std::wstring> UnescapeText(std::wstring_view line) {
  std::wstring text;
  text.reserve(line.size());
  for (size_t i = 0; i < line.size(); ++i) {
    if (line[i] != L'^') {
      text += line[i];
      continue;
    }
    if (++i == line.size()) return {};
    if (line[i] == L'u') {
      const auto unit = ParseDigits(line.substr(i + 1, 4), 16, 0xFFFF);
      if (line.size() - i < 5 || !unit || *unit == 0) return {};
      text += static_cast<wchar_t>(*unit);
      i += 4;
      continue;
    }
    constexpr std::wstring_view kEscaped = L"\n\r\t ^";
    size_t found = 0;
    while (found < kEscaped.size() && EscapeLetter(kEscaped[found]) != line[i]) ++found;
    if (found == kEscaped.size()) return {};
    text += kEscaped[found];
  }
  return text;
}

std::optional<int32_t> ParseNumber(std::wstring_view text) {
  if (text.starts_with(L"0x") || text.starts_with(L"0X")) {
    const auto bits = ParseDigits(text.substr(2), 16, 0xFFFFFFFF);
    if (!bits) return {};
    return static_cast<int32_t>(static_cast<uint32_t>(*bits));
  }
  const bool isNegative = text.starts_with(L'-');
  const auto number = ParseDigits(text.substr(isNegative), 10, isNegative ? 0x80000000 : 0x7FFFFFFF);
  if (!number) return {};
  return static_cast<int32_t>(isNegative ? -*number : *number);
}

std::wstring FormatNumber(int64_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

std::wstring_view TrimBlanks(std::wstring_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace host
