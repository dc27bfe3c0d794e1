// Configuration files: any bytes, read by the library and by the host's check, against a second and slower reading that
// is written from the rules alone.
#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "environment/AdminValidation.h"
#include "environment/ConfFile.h"
#include "environment/ConfGrammar.h"
#include "host/ConfCheck.h"
#include "Require.h"

namespace {

// A configuration file in memory.
class MemoryFile : public ConfFile {
 public:
  explicit MemoryFile(std::string_view bytes) : ConfFile(L"", L""), bytes_(bytes) {
    fileName = L"memory";
    OpenRead();
  }
  ~MemoryFile() override { Close(); }

 protected:
  bool DoOpen(const OpenFlags&) override { return true; }
  bool DoClose() override { return true; }
  bool DoRead(void* buffer, uint32_t, uint32_t count, uint32_t& bytesRead) override {
    const std::string_view rest = bytes_.substr(std::min(position_, bytes_.size()));
    bytesRead = static_cast<uint32_t>(std::min<size_t>(count, rest.size()));
    std::memcpy(buffer, rest.data(), bytesRead);
    position_ += bytesRead;
    if (count > 0 && bytesRead == 0) eofSeen_ = true;
    return true;
  }
  bool DoSeek(int64_t offset, uint32_t origin) override {
    eofSeen_ = false;
    REQUIRE(origin != platform::kSeekEnd);
    position_ = static_cast<size_t>((origin == platform::kSeekCurrent ? static_cast<int64_t>(position_) : 0) + offset);
    REQUIRE(position_ <= bytes_.size());
    return true;
  }

 public:
  int64_t Tell() override { return static_cast<int64_t>(position_); }

