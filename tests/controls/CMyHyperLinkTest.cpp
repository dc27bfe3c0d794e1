#include "controls/CMyHyperLink.h"

#include <array>
#include <memory>

#include "ControlDialog.h"
#include "support/Accessible.h"

namespace {

constexpr int kId = 1144;
constexpr int kWidth = 180, kHeight = 20;
constexpr COLORREF kHover = 0x0000FF, kLink = 0xFF0000, kVisited = 0x8F2205;

// --- What was opened -------------------------------------------------------------------------------------------------

struct Opened {
  HWND owner;
  std::wstring verb, target;
  int show;
  HWND capture;  // who had the mouse meanwhile
};
std::vector<Opened> opened;
std::function<void()> whileOpening;

HINSTANCE WINAPI FakeShellExecute(HWND owner, const wchar_t* verb, const wchar_t* file, const wchar_t*, const wchar_t*,
                                  INT show) {
  opened.push_back({owner, verb, file, show, ::GetCapture()});
  if (whileOpening) whileOpening();
  return reinterpret_cast<HINSTANCE>(INT_PTR{42});
}

decltype(&::GetProcAddress) realGetProcAddress = nullptr;

FARPROC WINAPI FakeGetProcAddress(HMODULE module, const char* name) {
  if (!IS_INTRESOURCE(name) && std::string_view(name) == "ShellExecuteW")
    return reinterpret_cast<FARPROC>(&FakeShellExecute);
  return realGetProcAddress(module, name);
}

// The shell is bound at first use, once for the process: the spy must be there before.
class ShellSpy : public testing::Environment {
  void SetUp() override {
    realGetProcAddress = ::GetProcAddress;
    PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&FakeGetProcAddress));
  }
};
const testing::Environment* const kSpy = testing::AddGlobalTestEnvironment(new ShellSpy);

// --- A link on a page ------------------------------------------------------------------------------------------------

class LinkPage {
 public:
  explicit LinkPage(ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight, DWORD style = 0,
                    const wchar_t* text = L"Help: What is this?",
                    ControlDialog::Kind kind = ControlDialog::Kind::Themed)
      : page(layout, outer.Handle()) {
    opened.clear();
    whileOpening = nullptr;
    page.ground = kMarkedGround;
    control = page.Add(L"STATIC", text, SS_LEFT | WS_TABSTOP | style, kId, {10, 10, 10 + kWidth, 10 + kHeight}, kind);
    link = std::make_unique<CMyHyperLink>();
    Attach();
  }
  ~LinkPage() { ::ReleaseCapture(); }

