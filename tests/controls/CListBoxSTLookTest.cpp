// How the rows of a list box with pictures look.
#include "ListPage.h"

namespace {

// --- Pictures -------------------------------------------------------------------------------------------------------

TEST(CListBoxST, HasAllPicturesOrNone) {
  constexpr ListPicture incomplete[] = {{269, 271}, {9999, 271}};
  constexpr ListPicture withoutMask[] = {{269, 9999}};
  ListPage test;
  EXPECT_FALSE(test.list->HasImages());
  EXPECT_TRUE(test.list->SetImages(kFontPictures, SecondHalf::Disabled));
  EXPECT_TRUE(test.list->HasImages());
  EXPECT_FALSE(test.list->SetImages(incomplete, SecondHalf::Disabled));
  EXPECT_FALSE(test.list->HasImages());
  EXPECT_EQ(test.TextHeight() + 2, test.ItemHeight());
  EXPECT_FALSE(test.list->SetImages(withoutMask, SecondHalf::Disabled));
  EXPECT_FALSE(test.list->HasImages());
  const Squares squares;
  test.list->SetImageList(squares.images.Get());
  EXPECT_TRUE(test.list->HasImages());
}

// The part of a row that shows the picture.
Picture PictureOf(const ListPage& test, int row) {
  const Picture whole = test.PaintRow(row);
  return Cut(whole, {0, 0, 20, whole.height});
}

TEST(CListBoxST, DisabledRowsShowTheSecondHalf) {
  ListPage test;
  test.list->SetImages(kFontPictures, SecondHalf::Disabled);
  test.list->AddItem(L"", 1);  // normal
  test.list->AddItem(L"", 3);  // the disabled picture itself
  test.list->AddItem(L"", 1);
  test.list->EnableItem(2, false);
  EXPECT_GT(PictureOf(test, 0).ColourCount(), 2);
  EXPECT_FALSE(PictureOf(test, 0).pixels == PictureOf(test, 1).pixels);
  EXPECT_TRUE(PictureOf(test, 1).pixels == PictureOf(test, 2).pixels);
}

TEST(CListBoxST, DisabledRowsWithoutASecondHalfAreGrey) {
  constexpr ListPicture colorful[] = {{251, 252}};
  const auto countColored = [](const Picture& picture) {
    return std::count_if(picture.pixels.begin(), picture.pixels.end(), [](uint32_t pixel) {
      const int red = pixel >> 16 & 0xFF, blue = pixel & 0xFF;
      return std::abs(red - blue) > 40;  // more than the ground has
    });
  };
  ListPage test;
  test.list->SetImages(colorful, SecondHalf::None);
  test.list->AddItem(L"", 0);
  test.list->AddItem(L"", 0);
  test.list->EnableItem(1, false);
  EXPECT_GT(countColored(PictureOf(test, 0)), 10);
  EXPECT_EQ(0, countColored(PictureOf(test, 1)));
  EXPECT_GT(PictureOf(test, 1).ColourCount(), 2);
}

TEST(CListBoxST, SelectedRowsMayShowTheSecondHalf) {
  ListPage test(LBS_OWNERDRAWFIXED | LBS_MULTIPLESEL);
  test.list->SetImages(kFilePictures, SecondHalf::Selected);
  test.list->AddItem(L"", 1);
  test.list->AddItem(L"", 3);      // the picture for selected rows
  test.list->SetHighlightMode(2);  // the ground of the picture stays
  EXPECT_FALSE(PictureOf(test, 0).pixels == PictureOf(test, 1).pixels);
  test.control.Send(LB_SETSEL, TRUE, 0);
  EXPECT_TRUE(PictureOf(test, 0).pixels == PictureOf(test, 1).pixels);
}

TEST(CListBoxST, DrawsFromAnImageList) {
  ListPage test;
  const Squares squares;
  test.list->SetImageList(squares.images.Get());
  test.list->AddItem(L"", 0);
  test.list->AddItem(L"", 1);
  test.list->AddItem(L"", 2);  // there is none
  test.list->AddItem(L"", -1);
  test.list->AddItem(L"", 0);
  test.list->EnableItem(4, false);
  const RECT first = test.Filled(0, Squares::kFirst), second = test.Filled(1, Squares::kSecond);
  for (const RECT& rect : {first, second}) {
    EXPECT_EQ(2, rect.left);
    EXPECT_EQ(2 + Squares::kSize, rect.right);
    EXPECT_EQ(Squares::kSize, rect.bottom - rect.top);
  }
  for (const int row : {2, 3}) EXPECT_EQ(1, test.PaintRow(row).ColourCount()) << row;
  EXPECT_EQ(0, CountPixels(test.PaintRow(4), Squares::kFirst)) << "a disabled row's picture has no colour";
  EXPECT_GT(test.PaintRow(4).ColourCount(), 1);
}

// --- Colours --------------------------------------------------------------------------------------------------------

TEST(CListBoxST, DrawsRowsInTheColorsOfTheirState) {
  const struct {
    const char* rule;
    bool disabled, selected, contrast;
    COLORREF ground, text;
  } rows[] = {
      {"normal", false, false, false, kWindow, kText},
      {"selected text is the inverted window text", false, true, false, kSelected, kInverted},
      {"disabled", true, false, false, kWindow, kGray},
      {"a disabled row does not look selected", true, true, false, kWindow, kGray},
      {"high contrast", false, false, true, kWindow, kText},
      {"both are the system's in high contrast", false, true, true, kSelected, kSelectedText},
      {"disabled in high contrast", true, true, true, kWindow, kGray},
  };
  for (const auto& row : rows) {
    ListPage test;
    std::optional<HighContrastScope> contrast;
    if (row.contrast) contrast.emplace();
    test.list->AddItem(L"\u2588\u2588 HHHH");
    test.list->EnableItem(0, !row.disabled);
    if (row.selected) test.list->Select(0);
    const Picture picture = test.PaintRow(0);
    EXPECT_EQ(PixelOf(row.ground), picture.At(picture.width - 1, 0)) << row.rule;
    EXPECT_GT(CountPixels(picture, row.ground), picture.width * picture.height / 2) << row.rule;
    EXPECT_GT(CountPixels(picture, row.text), 10) << row.rule;
    for (const COLORREF other : {kText, kInverted, kSelectedText, kGray, kSelected})
      if (other != row.text && other != row.ground) {
        EXPECT_EQ(0, CountPixels(picture, other)) << row.rule << other;
      }
  }
}

TEST(CListBoxST, IsGreyAsAWhole) {
  ListPage test;
  test.list->AddItem(L"HHHHHH");
  test.list->Select(0);
  test.control.Enable(false);
  const Picture picture = test.PaintRow(0);
  EXPECT_EQ(0, CountPixels(picture, kSelected));
  EXPECT_GT(CountPixels(picture, kGray), 10);
}

TEST(CListBoxST, ErasesBelowItsRowsOnly) {
  ListPage test;
  test.list->AddItem(L"a");
  test.control.Redraw();
  const WindowDC dc(test.control.Handle());
  const RECT client = test.control.ClientRect();
  ::FillRect(dc, &client, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
  EXPECT_TRUE(test.control.Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(static_cast<HDC>(dc))));
  const Picture picture = Capture(test.control.Handle());
  const int below = test.RowRect(0).bottom;
  EXPECT_EQ(PixelOf(0), picture.At(5, below - 1)) << "the row covers this itself";
  EXPECT_EQ(PixelOf(kWindow), picture.At(5, below));
  EXPECT_EQ(PixelOf(kWindow), picture.At(client.right - 1, client.bottom - 1));
}

// --- Highlight ------------------------------------------------------------------------------------------------------

TEST(CListBoxST, IgnoresOtherHighlightModes) {
  ListPage test;
  EXPECT_EQ(HighlightMode::Row, test.list->Highlight());
  const struct {
    int mode;
    HighlightMode after;
  } rows[] = {{1, HighlightMode::ImageAndText}, {3, HighlightMode::ImageAndText}, {-1, HighlightMode::ImageAndText},
              {2, HighlightMode::Text},         {1000, HighlightMode::Text},      {0, HighlightMode::Row}};
  for (const auto& row : rows) {
    test.list->SetHighlightMode(row.mode);
    EXPECT_EQ(row.after, test.list->Highlight()) << row.mode;
  }
}

// The smallest rectangle that holds all pixels in which two pictures of one size differ.
RECT Difference(const Picture& first, const Picture& second) {
  Picture marks = first;
  for (size_t i = 0; i < marks.pixels.size(); ++i)
    marks.pixels[i] = PixelOf(first.pixels[i] == second.pixels[i] ? RGB(0, 0, 0) : RGB(255, 255, 255));
  return Inked(marks, RGB(0, 0, 0));
}

TEST(CListBoxST, HighlightAndFocusEncloseWhatTheModeSays) {
  ListPage test;
  test.list->SetImages(kFontPictures, SecondHalf::Disabled);
  test.list->SetIndent(10);
  test.list->AddItem(L"HHHH", 0, 3);
  test.list->Select(0);
  test.control.Focus();
  const RECT row = test.RowRect(0);
  const struct {
    int mode;
    LONG left;
    bool toTheEnd;
  } rows[] = {{0, 0, true}, {1, 30, false}, {2, 30 + 2 + 16 + 2, false}};
  for (const auto& expected : rows) {
    test.list->SetHighlightMode(expected.mode);
    ShowKeyboardCues(test.control, false);
    const Picture without = test.PaintRow(0);
    const RECT filled = test.Filled(0, kSelected);
    EXPECT_EQ(expected.left, filled.left) << expected.mode;
    EXPECT_EQ(0, filled.top) << expected.mode;
    EXPECT_EQ(row.bottom - row.top, filled.bottom) << expected.mode;
    if (expected.toTheEnd) {
      EXPECT_EQ(row.right, filled.right) << expected.mode;
    } else {
      EXPECT_LT(filled.right, row.right - 50) << expected.mode;
    }
    ShowKeyboardCues(test.control, true);
    const RECT focus = Difference(without, test.PaintRow(0));
    EXPECT_TRUE(::EqualRect(&filled, &focus)) << expected.mode << ": " << focus.left << " to " << focus.right;
  }
}

TEST(CListBoxST, ShowsTheFocusWithKeyboardCuesOnly) {
  ListPage test;
  test.list->AddItem(L"HHHH");
  test.control.Focus();
  test.control.Send(LB_SETCARETINDEX, 0);
  const Picture without = test.PaintRow(0);
  ShowKeyboardCues(test.control, true);
  const Picture with = test.PaintRow(0);
  EXPECT_FALSE(without.pixels == with.pixels);
  const RECT inked = Inked(with, kWindow);
  EXPECT_EQ(with.width, inked.right);
  EXPECT_EQ(with.height, inked.bottom);
}

// --- Text and layout ------------------------------------------------------------------------------------------------

TEST(CListBoxST, IndentsByLevel) {
  ListPage test;
  test.list->SetIndent(12);
  test.list->AddItem(L"HHHH", -1, 0);
  test.list->AddItem(L"HHHH", -1, 1);
  test.list->AddItem(L"HHHH", -1, 4);
  const LONG first = Inked(test.PaintRow(0), kWindow).left;
  EXPECT_EQ(first + 12, Inked(test.PaintRow(1), kWindow).left);
  EXPECT_EQ(first + 48, Inked(test.PaintRow(2), kWindow).left);
  const DpiScope dpi(192);
  EXPECT_EQ(first + 2 + 96, Inked(test.PaintRow(2), kWindow).left);
}

TEST(CListBoxST, TextsStandBelowEachOtherWithAndWithoutPicture) {
  ListPage test;
  const Squares squares;
  test.list->SetImageList(squares.images.Get());
  test.list->AddItem(L"HHHH", 0);
  test.list->AddItem(L"HHHH", -1);
  const Picture with = test.PaintRow(0), without = test.PaintRow(1);
  const RECT text = {2 + Squares::kSize + 1, 0, with.width, with.height};
  EXPECT_TRUE(Cut(with, text).pixels == Cut(without, text).pixels);
}

TEST(CListBoxST, TextHasNoAccessKeys) {
  ListPage test;
  test.list->AddItem(L"HH&HH");
  test.list->AddItem(L"HHHH");
  EXPECT_GT(Inked(test.PaintRow(0), kWindow).right, Inked(test.PaintRow(1), kWindow).right + 4);
  EXPECT_EQ(Inked(test.PaintRow(0), kWindow).bottom, Inked(test.PaintRow(1), kWindow).bottom) << "no line below";
}

TEST(CListBoxST, IsMirroredInAMirroredPage) {
  ListPage test(LBS_OWNERDRAWFIXED, ControlDialog::Layout::RightToLeft);
  ASSERT_TRUE(test.control.IsMirrored());
  const Squares squares;
  test.list->SetImageList(squares.images.Get());
  for (int row = 0; row < 3; ++row) test.list->AddItem(L"HHHH", 0);
  test.list->SetHighlightMode(2);
  test.list->Select(1);
  const Picture picture = Paint(test.control);
  const RECT client = test.control.ClientRect();
  for (int row = 0; row < 3; ++row) {
    const RECT rect = test.RowRect(row);  // as high on both sides
    const Picture line = Cut(picture, {0, rect.top, client.right, rect.bottom});
    EXPECT_EQ(PixelOf(Squares::kFirst), line.At(client.right - 3, line.height / 2)) << row;
    EXPECT_EQ(PixelOf(Squares::kFirst), line.At(client.right - 2 - Squares::kSize, line.height / 2)) << row;
    EXPECT_NE(PixelOf(Squares::kFirst), line.At(client.right - 2, line.height / 2)) << row;
    EXPECT_EQ(PixelOf(row == 1 ? kSelected : kWindow), line.At(client.right - 2 - Squares::kSize - 3, 0)) << row;
    EXPECT_EQ(PixelOf(kWindow), line.At(0, 0)) << row;
  }
}

TEST(CListBoxST, RepaintsARowThatChanges) {
  ListPage test;
  test.list->AddItem(L"a");
  test.list->AddItem(L"b");
  test.control.Redraw();
  test.list->EnableItem(1, false);
  RECT dirty{};
  ASSERT_TRUE(::GetUpdateRect(test.control.Handle(), &dirty, FALSE));
  const RECT row = test.RowRect(1);
  EXPECT_TRUE(::EqualRect(&row, &dirty));
}

}  // namespace
