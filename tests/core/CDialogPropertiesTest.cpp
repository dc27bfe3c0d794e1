#include "ui/CDialogProperties.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <set>
#include <type_traits>

#include "DriverLIB/SecureWipe.h"

namespace {

class DialogProperties : public testing::Test {
 protected:
  static const CStringProperty* AsText(const CProperty* property) {
    return dynamic_cast<const CStringProperty*>(property);
  }

  std::unique_ptr<CDialogProperties> properties_ = std::make_unique<CDialogProperties>();
};

TEST_F(DialogProperties, BeginsWithTheMagicBytes) {
  EXPECT_EQ(0, memcmp(properties_.get(), "IUEN", 4));
  EXPECT_FALSE(std::is_polymorphic_v<CDialogProperties>);
}

TEST_F(DialogProperties, WipesTheMagicAtItsEnd) {
  alignas(CDialogProperties) static unsigned char storage[sizeof(CDialogProperties)];
  auto* object = new (storage) CDialogProperties;
  EXPECT_EQ(0, memcmp(storage, "IUEN", 4));
  object->~CDialogProperties();
  EXPECT_EQ(0, memcmp(storage, "\0\0\0\0", 4));
}

TEST_F(DialogProperties, FindsItsSetsByIndex) {
  EXPECT_EQ(&properties_->generalSet, properties_->FindSet(-1));
  EXPECT_EQ(&properties_->settingsSets[0], properties_->FindSet(0));
  EXPECT_EQ(&properties_->settingsSets[1], properties_->FindSet(1));
  for (const int32_t index : {-2, 2, 3, INT32_MIN, INT32_MAX}) EXPECT_EQ(nullptr, properties_->FindSet(index));
}

TEST_F(DialogProperties, GeneralPropertiesStandInTheGeneralSetOnly) {
  size_t count = 0;
  for (auto position = properties_->generalSet.First(); position; ++count) {
    const CProperty* property = properties_->generalSet.Next(position);
    EXPECT_FALSE(properties_->settingsSets[0].Contains(property->GetName().Text()));
    EXPECT_FALSE(properties_->settingsSets[1].Contains(property->GetName().Text()));
  }
  EXPECT_EQ(kGeneralPropertyCount, count);
  EXPECT_EQ(&properties_->HwndParent, properties_->generalSet.Get(L"HwndParent"));
  EXPECT_EQ(&properties_->SheetTitle, properties_->generalSet.Get(L"SheetTitle"));
  EXPECT_EQ(&properties_->MsgBoxTitle, properties_->generalSet.Get(L"MsgBoxTitle"));
  EXPECT_EQ(&properties_->HelpFilename, properties_->generalSet.Get(L"HelpFilename"));
  EXPECT_EQ(&properties_->PrinterName, properties_->generalSet.Get(L"PrinterName"));
  EXPECT_EQ(&properties_->PasswordVisible, properties_->generalSet.Get(L"PasswordVisible"));
}

TEST_F(DialogProperties, EachSettingStandsInBothSetsWithItsType) {
  for (int index = 0; index < 2; ++index) {
    CPropertySet& set = properties_->settingsSets[index];
    size_t count = 0;
    for (auto position = set.First(); position; ++count) set.Next(position);
    EXPECT_EQ(kSettingCount, count);
    for (const SettingInfo& info : kSettings) {
      const CProperty* property = set.Get(std::wstring(info.name).c_str());
      ASSERT_NE(nullptr, property);
      EXPECT_EQ(&set, property->GetOwner());
      EXPECT_TRUE(property->GetName().View() == info.name);
      EXPECT_TRUE(property->IsReadable() && property->IsWritable());
      EXPECT_EQ(info.kind == SettingKind::Long, property->GetTypeName() == kLongTypeName);
      EXPECT_EQ(info.kind != SettingKind::Long, property->GetTypeName() == kStringTypeName);
    }
  }
}

#define NEMPDF_EXPECT_MEMBER(name, kind, page, meaning)                          \
  EXPECT_EQ(&properties_->name[0], properties_->settingsSets[0].Get(L## #name)); \
  EXPECT_EQ(&properties_->name[1], properties_->settingsSets[1].Get(L## #name));

TEST_F(DialogProperties, TheMemberOfASettingIsTheOneRegistered){NEMPDF_SETTINGS(NEMPDF_EXPECT_MEMBER)}
#undef NEMPDF_EXPECT_MEMBER

TEST_F(DialogProperties, AllValuesStartAtZeroAndEmpty) {
  for (const int32_t index : {-1, 0, 1}) {
    const CPropertySet& set = *properties_->FindSet(index);
    for (auto position = set.First(); position;) {
      const CProperty* property = set.Next(position);
      EXPECT_EQ(0, property->GetLong());
      if (const CStringProperty* text = AsText(property)) {
        EXPECT_TRUE(text->GetString().IsEmpty());
      }
    }
  }
}

TEST_F(DialogProperties, PasswordsAreSecretInBothSets) {
  for (const SettingInfo& info : kSettings)
    for (const CPropertySet& set : properties_->settingsSets)
      if (const CStringProperty* text = AsText(set.Get(std::wstring(info.name).c_str()))) {
        EXPECT_EQ(info.kind == SettingKind::Secret, text->IsSecret());
      }
}

TEST_F(DialogProperties, TheTwoElementsOfASettingAreIndependent) {
  properties_->Scale[0].SetLong(50);
  properties_->Title[1].SetString(L"document");
  EXPECT_EQ(0, properties_->Scale[1].GetLong());
  EXPECT_TRUE(properties_->Title[0].GetString().IsEmpty());
}

TEST_F(DialogProperties, IsNotRunning) { EXPECT_FALSE(properties_->running); }

TEST_F(DialogProperties, AdministratorFixesNothing) {
  EXPECT_FALSE(IsSetNumber(properties_->adminSettings.PdfVersion_Override));
  EXPECT_FALSE(IsSetBoolean(properties_->adminSettings.DisableManualUpdate));
  EXPECT_FALSE(IsSetText(properties_->adminSettings.Title_Override));
}

TEST(SecureWipe, OverwritesAllOfABufferAndEmptiesTheText) {
  CUString text(L"a long password");
  text.Assign(L"short");  // the end of the long one is still in the buffer
  const int capacity = text.Capacity();
  WipeText(text);
  EXPECT_TRUE(text.IsEmpty());
  ASSERT_EQ(capacity, text.Capacity());
  for (int i = 0; i < capacity; ++i) EXPECT_EQ(0, text.Buffer()[i]);
  CUString none;
  WipeText(none);
  EXPECT_EQ(nullptr, none.Buffer());
}

}  // namespace
