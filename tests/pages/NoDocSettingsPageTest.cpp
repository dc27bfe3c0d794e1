// The placeholder of the document tab. What it shows and where its link leads is tested with the sheet's help.
#include <gtest/gtest.h>

#include "MessageIds.h"
#include "pages/CNemUINoDocSettingsPage.h"
#include "resources/ResourceIds.h"
#include "support/FakeSheet.h"
#include "support/PrintText.h"

namespace {

// Stands in for the saving page.
constexpr PageDescription kDescription{IDD_SAVING_PAGE, 0, MSG_PAGE_SAVING, 103, 255, 256};

class NoDocSettingsPage : public testing::Test {
 protected:
  LanguageScope english_{kEnglish};
  FakeSheet sheet_;
  PageParent parent_;
  CNemUINoDocSettingsPage page_{&sheet_, kDescription, 1};
};

TEST_F(NoDocSettingsPage, IsThePageItStandsForWithATemplateOfItsOwn) {
  EXPECT_EQ(103, page_.GetPageId());
  EXPECT_EQ(L"Saving", page_.Title());
  EXPECT_EQ(191u, page_.Description().templateId);
  EXPECT_EQ(255u, page_.Description().imageId);
  EXPECT_EQ(256u, page_.Description().maskId);
}

TEST_F(NoDocSettingsPage, ExchangeTellsWhetherThereIsASheet) {
  CNemUINoDocSettingsPage alone(nullptr, kDescription, 1);
  for (const bool save : {false, true}) {
    EXPECT_TRUE(page_.UpdateDataSuper(save));
    EXPECT_FALSE(alone.UpdateDataSuper(save));
  }
}

TEST_F(NoDocSettingsPage, WithoutASheetItDoesNotStart) {
  CNemUINoDocSettingsPage alone(nullptr, kDescription, 1);
  EXPECT_FALSE(alone.Create(parent_.Window()));
  EXPECT_TRUE(page_.Create(parent_.Window()));
}

}  // namespace
