// The note with the list of differences: by mouse over a row's text, and by keyboard on its square or link.
#include "CockpitTest.h"

#include "controls/ToolTipPlacement.h"

namespace cockpit_test {
namespace {

class CockpitNote : public CockpitTest {
 protected:
  CockpitNote() {
    settings_.values.paper.paperSize = 8;
    settings_.values.paper.border = 1;
    settings_.values.security.userPasswordEnabled = 1;
  }

  void MoveMouseTo(int id) const {
    const POINT middle = MiddleOf(id);
    MoveMouse(middle.x, middle.y);
  }
  RECT PlaceOfNote() const { return Item(IDC_COCKPIT_NOTE).RectIn(page_); }
};

TEST_F(CockpitNote, AppearsOverTheTextOfAMarkedRow) {
  Open();
  EXPECT_EQ(nullptr, Note());
  MoveMouseTo(TextId(2));
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(Note()->text, L"Changed: \n- Page size\n- Margins");
  EXPECT_EQ(3, Note()->lineCount);
  EXPECT_EQ(11, Note()->widthInCharacters);
  const POINT middle = MiddleOf(TextId(2));
  EXPECT_EQ((IntPoint{middle.x, middle.y}), Note()->mousePosition);
  EXPECT_EQ(page_.Handle(), GetParent(Note()->Handle()));
  EXPECT_TRUE(IsWindowVisible(Note()->Handle()));
}

TEST_F(CockpitNote, TakesTheWidthOfItsLongestLine) {
  settings_.values.colors.colorspace = 1;
  settings_.values.zugferd.zugferd = 1;
  settings_.values.action.startAction = 1 | 2;
  Open();
  MoveMouseTo(TextId(17));
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(26, Note()->widthInCharacters) << "- Password for opening PDF";
  EXPECT_EQ(2, Note()->lineCount);
  MoveMouseTo(TextId(14));
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(9, Note()->widthInCharacters) << "- ZUGFeRD, as long as the heading";
  MoveMouseTo(TextId(12));
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(9, Note()->widthInCharacters) << "the heading is longer than - E-Mail";
  EXPECT_EQ(Note()->text, L"Changed: \n- E-Mail");
}

TEST_F(CockpitNote, StandsWhereTheArithmeticPutsIt) {
  Open();
  const RECT client = page_.ClientRect();
  const RECT text = Item(TextId(2)).RectIn(page_);
  for (const POINT point : {POINT{text.left, text.top}, POINT{text.right, text.bottom}, MiddleOf(TextId(2))}) {
    MoveMouse(point.x, point.y);
    ASSERT_NE(nullptr, Note());
    const IntRect expected = PlaceToolTip(3, 11, {point.x, point.y}, {0, 0, client.right, client.bottom}, page_.Dpi());
    const RECT place = PlaceOfNote();
    EXPECT_EQ(expected, (IntRect{place.left, place.top, place.right, place.bottom}));
    EXPECT_EQ(11 * 5 + 14, place.right - place.left);
    EXPECT_EQ(3 * 15 + 4, place.bottom - place.top);
  }
}

TEST_F(CockpitNote, OpensToTheLeftNearTheRightEdge) {
  settings_.values.security = {1, 1, 1};
  Open();
  const RECT client = page_.ClientRect();
  const RECT text = Item(TextId(17)).RectIn(page_);
  MoveMouse(text.right, text.top + 2);
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(client.right - 1, PlaceOfNote().right);
  EXPECT_EQ(36 * 5 + 14, PlaceOfNote().right - PlaceOfNote().left);
  EXPECT_EQ(text.top + 3, PlaceOfNote().bottom) << "above the mouse";
}

TEST_F(CockpitNote, OpensDownwardsNearTheTop) {
  settings_.values.graphic.jpegQuality = 1;
  Open();
  // The first row has room above for its own two lines; a row that stands at the very top has none.
  Item(TextId(1)).Move({100, 10, 200, 24});
  MoveMouse(150, 12);
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(11, PlaceOfNote().top);
  EXPECT_EQ(149, PlaceOfNote().left);
}

TEST_F(CockpitNote, BothEndsOfTheTextAreHot) {
  Open();
  const RECT text = Item(TextId(2)).RectIn(page_);
  const LONG x = (text.left + text.right) / 2, y = (text.top + text.bottom) / 2;
  for (const POINT point : {POINT{text.left, y}, POINT{text.right, y}, POINT{x, text.top}, POINT{x, text.bottom}}) {
    MoveMouse(point.x, point.y);
    EXPECT_NE(nullptr, Note()) << point.x << ", " << point.y;
  }
  for (const POINT point :
       {POINT{text.left - 1, y}, POINT{text.right + 1, y}, POINT{x, text.top - 1}, POINT{x, text.bottom + 1}}) {
    MoveMouse(point.x, point.y);
    EXPECT_EQ(nullptr, Note()) << point.x << ", " << point.y;
  }
}

TEST_F(CockpitNote, TheFirstRowThatHoldsTheMouseIsTaken) {
  settings_.values.graphic.jpegQuality = 1;
  Open();
  Item(TextId(1)).Move({100, 100, 200, 110});
  Item(TextId(2)).Move({100, 110, 200, 120});
  MoveMouse(150, 110);
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(Note()->text, L"Changed: \n- PDF size");
  Item(TextId(1)).Move({100, 100, 200, 109});
  MoveMouse(150, 110);
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(Note()->text, L"Changed: \n- Page size\n- Margins");
}

// An unmarked row hides the one behind it all the same.
TEST_F(CockpitNote, AnUnmarkedRowIsTakenTooAndShowsNothing) {
  Open();
  Item(TextId(1)).Move({100, 100, 200, 110});
  Item(TextId(2)).Move({100, 110, 200, 120});
  MoveMouse(150, 110);
  EXPECT_EQ(nullptr, Note());
}

TEST_F(CockpitNote, OnlyTheTextIsHot) {
  Open();
  for (const int id : {SquareId(2), LinkId(2), TextId(1), TextId(3), IDC_COCKPIT_EXPLANATION}) {
    MoveMouseTo(id);
    EXPECT_EQ(nullptr, Note()) << id;
  }
}

// The text lets the mouse through, and so does the group box around it, or the page would never hear of it.
TEST_F(CockpitNote, TheMouseOverATextIsThePages) {
  Open();
  for (int category = 1; category <= kCockpitCategoryCount; ++category) {
    const RECT place = Item(TextId(category)).WindowRect();
    const LPARAM middle = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    for (const int id : {TextId(category), kRows[category - 1].groupId})
      EXPECT_EQ(HTTRANSPARENT, Item(id).Send(WM_NCHITTEST, 0, middle)) << id;
  }
}

TEST_F(CockpitNote, EndsAtTheNextMovement) {
  Open();
  MoveMouseTo(TextId(2));
  const HWND window = Item(IDC_COCKPIT_NOTE).Handle();
  MoveMouse(1, 1);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(nullptr, Note());
  MoveMouseTo(TextId(17));
  ASSERT_NE(nullptr, Note());
  MoveMouseTo(TextId(2));
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(Note()->text, L"Changed: \n- Page size\n- Margins");
}

TEST_F(CockpitNote, HandsAMovementOverItToThePage) {
  Open();
  MoveMouseTo(TextId(2));
  const POINT point = MiddleOf(TextId(2));
  const RECT note = PlaceOfNote();
  Item(IDC_COCKPIT_NOTE)
      .Send(WM_MOUSEMOVE, 0, MAKELPARAM(point.x - note.left, point.y - note.top - 30));  // still over the note
  EXPECT_EQ(nullptr, Note()) << "no marked row stands there";
}

TEST_F(CockpitNote, EndsWhenTheMouseLeavesIt) {
  Open();
  MoveMouseTo(TextId(2));
  Item(IDC_COCKPIT_NOTE).Send(WM_MOUSELEAVE);
  EXPECT_EQ(nullptr, Note());
}

TEST_F(CockpitNote, EndsWhenThePageIsLeftOrFilledAnew) {
  Open();
  MoveMouseTo(TextId(2));
  EXPECT_TRUE(page_.OnKillActive());
  EXPECT_EQ(nullptr, Note());
  MoveMouseTo(TextId(2));
  Refresh();
  EXPECT_EQ(nullptr, Note());
}

TEST_F(CockpitNote, GoesWithThePage) {
  Open();
  MoveMouseTo(TextId(2));
  const HWND window = Item(IDC_COCKPIT_NOTE).Handle();
  page_.Destroy();
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(CockpitNote, IsHotOnAMirroredPageAsWell) {
  const LanguageScope arabic(0x0401);
  CNemUICockpitPage page(&sheet_, kCockpit, 0);
  Open(page);
  ASSERT_TRUE(CWnd(page.Handle()).IsMirrored());
  const RECT text = CWnd(page.Handle()).Item(TextId(2)).RectIn(page);
  ASSERT_LT(text.left, text.right);
  const auto noteAt = [&](LONG x) {
    page.Send(WM_MOUSEMOVE, 0, MAKELPARAM(x, text.top + 3));
    return IsWindow(GetDlgItem(page.Handle(), IDC_COCKPIT_NOTE)) != FALSE;
  };
  EXPECT_TRUE(noteAt(text.left));
  EXPECT_TRUE(noteAt(text.right));
  EXPECT_FALSE(noteAt(text.left - 1));
  EXPECT_FALSE(noteAt(text.right + 1));
}

// --- By keyboard ----------------------------------------------------------------------------------------------------

TEST_F(CockpitNote, AppearsWhenTheSquareOrTheLinkHasTheFocus) {
  Open();
  for (const int id : {SquareId(2), LinkId(2)}) {
    Control(id).Focus();
    ASSERT_NE(nullptr, Note()) << id;
    EXPECT_EQ(Note()->text, L"Changed: \n- Page size\n- Margins");
    EXPECT_LE(PlaceOfNote().bottom, Item(TextId(2)).RectIn(page_).top + 1) << "the row's text stays in view";
    EXPECT_TRUE(Control(id).HasFocus());
    Control(1444).Focus();
    EXPECT_EQ(nullptr, Note()) << id;
  }
  Control(SquareId(3)).Focus();
  EXPECT_EQ(nullptr, Note()) << "an unmarked row has none";
}

TEST_F(CockpitNote, FollowsTheFocusFromRowToRow) {
  Open();
  Control(LinkId(2)).Focus();
  Control(SquareId(17)).Focus();
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(Note()->text, L"Changed: \n- Password for opening PDF");
  Control(SquareId(16)).Focus();
  EXPECT_EQ(nullptr, Note());
}

TEST_F(CockpitNote, OfTheKeyboardEndsAtAMovementOfTheMouse) {
  Open();
  Control(SquareId(2)).Focus();
  POINT resting;
  GetCursorPos(&resting);
  resting = page_.ScreenToClient(resting);
  MoveMouse(resting.x, resting.y);
  EXPECT_NE(nullptr, Note()) << "the mouse stands where it was";
  Item(IDC_COCKPIT_NOTE).Send(WM_MOUSELEAVE);
  EXPECT_NE(nullptr, Note());
  MoveMouse(resting.x + 1, resting.y);
  EXPECT_EQ(nullptr, Note());
}

TEST_F(CockpitNote, OfTheMouseStaysWhenTheFocusGoes) {
  Open();
  Control(SquareId(2)).Focus();
  MoveMouseTo(TextId(17));
  Control(1444).Focus();
  ASSERT_NE(nullptr, Note());
  EXPECT_EQ(Note()->text, L"Changed: \n- Password for opening PDF");
}

}  // namespace
}  // namespace cockpit_test
