#include "ConfCheck.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "environment/AdminValidation.h"
#include "environment/ConfGrammar.h"
#include "Text.h"

namespace host {
namespace {

constexpr wchar_t kStops[] = L"; the dialog shows an error and stops reading here";

bool IsLineEnd(char byte) { return byte == '\r' || byte == '\n'; }

std::wstring Widened(std::string_view bytes) {
  CUString text;
  text.AssignNarrow(bytes);
  return EscapeText(text.View());
}

// --- Unknown keys ----------------------------------------------------------------------------------------------------

constexpr std::string_view kEnding = "_Override";

char Lowered(char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte; }

// Keys are plain ASCII.
template <class Key>
bool EqualsNoCase(std::string_view bytes, const Key& key) {
  return std::ranges::equal(bytes, key, {}, Lowered,
                            [](auto character) { return Lowered(static_cast<char>(character)); });
}

// What remains of a key without its ending.
template <class Key>
Key Stem(Key key) {
  const bool ends = key.size() >= kEnding.size() && EqualsNoCase(kEnding, key.substr(key.size() - kEnding.size()));
  return ends ? key.substr(0, key.size() - kEnding.size()) : key;
}

// The key with this stem, however it is written.
const AdminKey* FindMeantKey(std::string_view key) {
  for (const AdminKey* entry = kAdminKeys; entry->key; ++entry)
    if (EqualsNoCase(Stem(key), Stem(std::wstring_view(entry->key)))) return entry;
  return nullptr;
}

// The rest of a line that is too long belongs to a value, even if it looks like a key.
std::wstring DescribeUnknownKey(std::string_view key, bool isRest) {
  if (isRest) return std::wstring(L"no key of the list in the rest of the line") + kStops;
  constexpr size_t kShown = 60;
  std::wstring text = L"unknown key \"" + Widened(key.substr(0, kShown)) + (key.size() > kShown ? L"...\"" : L"\"");
  if (const AdminKey* meant = FindMeantKey(key)) text += std::wstring(L", perhaps ") + meant->key;
  return text + kStops;
}

// --- Values ----------------------------------------------------------------------------------------------------------

bool IsSet(const AdminKey& entry, const AdminSettings& record) {
  switch (entry.type) {
    case AdminEntry::Boolean:
      return IsSetBoolean(record.*entry.field.number);
    case AdminEntry::Number:
      return IsSetNumber(record.*entry.field.number);
    default:
      return IsSetText(record.*entry.field.text);
  }
}

std::wstring DescribeRange(const AdminRange& range) {
  const std::wstring least = FormatNumber(std::max(range.least, 0));
  if (range.greatest == kNoLimitAbove) return L"valid are " + least + L" and more";
  return L"valid are " + least + L" to " + FormatNumber(range.greatest);
}

std::wstring DescribeDrop(AdminRule rule, const AdminKey& entry) {
  switch (rule) {
    case AdminRule::SaveTarget:
      return L"a predefined name or folder needs DestinationDirectoryOrFilename_Override";
    case AdminRule::Ranges:
      for (const AdminRange& range : kAdminRanges)
        if (entry.type == AdminEntry::Number && range.field == entry.field.number) return DescribeRange(range);
      return {};
    case AdminRule::InvoiceFile:
    case AdminRule::InvoiceFileAgain:
      return L"ZUGFeRDCreationMethod_Override = 0 needs ZUGFeRDXml_Override";
    case AdminRule::InvoiceDeletion:
      return L"it needs ZUGFeRD_Override = 1, ZUGFeRDCreationMethod_Override = 0 and ZUGFeRDXml_Override";
    case AdminRule::InvoiceContent:
      return L"ZUGFeRDCreationMethod_Override = 1 goes without a file";
    case AdminRule::InvoiceMethod:
      return L"ZUGFeRD_Override = 1 needs a ZUGFeRDCreationMethod_Override other than 255";
    default:
      return {};
  }
}

// --- The check -------------------------------------------------------------------------------------------------------

class CConfChecker {
 public:
  CConfChecker(std::string_view bytes, AdminSettings& record, std::vector<ConfFinding>& findings)
      : bytes_(bytes), record_(record), findings_(findings) {}

  // A line as the library takes it: `text` is what it reads of the bytes from `begin` to `end`.
  void TakeLine(size_t begin, size_t end, const char* text) {
    const ConfLine line = ReadConfLine(text);
    const size_t place = begin + static_cast<size_t>(line.text.data() - text);
    lineNumber_ += CountLineEnds(std::exchange(counted_, place), place);
    const int number = lineNumber_;
    // The end of a line that fills its piece stands in the next one, in front of a line of its own.
    const bool isRest = begin > 0 && bytes_.substr(begin - 1, place - begin + 1).find_first_of("\r\n") == bytes_.npos;
    CheckForm(begin, end, line, number, isRest);
    switch (line.kind) {
      case ConfLineKind::Value:
        return Store(line, number);
      case ConfLineKind::BadBoolean:
        return Find(number, Name(line) + L": neither 0 nor 1; the line is ignored");
      case ConfLineKind::NegativeNumber:
        return Find(number, Name(line) + L": a negative number; the line is ignored");
      case ConfLineKind::NoEqualsSign:
        return Find(number, std::wstring(L"no \"=\"") + kStops);
      case ConfLineKind::UnknownKey:
        return Find(number, DescribeUnknownKey(line.key, isRest));
      default:
        return;
    }
  }

