#include "environment/ConfGrammar.h"

#include <algorithm>
#include <limits>

#include "DriverLIB/Platform.h"
#include "DriverLIB/SecureWipe.h"
#include "DriverLIB/TextAlgorithms.h"
#include "DriverLIB/Trace.h"

namespace {

constexpr std::string_view kCommentMarks = "#![";
constexpr std::string_view kQuotationMarks = "\"'";

bool IsSpace(char character) { return platform::IsNarrowSpace(static_cast<unsigned char>(character)); }

std::string_view TrimLeft(std::string_view text) { return text.substr(text::CountLeading(text, IsSpace)); }

std::string_view TrimRight(std::string_view text) {
  return text.substr(0, text.size() - text::CountTrailing(text, IsSpace));
}

// Keys are plain ASCII, so they are compared with the file's bytes as they stand.
bool Equals(const wchar_t* key, std::string_view bytes) {
  for (const char byte : bytes)
    if (*key++ != static_cast<unsigned char>(byte)) return false;
  return *key == L'\0';
}

const AdminKey* FindKey(std::string_view key, const AdminKey* table) {
  // A zero in the key would be taken for the end of the table's text, and so for a match.
  if (key.find('\0') != key.npos) return nullptr;
  for (; table->key; ++table)
    if (Equals(table->key, key)) return table;
  return nullptr;
}

// A decimal number up to the first character that is none of its digits; 0 without digits. Stops at the limits of 32
// bits.
int32_t ReadNumber(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const int64_t limit = int64_t{std::numeric_limits<int32_t>::max()} + (negative ? 1 : 0);
  int64_t value = 0;
  for (const char character : text) {
    if (character < '0' || character > '9') break;
    value = std::min(value * 10 + (character - '0'), limit);
  }
  return static_cast<int32_t>(negative ? -value : value);
}

ConfLineKind ReadValue(ConfLine& line) {
  switch (line.entry->type) {
    case AdminEntry::Boolean:
      if (line.value.empty()) return ConfLineKind::NoValue;
      line.number = line.value == "1";
      return line.value == "1" || line.value == "0" ? ConfLineKind::Value : ConfLineKind::BadBoolean;
    case AdminEntry::Number:
      if (line.value.empty()) return ConfLineKind::NoValue;
      line.number = ReadNumber(line.value);
      return line.number >= 0 ? ConfLineKind::Value : ConfLineKind::NegativeNumber;
    case AdminEntry::Text:
      return line.value.empty() ? ConfLineKind::NoValue : ConfLineKind::Value;
    default:
      return ConfLineKind::UnknownType;
  }
}

std::string_view StripLeft(std::string_view text, char mark) {
  return text.substr(std::min(text.find_first_not_of(mark), text.size()));
}

// For an empty rest the search gives npos, which the addition turns into 0.
std::string_view StripRight(std::string_view text, char mark) {
  return text.substr(0, text.find_last_not_of(mark) + 1);
}

// Quotation marks count in pairs only, but the two of a pair need not be alike. All single ones go before all double
// ones, so that "'x'" in double marks keeps its single ones and '"x"' in single marks loses all.
std::string_view Unquoted(std::string_view value) {
  if (kQuotationMarks.find(value.front()) == value.npos || kQuotationMarks.find(value.back()) == value.npos)
    return value;
  value = StripLeft(StripLeft(value, '\''), '"');
  return StripRight(StripRight(value, '\''), '"');
}

void StoreText(CUString& field, std::string_view value) {
  WipeText(field);  // an earlier line of the same key may have held a password
  const std::string_view text = Unquoted(value);
  field.AssignNarrow(text.empty() ? " " : text);
}

}  // namespace

ConfLine ReadConfLine(std::string_view lineText, const AdminKey* table) {
  ConfLine line;
  line.text = TrimLeft(TrimRight(lineText));
  if (line.text.empty()) return line;
  if (kCommentMarks.find(line.text.front()) != kCommentMarks.npos) {
    line.kind = ConfLineKind::Comment;
    return line;
  }
  const size_t equalsSign = line.text.find('=');
  if (equalsSign == line.text.npos) {
    line.kind = ConfLineKind::NoEqualsSign;
    return line;
  }
  line.key = TrimRight(line.text.substr(0, equalsSign));
  line.value = TrimLeft(line.text.substr(equalsSign + 1));
  line.entry = FindKey(line.key, table);
  line.kind = line.entry ? ReadValue(line) : ConfLineKind::UnknownKey;
  return line;
}

void StoreConfLine(const ConfLine& line, AdminSettings& record) {
  if (line.kind != ConfLineKind::Value) return;
  if (line.entry->type == AdminEntry::Text)
    StoreText(record.*line.entry->field.text, line.value);
  else
    record.*line.entry->field.number = line.number;
}

bool InitAdminSettings(AdminSettings& record, const AdminKey* table) {
  bool known = true;
  for (; table->key; ++table) {
    switch (table->type) {
      case AdminEntry::Boolean:
        record.*table->field.number = kUnsetBoolean;
        break;
      case AdminEntry::Number:
        record.*table->field.number = kUnsetNumber;
        break;
      case AdminEntry::Text:
        break;
      default:
        TraceError("Unknown Entrytype!");
        known = false;
    }
  }
  return known;
}