 private:
  std::string_view bytes_;
  size_t position_ = 0;
};

// --- The second reading
// ------------------------------------------------------------------------------------------------

// A record by the names of its keys: numbers, and texts as bytes.
struct Model {
  std::map<std::string, int64_t> numbers;
  std::map<std::string, std::string> texts;
  bool stopped = false;
};

constexpr char kSpaces[] = " \t\n\v\f\r";

std::string Trimmed(std::string text) {
  text.erase(0, text.find_first_not_of(kSpaces));
  while (!text.empty() && std::strchr(kSpaces, text.back())) text.pop_back();
  return text;
}

bool IsQuote(char character) { return character == '"' || character == '\''; }

std::string WithoutQuotes(std::string text) {
  if (!IsQuote(text.front()) || !IsQuote(text.back())) return text;
  for (const char mark : {'\'', '"'})
    while (!text.empty() && text.front() == mark) text.erase(0, 1);
  for (const char mark : {'\'', '"'})
    while (!text.empty() && text.back() == mark) text.pop_back();
  return text;
}

int64_t Number(const std::string& text) {
  size_t i = text[0] == '-' || text[0] == '+' ? 1 : 0;
  int64_t value = 0;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9' && value <= INT32_MAX; ++i)
    value = value * 10 + (text[i] - '0');
  return text[0] == '-' ? -value : std::min<int64_t>(value, INT32_MAX);
}

std::vector<std::string> NarrowKeys() {
  std::vector<std::string> keys;
  for (const AdminKey* entry = kAdminKeys; entry->key; ++entry) {
    const std::wstring_view key = entry->key;
    keys.emplace_back(key.begin(), key.end());
  }
  return keys;
}

const std::string& NameOf(const AdminKey* entry) {
  static const std::vector<std::string> keys = NarrowKeys();
  return keys[static_cast<size_t>(entry - kAdminKeys)];
}

void ReadModelLine(const std::string& bytes, Model& model) {
  const std::string line = Trimmed(bytes.c_str());  // up to a zero
  if (line.empty() || line[0] == '#' || line[0] == '!' || line[0] == '[') return;
  const size_t equals = line.find('=');
  const AdminKey* entry = kAdminKeys;
  if (equals != line.npos)
    for (const std::string key = Trimmed(line.substr(0, equals)); entry->key && NameOf(entry) != key;) ++entry;
  if (equals == line.npos || !entry->key) {
    model.stopped = true;
    return;
  }
  const std::string key = NameOf(entry), value = Trimmed(line.substr(equals + 1));
  if (value.empty()) return;
  if (entry->type == AdminEntry::Text) {
    const std::string text = WithoutQuotes(value);
    model.texts[key] = text.empty() ? " " : text;
  } else if (entry->type == AdminEntry::Boolean) {
    if (value == "0" || value == "1") model.numbers[key] = value == "1";
  } else if (Number(value) >= 0) {
    model.numbers[key] = Number(value);
  }
}

// The lines as they are cut from 999 bytes at a time: at the first pair of line ends, else at the first lone carriage
// return, else at the first lone line feed, else whole.
Model ReadModel(std::string bytes) {
  Model model;
  while (!bytes.empty() && !model.stopped) {
    const std::string piece = bytes.substr(0, kConfLineLimit);
    size_t length = piece.find("\r\n"), next = length + 2;
    if (length == piece.npos) {
      length = std::min(piece.find('\r'), piece.size());
      next = length + 1;
      const bool cut = length + 1 == piece.size() && piece.size() == kConfLineLimit;
      if (length == piece.size())
        next = (length = std::min(piece.find('\n'), piece.size())) + 1;
      else if (cut)
        next = length;
    }
    ReadModelLine(piece.substr(0, length), model);
    bytes.erase(0, std::min(next, piece.size()));
  }
  return model;
}

void RequireSame(const Model& model, const AdminSettings& record) {
  for (const AdminKey* entry = kAdminKeys; entry->key; ++entry) {
    const std::string& key = NameOf(entry);
    if (entry->type == AdminEntry::Text) {
      const auto text = model.texts.find(key);
      CUString expected;
      if (text != model.texts.end()) expected.AssignNarrow(text->second);
      REQUIRE((record.*entry->field.text).View() == expected.View());
    } else {
      const auto number = model.numbers.find(key);
      const int32_t unset = entry->type == AdminEntry::Boolean ? kUnsetBoolean : kUnsetNumber;
      REQUIRE(record.*entry->field.number == (number == model.numbers.end() ? unset : number->second));
    }
  }
}

// --- Rules that hold whatever a file says
// --------------------------------------------------------------------------------

bool AreEqual(const AdminSettings& left, const AdminSettings& right) {
  for (const AdminKey* entry = kAdminKeys; entry->key; ++entry) {
    const bool equal = entry->type == AdminEntry::Text
                           ? (left.*entry->field.text).View() == (right.*entry->field.text).View()
                           : left.*entry->field.number == right.*entry->field.number;
    if (!equal) return false;
  }
  return true;
}

void RequireValid(const AdminSettings& record) {
  for (const AdminRange& range : kAdminRanges) {
    const int32_t value = record.*range.field;
    REQUIRE(value == kUnsetNumber || (value >= 0 && value >= range.least && value <= range.greatest));
  }
  const int32_t action = record.SaveAction_Override;
  const bool needsTarget = action >= 0 && ((action >> 3 & 7) == 3 || (action >> 6 & 7) == 5);
  REQUIRE(!needsTarget || IsSetText(record.DestinationDirectoryOrFilename_Override));
  const int32_t method = record.ZUGFeRDCreationMethod_Override;
  const bool hasFile = IsSetText(record.ZUGFeRDXml_Override);
  REQUIRE(method != 0 || hasFile);
  REQUIRE(method != 1 || (!hasFile && record.ZUGFeRDDeleteAfterEmbedding_Override == kUnsetBoolean));
  REQUIRE(method != 255 || record.ZUGFeRD_Override != 1);
  REQUIRE(record.ZUGFeRDDeleteAfterEmbedding_Override != 1 || (method == 0 && hasFile && record.ZUGFeRD_Override == 1));

  AdminSettings again = record;
  ValidateAdminSettings(again);
  REQUIRE(AreEqual(record, again));
}

// What a record says can be written as a file that says it again. The texts are not converted back; a record of plain
// ASCII is enough.
void RequireRoundTrip(const AdminSettings& record) {
  std::string file;
  for (const AdminKey* entry = kAdminKeys; entry->key; ++entry) {
    if (entry->type == AdminEntry::Text) {
      const std::wstring_view text = (record.*entry->field.text).View();
      if (text.empty()) continue;
      // Marks at the ends would go with those around, a line end would end the line, and a line has its limit.
      if (text.front() == L'"' || text.back() == L'"' || text.size() > 900) return;
      for (const wchar_t character : text)
        if (character < 0x20 || character > 0x7E) return;
      file += NameOf(entry) + " = \"" + std::string(text.begin(), text.end()) + "\"\r\n";
    } else if (record.*entry->field.number >= 0 &&
               record.*entry->field.number != (entry->type == AdminEntry::Boolean ? kUnsetBoolean : -1)) {
      file += NameOf(entry) + " = " + std::to_string(record.*entry->field.number) + "\r\n";
    }
  }
  AdminSettings again;
  REQUIRE(MemoryFile(file).Parse(again, nullptr));
  REQUIRE(AreEqual(record, again));
  AdminSettings checked;
  MemoryFile memory(file);
  const host::ConfReport report = host::CheckConfFile(memory, checked);
  REQUIRE(report.readable);
  ValidateAdminSettings(again);
  REQUIRE(report.findings.empty() == AreEqual(record, again));
}

int badLines;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const Model model = ReadModel(bytes);

  AdminSettings record;
  MemoryFile file(bytes);
  badLines = 0;
  const bool parsed = file.Parse(record, [](const CUString&) { ++badLines; });
  REQUIRE(parsed == !model.stopped);
  REQUIRE(badLines == (parsed ? 0 : 1));
  REQUIRE(file.IsEof() == parsed);
  RequireSame(model, record);
  RequireRoundTrip(record);
  ValidateAdminSettings(record);
  RequireValid(record);

  // The check goes on behind bad lines; without any it ends with the same record.
  AdminSettings checked;
  MemoryFile checkedFile(bytes);
  const host::ConfReport report = host::CheckConfFile(checkedFile, checked);
  REQUIRE(report.readable);
  REQUIRE(parsed || !report.findings.empty());
  const bool isUtf16 = size >= 2 && ((data[0] == 0xFF && data[1] == 0xFE) || (data[0] == 0xFE && data[1] == 0xFF));
  REQUIRE(!parsed || isUtf16 || AreEqual(record, checked));
  for (size_t i = 0; i < report.findings.size(); ++i) {
    REQUIRE(report.findings[i].line > 0 && !report.findings[i].text.empty());
    REQUIRE(i == 0 || report.findings[i - 1].line <= report.findings[i].line);
  }
  return 0;
}
