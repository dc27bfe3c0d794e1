// How a link looks, to the eye and to a screen reader.
#include "LinkPage.h"
#include "support/Accessible.h"
#include "support/MouseTrackings.h"

namespace {

// --- Colours --------------------------------------------------------------------------------------------------------

TEST(CMyHyperLink, HasTheColorOfItsState) {
  const struct {
    bool markVisited, visit, hover;
    COLORREF color;
  } rows[] = {
      {false, false, false, kLink},  {false, false, true, kHover}, {false, true, false, kLink},
      {false, true, true, kHover},   {true, false, false, kLink},  {true, false, true, kHover},
      {true, true, false, kVisited}, {true, true, true, kVisited},
  };
  for (const bool notify : {false, true})
    for (const auto& row : rows) {
      LinkPage test;
      if (row.markVisited) test.MarkVisited();
      test.link->SetNotifyParent(notify);
      if (row.visit) test.Click();
      test.MoveMouse(row.hover ? 5 : -5, 5);
      EXPECT_EQ(row.color, test.Color()) << row.markVisited << row.visit << row.hover << notify;
    }
}

TEST(CMyHyperLink, HasASystemColorInHighContrast) {
  const SystemColorScope colors({{COLOR_HOTLIGHT, RGB(1, 2, 3)}});
  LinkPage test;
  test.MarkVisited();
  const HighContrastScope contrast;
  EXPECT_EQ(RGB(1, 2, 3), test.Color());
  test.MoveMouse(5, 5);
  EXPECT_EQ(RGB(1, 2, 3), test.Color());
  test.Click();
  EXPECT_EQ(RGB(1, 2, 3), test.Color());
}

// --- Mouse ----------------------------------------------------------------------------------------------------------

TEST(CMyHyperLink, HoversAndCapturesInsideItsClientArea) {
  const struct {
    int x, y;
    bool inside;
  } rows[] = {{0, 0, true},
              {kLinkWidth - 1, kLinkHeight - 1, true},
              {-1, 5, false},
              {5, -1, false},
              {kLinkWidth, 5, false},
              {5, kLinkHeight, false},
              {kLinkWidth / 2, 5, true}};
  for (const auto& row : rows) {
    LinkPage test;
    test.MoveMouse(row.x, row.y);
    EXPECT_EQ(row.inside, test.HasCapture()) << row.x << "," << row.y;
    EXPECT_EQ(row.inside ? kHover : kLink, test.Color()) << row.x << "," << row.y;
    test.MoveMouse(-100, -100);
    EXPECT_FALSE(test.HasCapture());
    EXPECT_EQ(kLink, test.Color());
  }
}

TEST(CMyHyperLink, RepaintsWhenTheMouseEntersAndLeaves) {
  LinkPage test;
  for (const int x : {5, -5}) {
    test.control.Redraw();
    EXPECT_FALSE(::GetUpdateRect(test.control.Handle(), nullptr, FALSE));
    test.MoveMouse(x, 5);
    EXPECT_TRUE(::GetUpdateRect(test.control.Handle(), nullptr, FALSE)) << x;
  }
}

TEST(CMyHyperLink, StopsHoveringWhenTheMouseIsTakenAway) {
  LinkPage test;
  test.MoveMouse(5, 5);
  ::SetCapture(test.page.Handle());
  EXPECT_EQ(kLink, test.Color());
  EXPECT_EQ(test.page.Handle(), ::GetCapture());
}

TEST(CMyHyperLink, AsksToHearWhenTheMouseLeaves) {
  LinkPage test;
  const MouseTrackings trackings;
  test.MoveMouse(5, 5);
  EXPECT_EQ(std::vector<HWND>{test.control.Handle()}, trackings.Askers());
}

TEST(CMyHyperLink, StopsHoveringWhenTheMouseGoesToAnotherProgram) {
  LinkPage test;
  test.MoveMouse(5, 5);
  test.control.Send(WM_MOUSELEAVE);
  EXPECT_EQ(kLink, test.Color());
  EXPECT_FALSE(test.HasCapture());
}

TEST(CMyHyperLink, CannotBeClickedWhileItIsHidden) {
  LinkPage test;
  test.link->SetNotifyParent(true);
  test.MoveMouse(5, 5);
  test.page.Show(false);  // by keyboard; the link still has the mouse
  test.control.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  EXPECT_TRUE(test.page.Received(kLinkClickedMessage).empty());
  EXPECT_FALSE(test.HasCapture());
  test.MoveMouse(5, 5);
  EXPECT_FALSE(test.HasCapture());
}

TEST(CMyHyperLink, ShowsTheHand) {
  LinkPage test;
  const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW), hand = ::LoadCursorW(nullptr, IDC_HAND);
  ASSERT_NE(arrow, hand);
  ::SetCursor(arrow);
  EXPECT_TRUE(test.control.Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(test.control.Handle()),
                                MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
  EXPECT_EQ(hand, ::GetCursor());
  ::SetCursor(arrow);
  test.MoveMouse(5, 5);
  EXPECT_EQ(hand, ::GetCursor());
}

HCURSOR WINAPI LoadNoHand(HINSTANCE instance, const wchar_t* name) {
  if (name == IDC_HAND) return nullptr;
  return RealFunction("user32.dll", "LoadCursorW", &LoadNoHand)(instance, name);
}

TEST(CMyHyperLink, ShowsTheArrowWhereTheSystemHasNoHand) {
  PatchImport("user32.dll", "LoadCursorW", reinterpret_cast<void*>(&LoadNoHand));
  LinkPage test;
  RestoreImport("user32.dll", "LoadCursorW");
  ::SetCursor(::LoadCursorW(nullptr, IDC_HAND));
  test.MoveMouse(5, 5);
  EXPECT_EQ(::LoadCursorW(nullptr, IDC_ARROW), ::GetCursor());
}

// --- Painting -------------------------------------------------------------------------------------------------------

TEST(CMyHyperLink, StandsOnThePagesGround) {
  LinkPage test;
  const Picture picture = Paint(test.control);
  EXPECT_EQ(PixelOf(kMarkedGround), picture.At(kLinkWidth - 1, 0));
  EXPECT_EQ(PixelOf(kMarkedGround), picture.At(kLinkWidth - 1, kLinkHeight - 1));
  const RECT inked = Inked(picture, kMarkedGround);
  EXPECT_GT(inked.right - inked.left, 50);
  EXPECT_LT(inked.left, 4);
  EXPECT_GT(CountPixels(picture, kLink), 20) << "the line below the text at least";
}

TEST(CMyHyperLink, LooksTheSameAfterHovering) {
  LinkPage test;
  const Picture before = Paint(test.control);
  for (int i = 0; i < 3; ++i) {
    test.MoveMouse(5, 5);
    test.control.Redraw();
    EXPECT_GT(CountPixels(Capture(test.control.Handle()), kHover), 20);
    EXPECT_EQ(0, CountPixels(Capture(test.control.Handle()), kLink));
    test.MoveMouse(-5, -5);
    test.control.Redraw();
  }
  EXPECT_TRUE(before.pixels == Capture(test.control.Handle()).pixels);
}

class LinkOnControl : public testing::TestWithParam<ControlDialog::Kind> {};

TEST_P(LinkOnControl, LeavesNothingOfAnEarlierText) {
  LinkPage test(ControlDialog::Layout::LeftToRight, 0, L"Help: What is this?", GetParam());
  test.control.Redraw();
  test.control.SetText(L"Help");
  test.control.Redraw();
  const Picture changed = Capture(test.control.Handle());
  LinkPage fresh(ControlDialog::Layout::LeftToRight, 0, L"Help", GetParam());
  EXPECT_TRUE(Paint(fresh.control).pixels == changed.pixels);
}

TEST_P(LinkOnControl, LeavesNothingOfAnEarlierState) {
  LinkPage test(ControlDialog::Layout::LeftToRight, 0, L"Help: What is this?", GetParam());
  const Picture before = Paint(test.control);
  EXPECT_GT(CountPixels(before, kLink), 20);
  test.control.Enable(false);
  test.control.Redraw();
  EXPECT_EQ(0, CountPixels(Capture(test.control.Handle()), kLink)) << "grey";
  test.control.Enable(true);
  test.control.Redraw();
  EXPECT_TRUE(before.pixels == Capture(test.control.Handle()).pixels);
}

INSTANTIATE_TEST_SUITE_P(Kinds, LinkOnControl, testing::Values(ControlDialog::Kind::Themed, ControlDialog::Kind::Plain),
                         [](const auto& info) {
                           return info.param == ControlDialog::Kind::Themed ? "Themed" : "Plain";
                         });

TEST(CMyHyperLink, BeginsAtTheRightInAMirroredPage) {
  LinkPage test(ControlDialog::Layout::RightToLeft);
  ASSERT_TRUE(test.control.IsMirrored());
  const RECT inked = Inked(Paint(test.control), kMarkedGround);
  EXPECT_GT(inked.left, 20);
  EXPECT_GT(inked.right, kLinkWidth - 4);
}

TEST(CMyHyperLink, PrintsWhatItPaints) {
  LinkPage test;
  EXPECT_TRUE(PrintsWhatItPaints(test.control));
}

TEST(CMyHyperLink, ShowsTheFocusWithKeyboardCuesOnly) {
  LinkPage test;
  const CWnd other = test.page.Add(L"BUTTON", L"Other", WS_TABSTOP, 100, {10, 40, 60, 60});
  const Picture plain = Paint(test.control);
  ShowKeyboardCues(test.control, false);
  test.control.Focus();
  ASSERT_TRUE(test.control.HasFocus());
  test.control.Redraw();
  EXPECT_TRUE(plain.pixels == Capture(test.control.Handle()).pixels);
  ShowKeyboardCues(test.control, true);
  test.control.Redraw();
  const RECT inked = Inked(Capture(test.control.Handle()), kMarkedGround);
  EXPECT_EQ(0, inked.left);
  EXPECT_EQ(0, inked.top);
  EXPECT_EQ(kLinkWidth, inked.right);
  EXPECT_EQ(kLinkHeight, inked.bottom);
  other.Focus();
  test.control.Redraw();
  EXPECT_TRUE(plain.pixels == Capture(test.control.Handle()).pixels);
}

// --- Screen readers -------------------------------------------------------------------------------------------------

class LinkReader : public testing::Test {
  const ComScope com_;
};

TEST_F(LinkReader, MeetsALink) {
  LinkPage test;
  test.link->SetUrl(L"https://www.nem-software.example/");
  const Accessible reader(test.control.Handle());
  ASSERT_TRUE(reader);
  EXPECT_EQ(ROLE_SYSTEM_LINK, reader.Role(CHILDID_SELF));
  EXPECT_EQ(L"Help: What is this?", reader.Name(CHILDID_SELF));
  EXPECT_EQ(L"Follow", reader.Action(CHILDID_SELF));
  EXPECT_EQ(L"https://www.nem-software.example/", reader.Value(CHILDID_SELF));
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_LINKED, reader.State(CHILDID_SELF));
  EXPECT_EQ(0, reader.Count());
}

