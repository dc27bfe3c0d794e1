// docs/properties.md is made from the catalogue of settings. This test renders it and compares; with the environment
// variable NEMPDF_UPDATE_DOCS set it writes the document instead.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "support/SourceDocument.h"
#include "ui/SettingsCatalogue.h"

namespace {

// The chapters of the document, in the order of the sheet's navigation bar.
struct Chapter {
  SettingPage page;
  const char* title;
  const char* note;
};

constexpr char kBasicOnly[] =
    "The page stands on the tab \"Basic Settings\" only and works on set 0. What a host sets in set 1 comes back "
    "unchanged.";

constexpr Chapter kChapters[] = {
    {SettingPage::Sheet, "The sheet and its host",
     "What the host tells the sheet about itself. No page changes these "
     "values."},
    {SettingPage::Paper, "Page",
     "The values are those of the printer's device mode, in its units. Only the values that `Fields` names count; the "
     "page sets the bits of what it writes."},
    {SettingPage::Graphic, "Graphical Optimization", nullptr},
    {SettingPage::Display, "Display", "How the document opens in a PDF reader."},
    {SettingPage::Watermark, "Watermark", "Watermark and stationery are independent of each other."},
    {SettingPage::Colours, "Colorspace", nullptr},
    {SettingPage::Links, "Links", nullptr},
    {SettingPage::Attachments, "Attachments", "PDF/A-1 and PDF/A-2 allow no attachments."},
    {SettingPage::Invoice, "ZUGFeRD invoice", nullptr},
    {SettingPage::Fonts, "Fonts", "PDF/A and PDF/UA embed all fonts, whatever these values say."},
    {SettingPage::Security, "PDF-Security",
     "Choosing PDF/A or PDF/UA switches passwords and restrictions off; PDF/A does not allow them at all. Passwords "
     "are never written to a trace, and are wiped from memory when they change and when the dialog object is freed."},
    {SettingPage::FormFields, "Fields", "How the form fields of a Word document become those of the PDF."},
    {SettingPage::FormColours, "Color settings", nullptr},
    {SettingPage::Format, "Output format", "Many pages obey `PdfVersion`."},
    {SettingPage::Bookmarks, "Bookmark", nullptr},
    {SettingPage::DocumentInfo, "Document Info",
     "With the value 2 in `InternalUse` the host sets these texts, and "
     "the user cannot."},
    {SettingPage::Actions, "Actions", kBasicOnly},
    {SettingPage::Mail, "E-Mail", kBasicOnly},
    {SettingPage::Saving, "Saving", kBasicOnly},
};

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
  for (const Chapter& chapter : kChapters) {
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
    EXPECT_EQ(1, std::count_if(std::begin(kChapters), std::end(kChapters),
                               [&row](const Chapter& chapter) { return chapter.page == row.page; }))
        << Narrow(row.name);
}

TEST(CatalogueDocument, IsUpToDate) {
  const SourceDocument properties("docs/properties.md");
  const std::string document = Render();
  properties.Update(document);
  EXPECT_TRUE(properties.Text() == document) << properties.Stale("the catalogue");
}

}  // namespace
