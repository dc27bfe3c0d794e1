// How the values of a page travel to the cockpit and back: one small struct a page, and one interface. The structs
// stand in the order of the cockpit's record, their fields in the order of the record's fields. What their values mean
// is told by the properties of the same names; the factory state stands in CCockpitSettings.
#pragma once

#include <cstdint>

#include "DriverLIB/CUString.h"

struct GraphicCockpitValues {
  uint16_t compressMethod = 0;
  uint16_t jpegQuality = 0;
  uint16_t resolution = 0;
  uint16_t colorReduction = 0;
};

struct PaperCockpitValues {
  uint16_t paperSize = 0;
  uint16_t orientation = 0;
  uint16_t scaleWidth = 0;
  uint16_t scaleHeight = 0;
  uint16_t scale = 0;
  uint16_t marginCenter = 0;
  uint16_t border = 0;
};

struct AppearanceCockpitValues {
  uint16_t openLayout = 0;
  uint16_t openSize = 0;
  uint16_t openPageIndex = 0;
  uint16_t openMode = 0;
  uint16_t nonFullScreenPageMode = 0;
  uint16_t direction = 0;
  uint16_t hideToolbar = 0;
  uint16_t hideMenubar = 0;
  uint16_t centerWindow = 0;
  uint16_t fitWindow = 0;
  uint16_t displayDocTitle = 0;
  uint16_t hideWindowUI = 0;
};

struct FontsCockpitValues {
  uint16_t fontsEmbedded = 0;
};

struct WatermarkCockpitValues {
  uint16_t watermarkEnabled = 0;
  uint16_t stationeryEnabled = 0;
};

struct LinksCockpitValues {
  uint16_t useHyperlinkRecognition = 0;
};

struct AttachmentsCockpitValues {
  uint16_t embedFilenamesEnabled = 0;
};

struct ZugferdCockpitValues {
  uint16_t zugferd = 0;
  CUString xml;
  uint16_t deleteAfterEmbedding = 0;
  uint16_t showAfterCreation = 0;
  uint16_t creationMethod = 0;
};

struct BookmarkCockpitValues {
  uint16_t outlineStylesEnabled = 0;
};

struct SavingCockpitValues {
  uint16_t saveAction = 0;
  uint16_t fileExistsAction = 0;
};

struct FormatCockpitValues {
  uint16_t pdfVersion = 0;
  uint16_t saveFormat = 0;
  uint16_t saveConversion = 0;
};

// The bits of the start action. Two pages have them: each reads and sets its own and leaves the other's as they are.
constexpr uint16_t kStartViewer = 1;
constexpr uint16_t kSendByMail = 2;
constexpr uint16_t kStartProgram = 4;
constexpr uint16_t kStartProgramBefore = 8;  // offered where TIFF files are made; kept and handed on

constexpr uint16_t kActionPageBits = kStartViewer | kStartProgram | kStartProgramBefore;
constexpr uint16_t kMailPageBits = kSendByMail;

struct ActionCockpitValues {
  uint16_t startAction = 0;
};
using MailCockpitValues = ActionCockpitValues;

struct ColorsCockpitValues {
  uint16_t colorspace = 0;
};

struct FormFieldsCockpitValues {
  uint32_t showFormfields = 0;
};

// Colours are 0x00BBGGRR values. Each stands behind the switch that puts it to use.
struct FormFieldsColorCockpitValues {
  uint16_t useTextfieldBorder = 0;
  uint32_t textfieldBorderColor = 0;
  uint16_t useTextfieldBackColor = 0;
  uint32_t textfieldBackColor = 0;
  uint16_t useCheckboxBorder = 0;
  uint32_t checkboxBorderColor = 0;
  uint16_t useCheckboxBackColor = 0;
  uint32_t checkboxBackColor = 0;
  uint16_t useDropdownBorder = 0;
  uint32_t dropdownBorderColor = 0;
  uint16_t useDropdownBackColor = 0;
  uint32_t dropdownBackColor = 0;
};

struct SecurityCockpitValues {
  uint16_t ownerPasswordEnabled = 0;
  uint16_t userPasswordEnabled = 0;
  uint16_t enhancedPdfPassword = 0;
};

struct DocInfoCockpitValues {
  CUString title;
  CUString author;
  CUString subject;
  CUString keywords;
};

// A page that the cockpit tracks.
template <class Values>
class CockpitPage {
 public:
  // Reads the page's properties if that has not been done, and hands out its values.
  virtual void GetCockpitValues(Values& values) = 0;
  // Takes the values, except those that an administrator has fixed, and shows them if the page has a window.
  virtual void SetCockpitValues(const Values& values) = 0;

 protected:
  ~CockpitPage() = default;
};
