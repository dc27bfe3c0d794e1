#include "environment/ConfFile.h"

#include <algorithm>

#include "DriverLIB/SecureWipe.h"
#include "DriverLIB/Trace.h"
#include "environment/AdminValidation.h"
#include "environment/ConfGrammar.h"

namespace {

// The bytes read last, which may hold a password.
struct LineBuffer {
  ~LineBuffer() { SecureWipe(bytes, sizeof bytes); }
  char bytes[kConfLineLimit + 1];
};

CUString Widened(std::string_view bytes) {
  CUString text;
  text.AssignNarrow(bytes);
  return text;
}

// In a file whose line ends differ, several lines may come as one. What follows may be a password, so a value is traced
// to its own end only.
CUString FirstLine(std::string_view bytes) { return Widened(bytes.substr(0, bytes.find_first_of("\r\n"))); }

constexpr wchar_t kHidden[] = L"***";

// What a line about a password has in it, even when its key is misspelt or its equals sign is missing. In lower case.
constexpr std::string_view kSecretMarks[] = {"pass", "pasw", "stationery", ";p:\""};

char LowerAscii(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

bool MayHoldPassword(std::string_view bytes) {
  return std::ranges::any_of(kSecretMarks, [bytes](std::string_view mark) {
    return !std::ranges::search(bytes, mark, {}, LowerAscii).empty();
  });
}

// A line that may hold a password, without it: its first word stays.
CUString WithoutValue(std::string_view line) {
  const size_t wordEnd = line.find_first_of("= \t");
  if (wordEnd == line.npos) return kHidden;  // the word itself may have the password at its end
  const size_t next = line.find_first_not_of(" \t", wordEnd);
  CUString text = Widened(line.substr(0, wordEnd));
  text.Append(next != line.npos && line[next] == '=' ? L" = " : L" ");
  return text + kHidden;
}

// A line that cannot be, as it is traced and shown. It stands as it is, unless it may hold a password or have a
// password's line behind it. The rest of a password's line that was too long shows nothing at all.
CUString ShownLine(std::string_view bytes, bool restOfSecret) {
  if (restOfSecret) return kHidden;
  if (!MayHoldPassword(bytes)) return Widened(bytes);
  const std::string_view line = bytes.substr(0, bytes.find_first_of("\r\n"));
  return MayHoldPassword(line) ? WithoutValue(line) : Widened(line);
}

// False when the file ends with this line. `restOfSecret`: the line goes on where one that may hold a password was cut.
bool TakeLine(const ConfLine& line, bool restOfSecret, AdminSettings& record, ConfFile::BadLineReport report) {
  switch (line.kind) {
    case ConfLineKind::Value:
      StoreConfLine(line, record);
      return true;
    case ConfLineKind::BadBoolean:
      TraceError("Unknown BOOLValue %s!", FirstLine(line.text).Text());
      return true;
    case ConfLineKind::NegativeNumber:
      TraceError("Unknown non negative number Value %s!", FirstLine(line.value).Text());
      return true;
    case ConfLineKind::UnknownType:
    case ConfLineKind::NoEqualsSign:
    case ConfLineKind::UnknownKey: {
      const CUString text = ShownLine(line.text, restOfSecret);
      TraceError(IsBadLine(line.kind) ? "Driver Conf bad line %s!" : "Unknown Entrytype %s!", text.Text());
      if (report) report(text);
      return !IsBadLine(line.kind);
    }
    default:
      return true;
  }
}

}  // namespace

CUString PrinterConfFileName(WideView printerName) {
  CUString name(printerName);
  for (const wchar_t character : std::wstring_view(L"[]/\\=+<>:;\",*")) name.ReplaceChar(character, L'_');
  name.Append(L".conf");
  return name;
}

ConfFile::ConfFile(WideView directory, WideView name) {
  fileName = CUString(directory) + name;
  if (OpenRead())
    SeekSet(0);
  else
    TraceInfo("Driver Conf file not found %s", fileName.Text());
}

ConfFile::~ConfFile() { ConfFile::Close(); }

bool ConfFile::InitSettings(AdminSettings& record, const AdminKey* table) { return InitAdminSettings(record, table); }

bool ConfFile::Parse(AdminSettings& record, BadLineReport report, const AdminKey* table) {
  LineBuffer buffer;
  bool complete = false, restOfSecret = false;
  while (ReadLine(buffer.bytes, sizeof buffer.bytes, complete)) {
    if (!TakeLine(ReadConfLine(buffer.bytes, table), restOfSecret, record, report)) return false;
    restOfSecret = !complete && (restOfSecret || MayHoldPassword(buffer.bytes));
  }
  return IsEof();
}

bool ConfFile::Validate(AdminSettings& record) {
  ValidateAdminSettings(record);
  return true;
}
