// The settings of a run as this host keeps them: a list of named, typed values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "NemPdfUI.hpp"

namespace host {

// A number or a text, as the kind of its setting has it; the other one is 0 or empty.
struct Value {
  int32_t number = 0;
  std::wstring text{};

  bool operator==(const Value&) const = default;
};

// The sets of properties, by the indices that the library's functions take.
constexpr int32_t kSets[] = {NEMPDFUI_GENERAL, NEMPDFUI_SETTINGS, NEMPDFUI_DOCUMENT};

struct Setting {
  int32_t set;
  const nempdf::PropertyInfo* info;  // of the library's list, never null
  Value value;

  bool IsNumber() const { return info->kind == nempdf::Kind::Number; }

  bool operator==(const Setting&) const = default;
};

using Settings = std::vector<Setting>;

// "general", "0" or "1": the set's name in files and messages.
std::wstring_view SetName(int32_t set);

// Gives the named setting a value; one that is not in the list yet is added. The set must have that name.
void Assign(Settings& settings, int32_t set, std::wstring_view name, Value value);

}  // namespace host
