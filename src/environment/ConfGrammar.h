// The grammar of the administrator's configuration files: what one line says, and how it is stored.
//
// A file is 8-bit text in the ANSI code page. White space around a line does not count; an empty line and one that
// begins with "#", "!" or "[" say nothing; every other one is `key = value`, cut at its first "=".
//
// The library and the host's check of such files read with this same code. It takes no memory but that of the texts
// that it stores.
#pragma once

#include <cstdint>
#include <string_view>

#include "environment/AdminSettings.h"

// At most so many bytes count as one line. What is longer goes on as a line of its own.
constexpr uint32_t kConfLineLimit = 999;

enum class ConfLineKind : uint8_t {
  Empty,
  Comment,
  NoValue,         // nothing behind the "=": leaves the field alone
  Value,           // to be stored
  BadBoolean,      // neither "1" nor "0": ignored
  NegativeNumber,  // ignored
  NoEqualsSign,    // bad
  UnknownKey,      // bad
  UnknownType,     // the key table itself is wrong
};

// A bad line ends its file; a bad value is only ignored. The difference is deliberate: a mistyped key would otherwise
// leave open, without a word, what an administrator believes to be fixed.
constexpr bool IsBadLine(ConfLineKind kind) {
  return kind == ConfLineKind::NoEqualsSign || kind == ConfLineKind::UnknownKey;
}

// The views are parts of the line that was read and live as long as it does.
struct ConfLine {
  ConfLineKind kind = ConfLineKind::Empty;
  std::string_view text;            // the line without the white space around it
  std::string_view key;             // in front of the first "=", empty when there is none
  std::string_view value;           // behind it, quotation marks included
  const AdminKey* entry = nullptr;  // the key's row; null for a key that there is not
  int32_t number = 0;               // the value of a boolean or a number
};

// Reads a line, its line end included or not. The key is searched in `table` from its first row.
ConfLine ReadConfLine(std::string_view line, const AdminKey* table = kAdminKeys);

// Stores the value of a line of the kind Value; lines of other kinds change nothing. A text in quotation marks loses
// them. One that is empty then becomes a single blank, which counts as set.
void StoreConfLine(const ConfLine& line, AdminSettings& record);

// Puts all booleans and numbers to their unset values and leaves the texts alone. False when the table has a row of
// an unknown type, which is traced and passed over.
bool InitAdminSettings(AdminSettings& record, const AdminKey* table = kAdminKeys);
