#include "environment/ConfFile.h"

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

// False when the file ends with this line.
bool TakeLine(const ConfLine& line, AdminSettings& record, ConfFile::BadLineReport report) {
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
      const CUString text = Widened(line.text);
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
  bool complete = false;
  while (ReadLine(buffer.bytes, sizeof buffer.bytes, complete))
    if (!TakeLine(ReadConfLine(buffer.bytes, table), record, report)) return false;
  return IsEof();
}

bool ConfFile::Validate(AdminSettings& record) {
  ValidateAdminSettings(record);
  return true;
}
