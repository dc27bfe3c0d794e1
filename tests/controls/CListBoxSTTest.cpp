#include "controls/CListBoxST.h"

#include "ControlDialog.h"

namespace {

constexpr int kId = 1032;
constexpr int kWidth = 200, kHeight = 120;

constexpr COLORREF kWindow = RGB(250, 240, 230), kText = RGB(10, 20, 30), kInverted = RGB(245, 235, 225);
constexpr COLORREF kSelected = RGB(40, 90, 160), kSelectedText = RGB(220, 221, 222), kGray = RGB(120, 130, 110);

constexpr ListPicture kFontPictures[] = {{269, 271}, {272, 274}, {270, 271}, {273, 274}};
constexpr ListPicture kFilePictures[] = {{502, 504}, {505, 507}, {503, 504}, {506, 507}};

class ListPage {
 public:
  explicit ListPage(DWORD style = LBS_OWNERDRAWFIXED, ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight)
      : page(layout) {
    control = page.Add(L"LISTBOX", L"", LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_TABSTOP | style, kId,
                       {10, 10, 10 + kWidth, 10 + kHeight});
    list = std::make_unique<CListBoxST>();
    EXPECT_TRUE(list->Attach(page, kId));
    ShowKeyboardCues(control, false);
  }

  int ItemHeight(int row = 0) const { return static_cast<int>(control.Send(LB_GETITEMHEIGHT, row)); }
  int TextHeight() const {
    const WindowDC dc(control.Handle());
    const SelectScope font(dc, control.Font());
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc, &metrics);
    return metrics.tmHeight;
  }
  RECT RowRect(int row) const {
    RECT rect{};
    control.Send(LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&rect));
    return rect;
  }
  Picture PaintRow(int row) const { return Cut(Paint(control), RowRect(row)); }
  // The rectangle of a row that holds a colour, from its left and right edge on.
  RECT Filled(int row, COLORREF color) const {
    const Picture picture = PaintRow(row);
    RECT filled{picture.width, picture.height, 0, 0};
    for (int y = 0; y < picture.height; ++y)
      for (int x = 0; x < picture.width; ++x)
        if (picture.At(x, y) == PixelOf(color)) {
          filled.left = std::min<LONG>(filled.left, x);
          filled.right = std::max<LONG>(filled.right, x + 1);
          filled.top = std::min<LONG>(filled.top, y);
          filled.bottom = std::max<LONG>(filled.bottom, y + 1);
        }
    return filled.left < filled.right ? filled : RECT{};
  }

  const SystemColorScope colors{{{COLOR_WINDOW, kWindow},
                                 {COLOR_WINDOWTEXT, kText},
                                 {COLOR_HIGHLIGHT, kSelected},
                                 {COLOR_HIGHLIGHTTEXT, kSelectedText},
                                 {COLOR_GRAYTEXT, kGray}}};
  ControlDialog page;
  CWnd control;
  std::unique_ptr<CListBoxST> list;
};

// An image list of two filled squares.
class Squares {
 public:
  static constexpr int kSize = 20;
  static constexpr COLORREF kFirst = RGB(200, 0, 0), kSecond = RGB(0, 0, 200);

