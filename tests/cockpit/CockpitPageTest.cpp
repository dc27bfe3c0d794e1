// What the cockpit shows, where it leads, and how it restores the factory state.
#include "CockpitTest.h"

#include <new>

#include "pages/CNemUIPdfGraphicPage.h"
#include "sheet/CNemUIGlobalSettingsPage.h"
#include "support/CockpitFields.h"
#include "support/FailingMalloc.h"

namespace cockpit_test {
namespace {

constexpr COLORREF kPureBlue = 0x00FF0000;

std::vector<std::string> Expected(const char* what, std::initializer_list<int> pages) {
  std::vector<std::string> log;
  for (const int page : pages) log.push_back(what + (' ' + std::to_string(page)));
  return log;
}

const std::initializer_list<int> kWalk = {108, 100, 109, 110, 101, 113, 114, 112, 119,
                                          103, 118, 102, 104, 111, 115, 116, 117, 105};

// --- Start ----------------------------------------------------------------------------------------------------------

TEST_F(CockpitTest, LinksHaveTheirCaptions) {
  Open();
  for (const Row& row : kRows) EXPECT_EQ(row.caption, Control(row.linkId).Text());
  EXPECT_EQ(L"Restore defaults", Control(1444).Text());
}

TEST_F(CockpitTest, RowsStandInTheirGroupsOneBelowTheOther) {
  Open();
  LONG bottom = 0;
  for (int category = 1; category <= kCockpitCategoryCount; ++category) {
    const RECT group = Item(kRows[category - 1].groupId).RectIn(page_);
    RECT previous{0, 0, 0, 0};
    for (const int id : {SquareId(category), LinkId(category), TextId(category)}) {
      const RECT place = Item(id).RectIn(page_);
      EXPECT_GE(place.left, previous.right) << id;
      EXPECT_GE(place.top, bottom) << id;
      EXPECT_TRUE(group.left < place.left && place.right < group.right && group.top < place.top &&
                  place.bottom < group.bottom)
          << id;
      previous = place;
    }
    bottom = previous.bottom;
  }
}

TEST_F(CockpitTest, HasItsHelpId) {
  Open();
  EXPECT_EQ(1365u, GetWindowContextHelpId(page_.Handle()));
}

TEST_F(CockpitTest, ALoadingExchangeReadsAllPagesInTheirOrder) {
  Open();
  EXPECT_EQ(Expected("get", kWalk), settings_.log);
  settings_.log.clear();
  page_.OnSetActive();  // the first showing, which follows the start
  EXPECT_TRUE(settings_.log.empty());
  page_.OnSetActive();
  EXPECT_EQ(Expected("get", kWalk), settings_.log);
}

// --- Marks and texts ------------------------------------------------------------------------------------------------

TEST_F(CockpitTest, AtTheDefaultsEverySquareAndTextIsEmpty) {
  Open();
  EXPECT_EQ((std::set<int>{}), MarkedRows());
  for (int category = 1; category <= kCockpitCategoryCount; ++category) EXPECT_EQ(L"", RowText(category));
}

TEST_F(CockpitTest, EachFieldMarksItsRowOrNone) {
  Open();
  const CCockpitSettings defaults = settings_.values;
  for (const Field& field : kFields) {
    settings_.values = defaults;
    field.change(settings_.values);
    Refresh();
    EXPECT_EQ(field.category == 0 ? std::set<int>{} : std::set<int>{field.category}, MarkedRows()) << field.name;
    for (int category = 1; category <= kCockpitCategoryCount; ++category)
      EXPECT_EQ(category == field.category ? L"(" + std::wstring(field.item) + L")" : L"", RowText(category))
          << field.name;
  }
}

TEST_F(CockpitTest, BitEightOfTheStartActionMarksNothing) {
  Open();
  settings_.values.action.startAction = 1 | 8;
  Refresh();
  EXPECT_EQ((std::set<int>{}), MarkedRows());
}

TEST_F(CockpitTest, OneChangeMarksARowAsMuchAsAll) {
  settings_.values.graphic.jpegQuality = 60;
  Open();
  EXPECT_EQ(kPureBlue, Square(1).FillColor());
  settings_.values.graphic = {1, 2, 3, 0};
  Refresh();
  EXPECT_EQ(kPureBlue, Square(1).FillColor());
  EXPECT_EQ(L"(PDF size)", RowText(1));
}

TEST_F(CockpitTest, AllRowsCanBeMarked) {
  ChangeAll();
  Open();
  EXPECT_EQ(18u, MarkedRows().size());
  EXPECT_EQ(L"(Page size, Page orientationa, Scaling, Margins)", RowText(2));
  EXPECT_EQ(L"(PDF opening appearance, Reader opening appearance)", RowText(3));
  EXPECT_EQ(L"(Watermark, Stationary)", RowText(5));
  EXPECT_EQ(L"(PDF format, Conversion engine)", RowText(10));
  EXPECT_EQ(L"(Default PDF reader, Additonal program)", RowText(11));
  EXPECT_EQ(L"(E-Mail)", RowText(12));
  EXPECT_EQ(L"(Textboxes, Checkboxes, Dropdown elements)", RowText(16));
}

TEST_F(CockpitTest, ARowThatIsPutRightIsEmptiedAgain) {
  settings_.values.paper.paperSize = 8;
  Open();
  EXPECT_EQ((std::set<int>{2}), MarkedRows());
  settings_.values.ResetToDefaults();
  Refresh();
  EXPECT_EQ((std::set<int>{}), MarkedRows());
  EXPECT_EQ(L"", RowText(2));
  const POINT middle = MiddleOf(TextId(2));
  MoveMouse(middle.x, middle.y);
  EXPECT_EQ(nullptr, Note());
}

TEST_F(CockpitTest, APageThatIsMissingLeavesItsRowUnmarked) {
  ChangeAll();
  for (const int id : {108, 104}) sheet_.pages.erase(id);
  Open();
  std::set<int> expected;
  for (int category = 1; category <= kCockpitCategoryCount; ++category)
    if (category != 1 && category != 12) expected.insert(category);
  EXPECT_EQ(expected, MarkedRows());
}

// The document tab's placeholders stand under the numbers of pages.
TEST_F(CockpitTest, APageOfAnotherKindIsPassedOver) {
  ChangeAll();
  sheet_.pages[103] = pages_[0].get();
  Open();
  EXPECT_FALSE(MarkedRows().contains(9));
  EXPECT_TRUE(MarkedRows().contains(1));
}

// Refused at each place in turn: the first time that it is not, the comparison comes to its end.
TEST_F(CockpitTest, AComparisonWithoutMemoryThrowsAndGivesBackWhatItHad) {
  constexpr int kSecurity = 17;  // with three items
  CCockpitSettings baseline(true), current(true);
  current.security = {1, 1, 1};
  const auto compare = [&] {
    CUString label, detail;
    int32_t lines = 0, width = 0;
    return CompareCategory(baseline, current, kSecurity, label, detail, lines, width);
  };
  EXPECT_EQ(1.0, compare());  // what is allocated once in a process is there then
  int failures = 0;
  for (int granted = 0; failures == granted; ++granted) {
    int left = 0;
    double weight = -1;
    {
      const FailingMalloc exhausted(granted);
      try {
        weight = compare();
      } catch (const std::bad_alloc&) {
        ++failures;
      }
      left = exhausted.BlocksLeft();
    }
    EXPECT_EQ(failures > granted ? -1 : 1.0, weight) << granted;
    EXPECT_EQ(0, left) << granted;
  }
  EXPECT_LT(5, failures);
}

// --- Links and squares ----------------------------------------------------------------------------------------------

TEST_F(CockpitTest, SquaresAndLinksLeadToTheirPage) {
  Open();
  for (int category = 1; category <= kCockpitCategoryCount; ++category) {
    for (const int id : {SquareId(category), LinkId(category)}) {
      sheet_.activatedPage = 0;
      Control(id).Click();
      EXPECT_EQ(kRows[category - 1].pageId, sheet_.activatedPage) << id;
    }
  }
}

TEST_F(CockpitTest, ASquareIsFollowedByClicksAlone) {
  Open();
  for (const int code : {BN_DOUBLECLICKED, BN_SETFOCUS, BN_KILLFOCUS})
    page_.Send(WM_COMMAND, MAKEWPARAM(SquareId(1), code), reinterpret_cast<LPARAM>(Item(SquareId(1)).Handle()));
  EXPECT_EQ(0, sheet_.activatedPage);
}

TEST_F(CockpitTest, TheMessageOfALinkAnswersForLinksAlone) {
  Open();
  for (const Row& row : kRows) EXPECT_EQ(1, page_.Send(WM_USER + 101, static_cast<WPARAM>(row.linkId)));
  sheet_.activatedPage = 0;
  for (const int id : {0, 1411, 1428, 1444, 1453, 1455, 1469, 1471, SquareId(1), -1})
    EXPECT_EQ(0, page_.Send(WM_USER + 101, static_cast<WPARAM>(id))) << id;
  EXPECT_EQ(0, sheet_.activatedPage);
}

TEST_F(CockpitTest, ASquareWithoutALinkLeadsNowhere) {
  Open();
  CCockpitDiff loose;
  loose.Attach(page_, SquareId(3));
  Control(SquareId(3)).Click();
  EXPECT_EQ(0, sheet_.activatedPage);
}

// --- Restoring ------------------------------------------------------------------------------------------------------

TEST_F(CockpitRestore, NoChangesNothing) {
  ChangeAll();
  Open();
  settings_.log.clear();
  Restore(IDNO);
  EXPECT_TRUE(settings_.log.empty());
  EXPECT_EQ(18u, MarkedRows().size());
  ASSERT_TRUE(page_.UpdateDataSuper(true));
  EXPECT_TRUE(settings_.log.empty());
}

TEST_F(CockpitRestore, YesPutsAllPagesBackAndReadsThemAgain) {
  ChangeAll();
  Open();
  settings_.log.clear();
  Restore(IDYES);
  std::vector<std::string> expected = Expected("set", kWalk);
  for (const std::string& line : Expected("get", kWalk)) expected.push_back(line);
  EXPECT_EQ(expected, settings_.log);
  EXPECT_EQ((std::set<int>{}), MarkedRows());
  for (const Field& field : kFields)
    if (field.hasDefault && field.number != 5) {
      EXPECT_EQ(field.defaultText, field.read(settings_.values)) << field.name;
    }
  EXPECT_EQ(Settings::IsA4() ? 9 : 1, settings_.values.paper.paperSize);
}

// Bit 8 is tracked, though nothing compares it.
TEST_F(CockpitRestore, ActionAndMailPutBackTheirOwnBits) {
  settings_.values.action.startAction = 2 | 4 | 8;
  Open();
  settings_.fixed = {102};
  Restore(IDYES);
  EXPECT_EQ(4 | 8, settings_.values.action.startAction);
  EXPECT_EQ((std::set<int>{11}), MarkedRows());
}

TEST_F(CockpitRestore, WhatAnAdministratorHasFixedStaysMarked) {
  ChangeAll();
  settings_.fixed = {110, 105};
  Open();
  Restore(IDYES);
  EXPECT_EQ((std::set<int>{4, 18}), MarkedRows());
  EXPECT_EQ(L"(Fontembedding)", RowText(4));
}

TEST_F(CockpitRestore, PushesOnlyOnce) {
  Open();
  Restore(IDYES);
  settings_.log.clear();
  ASSERT_TRUE(page_.UpdateData(true));
  EXPECT_TRUE(settings_.log.empty());
}

TEST_F(CockpitRestore, BorderColorsWithoutADefaultStayAsThePageHasThem) {
  settings_.values.formFieldsColor.textfieldBorderColor = 0x123456;
  Open();
  Restore(IDYES);
  EXPECT_EQ(0x123456u, settings_.values.formFieldsColor.textfieldBorderColor);
}

TEST_F(CockpitRestore, ThenAllPagesButPaperAreWritten) {
  Open();
  settings_.log.clear();
  ASSERT_TRUE(page_.UpdateDataSuper(true));
  EXPECT_TRUE(settings_.log.empty()) << "nothing was restored";
  Restore(IDYES);
  settings_.log.clear();
  const auto expected =
      Expected("write", {108, 109, 110, 101, 113, 114, 119, 103, 118, 102, 104, 111, 112, 115, 116, 117, 105});
  for (int i = 0; i < 2; ++i) {
    ASSERT_TRUE(page_.UpdateDataSuper(true));
    EXPECT_EQ(expected, settings_.log);
    settings_.log.clear();
  }
}

TEST_F(CockpitRestore, MissingPagesAreSkippedInAllWalks) {
  Open();
  for (const int id : {108, 109, 118, 105}) sheet_.pages.erase(id);
  settings_.log.clear();
  Restore(IDYES);
  ASSERT_TRUE(page_.UpdateDataSuper(true));
  for (const std::string& line : settings_.log)
    for (const char* id : {"108", "109", "118", "105"}) EXPECT_FALSE(line.ends_with(id)) << line;
  EXPECT_EQ(14u + 14u + 13u, settings_.log.size());
}

TEST_F(CockpitRestore, PagesOfTheOtherTabAreNotWritten) {
  CNemUIGlobalSettingsPage ownTab(&sheet_, {IDD_HOST_PAGE, IDI_BASIC_SETTINGS, MSG_TAB_BASIC_SETTINGS}, 0, {});
  Open();
  Restore(IDYES);
  page_.SetHost(ownTab);  // which has none: those that the sheet finds are the other one's
  settings_.log.clear();
  ASSERT_TRUE(page_.UpdateDataSuper(true));
  EXPECT_TRUE(settings_.log.empty());
}

TEST_F(CockpitRestore, IsForgottenWhenThePageStartsAnew) {
  Open();
  Restore(IDYES);
  page_.Destroy();
  Open();
  settings_.log.clear();
  ASSERT_TRUE(page_.UpdateDataSuper(true));
  EXPECT_TRUE(settings_.log.empty());
}

TEST_F(CockpitRestore, WithoutASheetThePropertyExchangeFails) {
  CNemUICockpitPage page(nullptr, kCockpit, 0);
  EXPECT_FALSE(page.UpdateDataSuper(true));
  EXPECT_FALSE(page.UpdateDataSuper(false));
}

// --- With the real graphic page -------------------------------------------------------------------------------------

class CockpitAndGraphic : public CockpitRestore {
 protected:
  CockpitAndGraphic() {
    sheet_.properties.GraphicResolution[0].SetLong(600);
    sheet_.properties.GraphicCompressMethod[0].SetLong(4);
    sheet_.properties.GraphicJpegQuality[0].SetLong(60);
    sheet_.properties.GraphicColorReduction[0].SetLong(1);
    sheet_.pages[108] = &graphic_;
  }

