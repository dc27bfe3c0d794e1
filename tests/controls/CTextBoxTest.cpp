#include "controls/CTextBox.h"

#include "ControlDialog.h"
#include "controls/PointSize.h"
#include "PlatformSpy.h"
#include "support/Accessible.h"

namespace {

constexpr int kId = 0x5030;
constexpr RECT kPlace{20, 30, 180, 110};
constexpr int kWidth = 160, kHeight = 80;

constexpr wchar_t kStylesFailed[] =
    L"No styles could be read from the document. Perhaps the document protection type is too high.";
constexpr wchar_t kFormats[] =
    L"You can adjust the standard formats by pressing 'Edit'. Please press 'New' or 'Copy' to create a user defined "
    L"format.";
constexpr wchar_t kWordStyles[] =
    L"In the summary window all styles included in Word are shown. To change the format of a style please navigate in "
    L"Microsoft\u00AE Word to: menu Format|Styles and Formatting.";

TEST(FontHeight, IsNegativeAndGrowsWithTheDpi) {
  const struct {
    int points, dpi, height;
  } rows[] = {{8, 96, -11},  {9, 96, -12},  {8, 120, -13}, {9, 120, -15},
              {8, 144, -16}, {9, 144, -18}, {8, 192, -21}, {9, 192, -24}};
  for (const auto& row : rows) EXPECT_EQ(row.height, FontHeight(row.points, row.dpi)) << row.points << " " << row.dpi;
}

TEST(CTextBox, HasTheTextAndTheFontOfItsKind) {
  const struct {
    bool whiteBackground, stylesFailed;
    const wchar_t* text;
    int points, weight;
    bool italic;
  } rows[] = {{true, true, kStylesFailed, 9, 400, true},
              {true, false, kFormats, 9, 400, true},
              {false, false, kWordStyles, 8, 300, false},
              {false, true, kWordStyles, 8, 300, false}};
  for (const auto& row : rows) {
    ControlDialog page;
    CTextBox box(row.whiteBackground, row.stylesFailed);
    EXPECT_STREQ(row.text, box.NoteText().Text());
    ASSERT_TRUE(box.Create(page, kId, kPlace));
    EXPECT_STREQ(row.text, box.Text().Text()) << "for screen readers";
    const LOGFONTW font = DescribeFont(box);
    EXPECT_EQ(FontHeight(row.points, box.Dpi()), font.lfHeight);
    EXPECT_EQ(row.weight, font.lfWeight);
    EXPECT_EQ(row.italic, font.lfItalic != 0);
    EXPECT_FALSE(font.lfUnderline);
    EXPECT_STREQ(DescribeFont(page).lfFaceName, font.lfFaceName);
  }
}

TEST(CTextBox, StandsOnTopOfThePage) {
  ControlDialog page;
  page.Add(L"BUTTON", L"below", 0, 100, kPlace);
  CTextBox box(true, false);
  ASSERT_TRUE(box.Create(page, kId, kPlace));
  EXPECT_EQ(box.Handle(), ::GetTopWindow(page.Handle()));
  EXPECT_TRUE(::IsWindowVisible(box.Handle()));
  EXPECT_EQ(kId, box.Id());
  const RECT place = box.RectIn(page);
  EXPECT_TRUE(::EqualRect(&kPlace, &place));
}

TEST(CTextBox, EndsWithItsObjectOrItsPage) {
  auto page = std::make_unique<ControlDialog>();
  auto box = std::make_unique<CTextBox>(true, false);
  ASSERT_TRUE(box->Create(*page, kId, kPlace));
  const HWND window = box->Handle();
  box.reset();
  EXPECT_FALSE(::IsWindow(window));
  CTextBox other(true, false);
  ASSERT_TRUE(other.Create(*page, kId, kPlace));
  page.reset();
  EXPECT_EQ(nullptr, other.Handle());
  EXPECT_FALSE(other.Create(CWnd(), kId, kPlace)) << "a child needs a parent";
}

TEST(CTextBox, DrawsOnWhiteOrOnThePage) {
  const struct {
    bool whiteBackground;
    COLORREF ground;
  } rows[] = {{true, RGB(255, 255, 255)}, {false, kMarkedGround}};
  for (const auto& row : rows) {
    ControlDialog page;
    page.ground = kMarkedGround;
    CTextBox box(row.whiteBackground, false);
    ASSERT_TRUE(box.Create(page, kId, kPlace));
    const Picture picture = Paint(box);
    for (const int y : {kHeight - 1, kHeight - 2}) EXPECT_EQ(PixelOf(row.ground), picture.At(0, y));
    EXPECT_GT(CountPixels(picture, row.ground), kWidth * kHeight / 2);
    const RECT inked = Inked(picture, row.ground);
    EXPECT_GT(inked.bottom - inked.top, 2 * 11) << "several lines";
    EXPECT_GT(inked.right - inked.left, kWidth / 2);
  }
}

TEST(CTextBox, CentresOnWhiteOnly) {
  // So wide that the text is one line.
  constexpr RECT wide{0, 0, 1500, 40};
  for (const bool whiteBackground : {true, false}) {
    ControlDialog page;
    page.ground = kMarkedGround;
    page.Move({0, 0, 1600, 100});
    CTextBox box(whiteBackground, false);
    ASSERT_TRUE(box.Create(page, kId, wide));
    RECT all{0, 0, 1500, 40};
    const WindowDC screen(nullptr);
    const HDC dc = ::CreateCompatibleDC(screen);
    const GdiBitmap bitmap(::CreateCompatibleBitmap(screen, 1500, 40));
    int left = -1, right = 0;
    {
      const SelectScope selected(dc, bitmap.Get());
      box.Send(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
      const COLORREF ground = ::GetPixel(dc, 0, all.bottom - 1);
      for (int x = 0; x < all.right; ++x)
        for (int y = 0; y < 30; ++y)
          if (::GetPixel(dc, x, y) != ground) {
            if (left < 0) left = x;
            right = x;
          }
    }
    ::DeleteDC(dc);
    const int before = left, after = 1500 - right;
    if (whiteBackground)
      EXPECT_NEAR(before, after, 6);
    else
      EXPECT_LT(before, 4);
    EXPECT_GT(right - left, 200);
  }
}

TEST(CTextBox, HasSystemColorsInHighContrast) {
  const SystemColorScope colors({{COLOR_WINDOW, RGB(1, 2, 3)}, {COLOR_WINDOWTEXT, RGB(250, 251, 252)}});
  const HighContrastScope contrast;
  ControlDialog page;
  CTextBox box(true, false);
  ASSERT_TRUE(box.Create(page, kId, kPlace));
  const Picture picture = Paint(box);
  EXPECT_EQ(PixelOf(RGB(1, 2, 3)), picture.At(0, kHeight - 1));
  EXPECT_GT(CountPixels(picture, RGB(250, 251, 252)), 20);
  EXPECT_EQ(0, CountPixels(picture, RGB(255, 255, 255)));
}

TEST(CTextBox, CannotBeOperated) {
  ControlDialog page;
  CTextBox box(true, false);
  ASSERT_TRUE(box.Create(page, kId, kPlace));
  EXPECT_EQ(HTTRANSPARENT, box.Send(WM_NCHITTEST));
  EXPECT_FALSE(box.Style() & WS_TABSTOP);
  EXPECT_EQ(DLGC_STATIC, box.Send(WM_GETDLGCODE));
  const ComScope com;
  EXPECT_EQ(ROLE_SYSTEM_STATICTEXT, Accessible(box.Handle()).Role(CHILDID_SELF));
}

TEST(CTextBox, DrawsItselfOnParentsThatHandNothingOn) {
  ControlDialog page;
  page.ground = kMarkedGround;
  CTextBox onPage(true, false), onList(true, false);
  ASSERT_TRUE(onPage.Create(page, kId, kPlace));
  const CWnd list = page.Add(L"LISTBOX", L"", LBS_NOINTEGRALHEIGHT, 100, {0, 0, 300, 180});
  ASSERT_TRUE(onList.Create(list, kId, kPlace));
  EXPECT_TRUE(Paint(onPage).pixels == Paint(onList).pixels);
}

TEST(CTextBox, AnswersForItsDrawing) {
  ControlDialog page;
  CTextBox box(true, false);
  ASSERT_TRUE(box.Create(page, kId, kPlace));
  const Picture painted = Paint(box);
  const WindowDC dc(box.Handle());
  DRAWITEMSTRUCT item{};
  item.CtlType = ODT_BUTTON;
  item.CtlID = kId;
  item.itemAction = ODA_DRAWENTIRE;
  item.hwndItem = box.Handle();
  item.hDC = dc;
  item.rcItem = box.ClientRect();
  ::FillRect(dc, &item.rcItem, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
  EXPECT_TRUE(page.Send(WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&item)));
  EXPECT_TRUE(painted.pixels == Capture(box.Handle()).pixels);
}

TEST(CTextBox, BeginsAtTheRightInAMirroredPage) {
  for (const auto layout : {ControlDialog::Layout::LeftToRight, ControlDialog::Layout::RightToLeft}) {
    ControlDialog page(layout);
    page.ground = kMarkedGround;
    CTextBox box(false, false);
    ASSERT_TRUE(box.Create(page, kId, {0, 0, 270, 100}));
    const bool mirrored = layout == ControlDialog::Layout::RightToLeft;
    ASSERT_EQ(mirrored, box.IsMirrored());
    const Picture picture = Paint(box);
    // The last line, which is not full.
    const LONG bottom = Inked(picture, kMarkedGround).bottom;
    const RECT last = Inked(Cut(picture, {0, bottom - 10, 270, bottom}), kMarkedGround);
    const LONG left = last.left, right = 270 - last.right;
    EXPECT_LT(mirrored ? right : left, 16);
    EXPECT_GT(mirrored ? left : right, 40);
  }
}

TEST(CTextBox, GrowsWithTheDpi) {
  const DpiScope dpi(192);
  ControlDialog page;
  CTextBox onWhite(true, false), onPage(false, false);
  ASSERT_TRUE(onWhite.Create(page, kId, kPlace));
  ASSERT_TRUE(onPage.Create(page, kId + 1, kPlace));
  EXPECT_EQ(-24, DescribeFont(onWhite).lfHeight);
  EXPECT_EQ(-21, DescribeFont(onPage).lfHeight);
}

}  // namespace
