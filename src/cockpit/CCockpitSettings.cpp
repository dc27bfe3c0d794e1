#include "cockpit/CCockpitSettings.h"

namespace {

// As the system numbers its papers.
constexpr uint16_t kLetter = 1;
constexpr uint16_t kA4 = 9;

constexpr uint32_t kLightGray = 0xC0C0C0;

}  // namespace

CCockpitSettings::CCockpitSettings(bool isA4Default) : isA4Default_(isA4Default) { ResetToDefaults(); }

void CCockpitSettings::ResetToDefaults() {
  graphic = {.compressMethod = 4, .jpegQuality = 85, .resolution = 600, .colorReduction = 1};
  paper = {.paperSize = isA4Default_ ? kA4 : kLetter,
           .orientation = 1,
           .scaleWidth = 100,
           .scaleHeight = 100,
           .scale = 100,
           .marginCenter = 1};
  appearance = {.openPageIndex = 1};
  fonts = {.fontsEmbedded = 3};
  watermark = {};
  links = {.useHyperlinkRecognition = 1};
  attachments = {};
  zugferd = {};
  zugferd.creationMethod = 1;
  bookmark = {};
  saving = {.saveAction = 136};
  format = {.pdfVersion = 14};
  action = {.startAction = 1};
  colors = {};
  formFields = {};
  formFieldsColor = {.textfieldBorderColor = formFieldsColor.textfieldBorderColor,
                     .useTextfieldBackColor = 1,
                     .textfieldBackColor = kLightGray,
                     .useCheckboxBorder = 1,
                     .useCheckboxBackColor = 1,
                     .checkboxBackColor = kLightGray,
                     .dropdownBorderColor = formFieldsColor.dropdownBorderColor,
                     .useDropdownBackColor = 1,
                     .dropdownBackColor = kLightGray};
  security = {};
  docInfo = {};
}
