#include "host/DialogSettings.h"

#include <gtest/gtest.h>

#include "core/FakeExports.h"

using namespace host;

namespace {

Settings AllDifferent() {
  Settings settings;
  int32_t count = 0;
  for (int32_t set : kSets)
    for (const nempdf::PropertyInfo& info : nempdf::Properties(set)) {
      Value value;
      if (info.kind == nempdf::Kind::Number)
        value.number = ++count;
      else
        value.text = std::wstring(info.name) + static_cast<wchar_t>(L'a' + set);
      settings.push_back({set, &info, value});
    }
  return settings;
}

TEST(DialogSettings, AllGoInAndComeOut) {
  fakeExports = {};
  nempdf::Dialog dialog;
  StoreSettings(dialog, AllDifferent());
  EXPECT_TRUE(LoadSettings(dialog) == AllDifferent());
}

TEST(DialogSettings, WhatIsNotStoredStays) {
  fakeExports = {};
  nempdf::Dialog dialog;
  StoreSettings(dialog, AllDifferent());
  Settings expected = AllDifferent();
  expected[0].value.number = 4711;
  StoreSettings(dialog, {expected[0]});
  EXPECT_TRUE(LoadSettings(dialog) == expected);
}

TEST(DialogSettings, ARefusedOneIsNamed) {
  fakeExports = {};
  nempdf::Dialog dialog;
  fakeExports.refusesProperties = true;
  try {
    StoreSettings(dialog, AllDifferent());
    FAIL();
  } catch (const nempdf::Error& error) {
    EXPECT_STREQ("NemPdfUI: the library refuses HwndParent in set -1", error.what());
  }
}

}  // namespace
