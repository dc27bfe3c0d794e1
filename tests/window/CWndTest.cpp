// The window handle as a value.
#include "window/CWnd.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "driver/DialogTemplate.h"
#include "support/FakeSheet.h"
#include "support/PrintText.h"

namespace {

enum : int { kFirst = 100, kSecond, kThird, kInner = 110, kOuterButton = 120, kPage = 130 };

INT_PTR CALLBACK NoProcedure(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

HWND CreateDialogOf(const DialogTemplate& dialog, HWND parent) {
  return CreateDialogIndirectParamW(nullptr, dialog.Get(), parent, NoProcedure, 0);
}

// A dialog with a page of three buttons in it and one button behind the page.
class Wnd : public testing::Test {
 protected:
  Wnd() {
    dialog_ =
        CWnd(CreateDialogOf(DialogTemplate(WS_POPUP | WS_VISIBLE, {200, 100}, L"", WS_EX_CONTROLPARENT), nullptr));
    DialogTemplate page(WS_CHILD | WS_VISIBLE | DS_CONTROL, {150, 60}, L"", WS_EX_CONTROLPARENT);
    for (int id = kFirst; id <= kThird; ++id)
      page.Add(L"Button", id, At(0, (id - kFirst) * 16, 60, 14), L"Button", WS_TABSTOP);
    page_ = CWnd(CreateDialogOf(page, dialog_.Handle()));
    SetWindowLongPtrW(page_.Handle(), GWLP_ID, kPage);
    outer_ = CWnd(CreateWindowExW(0, L"BUTTON", L"Outer", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 200, 0, 60, 14,
                                  dialog_.Handle(), reinterpret_cast<HMENU>(INT_PTR{kOuterButton}), nullptr, nullptr));
    outer_.PlaceBehind(HWND_BOTTOM);
    SetActiveWindow(dialog_.Handle());
  }
  ~Wnd() override { DestroyWindow(dialog_.Handle()); }

  CWnd Button(int id) const { return page_.Item(id); }
  static int FocusedId() { return GetDlgCtrlID(GetFocus()); }

  CWnd dialog_, page_, outer_;
};

TEST_F(Wnd, NullAndDeadWindowsDoNothingAndAnswerNothing) {
  const HWND dead = Button(kFirst).Handle();
  DestroyWindow(dead);
  for (const HWND handle : {HWND{}, dead}) {
    const CWnd window(handle);
    EXPECT_FALSE(window.IsWindow());
    EXPECT_EQ(0, window.Send(WM_GETTEXTLENGTH));
    EXPECT_FALSE(window.Post(WM_NULL));
    EXPECT_EQ(L"", window.Text());
    window.SetText(L"x");
    window.Enable(true);
    window.Enable(false);
    window.Show(true);
    window.Show(false);
    EXPECT_FALSE(window.IsEnabled());
    EXPECT_FALSE(window.IsShown());
    EXPECT_FALSE(window.HasFocus());
    EXPECT_FALSE(window.IsMirrored());
    EXPECT_EQ(0u, window.Style());
    EXPECT_EQ(0u, window.ExtendedStyle());
    EXPECT_EQ(nullptr, window.Item(1).Handle());
    EXPECT_EQ(nullptr, window.Parent().Handle());
    EXPECT_EQ(0, window.Id());
    EXPECT_EQ(nullptr, window.Font());
    EXPECT_EQ(0, window.ClientRect().right);
    EXPECT_EQ(0, window.WindowRect().right);
    window.Move({0, 0, 10, 10});
    window.Focus();
    window.Invalidate();
    window.Redraw();
    EXPECT_GT(window.Dpi(), 0);
  }
}

// To the platform null means more than no window here: nobody is to have the focus, everybody is to be painted.
TEST_F(Wnd, NullWindowTakesNobodysFocusAndPaintsNobody) {
  outer_.Focus();
  CWnd().Focus();
  EXPECT_EQ(outer_.Handle(), GetFocus());
  RedrawWindow(dialog_.Handle(), nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN | RDW_NOINTERNALPAINT);
  CWnd().Invalidate();
  EXPECT_FALSE(GetUpdateRect(dialog_.Handle(), nullptr, FALSE));
  dialog_.Invalidate();
  EXPECT_TRUE(GetUpdateRect(dialog_.Handle(), nullptr, FALSE)) << "one that is there is painted anew";
}

TEST_F(Wnd, FindsItsControlsAndItsParent) {
  EXPECT_EQ(kSecond, Button(kSecond).Id());
  EXPECT_EQ(page_, Button(kSecond).Parent());
  EXPECT_FALSE(page_.Item(999).IsWindow());
}

TEST_F(Wnd, WalksOverItsChildrenInTheirOrder) {
  std::vector<int> ids;
  for (CWnd child = page_.FirstChild(); child.Handle(); child = child.Next()) ids.push_back(child.Id());
  EXPECT_EQ((std::vector<int>{kFirst, kSecond, kThird}), ids);
  EXPECT_EQ(nullptr, Button(kFirst).FirstChild().Handle());
  EXPECT_EQ(nullptr, CWnd().FirstChild().Handle()) << "and not the first window of the screen";
  EXPECT_EQ(nullptr, CWnd().Next().Handle());
}

TEST_F(Wnd, TextMovesBothWays) {
  const std::wstring longText(5000, L'x');
  for (const wchar_t* text : {L"Name", L"", longText.c_str()}) {
    Button(kFirst).SetText(text);
    EXPECT_EQ(text, Button(kFirst).Text());
  }
  Button(kFirst).SetText(nullptr);
  EXPECT_EQ(L"", Button(kFirst).Text());
}

TEST_F(Wnd, TextThatIsShorterThanItsLengthSaysIsNotPadded) {
  const HWND window = Button(kFirst).Handle();
  SetWindowLongPtrW(window, GWLP_WNDPROC,
                    reinterpret_cast<LONG_PTR>(+[](HWND, UINT message, WPARAM, LPARAM lParam) -> LRESULT {
                      if (message == WM_GETTEXTLENGTH) return 10;
                      if (message != WM_GETTEXT) return 0;
                      lstrcpyW(reinterpret_cast<wchar_t*>(lParam), L"abc");
                      return 3;
                    }));
  EXPECT_EQ(L"abc", CWnd(window).Text());
  EXPECT_EQ(3, CWnd(window).Text().Length());
}

// --- The focus moves on --------------------------------------------------------------------------------------------

TEST_F(Wnd, DisablingMovesTheFocusOn) {
  for (const auto& [id, next] : {std::pair<int, int>{kFirst, kSecond}, {kSecond, kThird}, {kThird, kFirst}}) {
    Button(id).Focus();
    Button(id).Enable(false);
    EXPECT_EQ(next, FocusedId()) << id;
    EXPECT_FALSE(Button(id).IsEnabled());
    Button(id).Enable(true);
  }
}

TEST_F(Wnd, HidingMovesTheFocusOn) {
  Button(kFirst).Focus();
  Button(kFirst).Show(false);
  EXPECT_EQ(kSecond, FocusedId());
  EXPECT_FALSE(Button(kFirst).IsShown());
}

TEST_F(Wnd, FocusSkipsWhatIsDisabledOrHidden) {
  Button(kSecond).Enable(false);
  Button(kFirst).Focus();
  Button(kFirst).Enable(false);
  EXPECT_EQ(kThird, FocusedId());
}

TEST_F(Wnd, LastStopOfAPageHandsOnToTheDialogAroundIt) {
  Button(kFirst).Enable(false);
  Button(kThird).Show(false);
  Button(kSecond).Focus();
  Button(kSecond).Enable(false);
  EXPECT_EQ(kOuterButton, FocusedId());
}

TEST_F(Wnd, HidingAPageHandsTheFocusOnToTheDialogAroundIt) {
  Button(kSecond).Focus();
  page_.Show(false);
  EXPECT_EQ(kOuterButton, FocusedId());
}

TEST_F(Wnd, FocusElsewhereStays) {
  outer_.Focus();
  Button(kFirst).Enable(false);
  Button(kSecond).Show(false);
  page_.Show(false);
  EXPECT_EQ(kOuterButton, FocusedId());
}

TEST_F(Wnd, WhatIsSoAlreadyChangesNothing) {
  Button(kFirst).Enable(false);
  SetFocus(dialog_.Handle());
  SetFocus(Button(kFirst).Handle());  // a program can do that, though no user
  const HWND focus = GetFocus();
  Button(kFirst).Enable(false);
  EXPECT_EQ(focus, GetFocus());
}

TEST_F(Wnd, LastStopOfAllIsStillDisabled) {
  outer_.Enable(false);
  for (int id = kSecond; id <= kThird; ++id) Button(id).Enable(false);
  Button(kFirst).Focus();
  Button(kFirst).Enable(false);
  EXPECT_FALSE(Button(kFirst).IsEnabled());
}

TEST_F(Wnd, ShownIsTheWindowsOwnState) {
  page_.Show(false);
  EXPECT_TRUE(Button(kFirst).IsShown());
  EXPECT_FALSE(IsWindowVisible(Button(kFirst).Handle()));
}

// --- Styles and places ---------------------------------------------------------------------------------------------

TEST_F(Wnd, StylesAreRemovedAndAdded) {
  const CWnd button = Button(kFirst);
  const DWORD style = button.Style(), extended = button.ExtendedStyle();
  button.ChangeStyle(WS_TABSTOP, WS_GROUP);
  EXPECT_EQ((style & ~DWORD{WS_TABSTOP}) | WS_GROUP, button.Style());
  button.ChangeExtendedStyle(0, WS_EX_RIGHT);
  EXPECT_EQ(extended | WS_EX_RIGHT, button.ExtendedStyle());
  button.ChangeExtendedStyle(WS_EX_RIGHT, 0);
  EXPECT_EQ(extended, button.ExtendedStyle());
}

TEST_F(Wnd, MovesInItsParent) {
  const CWnd button = Button(kFirst);
  button.Move({10, 20, 60, 45});
  const RECT rect = button.RectIn(page_);
  EXPECT_EQ(10, rect.left);
  EXPECT_EQ(20, rect.top);
  EXPECT_EQ(60, rect.right);
  EXPECT_EQ(45, rect.bottom);
  const RECT client = button.ClientRect();
  EXPECT_EQ(50, client.right);
  EXPECT_EQ(25, client.bottom);
}

TEST_F(Wnd, RectInCountsFromTheOtherWindow) {
  Button(kFirst).Move({10, 20, 60, 45});
  page_.Move({100, 30, 300, 150});
  const RECT rect = Button(kFirst).RectIn(dialog_);
  EXPECT_EQ(110, rect.left);
  EXPECT_EQ(50, rect.top);
  POINT point{0, 0};
  ClientToScreen(dialog_.Handle(), &point);
  EXPECT_EQ(0, dialog_.ScreenToClient(point).x);
}

TEST_F(Wnd, MirroredWindowCountsFromItsRightEdge) {
  const DialogTemplate mirrored(WS_POPUP | WS_VISIBLE, {100, 50}, L"", WS_EX_LAYOUTRTL);
  const CWnd dialog(CreateDialogOf(mirrored, nullptr));
  EXPECT_TRUE(dialog.IsMirrored());
  EXPECT_FALSE(dialog_.IsMirrored());
  const CWnd button(CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE, 10, 5, 40, 14, dialog.Handle(), nullptr,
                                    nullptr, nullptr));
  const RECT rect = button.RectIn(dialog);
  EXPECT_EQ(10, rect.left);
  EXPECT_EQ(50, rect.right);
  EXPECT_EQ(5, rect.top);
  EXPECT_EQ(19, rect.bottom);
  // On the screen it stands at the right.
  EXPECT_EQ(dialog.WindowRect().right - 10, button.WindowRect().right);
  DestroyWindow(dialog.Handle());
}

TEST_F(Wnd, PlaceBehindIsTheTabOrder) {
  EXPECT_EQ(Button(kSecond).Handle(), GetNextDlgTabItem(page_.Handle(), Button(kFirst).Handle(), FALSE));
  Button(kFirst).PlaceBehind(Button(kSecond).Handle());
  EXPECT_EQ(Button(kThird).Handle(), GetNextDlgTabItem(page_.Handle(), Button(kFirst).Handle(), FALSE));
  Button(kThird).PlaceBehind(HWND_TOP);
  EXPECT_EQ(Button(kThird).Handle(), GetWindow(page_.Handle(), GW_CHILD));
}

TEST_F(Wnd, ScalesWithItsDpi) {
  EXPECT_EQ(static_cast<int>(GetDpiForWindow(dialog_.Handle())), dialog_.Dpi());
  EXPECT_EQ(MulDiv(20, dialog_.Dpi(), 96), dialog_.Scale(20));
  EXPECT_EQ(0, dialog_.Scale(0));
}

}  // namespace
