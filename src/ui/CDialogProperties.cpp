#include "ui/CDialogProperties.h"

#include "DriverLIB/SecureWipe.h"

namespace {

// Where the two elements of a setting stand in the object.
union SettingMember {
  constexpr SettingMember(CLongProperty (CDialogProperties::*member)[CDialogProperties::kSettingsSetCount])
      : numbers(member) {}
  constexpr SettingMember(CStringProperty (CDialogProperties::*member)[CDialogProperties::kSettingsSetCount])
      : texts(member) {}

  CLongProperty (CDialogProperties::*numbers)[CDialogProperties::kSettingsSetCount];
  CStringProperty (CDialogProperties::*texts)[CDialogProperties::kSettingsSetCount];
};

struct SettingRow {
  const wchar_t* name;
  SettingKind kind;
  SettingMember member;
};

#define NEMPDF_SETTING_ROW(name, kind, page, meaning) {L## #name, SettingKind::kind, {&CDialogProperties::name}},

constexpr SettingRow kRows[] = {NEMPDF_SETTINGS(NEMPDF_SETTING_ROW)};

#undef NEMPDF_SETTING_ROW

}  // namespace

CDialogProperties::CDialogProperties() {
  for (int index = 0; index < kSettingsSetCount; ++index) BindSettings(index);
  magic = kMagic;
}

CDialogProperties::~CDialogProperties() { SecureWipe(&magic, sizeof magic); }

void CDialogProperties::BindSettings(int index) {
  CPropertySet& set = settingsSets[index];
  for (const SettingRow& row : kRows) {
    if (row.kind == SettingKind::Long) {
      (this->*row.member.numbers)[index].Bind(row.name, set);
      continue;
    }
    CStringProperty& text = (this->*row.member.texts)[index];
    if (row.kind == SettingKind::Secret) text.MarkSecret();
    text.Bind(row.name, set);
  }
}

CPropertySet* CDialogProperties::FindSet(int32_t index) {
  if (index == -1) return &generalSet;
  return index >= 0 && index < kSettingsSetCount ? &settingsSets[index] : nullptr;
}
