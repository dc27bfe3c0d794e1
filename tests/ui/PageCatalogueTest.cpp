// The table of all pages: what each of them is, and on which tab it stands.
#include "ui/PageCatalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <tuple>
#include <typeinfo>

#include "support/FakeSheet.h"
#include "support/PrintText.h"

namespace {

enum class On { Both, BasicWithPlaceholder, BasicOnly };

struct Expected {
  std::string_view className;
  uint32_t templateId;
  const wchar_t* caption;
  int pageId;
  uint32_t imageId, maskId;
  On on;
};

// In the order of construction.
constexpr Expected kExpected[] = {
    {"CNemUIPaperPage", 144, L"Page", 100, 263, 264, On::Both},
    {"CNemUIPdfGraphicPage", 141, L"Graphical Optimization", 108, 251, 252, On::Both},
    {"CNemUIPdfAppearancePage", 142, L"Display", 109, 235, 236, On::Both},
    {"CNemUIWatermarkPage", 139, L"Watermark", 101, 233, 234, On::Both},
    {"CNemUIColorsPage", 196, L"Colorspace", 111, 239, 240, On::Both},
    {"CNemUILinksPage", 190, L"Links", 113, 261, 262, On::Both},
    {"CNemUIAttachmentsPage", 342, L"Attachments", 114, 343, 344, On::Both},
    {"CNemUIZugferdPage", 350, L"ZUGFeRD invoice", 112, 245, 246, On::Both},
    {"CNemUIPdfFontsPage", 138, L"Fonts", 110, 269, 271, On::Both},
    {"CNemUIPdfSecurityPage", 140, L"PDF-Security", 117, 267, 268, On::Both},
    {"CNemUIFormFieldsPage", 181, L"Fields", 115, 245, 246, On::Both},
    {"CNemUIFormFieldsColorPage", 183, L"Color settings", 116, 239, 240, On::Both},
    {"CNemUIFormatPage", 192, L"Output format", 118, 284, 285, On::Both},
    {"CNemUIBookmarkPage", 194, L"Bookmark", 119, 286, 287, On::Both},
    {"CNemUICockpitPage", 1365, L"Cockpit", 120, 321, 322, On::Both},
    {"CNemUIDocInfoPage", 147, L"Document Info", 105, 241, 242, On::Both},
    {"CNemUIActionPage", 143, L"Actions", 102, 237, 238, On::BasicWithPlaceholder},
    {"CNemUIMailPage", 189, L"E-Mail", 104, 243, 244, On::BasicWithPlaceholder},
    {"CNemUIProgramPage", 145, L"Saving", 103, 255, 256, On::BasicWithPlaceholder},
    {"CNemUIInfoPage", 146, L"Info", 106, 257, 258, On::BasicWithPlaceholder},
    {"CNemUILangPage", 1366, L"Language selection", 107, 319, 318, On::BasicOnly},
    {"CNemUIUpdatePage", 1367, L"Update", 121, 328, 330, On::BasicOnly},
    {"CNemUIStatisticsPage", 347, L"Statistics", 123, 257, 258, On::BasicOnly},
};

constexpr std::string_view kPlaceholder = "CNemUINoDocSettingsPage";
constexpr uint32_t kPlaceholderTemplate = 191;

const Expected* Find(int pageId) {
  const auto found = std::ranges::find(kExpected, pageId, &Expected::pageId);
  return found == std::end(kExpected) ? nullptr : found;
}

// The compiler's name of a class ends in the class's own, which its length precedes.
bool IsOfClass(const CNemUIPage& page, std::string_view className) {
  return std::string_view(typeid(page).name()).ends_with(std::to_string(className.size()) + std::string(className));
}

class PageCatalogueTest : public testing::Test {
 protected:
  void ExpectPage(PageFactory create, const PageCatalogueRow& row, int settingsIndex, std::string_view className,
                  uint32_t templateId) {
    const Expected& expected = *Find(row.description.pageId);
    const auto page = create(&sheet_, row.description, settingsIndex);
    EXPECT_TRUE(IsOfClass(*page, className)) << typeid(*page).name() << " is no " << className;
    EXPECT_EQ(expected.pageId, page->GetPageId());
    EXPECT_EQ(expected.caption, page->Title());
    const PageDescription& description = page->Description();
    EXPECT_EQ(std::tuple(templateId, 0u, expected.imageId, expected.maskId),
              std::tuple(description.templateId, description.iconId, description.imageId, description.maskId));
  }

  LanguageScope english_{kEnglish};
  FakeSheet sheet_;
};

TEST_F(PageCatalogueTest, PagesStandInTheOrderOfConstruction) {
  EXPECT_EQ(std::size(kExpected), AllPages().size());
  const Expected* last = nullptr;
  for (const PageCatalogueRow& row : AllPages()) {
    const Expected* expected = Find(row.description.pageId);
    ASSERT_NE(nullptr, expected) << row.description.pageId;
    EXPECT_TRUE(!last || last < expected) << row.description.pageId;
    last = expected;
  }
}

TEST_F(PageCatalogueTest, PagesOfTheBasicSettingsAreWhatTheirRowsSay) {
  for (const PageCatalogueRow& row : AllPages()) {
    SCOPED_TRACE(row.description.pageId);
    const Expected& expected = *Find(row.description.pageId);
    EXPECT_EQ(std::tuple(expected.templateId, 0u, expected.imageId, expected.maskId),
              std::tuple(row.description.templateId, row.description.iconId, row.description.imageId,
                         row.description.maskId));
    ASSERT_TRUE(row.onBasicSettings);
    ExpectPage(row.onBasicSettings, row, 0, expected.className, expected.templateId);
  }
}

TEST_F(PageCatalogueTest, DocumentTabHasThePageOrAPlaceholderOrNothing) {
  for (const PageCatalogueRow& row : AllPages()) {
    SCOPED_TRACE(row.description.pageId);
    const Expected& expected = *Find(row.description.pageId);
    ASSERT_EQ(expected.on != On::BasicOnly, row.onDocumentProperties != nullptr);
    if (expected.on == On::Both)
      ExpectPage(row.onDocumentProperties, row, 1, expected.className, expected.templateId);
    else if (expected.on == On::BasicWithPlaceholder)
      ExpectPage(row.onDocumentProperties, row, 1, kPlaceholder, kPlaceholderTemplate);
  }
}

TEST_F(PageCatalogueTest, AllPlaceholdersAreThere) {
  for (const Expected& expected : kExpected) {
    if (expected.on != On::BasicWithPlaceholder) continue;
    EXPECT_TRUE(std::ranges::any_of(AllPages(), [&](const PageCatalogueRow& row) {
      return row.description.pageId == expected.pageId && row.onDocumentProperties;
    })) << expected.pageId;
  }
}

}  // namespace
