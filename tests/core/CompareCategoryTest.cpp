// The cockpit's record, field by field, and the comparison of two of them.
#include "cockpit/CompareCategory.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "cockpit/SquareColor.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "support/CockpitFields.h"
#include "support/TestMessages.h"

namespace {

using cockpit_test::Field;
using cockpit_test::kFields;

constexpr int32_t kUntouched = -7;  // what an out value holds that nobody has set

struct Result {
  double weight;
  CUString label, detail;
  int32_t lineCount = kUntouched;
  int32_t width = kUntouched;
};

class CompareCategoryTest : public testing::Test {
 protected:
  CompareCategoryTest() { SetModuleInstance(messages_.Module()); }
  ~CompareCategoryTest() override { SetModuleInstance(previousModule_); }

  Result Compare(int32_t category) const {
    Result result;
    result.weight =
        CompareCategory(baseline, current, category, result.label, result.detail, result.lineCount, result.width);
    return result;
  }
  std::set<int> MarkedCategories() const {
    std::set<int> marked;
    for (int category = 1; category <= kCockpitCategoryCount; ++category)
      if (Compare(category).weight > kLeastWeight) marked.insert(category);
    return marked;
  }

  CCockpitSettings baseline{true};
  CCockpitSettings current{true};

 private:
  void* const previousModule_ = ModuleInstance();
  const TestMessages messages_{
      {MSG_COCKPIT_PDF_SIZE, kEnglish, L"PDF size%0"},
      {MSG_COCKPIT_PAGE_SIZE, kEnglish, L"Page size%0"},
      {MSG_COCKPIT_PAGE_ORIENTATION, kEnglish, L"Page orientationa%0"},
      {MSG_COCKPIT_SCALING, kEnglish, L"Scaling%0"},
      {MSG_COCKPIT_MARGINS, kEnglish, L"Margins%0"},
      {MSG_COCKPIT_PDF_OPENING, kEnglish, L"PDF opening appearance%0"},
      {MSG_COCKPIT_READER_OPENING, kEnglish, L"Reader opening appearance%0"},
      {MSG_COCKPIT_FONT_EMBEDDING, kEnglish, L"Fontembedding%0"},
      {MSG_COCKPIT_WATERMARK, kEnglish, L"Watermark%0"},
      {MSG_COCKPIT_STATIONERY, kEnglish, L"Stationary%0"},
      {MSG_COCKPIT_TEXT_LINKS, kEnglish, L"Textlink recognition%0"},
      {MSG_COCKPIT_FILE_ATTACHMENT, kEnglish, L"File attachment%0"},
      {MSG_COCKPIT_BOOKMARKS, kEnglish, L"Bookmarks%0"},
      {MSG_COCKPIT_SAVING_ACTION, kEnglish, L"Saving action%0"},
      {MSG_COCKPIT_PDF_FORMAT, kEnglish, L"PDF format%0"},
      {MSG_COCKPIT_CONVERSION_ENGINE, kEnglish, L"Conversion engine%0"},
      {MSG_COCKPIT_DEFAULT_READER, kEnglish, L"Default PDF reader%0"},
      {MSG_COCKPIT_ADDITIONAL_PROGRAM, kEnglish, L"Additonal program%0"},
      {MSG_COCKPIT_MAIL, kEnglish, L"E-Mail%0"},
      {MSG_COCKPIT_COLORSPACE, kEnglish, L"Colorspace%0"},
      {MSG_COCKPIT_ZUGFERD, kEnglish, L"ZUGFeRD%0"},
      {MSG_COCKPIT_FORM_FIELDS, kEnglish, L"Form fields%0"},
      {MSG_COCKPIT_TEXT_BOXES, kEnglish, L"Textboxes%0"},
      {MSG_COCKPIT_CHECK_BOXES, kEnglish, L"Checkboxes%0"},
      {MSG_COCKPIT_DROPDOWN_ELEMENTS, kEnglish, L"Dropdown elements%0"},
      {MSG_COCKPIT_SECURITY_PASSWORD, kEnglish, L"Password for changing PDF Security%0"},
      {MSG_COCKPIT_OPEN_PASSWORD, kEnglish, L"Password for opening PDF%0"},
      {MSG_COCKPIT_EDIT_PASSWORD, kEnglish, L"Password options for editing e.pdf%0"},
      {MSG_COCKPIT_DOCUMENT_INFORMATION, kEnglish, L"Document informations%0"},
  };
};

// --- The record -----------------------------------------------------------------------------------------------------

TEST_F(CompareCategoryTest, TheTableOfTheTestHoldsAllFields) {
  ASSERT_EQ(61u, std::size(kFields));
  for (size_t i = 0; i < std::size(kFields); ++i) EXPECT_EQ(static_cast<int>(i) + 1, kFields[i].number);
}

TEST_F(CompareCategoryTest, FieldsStandInTheOrderOfTheirNumbers) {
  for (size_t i = 1; i < std::size(kFields); ++i)
    EXPECT_LT(kFields[i - 1].addressIn(current), kFields[i].addressIn(current)) << kFields[i].name;
}

TEST_F(CompareCategoryTest, ARecordIsBuiltInItsFactoryState) {
  for (const Field& field : kFields)
    if (field.hasDefault) {
      EXPECT_EQ(field.defaultText, field.read(current)) << field.name;
    }
}

TEST_F(CompareCategoryTest, TheDefaultPaperIsA4OrLetter) {
  EXPECT_EQ(9, CCockpitSettings(true).paper.paperSize);
  CCockpitSettings letter(false);
  EXPECT_EQ(1, letter.paper.paperSize);
  letter.paper.paperSize = 8;
  letter.ResetToDefaults();
  EXPECT_EQ(1, letter.paper.paperSize);
}

TEST_F(CompareCategoryTest, AResetBringsEveryFieldBackButTwoBorderColors) {
  for (const Field& field : kFields) {
    CCockpitSettings changed(true);
    field.change(changed);
    const std::wstring before = field.read(changed);
    ASSERT_NE(before, field.read(current)) << field.name;
    changed.ResetToDefaults();
    EXPECT_EQ(field.hasDefault ? field.defaultText : before, field.read(changed)) << field.name;
    EXPECT_EQ(field.hasDefault, field.number != 44 && field.number != 52) << field.name;
  }
}

// --- The comparison -------------------------------------------------------------------------------------------------

TEST_F(CompareCategoryTest, NewRecordsDifferInNothing) {
  for (const uint32_t color : {0u, 0xFF000000u, 0x123456u}) {
    baseline.formFieldsColor.textfieldBorderColor = color;
    current.formFieldsColor.dropdownBorderColor = color;
    for (int category = 1; category <= kCockpitCategoryCount; ++category) {
      const Result result = Compare(category);
      EXPECT_EQ(0.0, result.weight) << category;
      EXPECT_TRUE(result.label.IsEmpty() && result.detail.IsEmpty()) << category;
      EXPECT_EQ(0, result.width) << category;
    }
  }
}

// The gaps are 30 to 33, 38, 44 and 52, and bit 8 of field 40.
TEST_F(CompareCategoryTest, EachFieldMarksItsCategoryOrNone) {
  for (const Field& field : kFields) {
    current = CCockpitSettings(true);
    field.change(current);
    EXPECT_EQ(field.category == 0 ? std::set<int>{} : std::set<int>{field.category}, MarkedCategories()) << field.name;
    if (field.category == 0) continue;
    const Result result = Compare(field.category);
    EXPECT_EQ(result.label, field.item) << field.name;
    EXPECT_EQ(result.detail, CUString(L"- ") + field.item) << field.name;
    EXPECT_EQ(1, result.lineCount) << field.name;
    EXPECT_EQ(static_cast<int>(std::wstring_view(field.item).size()) + 2, result.width) << field.name;
    EXPECT_DOUBLE_EQ(field.weight, result.weight) << field.name;
  }
  std::set<int> gaps;
  for (const Field& field : kFields)
    if (field.category == 0) gaps.insert(field.number);
  EXPECT_EQ((std::set<int>{30, 31, 32, 33, 38, 44, 52}), gaps);
}

TEST_F(CompareCategoryTest, BothDirectionsDifferAlike) {
  for (const Field& field : kFields) {
    current = CCockpitSettings(true);
    field.change(current);
    const std::set<int> forward = MarkedCategories();
    std::swap(baseline, current);
    EXPECT_EQ(forward, MarkedCategories()) << field.name;
    std::swap(baseline, current);
  }
}

TEST_F(CompareCategoryTest, EachBitOfTheStartActionHasItsOwnPlace) {
  struct Case {
    uint16_t startAction;
    std::set<int> marked;
    const wchar_t* actions;
  };
  // The default is bit 1 alone.
  const Case cases[] = {
      {0, {11}, L"Default PDF reader"},
      {1 | 2, {12}, L""},
      {1 | 4, {11}, L"Additonal program"},
      {1 | 8, {}, L""},
      {4, {11}, L"Default PDF reader, Additonal program"},
      {2 | 4 | 8, {11, 12}, L"Default PDF reader, Additonal program"},
      {1 | 16, {}, L""},
  };
  for (const Case& test : cases) {
    current.action.startAction = test.startAction;
    EXPECT_EQ(test.marked, MarkedCategories()) << test.startAction;
    EXPECT_EQ(test.actions, std::wstring(Compare(11).label.Text())) << test.startAction;
  }
}

TEST_F(CompareCategoryTest, OtherCategoriesClearTheWidthAndTouchNothingElse) {
  for (const Field& field : kFields) field.change(current);
  for (const int32_t category : {0, 19, -1, INT32_MIN, INT32_MAX}) {
    CUString label(L"label"), detail(L"detail");
    int32_t lineCount = kUntouched, width = kUntouched;
    EXPECT_EQ(0.0, CompareCategory(baseline, current, category, label, detail, lineCount, width)) << category;
    EXPECT_EQ(0, width) << category;
    EXPECT_EQ(kUntouched, lineCount) << category;
    EXPECT_EQ(label, L"label");
    EXPECT_EQ(detail, L"detail");
  }
}

TEST_F(CompareCategoryTest, GraphicWeighsItsFieldsAndReportsOnce) {
  current.graphic.jpegQuality = 60;
  current.graphic.resolution = 300;
  Result result = Compare(1);
  EXPECT_EQ(0.5, result.weight);
  EXPECT_EQ(result.label, L"PDF size");
  EXPECT_EQ(result.detail, L"- PDF size");
  EXPECT_EQ(1, result.lineCount);
  EXPECT_EQ(10, result.width);
  current.graphic.compressMethod = 1;
  EXPECT_EQ(0.75, Compare(1).weight);
  current.graphic.colorReduction = 0;
  EXPECT_EQ(1.0, Compare(1).weight);
  EXPECT_EQ(1, Compare(1).lineCount);
}

TEST_F(CompareCategoryTest, PaperReportsEachItemOnALineOfItsOwn) {
  current.paper.paperSize = 8;
  current.paper.border = 1;
  Result result = Compare(2);
  EXPECT_EQ(0.5, result.weight);
  EXPECT_EQ(result.label, L"Page size, Margins");
  EXPECT_EQ(result.detail, L"- Page size\n- Margins");
  EXPECT_EQ(2, result.lineCount);
  EXPECT_EQ(11, result.width);
  current.paper.scale = current.paper.scaleWidth = current.paper.scaleHeight = 50;
  current.paper.orientation = 2;
  result = Compare(2);
  EXPECT_EQ(1.0, result.weight) << "the three scales are one item";
  EXPECT_EQ(result.label, L"Page size, Page orientationa, Scaling, Margins");
  EXPECT_EQ(4, result.lineCount);
  EXPECT_EQ(19, result.width) << "the longest line";
}

TEST_F(CompareCategoryTest, ItemsAreReportedInTheirOrder) {
  const std::pair<int, std::vector<const wchar_t*>> rows[] = {
      {2, {L"Page size", L"Page orientationa", L"Scaling", L"Margins"}},
      {3, {L"PDF opening appearance", L"Reader opening appearance"}},
      {5, {L"Watermark", L"Stationary"}},
      {10, {L"PDF format", L"Conversion engine"}},
      {11, {L"Default PDF reader", L"Additonal program"}},
      {16, {L"Textboxes", L"Checkboxes", L"Dropdown elements"}},
      {17, {L"Password for changing PDF Security", L"Password for opening PDF", L"Password options for editing e.pdf"}},
  };
  for (const Field& field : kFields) field.change(current);
  current.action.startAction = 4;
  for (const auto& [category, items] : rows) {
    std::wstring label, detail;
    for (const wchar_t* item : items) {
      label += (label.empty() ? L"" : L", ") + std::wstring(item);
      detail += (detail.empty() ? L"- " : L"\n- ") + std::wstring(item);
    }
    const Result result = Compare(category);
    EXPECT_EQ(label, std::wstring(result.label.Text())) << category;
    EXPECT_EQ(detail, std::wstring(result.detail.Text())) << category;
  }
}

TEST_F(CompareCategoryTest, ThirdsAreExact) {
  current.security = {1, 1, 0};
  EXPECT_EQ(2 / 3.0, Compare(17).weight);
  current.security = {1, 1, 1};
  EXPECT_EQ(1.0, Compare(17).weight);
  EXPECT_EQ(Compare(17).label,
            L"Password for changing PDF Security, Password for opening PDF, Password options for editing e.pdf");
  EXPECT_EQ(3, Compare(17).lineCount);
  EXPECT_EQ(36, Compare(17).width);
}

TEST_F(CompareCategoryTest, OnlyTheBorderColorOfCheckBoxesCounts) {
  current.formFieldsColor.textfieldBorderColor = 0xFF;
  current.formFieldsColor.dropdownBorderColor = 0xFF;
  EXPECT_EQ(0.0, Compare(16).weight);
  current.formFieldsColor.checkboxBorderColor = 0xFF;
  EXPECT_EQ(1 / 3.0, Compare(16).weight);
  EXPECT_EQ(Compare(16).label, L"Checkboxes");
}

TEST_F(CompareCategoryTest, TextsAreComparedByCharacter) {
  baseline.docInfo.title = L"Invoice";
  current.docInfo.title = L"invoice";
  EXPECT_EQ((std::set<int>{18}), MarkedCategories());
  current.docInfo.title = L"Invoice";
  EXPECT_TRUE(MarkedCategories().empty());
  baseline.docInfo.title = CUString();
  current.docInfo.title = L"x";
  current.docInfo.title.Assign(L"");  // empty, with a buffer
  EXPECT_TRUE(MarkedCategories().empty());
}

TEST_F(CompareCategoryTest, CategoriesOfOneItemLeaveTheLineCountWhereNothingDiffers) {
  const std::set<int> leave = {1, 4, 6, 8, 9, 12, 13, 15, 18};
  for (int category = 1; category <= kCockpitCategoryCount; ++category)
    EXPECT_EQ(leave.contains(category) ? kUntouched : 0, Compare(category).lineCount) << category;
}

TEST_F(CompareCategoryTest, WithAllChangedEachCategoryHasItsFullWeight) {
  for (const Field& field : kFields) field.change(current);
  current.action.startAction = 2 | 4;  // the three bits that count
  for (int category = 1; category <= kCockpitCategoryCount; ++category)
    EXPECT_EQ(1.0, Compare(category).weight) << category;
}

// --- The colour of a weight -----------------------------------------------------------------------------------------

TEST(SquareColor, TurnsFromWhiteToBlue) {
  EXPECT_EQ(0xFF0000u, SquareColor(1.0));
  EXPECT_EQ(0xFF7F7Fu, SquareColor(0.5));
  EXPECT_EQ(0xFFBFBFu, SquareColor(0.25));
  EXPECT_EQ(0xFFAAAAu, SquareColor(1 / 3.0));
}

TEST(SquareColor, IsNoneOutsideOfItsInterval) {
  for (const double weight : {0.0, -1.0, kLeastWeight, 1.0 + kLeastWeight, 2.0})
    EXPECT_EQ(kNoFillColor, SquareColor(weight)) << weight;
  EXPECT_EQ(0xFFFEFEu, SquareColor(2 * kLeastWeight)) << "a little below 255, which is cut";
}

}  // namespace
