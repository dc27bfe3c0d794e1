#include "sheet/HelpTopics.h"

namespace {

// German help has topics of its own, every other language the English ones.
struct TopicRow {
  uint32_t key;  // a dialog id, or the id of a link control
  const wchar_t* other;
  const wchar_t* german;
};

constexpr TopicRow kTopics[] = {
    {144, L"::/Page_setup_properties.htm", L"::/Eigenschaften_zur_Seiteneinrichtung.htm"},
    {141, L"::/Graphical_Optimization.htm", L"::/Eigenschaften_zur_Graphikoptimierung.htm"},
    {1144, L"::/Graphical_Optimization.htm", L"::/Eigenschaften_zur_Graphikoptimierung.htm"},
    {142, L"::/Displaying_properties.htm", L"::/Eigenschaften_zur_Anzeige.htm"},
    {1175, L"::/Displaying_properties.htm", L"::/Eigenschaften_zur_Anzeige.htm"},
    {139, L"::/Watermark_properties.htm", L"::/Eigenschaften_zum_Wasserzeichen.htm"},
    {1177, L"::/Watermark_properties.htm", L"::/Eigenschaften_zum_Wasserzeichen.htm"},
    {138, L"::/Properties_of_the_fonts.htm", L"::/Eigenschaften_zu_den_Schriftarten.htm"},
    {1134, L"::/Properties_of_the_fonts.htm", L"::/Eigenschaften_zu_den_Schriftarten.htm"},
    {140, L"::/Properties_for_PDF_security.htm", L"::/Eigenschaften_zur_PDF_Sicherheit.htm"},
    {1139, L"::/Properties_for_PDF_security.htm", L"::/Eigenschaften_zur_PDF_Sicherheit.htm"},
    {181, L"::/Properties_for_the_fields.htm", L"::/Eigenschaften_zum_Formular.htm"},
    {1194, L"::/Properties_for_the_fields.htm", L"::/Eigenschaften_zum_Formular.htm"},
    {183, L"::/Properties_for_setting_colors.htm", L"::/Eigenschaften_zur_Farbeinstellung.htm"},
    {192, L"::/Properties_for_output_format.htm", L"::/Eigenschaften_zum_Ausgabeformat.htm"},
    {1249, L"::/Properties_for_output_format.htm", L"::/Eigenschaften_zum_Ausgabeformat.htm"},
    {147, L"::/Dokument_Info.htm", L"::/Dokument_Info.htm"},
    {143, L"::/Properties_for_the_actions.htm", L"::/Eigenschaften_zu_den_Aktionen.htm"},
    {1140, L"::/Properties_for_the_actions.htm", L"::/Eigenschaften_zu_den_Aktionen.htm"},
    {189, L"::/Properties_for_the_e-mail_function.htm", L"::/Eigenschaften_zur_E_Mail.htm"},
    {190, L"::/Properties_for_links.htm", L"::/Eigenschaften_zu_Links.htm"},
    {145, L"::/Properties_for_saving.htm", L"::/Eigenschaften_zum_Speichern.htm"},
    {1164, L"::/Properties_for_saving.htm", L"::/Eigenschaften_zum_Speichern.htm"},
    {196, L"::/Properties_for_Colorspace.htm", L"::/Eigenschaften_zum_Farbraum.htm"},
    {1335, L"::/Properties_for_Colorspace.htm", L"::/Eigenschaften_zum_Farbraum.htm"},
    {194, L"::/Properties_for_Bookmarks.htm", L"::/Eigenschaften_zu_Lesezeichen.htm"},
    {1284, L"::/Properties_for_Bookmarks.htm", L"::/Eigenschaften_zu_Lesezeichen.htm"},
    {1366, L"::/Languageselection.htm", L"::/Sprachauswahl.htm"},
    {1365, L"::/Cockpit.htm", L"::/Cockpit.htm"},
    {1367, L"::/Update.htm", L"::/Update.htm"},
    {1368, L"::/NEMad.htm", L"::/NEMWerbung.htm"},
    {1167, L"::/What_can_NEM_offer_you_in_all_aspects_of_PDF.htm", L"::/PDF_und_NEM.htm"},
    {1254, L"::/Basics_of_NEM_pdf_vonder.htm", L"::/Eigenschaften_von_NEM_pdf_vonder.htm"},
    {146, L"::/Info.htm", L"::/Info.htm"},
    {0, nullptr, nullptr},
};

}  // namespace

const wchar_t* FindHelpTopic(uint32_t key, bool german) {
  for (const TopicRow* row = kTopics; row->key; ++row)
    if (row->key == key) return german ? row->german : row->other;
  return nullptr;
}
