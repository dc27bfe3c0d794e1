#include "SettingsFile.h"

#include <algorithm>
#include <optional>

#include "Text.h"

namespace host {
namespace {

std::optional<int32_t> FindSet(std::wstring_view name) {
  for (int32_t set : kSets)
    if (SetName(set) == name) return set;
  return {};
}

std::wstring Quoted(std::wstring_view text) { return L"\"" + EscapeText(text) + L"\""; }

class CParser {
 public:
  CParser(Settings& settings, std::vector<FileProblem>& problems) : settings_(settings), problems_(problems) {}

  void TakeLine(std::wstring_view line) {
    ++line_;
    line = TrimBlanks(line);
    if (line.empty() || line.front() == L';' || line.front() == L'#') return;
    if (line.front() == L'[')
      OpenSection(line);
    else
      TakeSetting(line);
  }

  void Complain(std::wstring reason) { problems_.push_back({line_, std::move(reason)}); }

 private:
  // The line where a section or a setting was read first.
  struct Origin {
    int32_t set;
    std::wstring_view name;  // empty for the section itself
    int line;
  };

  // True when it is new; otherwise says where it stood before.
  bool Note(int32_t set, std::wstring_view name, std::wstring_view what) {
    const auto earlier =
        std::ranges::find_if(origins_, [&](const Origin& origin) { return origin.set == set && origin.name == name; });
    if (earlier != origins_.end()) {
      Complain(std::wstring(what) + L" stands already in line " + FormatNumber(earlier->line));
      return false;
    }
    origins_.push_back({set, name, line_});
    return true;
  }

  // After a bad section line its settings are passed over: one cause, one message.
  void OpenSection(std::wstring_view line) {
    state_ = State::Skipping;
    if (line.size() < 2 || line.back() != L']') return Complain(L"a section needs its closing bracket, as in [0]");
    const std::wstring_view name = TrimBlanks(line.substr(1, line.size() - 2));
    const std::optional<int32_t> set = FindSet(name);
    if (!set) return Complain(L"unknown section [" + EscapeText(name) + L"]: there are [general], [0] and [1]");
    if (!Note(*set, {}, L"section [" + std::wstring(name) + L"]")) return;
    set_ = *set;
    state_ = State::Reading;
  }

  void TakeSetting(std::wstring_view line) {
    if (state_ == State::Skipping) return;
    if (state_ == State::BeforeSections) return Complain(L"a section such as [0] must stand before the first setting");
    const size_t sign = line.find(L'=');
    if (sign == line.npos) return Complain(L"neither a section nor a comment nor \"name = value\"");

    const std::wstring_view name = TrimBlanks(line.substr(0, sign));
    const nempdf::PropertyInfo* info = nempdf::FindProperty(set_, name);
    if (!info) return Complain(L"section [" + std::wstring(SetName(set_)) + L"] has no setting " + Quoted(name));
    if (!Note(set_, info->name, info->name)) return;

    const std::wstring_view value = TrimBlanks(line.substr(sign + 1));
    if (info->kind == nempdf::Kind::Number)
      TakeNumber(*info, value);
    else
      TakeText(*info, value);
  }

  void TakeText(const nempdf::PropertyInfo& info, std::wstring_view value) {
    std::optional<std::wstring> text = UnescapeText(value);
    if (!text)
      return Complain(std::wstring(info.name) +
                      L": a caret begins one of ^n ^r ^t ^s ^^ and ^u with four hexadecimal digits, not 0000");
    settings_.push_back({set_, &info, {.text = *std::move(text)}});
  }

  void TakeNumber(const nempdf::PropertyInfo& info, std::wstring_view value) {
    const std::optional<int32_t> number = ParseNumber(value);
    if (!number) return Complain(std::wstring(info.name) + L": " + Quoted(value) + L" is no 32-bit number");
    settings_.push_back({set_, &info, {.number = *number}});
  }

  enum class State { BeforeSections, Reading, Skipping };

  Settings& settings_;
  std::vector<FileProblem>& problems_;
  std::vector<Origin> origins_;
  State state_ = State::BeforeSections;
  int32_t set_ = NEMPDFUI_GENERAL;
  int line_ = 0;
};

}  // namespace

std::vector<FileProblem> ParseSettings(std::string_view bytes, Settings& settings) {
  const DecodedText decoded = DecodeText(bytes);
  std::vector<FileProblem> problems;
  CParser parser(settings, problems);

  std::wstring_view rest = decoded.text;
  for (;;) {
    const size_t end = rest.find(L'\n');
    const bool isLast = end == rest.npos;
    std::wstring_view line = rest.substr(0, end);
    if (isLast && !decoded.complete) {  // the line that the bad bytes cut
      parser.TakeLine({});
      parser.Complain(L"the file is neither valid UTF-8 nor UTF-16 with a byte order mark");
      break;
    }
    if (line.ends_with(L'\r')) line.remove_suffix(1);
    if (line.find(L'\0') != line.npos) {
      parser.TakeLine({});
      parser.Complain(L"a zero character");
    } else {
      parser.TakeLine(line);
    }
    if (isLast) break;
    rest.remove_prefix(end + 1);
  }
  return problems;
}

std::string WriteSettings(const Settings& settings) {
  std::wstring text;
  for (int32_t set : kSets) {
    text += (text.empty() ? L"[" : L"\r\n[") + std::wstring(SetName(set)) + L"]\r\n";
    for (const Setting& setting : settings) {
      if (setting.set != set) continue;
      (text += setting.info->name) += L" = ";
      text += setting.IsNumber() ? FormatNumber(setting.value.number) : EscapeText(setting.value.text);
      text += L"\r\n";
    }
  }
  return EncodeUtf8(text);
}

}  // namespace host