TEST_F(LinkReader, HearsItsState) {
  LinkPage test;
  test.MarkVisited();
  const Accessible reader(test.control.Handle());
  ASSERT_TRUE(reader);
  test.control.Focus();
  EXPECT_TRUE(reader.State(CHILDID_SELF) & STATE_SYSTEM_FOCUSED);
  EXPECT_FALSE(reader.State(CHILDID_SELF) & (STATE_SYSTEM_HOTTRACKED | STATE_SYSTEM_TRAVERSED));
  test.MoveMouse(5, 5);
  EXPECT_TRUE(reader.State(CHILDID_SELF) & STATE_SYSTEM_HOTTRACKED);
  test.Click();
  EXPECT_TRUE(reader.State(CHILDID_SELF) & STATE_SYSTEM_TRAVERSED);
  test.control.Enable(false);
  EXPECT_TRUE(reader.State(CHILDID_SELF) & STATE_SYSTEM_UNAVAILABLE);
}

TEST_F(LinkReader, HearsTheCaptionWithoutMarks) {
  const struct {
    const wchar_t* caption;
    DWORD style;
    const wchar_t* name;
  } rows[] = {
      {L"Tips && tricks", 0, L"Tips & tricks"},          {L"&Help", 0, L"Help"}, {L"A&", 0, L"A"}, {L"", 0, L""},
      {L"Tips & tricks", SS_NOPREFIX, L"Tips & tricks"}, {L"&&&x", 0, L"&x"}};
  for (const auto& row : rows) {
    LinkPage test(ControlDialog::Layout::LeftToRight, row.style, row.caption);
    const Accessible reader(test.control.Handle());
    ASSERT_TRUE(reader);
    EXPECT_EQ(row.name, reader.Name(CHILDID_SELF));
  }
}

