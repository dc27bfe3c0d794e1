// The list of stationeries: any text, against a second and slower reading that is written from the rules alone; and
// what is read comes back from what is written.
#include <algorithm>
#include <string>
#include <vector>

#include "pages/StationeryList.h"
#include "Require.h"
#include "WideInput.h"

namespace {

using Text = std::wstring;

struct Entry {
  Text name, file, password;
  uint16_t type = 0xFFFF;
};

void Replace(Text& text, const Text& from, const Text& to) {
  for (size_t at = 0; (at = text.find(from, at)) != text.npos; at += to.size()) text.replace(at, from.size(), to);
}

// The value that begins at `pos`, which then stands behind its closing mark.
bool ReadValue(const Text& text, size_t& pos, Text& value) {
  for (size_t mark = text.find(L'"', pos); mark != text.npos; mark = text.find(L'"', mark + 1)) {
    size_t backslashes = 0;
    while (mark - backslashes > pos && text[mark - backslashes - 1] == L'\\') ++backslashes;
    if (backslashes % 2 != 0) continue;
    value = text.substr(pos, mark - pos);
    Replace(value, L"\\\"", L"\"");
    Replace(value, L"\\\\", L"\\");
    pos = mark + 1;
    return true;
  }
  return false;
}

uint16_t Number(const Text& text) {
  size_t i = text.find_first_not_of(L" \t\n\v\f\r");
  if (i == text.npos) return 0;
  const bool negative = text[i] == L'-';
  if (text[i] == L'-' || text[i] == L'+') ++i;
  int64_t value = 0;
  for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9' && value <= INT32_MAX; ++i)
    value = value * 10 + (text[i] - L'0');
  value = negative ? std::max<int64_t>(-value, INT32_MIN) : std::min<int64_t>(value, INT32_MAX);
  return static_cast<uint16_t>(value);
}

bool ReadEntry(Text& text, Entry& entry) {
  if (text.size() < 3 || text[0] != L'{') return false;
  const Text keys[] = {L"NAME:\"", L"FILE:\"", L"P:\"", L"TYPE:\""};
  size_t pos = 1;
  int fields = 0;
  for (bool first = true;; first = false) {
    if (text[pos] == L';')
      ++pos;
    else if (!first)
      return false;
    size_t key = 0;
    while (key < 4 && !(text.size() > pos + keys[key].size() && text.compare(pos, keys[key].size(), keys[key]) == 0))
      ++key;
    if (key == 4) break;
    Text* const texts[] = {&entry.name, &entry.file, &entry.password};
    if (key < 3 ? !texts[key]->empty() : entry.type != 0xFFFF) return false;
    ++fields;
    pos += keys[key].size();
    Text value;
    if (!ReadValue(text, pos, value)) return false;
    if (key < 3)
      *texts[key] = value;
    else
      entry.type = Number(value);
    if (text.size() <= pos + 1) return false;
    if (text[pos] == L'}') {
      ++pos;
      break;
    }
  }
  if (fields != 4) return false;
  text.erase(0, pos);
  return true;
}

bool ReadList(Text text, std::vector<Entry>& entries) {
  if (text.size() < 2 || text[0] != L'{') return false;
  text.erase(0, 1);
  do {
    Entry entry;
    if (!ReadEntry(text, entry)) return false;
    entries.push_back(entry);
  } while (text != L"}");
  return true;
}

// The library reads digits and white space of all scripts, the second reading those of Latin ones.
bool HasOtherScripts(const Text& text) {
  return std::any_of(text.begin(), text.end(), [](wchar_t character) { return character > 0xFF; });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const Text text = WideInput(data, size);
  std::vector<Entry> expected;
  const bool whole = ReadList(text, expected);
  StationeryFormats formats;
  REQUIRE(ReadStationeryList(text, formats) == whole);
  REQUIRE(formats.size() == expected.size());
  bool canComeBack = !formats.empty();
  for (size_t i = 0; i < expected.size(); ++i) {
    REQUIRE(formats[i]->GetName().View() == expected[i].name);
    REQUIRE(formats[i]->GetFile().View() == expected[i].file);
    REQUIRE(formats[i]->GetPassword().View() == expected[i].password);
    if (!HasOtherScripts(text)) REQUIRE(formats[i]->GetType() == static_cast<int16_t>(expected[i].type));
    canComeBack = canComeBack && expected[i].file.find(L'"') == Text::npos;
  }
  const CUString written = StationeryListText(formats);
  StationeryFormats again;
  const bool read = ReadStationeryList(written, again);
  if (!canComeBack) return 0;
  REQUIRE(read);
  REQUIRE(again.size() == formats.size());
  REQUIRE(StationeryListText(again) == written);
  for (size_t i = 0; i < formats.size(); ++i) {
    REQUIRE(again[i]->GetName() == formats[i]->GetName());
    REQUIRE(again[i]->GetFile() == formats[i]->GetFile());
    REQUIRE(again[i]->GetPassword() == formats[i]->GetPassword());
    REQUIRE(again[i]->GetType() == formats[i]->GetType());
  }
  // Entry by entry, the text is cut behind each.
  CUString rest(text.empty() ? text : text.substr(1));
  for (size_t i = 0; i < formats.size() && text[0] == L'{'; ++i) {
    CStationeryFormat format;
    const int length = rest.Length();
    REQUIRE(format.FromString(rest) == 1);
    REQUIRE(rest.Length() < length);
  }
  return 0;
}
