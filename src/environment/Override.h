// What an administrator has fixed, as a page holds it: a copy of a field of AdminSettings that knows the field's own
// mark for "not set". OverrideOf gives the type that a field asks for, so that no page can take the wrong mark.
#pragma once

#include "environment/AdminSettings.h"

template <int32_t Unset>
struct NumericOverride {
  int32_t value = Unset;
  bool IsSet() const { return value != Unset; }
};

using NumberOverride = NumericOverride<kUnsetNumber>;
using BooleanOverride = NumericOverride<kUnsetBoolean>;

struct TextOverride {
  CUString value;
  bool IsSet() const { return !value.IsEmpty(); }
};

template <auto Field>
struct OverrideOf;

#define NEMPDF_OVERRIDE_OF(key, kind)      \
  template <>                              \
  struct OverrideOf<&AdminSettings::key> { \
    using Type = kind##Override;           \
  };
NEMPDF_ADMIN_RECORD(NEMPDF_OVERRIDE_OF)
#undef NEMPDF_OVERRIDE_OF
