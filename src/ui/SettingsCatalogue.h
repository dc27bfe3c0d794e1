// The catalogue of all properties: the one place where a setting is named, typed and explained.
//
// The members of CDialogProperties, the table by which they are named and registered, docs/properties.md, the names in
// include/NemPdfUISettings.hpp and the tests are made from the two lists below. Adding a setting is adding a row, at
// the end of the list: the order of the rows is the order of registration.
//
// A row is (name, kind, page, meaning). The name is exactly what a host writes, capitals included, and is not to be
// "corrected": EmbedfilenamesConfirmed and EmbedFilenamesEnabled both stand as they should. The kinds:
//
//   Long    signed 32-bit number
//   Text    wide text
//   Secret  wide text that holds a password: never traced, and wiped from memory where a copy of it dies
//
// The meaning is Markdown for the table in docs/properties.md.
#pragma once

#include <cstdint>
#include <iterator>
#include <string_view>

// clang-format off

// The general set, index -1.
#define NEMPDF_GENERAL_PROPERTIES(row)                                                                                \
  row(HwndParent, Long, General, "Window that owns the sheet, as a 32-bit window handle; it is widened with its sign. 0 and a window that does not exist mean no owner.") \
  row(SheetTitle, Text, General, "Caption of the sheet.")                                                             \
  row(MsgBoxTitle, Text, General, "Caption of all message boxes of the pages.")                                       \
  row(HelpFilename, Text, General, "Full path of the compiled help file.")                                            \
  row(PrinterName, Text, General, "Printer whose settings are shown. It decides which files of the administrator count, and it is the printer that the pages ask for its properties.") \
  row(PasswordVisible, Long, General, "1 shows the passwords of the security page in plain text, 0 hides them. The user can switch it.")

