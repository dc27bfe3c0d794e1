#include "environment/AdminValidation.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "support/PrintText.h"

namespace {

int32_t Validated(int32_t AdminSettings::*field, int32_t value) {
  AdminSettings record;
  record.*field = value;
  ValidateAdminSettings(record);
  return record.*field;
}

}  // namespace

TEST(AdminValidation, ANumberOutOfItsRangeIsUnset) {
  const struct {
    int32_t AdminSettings::*field;
    int32_t value, validated;
  } rows[] = {
      {&AdminSettings::Settings_Override, 0, 0},
      {&AdminSettings::Settings_Override, 2, 2},
      {&AdminSettings::Settings_Override, 3, -1},
      {&AdminSettings::Settings_Override, -1, -1},
      {&AdminSettings::Settings_Override, -2, -1},
      {&AdminSettings::FontsEmbedded_Override, 3, 3},
      {&AdminSettings::FontsEmbedded_Override, 4, -1},
      {&AdminSettings::FontsEmbedded_Override, -5, -5},  // nothing below is looked at
      {&AdminSettings::GraphicJpegQuality_Override, 0, 0},
      {&AdminSettings::GraphicJpegQuality_Override, 100, 100},
      {&AdminSettings::GraphicJpegQuality_Override, 101, -1},
      {&AdminSettings::GraphicJpegQuality_Override, -5, -5},
      {&AdminSettings::GraphicCompressMethod_Override, 4, 4},
      {&AdminSettings::GraphicCompressMethod_Override, 5, -1},
      {&AdminSettings::GraphicCompressMethod_Override, -5, -5},
      {&AdminSettings::Colorspace_Override, 1, 1},
      {&AdminSettings::Colorspace_Override, 2, -1},
      {&AdminSettings::Colorspace_Override, -5, -5},
      {&AdminSettings::UpdateType_Override, 0, -1},
      {&AdminSettings::UpdateType_Override, 1, 1},
      {&AdminSettings::UpdateType_Override, 31, 31},
      {&AdminSettings::UpdateType_Override, 32, -1},
      {&AdminSettings::UpdateType_Override, -2, -1},
  };
  for (const auto& row : rows) EXPECT_EQ(row.validated, Validated(row.field, row.value)) << row.value;
}

TEST(AdminValidation, EveryVersionFromThirteenOnStands) {
  for (const int32_t version : {13, 18, 19, 50, 99, 100, 107, 108, 200, 201, INT32_MAX})
    EXPECT_EQ(version, Validated(&AdminSettings::PdfVersion_Override, version));
  for (const int32_t version : {12, 0, -1, -100})
    EXPECT_EQ(-1, Validated(&AdminSettings::PdfVersion_Override, version));
}

TEST(AdminValidation, TheActionForAnExistingFileHasNoRange) {
  for (const int32_t action : {0, 3, 7, 8, 4711, INT32_MAX, -1, -2, INT32_MIN})
    EXPECT_EQ(action, Validated(&AdminSettings::FileExistsAction_Override, action));
}

TEST(AdminValidation, NumbersWithoutARuleStand) {
  for (auto field : {&AdminSettings::TiffResolution_Override, &AdminSettings::TiffCompressMethod_Override,
                     &AdminSettings::TiffColorDepth_Override, &AdminSettings::TiffJpegQuality_Override,
                     &AdminSettings::TiffStripSize_Override, &AdminSettings::FontsAntialiasing_Override,
                     &AdminSettings::GraphicResolution_Override, &AdminSettings::StationerySelected_Override})
    for (const int32_t value : {0, 254, 255, INT32_MAX, -7}) EXPECT_EQ(value, Validated(field, value));
}

// --- Where to save -------------------------------------------------------------------------------------------------

namespace {

// The name's three bits and the folder's three, in all combinations, with and without bits around them.
constexpr bool NeedsDestination(int32_t action) { return (action >> 3 & 7) == 3 || (action >> 6 & 7) == 5; }

}  // namespace

TEST(AdminValidation, APredefinedNameOrFolderNeedsTheDestination) {
  EXPECT_TRUE(NeedsDestination(24));
  EXPECT_TRUE(NeedsDestination(0x140));
  EXPECT_FALSE(NeedsDestination(0x38));
  EXPECT_FALSE(NeedsDestination(0x1C0));
  EXPECT_FALSE(NeedsDestination(136));
  for (int32_t action = 0; action < 0x400; ++action) {
    AdminSettings without, with;
    without.SaveAction_Override = with.SaveAction_Override = action;
    with.DestinationDirectoryOrFilename_Override.Assign(L"C:\\Out\\");
    ValidateAdminSettings(without);
    ValidateAdminSettings(with);
    EXPECT_EQ(NeedsDestination(action) ? -1 : action, without.SaveAction_Override) << action;
    EXPECT_EQ(action, with.SaveAction_Override) << action;
    EXPECT_EQ(L"C:\\Out\\", with.DestinationDirectoryOrFilename_Override);
  }
}

