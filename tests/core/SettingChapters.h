// The chapters under which the settings are explained to hosts, in the order of the sheet's navigation bar.
#pragma once

#include "ui/SettingsCatalogue.h"

struct SettingChapter {
  SettingPage page;
  const char* title;
  const char* note;  // Markdown, or null
};

inline constexpr char kBasicOnlyNote[] =
    "The page stands on the tab \"Basic Settings\" only and works on set 0. What a host sets in set 1 comes back "
    "unchanged.";

inline constexpr SettingChapter kSettingChapters[] = {
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
    {SettingPage::Actions, "Actions", kBasicOnlyNote},
    {SettingPage::Mail, "E-Mail", kBasicOnlyNote},
    {SettingPage::Saving, "Saving", kBasicOnlyNote},
};
