// NemPdfUISettings.hpp: the properties of a dialog object by name and kind, for NemPdfUI.hpp.
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

namespace general {

// Window that owns the sheet, as a 32-bit window handle; it is widened with its sign. 0 and a window that does not
// exist mean no owner.
inline constexpr GeneralProperty<Kind::Number> HwndParent{L"HwndParent"};
// Caption of the sheet.
inline constexpr GeneralProperty<Kind::Text> SheetTitle{L"SheetTitle"};
// Caption of all message boxes of the pages.
inline constexpr GeneralProperty<Kind::Text> MsgBoxTitle{L"MsgBoxTitle"};
// Full path of the compiled help file.
inline constexpr GeneralProperty<Kind::Text> HelpFilename{L"HelpFilename"};
// Printer whose settings are shown. It decides which files of the administrator count, and it is the printer that the
// pages ask for its properties.
inline constexpr GeneralProperty<Kind::Text> PrinterName{L"PrinterName"};
// 1 shows the passwords of the security page in plain text, 0 hides them. The user can switch it.
inline constexpr GeneralProperty<Kind::Number> PasswordVisible{L"PasswordVisible"};

}  // namespace general

namespace settings {

// --- The sheet and its host ---
// What the host tells the sheet about itself. No page changes these values.

// In set 1: other than 0 offers the tab "e.pdf Document Properties" and opens the sheet on it. Not read in set 0: the
// tab "Basic Settings" is always there.
inline constexpr Setting<Kind::Number> Used{L"Used"};
// Bit set, input only. 1 locks the target controls of the Saving page, the actions and the mail controls, and takes
// away the choice of the e.pdf format. 2 makes the paper page offer duplex and paper bins.
inline constexpr Setting<Kind::Number> PrintOutput{L"PrintOutput"};
// Bit set, input only. 1 locks the scope of the settings on the Saving page. 2 says that the host sets page layout and
// document information: their controls are locked; under Word the bookmark page then shows the styles of the open
// document. 4 hides the choice for all instances of the application. 16 forbids the choice that the calling application
// manages the settings.
inline constexpr Setting<Kind::Number> InternalUse{L"InternalUse"};

// --- Page ---
// The values are those of the printer's device mode, in its units. Only the values that `Fields` names count; the page
// sets the bits of what it writes.

// Bit set: which of the paper values count, as in the field mask of a device mode. 1 orientation, 2 paper size, 4 paper
// length, 8 paper width, 16 scale, `0x200` paper source.
inline constexpr Setting<Kind::Number> Fields{L"Fields"};
// 1 portrait, 2 landscape.
inline constexpr Setting<Kind::Number> Orientation{L"Orientation"};
// Paper number of the device mode, such as 1 for Letter and 9 for A4; 254 A1, 255 A0, 256 user-defined, by
// `PaperLength` and `PaperWidth`.
inline constexpr Setting<Kind::Number> PaperSize{L"PaperSize"};
// Length of the paper in tenths of a millimetre.
inline constexpr Setting<Kind::Number> PaperLength{L"PaperLength"};
// Width of the paper in tenths of a millimetre.
inline constexpr Setting<Kind::Number> PaperWidth{L"PaperWidth"};
// Scale of the application in per cent, 1 to 100000.
inline constexpr Setting<Kind::Number> Scale{L"Scale"};
// 1 single-sided, 2 duplex, 3 duplex with binding at the upper edge.
inline constexpr Setting<Kind::Number> Duplex{L"Duplex"};
// Number of the bin that the paper comes from.
inline constexpr Setting<Kind::Number> PaperSource{L"PaperSource"};
// Number of the bin that the paper goes to.
inline constexpr Setting<Kind::Number> PaperDestination{L"PaperDestination"};
// Scale of the page's width in per cent, 1 to 100.
inline constexpr Setting<Kind::Number> PaperScaleWidth{L"PaperScaleWidth"};
// Scale of the page's height in per cent, 1 to 100.
inline constexpr Setting<Kind::Number> PaperScaleHeight{L"PaperScaleHeight"};
// 1 centres the scaled page on the paper; 0 places it by the two margins.
inline constexpr Setting<Kind::Number> PaperMarginCenter{L"PaperMarginCenter"};
// Left margin in tenths of a millimetre.
inline constexpr Setting<Kind::Number> PaperMarginLeft{L"PaperMarginLeft"};
// Top margin in tenths of a millimetre.
inline constexpr Setting<Kind::Number> PaperMarginTop{L"PaperMarginTop"};
// Width of the border around the page in hundredths of a point: 0, 25, 50, 75, 100, 150, 225, 300, 450 or 600.
inline constexpr Setting<Kind::Number> PaperBorder{L"PaperBorder"};

// --- Graphical Optimization ---

// Compression of images: 0 loss-free by ZIP only, 1 JPEG, 2 JPEG automatically, 3 JPEG and ZIP, 4 JPEG automatically
// and ZIP.
inline constexpr Setting<Kind::Number> GraphicCompressMethod{L"GraphicCompressMethod"};
// JPEG quality in per cent, 1 to 100; without effect for compression 0.
inline constexpr Setting<Kind::Number> GraphicJpegQuality{L"GraphicJpegQuality"};
// Highest resolution of images in dpi, up to 2400; 0 leaves images as they are.
inline constexpr Setting<Kind::Number> GraphicResolution{L"GraphicResolution"};
// 0 leaves the colour depth as it is, 1 reduces it where nothing is lost.
inline constexpr Setting<Kind::Number> GraphicColorReduction{L"GraphicColorReduction"};
// Takes part in recognising a preset; the page stores 0.
inline constexpr Setting<Kind::Number> EnhancedPdfReplacements{L"EnhancedPdfReplacements"};
// On no page; comes back as it was set.
inline constexpr Setting<Kind::Number> GraphicNotUseRedundancyOptimization{L"GraphicNotUseRedundancyOptimization"};
// On no page; comes back as it was set.
inline constexpr Setting<Kind::Number> GraphicRedundancyOptimizationMaxSize{L"GraphicRedundancyOptimizationMaxSize"};

// --- Display ---
// How the document opens in a PDF reader.

// Page layout on opening: 0 the reader's default, 1 single page, 2 continuous single pages, 3 continuous double pages,
// 4 continuous double pages with odd pages on the right.
inline constexpr Setting<Kind::Number> OpenLayout{L"OpenLayout"};
// Page size on opening: 0 the reader's default, 1 full page, 2 page width.
inline constexpr Setting<Kind::Number> OpenSize{L"OpenSize"};
// Page to open at, 1 to 32767.
inline constexpr Setting<Kind::Number> OpenPageIndex{L"OpenPageIndex"};
// Window mode on opening: 0 standard, 1 with bookmarks, 2 with thumbnails, 3 full screen.
inline constexpr Setting<Kind::Number> OpenMode{L"OpenMode"};
// Mode after full screen, for `OpenMode` 3: 0 standard, 1 with bookmarks, 2 with thumbnails, 3 with layers.
inline constexpr Setting<Kind::Number> NonFullScreenPageMode{L"NonFullScreenPageMode"};
// Reading direction: 0 left to right, 1 right to left.
inline constexpr Setting<Kind::Number> Direction{L"Direction"};
// 1 hides the reader's toolbar.
inline constexpr Setting<Kind::Number> HideToolbar{L"HideToolbar"};
// 1 hides the reader's menu bar.
inline constexpr Setting<Kind::Number> HideMenubar{L"HideMenubar"};
// 1 opens the window in the centre of the screen.
inline constexpr Setting<Kind::Number> CenterWindow{L"CenterWindow"};
// 1 fits the window to the page.
inline constexpr Setting<Kind::Number> FitWindow{L"FitWindow"};
// 1 shows the document's title in the window's caption, 0 the file's name.
inline constexpr Setting<Kind::Number> DisplayDocTitle{L"DisplayDocTitle"};
// 1 shows the content only, with no status bar and scroll bars.
inline constexpr Setting<Kind::Number> HideWindowUI{L"HideWindowUI"};

// --- Watermark ---
// Watermark and stationery are independent of each other.

// 1 puts a watermark on the pages.
inline constexpr Setting<Kind::Number> WatermarkEnabled{L"WatermarkEnabled"};
// 1 puts the watermark behind the page's content, 0 in front of it.
inline constexpr Setting<Kind::Number> WatermarkAsBackground{L"WatermarkAsBackground"};
// Image file of the watermark.
inline constexpr Setting<Kind::Text> WatermarkFilename{L"WatermarkFilename"};
// 1 merges the document with a stationery PDF. Not with PDF/UA.
inline constexpr Setting<Kind::Number> StationeryEnabled{L"StationeryEnabled"};
// The stationery in use, counted from 0 in the list of `StationeryInfos`.
inline constexpr Setting<Kind::Number> StationerySelected{L"StationerySelected"};
// The list of stationery: `{{NAME:"Letter";FILE:"C:\\Paper\\letter.pdf";P:"";TYPE:"0"}}`, with a backslash before each
// backslash and, in name and password, before each double quote. `P` is the password of the file. `TYPE` is the way of
// merging: 0 the first page of the stationery behind all pages, 1 its first page with the first and its second with all
// others, 2 its first page with the first page only, 3 page by page.
inline constexpr Setting<Kind::Secret> StationeryInfos{L"StationeryInfos"};
// 1 puts the stationery in front of the page's content, 0 behind it.
inline constexpr Setting<Kind::Number> StationeryAsForeground{L"StationeryAsForeground"};

// --- Colorspace ---

// 0 RGB, 1 CMYK.
inline constexpr Setting<Kind::Number> Colorspace{L"Colorspace"};

// --- Links ---

// 1 turns addresses in the printed text into links.
inline constexpr Setting<Kind::Number> UseHyperlinkRecognition{L"UseHyperlinkRecognition"};
// Border of a link: 0 none, 1 underlined, 2 rectangle, 3 dashed rectangle, 4 dotted rectangle.
inline constexpr Setting<Kind::Number> HyperlinkBorder{L"HyperlinkBorder"};
// Width of the border of a link in hundredths of a point.
inline constexpr Setting<Kind::Number> HyperlinkBorderWidth{L"HyperlinkBorderWidth"};
// Colour of the border of a link.
inline constexpr Setting<Kind::Number> HyperlinkBorderColor{L"HyperlinkBorderColor"};

// --- Attachments ---
// PDF/A-1 and PDF/A-2 allow no attachments.

// 1 embeds the files of `EmbedFilenames` as attachments.
inline constexpr Setting<Kind::Number> EmbedFilenamesEnabled{L"EmbedFilenamesEnabled"};
// Full paths of the attachments, each in double quotes, with semicolons between them: `"C:\a.doc";"C:\b.pdf"`.
inline constexpr Setting<Kind::Text> EmbedFilenames{L"EmbedFilenames"};
// Whether the user is asked to confirm the attachments: 0 never, 1 always, 2 only when one is missing. Pages of both
// tabs use the value of set 0.
inline constexpr Setting<Kind::Number> EmbedfilenamesConfirmed{L"EmbedfilenamesConfirmed"};
// 1 shows the attachments when an e.pdf document is opened. Pages of both tabs use the value of set 0.
inline constexpr Setting<Kind::Number> EmbedfilenamesOpen{L"EmbedfilenamesOpen"};

// --- ZUGFeRD invoice ---

// 1 makes the document a ZUGFeRD invoice. Needs a `PdfVersion` of 105, 106 or 107.
inline constexpr Setting<Kind::Number> ZUGFeRD{L"ZUGFeRD"};
// XML file of the invoice, for creation method 0.
inline constexpr Setting<Kind::Text> ZUGFeRDXml{L"ZUGFeRDXml"};
// 1 deletes the XML file when it has been embedded.
inline constexpr Setting<Kind::Number> ZUGFeRDDeleteAfterEmbedding{L"ZUGFeRDDeleteAfterEmbedding"};
// On no page; comes back as it was set.
inline constexpr Setting<Kind::Text> ZUGFeRDMarkedContent{L"ZUGFeRDMarkedContent"};
// 1 shows the invoice when it has been created.
inline constexpr Setting<Kind::Number> ZUGFeRDShowAfterCreation{L"ZUGFeRDShowAfterCreation"};
// Where the invoice comes from: 0 an existing XML file, 1 content marked in the document.
inline constexpr Setting<Kind::Number> ZUGFeRDCreationMethod{L"ZUGFeRDCreationMethod"};

// --- Fonts ---
// PDF/A and PDF/UA embed all fonts, whatever these values say.

// 0 embeds no fonts, 1 all, 2 selected ones, 3 all but the standard fonts.
inline constexpr Setting<Kind::Number> FontsEmbedded{L"FontsEmbedded"};
// What the next property lists: 1 the fonts to embed, 0 the fonts never to embed.
inline constexpr Setting<Kind::Number> FontsIsEmbeddedOrNoEmbeddedList{L"FontsIsEmbeddedOrNoEmbeddedList"};
// Names of fonts with semicolons between them, fewer than 1024 characters. A single blank is a list with no font in it,
// nothing at all is no list.
inline constexpr Setting<Kind::Text> FontsEmbeddedOrNoEmbeddedList{L"FontsEmbeddedOrNoEmbeddedList"};

// --- PDF-Security ---
// Choosing PDF/A or PDF/UA switches passwords and restrictions off; PDF/A does not allow them at all. Passwords are
// never written to a trace, and are wiped from memory when they change and when the dialog object is freed.

// 1 asks the user to type changed passwords a second time. One value for both tabs, that of set 0; the user can change
// it on the tab "Basic Settings" only.
inline constexpr Setting<Kind::Number> EncryptPasswordsConfirmed{L"EncryptPasswordsConfirmed"};
// 1 asks for a password when the document is opened. Counts beside `EncryptOwnerPasswordEnabled` only.
inline constexpr Setting<Kind::Number> EncryptUserPasswordEnabled{L"EncryptUserPasswordEnabled"};
// Password for opening the document, at most 31 characters on the page.
inline constexpr Setting<Kind::Secret> EncryptUserPassword{L"EncryptUserPassword"};
// 1 restricts what may be done with the document, and protects that by a password.
inline constexpr Setting<Kind::Number> EncryptOwnerPasswordEnabled{L"EncryptOwnerPasswordEnabled"};
// Password for changing the security options, at most 31 characters on the page.
inline constexpr Setting<Kind::Secret> EncryptOwnerPassword{L"EncryptOwnerPassword"};
// Password for editing an e.pdf document: 0 the one for changing the security options, 1 none, 2 one of its own.
inline constexpr Setting<Kind::Number> UseEncryptEnhancedPdfPassword{L"UseEncryptEnhancedPdfPassword"};
// Password for editing an e.pdf document, for the value 2 of the property before; at most 31 characters on the page.
inline constexpr Setting<Kind::Secret> EncryptEnhancedPdfPassword{L"EncryptEnhancedPdfPassword"};
// 1 allows printing.
inline constexpr Setting<Kind::Number> EncryptEnablePrinting{L"EncryptEnablePrinting"};
// 1 allows changes to the document.
inline constexpr Setting<Kind::Number> EncryptEnableModifying{L"EncryptEnableModifying"};
// 1 allows comments and notes.
inline constexpr Setting<Kind::Number> EncryptEnableNotes{L"EncryptEnableNotes"};
// 1 allows copying of text, pictures and other content.
inline constexpr Setting<Kind::Number> EncryptEnableClipboard{L"EncryptEnableClipboard"};
// 1 allows form fields to be filled in and signed. Not with PDF 1.3.
inline constexpr Setting<Kind::Number> EncryptEnableForms{L"EncryptEnableForms"};
// 1 allows pages to be inserted, deleted and rotated. Not with PDF 1.3.
inline constexpr Setting<Kind::Number> EncryptEnableAssembling{L"EncryptEnableAssembling"};
// 1 allows voice output programs to read the document aloud. Not with PDF 1.3.
inline constexpr Setting<Kind::Number> EncryptEnableExtract{L"EncryptEnableExtract"};

// --- Fields ---
// How the form fields of a Word document become those of the PDF.

// 1 offers the conversion of form fields. Input only.
inline constexpr Setting<Kind::Number> FormFieldsEnabled{L"FormFieldsEnabled"};
// 1 converts form fields.
inline constexpr Setting<Kind::Number> ShowFormfields{L"ShowFormfields"};
// 1 leaves the text size in form fields to the reader.
inline constexpr Setting<Kind::Number> FormfieldUseAutoTextHeight{L"FormfieldUseAutoTextHeight"};
// 1 takes the width of text fields from their default text.
inline constexpr Setting<Kind::Number> FormfieldUseDefaultTextWidth{L"FormfieldUseDefaultTextWidth"};
// 1 limits the input to the length of the default text, 0 does not limit it.
inline constexpr Setting<Kind::Number> FormfieldUseDefaultTextMaxChars{L"FormfieldUseDefaultTextMaxChars"};
// 1 gives all text fields the width of `FormfieldInternalCharCount`.
inline constexpr Setting<Kind::Number> FormfieldUseInternalCharCount{L"FormfieldUseInternalCharCount"};
// 1 limits the input to that number of characters, 0 does not limit it.
inline constexpr Setting<Kind::Number> FormfieldUseInternalCharCountMaxChars{L"FormfieldUseInternalCharCountMaxChars"};
// Uniform width of text fields in characters, 1 to 9999.
inline constexpr Setting<Kind::Number> FormfieldInternalCharCount{L"FormfieldInternalCharCount"};

// --- Color settings ---

// 1 draws a border around text fields.
inline constexpr Setting<Kind::Number> FormfieldUseTextfieldBorder{L"FormfieldUseTextfieldBorder"};
// Colour of the border of text fields.
inline constexpr Setting<Kind::Number> FormfieldTextfieldBorderColor{L"FormfieldTextfieldBorderColor"};
// 1 gives text fields a background.
inline constexpr Setting<Kind::Number> FormfieldUseTextfieldBackColor{L"FormfieldUseTextfieldBackColor"};
// Colour of the background of text fields.
inline constexpr Setting<Kind::Number> FormfieldTextfieldBackColor{L"FormfieldTextfieldBackColor"};
// 1 draws a border around check boxes.
inline constexpr Setting<Kind::Number> FormfieldUseCheckboxBorder{L"FormfieldUseCheckboxBorder"};
// Colour of the border of check boxes.
inline constexpr Setting<Kind::Number> FormfieldCheckboxBorderColor{L"FormfieldCheckboxBorderColor"};
// 1 gives check boxes a background.
inline constexpr Setting<Kind::Number> FormfieldUseCheckboxBackColor{L"FormfieldUseCheckboxBackColor"};
// Colour of the background of check boxes.
inline constexpr Setting<Kind::Number> FormfieldCheckboxBackColor{L"FormfieldCheckboxBackColor"};
// 1 draws a border around drop-down lists.
inline constexpr Setting<Kind::Number> FormfieldUseDropdownBorder{L"FormfieldUseDropdownBorder"};
// Colour of the border of drop-down lists.
inline constexpr Setting<Kind::Number> FormfieldDropdownBorderColor{L"FormfieldDropdownBorderColor"};
// 1 gives drop-down lists a background.
inline constexpr Setting<Kind::Number> FormfieldUseDropdownBackColor{L"FormfieldUseDropdownBackColor"};
// Colour of the background of drop-down lists.
inline constexpr Setting<Kind::Number> FormfieldDropdownBackColor{L"FormfieldDropdownBackColor"};

// --- Output format ---
// Many pages obey `PdfVersion`.

// 13 to 17 PDF 1.3 to 1.7, 18 PDF 1.7 extension level 3; 100 PDF/A-1a, 101 PDF/A-1b, 102 PDF/A-2a, 103 PDF/A-2b, 104
// PDF/A-2u, 105 PDF/A-3a, 106 PDF/A-3b, 107 PDF/A-3u; 200 PDF/UA.
inline constexpr Setting<Kind::Number> PdfVersion{L"PdfVersion"};
// 1 offers the e.pdf format. Input only.
inline constexpr Setting<Kind::Number> SaveFormatEPdfEnabled{L"SaveFormatEPdfEnabled"};
// Bit set: 1 PDF or special format, 2 e.pdf, `0x100` ask each time. Pages of both tabs use the value of set 0.
inline constexpr Setting<Kind::Number> SaveFormat{L"SaveFormat"};
// 1 offers the choice of the conversion engine. Input only.
inline constexpr Setting<Kind::Number> SaveConversionEnabled{L"SaveConversionEnabled"};
// Conversion engine: 0 the virtual printer driver, 1 RTF conversion.
inline constexpr Setting<Kind::Number> SaveConversion{L"SaveConversion"};

// --- Bookmark ---

// 1 makes bookmarks from the styles of the document.
inline constexpr Setting<Kind::Number> OutlineStylesEnabled{L"OutlineStylesEnabled"};
// The styles in use with their outline levels from 1 to 9: `heading 1;1;heading 2;2`.
inline constexpr Setting<Kind::Text> OutlineStyles{L"OutlineStyles"};
// All bookmark formats, one behind the other: `{STYLE:heading 2;2;{FONT:Arial;14;Bold;Italic;0.0.255}};`. The font's
// attributes and the colour (red, green, blue) may be left out.
inline constexpr Setting<Kind::Text> OutlineFormats{L"OutlineFormats"};
// Read and not used further; comes back as it was set.
inline constexpr Setting<Kind::Text> OutlineStyleNames{L"OutlineStyleNames"};

// --- Document Info ---
// With the value 2 in `InternalUse` the host sets these texts, and the user cannot.

// Title of the document.
inline constexpr Setting<Kind::Text> Title{L"Title"};
// Author of the document.
inline constexpr Setting<Kind::Text> Author{L"Author"};
// Subject of the document.
inline constexpr Setting<Kind::Text> Subject{L"Subject"};
// Keywords of the document.
inline constexpr Setting<Kind::Text> Keywords{L"Keywords"};

// --- Actions ---
// The page stands on the tab "Basic Settings" only and works on set 0. What a host sets in set 1 comes back unchanged.

// Bit set: what happens with the finished document. 1 the default viewer opens it, 2 it is sent by mail, 4
// `StartProgram` is started with it, 8 is kept as it is set. The value 2 belongs to the mail page, the others to the
// action page.
inline constexpr Setting<Kind::Number> StartAction{L"StartAction"};
// Program to start, at most 209 characters on the page.
inline constexpr Setting<Kind::Text> StartProgram{L"StartProgram"};
// Parameters of the program, at most 49 characters on the page.
inline constexpr Setting<Kind::Text> StartProgramParameters{L"StartProgramParameters"};

// --- E-Mail ---
// The page stands on the tab "Basic Settings" only and works on set 0. What a host sets in set 1 comes back unchanged.

// 1 sends the mail without showing it first.
inline constexpr Setting<Kind::Number> MailSendImmediate{L"MailSendImmediate"};
// Recipient of the mail.
inline constexpr Setting<Kind::Text> MailRecipient{L"MailRecipient"};
// Subject of the mail.
inline constexpr Setting<Kind::Text> MailSubject{L"MailSubject"};
// Text of the mail.
inline constexpr Setting<Kind::Text> MailNotetext{L"MailNotetext"};

// --- Saving ---
// The page stands on the tab "Basic Settings" only and works on set 0. What a host sets in set 1 comes back unchanged.

// How the document is saved, the sum of two values. Name: `0x08` always ask, `0x10` document name, `0x18` predefined
// name. Folder: `0x80` current, `0xC0` last, `0x100` home, `0x180` desktop, `0x140` predefined.
inline constexpr Setting<Kind::Number> SaveAction{L"SaveAction"};
// If the file exists: 0 warn and ask for another name, 4 overwrite, 5 number the file, 6 append, 7 insert at the top.
inline constexpr Setting<Kind::Number> FileExistsAction{L"FileExistsAction"};
// Predefined folder and file name; a folder ends with a backslash.
inline constexpr Setting<Kind::Text> DestinationDirectoryOrFilename{L"DestinationDirectoryOrFilename"};
// 1 adds `DestinationFilenameSuffix` to the names of e.pdf documents.
inline constexpr Setting<Kind::Number> DestinationFilenameSuffixEnabled{L"DestinationFilenameSuffixEnabled"};
// Characters added to the name of an e.pdf document, at most 9 on the page.
inline constexpr Setting<Kind::Text> DestinationFilenameSuffix{L"DestinationFilenameSuffix"};
// Bit set: where the printer keeps the settings. 1 all applications use the same settings, 2 all instances and sessions
// of the calling application do.
inline constexpr Setting<Kind::Number> RegistryDevmode{L"RegistryDevmode"};
// 0 not offered, 1 the settings are stored permanently, 2 they are taken from the printer's set-up when the application
// starts.
inline constexpr Setting<Kind::Number> ApplicationDevmodeStartup{L"ApplicationDevmodeStartup"};

}  // namespace settings

