// The PDF versions: their rows, and the bands that decide what is open on the pages.
#include "pages/PdfVersions.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(PdfVersions, RowsStandInTheOrderOfTheList) {
  const struct {
    uint32_t messageId;
    int version;
    const char* keyword;
  } rows[] = {{0x400108F2, 13, "13"},        {0x400108F3, 14, "14"},        {0x400108F4, 15, "15"},
              {0x400108F5, 16, "16"},        {0x400108F6, 17, "17"},        {0x400108F7, 18, "1.7EL3"},
              {0x4001092E, 100, "PDF/A-1a"}, {0x4001092F, 101, "PDF/A-1b"}, {0x40010930, 102, "PDF/A-2a"},
              {0x40010931, 103, "PDF/A-2b"}, {0x40010932, 104, "PDF/A-2u"}, {0x40010933, 105, "PDF/A-3a"},
              {0x40010934, 106, "PDF/A-3b"}, {0x40010935, 107, "PDF/A-3u"}, {0x40010936, 200, "PDF/UA"}};
  ASSERT_EQ(std::size(rows), static_cast<size_t>(RowCount(kPdfVersions)));
  for (size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(rows[i].messageId, kPdfVersions[i].messageId) << i;
    EXPECT_EQ(rows[i].version, kPdfVersions[i].value) << i;
    EXPECT_STREQ(rows[i].keyword, kPdfVersions[i].keyword) << i;
  }
}

TEST(PdfVersions, AnUnknownVersionFallsToTheFirstRow) {
  EXPECT_EQ(200, PdfVersionRow(200).value);
  EXPECT_EQ(106, PdfVersionRow(106).value);
  for (const int unknown : {-1, 0, 12, 19, 99, 108, 199, 201, 0xFFFF}) EXPECT_EQ(13, PdfVersionRow(unknown).value);
}

// The versions of the table and their neighbours.
constexpr int kProbes[] = {-1,  0,   12,  13,  14,  15,  16,  17,  18,  19,  99,  100, 101,
                           102, 103, 104, 105, 106, 107, 108, 150, 199, 200, 201, 255, 0xFFFF};

struct Band {
  const char* name;
  bool (*holds)(int);
  std::set<int> versions;  // of the probes
};

std::set<int> Without(std::set<int> some) {
  std::set<int> all(std::begin(kProbes), std::end(kProbes));
  for (const int version : some) all.erase(version);
  return all;
}

TEST(PdfVersions, BandsEndWhereTheyShould) {
  const std::set<int> a1And2 = {100, 101, 102, 103, 104};
  const std::set<int> a = {100, 101, 102, 103, 104, 105, 106, 107};
  const std::set<int> special = {100, 101, 102, 103, 104, 105, 106, 107, 108, 150, 199, 200};
  const Band bands[] = {
      {"PDF/A-1", IsPdfA1, {100, 101}},
      {"PDF/A-2", IsPdfA2, {102, 103, 104}},
      {"PDF/A-3", IsPdfA3, {105, 106, 107}},
      {"PDF/A", IsPdfA, a},
      {"PDF/UA", IsPdfUA, {200}},
      {"plain", IsPlainPdf, {-1, 0, 12, 13, 14, 15, 16, 17, 18, 19, 99}},
      {"special", IsSpecialPdf, special},
      {"tagged", RequiresTags, {100, 102, 104, 105, 107, 200}},
      {"fonts embedded", RequiresEmbeddedFonts, special},
      {"invoice", AllowsZugferd, {105, 106, 107}},
      {"security", AllowsSecurity, Without(a)},
      {"password for editing", AllowsEditingPassword, Without(a1And2)},
      {"attachments", AllowsAttachments, Without(a1And2)},
      {"form fields", AllowsFormFields, Without(a)},
      {"stationery", AllowsStationery, Without({200})},
      {"detailed rights", HasDetailedRights, Without({13})},
  };
  for (const Band& band : bands)
    for (const int version : kProbes)
      EXPECT_EQ(band.versions.contains(version), band.holds(version)) << band.name << ' ' << version;
}

TEST(PdfVersions, TheVersionOfAnInvoiceAllowsOneAndHasARow) {
  EXPECT_TRUE(AllowsZugferd(kZugferdPdfVersion));
  EXPECT_STREQ("PDF/A-3b", PdfVersionRow(kZugferdPdfVersion).keyword);
}

}  // namespace
