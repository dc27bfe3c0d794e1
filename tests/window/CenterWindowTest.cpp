// Centred windows: what they are centred on, and what they are kept in.
#include "window/CenterWindow.h"

#include <gtest/gtest.h>

#include <ostream>

#include "driver/ImportPatch.h"
#include "window/Placement.h"

void PrintTo(const IntPoint& point, std::ostream* stream) { *stream << '(' << point.x << ", " << point.y << ')'; }

namespace {

RECT WorkArea() {
  RECT area{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  return area;
}

// Small enough to stand anywhere near the middle of the screen.
constexpr RECT kOwnerPlace{300, 250, 600, 450};
constexpr SIZE kSize{101, 61};

class CenterWindowTest : public testing::Test {
 protected:
  CenterWindowTest() : owner_(MakePopup(kOwnerPlace, nullptr)) {}
  ~CenterWindowTest() override {
    for (auto window = made_.rbegin(); window != made_.rend(); ++window) DestroyWindow(*window);
  }

  HWND MakePopup(const RECT& place, HWND owner, DWORD style = WS_VISIBLE) {
    return Make(WS_POPUP | style, place, owner, 0);
  }
  HWND Make(DWORD style, const RECT& place, HWND parent, DWORD extendedStyle) {
    made_.push_back(CreateWindowExW(extendedStyle, L"STATIC", L"", style, place.left, place.top,
                                    place.right - place.left, place.bottom - place.top, parent, nullptr, nullptr,
                                    nullptr));
    return made_.back();
  }
  CWnd MakeDialog(HWND owner, SIZE size = kSize) { return CWnd(MakePopup({0, 0, size.cx, size.cy}, owner)); }

  static IntPoint PlaceOf(const CWnd& window) {
    const RECT rect = window.WindowRect();
    return {rect.left, rect.top};
  }
  // The arithmetic has tests of its own.
  static IntPoint Centred(const RECT& reference, const RECT& area, SIZE size = kSize) {
    return PlaceCentered(size.cx, size.cy, {reference.left, reference.top, reference.right, reference.bottom},
                         {area.left, area.top, area.right, area.bottom});
  }

  std::vector<HWND> made_;
  HWND owner_;
};

TEST_F(CenterWindowTest, OwnerIsTheReferenceOfADialog) {
  const CWnd dialog = MakeDialog(owner_);
  CenterWindow(dialog);
  EXPECT_EQ((IntPoint{450 - 50, 350 - 30}), PlaceOf(dialog));
}

TEST_F(CenterWindowTest, OwnerAtTheEdgeKeepsTheDialogOnTheScreen) {
  const RECT area = WorkArea();
  const RECT place{area.right - 40, area.bottom - 30, area.right + 60, area.bottom + 70};
  const CWnd dialog = MakeDialog(MakePopup(place, nullptr));
  CenterWindow(dialog);
  EXPECT_EQ((IntPoint{area.right - kSize.cx, area.bottom - kSize.cy}), PlaceOf(dialog));
}

TEST_F(CenterWindowTest, OwnerThatIsHiddenOrMinimisedCountsAsNone) {
  const IntPoint middle = Centred(WorkArea(), WorkArea());
  const CWnd ofHidden = MakeDialog(MakePopup(kOwnerPlace, nullptr, 0));
  CenterWindow(ofHidden);
  EXPECT_EQ(middle, PlaceOf(ofHidden));
  const CWnd ofMinimised = MakeDialog(owner_);
  CWnd(owner_).ChangeStyle(0, WS_MINIMIZE);
  CenterWindow(ofMinimised);
  EXPECT_EQ(middle, PlaceOf(ofMinimised));
}

TEST_F(CenterWindowTest, WithoutAnOwnerTheWorkAreaIsTheReference) {
  const CWnd dialog = MakeDialog(nullptr);
  CenterWindow(dialog);
  EXPECT_EQ(Centred(WorkArea(), WorkArea()), PlaceOf(dialog));
}

TEST_F(CenterWindowTest, NullReferenceMeansNoneThoughThereIsAnOwner) {
  const CWnd dialog = MakeDialog(owner_);
  CenterWindow(dialog, nullptr);
  EXPECT_EQ(Centred(WorkArea(), WorkArea()), PlaceOf(dialog));
}

TEST_F(CenterWindowTest, GivenReferenceGoesBeforeTheOwner) {
  const RECT place{100, 80, 260, 200};
  const CWnd dialog = MakeDialog(owner_);
  CenterWindow(dialog, MakePopup(place, nullptr));
  EXPECT_EQ(Centred(place, WorkArea()), PlaceOf(dialog));
}

TEST_F(CenterWindowTest, DialogLargerThanTheScreenBeginsAtItsEdge) {
  const RECT area = WorkArea();
  const SIZE size{area.right - area.left + 200, area.bottom - area.top + 100};
  const CWnd dialog = MakeDialog(owner_, size);
  CenterWindow(dialog);
  EXPECT_EQ((IntPoint{area.left, area.top}), PlaceOf(dialog));
  EXPECT_GT(dialog.WindowRect().right, area.right);
}

// A second monitor, which the reference stands on.
const HMONITOR kSecondMonitor = reinterpret_cast<HMONITOR>(INT_PTR{0x4D4F4E});
constexpr RECT kSecondWorkArea{420, 340, 1020, 940};
decltype(&GetMonitorInfoW) realMonitorInfo = nullptr;
HWND askedFor = nullptr;

HMONITOR WINAPI SaySecondMonitor(HWND window, DWORD flags) {
  askedFor = window;
  return flags == MONITOR_DEFAULTTONEAREST ? kSecondMonitor : nullptr;
}

BOOL WINAPI KnowSecondMonitor(HMONITOR monitor, MONITORINFO* info) {
  if (monitor != kSecondMonitor) return realMonitorInfo(monitor, info);
  info->rcWork = kSecondWorkArea;
  return TRUE;
}

TEST_F(CenterWindowTest, MonitorNearestToTheReferenceKeepsTheDialog) {
  const CWnd dialog = MakeDialog(owner_), alone = MakeDialog(nullptr);
  realMonitorInfo = RealFunction("user32.dll", "GetMonitorInfoW", &GetMonitorInfoW);
  PatchImport("user32.dll", "GetMonitorInfoW", reinterpret_cast<void*>(&KnowSecondMonitor));
  PatchImport("user32.dll", "MonitorFromWindow", reinterpret_cast<void*>(&SaySecondMonitor));
  CenterWindow(dialog);
  CenterWindow(alone);
  RestoreImport("user32.dll", "MonitorFromWindow");
  RestoreImport("user32.dll", "GetMonitorInfoW");
  EXPECT_EQ(owner_, askedFor);
  EXPECT_EQ((IntPoint{kSecondWorkArea.left, kSecondWorkArea.top}), PlaceOf(dialog));
  EXPECT_EQ(Centred(WorkArea(), WorkArea()), PlaceOf(alone)) << "without a reference it is the primary one";
}

TEST_F(CenterWindowTest, SizeOrderAndActivationStay) {
  const CWnd dialog = MakeDialog(owner_);
  const CWnd other = MakeDialog(owner_);
  SetActiveWindow(other.Handle());
  SetWindowPos(other.Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  const HWND behind = GetWindow(dialog.Handle(), GW_HWNDPREV);
  CenterWindow(dialog);
  EXPECT_EQ(kSize.cx, dialog.ClientRect().right);
  EXPECT_EQ(kSize.cy, dialog.ClientRect().bottom);
  EXPECT_EQ(behind, GetWindow(dialog.Handle(), GW_HWNDPREV));
  EXPECT_EQ(other.Handle(), GetActiveWindow());
}

TEST_F(CenterWindowTest, ChildIsCentredInItsParent) {
  const CWnd child(Make(WS_CHILD | WS_VISIBLE, {0, 0, 101, 61}, owner_, 0));
  CenterWindow(child);
  const RECT rect = child.RectIn(CWnd(owner_));
  EXPECT_EQ(150 - 50, rect.left);
  EXPECT_EQ(100 - 30, rect.top);
}

TEST_F(CenterWindowTest, ChildIsCentredOnASiblingAndKeptInItsParent) {
  const HWND sibling = Make(WS_CHILD | WS_VISIBLE, {20, 100, 120, 180}, owner_, 0);
  const CWnd child(Make(WS_CHILD | WS_VISIBLE, {0, 0, 40, 20}, owner_, 0));
  CenterWindow(child, sibling);
  EXPECT_EQ(70 - 20, child.RectIn(CWnd(owner_)).left);
  EXPECT_EQ(140 - 10, child.RectIn(CWnd(owner_)).top);
  const CWnd wide(Make(WS_CHILD | WS_VISIBLE, {0, 0, 280, 20}, owner_, 0));
  CenterWindow(wide, sibling);
  EXPECT_EQ(0, wide.RectIn(CWnd(owner_)).left);
}

TEST_F(CenterWindowTest, ChildOfAHiddenParentIsCentredAllTheSame) {
  const HWND parent = MakePopup(kOwnerPlace, nullptr, 0);
  const CWnd child(Make(WS_CHILD | WS_VISIBLE, {0, 0, 101, 61}, parent, 0));
  CenterWindow(child);
  EXPECT_EQ(100, child.RectIn(CWnd(parent)).left);
}

TEST_F(CenterWindowTest, ChildOfAMirroredParentCountsFromTheRight) {
  const HWND parent = Make(WS_POPUP | WS_VISIBLE, kOwnerPlace, nullptr, WS_EX_LAYOUTRTL);
  const HWND sibling = Make(WS_CHILD | WS_VISIBLE, {20, 100, 120, 180}, parent, 0);
  const CWnd child(Make(WS_CHILD | WS_VISIBLE, {0, 0, 40, 20}, parent, 0));
  CenterWindow(child, sibling);
  EXPECT_EQ(70 - 20, child.RectIn(CWnd(parent)).left);
  EXPECT_EQ(kOwnerPlace.right - 50, child.WindowRect().right);
}

TEST_F(CenterWindowTest, NoWindowIsNoFailure) {
  CenterWindow(CWnd());
  const CWnd dialog = MakeDialog(owner_);
  DestroyWindow(dialog.Handle());
  CenterWindow(dialog);
}

}  // namespace