// The two settings sets, index 0 and 1. 123 rows.
#define NEMPDF_SETTINGS(row)                                                                                          \
  row(Used, Long, Sheet, "In set 1: other than 0 offers the tab \"e.pdf Document Properties\" and opens the sheet on it. Not read in set 0: the tab \"Basic Settings\" is always there.") \
  row(PrintOutput, Long, Sheet, "Bit set, input only. 1 locks the target controls of the Saving page, the actions and the mail controls, and takes away the choice of the e.pdf format. 2 makes the paper page offer duplex and paper bins.") \
  row(Fields, Long, Paper, "Bit set: which of the paper values count, as in the field mask of a device mode. 1 orientation, 2 paper size, 4 paper length, 8 paper width, 16 scale, `0x200` paper source.") \
  row(Orientation, Long, Paper, "1 portrait, 2 landscape.")                                                           \
  row(PaperSize, Long, Paper, "Paper number of the device mode, such as 1 for Letter and 9 for A4; 254 A1, 255 A0, 256 user-defined, by `PaperLength` and `PaperWidth`.") \
  row(PaperLength, Long, Paper, "Length of the paper in tenths of a millimetre.")                                     \
  row(PaperWidth, Long, Paper, "Width of the paper in tenths of a millimetre.")                                       \
  row(Scale, Long, Paper, "Scale of the application in per cent, 1 to 100000.")                                       \
  row(Duplex, Long, Paper, "1 single-sided, 2 duplex, 3 duplex with binding at the upper edge.")                      \
  row(PaperSource, Long, Paper, "Number of the bin that the paper comes from.")                                       \
  row(PaperDestination, Long, Paper, "Number of the bin that the paper goes to.")                                     \
  row(PaperScaleWidth, Long, Paper, "Scale of the page's width in per cent, 1 to 100.")                               \
  row(PaperScaleHeight, Long, Paper, "Scale of the page's height in per cent, 1 to 100.")                             \
  row(PaperMarginCenter, Long, Paper, "1 centres the scaled page on the paper; 0 places it by the two margins.")      \
  row(PaperMarginLeft, Long, Paper, "Left margin in tenths of a millimetre.")                                         \
  row(PaperMarginTop, Long, Paper, "Top margin in tenths of a millimetre.")                                           \
  row(PaperBorder, Long, Paper, "Width of the border around the page in hundredths of a point: 0, 25, 50, 75, 100, 150, 225, 300, 450 or 600.") \
  row(WatermarkEnabled, Long, Watermark, "1 puts a watermark on the pages.")                                          \
  row(WatermarkAsBackground, Long, Watermark, "1 puts the watermark behind the page's content, 0 in front of it.")    \
  row(WatermarkFilename, Text, Watermark, "Image file of the watermark.")                                             \
  row(UseHyperlinkRecognition, Long, Links, "1 turns addresses in the printed text into links.")                      \
  row(HyperlinkBorder, Long, Links, "Border of a link: 0 none, 1 underlined, 2 rectangle, 3 dashed rectangle, 4 dotted rectangle.") \
  row(HyperlinkBorderWidth, Long, Links, "Width of the border of a link in hundredths of a point.")                   \
  row(HyperlinkBorderColor, Long, Links, "Colour of the border of a link.")                                           \
  row(OutlineStylesEnabled, Long, Bookmarks, "1 makes bookmarks from the styles of the document.")                    \
  row(OutlineStyles, Text, Bookmarks, "The styles in use with their outline levels from 1 to 9: `heading 1;1;heading 2;2`.") \
  row(OutlineFormats, Text, Bookmarks, "All bookmark formats, one behind the other: `{STYLE:heading 2;2;{FONT:Arial;14;Bold;Italic;0.0.255}};`. The font's attributes and the colour (red, green, blue) may be left out.") \
  row(OutlineStyleNames, Text, Bookmarks, "Read and not used further; comes back as it was set.")                     \
  row(FontsEmbedded, Long, Fonts, "0 embeds no fonts, 1 all, 2 selected ones, 3 all but the standard fonts.")         \
  row(FontsIsEmbeddedOrNoEmbeddedList, Long, Fonts, "What the next property lists: 1 the fonts to embed, 0 the fonts never to embed.") \
  row(FontsEmbeddedOrNoEmbeddedList, Text, Fonts, "Names of fonts with semicolons between them, fewer than 1024 characters. A single blank is a list with no font in it, nothing at all is no list.") \
  row(EmbedFilenamesEnabled, Long, Attachments, "1 embeds the files of `EmbedFilenames` as attachments.")             \
  row(EmbedFilenames, Text, Attachments, "Full paths of the attachments, each in double quotes, with semicolons between them: `\"C:\\a.doc\";\"C:\\b.pdf\"`.") \
  row(EmbedfilenamesConfirmed, Long, Attachments, "Whether the user is asked to confirm the attachments: 0 never, 1 always, 2 only when one is missing. Pages of both tabs use the value of set 0.") \
  row(EmbedfilenamesOpen, Long, Attachments, "1 shows the attachments when an e.pdf document is opened. Pages of both tabs use the value of set 0.") \
  row(ZUGFeRD, Long, Invoice, "1 makes the document a ZUGFeRD invoice. Needs a `PdfVersion` of 105, 106 or 107.")     \
  row(ZUGFeRDXml, Text, Invoice, "XML file of the invoice, for creation method 0.")                                   \
  row(ZUGFeRDDeleteAfterEmbedding, Long, Invoice, "1 deletes the XML file when it has been embedded.")                \
  row(ZUGFeRDMarkedContent, Text, Invoice, "On no page; comes back as it was set.")                                   \
  row(ZUGFeRDShowAfterCreation, Long, Invoice, "1 shows the invoice when it has been created.")                       \
  row(ZUGFeRDCreationMethod, Long, Invoice, "Where the invoice comes from: 0 an existing XML file, 1 content marked in the document.") \
  row(EncryptPasswordsConfirmed, Long, Security, "1 asks the user to type changed passwords a second time. One value for both tabs, that of set 0; the user can change it on the tab \"Basic Settings\" only.") \
  row(EncryptUserPasswordEnabled, Long, Security, "1 asks for a password when the document is opened. Counts beside `EncryptOwnerPasswordEnabled` only.") \
  row(EncryptUserPassword, Secret, Security, "Password for opening the document, at most 31 characters on the page.") \
  row(EncryptOwnerPasswordEnabled, Long, Security, "1 restricts what may be done with the document, and protects that by a password.") \
  row(EncryptOwnerPassword, Secret, Security, "Password for changing the security options, at most 31 characters on the page.") \
  row(UseEncryptEnhancedPdfPassword, Long, Security, "Password for editing an e.pdf document: 0 the one for changing the security options, 1 none, 2 one of its own.") \
  row(EncryptEnhancedPdfPassword, Secret, Security, "Password for editing an e.pdf document, for the value 2 of the property before; at most 31 characters on the page.") \
  row(PdfVersion, Long, Format, "13 to 17 PDF 1.3 to 1.7, 18 PDF 1.7 extension level 3; 100 PDF/A-1a, 101 PDF/A-1b, 102 PDF/A-2a, 103 PDF/A-2b, 104 PDF/A-2u, 105 PDF/A-3a, 106 PDF/A-3b, 107 PDF/A-3u; 200 PDF/UA.") \
  row(EncryptEnablePrinting, Long, Security, "1 allows printing.")                                                    \
  row(EncryptEnableModifying, Long, Security, "1 allows changes to the document.")                                    \
  row(EncryptEnableNotes, Long, Security, "1 allows comments and notes.")                                             \
  row(EncryptEnableClipboard, Long, Security, "1 allows copying of text, pictures and other content.")                \
  row(EncryptEnableForms, Long, Security, "1 allows form fields to be filled in and signed. Not with PDF 1.3.")       \
  row(EncryptEnableAssembling, Long, Security, "1 allows pages to be inserted, deleted and rotated. Not with PDF 1.3.") \
  row(EncryptEnableExtract, Long, Security, "1 allows voice output programs to read the document aloud. Not with PDF 1.3.") \
  row(OpenLayout, Long, Display, "Page layout on opening: 0 the reader's default, 1 single page, 2 continuous single pages, 3 continuous double pages, 4 continuous double pages with odd pages on the right.") \
  row(OpenSize, Long, Display, "Page size on opening: 0 the reader's default, 1 full page, 2 page width.")            \
  row(OpenPageIndex, Long, Display, "Page to open at, 1 to 32767.")                                                   \
  row(OpenMode, Long, Display, "Window mode on opening: 0 standard, 1 with bookmarks, 2 with thumbnails, 3 full screen.") \
  row(NonFullScreenPageMode, Long, Display, "Mode after full screen, for `OpenMode` 3: 0 standard, 1 with bookmarks, 2 with thumbnails, 3 with layers.") \
  row(Direction, Long, Display, "Reading direction: 0 left to right, 1 right to left.")                               \
  row(HideToolbar, Long, Display, "1 hides the reader's toolbar.")                                                    \
  row(HideMenubar, Long, Display, "1 hides the reader's menu bar.")                                                   \
  row(CenterWindow, Long, Display, "1 opens the window in the centre of the screen.")                                 \
  row(FitWindow, Long, Display, "1 fits the window to the page.")                                                     \
  row(DisplayDocTitle, Long, Display, "1 shows the document's title in the window's caption, 0 the file's name.")     \
  row(HideWindowUI, Long, Display, "1 shows the content only, with no status bar and scroll bars.")                   \
  row(StartAction, Long, Actions, "Bit set: what happens with the finished document. 1 the default viewer opens it, 2 it is sent by mail, 4 `StartProgram` is started with it, 8 is kept as it is set. The value 2 belongs to the mail page, the others to the action page.") \
  row(MailSendImmediate, Long, Mail, "1 sends the mail without showing it first.")                                    \
  row(StartProgram, Text, Actions, "Program to start, at most 209 characters on the page.")                           \
  row(StartProgramParameters, Text, Actions, "Parameters of the program, at most 49 characters on the page.")         \
  row(MailRecipient, Text, Mail, "Recipient of the mail.")                                                            \
  row(MailSubject, Text, Mail, "Subject of the mail.")                                                                \
  row(MailNotetext, Text, Mail, "Text of the mail.")                                                                  \
  row(GraphicCompressMethod, Long, Graphic, "Compression of images: 0 loss-free by ZIP only, 1 JPEG, 2 JPEG automatically, 3 JPEG and ZIP, 4 JPEG automatically and ZIP.") \
  row(GraphicJpegQuality, Long, Graphic, "JPEG quality in per cent, 1 to 100; without effect for compression 0.")     \
  row(GraphicResolution, Long, Graphic, "Highest resolution of images in dpi, up to 2400; 0 leaves images as they are.") \
  row(GraphicColorReduction, Long, Graphic, "0 leaves the colour depth as it is, 1 reduces it where nothing is lost.") \
  row(EnhancedPdfReplacements, Long, Graphic, "Takes part in recognising a preset; the page stores 0.")               \
  row(GraphicNotUseRedundancyOptimization, Long, Graphic, "On no page; comes back as it was set.")                    \
  row(GraphicRedundancyOptimizationMaxSize, Long, Graphic, "On no page; comes back as it was set.")                   \
  row(SaveFormatEPdfEnabled, Long, Format, "1 offers the e.pdf format. Input only.")                                  \
  row(SaveFormat, Long, Format, "Bit set: 1 PDF or special format, 2 e.pdf, `0x100` ask each time. Pages of both tabs use the value of set 0.") \
  row(SaveConversionEnabled, Long, Format, "1 offers the choice of the conversion engine. Input only.")               \
  row(SaveConversion, Long, Format, "Conversion engine: 0 the virtual printer driver, 1 RTF conversion.")             \
  row(SaveAction, Long, Saving, "How the document is saved, the sum of two values. Name: `0x08` always ask, `0x10` document name, `0x18` predefined name. Folder: `0x80` current, `0xC0` last, `0x100` home, `0x180` desktop, `0x140` predefined.") \
  row(FileExistsAction, Long, Saving, "If the file exists: 0 warn and ask for another name, 4 overwrite, 5 number the file, 6 append, 7 insert at the top.") \
  row(DestinationDirectoryOrFilename, Text, Saving, "Predefined folder and file name; a folder ends with a backslash.") \
  row(DestinationFilenameSuffixEnabled, Long, Saving, "1 adds `DestinationFilenameSuffix` to the names of e.pdf documents.") \
  row(DestinationFilenameSuffix, Text, Saving, "Characters added to the name of an e.pdf document, at most 9 on the page.") \
  row(RegistryDevmode, Long, Saving, "Bit set: where the printer keeps the settings. 1 all applications use the same settings, 2 all instances and sessions of the calling application do.") \
  row(InternalUse, Long, Sheet, "Bit set, input only. 1 locks the scope of the settings on the Saving page. 2 says that the host sets page layout and document information: their controls are locked; under Word the bookmark page then shows the styles of the open document. 4 hides the choice for all instances of the application. 16 forbids the choice that the calling application manages the settings.") \
  row(ApplicationDevmodeStartup, Long, Saving, "0 not offered, 1 the settings are stored permanently, 2 they are taken from the printer's set-up when the application starts.") \
  row(FormFieldsEnabled, Long, FormFields, "1 offers the conversion of form fields. Input only.")                     \
  row(ShowFormfields, Long, FormFields, "1 converts form fields.")                                                    \
  row(FormfieldUseAutoTextHeight, Long, FormFields, "1 leaves the text size in form fields to the reader.")           \
  row(FormfieldUseDefaultTextWidth, Long, FormFields, "1 takes the width of text fields from their default text.")    \
  row(FormfieldUseDefaultTextMaxChars, Long, FormFields, "1 limits the input to the length of the default text, 0 does not limit it.") \
  row(FormfieldUseInternalCharCount, Long, FormFields, "1 gives all text fields the width of `FormfieldInternalCharCount`.") \
  row(FormfieldUseInternalCharCountMaxChars, Long, FormFields, "1 limits the input to that number of characters, 0 does not limit it.") \
  row(FormfieldInternalCharCount, Long, FormFields, "Uniform width of text fields in characters, 1 to 9999.")         \
  row(FormfieldUseTextfieldBorder, Long, FormColours, "1 draws a border around text fields.")                         \
  row(FormfieldTextfieldBorderColor, Long, FormColours, "Colour of the border of text fields.")                       \
  row(FormfieldUseTextfieldBackColor, Long, FormColours, "1 gives text fields a background.")                         \
  row(FormfieldTextfieldBackColor, Long, FormColours, "Colour of the background of text fields.")                     \
  row(FormfieldUseCheckboxBorder, Long, FormColours, "1 draws a border around check boxes.")                          \
  row(FormfieldCheckboxBorderColor, Long, FormColours, "Colour of the border of check boxes.")                        \
  row(FormfieldUseCheckboxBackColor, Long, FormColours, "1 gives check boxes a background.")                          \
  row(FormfieldCheckboxBackColor, Long, FormColours, "Colour of the background of check boxes.")                      \
  row(FormfieldUseDropdownBorder, Long, FormColours, "1 draws a border around drop-down lists.")                      \
  row(FormfieldDropdownBorderColor, Long, FormColours, "Colour of the border of drop-down lists.")                    \
  row(FormfieldUseDropdownBackColor, Long, FormColours, "1 gives drop-down lists a background.")                      \
  row(FormfieldDropdownBackColor, Long, FormColours, "Colour of the background of drop-down lists.")                  \
  row(StationeryEnabled, Long, Watermark, "1 merges the document with a stationery PDF. Not with PDF/UA.")            \
  row(StationerySelected, Long, Watermark, "The stationery in use, counted from 0 in the list of `StationeryInfos`.") \
  row(StationeryInfos, Secret, Watermark, "The list of stationery: `{{NAME:\"Letter\";FILE:\"C:\\\\Paper\\\\letter.pdf\";P:\"\";TYPE:\"0\"}}`, with a backslash before each backslash and, in name and password, before each double quote. `P` is the password of the file. `TYPE` is the way of merging: 0 the first page of the stationery behind all pages, 1 its first page with the first and its second with all others, 2 its first page with the first page only, 3 page by page.") \
  row(StationeryAsForeground, Long, Watermark, "1 puts the stationery in front of the page's content, 0 behind it.")  \
  row(Colorspace, Long, Colours, "0 RGB, 1 CMYK.")                                                                    \
  row(Title, Text, DocumentInfo, "Title of the document.")                                                            \
  row(Author, Text, DocumentInfo, "Author of the document.")                                                          \
  row(Subject, Text, DocumentInfo, "Subject of the document.")                                                        \
  row(Keywords, Text, DocumentInfo, "Keywords of the document.")

