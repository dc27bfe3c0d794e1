#include "CSettingsDialog.h"

namespace host {

CSettingsDialog::CSettingsDialog() { NemPdfUICreateDialog(&handle_); }

CSettingsDialog::~CSettingsDialog() { NemPdfUIFreeDialog(&handle_); }

bool CSettingsDialog::Set(const Setting& setting) {
  const void* value = setting.value.text.c_str();
  if (setting.IsNumber()) value = &setting.value.number;
  return NemPdfUISetPropertyW(handle_, setting.set, setting.info->name.data(), value) == 1;
}

std::optional<Value> CSettingsDialog::Get(int32_t set, const SettingInfo& info) const {
  const wchar_t* name = info.name.data();
  if (info.kind == SettingKind::Long) {
    Value value;
    if (NemPdfUIGetPropertyW(handle_, set, name, &value.number, sizeof value.number) != 1) return {};
    return value;
  }
  // Nothing tells the length of a text beforehand: offer more and more room.
  constexpr int32_t kFirstSize = 256;
  constexpr int32_t kLastSize = 16 << 20;
  for (int32_t size = kFirstSize; size <= kLastSize; size *= 4) {
    std::wstring text(size, L'\0');
    if (NemPdfUIGetPropertyW(handle_, set, name, text.data(), size) == 1) {
      text.resize(text.find(L'\0'));
      return Value{.text = std::move(text)};
    }
  }
  return {};
}

std::optional<Settings> CSettingsDialog::GetAll() const {
  Settings settings;
  for (int32_t set : kSets) {
    for (const SettingInfo& info : Catalogue(set)) {
      std::optional<Value> value = Get(set, info);
      if (!value) return {};
      settings.push_back({set, &info, *std::move(value)});
    }
  }
  return settings;
}

int CSettingsDialog::DoModal() { return NemPdfUIDoModal(handle_); }

}  // namespace host
