#include "pages/CStationeryFormat.h"

#include <algorithm>
#include <cstring>

#include "DriverLIB/Numbers.h"
#include "DriverLIB/SecureWipe.h"
#include "DriverLIB/TextAlgorithms.h"

namespace {

constexpr wchar_t kBackslash = L'\\';
constexpr wchar_t kQuote = L'"';
constexpr wchar_t kSeparator = L';';
constexpr wchar_t kEntryStart = L'{';
constexpr wchar_t kEntryEnd = L'}';

enum Field { kName, kFile, kPassword, kType, kFieldCount, kNoField = kFieldCount };

// Each with the mark that opens its value, in the order in which they are written and looked for.
constexpr std::wstring_view kKeys[kFieldCount] = {L"NAME:\"", L"FILE:\"", L"P:\"", L"TYPE:\""};

constexpr uint16_t kUnsetType = 0xFFFF;
constexpr size_t kMinEntryLength = 3;

// What may have held a password.
struct SecretText {
  ~SecretText() { WipeText(text); }
  CUString text;
};

// --- Writing -------------------------------------------------------------------------------------------------------

// Every backslash is doubled and every quotation mark gets one; in a file's name no mark is expected.
bool IsEscaped(wchar_t character, Field field) {
  return character == kBackslash || (character == kQuote && field != kFile);
}

size_t EscapedLength(std::wstring_view value, Field field) {
  const auto escaped = std::count_if(value.begin(), value.end(), [=](wchar_t c) { return IsEscaped(c, field); });
  return value.size() + static_cast<size_t>(escaped);
}

// Writes into a string that has room, so that no outgrown block with a password is left behind.
class Writer {
 public:
  explicit Writer(CUString& text) : text_(text), end_(text.Buffer() + text.Length()) {}
  ~Writer() { text_.SetLength(static_cast<int>(end_ - text_.Buffer())); }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  void Add(wchar_t character) { *end_++ = character; }
  void Add(std::wstring_view part) { end_ = std::copy(part.begin(), part.end(), end_); }
  void AddEscaped(std::wstring_view value, Field field) {
    for (const wchar_t character : value) {
      if (IsEscaped(character, field)) Add(kBackslash);
      Add(character);
    }
  }

 private:
  CUString& text_;
  wchar_t* end_;
};

// --- Reading -------------------------------------------------------------------------------------------------------

Field FieldAt(std::wstring_view text) {
  for (int field = 0; field < kFieldCount; ++field)
    if (text.size() > kKeys[field].size() && text.starts_with(kKeys[field])) return static_cast<Field>(field);
  return kNoField;
}

// The length of the value at the start of `text`, which ends at the first mark behind an even number of backslashes;
// npos when there is none.
size_t ValueLength(std::wstring_view text) {
  size_t backslashes = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == kQuote && backslashes % 2 == 0) return i;
    backslashes = text[i] == kBackslash ? backslashes + 1 : 0;
  }
  return text.npos;
}

// A backslash stands for itself unless a mark or a second one follows.
void Unescape(std::wstring_view value, CUString& text) {
  text.EnsureCapacity(static_cast<int>(value.size()));
  Writer writer(text);
  while (!value.empty()) {
    const bool escapes = value.size() > 1 && value[0] == kBackslash && (value[1] == kBackslash || value[1] == kQuote);
    if (escapes) value.remove_prefix(1);
    writer.Add(value.front());
    value.remove_prefix(1);
  }
}

// The values of an entry as they stand in its text.
struct Values {
  std::wstring_view texts[kFieldCount];
  uint16_t type = kUnsetType;
  int count = 0;

  // Fields that were given as empty, or a type of -1, may come again.
  bool Has(Field field) const { return field == kType ? type != kUnsetType : !texts[field].empty(); }
  void Take(Field field, std::wstring_view value) {
    ++count;
    texts[field] = value;
    if (field != kType) return;
    CUString digits;
    Unescape(value, digits);
    type = static_cast<uint16_t>(ParseDecimal(digits));
  }
};