  Squares() : images(::ImageList_Create(kSize, kSize, ILC_COLOR32, 2, 0)) {
    const HDC dc = ::CreateCompatibleDC(nullptr);
    for (const COLORREF color : {kFirst, kSecond}) {
      BITMAPINFO format{};
      format.bmiHeader = {sizeof format.bmiHeader, kSize, kSize, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
      void* bits = nullptr;
      const GdiBitmap bitmap(::CreateDIBSection(dc, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
      std::fill_n(static_cast<uint32_t*>(bits), kSize * kSize, PixelOf(color));
      ::ImageList_Add(images.Get(), bitmap.Get(), nullptr);
    }
    ::DeleteDC(dc);
  }

  const ImageList images;
};

// --- Rows
// ----------------------------------------------------------------------------------------------------------------

TEST(CListBoxST, AddsRowsWithPictureAndIndent) {
  ListPage test;
  EXPECT_EQ(0, test.list->AddItem(L"Arial", 3, 2));
  EXPECT_EQ(1, test.list->AddItem(L"Tahoma"));
  EXPECT_EQ(2, test.list->AddItem(nullptr, 0));
  EXPECT_STREQ(L"Arial", test.list->RowText(0).Text());
  EXPECT_STREQ(L"Tahoma", test.list->RowText(1).Text());
  EXPECT_STREQ(L"", test.list->RowText(2).Text());
  const struct { int image, indent; } rows[] = {{3, 2}, {-1, 0}, {0, 0}};
  for (int row = 0; row < 3; ++row) {
    EXPECT_EQ(rows[row].image, test.list->ItemImage(row)) << row;
    EXPECT_EQ(rows[row].indent, test.list->ItemIndent(row)) << row;
    EXPECT_EQ(0u, test.list->ItemData(row)) << row;
    EXPECT_EQ(nullptr, test.list->ItemPointer(row)) << row;
    EXPECT_TRUE(test.list->IsItemEnabled(row)) << row;
  }
}

TEST(CListBoxST, KeepsWhatRowsCarry) {
  ListPage test;
  int target = 0;
  test.list->AddItem(L"a");
  test.list->AddItem(L"b");
  EXPECT_TRUE(test.list->SetItemData(1, 0xFFFFFFFF));
  EXPECT_TRUE(test.list->SetItemPointer(1, &target));
  EXPECT_TRUE(test.list->SetItemImage(1, 4));
  EXPECT_TRUE(test.list->SetItemIndent(1, 3));
  EXPECT_TRUE(test.list->EnableItem(1, false));
  EXPECT_EQ(0xFFFFFFFFu, test.list->ItemData(1));
  EXPECT_EQ(&target, test.list->ItemPointer(1));
  EXPECT_EQ(4, test.list->ItemImage(1));
  EXPECT_EQ(3, test.list->ItemIndent(1));
  EXPECT_FALSE(test.list->IsItemEnabled(1));
  EXPECT_TRUE(test.list->EnableItem(1, true));
  EXPECT_TRUE(test.list->IsItemEnabled(1));
  EXPECT_EQ(0u, test.list->ItemData(0)) << "the other row is left alone";
  EXPECT_TRUE(test.list->IsItemEnabled(0));
}

TEST(CListBoxST, KnowsNoRowsThatAreNotThere) {
  ListPage test;
  test.list->AddItem(L"a");
  for (const int row : {-1, 1, 1000}) {
    EXPECT_FALSE(test.list->SetItemData(row, 1)) << row;
    EXPECT_FALSE(test.list->SetItemPointer(row, &test)) << row;
    EXPECT_FALSE(test.list->SetItemImage(row, 1)) << row;
    EXPECT_FALSE(test.list->SetItemIndent(row, 1)) << row;
    EXPECT_FALSE(test.list->EnableItem(row, true)) << row;
    EXPECT_FALSE(test.list->IsItemEnabled(row)) << row;
    EXPECT_EQ(0u, test.list->ItemData(row)) << row;
    EXPECT_EQ(nullptr, test.list->ItemPointer(row)) << row;
    EXPECT_EQ(-1, test.list->ItemImage(row)) << row;
    EXPECT_FALSE(test.list->DeleteItem(row)) << row;
  }
  EXPECT_EQ(1, test.list->Count());
  CListBoxST loose;
  EXPECT_LT(loose.AddItem(L"a"), 0 + 1);
  EXPECT_FALSE(loose.DeleteItem(0));
}

TEST(CListBoxST, RowsTakeTheirValuesAlong) {
  ListPage test(LBS_OWNERDRAWFIXED | LBS_SORT);
  for (const wchar_t* text : {L"c", L"a", L"b"}) {
    const int row = test.list->AddItem(text);
    test.list->SetItemData(row, text[0]);
  }
  for (int row = 0; row < 3; ++row)
    EXPECT_EQ(static_cast<uint32_t>(test.list->RowText(row)[0]), test.list->ItemData(row)) << row;
  EXPECT_TRUE(test.list->DeleteItem(0));
  for (int row = 0; row < 2; ++row)
    EXPECT_EQ(static_cast<uint32_t>(test.list->RowText(row)[0]), test.list->ItemData(row)) << row;
}

TEST(CListBoxST, FreesARecordWithItsRow) {
  for (const DWORD style : {DWORD{LBS_OWNERDRAWFIXED}, DWORD{LBS_OWNERDRAWVARIABLE}}) {
    ListPage test(style);
    for (const wchar_t* text : {L"a", L"b", L"c", L"d"}) test.list->AddItem(text);
    EXPECT_EQ(4u, test.list->RecordCount());
    EXPECT_TRUE(test.list->DeleteItem(1));
    EXPECT_EQ(3u, test.list->RecordCount());
    test.list->Delete(0);
    EXPECT_EQ(2u, test.list->RecordCount());
    test.list->Reset();
    EXPECT_EQ(0u, test.list->RecordCount());
    test.list->SetItemData(test.list->AddItem(L"e"), 7);
    EXPECT_EQ(7u, test.list->ItemData(0));
    ::DestroyWindow(test.control.Handle());
    EXPECT_EQ(0u, test.list->RecordCount());
  }
}

TEST(CListBoxST, MayEndBeforeItsControl) {
  ListPage test;
  test.list->AddItem(L"a");
  test.list->AddItem(L"b");
  test.list.reset();
  EXPECT_EQ(2, CListBox(test.control).Count());
  CListBox(test.control).Delete(0);
  CListBoxST next;
  ASSERT_TRUE(next.Attach(test.page, kId));
  EXPECT_TRUE(next.IsItemEnabled(0)) << "a row of before has nothing but its text";
  EXPECT_EQ(0u, next.ItemData(0));
}

TEST(CListBoxST, RowsAddedPlainlyAreRowsAsWell) {
  ListPage test;
  test.list->AddString(L"plain");
  EXPECT_EQ(0u, test.list->RecordCount());
  EXPECT_TRUE(test.list->IsItemEnabled(0));
  EXPECT_EQ(-1, test.list->ItemImage(0));
  EXPECT_TRUE(test.list->SetItemData(0, 5));
  EXPECT_EQ(5u, test.list->ItemData(0));
  EXPECT_EQ(-1, test.list->ItemImage(0));
  EXPECT_EQ(1u, test.list->RecordCount());
  test.list->DeleteItem(0);
  EXPECT_EQ(0u, test.list->RecordCount());
}

// --- Row height
// ----------------------------------------------------------------------------------------------------------

TEST(CListBoxST, RowsHaveRoomForTextAndPicture) {
  for (const DWORD style : {DWORD{LBS_OWNERDRAWFIXED}, DWORD{LBS_OWNERDRAWVARIABLE}}) {
    ListPage test(style);
    test.list->AddItem(L"before");
    const int text = test.TextHeight();
    ASSERT_LT(text, 18);
    EXPECT_EQ(text + 2, test.ItemHeight());
    EXPECT_TRUE(test.list->SetImages(kFontPictures, SecondHalf::Disabled));
    test.list->AddItem(L"after");
    for (const int row : {0, 1}) EXPECT_EQ(16 + 2 + 2, test.ItemHeight(row)) << row;
    const Squares squares;
    test.list->SetImageList(squares.images.Get());
    EXPECT_EQ(Squares::kSize + 2 + 2, test.ItemHeight());
    test.list->SetImageList(nullptr);
    for (const int row : {0, 1}) EXPECT_EQ(text + 2, test.ItemHeight(row)) << row;
  }
}

TEST(CListBoxST, RowsFollowTheFont) {
  ListPage test;
  test.list->AddItem(L"a");
  test.list->SetImages(kFontPictures, SecondHalf::Disabled);
  const GdiFont larger = DeriveFont(test.page.Font(), [](LOGFONTW& font) { font.lfHeight = -40; });
  test.control.SetFont(larger.Get());
  EXPECT_GT(test.TextHeight(), 30);
  EXPECT_EQ(test.TextHeight() + 2, test.ItemHeight());
}

// --- Pictures
// ------------------------------------------------------------------------------------------------------------

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

// --- Colours
// -----------------------------------------------------------------------------------------------------------

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

// --- Highlight
// -----------------------------------------------------------------------------------------------------------

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

// --- Text and layout
// -------------------------------------------------------------------------------------------------------

TEST(CListBoxST, IndentsByLevel) {
  ListPage test;
  test.list->SetIndent(12);
  test.list->AddItem(L"HHHH", -1, 0);
  test.list->AddItem(L"HHHH", -1, 1);
  test.list->AddItem(L"HHHH", -1, 4);
  const LONG first = Inked(test.PaintRow(0), kWindow).left;
  EXPECT_EQ(first + 12, Inked(test.PaintRow(1), kWindow).left);
  EXPECT_EQ(first + 48, Inked(test.PaintRow(2), kWindow).left);
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
