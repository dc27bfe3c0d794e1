#include "Settings.h"

#include <algorithm>

namespace host {

std::span<const SettingInfo> Catalogue(int32_t set) {
  if (set == NEMPDFUI_GENERAL) return kGeneralProperties;
  return kSettings;
}

const SettingInfo* FindSetting(int32_t set, std::wstring_view name) {
  const std::span<const SettingInfo> rows = Catalogue(set);
  const auto row = std::ranges::find(rows, name, &SettingInfo::name);
  return row == rows.end() ? nullptr : &*row;
}

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
  const SettingInfo* info = FindSetting(set, name);
  const auto setting = std::ranges::find_if(
      settings, [&](const Setting& candidate) { return candidate.set == set && candidate.info == info; });
  if (setting != settings.end())
    setting->value = std::move(value);
  else
    settings.push_back({set, info, std::move(value)});
}

}  // namespace host
