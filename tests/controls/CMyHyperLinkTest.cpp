#include "controls/CMyHyperLink.h"

#include <array>

#include "LinkPage.h"

namespace {

// --- Binding --------------------------------------------------------------------------------------------------------

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
  EXPECT_FALSE(link.Attach(page, kLinkId));
}

// --- Following ------------------------------------------------------------------------------------------------------

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
  EXPECT_EQ(static_cast<WPARAM>(kLinkId), told[0].wParam);
  EXPECT_EQ(0, told[0].lParam);
  EXPECT_EQ(nullptr, capture) << "the mouse is free while the page acts";
  EXPECT_TRUE(test.outer.Received(0x465).empty());
  EXPECT_TRUE(openedAddresses.empty()) << "no address is opened";
  EXPECT_TRUE(test.page.Received(WM_COMMAND).empty()) << "the click itself is answered";
}

TEST(CMyHyperLink, OpensItsAddress) {
  LinkPage test;
  test.link->SetUrl(L"https://www.nem-software.example/video");
  test.Click();
  ASSERT_EQ(1u, openedAddresses.size());
  EXPECT_EQ(L"open", openedAddresses[0].verb);
  EXPECT_EQ(L"https://www.nem-software.example/video", openedAddresses[0].target);
  EXPECT_EQ(2, openedAddresses[0].show);
  EXPECT_EQ(test.outer.Handle(), openedAddresses[0].owner);
  EXPECT_EQ(nullptr, openedAddresses[0].capture) << "the mouse is free meanwhile";
  EXPECT_TRUE(test.page.Received(0x465).empty());
}

TEST(CMyHyperLink, OpensNothingWithoutAnAddress) {
  LinkPage test;
  test.Click();
  EXPECT_TRUE(openedAddresses.empty());
}

// The first of a double click's two messages has followed it already.
TEST(CMyHyperLink, IsFollowedByClicksAlone) {
  for (const bool notify : {true, false}) {
    LinkPage test;
    test.link->SetUrl(L"https://www.nem-software.example/");
    test.link->SetNotifyParent(notify);
    for (const int code : {STN_DBLCLK, STN_ENABLE, STN_DISABLE}) {
      test.page.Send(WM_COMMAND, MAKEWPARAM(kLinkId, code), reinterpret_cast<LPARAM>(test.control.Handle()));
      EXPECT_TRUE(openedAddresses.empty()) << code;
      EXPECT_TRUE(test.page.Received(0x465).empty()) << code;
    }
  }
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
    ASSERT_TRUE(link->Attach(test.page, kLinkId));
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

// --- Keyboard -------------------------------------------------------------------------------------------------------

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

}  // namespace
