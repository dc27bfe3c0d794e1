#include "Settings.h"

#include <algorithm>

namespace host {

std::wstring_view SetName(int32_t set) {
  switch (set) {
    case NEMPDFUI_GENERAL:
      return L"general";
    case NEMPDFUI_SETTINGS:
      return L"0";
    default:
      return L"1";
  }
}

void Assign(Settings& settings, int32_t set, std::wstring_view name, Value value) {
  const nempdf::PropertyInfo* info = nempdf::FindProperty(set, name);
  const auto setting = std::ranges::find_if(
      settings, [&](const Setting& candidate) { return candidate.set == set && candidate.info == info; });
  if (setting != settings.end())
    setting->value = std::move(value);
  else
    settings.push_back({set, info, std::move(value)});
}

}  // namespace host
