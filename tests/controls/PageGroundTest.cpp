#include "controls/PageGround.h"

#include "ControlDialog.h"

namespace {

constexpr RECT kPlace{30, 40, 90, 60};
constexpr int kWidth = 60, kHeight = 20;

// The ground as it comes out on a black surface.
Picture Draw(const CWnd& control) {
  const WindowDC dc(control.Handle());
  const RECT client = control.ClientRect();
  ::FillRect(dc, &client, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
  DrawPageGround(control, dc);
  return Capture(control.Handle());
}

TEST(PageGround, IsTheColorOfTheDialog) {
  for (const auto layout : {ControlDialog::Layout::LeftToRight, ControlDialog::Layout::RightToLeft}) {
    ControlDialog page(layout);
    ::EnableThemeDialogTexture(page.Handle(), ETDT_DISABLE);
    page.ground = kMarkedGround;
    const CWnd control = page.Add(L"STATIC", L"", 0, 100, kPlace);
    EXPECT_EQ(kWidth * kHeight, CountPixels(Draw(control), kMarkedGround));
  }
}

TEST(PageGround, GoesOnWithATexturedPage) {
  for (const auto layout : {ControlDialog::Layout::LeftToRight, ControlDialog::Layout::RightToLeft}) {
    ControlDialog page(layout);
    ::EnableThemeDialogTexture(page.Handle(), ETDT_ENABLETAB);
    const CWnd control = page.Add(L"STATIC", L"", 0, 100, kPlace);
    const Picture around = Paint(page), ground = Draw(control);
    for (int y = 0; y < kHeight; ++y)
      for (int x = 0; x < kWidth; ++x)
        ASSERT_EQ(around.At(kPlace.left - 10, kPlace.top + y), ground.At(x, y)) << x << "," << y;
  }
}

TEST(PageGround, IsTheSystemsWhereTheParentSaysNothing) {
  ControlDialog page;
  ::EnableThemeDialogTexture(page.Handle(), ETDT_DISABLE);
  const CWnd control = page.Add(L"STATIC", L"", 0, 100, kPlace);
  EXPECT_EQ(kWidth * kHeight, CountPixels(Draw(control), ::GetSysColor(COLOR_3DFACE)));
  const CWnd inner = CWnd(::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 20, 10, control.Handle(),
                                            nullptr, nullptr, nullptr));
  EXPECT_EQ(20 * 10, CountPixels(Draw(inner), ::GetSysColor(COLOR_3DFACE)));
}

TEST(PageGround, IsNoHollowBrush) {
  ControlDialog page;
  ::EnableThemeDialogTexture(page.Handle(), ETDT_DISABLE);
  const CWnd control = page.Add(L"STATIC", L"", 0, 100, kPlace);
  page.brush = static_cast<HBRUSH>(::GetStockObject(HOLLOW_BRUSH));
  EXPECT_EQ(0, CountPixels(Draw(control), RGB(0, 0, 0)));
}

}  // namespace
