// The administrator's overrides: what the configuration files beside the printer driver say.
//
// An override fixes a setting for all users of a printer. Most keys are named after a property, with "_Override" behind
// its name; the others have names of their own. A field carries the name of its key.
//
// An override that is not set holds a value of its own, by the type of its key: 255 for a boolean, -1 for a number,
// nothing for a text.
#pragma once

#include <cstdint>

#include "DriverLIB/CUString.h"

// The types of a key as the key table holds them.
enum class AdminEntry : int32_t { End = 0, Boolean = 1, Text = 2, Number = 3 };

constexpr int32_t kUnsetBoolean = 255;
constexpr int32_t kUnsetNumber = -1;  // 0xFFFFFFFF to those who look at it as an unsigned value

// All overrides as rows (key, type), in runs: the record and the key table take four of the runs in the same order and
// differ in what stands between them (below, and in AdminSettings.cpp).

// clang-format off

#define NEMPDF_ADMIN_ACTIONS(row)                        \
  row(StartActionViewerCheck_Override, Boolean)          \
  row(StartActionMailCheck_Override, Boolean)            \
  row(MailRecipient_Override, Text)                      \
  row(MailSubject_Override, Text)                        \
  row(MailNoteText_Override, Text)                       \
  row(MailSendImmediate_Override, Boolean)               \
  row(StartActionProgramCheck_Override, Boolean)         \
  row(StartActionProgram_Override, Text)                 \
  row(StartActionProgramParameters_Override, Text)       \
  row(StartActionProgramBeforeCheck_Override, Boolean)   \
  row(StartActionProgramBefore_Override, Text)           \
  row(StartActionProgramParametersBefore_Override, Text)

#define NEMPDF_ADMIN_TIFF(row)         \
  row(TiffResolution_Override, Number)

#define NEMPDF_ADMIN_AUTHOR(row) \
  row(Author_Override, Text)

#define NEMPDF_ADMIN_TITLE(row) \
  row(Title_Override, Text)

#define NEMPDF_ADMIN_KEYWORDS(row) \
  row(Keywords_Override, Text)

#define NEMPDF_ADMIN_SUBJECT(row) \
  row(Subject_Override, Text)

#define NEMPDF_ADMIN_PICTURES(row)             \
  row(WatermarkAsBackground_Override, Boolean) \
  row(WatermarkEnabled_Override, Boolean)      \
  row(WatermarkFilename_Override, Text)        \
  row(TiffCompressMethod_Override, Number)     \
  row(TiffColorDepth_Override, Number)         \
  row(TiffJpegQuality_Override, Number)        \
  row(TiffStripSize_Override, Number)

#define NEMPDF_ADMIN_COMPARABLE(row)    \
  row(ComparableMode_Override, Boolean)

#define NEMPDF_ADMIN_ANTIALIASING(row)    \
  row(FontsAntialiasing_Override, Number)