  CNemUIPdfGraphicPage graphic_{&sheet_, {IDD_GRAPHIC_PAGE, 0, MSG_PAGE_GRAPHICAL_OPTIMIZATION, 108, 251, 252}, 0};
};

TEST_F(CockpitAndGraphic, EachOfItsFieldsMarksTheRow) {
  Open();
  EXPECT_EQ((std::set<int>{1}), MarkedRows());
  graphic_.jpegQuality = 85;
  Refresh();
  EXPECT_EQ((std::set<int>{}), MarkedRows());
  for (uint16_t CPdfGraphicPage::*member : {&CPdfGraphicPage::compressMethod, &CPdfGraphicPage::jpegQuality,
                                            &CPdfGraphicPage::resolution, &CPdfGraphicPage::colorReduction}) {
    const uint16_t before = std::exchange(graphic_.*member, uint16_t{77});
    Refresh();
    EXPECT_EQ((std::set<int>{1}), MarkedRows());
    graphic_.*member = before;
  }
  graphic_.enhancedReplacements = 1;
  Refresh();
  EXPECT_EQ((std::set<int>{}), MarkedRows());
}

TEST_F(CockpitAndGraphic, RestoringReachesThePropertyThoughThePageWasNeverShown) {
  Open();
  Restore(IDYES);
  EXPECT_EQ(60, sheet_.properties.GraphicJpegQuality[0].GetLong());
  ASSERT_TRUE(page_.UpdateDataSuper(true));
  EXPECT_EQ(85, sheet_.properties.GraphicJpegQuality[0].GetLong());
}

TEST_F(CockpitAndGraphic, AnOverrideKeepsItsValueAndItsMark) {
  sheet_.properties.adminSettings.GraphicJpegQuality_Override = 50;
  sheet_.properties.GraphicResolution[0].SetLong(300);
  Open();
  Restore(IDYES);
  EXPECT_EQ(60, graphic_.jpegQuality);
  EXPECT_EQ(600, graphic_.resolution);
  EXPECT_EQ((std::set<int>{1}), MarkedRows());
}

}  // namespace
}  // namespace cockpit_test