TEST(AdminValidation, ABlankIsADestination) {
  AdminSettings record;
  record.SaveAction_Override = 24;
  record.DestinationDirectoryOrFilename_Override.Assign(L" ");
  ValidateAdminSettings(record);
  EXPECT_EQ(24, record.SaveAction_Override);
}

TEST(AdminValidation, ANegativeSaveActionIsUnset) {
  for (const int32_t action : {-1, -2, -1000, INT32_MIN}) {
    AdminSettings record;
    record.SaveAction_Override = action;
    record.DestinationDirectoryOrFilename_Override.Assign(L"C:\\Out\\");
    ValidateAdminSettings(record);
    EXPECT_EQ(-1, record.SaveAction_Override);
  }
}

// --- Invoices ------------------------------------------------------------------------------------------------------

namespace {

struct Invoice {
  int32_t zugferd, method, deletion;
  const wchar_t* xml;

  bool operator==(const Invoice& other) const {
    return zugferd == other.zugferd && method == other.method && deletion == other.deletion &&
           std::wstring_view(xml) == std::wstring_view(other.xml);
  }
};

std::ostream& operator<<(std::ostream& out, const Invoice& invoice) {
  return out << "{" << invoice.zugferd << ", " << invoice.method << ", " << invoice.deletion << ", "
             << (*invoice.xml ? "file" : "no file") << "}";
}

constexpr wchar_t kFile[] = L"C:\\a.xml";
constexpr wchar_t kNone[] = L"";

Invoice ValidatedInvoice(const Invoice& invoice) {
  AdminSettings record;
  record.ZUGFeRD_Override = invoice.zugferd;
  record.ZUGFeRDCreationMethod_Override = invoice.method;
  record.ZUGFeRDDeleteAfterEmbedding_Override = invoice.deletion;
  record.ZUGFeRDXml_Override.Assign(invoice.xml);
  ValidateAdminSettings(record);
  return {record.ZUGFeRD_Override, record.ZUGFeRDCreationMethod_Override, record.ZUGFeRDDeleteAfterEmbedding_Override,
          record.ZUGFeRDXml_Override.IsEmpty() ? kNone : kFile};
}

// The rules as they are laid down, written out a second time.
Invoice ExpectedInvoice(Invoice invoice) {
  const auto clear = [&] { invoice.zugferd = invoice.method = invoice.deletion = -1; };
  const bool fileAtStart = *invoice.xml != 0;
  if (!*invoice.xml && invoice.method == 0) clear();
  if (invoice.deletion == 1 && !(invoice.method == 0 && fileAtStart && invoice.zugferd == 1)) invoice.deletion = 255;
  if (invoice.method == 1) {
    invoice.deletion = 255;
    invoice.xml = kNone;
  }
  if (invoice.zugferd == 1 && invoice.method == 255) clear();
  if (!*invoice.xml && invoice.method == 0) clear();
  return invoice;
}

}  // namespace

TEST(AdminValidation, AnInvoiceIsWholeOrOpen) {
  const struct {
    Invoice given, validated;
  } rows[] = {
      {{255, -1, 255, kNone}, {255, -1, 255, kNone}},  // nothing is set
      {{1, -1, 255, kNone}, {1, -1, 255, kNone}},      // alone it stands
      {{0, -1, 255, kNone}, {0, -1, 255, kNone}},
      {{1, 0, 255, kFile}, {1, 0, 255, kFile}},  // a file
      {{1, 0, 1, kFile}, {1, 0, 1, kFile}},      // that is deleted
      {{1, 0, 0, kFile}, {1, 0, 0, kFile}},
      {{0, 0, 1, kFile}, {0, 0, 255, kFile}},  // nothing is embedded, so nothing deleted
      {{255, 0, 1, kFile}, {255, 0, 255, kFile}},
      {{1, -1, 1, kFile}, {1, -1, 255, kFile}},  // no method
      {{1, 0, 1, kNone}, {-1, -1, -1, kNone}},   // a method without its file: all three go
      {{0, 0, 0, kNone}, {-1, -1, -1, kNone}},
      {{255, 0, 255, kNone}, {-1, -1, -1, kNone}},
      {{1, 1, 1, kFile}, {1, 1, 255, kNone}},  // marked content has neither file nor deletion
      {{1, 1, 0, kFile}, {1, 1, 255, kNone}},
      {{255, 1, 255, kFile}, {255, 1, 255, kNone}},
      {{1, 255, 0, kFile}, {-1, -1, -1, kFile}},  // 255 is no method
      {{1, 255, 255, kNone}, {-1, -1, -1, kNone}},
      {{0, 255, 0, kFile}, {0, 255, 0, kFile}},
      {{1, 2, 0, kFile}, {1, 2, 0, kFile}},
      {{1, 2, 1, kFile}, {1, 2, 255, kFile}},
  };
  for (const auto& row : rows) EXPECT_EQ(row.validated, ValidatedInvoice(row.given)) << row.given;
}

