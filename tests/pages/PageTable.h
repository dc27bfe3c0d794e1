// What a page does with its properties, as a table. PageTableTest.cpp holds each page to its table: values shown and
// saved, the user's choices, the other set, locks, the cockpit, help. A page's own test says the rest.
//
//   const PageTable kTable = {
//       .name = "Colors",
//       .pageId = kColorsPage,
//       .helpLink = IDC_COLORS_HELP_LINK,
//       .rows = {Radios(L"Colorspace", {IDC_COLORS_RGB, IDC_COLORS_CMYK})
//                    .Stores({{2, L"", 1}})
//                    .LockedBy<&AdminSettings::Colorspace_Override>({IDC_COLORS_RGB, IDC_COLORS_CMYK})
//                    .Tracked<&ColorsCockpitValues::colorspace>()},
//   };
//   const PageTableEntry entry(kTable);
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

#include "cockpit/CockpitValues.h"
#include "environment/Override.h"
#include "support/PageUnderTest.h"

// Values of properties stand as text, numbers in decimal.
struct PropertyValue : std::wstring {
  PropertyValue(int32_t number) : std::wstring(std::to_wstring(number)) {}
  PropertyValue(const wchar_t* text) : std::wstring(text) {}
};

// A host's value, what the control shows of it, and what OK makes of it.
struct StoredCase {
  PropertyValue stored;
  std::wstring shown;
  PropertyValue saved;
};

// What the user types, what stands there when the field has been left, and what OK stores.
struct TypedCase {
  std::wstring typed, left;
  PropertyValue saved;
};

struct PropertyRow {
  enum class Kind { kChoice, kCheck, kRadios, kField, kUnshown };

  Kind kind;
  std::wstring property;
  std::vector<int> controls;       // several radios, or one control
  std::vector<StoredCase> stored;  // the first is the one that stands while other rows are looked at
  std::vector<TypedCase> typed;
  std::vector<std::pair<std::wstring, PropertyValue>> given;
  bool chosenByHand = false;

  std::function<void(AdminSettings&)> lock;
  std::vector<int> locked;
  std::function<std::wstring(CNemUIPage&)> readByCockpit;
  std::function<void(CNemUIPage&, const std::wstring&)> writeByCockpit;

  // Further values of the host.
  PropertyRow Stores(std::vector<StoredCase> cases) && {
    stored.insert(stored.end(), cases.begin(), cases.end());
    return std::move(*this);
  }
  PropertyRow Types(std::vector<TypedCase> cases) && {
    typed = std::move(cases);
    return std::move(*this);
  }
  // Other properties' values that open the control.
  PropertyRow Given(std::vector<std::pair<std::wstring, PropertyValue>> values) && {
    given = std::move(values);
    return std::move(*this);
  }
  // Choosing brings up boxes: the page's own test does it.
  PropertyRow ChosenByHand() && {
    chosenByHand = true;
    return std::move(*this);
  }
  // The administrator's field that locks these controls, and no others, whatever its value.
  template <auto Field>
  PropertyRow LockedBy(std::vector<int> ids) && {
    lock = [](AdminSettings& admin) {
      if constexpr (std::is_same_v<typename OverrideOf<Field>::Type, TextOverride>)
        admin.*Field = L"fixed";
      else
        admin.*Field = 0;
    };
    locked = std::move(ids);
    return std::move(*this);
  }
  // The cockpit's field for the property.
  template <auto Field>
  PropertyRow Tracked() &&;
};

PropertyRow Choice(const std::wstring& property, int combo, const std::vector<std::pair<std::wstring, int32_t>>& rows);
PropertyRow CheckBox(const std::wstring& property, int check);
PropertyRow InvertedCheckBox(const std::wstring& property, int check);
// One bit of a set; the others stay.
PropertyRow CheckBoxOfBit(const std::wstring& property, int check, int32_t bit);
// The value counts the radios from `first`.
PropertyRow Radios(const std::wstring& property, const std::vector<int>& radios, int32_t first = 0);
// An edit or a combo with one. The cases are in Stores and Types.
PropertyRow Field(const std::wstring& property, int control);
// No single control tells the value: what is shown stands as an empty text in Stores.
PropertyRow Unshown(const std::wstring& property);

struct PageTable {
  const char* name;
  int pageId;
  int helpLink = 0;  // with a topic of its own
  std::vector<PropertyRow> rows = {};
};

// How GoogleTest names the table of a test that failed.
inline void PrintTo(const PageTable& table, std::ostream* stream) { *stream << table.name; }

const std::vector<PageTable>& AllPageTables();

// Enters a table.
struct PageTableEntry {
  explicit PageTableEntry(const PageTable& table);
};

namespace page_table {

template <class T>
struct MemberOf;
template <class C, class M>
struct MemberOf<M C::*> {
  using Class = C;
  using Value = M;
};

inline std::wstring ToText(const CUString& text) { return text.Text(); }
template <class Number>
std::wstring ToText(Number number) {
  return std::to_wstring(number);
}

inline void FromText(const std::wstring& text, CUString& value) { value = text.c_str(); }
template <class Number>
void FromText(const std::wstring& text, Number& value) {
  value = static_cast<Number>(std::stoll(text));
}

}  // namespace page_table

template <auto Field>
PropertyRow PropertyRow::Tracked() && {
  using Values = typename page_table::MemberOf<decltype(Field)>::Class;
  readByCockpit = [](CNemUIPage& page) {
    Values values;
    dynamic_cast<CockpitPage<Values>&>(page).GetCockpitValues(values);
    return page_table::ToText(values.*Field);
  };
  writeByCockpit = [](CNemUIPage& page, const std::wstring& text) {
    auto& tracked = dynamic_cast<CockpitPage<Values>&>(page);
    Values values;
    tracked.GetCockpitValues(values);
    page_table::FromText(text, values.*Field);
    tracked.SetCockpitValues(values);
  };
  return std::move(*this);
}