#define NEMPDF_ADMIN_DOCUMENT(row)                       \
  row(SaveAction_Override, Number)                       \
  row(DestinationDirectoryOrFilename_Override, Text)     \
  row(FileExistsAction_Override, Number)                 \
  row(TiffSinglePage_Override, Boolean)                  \
  row(Settings_Override, Number)                         \
  row(EncryptEnableAssembling_Override, Boolean)         \
  row(EncryptEnableClipboard_Override, Boolean)          \
  row(EncryptEnableExtract_Override, Boolean)            \
  row(EncryptEnableForms_Override, Boolean)              \
  row(EncryptEnableModifying_Override, Boolean)          \
  row(EncryptEnableNotes_Override, Boolean)              \
  row(EncryptEnablePrinting_Override, Boolean)           \
  row(EncryptOwnerPassword_Override, Text)               \
  row(EncryptUserPassword_Override, Text)                \
  row(EncryptUserPasswordEnabled_Override, Boolean)      \
  row(EncryptOwnerPasswordEnabled_Override, Boolean)     \
  row(EncryptPasswordsConfirmed_Override, Boolean)       \
  row(FontsEmbedded_Override, Number)                    \
  row(FontsIsEmbeddedOrNoEmbeddedList_Override, Boolean) \
  row(FontsEmbeddedOrNoEmbeddedList_Override, Text)      \
  row(GraphicResolution_Override, Number)                \
  row(GraphicJpegQuality_Override, Number)               \
  row(GraphicCompressMethod_Override, Number)            \
  row(GraphicColorReduction_Override, Boolean)           \
  row(Colorspace_Override, Number)                       \
  row(PdfVersion_Override, Number)                       \
  row(PdfAEnabled_Override, Boolean)                     \
  row(StationeryEnabled_Override, Boolean)               \
  row(StationeryInfos_Override, Text)                    \
  row(StationerySelected_Override, Number)               \
  row(StationeryAsForeground_Override, Boolean)          \
  row(UpdateType_Override, Number)                       \
  row(DisableManualUpdate, Boolean)                      \
  row(ZUGFeRD_Override, Boolean)                         \
  row(ZUGFeRDCreationMethod_Override, Number)            \
  row(ZUGFeRDDeleteAfterEmbedding_Override, Boolean)     \
  row(ZUGFeRDXml_Override, Text)

// clang-format on

// The record: 63 fields.
#define NEMPDF_ADMIN_RECORD(row) \
  NEMPDF_ADMIN_ACTIONS(row)      \
  NEMPDF_ADMIN_TIFF(row)         \
  NEMPDF_ADMIN_AUTHOR(row)       \
  NEMPDF_ADMIN_TITLE(row)        \
  NEMPDF_ADMIN_KEYWORDS(row)     \
  NEMPDF_ADMIN_SUBJECT(row)      \
  NEMPDF_ADMIN_PICTURES(row)     \
  NEMPDF_ADMIN_COMPARABLE(row)   \
  NEMPDF_ADMIN_ANTIALIASING(row) \
  NEMPDF_ADMIN_DOCUMENT(row)

#define NEMPDF_ADMIN_FIELD_Boolean(key) int32_t key = kUnsetBoolean;
#define NEMPDF_ADMIN_FIELD_Number(key) int32_t key = kUnsetNumber;
#define NEMPDF_ADMIN_FIELD_Text(key) CUString key;
#define NEMPDF_ADMIN_FIELD(key, type) NEMPDF_ADMIN_FIELD_##type(key)

struct AdminSettings {
  AdminSettings() = default;
  AdminSettings(const AdminSettings&) = default;
  AdminSettings& operator=(const AdminSettings&) = delete;  // would give passwords back to the heap unwiped
  // Wipes the texts that hold passwords.
  ~AdminSettings();

  NEMPDF_ADMIN_RECORD(NEMPDF_ADMIN_FIELD)
};

#undef NEMPDF_ADMIN_FIELD
#undef NEMPDF_ADMIN_FIELD_Text
#undef NEMPDF_ADMIN_FIELD_Number
#undef NEMPDF_ADMIN_FIELD_Boolean

// The place of a field in the record. The entry type says which of the two it is.
union AdminField {
  constexpr AdminField() : number(nullptr) {}
  constexpr AdminField(int32_t AdminSettings::*field) : number(field) {}  // booleans and numbers
  constexpr AdminField(CUString AdminSettings::*field) : text(field) {}

  int32_t AdminSettings::*number;
  CUString AdminSettings::*text;
};

struct AdminKey {
  const wchar_t* key;
  AdminEntry type;
  AdminField field;
};

// The key table: 64 rows in the order of the search, in which the first match counts, and a closing row whose key is
// null.
extern const AdminKey kAdminKeys[];

// True if the administrator fixed the value. A boolean knows two unset values: clearing the ZUGFeRD group of an
// inconsistent configuration leaves -1 in its booleans.
constexpr bool IsSetBoolean(int32_t value) { return value != kUnsetBoolean && value != kUnsetNumber; }
constexpr bool IsSetNumber(int32_t value) { return value != kUnsetNumber; }
inline bool IsSetText(const CUString& value) { return !value.IsEmpty(); }
