// The table by which a glue class moves values between the members of its page and the properties of the sheet. Each
// row is made from a member of the page and the property, or the administrator's field, that it stands for:
//
//   static constexpr Binding kBindings[] = {
//       Bind<&CPdfGraphicPage::jpegQuality, &CDialogProperties::GraphicJpegQuality>(),
//       BindOverride<&CPdfGraphicPage::jpegQualityOverride, &AdminSettings::GraphicJpegQuality_Override>(),
//   };
//
// What a table cannot say stands in the glue class's own OnPropertiesRead and OnPropertiesWritten.
#pragma once

#include <type_traits>

#include "environment/Override.h"
#include "ui/CDialogProperties.h"

template <class Page>
struct PropertyBinding {
  void (*read)(Page& page, const CDialogProperties& properties, int settingsIndex);
  // Null on a row that is read and never written.
  void (*write)(const Page& page, CDialogProperties& properties, int settingsIndex);
};

namespace property_binding {

template <class T>
struct ClassOf;
template <class C, class M>
struct ClassOf<M C::*> {
  using Class = C;
};

template <auto Member>
using PageOf = typename ClassOf<decltype(Member)>::Class;

template <class Value>
void ReadInto(Value& member, const CProperty& property) {
  if constexpr (std::is_integral_v<Value>)
    member = static_cast<Value>(property.GetLong());
  else
    member = property.GetString();
}

template <class Value>
void WriteFrom(const Value& member, CProperty& property) {
  if constexpr (std::is_integral_v<Value>)
    property.SetLong(static_cast<int32_t>(member));
  else
    property.SetString(member);
}

// The set of a row: the page's own, or one that the row fixes.
constexpr int kPagesOwnSet = -1;
constexpr int SetOf(int fixed, int settingsIndex) { return fixed == kPagesOwnSet ? settingsIndex : fixed; }

template <auto Member, auto Property, int FixedSet>
void Read(PageOf<Member>& page, const CDialogProperties& properties, int settingsIndex) {
  ReadInto(page.*Member, (properties.*Property)[SetOf(FixedSet, settingsIndex)]);
}

template <auto Member, auto Property, int FixedSet>
void Write(const PageOf<Member>& page, CDialogProperties& properties, int settingsIndex) {
  WriteFrom(page.*Member, (properties.*Property)[SetOf(FixedSet, settingsIndex)]);
}

template <auto Member, auto Field>
void ReadOverride(PageOf<Member>& page, const CDialogProperties& properties, int) {
  static_assert(std::is_same_v<std::remove_reference_t<decltype(page.*Member)>, typename OverrideOf<Field>::Type>,
                "Booleans, numbers and texts have marks of their own for what is not set.");
  (page.*Member).value = properties.adminSettings.*Field;
}

}  // namespace property_binding

// Read from and written to the set that the page edits, or one that is fixed whichever tab the page stands on.
template <auto Member, auto Property, int SettingsSet = property_binding::kPagesOwnSet>
constexpr auto Bind() {
  namespace binding = property_binding;
  return PropertyBinding<binding::PageOf<Member>>{&binding::Read<Member, Property, SettingsSet>,
                                                  &binding::Write<Member, Property, SettingsSet>};
}

// Read, never written.
template <auto Member, auto Property, int SettingsSet = property_binding::kPagesOwnSet>
constexpr auto BindReadOnly() {
  namespace binding = property_binding;
  return PropertyBinding<binding::PageOf<Member>>{&binding::Read<Member, Property, SettingsSet>, nullptr};
}

// What an administrator has fixed.
template <auto Member, auto Field>
constexpr auto BindOverride() {
  namespace binding = property_binding;
  return PropertyBinding<binding::PageOf<Member>>{&binding::ReadOverride<Member, Field>, nullptr};
}
