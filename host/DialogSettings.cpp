#include "DialogSettings.h"

namespace host {
namespace {

using nempdf::Kind;

Value Load(const nempdf::Dialog& dialog, int32_t set, const nempdf::PropertyInfo& info) {
  switch (info.kind) {
    case Kind::Number:
      return {.number = dialog.GetByName<Kind::Number>(set, info.name)};
    case Kind::Secret:
      // This host writes passwords into its files; one that keeps them to itself leaves them in their SecretText.
      return {.text = std::wstring(dialog.GetByName<Kind::Secret>(set, info.name).View())};
    default:
      return {.text = dialog.GetByName<Kind::Text>(set, info.name)};
  }
}

}  // namespace

void StoreSettings(nempdf::Dialog& dialog, const Settings& settings) {
  for (const Setting& setting : settings) {
    if (setting.IsNumber())
      dialog.SetByName(setting.set, setting.info->name, setting.value.number);
    else
      dialog.SetByName(setting.set, setting.info->name, setting.value.text);
  }
}

Settings LoadSettings(const nempdf::Dialog& dialog) {
  Settings settings;
  for (int32_t set : kSets)
    for (const nempdf::PropertyInfo& info : nempdf::Properties(set))
      settings.push_back({set, &info, Load(dialog, set, info)});
  return settings;
}

}  // namespace host
