#include "environment/AdminValidation.h"

#include <iterator>

namespace {

// SaveAction is the sum of two choices.
constexpr int32_t kNameMask = 0x38, kPredefinedName = 0x18;
constexpr int32_t kFolderMask = 0x1C0, kPredefinedFolder = 0x140;

constexpr int32_t kMethodFile = 0, kMethodMarkedContent = 1, kMethodNone = 255;

void CheckSaveTarget(AdminSettings& record) {
  int32_t& action = record.SaveAction_Override;
  if (action < 0) action = kUnsetNumber;
  if (!IsSetNumber(action) || IsSetText(record.DestinationDirectoryOrFilename_Override)) return;
  if ((action & kNameMask) == kPredefinedName || (action & kFolderMask) == kPredefinedFolder) action = kUnsetNumber;
}

void CheckRanges(AdminSettings& record) {
  for (const AdminRange& range : kAdminRanges) {
    int32_t& value = record.*range.field;
    if (value < range.least || value > range.greatest) value = kUnsetNumber;
  }
}

// The booleans get the unset value of a number, so a boolean knows two (IsSetBoolean).
void ClearInvoice(AdminSettings& record) {
  record.ZUGFeRD_Override = kUnsetNumber;
  record.ZUGFeRDCreationMethod_Override = kUnsetNumber;
  record.ZUGFeRDDeleteAfterEmbedding_Override = kUnsetNumber;
}

void CheckInvoiceFile(AdminSettings& record) {
  if (!IsSetText(record.ZUGFeRDXml_Override) && record.ZUGFeRDCreationMethod_Override == kMethodFile)
    ClearInvoice(record);
}

void CheckInvoiceDeletion(AdminSettings& record) {
  const bool embedsFile = record.ZUGFeRDCreationMethod_Override == kMethodFile &&
                          IsSetText(record.ZUGFeRDXml_Override) && record.ZUGFeRD_Override == 1;
  int32_t& deletion = record.ZUGFeRDDeleteAfterEmbedding_Override;
  if (deletion == 1 && !embedsFile) deletion = kUnsetBoolean;
}

void CheckInvoiceContent(AdminSettings& record) {
  if (record.ZUGFeRDCreationMethod_Override != kMethodMarkedContent) return;
  record.ZUGFeRDDeleteAfterEmbedding_Override = kUnsetBoolean;
  record.ZUGFeRDXml_Override.Assign({});
}

void CheckInvoiceMethod(AdminSettings& record) {
  if (record.ZUGFeRD_Override == 1 && record.ZUGFeRDCreationMethod_Override == kMethodNone) ClearInvoice(record);
}

using Check = void (*)(AdminSettings&);

// In the order of AdminRule.
constexpr Check kChecks[] = {CheckSaveTarget,     CheckRanges,        CheckInvoiceFile, CheckInvoiceDeletion,
                             CheckInvoiceContent, CheckInvoiceMethod, CheckInvoiceFile};

static_assert(std::size(kChecks) == static_cast<size_t>(AdminRule::Count));

}  // namespace

void ApplyAdminRule(AdminRule rule, AdminSettings& record) { kChecks[static_cast<size_t>(rule)](record); }

void ValidateAdminSettings(AdminSettings& record) {
  for (const Check check : kChecks) check(record);
}