// Reads the values and cuts `text` behind the entry. Four fields make an entry, in any order. With no known key behind
// the fourth it ends there, without its brace.
bool ReadValues(std::wstring_view& text, Values& values) {
  if (text.size() < kMinEntryLength || text.front() != kEntryStart) return false;
  std::wstring_view rest = text.substr(1);
  for (bool first = true;; first = false) {
    if (rest.front() == kSeparator) {
      rest.remove_prefix(1);
    } else if (!first) {
      return false;
    }
    const Field field = FieldAt(rest);
    if (field == kNoField) break;
    if (values.Has(field)) return false;
    rest.remove_prefix(kKeys[field].size());
    const size_t length = ValueLength(rest);
    if (length == rest.npos) return false;
    values.Take(field, rest.substr(0, length));
    rest.remove_prefix(length + 1);
    if (rest.size() < 2) return false;
    if (rest.front() == kEntryEnd) {
      rest.remove_prefix(1);
      break;
    }
  }
  if (values.count != kFieldCount) return false;
  text = rest;
  return true;
}

CUString TypeText(int16_t type) {
  CUString text;
  text.Format(L"%i", type);
  return text;
}

}  // namespace

CStationeryFormat::~CStationeryFormat() { WipeText(password_); }

int CStationeryFormat::SetFile(WideView file) {
  const CUString fresh(file);  // `file` may be a part of our own
  if (name_.IsEmpty()) {
    const std::wstring_view stem = fresh.View().substr(0, fresh.View().rfind(L'.'));
    SetName(stem.substr(stem.rfind(kBackslash) + 1));
  }
  file_ = fresh;
  return 1;
}

int CStationeryFormat::SetName(WideView name) {
  name_ = CUString(name);
  return 1;
}

int CStationeryFormat::SetPassword(WideView password) {
  // A buffer of its own size: no end of a longer password stays behind a shorter one.
  CUString fresh(password);
  WipeText(password_);
  password_ = std::move(fresh);
  return 1;
}

int CStationeryFormat::SetType(int16_t type) {
  type_ = type;
  return 1;
}

size_t CStationeryFormat::TextLength() const {
  size_t length = 2 + kFieldCount + (kFieldCount - 1);  // braces, closing marks, separators
  for (const std::wstring_view key : kKeys) length += key.size();
  length += EscapedLength(name_.View(), kName) + EscapedLength(file_.View(), kFile) +
            EscapedLength(password_.View(), kPassword);
  return length + TypeText(type_).View().size();
}

void CStationeryFormat::AppendTo(CUString& text) const {
  const CUString type = TypeText(type_);
  const CUString* const values[kFieldCount] = {&name_, &file_, &password_, &type};
  Writer writer(text);
  wchar_t lead = kEntryStart;
  for (int field = 0; field < kFieldCount; ++field) {
    writer.Add(lead);
    writer.Add(kKeys[field]);
    writer.AddEscaped(values[field]->View(), static_cast<Field>(field));
    writer.Add(kQuote);
    lead = kSeparator;
  }
  writer.Add(kEntryEnd);
}

CUString CStationeryFormat::ToString() const {
  CUString text;
  text.EnsureCapacity(text::CheckedLength(TextLength(), CUString::kMaxLength));
  AppendTo(text);
  return text;
}

int CStationeryFormat::FromString(CUString& text) {
  std::wstring_view rest = text.View();
  if (!Read(rest)) return 0;
  // Moved to the front in its own block, and wiped where it stood: what is cut off holds a password.
  wchar_t* const buffer = text.Buffer();
  const size_t formerLength = static_cast<size_t>(text.Length());
  std::memmove(buffer, rest.data(), rest.size() * sizeof(wchar_t));
  SecureWipe(buffer + rest.size(), (formerLength - rest.size()) * sizeof(wchar_t));
  text.SetLength(static_cast<int>(rest.size()));
  return 1;
}

bool CStationeryFormat::Read(std::wstring_view& text) {
  Values values;
  std::wstring_view rest = text;
  if (!ReadValues(rest, values)) return false;
  CUString name, file;
  SecretText password;
  Unescape(values.texts[kName], name);
  Unescape(values.texts[kFile], file);
  Unescape(values.texts[kPassword], password.text);
  // In this order: an entry whose name is given as empty ends without one.
  SetFile(file);
  SetName(name);
  SetPassword(password.text);
  SetType(static_cast<int16_t>(values.type));
  text = rest;
  return true;
}
