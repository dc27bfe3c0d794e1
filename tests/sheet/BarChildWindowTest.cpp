// Child windows that stand in place of entries of the navigation bar.
#include <gtest/gtest.h>

#include "sheet/BarOwner.h"

namespace {

using Commands = std::vector<int>;

class BarChildWindow : public testing::Test {
 protected:
  BarChildWindow() {
    owner.FillLikeASheet();
    child = CWnd(::CreateWindowExW(0, L"BUTTON", L"child", WS_CHILD, 0, 0, 0, 0, owner.bar->Handle(),
                                   reinterpret_cast<HMENU>(INT_PTR{55}), nullptr, nullptr));
    rest =
        CWnd(::CreateWindowExW(0, L"EDIT", L"", WS_CHILD, 0, 0, 0, 0, owner.bar->Handle(), nullptr, nullptr, nullptr));
    owner.bar->AddFolder(L"Windows", 0, 0);
    owner.bar->AddGroup(L"", 0);
    owner.bar->AddWindow(child, 40);
    owner.bar->AddWindow(rest, COL2SubItem::kRemainingHeight);
  }
  IntRect PlaceOf(CWnd window) const {
    const RECT rect = window.RectIn(*owner.bar);
    return {rect.left, rect.top, rect.right, rect.bottom};
  }
  const BarModel& Model() const { return owner.bar->Model(); }
  int OpenFolder() const { return Model().OpenFolder(); }

  BarOwner owner;
  CWnd child, rest;
};

TEST_F(BarChildWindow, AppearsInItsPlaceWithItsFolder) {
  EXPECT_FALSE(child.IsShown());
  owner.bar->OpenFolder(3, false);
  EXPECT_TRUE(child.IsShown());
  EXPECT_EQ((IntRect{1, 38, 144, 78}), PlaceOf(child));
  EXPECT_EQ((IntRect{1, 78, 144, Model().Layout().contents.bottom}), PlaceOf(rest));
  owner.bar->Move({10, 10, 159, 330});
  EXPECT_EQ(Model().Layout().contents.bottom, PlaceOf(rest).bottom);
}

TEST_F(BarChildWindow, DisappearsWithIt) {
  owner.bar->OpenFolder(3, false);
  owner.bar->OpenFolder(0, false);
  EXPECT_FALSE(child.IsShown());
  EXPECT_FALSE(rest.IsShown());
  EXPECT_EQ(IntRect(), Model().Entry(3, 0, 0)->rect);
}

TEST_F(BarChildWindow, IsHiddenWithoutRoom) {
  owner.bar->OpenFolder(3, false);
  owner.bar->Move({10, 10, 159, 100});
  EXPECT_FALSE(child.IsShown());
}

TEST_F(BarChildWindow, ItsFolderOpensWithoutACommand) {
  owner.Click(owner.FolderPoint(3));
  EXPECT_EQ(3, OpenFolder());
  EXPECT_TRUE(owner.commands.empty());
  EXPECT_TRUE(owner.probes.empty());
}

TEST_F(BarChildWindow, ItsHeightIsNoCommand) {
  EXPECT_FALSE(owner.bar->ActivateById(40));
  owner.bar->OpenFolder(3, false);
  owner.Settle();
  owner.bar->UpdateEntries();
  EXPECT_TRUE(owner.probes.empty());
}

TEST_F(BarChildWindow, ItsNotificationsReachTheOwner) {
  owner.bar->OpenFolder(3, false);
  ::SendMessageW(child.Handle(), BM_CLICK, 0, 0);
  EXPECT_EQ(Commands{55}, owner.commands);
  EXPECT_EQ(reinterpret_cast<LPARAM>(child.Handle()), owner.lastSender);
}

}  // namespace
