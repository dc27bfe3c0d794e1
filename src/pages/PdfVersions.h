// The PDF versions of the output: their rows, and the bands of versions by which pages decide what is open. No page
// compares with a version's number by itself.
#pragma once

#include "MessageIds.h"
#include "window/ValueTable.h"

// In the order of the list. The keywords are the names of the rows in the product's own files.
inline constexpr ValueRow kPdfVersions[] = {
    {MSG_FORMAT_VERSION_1_3, 13, "13"},         {MSG_FORMAT_VERSION_1_4, 14, "14"},
    {MSG_FORMAT_VERSION_1_5, 15, "15"},         {MSG_FORMAT_VERSION_1_6, 16, "16"},
    {MSG_FORMAT_VERSION_1_7, 17, "17"},         {MSG_FORMAT_VERSION_1_7_EL3, 18, "1.7EL3"},
    {MSG_FORMAT_VERSION_A_1A, 100, "PDF/A-1a"}, {MSG_FORMAT_VERSION_A_1B, 101, "PDF/A-1b"},
    {MSG_FORMAT_VERSION_A_2A, 102, "PDF/A-2a"}, {MSG_FORMAT_VERSION_A_2B, 103, "PDF/A-2b"},
    {MSG_FORMAT_VERSION_A_2U, 104, "PDF/A-2u"}, {MSG_FORMAT_VERSION_A_3A, 105, "PDF/A-3a"},
    {MSG_FORMAT_VERSION_A_3B, 106, "PDF/A-3b"}, {MSG_FORMAT_VERSION_A_3U, 107, "PDF/A-3u"},
    {MSG_FORMAT_VERSION_UA, 200, "PDF/UA"},     {},
};

// The row of a version; one that no row has falls to the first.
constexpr const ValueRow& PdfVersionRow(int version) { return kPdfVersions[RowOfValue(kPdfVersions, version)]; }

// What a ZUGFeRD invoice sets when the version does not allow it: PDF/A-3b.
constexpr int kZugferdPdfVersion = 106;

// --- Families ------------------------------------------------------------------------------------------------------

constexpr bool IsPdfA1(int version) { return version >= 100 && version <= 101; }
constexpr bool IsPdfA2(int version) { return version >= 102 && version <= 104; }
constexpr bool IsPdfA3(int version) { return version >= 105 && version <= 107; }
constexpr bool IsPdfA(int version) { return version >= 100 && version <= 107; }
constexpr bool IsPdfUA(int version) { return version == 200; }

// Neither PDF/A nor PDF/UA.
constexpr bool IsPlainPdf(int version) { return version < 100; }
// PDF/A and PDF/UA, with the numbers between them.
constexpr bool IsSpecialPdf(int version) { return version >= 100 && version <= 200; }

// --- What a version demands and forbids ----------------------------------------------------------------------------

// The document has to be tagged, which the RTF conversion alone can do.
constexpr bool RequiresTags(int version) {
  return version == 100 || version == 102 || version == 104 || version == 105 || version == 107 || version == 200;
}
constexpr bool RequiresEmbeddedFonts(int version) { return IsSpecialPdf(version); }
constexpr bool AllowsZugferd(int version) { return IsPdfA3(version); }
constexpr bool AllowsSecurity(int version) { return !IsPdfA(version); }
constexpr bool AllowsEditingPassword(int version) { return !IsPdfA1(version) && !IsPdfA2(version); }
constexpr bool AllowsAttachments(int version) { return !IsPdfA1(version) && !IsPdfA2(version); }
constexpr bool AllowsFormFields(int version) { return !IsPdfA(version); }
constexpr bool AllowsStationery(int version) { return !IsPdfUA(version); }
// Extracting for screen readers, filling in forms and assembling pages are no rights of PDF 1.3.
constexpr bool HasDetailedRights(int version) { return version != 13; }
