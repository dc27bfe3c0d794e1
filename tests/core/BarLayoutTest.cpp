#include "core/BarTestModel.h"

namespace {

TEST(BarLayout, TitleCapAndAreaAt96Dpi) {
  BarModel model = MakeSheetBar();
  model.Arrange(149, 420, 96);
  EXPECT_EQ((IntRect{0, 0, 144, 31}), model.Layout().title);
  EXPECT_EQ((IntRect{0, 249, 145, 252}), model.Layout().cap);
  EXPECT_EQ((IntRect{0, 35, 145, 249}), model.Layout().area);
  EXPECT_EQ((IntRect{1, 36, 144, 248}), model.Layout().contents);
}

TEST(BarLayout, FolderButtonsAreStackedUpFromTheBottom) {
  BarModel model = MakeSheetBar();
  model.Arrange(149, 420, 96);
  for (int folder = 0; folder < 7; ++folder)
    EXPECT_EQ((IntRect{0, 252 + 24 * folder, 145, 276 + 24 * folder}), model.Folder(folder)->rect);
}

TEST(BarLayout, NamelessGroupsAreDividedByLines) {
  BarModel model = MakeSheetBar();
  model.Open(2);
  model.Arrange(149, 420, 96);
  EXPECT_EQ(IntRect(), model.Group(2, 0)->rect);
  EXPECT_EQ((IntRect{1, 38, 144, 59}), model.Entry(2, 0, 0)->rect);
  for (int group = 1; group < 7; ++group) {
    const int line = 61 + 28 * (group - 1);  // 2 above the line of 1, 4 below it, 21 for the entry
    EXPECT_EQ((IntRect{1, line, 144, line + 1}), model.Group(2, group)->rect);
    EXPECT_EQ((IntRect{1, line + 5, 144, line + 26}), model.Entry(2, group, 0)->rect);
  }
}

TEST(BarLayout, OnlyTheOpenFolderHasPlaces) {
  BarModel model = MakeSheetBar();
  model.Open(2);
  model.Arrange(149, 420, 96);
  model.Open(3);
  model.Arrange(149, 420, 96);
  for (int group = 0; group < 7; ++group) {
    EXPECT_EQ(IntRect(), model.Entry(2, group, 0)->rect);
    EXPECT_EQ(IntRect(), model.Group(2, group)->rect);
  }
  EXPECT_EQ((IntRect{1, 38, 144, 59}), model.Entry(3, 0, 0)->rect);
}

TEST(BarLayout, NamedGroupsHaveAHeaderAndAGapAboveIt) {
  BarModel model;
  model.AddFolder(L"A", 0);
  model.AddGroup(L"one", 0);
  model.AddEntry(L"", BarEntryKind::Plain, 1);
  model.AddEntry(L"", BarEntryKind::Plain, 2);
  model.AddGroup(L"two", 1);  // a flag: lower entries
  model.AddEntry(L"", BarEntryKind::Plain, 3);
  model.AddEntry(L"", BarEntryKind::Plain, 4);
  model.Arrange(100, 300, 96);
  EXPECT_EQ((IntRect{1, 36, 95, 54}), model.Group(0, 0)->rect);
  EXPECT_EQ((IntRect{1, 54, 95, 75}), model.Entry(0, 0, 0)->rect);
  EXPECT_EQ((IntRect{1, 75, 95, 96}), model.Entry(0, 0, 1)->rect);
  EXPECT_EQ((IntRect{1, 103, 95, 121}), model.Group(0, 1)->rect);
  EXPECT_EQ((IntRect{1, 121, 95, 136}), model.Entry(0, 1, 0)->rect);
  EXPECT_EQ((IntRect{1, 136, 95, 151}), model.Entry(0, 1, 1)->rect);
}

TEST(BarLayout, LengthsScaleWithTheDpi) {
  BarModel model = MakeSheetBar();
  model.Arrange(298, 840, 192);
  EXPECT_EQ((IntRect{0, 0, 288, 62}), model.Layout().title);
  EXPECT_EQ((IntRect{0, 498, 290, 504}), model.Layout().cap);
  EXPECT_EQ((IntRect{0, 70, 290, 498}), model.Layout().area);
  EXPECT_EQ((IntRect{2, 72, 288, 496}), model.Layout().contents);
  EXPECT_EQ((IntRect{2, 76, 288, 118}), model.Entry(0, 0, 0)->rect);
  EXPECT_EQ((IntRect{0, 504, 290, 552}), model.Folder(0)->rect);
  model.Arrange(224, 630, 144);
  EXPECT_EQ(53, model.Layout().area.top);              // 52.5
  EXPECT_EQ(32, model.Entry(0, 0, 0)->rect.Height());  // 31.5
}

TEST(BarLayout, ABarOfFourPixelsShowsItsGroundOnly) {
  BarModel model = MakeSheetBar();
  model.Arrange(149, 420, 96);
  model.Arrange(4, 420, 96);
  EXPECT_EQ(IntRect(), model.Layout().title);
  EXPECT_EQ(IntRect(), model.Layout().area);
  EXPECT_EQ(IntRect(), model.Folder(0)->rect);
  EXPECT_EQ(IntRect(), model.Entry(0, 0, 0)->rect);
  EXPECT_TRUE(model.Targets().empty());
  model.Arrange(5, 420, 96);
  EXPECT_EQ((IntRect{0, 252, 1, 276}), model.Folder(0)->rect);
}

TEST(BarLayout, ButtonsThatDoNotFitUnderTheTitleAreNotThere) {
  BarModel model = MakeSheetBar();
  model.Arrange(149, 35 + 7 * 24, 96);  // exactly all
  EXPECT_EQ((IntRect{0, 35, 145, 59}), model.Folder(0)->rect);
  EXPECT_EQ(IntRect(), model.Layout().cap);
  EXPECT_EQ(IntRect(), model.Layout().area);
  EXPECT_EQ(IntRect(), model.Entry(0, 0, 0)->rect);

  model.Arrange(149, 35 + 7 * 24 - 1, 96);  // one pixel short: the top of the stack goes
  EXPECT_EQ(IntRect(), model.Folder(0)->rect);
  EXPECT_EQ((IntRect{0, 58, 145, 82}), model.Folder(1)->rect);
  EXPECT_EQ((IntRect{0, 178, 145, 202}), model.Folder(6)->rect);
  EXPECT_EQ((IntRect{0, 35, 145, 55}), model.Layout().area);

  model.Arrange(149, 35 + 24, 96);
  for (int folder = 0; folder < 6; ++folder) EXPECT_EQ(IntRect(), model.Folder(folder)->rect);
  EXPECT_EQ((IntRect{0, 35, 145, 59}), model.Folder(6)->rect);

  model.Arrange(149, 58, 96);
  EXPECT_EQ(IntRect(), model.Folder(6)->rect);
  EXPECT_EQ((IntRect{0, 35, 145, 58}), model.Layout().area);
  model.Arrange(149, 0, 96);
  EXPECT_EQ(IntRect(), model.Layout().area);
}

TEST(BarLayout, EntriesEndWithTheSpace) {
  BarModel model = MakeSheetBar();
  model.Open(2);
  // Contents from 36 to 100: the third entry, 94 to 115, is cut; its followers have no place.
  model.Arrange(149, 101 + 3 + 7 * 24, 96);
  EXPECT_EQ((IntRect{1, 36, 144, 100}), model.Layout().contents);
  EXPECT_EQ((IntRect{1, 66, 144, 87}), model.Entry(2, 1, 0)->rect);
  EXPECT_EQ((IntRect{1, 94, 144, 100}), model.Entry(2, 2, 0)->rect);
  for (int group = 3; group < 7; ++group) {
    EXPECT_EQ(IntRect(), model.Entry(2, group, 0)->rect);
    EXPECT_EQ(IntRect(), model.Group(2, group)->rect);
  }
}

TEST(BarLayout, ABarWithoutFoldersIsTitleAndArea) {
  BarModel model;
  model.Arrange(100, 200, 96);
  EXPECT_EQ(IntRect(), model.Layout().cap);
  EXPECT_EQ((IntRect{0, 35, 96, 200}), model.Layout().area);
}

TEST(BarLayout, ChildWindowsHaveTheirOwnHeightOrAllThatIsLeft) {
  BarModel model;
  int window = 0;
  model.AddFolder(L"A", 0);
  model.AddGroup(L"", 0);
  model.AddEntry(L"", BarEntryKind::Plain, 40)->window = &window;
  model.AddEntry(L"", BarEntryKind::Plain, 1);
  model.AddEntry(L"", BarEntryKind::Plain, COL2SubItem::kRemainingHeight)->window = &window;
  model.AddEntry(L"", BarEntryKind::Plain, 2);
  model.Arrange(100, 300, 96);
  EXPECT_EQ((IntRect{1, 38, 95, 78}), model.Entry(0, 0, 0)->rect);
  EXPECT_EQ((IntRect{1, 78, 95, 99}), model.Entry(0, 0, 1)->rect);
  EXPECT_EQ((IntRect{1, 99, 95, 272}), model.Entry(0, 0, 2)->rect);
  EXPECT_EQ(IntRect(), model.Entry(0, 0, 3)->rect);
  model.Arrange(200, 600, 192);
  EXPECT_EQ(80, model.Entry(0, 0, 0)->rect.Height());
}

}  // namespace
