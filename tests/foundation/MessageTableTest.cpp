// The message table as it lies in the library: ids, languages, notation, and the English texts that others know by
// number.
#include <gtest/gtest.h>

#include <algorithm>

#include "MessageIds.h"
#include "support/ModuleResources.h"

namespace {

using namespace module_resources;

constexpr uint32_t kLanguageNumber = 0x400003E8;
constexpr uint32_t kVideoAddress = 0x4001087C;

std::wstring Format(uint32_t id, WORD language) {
  wchar_t buffer[2048] = {};
  DWORD_PTR inserts[9] = {};
  for (DWORD_PTR& insert : inserts) insert = reinterpret_cast<DWORD_PTR>(L"text");
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_FROM_HMODULE | FORMAT_MESSAGE_ARGUMENT_ARRAY, GetModuleHandleW(nullptr), id,
                     language, buffer, std::size(buffer), reinterpret_cast<va_list*>(inserts));
  return {buffer, length};
}

// The entry without the mark that every one ends in.
std::wstring Text(const Texts& table, uint32_t id) {
  const auto entry = table.find(id);
  if (entry == table.end() || !entry->second.ends_with(L"%0")) return L"(no entry)";
  return entry->second.substr(0, entry->second.size() - 2);
}

// The inserts as they are written, such as "1!s!"; an escape that the notation does not have becomes "?".
std::multiset<std::wstring> Inserts(const std::wstring& text) {
  std::multiset<std::wstring> inserts;
  for (size_t i = text.find(L'%'); i != std::wstring::npos; i = text.find(L'%', i)) {
    const wchar_t next = i + 1 < text.size() ? text[i + 1] : 0;
    if (next >= L'1' && next <= L'9') {
      const size_t end = text.find(L'!', i + 3);
      const bool formatted = i + 2 < text.size() && text[i + 2] == L'!' && end != std::wstring::npos;
      inserts.insert(formatted ? text.substr(i + 1, end - i) : L"?");
    } else if (next != L'n' && next != L'%' && next != L'0') {
      inserts.insert(L"?");
    }
    i += 2;
  }
  return inserts;
}

}  // namespace

TEST(MessageTable, ComesInExactlyFourLanguages) {
  EXPECT_EQ(Names(RT_MESSAGETABLE), std::set<WORD>{1});
  EXPECT_EQ(Languages(RT_MESSAGETABLE, 1), kLanguages);
}

TEST(MessageTable, TellsItsOwnLanguage) {
  EXPECT_EQ(Format(kLanguageNumber, kGerman), L"7");
  EXPECT_EQ(Format(kLanguageNumber, kEnglish), L"9");
  EXPECT_EQ(Format(kLanguageNumber, kFrench), L"12");
  EXPECT_EQ(Format(kLanguageNumber, kArabic), L"1");
}

TEST(MessageTable, HasTheSameIdsInEachLanguage) {
  const Texts english = MessageTable(kEnglish);
  ASSERT_GT(english.size(), 100u);
  for (const WORD language : kTranslations) {
    const Texts table = MessageTable(language);
    EXPECT_EQ(table.size(), english.size()) << language;
    for (const auto& [id, text] : english) EXPECT_TRUE(table.contains(id)) << language << std::hex << " " << id;
  }
}

TEST(MessageTable, EveryMessageCanBeFormattedInEachLanguage) {
  for (const WORD language : kLanguages) {
    for (const auto& [id, text] : MessageTable(language)) {
      const std::wstring formatted = Format(id, language);
      EXPECT_FALSE(formatted.empty()) << language << std::hex << " " << id;
      EXPECT_NE(formatted.back(), L'\n') << language << std::hex << " " << id;
    }
  }
}

TEST(MessageTable, EveryMessageEndsInTheMarkAgainstALineBreak) {
  for (const WORD language : kLanguages) {
    for (const auto& [id, text] : MessageTable(language)) {
      EXPECT_EQ(text.find(L"%0"), text.size() - 2) << language << std::hex << " " << id;
    }
  }
}

TEST(MessageTable, TranslationsHaveTheInsertsOfTheEnglishText) {
  const Texts english = MessageTable(kEnglish);
  for (const WORD language : kLanguages) {
    const Texts table = MessageTable(language);
    for (const auto& [id, text] : english) {
      const std::multiset<std::wstring> inserts = Inserts(Text(table, id));
      EXPECT_EQ(inserts, Inserts(text)) << language << std::hex << " " << id;
      EXPECT_FALSE(inserts.contains(L"?")) << language << std::hex << " " << id;
    }
  }
}