  void Attach() const { EXPECT_TRUE(link->Attach(page, kId)); }
  void MarkVisited() {
    link = std::make_unique<CMyHyperLink>(true);
    Attach();
  }
  void MoveMouse(int x, int y) const { control.Send(WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }
  void Click(int x = 5, int y = 5) const {
    MoveMouse(x, y);
    control.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    control.Send(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
  }
  bool HasCapture() const { return ::GetCapture() == control.Handle(); }
  // The text's colour, as the control asks for it when it paints.
  COLORREF Color() const {
    const WindowDC dc(control.Handle());
    const LRESULT brush = page.Send(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(static_cast<HDC>(dc)),
                                    reinterpret_cast<LPARAM>(control.Handle()));
    EXPECT_EQ(::GetStockObject(HOLLOW_BRUSH), reinterpret_cast<HGDIOBJ>(brush));
    EXPECT_EQ(TRANSPARENT, ::GetBkMode(dc));
    return ::GetTextColor(dc);
  }

  ControlDialog outer;  // as a sheet around the page
  ControlDialog page;
  CWnd control;
  std::unique_ptr<CMyHyperLink> link;
};

// --- Binding
// -----------------------------------------------------------------------------------------------------------

TEST(CMyHyperLink, HearsOfClicks) { EXPECT_TRUE(LinkPage().control.Style() & SS_NOTIFY); }

TEST(CMyHyperLink, UnderlinesTheFontOfItsControl) {
  LinkPage test;
  LOGFONTW expected = DescribeFont(test.page);
  EXPECT_FALSE(expected.lfUnderline);
  expected.lfUnderline = TRUE;
  const LOGFONTW found = DescribeFont(test.control);
  EXPECT_EQ(0, memcmp(&expected, &found, offsetof(LOGFONTW, lfFaceName)));
  EXPECT_STREQ(expected.lfFaceName, found.lfFaceName);
}

TEST(CMyHyperLink, UnderlinesAFontThatIsSetLater) {
  LinkPage test;
  const GdiFont larger = DeriveFont(test.page.Font(), [](LOGFONTW& font) { font.lfHeight *= 2; });
  test.control.SetFont(larger.Get());
  EXPECT_EQ(2 * DescribeFont(test.page).lfHeight, DescribeFont(test.control).lfHeight);
  EXPECT_TRUE(DescribeFont(test.control).lfUnderline);
}

TEST(CMyHyperLink, GivesTheFontBackWhenItEndsBeforeItsControl) {
  LinkPage test;
  test.link.reset();
  EXPECT_EQ(test.page.Font(), test.control.Font());
}

TEST(CMyHyperLink, IsNotThereWithoutItsControl) {
  ControlDialog page;
  CMyHyperLink link;
  EXPECT_FALSE(link.Attach(page, kId));
}

// --- Colours
// -----------------------------------------------------------------------------------------------------------

TEST(CMyHyperLink, HasTheColorOfItsState) {
  const struct {
    bool markVisited, visit, hover;
    COLORREF color;
  } rows[] = {
      {false, false, false, kLink},  {false, false, true, kHover}, {false, true, false, kLink},
      {false, true, true, kHover},   {true, false, false, kLink},  {true, false, true, kHover},
      {true, true, false, kVisited}, {true, true, true, kVisited},
  };
  for (const auto& row : rows) {
    LinkPage test;
    if (row.markVisited) test.MarkVisited();
    if (row.visit) test.Click();
    test.MoveMouse(row.hover ? 5 : -5, 5);
    EXPECT_EQ(row.color, test.Color()) << row.markVisited << row.visit << row.hover;
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

// --- Mouse
// -------------------------------------------------------------------------------------------------------------

TEST(CMyHyperLink, HoversAndCapturesInsideItsClientArea) {
  const struct {
    int x, y;
    bool inside;
  } rows[] = {{0, 0, true},         {kWidth - 1, kHeight - 1, true},
              {-1, 5, false},       {5, -1, false},
              {kWidth, 5, false},   {5, kHeight, false},
              {kWidth / 2, 5, true}};
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

// --- Following
// -----------------------------------------------------------------------------------------------------------

TEST(CMyHyperLink, TellsItsParentAndNobodyElse) {
  LinkPage test;
  test.link->SetUrl(L"https://www.nem-software.example/");
  test.link->SetNotifyParent(true);
  HWND capture = test.control.Handle();
  test.page.onMessage = [&](const WindowMessage& message) {
    if (message.message == kLinkClickedMessage) capture = ::GetCapture();
  };
  test.Click();
  const std::vector<WindowMessage> told = test.page.Received(0x465);
  ASSERT_EQ(1u, told.size());
  EXPECT_EQ(static_cast<WPARAM>(kId), told[0].wParam);
  EXPECT_EQ(0, told[0].lParam);
  EXPECT_EQ(nullptr, capture) << "the mouse is free while the page acts";
  EXPECT_TRUE(test.outer.Received(0x465).empty());
  EXPECT_TRUE(opened.empty()) << "no address is opened";
  EXPECT_TRUE(test.page.Received(WM_COMMAND).empty()) << "the click itself is answered";
}

TEST(CMyHyperLink, OpensItsAddress) {
  LinkPage test;
  test.link->SetUrl(L"https://www.nem-software.example/video");
  test.Click();
  ASSERT_EQ(1u, opened.size());
  EXPECT_EQ(L"open", opened[0].verb);
  EXPECT_EQ(L"https://www.nem-software.example/video", opened[0].target);
  EXPECT_EQ(2, opened[0].show);
  EXPECT_EQ(test.outer.Handle(), opened[0].owner);
  EXPECT_EQ(nullptr, opened[0].capture) << "the mouse is free meanwhile";
  EXPECT_TRUE(test.page.Received(0x465).empty());
}

TEST(CMyHyperLink, OpensNothingWithoutAnAddress) {
  LinkPage test;
  test.Click();
  EXPECT_TRUE(opened.empty());
}

TEST(CMyHyperLink, RepaintsAfterAClick) {
  LinkPage test;
  test.link->SetNotifyParent(true);
  test.control.Redraw();
  test.link->Follow();
  EXPECT_TRUE(::GetUpdateRect(test.control.Handle(), nullptr, FALSE));
}

TEST(CMyHyperLink, MayEndWhileItIsFollowed) {
  for (const bool notify : {true, false}) {
    LinkPage test;
    test.link.reset();
    alignas(CMyHyperLink) std::array<unsigned char, sizeof(CMyHyperLink)> memory;
    auto* link = new (memory.data()) CMyHyperLink(true);
    ASSERT_TRUE(link->Attach(test.page, kId));
    link->SetUrl(L"https://www.nem-software.example/");
    link->SetNotifyParent(notify);
    const auto end = [&] {
      link->~CMyHyperLink();
      memory.fill(0xCC);
    };
    whileOpening = end;
    test.page.onMessage = [&](const WindowMessage& message) {
      if (message.message == kLinkClickedMessage) end();
    };
    test.Click();
    EXPECT_EQ(static_cast<std::ptrdiff_t>(memory.size()), std::count(memory.begin(), memory.end(), 0xCC))
        << "what was the link is written to afterwards";
  }
}

TEST(CMyHyperLink, ItsControlMayEndWhileItIsFollowed) {
  LinkPage test;
  test.link->SetNotifyParent(true);
  test.page.onMessage = [&](const WindowMessage& message) {
    if (message.message == kLinkClickedMessage) ::DestroyWindow(test.control.Handle());
  };
  test.Click();
  EXPECT_EQ(nullptr, test.link->Handle());
}

// --- Keyboard
// ------------------------------------------------------------------------------------------------------------

TEST(CMyHyperLink, IsFollowedByEnterAndSpace) {
  const struct {
    WPARAM key;
    size_t followed;
  } rows[] = {{VK_RETURN, 1}, {VK_SPACE, 1}, {VK_ESCAPE, 0}, {VK_TAB, 0}, {'A', 0}};
  for (const auto& row : rows) {
    LinkPage test;
    test.link->SetNotifyParent(true);
    test.control.Focus();
    test.control.Send(WM_KEYDOWN, row.key, 1);
    EXPECT_EQ(row.followed, test.page.Received(0x465).size()) << row.key;
    test.control.Send(WM_KEYDOWN, row.key, 1 | (LPARAM{KF_REPEAT} << 16));
    EXPECT_EQ(row.followed, test.page.Received(0x465).size()) << "held down: " << row.key;
  }
}

TEST(CMyHyperLink, TakesEnterBeforeTheDefaultButton) {
  LinkPage test;
  test.link->SetNotifyParent(true);
  test.page.Add(L"BUTTON", L"OK", BS_DEFPUSHBUTTON, IDOK, {10, 40, 60, 60});
  test.control.Focus();
  MSG key{test.control.Handle(), WM_KEYDOWN, VK_RETURN, 1, 0, {}};
  EXPECT_TRUE(::IsDialogMessageW(test.page.Handle(), &key));
  EXPECT_EQ(1u, test.page.Received(0x465).size());
  EXPECT_TRUE(test.page.Received(WM_COMMAND).empty());
}

TEST(CMyHyperLink, LeavesOtherKeysToTheDialog) {
  const struct {
    UINT message;
    WPARAM key;
    bool wanted;
  } rows[] = {{WM_KEYDOWN, VK_RETURN, true}, {WM_KEYDOWN, VK_SPACE, true},   {WM_CHAR, L'\r', true},
              {WM_CHAR, L' ', true},         {WM_KEYDOWN, VK_ESCAPE, false}, {WM_KEYDOWN, VK_TAB, false},
              {WM_KEYDOWN, VK_DOWN, false},  {WM_SYSCHAR, L' ', false},      {WM_CHAR, L'x', false}};
  LinkPage test;
  for (const auto& row : rows) {
    const MSG key{test.control.Handle(), row.message, row.key, 1, 0, {}};
    const LRESULT code = test.control.Send(WM_GETDLGCODE, row.key, reinterpret_cast<LPARAM>(&key));
    EXPECT_EQ(row.wanted, (code & DLGC_WANTMESSAGE) != 0) << row.message << " " << row.key;
  }
  EXPECT_FALSE(test.control.Send(WM_GETDLGCODE) & DLGC_WANTMESSAGE);
}

TEST(CMyHyperLink, IsAStopOfTab) {
  LinkPage test;
  test.page.Add(L"BUTTON", L"Before", WS_TABSTOP, 100, {10, 40, 60, 60}).Focus();
  MSG key{::GetFocus(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
  EXPECT_TRUE(::IsDialogMessageW(test.page.Handle(), &key));
  EXPECT_TRUE(test.control.HasFocus());
}

// --- Painting
// ------------------------------------------------------------------------------------------------------------

TEST(CMyHyperLink, StandsOnThePagesGround) {
  LinkPage test;
  const Picture picture = Paint(test.control);
  EXPECT_EQ(PixelOf(kMarkedGround), picture.At(kWidth - 1, 0));
  EXPECT_EQ(PixelOf(kMarkedGround), picture.At(kWidth - 1, kHeight - 1));
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
  EXPECT_GT(inked.right, kWidth - 4);
}

TEST(CMyHyperLink, PrintsWhatItPaints) {
  LinkPage test;
  const Picture painted = Paint(test.control);
  const WindowDC dc(test.control.Handle());
  const RECT client = test.control.ClientRect();
  ::FillRect(dc, &client, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
  test.control.Send(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(static_cast<HDC>(dc)), PRF_CLIENT);
  EXPECT_TRUE(painted.pixels == Capture(test.control.Handle()).pixels);
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
  EXPECT_EQ(kWidth, inked.right);
  EXPECT_EQ(kHeight, inked.bottom);
  other.Focus();
  test.control.Redraw();
  EXPECT_TRUE(plain.pixels == Capture(test.control.Handle()).pixels);
}

// --- Screen readers
// ------------------------------------------------------------------------------------------------------

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
