// A button in the look of a link.
#include "controls/CLinkButton.h"

#include "ControlDialog.h"
#include "controls/LinkColors.h"
#include "PlatformSpy.h"
#include "support/Accessible.h"
#include "support/MouseTrackings.h"

namespace {

constexpr int kId = 100;

class LinkButton : public testing::Test {
 protected:
  LinkButton() {
    page_.ground = kMarkedGround;
    page_.Add(L"BUTTON", L"Restore HHHH", BS_OWNERDRAW | WS_TABSTOP, kId, {10, 10, 150, 24});
    button_.Attach(page_, kId);
  }
  int Clicks() const {
    int clicks = 0;
    for (const WindowMessage& message : page_.Received(WM_COMMAND))
      clicks += message.CommandId() == kId && message.Notification() == BN_CLICKED;
    return clicks;
  }

  ControlDialog page_;
  CLinkButton button_;
};

TEST_F(LinkButton, IsUnderlinedInTheColorOfLinks) {
  const Picture picture = Paint(button_);
  EXPECT_GT(CountPixels(picture, kLinkColor), 20);
  int line = 0;  // the longest run of ink in one row
  for (int y = 0; y < picture.height; ++y) {
    int run = 0;
    for (int x = 0; x < picture.width; ++x) {
      run = picture.At(x, y) == PixelOf(kLinkColor) ? run + 1 : 0;
      line = std::max(line, run);
    }
  }
  EXPECT_GT(line, 50) << "one long line below the text";
  EXPECT_EQ(PixelOf(kMarkedGround), picture.At(picture.width - 1, picture.height - 1)) << "on the page's ground";
}

TEST_F(LinkButton, TakesTheColorOfHoveringUnderTheMouse) {
  button_.Send(WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
  EXPECT_GT(CountPixels(Paint(button_), kHoverLinkColor), 20);
  button_.Send(WM_MOUSELEAVE);
  const Picture picture = Paint(button_);
  EXPECT_EQ(0, CountPixels(picture, kHoverLinkColor));
  EXPECT_GT(CountPixels(picture, kLinkColor), 20);
}

TEST_F(LinkButton, AsksToHearWhenTheMouseLeaves) {
  const MouseTrackings trackings;
  button_.Send(WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
  EXPECT_EQ(std::vector<HWND>{button_.Handle()}, trackings.Askers());
}

TEST_F(LinkButton, HasTheSystemsLinkColorInHighContrast) {
  const SystemColorScope colors({{COLOR_HOTLIGHT, RGB(200, 201, 2)}});
  const HighContrastScope contrast;
  const Picture picture = Paint(button_);
  EXPECT_GT(CountPixels(picture, RGB(200, 201, 2)), 20);
  EXPECT_EQ(0, CountPixels(picture, kLinkColor));
}

TEST_F(LinkButton, ShowsTheFocusToTheKeyboard) {
  const Picture before = Paint(button_);
  ShowKeyboardCues(button_, true);
  button_.Focus();
  const Picture focused = Paint(button_);
  EXPECT_NE(before.At(0, 0) == focused.At(0, 0) && before.At(1, 0) == focused.At(1, 0), true);
  ShowKeyboardCues(button_, false);
  EXPECT_EQ(before.pixels, Paint(button_).pixels);
}

TEST_F(LinkButton, HasTheHand) {
  ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
  button_.Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(button_.Handle()), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  EXPECT_EQ(::LoadCursorW(nullptr, IDC_HAND), ::GetCursor());
}

TEST_F(LinkButton, IsPressedByMouseSpaceAndEnter) {
  button_.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
  button_.Send(WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
  EXPECT_EQ(1, Clicks());
  button_.Send(WM_KEYDOWN, VK_SPACE, 1);
  button_.Send(WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
  EXPECT_EQ(2, Clicks());
  button_.Send(WM_KEYDOWN, VK_RETURN, 1);
  EXPECT_EQ(3, Clicks());
  button_.Send(WM_KEYDOWN, VK_RETURN, 0x40000001);
  EXPECT_EQ(3, Clicks()) << "a held key counts once";
  button_.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
  button_.Send(WM_LBUTTONUP, 0, MAKELPARAM(3, 300));
  EXPECT_EQ(3, Clicks()) << "let go elsewhere";
}

TEST_F(LinkButton, IsAButtonToAScreenReader) {
  const ComScope com;
  const Accessible object(button_.Handle());
  ASSERT_TRUE(object);
  EXPECT_EQ(L"Restore HHHH", object.Name(CHILDID_SELF));
  EXPECT_EQ(ROLE_SYSTEM_PUSHBUTTON, object.Role(CHILDID_SELF));
  ASSERT_EQ(S_OK, object->accDoDefaultAction(Accessible::Part(CHILDID_SELF)));
  RunPostedMessages();
  EXPECT_EQ(1, Clicks());
}

TEST_F(LinkButton, IsNotPressedByAScreenReaderWhileItIsDisabled) {
  const ComScope com;
  const Accessible object(button_.Handle());
  ASSERT_TRUE(object);
  object->accDoDefaultAction(Accessible::Part(CHILDID_SELF));
  button_.Enable(false);
  RunPostedMessages();
  object->accDoDefaultAction(Accessible::Part(CHILDID_SELF));
  RunPostedMessages();
  EXPECT_EQ(0, Clicks());
}

TEST_F(LinkButton, BeginsAtTheEdgeThatReadingBeginsAt) {
  ControlDialog mirrored(ControlDialog::Layout::RightToLeft);
  mirrored.ground = kMarkedGround;
  mirrored.Add(L"BUTTON", L"HHHH", BS_OWNERDRAW | WS_TABSTOP, kId, {10, 10, 150, 24});
  CLinkButton button;
  button.Attach(mirrored, kId);
  const Picture picture = Paint(button);
  const RECT inked = Inked(picture, kMarkedGround);
  EXPECT_GT(inked.left, picture.width / 2);
  EXPECT_LT(Inked(Paint(button_), kMarkedGround).left, 5);
}

}  // namespace