TEST(MessageTable, OnlyTheGermanVideoAddressLeavesItsEntryOpenInOtherLanguages) {
  for (const WORD language : kLanguages) {
    for (const auto& [id, text] : MessageTable(language)) {
      const bool isOpen = text == L"XX%0";
      EXPECT_EQ(isOpen, id == kVideoAddress && language != kGerman) << language << std::hex << " " << id;
    }
  }
  EXPECT_TRUE(Format(kVideoAddress, kGerman).starts_with(L"https://www.nem-software.example/"));
}

// The web site has one name, which stands in one text; only the German video has an address of its own.
TEST(MessageTable, NamesTheWebSiteOnce) {
  for (const WORD language : kLanguages) {
    std::set<std::wstring> addresses;
    for (const auto& [id, text] : MessageTable(language))
      if (id != kVideoAddress && text.find(L"://") != text.npos) addresses.insert(text);
    EXPECT_EQ(addresses, std::set<std::wstring>{L"https://www.nem-software.example%0"}) << language;
  }
}

TEST(MessageTable, NumbersLeadTheRowsOfResolutionsAndQualitiesInEachLanguage) {
  const Texts english = MessageTable(kEnglish);
  for (const WORD language : kLanguages) {
    const Texts table = MessageTable(language);
    for (uint32_t id = 0x400108C1; id <= 0x400108D3; ++id) {
      if (!english.contains(id)) continue;
      EXPECT_EQ(_wtoi(Text(table, id).c_str()), _wtoi(Text(english, id).c_str())) << language << std::hex << " " << id;
    }
  }
}

// Words that are the same in that language. Any other text that equals the English one has been forgotten.
TEST(MessageTable, TranslationsDifferFromTheEnglishText) {
  const std::set<std::wstring> measures = {L"A0 841 x 1189 mm",
                                           L"A1 594 x 841 mm",
                                           L"A2 420 x 594 mm",
                                           L"A3 297 x 420 mm",
                                           L"A4 210 x 297 mm",
                                           L"A5 148 x 210 mm",
                                           L"A6 105 x 148 mm",
                                           L"B4 250 x 354 mm",
                                           L"B5 182 x 257 mm",
                                           L"0 pt",
                                           L"\u00BC pt",
                                           L"\u00BD pt",
                                           L"\u00BE pt",
                                           L"1 pt",
                                           L"1\u00BD pt",
                                           L"2\u00BC pt",
                                           L"3 pt",
                                           L"4\u00BD pt",
                                           L"6 pt"};
  const std::pair<std::wstring, std::set<WORD>> same[] = {
      {L"Cockpit", {kGerman}},
      {L"Layout", {kGerman}},
      {L"Info", {kGerman}},
      {L"E-Mail", {kGerman}},
      {L"Links", {kGerman}},
      {L"Update", {kGerman}},
      {L"Internet", {kGerman, kFrench}},
      {L"JPEG", {kGerman, kFrench, kArabic}},
      {L"ZUGFeRD", {kGerman, kFrench, kArabic}},
      {L"PDF/A-1b", {kGerman, kFrench, kArabic}},
      {L"Standard", {kGerman, kFrench}},
      {L"50 dpi", {kGerman, kArabic}},
      {L"150 dpi", {kGerman, kArabic}},
      {L"450 dpi", {kGerman, kArabic}},
      {L"900 dpi", {kGerman, kArabic}},
      {L"2400 dpi", {kGerman, kArabic}},
      {L"%1!d! dpi", {kGerman, kArabic}},
      {L"Page", {kFrench}},
      {L"Actions", {kFrench}},
      {L"XX", {kFrench, kArabic}},
      {L"Orange", {kGerman, kFrench}},
      {L"Pink", {kGerman}},
      {L"Gold", {kGerman}},
      {L"Text", {kGerman}},
      {L"Indigo", {kFrench}},
      {L"Violet", {kFrench}},
      {L"Turquoise", {kFrench}},
      {L"Rose", {kFrench}},
      {L"%1!d!%%", {kArabic}},
      {L"Index 1", {kGerman, kFrench}},
      {L"Index 2", {kGerman, kFrench}},
      {L"Index 3", {kGerman, kFrench}},
      {L"Index 4", {kGerman, kFrench}},
      {L"Index 5", {kGerman, kFrench}},
      {L"Index 6", {kGerman, kFrench}},
      {L"Index 7", {kGerman, kFrench}},
      {L"Index 8", {kGerman, kFrench}},
      {L"Index 9", {kGerman, kFrench}},
      {L"Hyperlink", {kGerman}},
      {L"HTML Code", {kGerman}},
      {L"HTML Definition", {kGerman}},
      {L"HTML Variable", {kGerman}},
      {L"Normal", {kFrench}},
      {L"Signature", {kFrench}},
      {L"Date", {kFrench}},
      {L"Normal (Web)", {kFrench}},
      {L"Word std.", {kFrench}},
      {L"Rectangle", {kFrench}},
      {L"https://www.nem-software.example", {kGerman, kFrench, kArabic}},
      {L"Name", {kGerman}},
      {L"Type", {kFrench}},
      {L"Format", {kGerman, kFrench}},
      {L"Style %1!d!", {kFrench}},
      {L"OK", {kGerman, kFrench}},
      {L"NEM pdf:", {kGerman, kArabic}},
      {L"NEM pdf vonder:", {kGerman, kArabic}},
      {L"NEM pdf vonder API:", {kGerman}},
      {L"NEM pdf Add-in:", {kGerman}},
      {L"NEM pdf Engine:", {kGerman}},
      {L"NEM pdf ShellExt:", {kGerman}},
      {L"NEM pdf Extract:", {kGerman}},
      {L"NEM pdf Toolbox:", {kGerman}},
      {L"ZUGFeRDBuyerName", {kGerman, kFrench, kArabic}},
      {L"ZUGFeRDTaxPercent", {kGerman, kFrench, kArabic}},
  };
  const auto isSame = [&same](const std::wstring& text, WORD language) {
    return std::ranges::any_of(same,
                               [&](const auto& row) { return row.first == text && row.second.contains(language); });
  };
  const Texts english = MessageTable(kEnglish);
  for (const WORD language : kTranslations) {
    const Texts table = MessageTable(language);
    for (const auto& [id, raw] : english) {
      const std::wstring text = Text(english, id);
      if (Text(table, id) != text) continue;
      if (language != kArabic && measures.contains(text)) continue;
      EXPECT_TRUE(isSame(text, language)) << language << std::hex << " " << id;
    }
  }
}