// clang-format on

enum class SettingKind : uint8_t { Long, Text, Secret };

// Where the user meets a setting.
enum class SettingPage : uint8_t {
  General,
  Sheet,
  Paper,
  Graphic,
  Display,
  Watermark,
  Colours,
  Links,
  Attachments,
  Invoice,
  Fonts,
  Security,
  FormFields,
  FormColours,
  Format,
  Bookmarks,
  DocumentInfo,
  Actions,
  Mail,
  Saving,
};

// A row of the catalogue as data. The library itself needs no explanations at run time: as long as it does not touch
// these tables they cost it nothing.
struct SettingInfo {
  std::wstring_view name;
  SettingKind kind;
  SettingPage page;
  std::string_view meaning;
};

#define NEMPDF_SETTING_INFO(name, kind, page, meaning) {L## #name, SettingKind::kind, SettingPage::page, meaning},

inline constexpr SettingInfo kGeneralProperties[] = {NEMPDF_GENERAL_PROPERTIES(NEMPDF_SETTING_INFO)};
inline constexpr SettingInfo kSettings[] = {NEMPDF_SETTINGS(NEMPDF_SETTING_INFO)};

#undef NEMPDF_SETTING_INFO

inline constexpr size_t kGeneralPropertyCount = std::size(kGeneralProperties);
inline constexpr size_t kSettingCount = std::size(kSettings);