  void Validate() {
    for (int rule = 0; rule < static_cast<int>(AdminRule::Count); ++rule) {
      const AdminSettings before = record_;
      ApplyAdminRule(static_cast<AdminRule>(rule), record_);
      for (const AdminKey* entry = kAdminKeys; entry->key; ++entry) {
        if (!IsSet(*entry, before) || IsSet(*entry, record_)) continue;
        const auto stored = storedAt_.find(entry);
        const int number = stored == storedAt_.end() ? 0 : stored->second;
        Find(number, std::wstring(entry->key) + L": dropped, " + DescribeDrop(static_cast<AdminRule>(rule), *entry));
      }
    }
  }

  int OverrideCount() const {
    return static_cast<int>(
        std::ranges::count_if(storedAt_, [this](const auto& stored) { return IsSet(*stored.first, record_); }));
  }

 private:
  static std::wstring Name(const ConfLine& line) { return line.entry->key; }

  void Find(int number, std::wstring text) { findings_.push_back({number, std::move(text)}); }

  void Store(const ConfLine& line, int number) {
    const bool isNumber = line.entry->type == AdminEntry::Number;
    if (isNumber && line.value.find_first_not_of("0123456789") != line.value.npos)
      Find(number, Name(line) + L": read as " + FormatNumber(line.number) + L"; a number is written with digits only");
    StoreConfLine(line, record_);
    storedAt_[line.entry] = number;
  }

  // What can be wrong with a line whatever it says.
  void CheckForm(size_t begin, size_t end, const ConfLine& line, int number, bool isRest) {
    while (end > begin && IsLineEnd(bytes_[end - 1])) --end;
    if (isRest && !line.text.empty())
      Find(number, L"longer than " + FormatNumber(kConfLineLimit) + L" bytes; the rest is read as a line of its own");
    if (bytes_.substr(begin, end - begin).find('\0') != bytes_.npos)
      Find(number, L"a zero byte; the rest of the line is not read");
    if (line.text.find_first_of("\r\n") != line.text.npos)
      Find(number, L"lines that end in different ways; those up to line " +
                       FormatNumber(number + CountLineEnds(counted_, end)) + L" are read as one");
  }

  // A carriage return in front of a line feed is half of an end.
  int CountLineEnds(size_t from, size_t to) const {
    int count = 0;
    for (size_t i = from; i < std::min(to, bytes_.size()); ++i)
      if (bytes_[i] == '\n' || (bytes_[i] == '\r' && !bytes_.substr(i + 1).starts_with('\n'))) ++count;
    return count;
  }

  std::string_view bytes_;
  AdminSettings& record_;
  std::vector<ConfFinding>& findings_;
  std::map<const AdminKey*, int> storedAt_;  // the last line of each key
  size_t counted_ = 0;                       // the place up to which lineNumber_ counts
  int lineNumber_ = 1;
};

// The whole file, which stands at its start again afterwards.
std::optional<std::string> ReadBytes(AFile& file) {
  std::string bytes;
  char portion[16384];
  for (uint32_t count = 1; count != 0;) {
    if (!file.Read(portion, 1, sizeof portion, count)) return {};
    bytes.append(portion, count);
  }
  file.SeekSet(0);
  return bytes;
}

// Encodings that the dialog does not know. False when reading on makes no sense.
bool CheckEncoding(std::string_view bytes, std::vector<ConfFinding>& findings) {
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
    findings.push_back({1, L"the file is UTF-16; it must be text in the ANSI code page"});
    return false;
  }
  if (bytes.starts_with("\xEF\xBB\xBF"))
    findings.push_back({1, L"a byte order mark of UTF-8; the file must be text in the ANSI code page"});
  return true;
}

}  // namespace

ConfReport CheckConfFile(const std::wstring& name, AdminSettings& record) {
  AFile file(name.c_str());
  if (file.OpenRead()) return CheckConfFile(file, record);
  ConfReport report;
  report.reason = file.errorText.View();
  return report;
}

ConfReport CheckConfFile(AFile& file, AdminSettings& record) {
  ConfReport report;
  const std::optional<std::string> bytes = ReadBytes(file);
  if (!bytes) {
    report.reason = file.errorText.View();
    return report;
  }
  report.readable = true;
  if (!CheckEncoding(*bytes, report.findings)) return report;

  CConfChecker checker(*bytes, record, report.findings);
  char line[kConfLineLimit + 1];
  bool complete = false;
  for (size_t begin = 0; file.ReadLine(line, sizeof line, complete);) {
    // A file that somebody writes to meanwhile may have become longer.
    const size_t end = std::min(static_cast<size_t>(file.Tell()), bytes->size());
    checker.TakeLine(begin, end, line);
    begin = end;
  }
  checker.Validate();
  report.overrideCount = checker.OverrideCount();
  std::ranges::stable_sort(report.findings, {}, &ConfFinding::line);
  return report;
}

std::wstring DescribeReport(const std::wstring& name, const ConfReport& report) {
  std::wstring text;
  for (const ConfFinding& finding : report.findings) {
    const std::wstring place = finding.line > 0 ? L":" + FormatNumber(finding.line) : L"";
    text += name + place + L": " + finding.text + L"\n";
  }
  if (report.findings.empty()) text = name + L": good, overrides set: " + FormatNumber(report.overrideCount) + L"\n";
  return text;
}

}  // namespace host
