#include "host/Changes.h"

#include <gtest/gtest.h>

using namespace host;

namespace {

Settings AllInitial() {
  Settings settings;
  for (int32_t set : kSets)
    for (const nempdf::PropertyInfo& info : nempdf::Properties(set)) settings.push_back({set, &info, {}});
  return settings;
}

std::vector<std::wstring> Changed(int32_t set, std::wstring_view name, Value before, Value after) {
  Settings old = AllInitial();
  Settings now = AllInitial();
  Assign(old, set, name, std::move(before));
  Assign(now, set, name, std::move(after));
  return DescribeChanges(old, now);
}

using Lines = std::vector<std::wstring>;

TEST(Changes, NoneForEqualSettings) { EXPECT_TRUE(DescribeChanges(AllInitial(), AllInitial()).empty()); }

TEST(Changes, ShowBothNumbers) {
  EXPECT_EQ(Changed(NEMPDFUI_SETTINGS, L"GraphicJpegQuality", {.number = 85}, {.number = 60}),
            Lines{L"[0] GraphicJpegQuality: 85 -> 60"});
  EXPECT_EQ(Changed(NEMPDFUI_DOCUMENT, L"PdfVersion", {.number = 0}, {.number = -1}),
            Lines{L"[1] PdfVersion: 0 -> -1"});
  EXPECT_EQ(Changed(NEMPDFUI_GENERAL, L"PasswordVisible", {.number = 0}, {.number = 1}),
            Lines{L"[general] PasswordVisible: 0 -> 1"});
}

TEST(Changes, ShowBothTextsOnOneLine) {
  EXPECT_EQ(Changed(NEMPDFUI_SETTINGS, L"Title", {}, {.text = L"a\nb"}), Lines{L"[0] Title: \"\" -> \"a^nb\""});
}

TEST(Changes, CompareTextsWithCase) {
  EXPECT_EQ(Changed(NEMPDFUI_SETTINGS, L"Author", {.text = L"nem"}, {.text = L"Nem"}),
            Lines{L"[0] Author: \"nem\" -> \"Nem\""});
}

// The list of stationery holds a password as well.
TEST(Changes, HideEveryPassword) {
  for (const wchar_t* name :
       {L"EncryptUserPassword", L"EncryptOwnerPassword", L"EncryptEnhancedPdfPassword", L"StationeryInfos"}) {
    EXPECT_EQ(Changed(NEMPDFUI_SETTINGS, name, {.text = L"old"}, {.text = L"new"}),
              Lines{L"[0] " + std::wstring(name) + L": changed (not shown)"});
  }
}

TEST(Changes, StandInTheOrderOfTheSettings) {
  Settings now = AllInitial();
  Assign(now, NEMPDFUI_DOCUMENT, L"Used", {.number = 1});
  Assign(now, NEMPDFUI_SETTINGS, L"Keywords", {.text = L"k"});
  Assign(now, NEMPDFUI_SETTINGS, L"Scale", {.number = 50});
  EXPECT_EQ(DescribeChanges(AllInitial(), now),
            (Lines{L"[0] Scale: 0 -> 50", L"[0] Keywords: \"\" -> \"k\"", L"[1] Used: 0 -> 1"}));
}

}  // namespace
