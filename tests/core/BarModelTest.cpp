#include "core/BarTestModel.h"

namespace {

// --- Contents ------------------------------------------------------------------------------------------------------

TEST(BarModel, TheFirstFolderGivesTheTitleAndIsOpen) {
  BarModel model;
  model.AddFolder(L"First", 7);
  model.AddFolder(L"Second", 8);
  EXPECT_EQ(L"First", model.Title());
  EXPECT_EQ(0, model.OpenFolder());
  EXPECT_EQ(7, model.Folder(0)->commandId);
  EXPECT_EQ(8, model.Folder(1)->commandId);
  EXPECT_EQ(nullptr, model.Folder(2));
  EXPECT_EQ(nullptr, model.Folder(-1));
}

TEST(BarModel, GroupsAndEntriesJoinTheLastOneUnlessOneIsNamed) {
  BarModel model;
  model.AddFolder(L"A", 0);
  model.AddFolder(L"B", 0);
  EXPECT_NE(nullptr, model.AddGroup(L"last", 3));
  EXPECT_NE(nullptr, model.AddGroup(L"named", 0, 0));
  EXPECT_NE(nullptr, model.AddGroup(L"second", 0));
  EXPECT_NE(nullptr, model.AddEntry(L"one", BarEntryKind::Check, 11));
  EXPECT_NE(nullptr, model.AddEntry(L"two", BarEntryKind::Link, 12, 0));
  EXPECT_NE(nullptr, model.AddEntry(L"three", BarEntryKind::Radio, 13, 1, 0));
  EXPECT_EQ(L"last", model.Group(1, 0)->text);
  EXPECT_EQ(3, model.Group(1, 0)->flag);
  EXPECT_EQ(L"named", model.Group(0, 0)->text);
  EXPECT_EQ(L"one", model.Entry(1, 1, 0)->text);
  EXPECT_EQ(BarEntryKind::Check, model.Entry(1, 1, 0)->kind);
  EXPECT_EQ(11, model.Entry(1, 1, 0)->commandId);
  EXPECT_EQ(L"two", model.Entry(0, 0, 0)->text);
  EXPECT_EQ(L"three", model.Entry(1, 0, 0)->text);
}

TEST(BarModel, WhatHasNoParentIsNotAdded) {
  BarModel model;
  EXPECT_EQ(nullptr, model.AddGroup(L"", 0));
  EXPECT_EQ(nullptr, model.AddEntry(L"", BarEntryKind::Plain, 1));
  model.AddFolder(L"A", 0);
  EXPECT_EQ(nullptr, model.AddEntry(L"", BarEntryKind::Plain, 1));
  EXPECT_EQ(nullptr, model.AddGroup(L"", 0, 1));
  EXPECT_EQ(nullptr, model.AddGroup(L"", 0, -2));
  model.AddGroup(L"", 0);
  EXPECT_EQ(nullptr, model.AddEntry(L"", BarEntryKind::Plain, 1, 0, 1));
  EXPECT_EQ(nullptr, model.AddEntry(L"", BarEntryKind::Plain, 1, 1, 0));
}

TEST(BarModel, FindEntryGivesTheFirstWithTheCommand) {
  BarModel model = MakeSheetBar();
  EXPECT_EQ(EntryTarget(0, 0, 0), model.FindEntry(100));
  EXPECT_EQ(EntryTarget(2, 6, 0), model.FindEntry(108));
  EXPECT_EQ(EntryTarget(6, 3, 0), model.FindEntry(122));
  EXPECT_EQ(BarTarget(), model.FindEntry(123));
  model.AddEntry(L"again", BarEntryKind::Plain, 100);
  EXPECT_EQ(EntryTarget(0, 0, 0), model.FindEntry(100));
}

TEST(BarModel, TheHeightOfAChildWindowIsNoCommand) {
  BarModel model;
  int window = 0;
  model.AddFolder(L"A", 0);
  model.AddGroup(L"", 0);
  model.AddEntry(L"", BarEntryKind::Plain, 50)->window = &window;
  model.AddEntry(L"", BarEntryKind::Plain, 50);
  EXPECT_EQ(EntryTarget(0, 0, 1), model.FindEntry(50));
}

TEST(BarModel, OpenTakesTheTitle) {
  BarModel model;
  model.AddFolder(L"A", 0);
  model.AddFolder(L"B", 0);
  EXPECT_TRUE(model.Open(1));
  EXPECT_EQ(1, model.OpenFolder());
  EXPECT_EQ(L"B", model.Title());
  EXPECT_FALSE(model.Open(2));
  EXPECT_FALSE(model.Open(-1));
  EXPECT_EQ(1, model.OpenFolder());
  EXPECT_EQ(L"B", model.Title());
}

// --- Use -----------------------------------------------------------------------------------------------------------

TEST(BarHitTest, TheNumbersAreThoseThatOwnersKnow) {
  EXPECT_EQ(0, static_cast<int>(BarHit::Nothing));
  EXPECT_EQ(1, static_cast<int>(BarHit::Folder));
  EXPECT_EQ(2, static_cast<int>(BarHit::Group));
  EXPECT_EQ(4, static_cast<int>(BarHit::Entry));
}

TEST(BarHitTest, EveryPartIsFoundUpToItsEdges) {
  BarModel model = MakeSheetBar();
  model.Open(2);
  model.Arrange(149, 420, 96);
  struct Row {
    IntPoint point;
    BarTarget expected;
  };
  const Row rows[] = {
      {{10, 10}, {}},                     // title
      {{10, 35}, {}},                     // frame
      {{10, 37}, {}},                     // space above the first entry
      {{1, 38}, EntryTarget(2, 0, 0)},    //
      {{143, 58}, EntryTarget(2, 0, 0)},  //
      {{0, 40}, {}},                      // frame
      {{144, 40}, {}},                    // frame
      {{10, 59}, {}},                     // gap
      {{10, 61}, GroupTarget(2, 1)},      // line
      {{10, 62}, {}},                     //
      {{10, 66}, EntryTarget(2, 1, 0)},   //
      {{10, 226}, EntryTarget(2, 6, 0)},  //
      {{10, 227}, {}},                    // rest of the area
      {{10, 250}, {}},                    // cap
      {{0, 252}, FolderTarget(0)},        //
      {{144, 275}, FolderTarget(0)},      //
      {{145, 275}, {}},                   // margin
      {{10, 276}, FolderTarget(1)},       //
      {{10, 419}, FolderTarget(6)},       //
      {{10, 420}, {}},                    //
      {{-1, 300}, {}},                    //
  };
  for (const Row& row : rows) EXPECT_EQ(row.expected, model.HitTest(row.point)) << row.point.x << ", " << row.point.y;
}

TEST(BarHitTest, HeadersAreGroups) {
  BarModel model;
  model.AddFolder(L"A", 0);
  model.AddGroup(L"header", 0);
  model.AddEntry(L"", BarEntryKind::Plain, 1);
  model.Arrange(100, 300, 96);
  EXPECT_EQ(GroupTarget(0, 0), model.HitTest({50, 36}));
  EXPECT_EQ(GroupTarget(0, 0), model.HitTest({50, 53}));
  EXPECT_EQ(EntryTarget(0, 0, 0), model.HitTest({50, 54}));
}

TEST(BarHitTest, NothingIsHitBeforeTheFirstArrangement) {
  EXPECT_EQ(BarTarget(), MakeSheetBar().HitTest({0, 0}));
  EXPECT_EQ(BarTarget(), BarModel().HitTest({10, 10}));
}

TEST(BarClick, TheStripAtTheRightEdgeTakesNone) {
  BarModel model = MakeSheetBar();
  model.Arrange(149, 420, 96);
  EXPECT_TRUE(model.TakesClick({143, 260}, 149));
  EXPECT_FALSE(model.TakesClick({144, 260}, 149));
  EXPECT_EQ(FolderTarget(0), model.HitTest({144, 260}));  // so the strip is a rule of its own
  EXPECT_FALSE(model.TakesClick({148, 260}, 149));
  model.Arrange(298, 840, 192);
  EXPECT_TRUE(model.TakesClick({287, 520}, 298));
  EXPECT_FALSE(model.TakesClick({288, 520}, 298));
}

TEST(BarClick, ABarOfFourPixelsTakesNone) {
  BarModel model = MakeSheetBar();
  model.Arrange(4, 420, 96);
  EXPECT_FALSE(model.TakesClick({-3, 260}, 4));
  EXPECT_TRUE(model.TakesClick({-3, 260}, 5));
}

TEST(BarTargets, EntriesComeBeforeFolders) {
  BarModel model = MakeSheetBar();
  model.Open(4);
  model.Arrange(149, 420, 96);
  const std::vector<BarTarget> expected = {EntryTarget(4, 0, 0), EntryTarget(4, 1, 0), FolderTarget(0),
                                           FolderTarget(1),      FolderTarget(2),      FolderTarget(3),
                                           FolderTarget(4),      FolderTarget(5),      FolderTarget(6)};
  EXPECT_EQ(expected, model.Targets());
}

TEST(BarTargets, WhatHasNoPlaceIsNone) {
  BarModel model = MakeSheetBar();
  model.Arrange(149, 35 + 2 * 24, 96);
  EXPECT_EQ((std::vector<BarTarget>{FolderTarget(5), FolderTarget(6)}), model.Targets());
}

TEST(BarTargets, RectOfGivesThePlaceOfEachKind) {
  BarModel model = MakeSheetBar();
  model.Open(2);
  model.Arrange(149, 420, 96);
  EXPECT_EQ(model.Folder(1)->rect, model.RectOf(FolderTarget(1)));
  EXPECT_EQ(model.Group(2, 1)->rect, model.RectOf(GroupTarget(2, 1)));
  EXPECT_EQ(model.Entry(2, 3, 0)->rect, model.RectOf(EntryTarget(2, 3, 0)));
  EXPECT_EQ(IntRect(), model.RectOf({}));
  EXPECT_EQ(IntRect(), model.RectOf(FolderTarget(7)));
  EXPECT_EQ(IntRect(), model.RectOf(EntryTarget(2, 0, 1)));
}

TEST(BarSlide, EightStepsOfAnEighthFromTheBottomUp) {
  BarModel model = MakeSheetBar();
  model.Arrange(149, 420, 96);  // the area ends at 249, an eighth is 31
  const std::vector<SlideStep> expected = {{239, 10},  {208, 41}, {177, 72}, {146, 103},
                                           {115, 134}, {84, 165}, {53, 196}, {22, 227}};
  EXPECT_EQ(expected, model.SlideSteps());
}

TEST(BarSlide, TheStartScalesWithTheDpi) {
  BarModel model = MakeSheetBar();
  model.Arrange(298, 840, 192);
  EXPECT_EQ((SlideStep{478, 20}), model.SlideSteps().front());
  EXPECT_EQ((SlideStep{478 - 62, 82}), model.SlideSteps()[1]);
}

TEST(BarSlide, WithoutAnAreaNothingSlides) {
  BarModel model = MakeSheetBar();
  model.Arrange(149, 59, 96);
  EXPECT_TRUE(model.SlideSteps().empty());
  model.Arrange(3, 420, 96);
  EXPECT_TRUE(model.SlideSteps().empty());
}

}  // namespace
