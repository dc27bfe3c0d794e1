#include "Changes.h"

#include <algorithm>

#include "Text.h"

namespace host {
namespace {

std::wstring Shown(const Setting& setting) {
  if (setting.IsNumber()) return FormatNumber(setting.value.number);
  return L"\"" + EscapeText(setting.value.text) + L"\"";
}

}  // namespace

std::vector<std::wstring> DescribeChanges(const Settings& before, const Settings& after) {
  std::vector<std::wstring> lines;
  for (size_t i = 0; i < std::min(before.size(), after.size()); ++i) {
    if (before[i].value == after[i].value) continue;
    const nempdf::PropertyInfo& info = *before[i].info;
    const std::wstring label = L"[" + std::wstring(SetName(before[i].set)) + L"] " + std::wstring(info.name) + L": ";
    lines.push_back(label + (info.kind == nempdf::Kind::Secret ? L"changed (not shown)"
                                                               : Shown(before[i]) + L" -> " + Shown(after[i])));
  }
  return lines;
}

}  // namespace host