namespace {

struct KnownText {
  uint32_t id;
  const wchar_t* text;
};

class KnownEnglishText : public testing::TestWithParam<KnownText> {};

constexpr KnownText kKnownTexts[] = {
    {0xC0000000, L"There was no error"},
    {0xC0000002, L"Cannot read property"},
    {0xC0000003, L"Cannot change property"},
    {0xC0000009, L"No input file or corrupt input file"},
    {0xC000000A, L"Not enough memory to create the necessary resources"},
    {0xC000000F, L"The input file is locked by another application"},
    {0xC000001C, L"Internal software error. Please report to NEM Support"},
    {0xC000001D, L"Invalid function argument"},
    {0xC000002F, L"The buffer provided is too small"},
    {0xC0000036, L"Invalid path"},
    {0xC0000063, L"Invalid property name"},
    {0xC00002EE, L"The unique print-ID cannot be created"},
    {0xC00002EF, L"The default printer could not be determined"},
    {0xC00002F0, L"The default printer could not be set"},
    {0xC00002F1, L"The printer settings could not be read"},
    {0xC00002F2, L"The printer settings could not be set"},
    {0xC00002F3, L"Missing or corrupt print link"},
    {0xC00002F4, L"Missing or invalid printer name"},
    {0xC00002F5, L"The application specific printer settings could not be set"},
    {0xC00002F6, L"The transaction state could not be set"},
    {0xC00002F7, L"The application specific printer settings cannot be used because of missing settings"},
    {0xC00002F8, L"The print job could not be deleted"},
    {0xC00002F9, L"The printer driver could not be initialized"},
    {0xC00002FA, L"Missing or invalid printer"},
    {0xC00002FB, L"All files(*.*)|*.*||"},
    {0xC00002FC, L"Error while printing"},
    {0x400107D7, L"Info"},
    {0x4001082D, L"The help file '%1!s!' cannot be found."},
    {0x4001082E, L"Stationery Paper"},
    {0x40010876, L"An Error occured during the usage of the stationery. Errorcode: %1!s!"},
    {0x4001083A, L"Basic Settings"},
    {0x40010865,
     L"There are still unsaved changes in the bookmark format dialog. When you proceed, this data will be lost. "},
    {0x40010867,
     L"'%1!s!' is not a valid name. Please choose a nonempty string, which contains none of following characters "
     L"',;.:{}()'"},
    {0x4001083B, L"e.pdf Document Properties"},
    {0x4001083C, L"File size"},
    {0x4001083D, L"Layout"},
    {0x4001083F, L"Cockpit"},
    {0x40010843, L"Form"},
    {0x40010844, L"Security"},
    {0x40010878, L"Output"},
    {0xC0010BB9, L"Invalid data was made."},
    {0xC0011139, L"There was an error in the admin configuration file in line \"%1!s!\"."},
    {0xC0011771, L"Black"},
    {0xC0011772, L"Brown"},
    {0xC0011773, L"Olive Green"},
    {0xC0011774, L"Dark Green"},
    {0xC0011775, L"Dark Teal"},
    {0xC0011776, L"Dark Blue"},
    {0xC0011777, L"Indigo"},
    {0xC0011778, L"Grey-80%%"},
    {0xC0011779, L"Dark Red"},
    {0xC001177A, L"Orange"},
    {0xC001177B, L"Dark Yellow"},
    {0xC001177C, L"Green"},
    {0xC001177D, L"Teal"},
    {0xC001177E, L"Blue"},
    {0xC001177F, L"Blue-grey"},
    {0xC0011780, L"Grey-50%%"},
    {0xC0011781, L"Red"},
    {0xC0011782, L"Light Orange"},
    {0xC0011783, L"Lime"},
    {0xC0011784, L"Sea Green"},
    {0xC0011785, L"Aqua"},
    {0xC0011786, L"Light Blue"},
    {0xC0011787, L"Violet"},
    {0xC0011788, L"Grey-40%%"},
    {0xC0011789, L"Pink"},
    {0xC001178A, L"Gold"},
    {0xC001178B, L"Yellow"},
    {0xC001178C, L"Bright Green"},
    {0xC001178D, L"Turquoise"},
    {0xC001178E, L"Skyblue"},
    {0xC001178F, L"Plum"},
    {0xC0011790, L"Grey-25%%"},
    {0xC0011791, L"Rose"},
    {0xC0011792, L"Tan"},
    {0xC0011793, L"Light Yellow"},
    {0xC0011794, L"Pale Green"},
    {0xC0011795, L"Pale Turquoise"},
    {0xC0011796, L"Pale Blue"},
    {0xC0011797, L"Lavender"},
    {0xC0011798, L"White"},
    {0xC0011799, L"No Color"},
    {0xC0011965, L"PDF size"},
    {0xC0011966, L"Page size"},
    {0xC0011967, L"Page orientationa"},
    {0xC0011968, L"Scaling"},
    {0xC0011969, L"Margins"},
    {0xC001196A, L"PDF opening appearance"},
    {0xC001196B, L"Reader opening appearance"},
    {0xC001196C, L"Fontembedding"},
    {0xC001196F, L"Watermark"},
    {0xC0011970, L"Stationary"},
    {0xC0011971, L"Textlink recognition"},
    {0xC0011972, L"File attachment"},
    {0xC0011973, L"Bookmarks"},
    {0xC0011974, L"Saving action"},
    {0xC0011975, L"PDF version"},
    {0xC0011976, L"PDF/A-1b"},
    {0xC0011977, L"PDF format"},
    {0xC0011978, L"ZUGFeRD"},
    {0xC001197A, L"Conversion engine"},
    {0xC001197C, L"Default PDF reader"},
    {0xC001197D, L"Additonal program"},
    {0xC001197E, L"E-Mail"},
    {0xC001197F, L"Colorspace"},
    {0xC0011980, L"ZUGFeRD invoice"},
    {0xC0011981, L"Form fields"},
    {0xC0011982, L"Textboxes"},
    {0xC0011983, L"Checkboxes"},
    {0xC0011984, L"Dropdown elements"},
    {0xC0011985, L"Password for changing PDF Security"},
    {0xC0011986, L"Password for opening PDF"},
    {0xC0011987, L"Password options for editing e.pdf"},
    {0xC0011988, L"Document informations"},
    {0xC0011989, L"Changed: "},
    {0x40010898, L"loss-free, ZIP only"},
    {0x40010899, L"JPEG"},
    {0x4001089A, L"JPEG automatically"},
    {0x4001089B, L"JPEG and ZIP"},
    {0x4001089C, L"JPEG automatically and ZIP"},
    {0x400108A2, L"Do not change"},
    {0x400108A3, L"Reduce, if loss-free"},
    {0x400108C1, L"50%% low"},
    {0x400108C2, L"60%% low - medium"},
    {0x400108C4, L"75%% medium (Default)"},
    {0x400108C5, L"80%% medium - high"},
    {0x400108C6, L"85%% high"},
    {0x400108C8, L"100%% maximum"},
    {0x400108CA, L"Do not change"},
    {0x400108CB, L"50 dpi"},
    {0x400108CC, L"96 dpi (Screen)"},
    {0x400108CD, L"150 dpi"},
    {0x400108CE, L"300 dpi (Printer, low)"},
    {0x400108CF, L"450 dpi"},
    {0x400108D0, L"600 dpi (Printer, medium) - Default"},
    {0x400108D1, L"900 dpi"},
    {0x400108D2, L"1200 dpi (Printer, high)"},
    {0x400108D3, L"2400 dpi"},
    {0x400109C4, L"Letter 8 1/2 x 11 inch"},
    {0x400109C5, L"Legal 8 1/2 x 14 inch"},
    {0x400109C6, L"Executive 7 1/4 x 10 1/2 inch"},
    {0x400109D4, L"A0 841 x 1189 mm"},
    {0x400109D3, L"A1 594 x 841 mm"},
    {0x400109D0, L"A2 420 x 594 mm"},
    {0x400109C7, L"A3 297 x 420 mm"},
    {0x400109D2, L"A3 Extra Transverse 322 x 455 mm"},
    {0x400109C8, L"A4 210 x 297 mm"},
    {0x400109C9, L"A5 148 x 210 mm"},
    {0x400109CA, L"A6 105 x 148 mm"},
    {0x400109CB, L"B4 250 x 354 mm"},
    {0x400109CC, L"B5 182 x 257 mm"},
    {0x400109CD, L"User defined paper size"},
    {0x400108F2, L"PDF/1.3 (Acrobat 4 or higher - 40bit encryption)"},
    {0x400108F3, L"PDF/1.4 (Acrobat 5 or higher - 128bit RC4-encryption)"},
    {0x400108F4, L"PDF/1.5 (Acrobat 6 or higher - 128bit RC4-encryption)"},
    {0x400108F5, L"PDF/1.6 (Acrobat 7 or higher - 128bit AES-encryption)"},
    {0x400108F6, L"PDF/1.7 (Acrobat 8 or higher - 128bit AES-encryption)"},
    {0x400108F7, L"PDF/1.7 EL3 (Acrobat 9 or higher - 256bit AES-encryption)"},
    {0x400108D4, L"Default"},
    {0x400108D5, L"Single Page"},
    {0x400108D6, L"Continuous - single page"},
    {0x400108D7, L"Continuous - double pages"},
    {0x400108D8, L"Continuous - double pages, odd"},
    {0x400108D9, L"Standard"},
    {0x400108DA, L"Full page"},
    {0x400108DB, L"Page width"},
    {0x400108FC, L"minimum"},
    {0x400108FD, L"small"},
    {0x400108FE, L"Display, e-mail"},
    {0x400108FF, L"small"},
    {0x40010900, L"sufficiently"},
    {0x40010901, L"Internet"},
    {0x40010902, L"compact"},
    {0x40010903, L"satified"},
    {0x40010904, L"Printer, low"},
    {0x40010905, L"big"},
    {0x40010906, L"good"},
    {0x40010907, L"Printer, medium"},
    {0x40010908, L"maximum"},
    {0x40010909, L"optimum"},
    {0x4001090A, L"max. quality"},
    {0x4001090B, L"userdefined"},
    {0x40010928,
     L"Default settings for PDF/A-1 will be activated:%n%n-PDF version 1.4%n-enabled font embedding"
     L"%n-no file attachments%n-no e.pdf conversion%n-no conversion of forms%n-no settings for PDF security"
     L"%n-no password protection against opening files%n-restricted transparency of pictures (also watermarks)"},
    {0x40010929,
     L"Default settings for PDF/A-2 will be activated:%n%n-PDF version 1.7%n-enabled font embedding"
     L"%n-no file attachments%n-no e.pdf conversion%n-no conversion of forms%n-no settings for PDF security"
     L"%n-no password protection against opening files%n-restricted transparency of pictures (also watermarks)"},
    {0x4001092A,
     L"Default settings for PDF/A-3 will be activated:%n%n-PDF version 1.7%n-enabled font embedding"
     L"%n-no conversion of forms%n-no settings for PDF security%n-no password protection against opening files"},
    {0x4001092B,
     L"Default settings for PDF/UA will be activated:%n%n-PDF version 1.7%n-enabled font embedding"
     L"%n-no stationery paper%n-RTF conversion"},
    {0x4001092E, L"PDF/A1-a (Acrobat 5 or higher)"},
    {0x4001092F, L"PDF/A1-b (Acrobat 5 or higher)"},
    {0x40010930, L"PDF/A2-a (Acrobat 8 or higher)"},
    {0x40010931, L"PDF/A2-b (Acrobat 8 or higher)"},
    {0x40010932, L"PDF/A2-u (Acrobat 8 or higher)"},
    {0x40010933, L"PDF/A3-a (Acrobat 8 or higher)"},
    {0x40010934, L"PDF/A3-b (Acrobat 8 or higher)"},
    {0x40010935, L"PDF/A3-u (Acrobat 8 or higher)"},
    {0x40010936, L"PDF/UA (Acrobat 8 or higher - PDF for universal accessibility)"},
    {0x40010910, L"Standard"},
    {0x40010911, L"Show Outlines"},
    {0x40010912, L"Show Thumbnails"},
    {0x40010913, L"Full Screen"},
    {0x40010915, L"Standard"},
    {0x40010916, L"Show Outlines"},
    {0x40010917, L"Show Thumbnails"},
    {0x40010918, L"Show OC"},
    {0x4001091A, L"Left to right"},
    {0x4001091B, L"Right to left"},
    {0x4001087C, L"XX"},
    {0x400107EA, L"%1!s!/nem-pdf-vonder"},
    {0x4001080C, L"NEM pdf vonder:"},
    {0x40010813, L"%1!s!/newsletter"},
    {0x40010818, L"Should the creation of trace files be activated?"},
    {0x40010819, L"Should the creation of trace files be deactivated?"},
    {0x4001081A, L"The printer queue could not be restarted. Please quit the program and restart the printer queue."},
    {0x4001081B,
     L"The creation of trace files has been activated. They will be written to the folder \"%1!s!\".%n%n"
     L"Please proceed as follows:%n1. Please resstart the program from which you print.%n"
     L"2. Repeat the steps that lead to the problem.%n"
     L"3. Deactivate the creation of trace files by another click on the logo.%n"
     L"4. Send all files of the folder to the NEM support.%n%nThank you very much for your support!"},
    {0x4001081C, L"The creation of trace files has been deactivated."},
    {0x4001081D, L"The folder \"%1!s!\" could not be created."},
    {0x4001081F,
     L"You can choose a directory, that should be used to write the Trace-Files.%nCancel: \"%1!s!\" will be used."},
    {0x40010831, L"%1!s!/faq"},
    {0x40010832, L"%1!s!/forum"},
    {0x40010857,
     L"The registry entry \"%1!s!\" could not be modified. %nPlease verify, if you're holding all appropriate security "
     L"rights or log on as administrator!"},
    {0xC0012775,
     L"Please reopen the NEM pdf vonder settings dialog, so that the new language can be applied everywhere"},
    {0xC0012776, L"System language"},
    {0xC0012777, L"Arabic"},
    {0xC0012778, L"French"},
    {0xC0012779, L"English"},
    {0xC001277A, L"German"},
    {0xC001283D, L"Automatic search for updates periodically"},
    {0xC001283E, L"Search for updates only manually"},
    {0xC001283F, L"Download updates automatically"},
    {0xC0012840, L"Install updates automatically"},
    {0xC0012841, L"Update also to BETA Versions"},
    {0xC0012842, L"Search for an update now"},
    {0xC0012843, L"There was an error during initializing the update process."},
    {0xC0012844, L"You are using the most current version of this software."},
    {0xC0012845, L"The update check wasn't able to proceed. The reported error was \"%1!s!\"."},
    {0xC0011B58, L"NEM pdf:"},
    {0xC0011B5A, L"NEM pdf vonder:"},
    {0xC0011B5C, L"NEM pdf vonder API:"},
    {0xC0011B5E, L"NEM pdf Add-in:"},
    {0xC0011B60, L"NEM pdf Engine:"},
    {0xC0011B62, L"NEM pdf ShellExt:"},
    {0xC0011B64, L"NEM pdf Extract:"},
    {0xC0011B66, L"NEM pdf Toolbox:"},
    {0xC0011B68, L"NEM pdf version info"},
    {0xC0012904, L"Always ask for saving location"},
    {0xC0012905, L"Save with document name"},
    {0xC0012906, L"Save with predefined name"},
    {0xC001290F, L"Use current directory"},
    {0xC0012910, L"Use last directory"},
    {0xC0012911, L"Use home directory"},
    {0xC0012912, L"Use predefined directory"},
    {0xC0012913, L"Use desktop"},
    {0x400108E8, L"Give a warning / prompt for a different file name"},
    {0x400108E9, L"Overwrite without prompting"},
    {0x400108EA, L"Generate auto-numbered file names"},
    {0x400108EB, L"Append to existing file"},
    {0x400108EC, L"Insert into existing file at the very top"},
    {0x40010802, L"for all &instances/sessions of the application (%1!s!) uniformly"},
    {0x40010803, L"When using the NEM pdf vonder add-in: The application (%1!s!)"},
    {0xC0010FBE, L"No styles could be read from the document. Perhaps the document protection type is too high."},
    {0x4001086E,
     L"You can adjust the standard formats by pressing 'Edit'. Please press 'New' or 'Copy' to create a "
     L"user defined format."},
    {0x40010870,
     L"In the summary window all styles included in Word are shown. To change the format of a style please "
     L"navigate in Microsoft\u00AE Word to: menu Format|Styles and Formatting."},
    {0x40010867,
     L"'%1!s!' is not a valid name. Please choose a nonempty string, which contains none of following characters "
     L"',;.:{}()'"},
    {0x400109EC, L"NEVER confirm embedding of file attachments"},
    {0x400109ED, L"ALWAYS confirm embedding of file attachments"},
    {0x400109EE, L"only confirm missing file attachments"},
    {0xC0012B02, L"ZUGFeRDBuyerName"},
    {0xC0012B25, L"ZUGFeRDTaxPercent"},
    {0x400109E2, L"No Border"},
    {0x400109E3, L"Underlined"},
    {0x400109E4, L"Rectangle"},
    {0x400109E5, L"Dashed rectangle"},
    {0x400109E6, L"Dotted rectangle"},
    {0xC00117D4, L"Normal"},
    {0xC00117D5, L"Envelope Address"},
    {0xC00117D6, L"envelope return"},
    {0xC00117D7, L"Body Text"},
    {0xC00117D8, L"Heading 1"},
    {0xC00117D9, L"Heading 2"},
    {0xC00117DA, L"Heading 3"},
    {0xC00117DB, L"Heading 4"},
    {0xC00117DC, L"Heading 5"},
    {0xC00117DD, L"Heading 6"},
    {0xC00117DE, L"Heading 7"},
    {0xC00117DF, L"Heading 8"},
    {0xC00117E0, L"Heading 9"},
    {0xC00117E1, L"Index 1"},
    {0xC00117E2, L"Index 2"},
    {0xC00117E3, L"Index 3"},
    {0xC00117E4, L"Index 4"},
    {0xC00117E5, L"Index 5"},
    {0xC00117E6, L"Index 6"},
    {0xC00117E7, L"Index 7"},
    {0xC00117E8, L"Index 8"},
    {0xC00117E9, L"Index 9"},
    {0xC00117EA, L"TOC 1"},
    {0xC00117EB, L"TOC 2"},
    {0xC00117EC, L"TOC 3"},
    {0xC00117ED, L"TOC 4"},
    {0xC00117EE, L"TOC 5"},
    {0xC00117EF, L"TOC 6"},
    {0xC00117F0, L"TOC 7"},
    {0xC00117F1, L"TOC 8"},
    {0xC00117F2, L"TOC 9"},
    {0xC00117F3, L"Normal Indent"},
    {0xC00117F4, L"Footnote Text"},
    {0xC00117F5, L"Comment Text"},
    {0xC00117F6, L"Header"},
    {0xC00117F7, L"Footer"},
    {0xC00117F8, L"Index Heading"},
    {0xC00117F9, L"Caption"},
    {0xC00117FA, L"Table of Figures"},
    {0xC00117FB, L"Footnote Reference"},
    {0xC00117FC, L"Comment Reference"},
    {0xC00117FD, L"Line Number"},
    {0xC00117FE, L"Page Number"},
    {0xC00117FF, L"Endnote Reference"},
    {0xC0011800, L"Endnote Text"},
    {0xC0011801, L"Table of Authorities"},
    {0xC0011802, L"Macro Text"},
    {0xC0011803, L"TOA Heading"},
    {0xC0011804, L"List"},
    {0xC0011806, L"List Bullet"},
    {0xC0011807, L"List Number"},
    {0xC0011808, L"List 2"},
    {0xC0011809, L"List 3"},
    {0xC001180A, L"List 4"},
    {0xC001180B, L"List 5"},
    {0xC001180C, L"List Bullet 2"},
    {0xC001180D, L"List Bullet 3"},
    {0xC001180E, L"List Bullet 4"},
    {0xC001180F, L"List Bullet 5"},
    {0xC0011810, L"List Number 2"},
    {0xC0011811, L"List Number 3"},
    {0xC0011812, L"List Number 4"},
    {0xC0011813, L"List Number 5"},
    {0xC0011814, L"Title"},
    {0xC0011815, L"Closing"},
    {0xC0011816, L"Signature"},
    {0xC0011817, L"Default Paragraph Font"},
    {0xC0011818, L"Body Text Indent"},
    {0xC0011819, L"List Continue"},
    {0xC001181A, L"List Continue 2"},
    {0xC001181B, L"List Continue 3"},
    {0xC001181C, L"List Continue 4"},
    {0xC001181D, L"List Continue 5"},
    {0xC001181E, L"Message Header"},
    {0xC001181F, L"Subtitle"},
    {0xC0011820, L"Salutation"},
    {0xC0011821, L"Date"},
    {0xC0011822, L"Body Text First Indent"},
    {0xC0011823, L"Body Text First Indent 2"},
    {0xC0011824, L"Note Heading"},
    {0xC0011825, L"Body Text 2"},
    {0xC0011826, L"Body Text 3"},
    {0xC0011827, L"Body Text Indent 2"},
    {0xC0011828, L"Body Text Indent 3"},
    {0xC0011829, L"Block Text"},
    {0xC001182A, L"Hyperlink"},
    {0xC001182B, L"FollowedHyperlink"},
    {0xC001182C, L"Strong"},
    {0xC001182D, L"Emphasis"},
    {0xC001182E, L"Document Map"},
    {0xC001182F, L"Plain Text"},
    {0xC0011830, L"Normal (Web)"},
    {0xC0011831, L"HTML Acronym"},
    {0xC0011832, L"HTML Address"},
    {0xC0011833, L"HTML Cite"},
    {0xC0011834, L"HTML Code"},
    {0xC0011835, L"HTML Definition"},
    {0xC0011836, L"HTML Keyboard"},
    {0xC0011837, L"HTML Preformatted"},
    {0xC0011838, L"HTML Sample"},
    {0xC0011839, L"HTML Typewriter"},
    {0xC001183A, L"HTML Variable"},
};

}  // namespace

