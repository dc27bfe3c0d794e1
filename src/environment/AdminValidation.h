// What the configuration files may not say together, or not at all. A value that breaks a rule is taken back: the
// setting is open again, without a word to the user.
#pragma once

#include <cstdint>

#include "environment/AdminSettings.h"

// The values that a number may have. Every other one becomes unset.
struct AdminRange {
  int32_t AdminSettings::*field;
  int32_t least, greatest;
};

// Where a range has no lower limit, none is needed: a file cannot set a number below 0. FileExistsAction_Override has
// none at all, and PdfVersion_Override no upper one, though not every number is a version: both on purpose.
constexpr int32_t kNoLimitBelow = INT32_MIN;
constexpr int32_t kNoLimitAbove = INT32_MAX;

inline constexpr AdminRange kAdminRanges[] = {
    {&AdminSettings::Settings_Override, 0, 2},
    {&AdminSettings::FontsEmbedded_Override, kNoLimitBelow, 3},
    {&AdminSettings::GraphicJpegQuality_Override, kNoLimitBelow, 100},
    {&AdminSettings::GraphicCompressMethod_Override, kNoLimitBelow, 4},
    {&AdminSettings::Colorspace_Override, kNoLimitBelow, 1},
    {&AdminSettings::PdfVersion_Override, 13, kNoLimitAbove},
    {&AdminSettings::UpdateType_Override, 1, 31},
};

// The rules, in the order in which they run. Each may see what those before it have taken back.
enum class AdminRule : uint8_t {
  SaveTarget,        // SaveAction with a predefined name or folder needs the destination
  Ranges,            // kAdminRanges
  InvoiceFile,       // ZUGFeRD from a file needs the file, else the whole group goes
  InvoiceDeletion,   // only a file that is embedded can be deleted
  InvoiceContent,    // ZUGFeRD from marked content has no file, and nothing to delete
  InvoiceMethod,     // method 255 is none
  InvoiceFileAgain,  // as InvoiceFile
  Count
};

void ApplyAdminRule(AdminRule rule, AdminSettings& record);

// Applies all rules. This happens after each file: a value of the printer's file that needs one of the general file is
// gone before that is read.
void ValidateAdminSettings(AdminSettings& record);
