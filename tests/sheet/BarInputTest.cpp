// Mouse and keyboard of the navigation bar.
#include <gtest/gtest.h>

#include "sheet/BarOwner.h"
#include "support/MouseTrackings.h"

namespace {

using Commands = std::vector<int>;

constexpr BarTarget FolderTarget(int folder) { return {BarHit::Folder, folder}; }
constexpr BarTarget EntryTarget(int folder, int group) { return {BarHit::Entry, folder, group, 0}; }

class BarMouse : public testing::Test {
 protected:
  BarMouse() {
    owner.FillLikeASheet();
    owner.bar->OpenFolder(1, false);
    owner.Settle();
  }
  ~BarMouse() override { ::ReleaseCapture(); }

  void MoveTo(POINT point) { owner.Mouse(WM_MOUSEMOVE, point); }
  BarTarget Hot() const { return owner.bar->HotElement(); }
  // What the move to this point changes on the screen.
  IntRect ChangedBy(POINT point) {
    const auto before = owner.Picture();
    MoveTo(point);
    const RECT box = owner.Picture()->DifferenceFrom(*before);
    return {box.left, box.top, box.right, box.bottom};
  }
  static bool Covers(const IntRect& outer, const IntRect& inner) {
    return outer.left <= inner.left && outer.top <= inner.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom && inner.Width() > 0;
  }

