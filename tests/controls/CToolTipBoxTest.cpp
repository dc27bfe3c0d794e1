#include "controls/CToolTipBox.h"

#include "ControlDialog.h"
#include "controls/PointSize.h"
#include "controls/ToolTipPlacement.h"
#include "PlatformSpy.h"
#include "support/Accessible.h"
#include "support/MouseTrackings.h"

namespace {

constexpr int kId = 0x5030;

constexpr COLORREF kTipGround = 0xC8FFFF, kTipFrame = 0x3C3C3C;
constexpr IntPoint kMouse{60, 90};

// A page as the cockpit has it: each movement of the mouse ends the box.
class TipPage {
 public:
  explicit TipPage(ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight) : page(layout) {
    tip = std::make_unique<CToolTipBox>();
    tip->text = L"Changed: \nHHHH\nHHHH";
    tip->lineCount = 3;
    tip->widthInCharacters = 20;
    tip->mousePosition = kMouse;
    EXPECT_TRUE(tip->Open(page, kId));
  }
  LPARAM OnTip(int pageX, int pageY) const {
    const RECT rect = tip->RectIn(page);
    return MAKELPARAM(pageX - rect.left, pageY - rect.top);
  }

  ControlDialog page;
  std::unique_ptr<CToolTipBox> tip;
};

TEST(CToolTipBox, IsEmptyAtFirst) {
  const CToolTipBox tip;
  EXPECT_TRUE(tip.text.IsEmpty());
  EXPECT_EQ(0, tip.lineCount);
  EXPECT_EQ(0, tip.widthInCharacters);
  EXPECT_EQ(IntPoint(), tip.mousePosition);
}

TEST(CToolTipBox, OpensBesideTheMouse) {
  for (const auto layout : {ControlDialog::Layout::LeftToRight, ControlDialog::Layout::RightToLeft}) {
    TipPage test(layout);
    const RECT client = test.page.ClientRect();
    const IntRect expected = PlaceToolTip(3, 20, kMouse, {0, 0, client.right, client.bottom}, test.page.Dpi());
    const RECT place = test.tip->RectIn(test.page);
    EXPECT_EQ(expected, (IntRect{place.left, place.top, place.right, place.bottom}));
    EXPECT_EQ(test.tip->Handle(), ::GetTopWindow(test.page.Handle()));
    EXPECT_TRUE(::IsWindowVisible(test.tip->Handle()));
  }
}

// The page may reach beyond the window around it.
TEST(CToolTipBox, KeepsToWhatIsSeenOfThePage) {
  for (const auto layout : {ControlDialog::Layout::LeftToRight, ControlDialog::Layout::RightToLeft}) {
    ControlDialog outer(layout), page(layout, outer.Handle());
    const RECT seen = outer.ClientRect();
    page.Move({-20, -30, seen.right + 80, seen.bottom + 80});
    CToolTipBox tip;
    tip.lineCount = 3;
    tip.widthInCharacters = 20;
    tip.mousePosition = {seen.right + 15, 60};  // the page has room to the right of it and above it
    ASSERT_TRUE(tip.Open(page, kId));
    const IntRect expected =
        PlaceToolTip(3, 20, tip.mousePosition, {20, 30, seen.right + 20, seen.bottom + 30}, page.Dpi());
    const RECT place = tip.RectIn(page);
    EXPECT_EQ(expected, (IntRect{place.left, place.top, place.right, place.bottom}));
  }
}

TEST(CToolTipBox, HasTheFontOfATip) {
  TipPage test;
  const LOGFONTW font = DescribeFont(*test.tip);
  EXPECT_EQ(FontHeight(8, test.tip->Dpi()), font.lfHeight);
  EXPECT_EQ(400, font.lfWeight);
  EXPECT_FALSE(font.lfItalic);
}

TEST(CToolTipBox, IsPaleYellowWithAFrame) {
  for (const auto layout : {ControlDialog::Layout::LeftToRight, ControlDialog::Layout::RightToLeft}) {
    TipPage test(layout);
    const Picture picture = Paint(*test.tip);
    for (int x = 0; x < picture.width; ++x) {
      ASSERT_EQ(PixelOf(kTipFrame), picture.At(x, 0)) << x;
      ASSERT_EQ(PixelOf(kTipFrame), picture.At(x, picture.height - 1)) << x;
    }
    for (int y = 0; y < picture.height; ++y) {
      ASSERT_EQ(PixelOf(kTipFrame), picture.At(0, y)) << y;
      ASSERT_EQ(PixelOf(kTipFrame), picture.At(picture.width - 1, y)) << y;
    }
    // The frame is one pixel wide, and the text begins two pixels inside.
    const Picture inside = Cut(picture, {1, 1, picture.width - 1, picture.height - 1});
    const RECT inked = Inked(inside, kTipGround);
    EXPECT_GE(inked.left, 1);
    EXPECT_GE(inked.top, 1);
    EXPECT_LE(inked.right, inside.width - 1);
    const bool mirrored = layout == ControlDialog::Layout::RightToLeft;
    EXPECT_LT(mirrored ? inside.width - inked.right : inked.left, 10) << "the text begins at the edge";
    EXPECT_GT(mirrored ? inked.left : inside.width - inked.right, 40) << "and ends before the other";
    EXPECT_GT(inked.bottom - inked.top, 2 * 11) << "three lines";
    EXPECT_GT(CountPixels(inside, RGB(0, 0, 0)), 20) << "the text is black";
  }
}

TEST(CToolTipBox, InsetsItsTextByTwoPixels) {
  TipPage test;
  const Picture painted = Paint(*test.tip);
  const WindowDC dc(test.tip->Handle());
  RECT rect = test.tip->ClientRect();
  ::FillRect(dc, &rect, GdiBrush(::CreateSolidBrush(kTipGround)).Get());
  ::FrameRect(dc, &rect, GdiBrush(::CreateSolidBrush(kTipFrame)).Get());
  ::InflateRect(&rect, -2, -2);
  const SelectScope font(dc, test.tip->Font());
  ::SetBkMode(dc, TRANSPARENT);
  ::DrawTextW(dc, test.tip->text.Text(), -1, &rect, DT_WORDBREAK);
  EXPECT_TRUE(painted.pixels == Capture(test.tip->Handle()).pixels);
}

TEST(CToolTipBox, BreaksLongLines) {
  TipPage test;
  ControlDialog& page = test.page;
  CToolTipBox tip;
  tip.text = L"HHHH HHHH HHHH HHHH HHHH HHHH HHHH HHHH";
  tip.lineCount = 4;
  tip.widthInCharacters = 20;
  tip.mousePosition = kMouse;
  ASSERT_TRUE(tip.Open(page, kId));
  const Picture picture = Paint(tip);
  const RECT inked = Inked(Cut(picture, {1, 1, picture.width - 1, picture.height - 1}), kTipGround);
  EXPECT_GT(inked.bottom - inked.top, 2 * 11);
}

// Wide letters need more than the five pixels that a character has in the box: they are drawn narrower, so that no line
// is broken in two and the last one cut.
TEST(CToolTipBox, DrawsWideLettersNarrowerWhereTheyWouldNotFit) {
  const auto heightOfInk = [](const wchar_t* text) {
    ControlDialog page;
    CToolTipBox tip;
    tip.text = text;
    tip.lineCount = 2;
    tip.widthInCharacters = 24;
    tip.mousePosition = kMouse;
    EXPECT_TRUE(tip.Open(page, kId));
    const Picture picture = Paint(tip);
    const RECT inked = Inked(Cut(picture, {1, 1, picture.width - 1, picture.height - 1}), kTipGround);
    return inked.bottom - inked.top;
  };
  const LONG twoLines = heightOfInk(L"HHHH HHHH\nHHHH");
  EXPECT_EQ(twoLines, heightOfInk(L"ODOG ODOG ODOG ODOG ODOG\nHHHH"));
  EXPECT_LT(twoLines, heightOfInk(L"WWWW WWWW WWWW WWWW WWWW WWWW WWWW\nHHHH")) << "far too wide: broken all the same";
}

TEST(CToolTipBox, HasSystemColorsInHighContrast) {
  const SystemColorScope colors({{COLOR_INFOBK, RGB(1, 2, 3)}, {COLOR_INFOTEXT, RGB(250, 251, 252)}});
  const HighContrastScope contrast;
  TipPage test;
  const Picture picture = Paint(*test.tip);
  EXPECT_EQ(PixelOf(RGB(250, 251, 252)), picture.At(0, 0));
  EXPECT_EQ(PixelOf(RGB(1, 2, 3)), picture.At(picture.width - 2, picture.height - 2));
  EXPECT_EQ(0, CountPixels(picture, kTipGround));
  EXPECT_EQ(0, CountPixels(picture, RGB(0, 0, 0)));
}

TEST(CToolTipBox, HandsMovementsToThePage) {
  for (const auto layout : {ControlDialog::Layout::LeftToRight, ControlDialog::Layout::RightToLeft}) {
    TipPage test(layout);
    EXPECT_EQ(HTCLIENT, test.tip->Send(WM_NCHITTEST));
    test.tip->Send(WM_MOUSEMOVE, MK_SHIFT, test.OnTip(kMouse.x + 3, kMouse.y - 5));
    const std::vector<WindowMessage> moves = test.page.Received(WM_MOUSEMOVE);
    ASSERT_EQ(1u, moves.size());
    EXPECT_EQ(MAKELPARAM(kMouse.x + 3, kMouse.y - 5), moves[0].lParam);
    EXPECT_EQ(static_cast<WPARAM>(MK_SHIFT), moves[0].wParam);
  }
}

TEST(CToolTipBox, KeepsQuietWhileTheMouseStands) {
  TipPage test;
  test.tip->Send(WM_MOUSEMOVE, 0, test.OnTip(kMouse.x, kMouse.y));
  EXPECT_TRUE(test.page.Received(WM_MOUSEMOVE).empty()) << "else a box would end and come again for ever";
}

TEST(CToolTipBox, AsksToHearWhenTheMouseLeavesThoughItStands) {
  TipPage test;
  const MouseTrackings trackings;
  test.tip->Send(WM_MOUSEMOVE, 0, test.OnTip(kMouse.x, kMouse.y));
  EXPECT_EQ(std::vector<HWND>{test.tip->Handle()}, trackings.Askers());
}

TEST(CToolTipBox, MayEndAtAMovement) {
  TipPage test;
  test.page.onMessage = [&](const WindowMessage& message) {
    if (message.message == WM_MOUSEMOVE) test.tip.reset();
  };
  const HWND window = test.tip->Handle();
  ::SendMessageW(window, WM_MOUSEMOVE, 0, test.OnTip(kMouse.x + 1, kMouse.y));
  EXPECT_FALSE(test.tip);
  EXPECT_FALSE(::IsWindow(window));
}

TEST(CToolTipBox, TakesNoClickAndNoFocus) {
  TipPage test;
  const CWnd edit = test.page.Add(L"EDIT", L"", WS_TABSTOP, 100, {0, 150, 50, 170});
  edit.Focus();
  ASSERT_TRUE(edit.HasFocus());
  for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
    test.tip->Send(message, MK_LBUTTON, MAKELPARAM(2, 2));
  EXPECT_TRUE(edit.HasFocus());
  EXPECT_EQ(nullptr, ::GetCapture());
  for (const WindowMessage& message : test.page.Received(WM_COMMAND)) EXPECT_NE(kId, message.CommandId());
  const ComScope com;
  EXPECT_EQ(ROLE_SYSTEM_TOOLTIP, Accessible(test.tip->Handle()).Role(CHILDID_SELF));
}

TEST(CToolTipBox, GrowsWithTheDpi) {
  const DpiScope dpi(192);
  TipPage test;
  EXPECT_EQ(-21, DescribeFont(*test.tip).lfHeight);
  const RECT client = test.tip->ClientRect();
  EXPECT_EQ(2 * 114, client.right);
  EXPECT_EQ(2 * 49, client.bottom);
  const Picture picture = Paint(*test.tip);
  EXPECT_EQ(PixelOf(kTipFrame), picture.At(10, 0));
  EXPECT_EQ(PixelOf(kTipGround), picture.At(10, 1)) << "the frame stays one pixel";
  EXPECT_GE(Inked(Cut(picture, {1, 1, client.right - 1, client.bottom - 1}), kTipGround).left, 3) << "4 inside";
}

}  // namespace
