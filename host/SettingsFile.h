// Settings files: sections and "name = value" lines.
//
//   ; a comment, as is a line that begins with #
//   [general]
//   PrinterName = NEM pdf vonder
//   [0]
//   GraphicJpegQuality = 85
//   HyperlinkBorderColor = 0xC0C0C0
//   MailNotetext = first line^nsecond line
//
// A file is UTF-8, or UTF-16 in little-endian order with a byte order mark; lines end in CR LF or LF. Blanks around a
// name and a value do not count. A text is what stands behind the "=", quotes and semicolons included, with the
// escapes of EscapeText. A number is decimal, or hexadecimal behind 0x. Each section stands at most once, and each name
// at most once in it. A setting that a file does not name keeps the library's initial value, 0 or no text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Settings.h"

namespace host {

struct FileProblem {
  int line;  // from 1
  std::wstring reason;
};

// Appends what the file says to `settings`. Returns all that is wrong in it, in the order of its lines; a bad line adds
// no setting. A reason never quotes the value of a text, which may be a password.
std::vector<FileProblem> ParseSettings(std::string_view bytes, Settings& settings);

// The same in UTF-8 with CR LF, passwords included: ParseSettings reads back the very same settings, in the order of
// their sets.
std::string WriteSettings(const Settings& settings);

}  // namespace host
