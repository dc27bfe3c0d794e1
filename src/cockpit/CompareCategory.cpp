#include "cockpit/CompareCategory.h"

#include <algorithm>

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"

namespace {

using Record = CCockpitSettings;

// How many of these fields of a group differ.
template <auto Group, auto... Fields>
int Count(const Record& baseline, const Record& current) {
  return ((baseline.*Group.*Fields != current.*Group.*Fields ? 1 : 0) + ...);
}

template <uint16_t Bit>
int CountBit(const Record& baseline, const Record& current) {
  return (baseline.action.startAction & Bit) != (current.action.startAction & Bit) ? 1 : 0;
}

// What the weight is a part of.
enum class Weighs { Items, Fields };
enum class SetsLineCount { WhenReported, Always };

// The weight is the number of what differs, divided by `whole`.
struct CategoryRow {
  double whole;
  SetsLineCount setsLineCount;
  Weighs weighs = Weighs::Items;
};

constexpr CategoryRow kCategories[kCockpitCategoryCount] = {
    {4.0, SetsLineCount::WhenReported, Weighs::Fields},  // 1: graphic
    {4.0, SetsLineCount::Always},                        // 2: paper
    {2.0, SetsLineCount::Always},                        // 3: appearance
    {1.0, SetsLineCount::WhenReported},                  // 4: fonts
    {2.0, SetsLineCount::Always},                        // 5: watermark and stationery
    {1.0, SetsLineCount::WhenReported},                  // 6: links
    {1.0, SetsLineCount::Always},                        // 7: attachments
    {1.0, SetsLineCount::WhenReported},                  // 8: bookmark
    {1.0, SetsLineCount::WhenReported},                  // 9: saving
    {2.0, SetsLineCount::Always},                        // 10: format
    {2.0, SetsLineCount::Always},                        // 11: action
    {1.0, SetsLineCount::WhenReported},                  // 12: mail
    {1.0, SetsLineCount::WhenReported},                  // 13: colour space
    {1.0, SetsLineCount::Always},                        // 14: ZUGFeRD
    {1.0, SetsLineCount::WhenReported},                  // 15: form fields
    {3.0, SetsLineCount::Always},                        // 16: form-field colours
    {3.0, SetsLineCount::Always},                        // 17: security
    {1.0, SetsLineCount::WhenReported},                  // 18: document info
};

// An item is reported when one of its fields differs.
struct ItemRow {
  int32_t category;
  uint32_t messageId;
  int (*countDifferences)(const Record& baseline, const Record& current);
};

using Graphic = GraphicCockpitValues;
using Paper = PaperCockpitValues;
using Appearance = AppearanceCockpitValues;
using Colors = FormFieldsColorCockpitValues;
using DocInfo = DocInfoCockpitValues;

// Not compared, on purpose: the border colours of text fields and dropdown lists, the last bit of the start action, the
// save format, and how a ZUGFeRD invoice is made.
constexpr ItemRow kItems[] = {
    {1, MSG_COCKPIT_PDF_SIZE,
     Count<&Record::graphic, &Graphic::resolution, &Graphic::compressMethod, &Graphic::jpegQuality,
           &Graphic::colorReduction>},
    {2, MSG_COCKPIT_PAGE_SIZE, Count<&Record::paper, &Paper::paperSize>},
    {2, MSG_COCKPIT_PAGE_ORIENTATION, Count<&Record::paper, &Paper::orientation>},
    {2, MSG_COCKPIT_SCALING, Count<&Record::paper, &Paper::scaleWidth, &Paper::scaleHeight, &Paper::scale>},
    {2, MSG_COCKPIT_MARGINS, Count<&Record::paper, &Paper::marginCenter, &Paper::border>},
    {3, MSG_COCKPIT_PDF_OPENING,
     Count<&Record::appearance, &Appearance::openLayout, &Appearance::openSize, &Appearance::openPageIndex>},
    {3, MSG_COCKPIT_READER_OPENING,
     Count<&Record::appearance, &Appearance::openMode, &Appearance::nonFullScreenPageMode, &Appearance::direction,
           &Appearance::hideToolbar, &Appearance::hideMenubar, &Appearance::centerWindow, &Appearance::fitWindow,
           &Appearance::displayDocTitle, &Appearance::hideWindowUI>},
    {4, MSG_COCKPIT_FONT_EMBEDDING, Count<&Record::fonts, &FontsCockpitValues::fontsEmbedded>},
    {5, MSG_COCKPIT_WATERMARK, Count<&Record::watermark, &WatermarkCockpitValues::watermarkEnabled>},
    {5, MSG_COCKPIT_STATIONERY, Count<&Record::watermark, &WatermarkCockpitValues::stationeryEnabled>},
    {6, MSG_COCKPIT_TEXT_LINKS, Count<&Record::links, &LinksCockpitValues::useHyperlinkRecognition>},
    {7, MSG_COCKPIT_FILE_ATTACHMENT, Count<&Record::attachments, &AttachmentsCockpitValues::embedFilenamesEnabled>},
    {8, MSG_COCKPIT_BOOKMARKS, Count<&Record::bookmark, &BookmarkCockpitValues::outlineStylesEnabled>},
    {9, MSG_COCKPIT_SAVING_ACTION,
     Count<&Record::saving, &SavingCockpitValues::saveAction, &SavingCockpitValues::fileExistsAction>},
    {10, MSG_COCKPIT_PDF_FORMAT, Count<&Record::format, &FormatCockpitValues::pdfVersion>},
    {10, MSG_COCKPIT_CONVERSION_ENGINE, Count<&Record::format, &FormatCockpitValues::saveConversion>},
    {11, MSG_COCKPIT_DEFAULT_READER, CountBit<kStartViewer>},
    {11, MSG_COCKPIT_ADDITIONAL_PROGRAM, CountBit<kStartProgram>},
    {12, MSG_COCKPIT_MAIL, CountBit<kSendByMail>},
    {13, MSG_COCKPIT_COLORSPACE, Count<&Record::colors, &ColorsCockpitValues::colorspace>},
    {14, MSG_COCKPIT_ZUGFERD, Count<&Record::zugferd, &ZugferdCockpitValues::zugferd>},
    {15, MSG_COCKPIT_FORM_FIELDS, Count<&Record::formFields, &FormFieldsCockpitValues::showFormfields>},
    {16, MSG_COCKPIT_TEXT_BOXES,
     Count<&Record::formFieldsColor, &Colors::useTextfieldBorder, &Colors::useTextfieldBackColor,
           &Colors::textfieldBackColor>},
    {16, MSG_COCKPIT_CHECK_BOXES,
     Count<&Record::formFieldsColor, &Colors::useCheckboxBorder, &Colors::checkboxBorderColor,
           &Colors::useCheckboxBackColor, &Colors::checkboxBackColor>},
    {16, MSG_COCKPIT_DROPDOWN_ELEMENTS,
     Count<&Record::formFieldsColor, &Colors::useDropdownBorder, &Colors::useDropdownBackColor,
           &Colors::dropdownBackColor>},
    {17, MSG_COCKPIT_SECURITY_PASSWORD, Count<&Record::security, &SecurityCockpitValues::ownerPasswordEnabled>},
    {17, MSG_COCKPIT_OPEN_PASSWORD, Count<&Record::security, &SecurityCockpitValues::userPasswordEnabled>},
    {17, MSG_COCKPIT_EDIT_PASSWORD, Count<&Record::security, &SecurityCockpitValues::enhancedPdfPassword>},
    {18, MSG_COCKPIT_DOCUMENT_INFORMATION,
     Count<&Record::docInfo, &DocInfo::title, &DocInfo::author, &DocInfo::subject, &DocInfo::keywords>},
};

constexpr wchar_t kDash[] = L"- ";
constexpr int32_t kDashLength = 2;

void ReportItem(const CUString& text, bool isFirst, CUString& label, CUString& detail) {
  if (!isFirst) {
    label += L", ";
    detail += L"\n";
  }
  label += text;
  detail += kDash;
  detail += text;
}

}  // namespace

double CompareCategory(const CCockpitSettings& baseline, const CCockpitSettings& current, int32_t category,
                       CUString& label, CUString& detail, int32_t& lineCount, int32_t& width) {
  width = 0;
  if (category < 1 || category > kCockpitCategoryCount) return 0.0;

  int items = 0, fields = 0;
  for (const ItemRow& item : kItems) {
    if (item.category != category) continue;
    const int differences = item.countDifferences(baseline, current);
    if (differences == 0) continue;
    const CUString text = MessageText(item.messageId);
    ReportItem(text, items == 0, label, detail);
    width = std::max(width, text.Length() + kDashLength);
    ++items;
    fields += differences;
  }
  const CategoryRow& row = kCategories[category - 1];
  if (items > 0 || row.setsLineCount == SetsLineCount::Always) lineCount = items;
  return (row.weighs == Weighs::Fields ? fields : items) / row.whole;
}
