// docs/properties.md is made from the catalogue of settings. This test renders it and compares; with the environment
// variable NEMPDF_UPDATE_DOCS set it writes the document instead.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "core/SettingChapters.h"
#include "support/SourceDocument.h"

namespace {

constexpr char kIntroduction[] = R"(# Properties

<!-- Generated from src/ui/SettingsCatalogue.h by tests/core/CatalogueDocTest.cpp. Do not edit here: change the
     catalogue, then run core_tests with NEMPDF_UPDATE_DOCS=1 in the environment. -->

All values of a dialog object are properties. A host sets them with `NemPdfUISetPropertyA` or `NemPdfUISetPropertyW`
before it shows the sheet, and gets them with `NemPdfUIGetPropertyA` or `NemPdfUIGetPropertyW` when the user has closed
it. `include/NemPdfUI.h` describes the functions; this page describes the values.

## Sets

A property is addressed by an index and a name.

| Index | Set |
|---|---|
| -1 | the general properties |
| 0 | the settings of the tab "Basic Settings" |
| 1 | the settings of the tab "e.pdf Document Properties" |

The sets 0 and 1 hold the same settings, each with values of its own. The general set knows the general names only, and
the settings sets know the names of settings only. Names are case-sensitive, and their capitals are not always where
one expects them: `EmbedFilenamesEnabled` but `EmbedfilenamesConfirmed`, `FormFieldsEnabled` but `ShowFormfields`.

## Values

- In a new dialog object every number is 0 and every text is empty. The library has no defaults of its own for them: a
  host sets all that it wants to be shown.
- A *number* is a signed 32-bit integer, passed by pointer both ways. A null pointer sets 0.
- A *text* is passed as a pointer to its first character and ends with a zero. A null pointer sets the empty text. The
  A form of the set function takes text in the ANSI code page. **Both get functions deliver text as wide characters.**
- The size of a buffer counts bytes for a number and wide characters for a text. A number needs at least 4, a text at
  least its length plus 2.
- A *switch* is a number: 1 is on, 0 is off.
- A *bit set* is the sum of the values named.
- A *colour* is a number of the form `0x00BBGGRR`: blue, green, red.
- Setting a property whose name is null or empty puts the whole set back to zeros and empty texts.

A page that the user does not open leaves its settings as the host set them. A page that the user opens may put a value
that it cannot show in order, as it would after a user's mistake: an unknown value of a list becomes the list's first
entry, and a number out of its range becomes a valid one.

Settings that an administrator has fixed for the printer are shown with their controls locked.
)";

std::string Narrow(std::wstring_view text) { return {text.begin(), text.end()}; }

const char* TypeName(SettingKind kind) { return kind == SettingKind::Long ? "number" : "text"; }

template <size_t count>
std::string Table(const SettingInfo (&rows)[count], SettingPage page) {
  std::string table = "| Name | Type | Meaning and values |\n|---|---|---|\n";
  for (const SettingInfo& row : rows)
    if (row.page == page)
      table += "| `" + Narrow(row.name) + "` | " + TypeName(row.kind) + " | " + std::string(row.meaning) + " |\n";
  return table;
}

std::string Render() {
  std::string document = kIntroduction;
  document += "\n## General properties\n\n" + Table(kGeneralProperties, SettingPage::General);
  document += "\n## Settings\n\nThe settings by the pages on which the user meets them.\n";
  for (const SettingChapter& chapter : kSettingChapters) {
    document += "\n### " + std::string(chapter.title) + "\n\n";
    if (chapter.note) document += std::string(chapter.note) + "\n\n";
    document += Table(kSettings, chapter.page);
  }
  document += "\n## Order\n\nThe settings in the order in which they are registered.\n\n";
  int number = 0;
  for (const SettingInfo& row : kSettings) document += std::to_string(++number) + ". `" + Narrow(row.name) + "`\n";
  return document;
}

TEST(CatalogueDocument, HasAChapterForEveryPage) {
  for (const SettingInfo& row : kSettings)
    EXPECT_EQ(1, std::count_if(std::begin(kSettingChapters), std::end(kSettingChapters),
                               [&row](const SettingChapter& chapter) { return chapter.page == row.page; }))
        << Narrow(row.name);
}

TEST(CatalogueDocument, IsUpToDate) {
  const SourceDocument properties("docs/properties.md");
  const std::string document = Render();
  properties.Update(document);
  EXPECT_TRUE(properties.Text() == document) << properties.Stale("the catalogue");
}

}  // namespace
