// Texts of the host: UTF-16 inside, UTF-8 or UTF-16 in files, and the escapes that make any text fit on one line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host {

// The bytes of a file as UTF-16, without byte order mark. A file that begins with FF FE is UTF-16 in little-endian
// order, any other one UTF-8. `complete` is false when the bytes are not valid; the text then ends before the first
// bad one.
struct DecodedText {
  std::wstring text;
  bool complete;
};
DecodedText DecodeText(std::string_view bytes);

// UTF-8; half of a surrogate pair becomes U+FFFD.
std::string EncodeUtf8(std::wstring_view text);

// One line of text for any text. A caret begins an escape:
//   ^n line feed   ^r carriage return   ^t tab   ^s a space at the start or the end   ^^ a caret
//   ^u0007 any other UTF-16 unit by its four hexadecimal digits
// A backslash stands for itself, so that paths stay readable.
std::wstring EscapeText(std::wstring_view text);

// The text behind the escapes; nothing for a caret that begins none of them, and for ^u0000, which would end the text.
std::optional<std::wstring> UnescapeText(std::wstring_view line);

// A number in decimal digits, or as the 32 bits of hexadecimal digits behind 0x. Nothing when it is no such number
// or does not fit 32 bits.
std::optional<int32_t> ParseNumber(std::wstring_view text);

std::wstring FormatNumber(int64_t number);

// Cuts spaces and tabs off both ends.
std::wstring_view TrimBlanks(std::wstring_view text);

}  // namespace host