// All of them, in the library's order.
inline constexpr PropertyInfo kGeneralProperties[] = {
    InfoOf(general::HwndParent),
    InfoOf(general::SheetTitle),
    InfoOf(general::MsgBoxTitle),
    InfoOf(general::HelpFilename),
    InfoOf(general::PrinterName),
    InfoOf(general::PasswordVisible),
};

inline constexpr PropertyInfo kSettings[] = {
    InfoOf(settings::Used),
    InfoOf(settings::PrintOutput),
    InfoOf(settings::Fields),
    InfoOf(settings::Orientation),
    InfoOf(settings::PaperSize),
    InfoOf(settings::PaperLength),
    InfoOf(settings::PaperWidth),
    InfoOf(settings::Scale),
    InfoOf(settings::Duplex),
    InfoOf(settings::PaperSource),
    InfoOf(settings::PaperDestination),
    InfoOf(settings::PaperScaleWidth),
    InfoOf(settings::PaperScaleHeight),
    InfoOf(settings::PaperMarginCenter),
    InfoOf(settings::PaperMarginLeft),
    InfoOf(settings::PaperMarginTop),
    InfoOf(settings::PaperBorder),
    InfoOf(settings::WatermarkEnabled),
    InfoOf(settings::WatermarkAsBackground),
    InfoOf(settings::WatermarkFilename),
    InfoOf(settings::UseHyperlinkRecognition),
    InfoOf(settings::HyperlinkBorder),
    InfoOf(settings::HyperlinkBorderWidth),
    InfoOf(settings::HyperlinkBorderColor),
    InfoOf(settings::OutlineStylesEnabled),
    InfoOf(settings::OutlineStyles),
    InfoOf(settings::OutlineFormats),
    InfoOf(settings::OutlineStyleNames),
    InfoOf(settings::FontsEmbedded),
    InfoOf(settings::FontsIsEmbeddedOrNoEmbeddedList),
    InfoOf(settings::FontsEmbeddedOrNoEmbeddedList),
    InfoOf(settings::EmbedFilenamesEnabled),
    InfoOf(settings::EmbedFilenames),
    InfoOf(settings::EmbedfilenamesConfirmed),
    InfoOf(settings::EmbedfilenamesOpen),
    InfoOf(settings::ZUGFeRD),
    InfoOf(settings::ZUGFeRDXml),
    InfoOf(settings::ZUGFeRDDeleteAfterEmbedding),
    InfoOf(settings::ZUGFeRDMarkedContent),
    InfoOf(settings::ZUGFeRDShowAfterCreation),
    InfoOf(settings::ZUGFeRDCreationMethod),
    InfoOf(settings::EncryptPasswordsConfirmed),
    InfoOf(settings::EncryptUserPasswordEnabled),
    InfoOf(settings::EncryptUserPassword),
    InfoOf(settings::EncryptOwnerPasswordEnabled),
    InfoOf(settings::EncryptOwnerPassword),
    InfoOf(settings::UseEncryptEnhancedPdfPassword),
    InfoOf(settings::EncryptEnhancedPdfPassword),
    InfoOf(settings::PdfVersion),
    InfoOf(settings::EncryptEnablePrinting),
    InfoOf(settings::EncryptEnableModifying),
    InfoOf(settings::EncryptEnableNotes),
    InfoOf(settings::EncryptEnableClipboard),
    InfoOf(settings::EncryptEnableForms),
    InfoOf(settings::EncryptEnableAssembling),
    InfoOf(settings::EncryptEnableExtract),
    InfoOf(settings::OpenLayout),
    InfoOf(settings::OpenSize),
    InfoOf(settings::OpenPageIndex),
    InfoOf(settings::OpenMode),
    InfoOf(settings::NonFullScreenPageMode),
    InfoOf(settings::Direction),
    InfoOf(settings::HideToolbar),
    InfoOf(settings::HideMenubar),
    InfoOf(settings::CenterWindow),
    InfoOf(settings::FitWindow),
    InfoOf(settings::DisplayDocTitle),
    InfoOf(settings::HideWindowUI),
    InfoOf(settings::StartAction),
    InfoOf(settings::MailSendImmediate),
    InfoOf(settings::StartProgram),
    InfoOf(settings::StartProgramParameters),
    InfoOf(settings::MailRecipient),
    InfoOf(settings::MailSubject),
    InfoOf(settings::MailNotetext),
    InfoOf(settings::GraphicCompressMethod),
    InfoOf(settings::GraphicJpegQuality),
    InfoOf(settings::GraphicResolution),
    InfoOf(settings::GraphicColorReduction),
    InfoOf(settings::EnhancedPdfReplacements),
    InfoOf(settings::GraphicNotUseRedundancyOptimization),
    InfoOf(settings::GraphicRedundancyOptimizationMaxSize),
    InfoOf(settings::SaveFormatEPdfEnabled),
    InfoOf(settings::SaveFormat),
    InfoOf(settings::SaveConversionEnabled),
    InfoOf(settings::SaveConversion),
    InfoOf(settings::SaveAction),
    InfoOf(settings::FileExistsAction),
    InfoOf(settings::DestinationDirectoryOrFilename),
    InfoOf(settings::DestinationFilenameSuffixEnabled),
    InfoOf(settings::DestinationFilenameSuffix),
    InfoOf(settings::RegistryDevmode),
    InfoOf(settings::InternalUse),
    InfoOf(settings::ApplicationDevmodeStartup),
    InfoOf(settings::FormFieldsEnabled),
    InfoOf(settings::ShowFormfields),
    InfoOf(settings::FormfieldUseAutoTextHeight),
    InfoOf(settings::FormfieldUseDefaultTextWidth),
    InfoOf(settings::FormfieldUseDefaultTextMaxChars),
    InfoOf(settings::FormfieldUseInternalCharCount),
    InfoOf(settings::FormfieldUseInternalCharCountMaxChars),
    InfoOf(settings::FormfieldInternalCharCount),
    InfoOf(settings::FormfieldUseTextfieldBorder),
    InfoOf(settings::FormfieldTextfieldBorderColor),
    InfoOf(settings::FormfieldUseTextfieldBackColor),
    InfoOf(settings::FormfieldTextfieldBackColor),
    InfoOf(settings::FormfieldUseCheckboxBorder),
    InfoOf(settings::FormfieldCheckboxBorderColor),
    InfoOf(settings::FormfieldUseCheckboxBackColor),
    InfoOf(settings::FormfieldCheckboxBackColor),
    InfoOf(settings::FormfieldUseDropdownBorder),
    InfoOf(settings::FormfieldDropdownBorderColor),
    InfoOf(settings::FormfieldUseDropdownBackColor),
    InfoOf(settings::FormfieldDropdownBackColor),
    InfoOf(settings::StationeryEnabled),
    InfoOf(settings::StationerySelected),
    InfoOf(settings::StationeryInfos),
    InfoOf(settings::StationeryAsForeground),
    InfoOf(settings::Colorspace),
    InfoOf(settings::Title),
    InfoOf(settings::Author),
    InfoOf(settings::Subject),
    InfoOf(settings::Keywords),
};

// clang-format on

}  // namespace nempdf

#endif
