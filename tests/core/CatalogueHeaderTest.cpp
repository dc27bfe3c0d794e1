// include/NemPdfUISettings.hpp, the names of all properties for hosts in C++, is made from the catalogue of settings.
// This test renders it and compares; with the environment variable NEMPDF_UPDATE_DOCS set it writes the header instead.
#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <sstream>
#include <string>
#include <type_traits>

#include "core/SettingChapters.h"
#include "NemPdfUISettings.hpp"
#include "support/SourceDocument.h"

namespace {

constexpr size_t kCommentWidth = 120;

constexpr char kIntroduction[] =
    R"(// NemPdfUISettings.hpp: the properties of a dialog object by name and kind, for NemPdfUI.hpp.
//
// Generated from src/ui/SettingsCatalogue.h by tests/core/CatalogueHeaderTest.cpp. Do not edit here: change the
// catalogue, then run core_tests with NEMPDF_UPDATE_DOCS=1 in the environment.
//
// docs/properties.md tells the same in tables, with what holds for all values.
#ifndef NEMPDFUISETTINGS_HPP
#define NEMPDFUISETTINGS_HPP

#include <cstdint>

namespace nempdf {

// A number is a signed 32-bit integer; a secret is a text that holds a password.
enum class Kind : std::uint8_t { Number, Text, Secret };

// The name of a property of the general set, and of one that both sets of settings have.
template <Kind kind>
struct GeneralProperty {
  const wchar_t* name;
};
template <Kind kind>
struct Setting {
  const wchar_t* name;
};

// A property in a list.
struct PropertyInfo {
  const wchar_t* name;
  Kind kind;
};

template <Kind kind>
constexpr PropertyInfo InfoOf(GeneralProperty<kind> property) {
  return {property.name, kind};
}
template <Kind kind>
constexpr PropertyInfo InfoOf(Setting<kind> setting) {
  return {setting.name, kind};
}

// clang-format off
)";

constexpr char kEnd[] = R"(
// clang-format on

}  // namespace nempdf

#endif
)";

std::string Narrow(std::wstring_view text) { return {text.begin(), text.end()}; }

const char* KindName(SettingKind kind) {
  switch (kind) {
    case SettingKind::Long:
      return "Kind::Number";
    case SettingKind::Text:
      return "Kind::Text";
    default:
      return "Kind::Secret";
  }
}

// The text as a comment, broken between words.
std::string Comment(std::string_view text) {
  std::istringstream words{std::string(text)};
  std::string comment, line = "//";
  for (std::string word; words >> word;) {
    if (line.size() + 1 + word.size() > kCommentWidth) {
      comment += line + "\n";
      line = "//";
    }
    line += " " + word;
  }
  return comment + line + "\n";
}

template <size_t count>
std::string Names(const SettingInfo (&rows)[count], SettingPage page, const std::string& type) {
  std::string names;
  for (const SettingInfo& row : rows)
    if (row.page == page)
      names += Comment(row.meaning) + "inline constexpr " + type + "<" + KindName(row.kind) + "> " + Narrow(row.name) +
               "{L\"" + Narrow(row.name) + "\"};\n";
  return names;
}

template <size_t count>
std::string List(const SettingInfo (&rows)[count], const std::string& list, const std::string& space) {
  std::string text = "inline constexpr PropertyInfo " + list + "[] = {\n";
  for (const SettingInfo& row : rows) text += "    InfoOf(" + space + "::" + Narrow(row.name) + "),\n";
  return text + "};\n";
}

std::string Render() {
  std::string header = kIntroduction;
  header += "\nnamespace general {\n\n" + Names(kGeneralProperties, SettingPage::General, "GeneralProperty") +
            "\n}  // namespace general\n\nnamespace settings {\n";
  for (const SettingChapter& chapter : kSettingChapters) {
    header += "\n// --- " + std::string(chapter.title) + " ---\n";
    if (chapter.note) header += Comment(chapter.note);
    header += "\n" + Names(kSettings, chapter.page, "Setting");
  }
  header += "\n}  // namespace settings\n\n// All of them, in the library's order.\n";
  header += List(kGeneralProperties, "kGeneralProperties", "general") + "\n";
  return header + List(kSettings, "kSettings", "settings") + kEnd;
}

const SourceDocument kHeader("include/NemPdfUISettings.hpp");

TEST(CatalogueHeader, IsUpToDate) {
  const std::string header = Render();
  kHeader.Update(header);
  EXPECT_TRUE(kHeader.Text() == header) << kHeader.Stale("the catalogue");
}

// Compilers take other characters for those of some code page, and a backslash at its end makes a comment go on.
TEST(CatalogueHeader, IsPlainTextThatAnyCompilerReadsAlike) {
  std::istringstream lines(kHeader.Text());
  size_t count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    EXPECT_TRUE(std::ranges::all_of(line, [](char character) { return character >= ' ' && character <= '~'; })) << line;
    EXPECT_FALSE(line.ends_with('\\')) << line;
    EXPECT_LE(line.size(), kCommentWidth) << line;
  }
  EXPECT_GT(count, 2 * kSettingCount);
}

// What the header says to a compiler, beside what it is as a text. The counts are compared at run time: this unit must
// compile with a stale header too, to write a new one.
void ExpectSame(std::span<const SettingInfo> expected, std::span<const nempdf::PropertyInfo> properties) {
  ASSERT_EQ(expected.size(), properties.size());
  for (size_t i = 0; i < expected.size(); ++i) {
    EXPECT_TRUE(expected[i].name == properties[i].name) << i;
    EXPECT_EQ(static_cast<int>(expected[i].kind), static_cast<int>(properties[i].kind)) << i;
  }
}

TEST(CatalogueHeader, ListsTheCatalogueInItsOrder) {
  ExpectSame(kGeneralProperties, nempdf::kGeneralProperties);
  ExpectSame(kSettings, nempdf::kSettings);
}

static_assert(std::is_same_v<decltype(nempdf::settings::Scale), const nempdf::Setting<nempdf::Kind::Number>>);
static_assert(std::is_same_v<decltype(nempdf::settings::Title), const nempdf::Setting<nempdf::Kind::Text>>);
static_assert(
    std::is_same_v<decltype(nempdf::settings::EncryptUserPassword), const nempdf::Setting<nempdf::Kind::Secret>>);
static_assert(
    std::is_same_v<decltype(nempdf::general::HwndParent), const nempdf::GeneralProperty<nempdf::Kind::Number>>);

}  // namespace