  BarOwner owner;
};

TEST_F(BarMouse, IsCapturedWhileItIsOverTheBar) {
  MoveTo({3, 3});
  EXPECT_EQ(owner.bar->Handle(), ::GetCapture());
  MoveTo(owner.FolderPoint(0));
  EXPECT_EQ(owner.bar->Handle(), ::GetCapture());
  MoveTo({-1, 3});
  EXPECT_EQ(nullptr, ::GetCapture());
  MoveTo({3, owner.bar->ClientRect().bottom - 1});
  EXPECT_EQ(owner.bar->Handle(), ::GetCapture());
  MoveTo({3, owner.bar->ClientRect().bottom});
  EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(BarMouse, MakesFoldersAndEntriesHot) {
  MoveTo(owner.FolderPoint(2));
  EXPECT_EQ(FolderTarget(2), Hot());
  MoveTo(owner.FolderPoint(0));
  EXPECT_EQ(FolderTarget(0), Hot());
  MoveTo(owner.EntryPoint(1, 1));
  EXPECT_EQ(EntryTarget(1, 1), Hot());
}

TEST_F(BarMouse, OverNothingNothingIsHot) {
  MoveTo(owner.FolderPoint(2));
  MoveTo({20, 10});
  EXPECT_EQ(BarTarget(), Hot());
  MoveTo(owner.EntryPoint(1, 1));
  MoveTo({-5, -5});
  EXPECT_EQ(BarTarget(), Hot());
}

TEST_F(BarMouse, OverAGroupNothingChanges) {
  MoveTo(owner.EntryPoint(1, 1));
  MoveTo(BarOwner::Middle(owner.bar->Model().Group(1, 1)->rect));
  EXPECT_EQ(EntryTarget(1, 1), Hot());
}

TEST_F(BarMouse, WhoTakesTheCaptureEndsTheHotState) {
  MoveTo(owner.FolderPoint(2));
  ::SetCapture(owner.button);
  EXPECT_EQ(BarTarget(), Hot());
  EXPECT_EQ(owner.button, ::GetCapture());
}

// A capture without a pressed button does not reach over other programs' windows.
TEST_F(BarMouse, ThatLeavesForAnotherProgramLeavesNothingHot) {
  const MouseTrackings trackings;
  for (const size_t times : {1u, 2u}) {
    MoveTo(owner.FolderPoint(2));
    MoveTo(owner.FolderPoint(0));
    EXPECT_EQ(std::vector<HWND>(times, owner.bar->Handle()), trackings.Askers()) << "once for each stay";
    owner.bar->Send(WM_MOUSELEAVE);
    EXPECT_EQ(BarTarget(), Hot());
    EXPECT_EQ(nullptr, ::GetCapture());
  }
}

TEST_F(BarMouse, DrawsTheFolderThatBecomesHotAndNothingElse) {
  EXPECT_TRUE(Covers(owner.bar->Model().Folder(2)->rect, ChangedBy(owner.FolderPoint(2))));
  const RECT pending = owner.PendingPaint();
  EXPECT_TRUE(::IsRectEmpty(&pending));
  EXPECT_TRUE(owner.probes.empty());
}

TEST_F(BarMouse, DrawsTheOldHotElementNormal) {
  const auto normal = owner.Picture();
  MoveTo(owner.FolderPoint(2));
  MoveTo(owner.FolderPoint(0));
  const RECT box = owner.Picture()->DifferenceFrom(*normal);
  EXPECT_TRUE(Covers(owner.bar->Model().Folder(0)->rect, {box.left, box.top, box.right, box.bottom}));
  MoveTo(owner.EntryPoint(1, 0));
  MoveTo({20, 10});
  const RECT nothing = owner.Picture()->DifferenceFrom(*normal);
  EXPECT_TRUE(::IsRectEmpty(&nothing));
}

TEST_F(BarMouse, DrawsTheEntryThatBecomesHotAndAsksForItAlone) {
  EXPECT_TRUE(Covers(owner.bar->Model().Entry(1, 2, 0)->rect, ChangedBy(owner.EntryPoint(1, 2))));
  EXPECT_EQ(Commands{112}, owner.probes);
  const RECT pending = owner.PendingPaint();
  EXPECT_TRUE(::IsRectEmpty(&pending));
}

TEST_F(BarMouse, WithinTheSameElementNothingIsDrawn) {
  MoveTo(owner.EntryPoint(1, 2));
  owner.probes.clear();
  POINT point = owner.EntryPoint(1, 2);
  ++point.x;
  MoveTo(point);
  EXPECT_TRUE(owner.probes.empty());
}

TEST_F(BarMouse, TheHandIsShownOnFoldersAndLinks) {
  owner.bar->OpenFolder(2, false);
  owner.Add(200, BarEntryKind::Link);
  const HCURSOR hand = ::LoadCursorW(nullptr, IDC_HAND), arrow = ::LoadCursorW(nullptr, IDC_ARROW);
  ASSERT_NE(hand, arrow);
  MoveTo(owner.FolderPoint(0));
  EXPECT_EQ(hand, ::GetCursor());
  MoveTo(owner.EntryPoint(2, 0));
  EXPECT_EQ(arrow, ::GetCursor());
  MoveTo(owner.EntryPoint(2, 1));
  EXPECT_EQ(hand, ::GetCursor());
  MoveTo({20, 10});
  EXPECT_EQ(arrow, ::GetCursor());
}

TEST_F(BarMouse, TheHandIsShownBeforeTheMouseIsCaptured) {
  owner.bar->OpenFolder(2, false);
  owner.Add(200, BarEntryKind::Link);
  const HCURSOR hand = ::LoadCursorW(nullptr, IDC_HAND), arrow = ::LoadCursorW(nullptr, IDC_ARROW);
  const auto cursorAt = [&](POINT point) {
    ::ClientToScreen(owner.bar->Handle(), &point);
    ::SetCursorPos(point.x, point.y);
    ::SetCursor(nullptr);
    owner.bar->Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(owner.bar->Handle()), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return ::GetCursor();
  };
  EXPECT_EQ(hand, cursorAt(owner.FolderPoint(0)));
  EXPECT_EQ(arrow, cursorAt(owner.EntryPoint(2, 0)));
  EXPECT_EQ(hand, cursorAt(owner.EntryPoint(2, 1)));
  EXPECT_EQ(arrow, cursorAt({20, 10}));
}

TEST_F(BarMouse, OpeningAFolderForgetsTheHotEntry) {
  MoveTo(owner.EntryPoint(1, 1));
  owner.bar->OpenFolder(0, false);
  EXPECT_EQ(BarTarget(), Hot());
  MoveTo(owner.FolderPoint(2));
  owner.bar->OpenFolder(2, false);
  EXPECT_EQ(FolderTarget(2), Hot());
}

// --- Keyboard ------------------------------------------------------------------------------------------------------

class BarKeyboard : public BarMouse {
 protected:
  BarKeyboard() { owner.bar->Focus(); }
  BarTarget Focused() const { return owner.bar->FocusedElement(); }
};

TEST_F(BarKeyboard, BeginsAtTheCheckedEntryElseAtTheFirst) {
  EXPECT_EQ(EntryTarget(1, 0), Focused());
  owner.Select(111);
  EXPECT_EQ(EntryTarget(1, 1), Focused());
}

TEST_F(BarKeyboard, UpAndDownMoveThroughEntriesAndFolders) {
  const BarTarget all[] = {EntryTarget(1, 0), EntryTarget(1, 1), EntryTarget(1, 2),
                           FolderTarget(0),   FolderTarget(1),   FolderTarget(2)};
  for (const BarTarget& target : all) {
    EXPECT_EQ(target, Focused());
    owner.Press(VK_DOWN);
  }
  EXPECT_EQ(FolderTarget(2), Focused());  // the end is the end
  for (int i = 5; i >= 0; --i) {
    EXPECT_EQ(all[i], Focused());
    owner.Press(VK_UP);
  }
  EXPECT_EQ(EntryTarget(1, 0), Focused());
  EXPECT_TRUE(owner.commands.empty());  // moving selects nothing
}

TEST_F(BarKeyboard, HomeAndEndGoToTheEnds) {
  owner.Press(VK_END);
  EXPECT_EQ(FolderTarget(2), Focused());
  owner.Press(VK_HOME);
  EXPECT_EQ(EntryTarget(1, 0), Focused());
}

TEST_F(BarKeyboard, EnterAndSpaceClick) {
  owner.Press(VK_DOWN);
  owner.Press(VK_SPACE);
  EXPECT_EQ(Commands{111}, owner.commands);
  owner.Press(VK_END);
  owner.Press(VK_RETURN);
  EXPECT_EQ((Commands{111, 120}), owner.commands);
  EXPECT_EQ(2, owner.bar->Model().OpenFolder());
  EXPECT_EQ(FolderTarget(2), Focused());
  EXPECT_TRUE(owner.bar->HasFocus());
}

TEST_F(BarKeyboard, AfterItsFolderHasClosedAnEntryHasNoFocus) {
  owner.Press(VK_DOWN);
  owner.checked = 120;
  owner.bar->OpenFolder(2, false);
  owner.Settle();
  EXPECT_EQ(EntryTarget(2, 0), Focused());
}

TEST_F(BarKeyboard, GoesOnFromWhereTheMouseClicked) {
  owner.Click(owner.EntryPoint(1, 2));
  EXPECT_EQ(EntryTarget(1, 2), Focused());
  owner.Click({20, 10});
  EXPECT_EQ(EntryTarget(1, 2), Focused());
}

TEST_F(BarKeyboard, OtherKeysChangeNothing) {
  for (const WPARAM key : {VK_F2, VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT, static_cast<int>('A')}) owner.Press(key);
  EXPECT_EQ(EntryTarget(1, 0), Focused());
  EXPECT_TRUE(owner.commands.empty());
}

TEST_F(BarKeyboard, WantsArrowsAndEnterFromTheDialog) {
  EXPECT_EQ(DLGC_WANTARROWS, owner.bar->Send(WM_GETDLGCODE));
  MSG enter{owner.bar->Handle(), WM_KEYDOWN, VK_RETURN, 0, 0, {}};
  EXPECT_EQ(DLGC_WANTARROWS | DLGC_WANTMESSAGE,
            owner.bar->Send(WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter)));
  MSG escape{owner.bar->Handle(), WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
  EXPECT_EQ(DLGC_WANTARROWS, owner.bar->Send(WM_GETDLGCODE, VK_ESCAPE, reinterpret_cast<LPARAM>(&escape)));
}

TEST_F(BarKeyboard, TheDialogHandsItsKeysOver) {
  const auto press = [&](WPARAM key) {
    MSG message{owner.bar->Handle(), WM_KEYDOWN, key, 1, 0, {}};
    if (!::IsDialogMessageW(owner.window, &message)) ::DispatchMessageW(&message);
  };
  press(VK_DOWN);
  EXPECT_EQ(EntryTarget(1, 1), Focused());
  press(VK_RETURN);
  EXPECT_EQ(Commands{111}, owner.commands);
  press(VK_TAB);
  EXPECT_EQ(owner.button, ::GetFocus());
  MSG tab{owner.button, WM_KEYDOWN, VK_TAB, 1, 0, {}};
  ::IsDialogMessageW(owner.window, &tab);
  EXPECT_TRUE(owner.bar->HasFocus());
}

TEST_F(BarKeyboard, TheFocusIsSeenOnItsElementAlone) {
  owner.Settle();
  const auto focused = owner.Picture();
  ::SetFocus(owner.button);
  ::UpdateWindow(owner.bar->Handle());
  const auto plain = owner.Picture();
  RECT box = focused->DifferenceFrom(*plain);
  EXPECT_TRUE(Covers(owner.bar->Model().Entry(1, 0, 0)->rect, {box.left, box.top, box.right, box.bottom}));

  owner.bar->Focus();
  ::UpdateWindow(owner.bar->Handle());
  owner.Press(VK_END);
  box = owner.Picture()->DifferenceFrom(*plain);
  EXPECT_TRUE(Covers(owner.bar->Model().Folder(2)->rect, {box.left, box.top, box.right, box.bottom}));
  const RECT pending = owner.PendingPaint();
  EXPECT_TRUE(::IsRectEmpty(&pending));
}

// The platform's keeping of cues, for one window; not every platform under the tests has it.
LRESULT CALLBACK KeepCues(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
  bool& hidesFocus = *reinterpret_cast<bool*>(data);
  if (message == WM_QUERYUISTATE) return hidesFocus ? UISF_HIDEFOCUS : 0;
  if (message == WM_CHANGEUISTATE && wParam == MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS)) {
    hidesFocus = false;
    return ::SendMessageW(window, WM_UPDATEUISTATE, wParam, 0);
  }
  return ::DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(BarKeyboard, TheFocusIsHiddenUntilAKeyIsUsed) {
  bool hidesFocus = true;
  ::SetWindowSubclass(owner.bar->Handle(), KeepCues, 1, reinterpret_cast<DWORD_PTR>(&hidesFocus));
  owner.bar->Invalidate();
  owner.Settle();
  const auto hidden = owner.Picture();
  ::SetFocus(owner.button);
  owner.Settle();
  RECT box = owner.Picture()->DifferenceFrom(*hidden);
  EXPECT_TRUE(::IsRectEmpty(&box));

  owner.bar->Focus();
  owner.Press(VK_DOWN);
  EXPECT_FALSE(hidesFocus);
  owner.Settle();
  box = owner.Picture()->DifferenceFrom(*hidden);
  EXPECT_TRUE(Covers(owner.bar->Model().Entry(1, 1, 0)->rect, {box.left, box.top, box.right, box.bottom}));
  ::RemoveWindowSubclass(owner.bar->Handle(), KeepCues, 1);
}

TEST_F(BarKeyboard, ChangedCuesAreShownAtOnce) {
  owner.Settle();
  owner.bar->Send(WM_UPDATEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS));
  EXPECT_EQ(owner.bar->ClientRect().bottom, owner.PendingPaint().bottom);
}

}  // namespace
