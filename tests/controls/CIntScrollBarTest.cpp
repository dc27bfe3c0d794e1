#include "controls/CIntScrollBar.h"

#include "ControlDialog.h"
#include "support/Accessible.h"

namespace {

constexpr int kId = 1147;

class IntScrollBar : public testing::TestWithParam<UINT> {
 protected:
  IntScrollBar() {
    const DWORD style = GetParam() == WM_HSCROLL ? SBS_HORZ : SBS_VERT;
    dialog_.Add(L"SCROLLBAR", L"", style, kId, {0, 0, 100, 100});
    EXPECT_TRUE(bar_.Attach(dialog_, kId));
    bar_.SetRange(kMinimum, kMaximum + kPage - 1, kPage);
  }
  void Scroll(int code, int given = 0) {
    dialog_.Send(GetParam(), MAKEWPARAM(code, given), reinterpret_cast<LPARAM>(bar_.Handle()));
  }

  static constexpr int kMinimum = 20, kMaximum = 95, kPage = 10;
  ControlDialog dialog_;
  CIntScrollBar bar_;
};

TEST_P(IntScrollBar, MovesItself) {
  const struct {
    const char* rule;
    int code, before, given, after;
  } rows[] = {
      {"line up", SB_LINEUP, 50, 0, 49},
      {"line up to the minimum", SB_LINEUP, 21, 0, 20},
      {"line up not below the minimum", SB_LINEUP, 20, 0, 20},
      {"line down", SB_LINEDOWN, 50, 0, 51},
      {"line down to the maximum", SB_LINEDOWN, 94, 0, 95},
      {"line down not above the maximum", SB_LINEDOWN, 95, 0, 95},
      {"page up", SB_PAGEUP, 50, 0, 40},
      {"page up not below the minimum", SB_PAGEUP, 29, 0, 20},
      {"page up at the minimum", SB_PAGEUP, 20, 0, 20},
      {"page down", SB_PAGEDOWN, 50, 0, 60},
      {"page down not above the maximum", SB_PAGEDOWN, 86, 0, 95},
      {"page down at the maximum", SB_PAGEDOWN, 95, 0, 95},
      {"dragging", SB_THUMBTRACK, 50, 77, 77},
      {"dropping", SB_THUMBPOSITION, 50, 33, 33},
      {"top", SB_TOP, 50, 0, 20},
      {"bottom", SB_BOTTOM, 50, 0, 95},
      {"the end of a scroll", SB_ENDSCROLL, 50, 77, 50},
  };
  for (const auto& row : rows) {
    bar_.SetPosition(row.before);
    Scroll(row.code, row.given);
    EXPECT_EQ(row.after, bar_.Position()) << row.rule;
  }
}

// Only what has been called invalid is painted here.
TEST_P(IntScrollBar, DrawsItsNewPosition) {
  bar_.SetPosition(kMinimum);
  const Picture before = Paint(bar_);
  Scroll(SB_BOTTOM);
  bar_.Redraw();
  EXPECT_NE(before.pixels, Capture(bar_.Handle()).pixels);
}

TEST_P(IntScrollBar, TellsTheParentWhenItHasMoved) {
  bar_.SetPosition(50);
  int told = 0;
  dialog_.onMessage = [&](const WindowMessage& message) {
    if (message.message == GetParam()) told = bar_.Position();
  };
  Scroll(SB_LINEDOWN);
  EXPECT_EQ(51, told);
}

TEST_P(IntScrollBar, AnswersToTheKeyboard) {
  bar_.SetPosition(50);
  bar_.Focus();
  for (const int key : {VK_DOWN, VK_NEXT}) bar_.Send(WM_KEYDOWN, static_cast<WPARAM>(key), 1);
  EXPECT_EQ(61, bar_.Position());
  bar_.Send(WM_KEYDOWN, VK_HOME, 1);
  EXPECT_EQ(20, bar_.Position());
  bar_.Send(WM_KEYDOWN, VK_END, 1);
  EXPECT_EQ(95, bar_.Position());
}

TEST(IntScrollBarAccessibility, HasTheNameOfTheLabelBeforeIt) {
  const ComScope com;
  ControlDialog dialog;
  dialog.Add(L"STATIC", L"&Resolution && more:", SS_LEFT, 1, {0, 0, 100, 20});
  dialog.Add(L"COMBOBOX", L"", CBS_DROPDOWN, 2, {0, 20, 100, 100});
  dialog.Add(L"SCROLLBAR", L"", SBS_HORZ, kId, {0, 40, 100, 60});
  CIntScrollBar bar;
  ASSERT_TRUE(bar.Attach(dialog, kId));
  bar.SetRange(0, 100, 1);
  bar.SetPosition(42);
  const Accessible accessible(bar.Handle());
  ASSERT_TRUE(accessible);
  EXPECT_EQ(L"Resolution & more:", accessible.Name(CHILDID_SELF));
  EXPECT_EQ(ROLE_SYSTEM_SCROLLBAR, accessible.Role(CHILDID_SELF));
  EXPECT_EQ(L"42", accessible.Value(CHILDID_SELF));
}

TEST_P(IntScrollBar, LeavesOtherBarsAlone) {
  dialog_.Add(L"SCROLLBAR", L"", SBS_HORZ, 1148, {0, 0, 100, 20});
  CIntScrollBar other;
  ASSERT_TRUE(other.Attach(dialog_, 1148));
  other.SetRange(kMinimum, kMaximum + kPage - 1, kPage);
  other.SetPosition(60);
  bar_.SetPosition(50);
  Scroll(SB_LINEDOWN);
  EXPECT_EQ(60, other.Position());
}

INSTANTIATE_TEST_SUITE_P(Directions, IntScrollBar, testing::Values(WM_HSCROLL, WM_VSCROLL),
                         [](const auto& info) { return info.param == WM_HSCROLL ? "Horizontal" : "Vertical"; });

}  // namespace