TEST(AdminValidation, EveryInvoiceGoesByTheRules) {
  for (const int32_t zugferd : {-1, 0, 1, 255})
    for (const int32_t method : {-1, 0, 1, 2, 255})
      for (const int32_t deletion : {-1, 0, 1, 255})
        for (const wchar_t* xml : {kNone, kFile}) {
          const Invoice invoice{zugferd, method, deletion, xml};
          EXPECT_EQ(ExpectedInvoice(invoice), ValidatedInvoice(invoice)) << invoice;
        }
}

TEST(AdminValidation, BothUnsetValuesOfAClearedInvoiceCountAsUnset) {
  AdminSettings record;
  record.ZUGFeRD_Override = 1;
  record.ZUGFeRDCreationMethod_Override = 0;
  ValidateAdminSettings(record);
  EXPECT_EQ(0xFFFFFFFFu, static_cast<uint32_t>(record.ZUGFeRD_Override));
  EXPECT_EQ(0xFFFFFFFFu, static_cast<uint32_t>(record.ZUGFeRDDeleteAfterEmbedding_Override));
  EXPECT_FALSE(IsSetBoolean(record.ZUGFeRD_Override));
  EXPECT_FALSE(IsSetBoolean(record.ZUGFeRDDeleteAfterEmbedding_Override));
}

// --- The rules as a list ---------------------------------------------------------------------------------------------

namespace {

// The record after one rule alone. Clears what the rule takes back, and only that.
AdminSettings After(AdminRule rule, const std::function<void(AdminSettings&)>& fill) {
  AdminSettings record;
  fill(record);
  ApplyAdminRule(rule, record);
  return record;
}

}  // namespace

TEST(AdminValidation, EachRuleTakesBackItsOwn) {
  const auto fill = [](AdminSettings& record) {
    record.SaveAction_Override = 24;
    record.UpdateType_Override = 99;
    record.ZUGFeRD_Override = 1;
    record.ZUGFeRDCreationMethod_Override = 0;
    record.ZUGFeRDDeleteAfterEmbedding_Override = 1;
  };
  const AdminSettings target = After(AdminRule::SaveTarget, fill);
  EXPECT_EQ(-1, target.SaveAction_Override);
  EXPECT_EQ(99, target.UpdateType_Override);
  const AdminSettings ranges = After(AdminRule::Ranges, fill);
  EXPECT_EQ(24, ranges.SaveAction_Override);
  EXPECT_EQ(-1, ranges.UpdateType_Override);
  EXPECT_EQ(1, ranges.ZUGFeRD_Override);
  for (const AdminRule rule : {AdminRule::InvoiceFile, AdminRule::InvoiceFileAgain}) {
    const AdminSettings record = After(rule, fill);
    EXPECT_EQ(-1, record.ZUGFeRD_Override);
    EXPECT_EQ(24, record.SaveAction_Override);
  }
  const AdminSettings deletion = After(AdminRule::InvoiceDeletion, fill);
  EXPECT_EQ(255, deletion.ZUGFeRDDeleteAfterEmbedding_Override);
  EXPECT_EQ(1, deletion.ZUGFeRD_Override);
  for (const AdminRule rule : {AdminRule::InvoiceContent, AdminRule::InvoiceMethod}) {
    const AdminSettings record = After(rule, fill);
    EXPECT_EQ(1, record.ZUGFeRD_Override);
    EXPECT_EQ(1, record.ZUGFeRDDeleteAfterEmbedding_Override);
  }
}

TEST(AdminValidation, ValidatingTwiceChangesNoMore) {
  for (int32_t method : {-1, 0, 1, 2, 255}) {
    AdminSettings record;
    record.SaveAction_Override = 0x158;
    record.ZUGFeRD_Override = 1;
    record.ZUGFeRDCreationMethod_Override = method;
    record.ZUGFeRDDeleteAfterEmbedding_Override = 1;
    ValidateAdminSettings(record);
    AdminSettings again = record;
    ValidateAdminSettings(again);
    EXPECT_EQ(record.SaveAction_Override, again.SaveAction_Override);
    EXPECT_EQ(record.ZUGFeRD_Override, again.ZUGFeRD_Override);
    EXPECT_EQ(record.ZUGFeRDCreationMethod_Override, again.ZUGFeRDCreationMethod_Override);
    EXPECT_EQ(record.ZUGFeRDDeleteAfterEmbedding_Override, again.ZUGFeRDDeleteAfterEmbedding_Override);
  }
}