TEST_F(LinkReader, HearsNoAddressThatIsNotOpened) {
  LinkPage test;
  test.link->SetUrl(L"https://www.nem-software.example/");
  test.link->SetNotifyParent(true);
  const Accessible reader(test.control.Handle());
  ASSERT_TRUE(reader);
  EXPECT_EQ(L"", reader.Value(CHILDID_SELF));
}

TEST_F(LinkReader, FollowsALinkLater) {
  LinkPage test;
  test.link->SetNotifyParent(true);
  const Accessible reader(test.control.Handle());
  ASSERT_TRUE(reader);
  EXPECT_EQ(S_OK, reader->accDoDefaultAction(Accessible::Part(CHILDID_SELF)));
  EXPECT_TRUE(test.page.Received(0x465).empty()) << "the reader does not wait for it";
  RunPostedMessages();
  EXPECT_EQ(1u, test.page.Received(0x465).size());
}

// A box over the sheet disables the sheet, not its links.
TEST_F(LinkReader, FollowsNoDisabledLinkAndNoneUnderABox) {
  for (const bool whole : {false, true}) {
    LinkPage test;
    test.link->SetNotifyParent(true);
    const Accessible reader(test.control.Handle());
    ASSERT_TRUE(reader);
    reader->accDoDefaultAction(Accessible::Part(CHILDID_SELF));
    ::EnableWindow(whole ? ::GetAncestor(test.page.Handle(), GA_ROOT) : test.control.Handle(), FALSE);
    RunPostedMessages();
    reader->accDoDefaultAction(Accessible::Part(CHILDID_SELF));
    RunPostedMessages();
    EXPECT_TRUE(test.page.Received(0x465).empty()) << whole;
  }
}

TEST_F(LinkReader, FindsNobodyWhenTheLinkIsGone) {
  for (const bool control : {true, false}) {
    LinkPage test;
    const Accessible reader(test.control.Handle());
    ASSERT_TRUE(reader);
    if (control) {
      ::DestroyWindow(test.control.Handle());
    } else {
      test.link.reset();
    }
    BSTR name = nullptr;
    EXPECT_TRUE(FAILED(reader->get_accName(Accessible::Part(CHILDID_SELF), &name)));
  }
}

}  // namespace