TEST_P(KnownEnglishText, StandsUnderItsNumber) {
  EXPECT_EQ(Text(MessageTable(kEnglish), GetParam().id), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(MessageTable, KnownEnglishText, testing::ValuesIn(kKnownTexts));

// Texts that users know, whose numbers are the library's own.
INSTANTIATE_TEST_SUITE_P(
    OwnNumbers, KnownEnglishText,
    testing::ValuesIn(std::initializer_list<KnownText>{
        {MSG_BOOKMARK_BOLD, L"Bold"},
        {MSG_BOOKMARK_ITALIC, L"Italic"},
        {MSG_BOOKMARK_UNDERLINED, L"Underlined"},
        {MSG_BOOKMARK_KIND_STANDARD, L"Standard"},
        {MSG_BOOKMARK_KIND_USER_DEFINED, L"User Def."},
        {MSG_BOOKMARK_KIND_WORD_STANDARD, L"Word std."},
        {MSG_BOOKMARK_KIND_WORD_USER_DEFINED, L"Word User Def."},
        {MSG_BOOKMARK_TOO_MANY_USED,
         L"Unable to save all used bookmark styles. Please reduce the number of styles that should be used to generate "
         L"bookmarks."},
    }));

TEST(MessageTable, HasATextForEachErrorNumberThatIsKnownAndForNoOther) {
  constexpr uint32_t kErrorTexts = 0xC000;
  std::set<uint32_t> known, found;
  for (const KnownText& row : kKnownTexts)
    if (row.id >> 16 == kErrorTexts) known.insert(row.id & 0xFFFF);
  for (const auto& [id, text] : MessageTable(kEnglish))
    if (id >> 16 == kErrorTexts) found.insert(id & 0xFFFF);
  EXPECT_EQ(known, found);
  for (const uint32_t silent : {1u, 118u}) EXPECT_FALSE(found.contains(silent)) << silent;
}

// A text that the library never shows: the components that start programs take it from here.
TEST(MessageTable, HasTheTextOfAProgramThatCouldNotBeStarted) {
  EXPECT_EQ(Text(MessageTable(kEnglish), 0xC001F084),
            L"The program \"%1!s!\" with the parameters \"%2!s!\" could not be started.");
}

// The dialogs for files split them at the bars: name and pattern in turn, each pattern as it is in English.
TEST(MessageTable, FiltersHaveTheirPatternsInEachLanguage) {
  const auto patterns = [](std::wstring filter) {
    std::vector<std::wstring> parts;
    for (size_t bar; (bar = filter.find(L'|')) != std::wstring::npos; filter = filter.substr(bar + 1))
      parts.push_back(filter.substr(0, bar));
    parts.push_back(filter);
    for (size_t i = 0; i < parts.size(); i += 2) parts[i] = parts[i].empty() ? L"" : L"name";
    return parts;
  };
  for (const uint32_t id : {0x4001F043u, 0x4001F382u, 0x4001F0C4u, 0x4001F0C5u, 0x4001F082u, 0xC00002FBu}) {
    const std::wstring english = Text(MessageTable(kEnglish), id);
    ASSERT_NE(english.find(L'|'), std::wstring::npos) << std::hex << id;
    for (const WORD language : kTranslations)
      EXPECT_EQ(patterns(Text(MessageTable(language), id)), patterns(english)) << language << std::hex << " " << id;
  }
}

// The user can only apply a name that the check of names lets pass.
TEST(MessageTable, NamesOfBookmarkFormatsAreGoodNamesInEachLanguage) {
  for (const WORD language : kTranslations) {
    std::set<std::wstring> names;
    for (const uint32_t id : {MSG_BOOKMARK_NEW_NAME, 0xC00117D8u, 0xC00117D9u, 0xC00117DAu}) {
      const std::wstring name = Format(id, language);
      EXPECT_FALSE(name.empty()) << language << std::hex << " " << id;
      EXPECT_EQ(std::wstring::npos, name.find_first_of(L",;.:{}()\"")) << language << std::hex << " " << id;
      names.insert(name);
    }
    EXPECT_EQ(4u, names.size()) << language;
  }
}
