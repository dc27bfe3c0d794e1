#include "sheet/COutlook2Ctrl.h"

#include <gtest/gtest.h>

#include "sheet/BarOwner.h"
#include "sheet/COL2CCmdUI.h"
#include "support/PrintText.h"

namespace {

using Commands = std::vector<int>;

class COutlook2CtrlTest : public testing::Test {
 protected:
  COutlook2CtrlTest() { owner.FillLikeASheet(); }

  const BarModel& Model() const { return owner.bar->Model(); }
  int OpenFolder() const { return Model().OpenFolder(); }

  BarOwner owner;
};

// --- Clicks --------------------------------------------------------------------------------------------------------

TEST_F(COutlook2CtrlTest, AClickOnAFolderSelectsItsFirstEntryAndOpensIt) {
  owner.Click(owner.FolderPoint(1));
  EXPECT_EQ(Commands{110}, owner.commands);
  EXPECT_EQ(1, OpenFolder());
  EXPECT_EQ(L"Second", Model().Title());
}

TEST_F(COutlook2CtrlTest, TheCommandCarriesTheBarAndNoNotification) {
  owner.Click(owner.EntryPoint(0, 0));
  EXPECT_EQ(reinterpret_cast<LPARAM>(owner.bar->Handle()), owner.lastSender);
  EXPECT_EQ(0, owner.lastNotification);
}

TEST_F(COutlook2CtrlTest, ARefusedSelectionLeavesFolderAndEntriesAsTheyWere) {
  owner.Select(100);
  owner.Settle();
  owner.refused = {110};
  owner.Click(owner.FolderPoint(1));
  EXPECT_EQ(Commands{110}, owner.commands);
  EXPECT_EQ(0, OpenFolder());
  EXPECT_EQ(L"First", Model().Title());
  EXPECT_EQ(COL2CCmdUI::kChecked, Model().Entry(0, 0, 0)->probeBits);
  EXPECT_EQ(0, Model().Entry(1, 0, 0)->probeBits);
}

TEST_F(COutlook2CtrlTest, ARefusedEntryKeepsItsCheckState) {
  owner.bar->OpenFolder(1, false);
  owner.Select(111);
  owner.Settle();
  owner.refused = {112};
  EXPECT_FALSE(owner.bar->ClickEntry(1, 2, 0));
  EXPECT_EQ(COL2CCmdUI::kChecked, Model().Entry(1, 1, 0)->probeBits);
  EXPECT_EQ(0, Model().Entry(1, 2, 0)->probeBits);
  const RECT pending = owner.PendingPaint();
  EXPECT_TRUE(::IsRectEmpty(&pending));
}

TEST_F(COutlook2CtrlTest, AClickOnAnEntrySelectsIt) {
  owner.bar->OpenFolder(1, false);
  owner.Click(owner.EntryPoint(1, 2));
  EXPECT_EQ(Commands{112}, owner.commands);
  EXPECT_EQ(1, OpenFolder());
}

TEST_F(COutlook2CtrlTest, ACheckedEntryIsSelectedAlready) {
  owner.checked = 110;
  EXPECT_TRUE(owner.bar->ClickEntry(1, 0, 0));
  EXPECT_TRUE(owner.commands.empty());
  owner.Click(owner.FolderPoint(1));  // its folder opens all the same
  EXPECT_TRUE(owner.commands.empty());
  EXPECT_EQ(1, OpenFolder());
}

TEST_F(COutlook2CtrlTest, AnAcceptedClickRepaintsTheFolderArea) {
  ASSERT_TRUE(owner.bar->ClickEntry(0, 0, 0));
  const RECT pending = owner.PendingPaint();
  const IntRect area = Model().Layout().area;
  EXPECT_EQ(area, (IntRect{pending.left, pending.top, pending.right, pending.bottom}));
}

TEST_F(COutlook2CtrlTest, LinksAndCheckBoxesSendWithoutAsking) {
  for (const BarEntryKind kind : {BarEntryKind::Link, BarEntryKind::Check}) {
    owner.Add(200, kind);
    const int group = static_cast<int>(Model().Folder(2)->groups.size()) - 1;
    owner.Settle();
    owner.checked = 200;  // which would keep a plain entry from sending
    owner.commands.clear();
    EXPECT_TRUE(owner.bar->ClickEntry(2, group, 0));
    EXPECT_EQ(Commands{200}, owner.commands);
    EXPECT_TRUE(owner.probes.empty());
    owner.refused = {200};
    EXPECT_FALSE(owner.bar->ClickEntry(2, group, 0));
    owner.refused.clear();
  }
}

TEST_F(COutlook2CtrlTest, RadioButtonsAskBeforeTheySend) {
  owner.Add(200, BarEntryKind::Radio);
  owner.Settle();
  EXPECT_TRUE(owner.bar->ClickEntry(2, 1, 0));
  EXPECT_EQ(Commands{200}, owner.probes);
  EXPECT_EQ(Commands{200}, owner.commands);
  EXPECT_TRUE(owner.bar->ClickEntry(2, 1, 0));  // checked now
  EXPECT_EQ(Commands{200}, owner.commands);
}

TEST_F(COutlook2CtrlTest, WhatIsNotThereCannotBeClicked) {
  EXPECT_FALSE(owner.bar->ClickEntry(3, 0, 0));
  EXPECT_FALSE(owner.bar->ClickEntry(0, 1, 0));
  EXPECT_FALSE(owner.bar->ClickEntry(0, 0, -1));
  owner.bar->AddFolder(L"empty", 0, 0);
  owner.Click(owner.FolderPoint(3));
  EXPECT_EQ(0, OpenFolder());
  EXPECT_TRUE(owner.commands.empty());
}

TEST_F(COutlook2CtrlTest, TheStripAtTheRightEdgeIgnoresClicks) {
  const int width = owner.bar->ClientRect().right;
  const LONG y = owner.FolderPoint(1).y;
  for (int x = width - 5; x < width; ++x) owner.Click({x, y});
  EXPECT_TRUE(owner.commands.empty());
  owner.Click({width - 6, y});
  EXPECT_EQ(Commands{110}, owner.commands);
}

TEST_F(COutlook2CtrlTest, ClicksBesideTheElementsDoNothing) {
  owner.Click({20, 10});  // title
  owner.Click({20, Model().Layout().cap.top});
  owner.Click({20, Model().Layout().area.bottom - 2});
  EXPECT_TRUE(owner.commands.empty());
}

TEST_F(COutlook2CtrlTest, ABarOfFourPixelsTakesNoClicks) {
  owner.bar->Move({10, 10, 14, 430});
  for (int x = 0; x < 4; ++x) owner.Click({x, 400});
  EXPECT_TRUE(owner.commands.empty());
}

TEST_F(COutlook2CtrlTest, ButtonsWithoutRoomAreNotThere) {
  owner.bar->Move({10, 10, 159, 10 + 35 + 2 * 24});
  EXPECT_EQ(IntRect(), Model().Folder(0)->rect);
  owner.Click({20, 36});
  EXPECT_EQ(Commands{110}, owner.commands);  // the second folder's button stands right under the title
}

TEST_F(COutlook2CtrlTest, ASecondClickSoonAfterTheFirstCounts) {
  owner.Mouse(WM_LBUTTONDBLCLK, owner.FolderPoint(2));
  EXPECT_EQ(Commands{120}, owner.commands);
}

TEST_F(COutlook2CtrlTest, AClickTakesNoFocus) {
  ::SetFocus(owner.button);
  owner.Click(owner.FolderPoint(1));
  EXPECT_EQ(owner.button, ::GetFocus());
}

TEST_F(COutlook2CtrlTest, TheMouseIsFreeWhileTheOwnerActs) {
  HWND captured = owner.bar->Handle();
  owner.Mouse(WM_MOUSEMOVE, owner.FolderPoint(1));
  ASSERT_EQ(owner.bar->Handle(), ::GetCapture());
  owner.onCommand = [&](int) { captured = ::GetCapture(); };
  owner.Click(owner.FolderPoint(1));
  EXPECT_EQ(nullptr, captured);
}

TEST_F(COutlook2CtrlTest, ACommandMayEndTheWindow) {
  owner.onCommand = [&](int) { ::DestroyWindow(owner.window); };
  EXPECT_FALSE(owner.bar->ClickEntry(1, 0, 0));
  EXPECT_EQ(nullptr, owner.bar->Handle());
}

TEST_F(COutlook2CtrlTest, ACommandMayEndTheBarAndItsObject) {
  owner.onCommand = [&](int) { owner.bar.reset(); };
  COutlook2Ctrl& bar = *owner.bar;
  EXPECT_FALSE(bar.ActivateById(111));
}

TEST_F(COutlook2CtrlTest, ACommandMayActivateAnotherEntry) {
  owner.onCommand = [&](int command) {
    owner.checked = command;
    if (command == 110) {
      owner.onCommand = nullptr;
      owner.bar->ActivateById(120);
    }
  };
  owner.Click(owner.FolderPoint(1));
  EXPECT_EQ((Commands{110, 120}), owner.commands);
  EXPECT_EQ(1, OpenFolder());
}

// --- ActivateById --------------------------------------------------------------------------------------------------

TEST_F(COutlook2CtrlTest, ActivateByIdSelectsTheEntryAndOpensItsFolder) {
  EXPECT_TRUE(owner.bar->ActivateById(112));
  EXPECT_EQ(Commands{112}, owner.commands);
  EXPECT_EQ(1, OpenFolder());
}

TEST_F(COutlook2CtrlTest, ActivateByIdSelectsTheFirstEntryOfTheGroup) {
  owner.bar->AddEntry(L"second of its group", 0, BarEntryKind::Plain, 121);
  EXPECT_TRUE(owner.bar->ActivateById(121));
  EXPECT_EQ(Commands{120}, owner.commands);
  EXPECT_EQ(2, OpenFolder());
}

TEST_F(COutlook2CtrlTest, ActivateByIdOfNoEntryDoesNothing) {
  EXPECT_FALSE(owner.bar->ActivateById(999));
  EXPECT_TRUE(owner.commands.empty());
  EXPECT_EQ(0, OpenFolder());
}

TEST_F(COutlook2CtrlTest, ActivateByIdStopsAtARefusal) {
  owner.refused = {112};
  EXPECT_FALSE(owner.bar->ActivateById(112));
  EXPECT_EQ(0, OpenFolder());
}

// --- Probes --------------------------------------------------------------------------------------------------------

TEST_F(COutlook2CtrlTest, PaintingAsksForEachEntryOfTheOpenFolder) {
  owner.bar->OpenFolder(1, false);
  ::UpdateWindow(owner.bar->Handle());
  EXPECT_EQ((Commands{110, 111, 112}), owner.probes);
}

TEST_F(COutlook2CtrlTest, PaintingAsksForALinkToo) {
  owner.onProbe = [](CCmdUI& probe) {
    if (probe.Id() == 200) probe.SetText(L"new");
  };
  owner.bar->OpenFolder(2, false);
  owner.Add(200, BarEntryKind::Link);
  ::UpdateWindow(owner.bar->Handle());
  EXPECT_EQ((Commands{120, 200}), owner.probes);
}

TEST_F(COutlook2CtrlTest, PaintingKeepsTheBits) {
  owner.onProbe = [](CCmdUI& probe) {
    probe.Enable(true);
    probe.SetRadio(probe.Id() == 100);
  };
  owner.bar->Invalidate();
  ::UpdateWindow(owner.bar->Handle());
  EXPECT_EQ(COL2CCmdUI::kEnabled | COL2CCmdUI::kRadio, Model().Entry(0, 0, 0)->probeBits);
}

TEST_F(COutlook2CtrlTest, UpdateEntriesRepaintsWhatStandsOtherwise) {
  owner.bar->OpenFolder(1, false);
  owner.Select(110);
  owner.Settle();
  owner.bar->UpdateEntries();
  EXPECT_EQ((Commands{110, 111, 112}), owner.probes);
  const RECT nothing = owner.PendingPaint();
  EXPECT_TRUE(::IsRectEmpty(&nothing));

  owner.onProbe = [](CCmdUI& probe) { probe.SetCheck(probe.Id() != 112); };  // only 111 changes
  owner.bar->UpdateEntries();
  const RECT pending = owner.PendingPaint();
  EXPECT_EQ(Model().Entry(1, 1, 0)->rect, (IntRect{pending.left, pending.top, pending.right, pending.bottom}));
}

TEST_F(COutlook2CtrlTest, UpdateEntriesLeavesLinksAlone) {
  owner.bar->OpenFolder(2, false);
  owner.Add(200, BarEntryKind::Link);
  owner.Add(201, BarEntryKind::Check);
  owner.Add(202, BarEntryKind::Radio);
  owner.Settle();
  owner.bar->UpdateEntries();
  EXPECT_EQ((Commands{120, 201, 202}), owner.probes);
}

TEST_F(COutlook2CtrlTest, AProbeMayChangeTheText) {
  owner.onProbe = [](CCmdUI& probe) { probe.SetText(L"new"); };
  owner.bar->UpdateEntries();
  EXPECT_EQ(L"new", Model().Entry(0, 0, 0)->text);
  const RECT pending = owner.PendingPaint();
  EXPECT_EQ(Model().Entry(0, 0, 0)->rect, (IntRect{pending.left, pending.top, pending.right, pending.bottom}));
}

}  // namespace
